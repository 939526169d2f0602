#pragma once

#include "engine/DateTime.h"

#include <array>

namespace vellarno {

struct DayOfYear
{
    int Month;
    int Day;
};

/// The Italian public holidays of fixed date. Easter Monday is the only one that moves.
constexpr std::array<DayOfYear, 10> FixedHolidays{
    {{1, 1}, {1, 6}, {4, 25}, {5, 1}, {6, 2}, {8, 15}, {11, 1}, {12, 8}, {12, 25}, {12, 26}}};

/// Day number of Easter Sunday (Gregorian, proleptic before 1583), 0 for a year outside 0 to 9999.
/// Anonymous Gregorian computus, as given by Meeus, Astronomical Algorithms, chapter 8.
/// @param Anno  below 100 read as by DateSerial.
DayNumber EasterDate(int Anno);

/// True for a Sunday, a fixed holiday or Easter Monday.
/// @param MondayNumber  EasterDate + 1 of the year in which the day lies.
bool IsHoliday(DayNumber Serial, DayNumber MondayNumber);

}
