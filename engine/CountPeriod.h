#pragma once

#include "engine/DateTime.h"

namespace vellarno {

/// The days of a period by kind.
struct PeriodFigures
{
    int WorkingDays;
    int Saturdays;
    int Sundays;
    int Holidays; ///< none on a Sunday; none on a Saturday where Saturdays are holidays themselves
};

/// Counts as many days as FromDay and ToDay lie apart, from FromDay on upward: the last day isn't
/// counted, and where ToDay is the earlier one the days counted still begin with FromDay.
/// @param FromDay  like the last day counted, from FirstYear to the year after LastYear; outside
///                 these std::out_of_range is thrown.
/// @param SaturdayIsHoliday  Saturdays are no working days.
PeriodFigures CountPeriod(DayNumber FromDay, DayNumber ToDay, bool SaturdayIsHoliday);

}
