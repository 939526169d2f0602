#pragma once

#include "engine/DateTime.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vellarno {

/// One or more ASCII digits and nothing else.
bool IsNumeric(std::string_view Text);

/// @return nothing if Text isn't numeric or exceeds 32767.
std::optional<std::int16_t> CInt(std::string_view Text);

/// @return nothing if Text isn't numeric or too large for a double.
std::optional<double> CDbl(std::string_view Text);

std::string CStr(int Number);

/// The nearest whole number, a tie to the even one.
/// @param Number  within the range of an int.
int CLng(double Number);

/// True if CDate reads Text.
bool IsDate(std::string_view Text);

/// The day that a text "day/month/year" names. Blanks around the numbers don't count;
/// years below 100 are read as by DateSerial.
/// @return nothing if the text has another form or the calendar lacks that day.
std::optional<DayNumber> CDate(std::string_view Text);

/// Value by a pattern, with Italian names and separators.
/// A pattern of zeros prints the nearest whole number with at least as many digits, and with a
/// point between groups of three if the pattern holds a comma. Any other pattern prints a date
/// value: dddd (lunedì), dd, d, mmmm (gennaio), mmm (gen), yyyy, yy, hh, mm (minutes), ss, other
/// characters literally.
std::string Format(double Value, std::string_view Pattern);

/// A numeric text is printed as its number, any other text comes back unchanged.
std::string Format(std::string_view Text, std::string_view Pattern);

template <std::integral T>
std::string Format(T Value, std::string_view Pattern)
{
    return Format(static_cast<double>(Value), Pattern);
}

/// "Domenica" for 1 to "Sabato" for 7, as Weekday counts from Sunday; empty for another number.
std::string WeekdayText(int Number);

}
