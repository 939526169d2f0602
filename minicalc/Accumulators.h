#pragma once

#include "engine/DateTime.h"

#include <optional>
#include <string_view>

namespace vellarno {

/// Figures of a clock time, or of a step on the clock, where each may be negative or exceed 59, up
/// to some thousands.
struct ClockTime
{
    int Hours;
    int Minutes;
    int Seconds;
};

/// The clock time that stands Step after Total. Whole days are dropped: past 23:59:59 it goes on
/// from 00:00:00, and before 00:00:00 from 23:59:59 downward.
ClockTime AddOnClock(ClockTime Total, ClockTime Step);

/// What a running date is stepped by.
struct DateUnit
{
    std::string_view Name;     ///< in the plural
    std::string_view Interval; ///< as DateAdd names it
    std::string_view Zero;     ///< the quantity 0 with all the digits that a quantity may have
};

/// By the index of the unit's option: days, weeks, months, quarters.
inline constexpr DateUnit DateUnits[] = {{"giorni", "d", "0000"},
                                         {"settimane", "ww", "000"},
                                         {"mesi", "m", "000"},
                                         {"trimestri", "q", "00"}};

/// The date that a text "day/month/year" names, moved by a quantity of a unit.
/// @param Quantity  as it was typed.
/// @return nothing for no date, no quantity, or a result that no date value can hold.
std::optional<DateValue> StepDate(std::string_view From, const DateUnit& Unit,
                                  std::string_view Quantity, bool Subtract);

}
