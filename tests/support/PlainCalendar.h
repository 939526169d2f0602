#pragma once

#include <optional>
#include <string>

/// The judge of all figures: a calendar counted on the fingers. Nothing here calls the program.
namespace vellarno::test {

int PlainMonthLength(int Year, int Month);

/// A day that steps on by one; begins with Friday 01/01/0100.
struct PlainDay
{
    int Serial = -657434, Year = 100, Month = 1, Day = 1;
    int Weekday = 6; ///< 1 is Sunday

    void Step();
    /// Easter Monday or a holiday of fixed date, whatever the weekday.
    bool IsListed() const;
};

/// A day of the years 1000 to 2101, by its date or its serial; nothing where the calendar has none.
std::optional<PlainDay> PlainDayOf(int Day, int Month, int Year);
const PlainDay& PlainDayOf(int Serial);

/// A day and the second of it.
struct PlainMoment
{
    PlainDay Day;
    int Second;
};

/// The figures that belong to two moments: elapsed, totals and weekdays parted by bars, "-" for
/// each that the window leaves empty.
std::string JudgeFigures(bool Dates, bool Times, PlainMoment Start, PlainMoment End, bool WholeDay,
                         bool SaturdaysOff);

}
