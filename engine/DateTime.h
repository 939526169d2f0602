#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vellarno {

/// A moment as a number of days since 30/12/1899 00:00:00. The whole part, rounded down, is the
/// day, the rest its time of day: -0.75 is 29/12/1899 06:00:00. Gregorian for all years, without a
/// time zone. Valid from FirstDate to the end of the day LastDate.
using DateValue = double;

/// A whole date value: a day at 00:00:00.
using DayNumber = int;

constexpr DayNumber FirstDate = -657434; ///< 01/01/0100
constexpr DayNumber LastDate = 2958465;  ///< 31/12/9999

/// The years of dates that are compared and of months that the calendar shows.
constexpr int FirstYear = 1000;
constexpr int LastYear = 2100;

/// The day at 00:00:00. Month and day may lie outside their range and carry over: day 0 is the last
/// day of the month before, month 13 the next January.
/// @param Anno  0 to 29 stand for 2000 to 2029, 30 to 99 for 1930 to 1999; else literal, to 9999.
DayNumber DateSerial(int Anno, int Mese, int Giorno);

/// The time of day as a fraction of a day; 12:00:00 is exactly 0.5.
DateValue TimeSerial(int Hours, int Minutes, int Seconds);

/// The day of x, whatever its time of day.
DayNumber Int(DateValue x);

int Year(DateValue x);
int Month(DateValue x); ///< 1 to 12
int Day(DateValue x);   ///< 1 to 31

/// Clock figures of the time of day of x, to the nearest second, so that the inexactness of the
/// difference of two large date values is absorbed. Whole days don't count: Hour(1.5) is 12.
int Hour(DateValue x);
int Minute(DateValue x);
int Second(DateValue x);

/// The weekdays by number.
enum { Sunday = 1, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday };

/// 1 to 7, counted from the weekday First: the weekday itself where that is Sunday.
int Weekday(DateValue x, int First);

// An interval that an operation doesn't have is a fault of the program: std::logic_error.

/// x moved by Number times "s", "n" (minutes), "h", "d", "ww" (weeks), "m" or "q" (quarters).
/// Months keep the day of the month and the time of day; a day that the target month lacks becomes
/// its last one. Steps of the clock are taken in whole seconds, so that midnight is met exactly.
/// @return nothing if the result lies outside the valid dates.
std::optional<DateValue> DateAdd(std::string_view Interval, int Number, DateValue x);

/// Distance from a to b, negative if b is the earlier: "d" or "y" in calendar days, "s" in seconds,
/// "ww" in weekdays First after a up to and including b.
/// @param First  as for Weekday.
std::int64_t DateDiff(std::string_view Interval, DateValue a, DateValue b, int First = Sunday);

/// The quarter, 1 to 4, for "q".
int DatePart(std::string_view Interval, DateValue x);

}
