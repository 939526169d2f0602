#pragma once

#include "engine/DateTime.h"
#include "engine/ResultLabels.h"

namespace vellarno {

/// The distance of two dates by the fields of the calendar, and its totals.
struct DateFigures
{
    int Years;
    int Months;     ///< 0 to 11
    int Days;       ///< 0 to 30
    int TotalDays;  ///< calendar days
    int TotalWeeks; ///< Mondays after the start up to and including the end
};

/// @param EndDate  not on a day before that of StartDate. Times of day count in nothing.
DateFigures DateDifference(DateValue StartDate, DateValue EndDate);

/// Writes the figures of the distance and of CountPeriod, for which both ends are rounded to day
/// numbers, and throws as that does. A long period shows the hourglass meanwhile.
/// @param SaturdayIsHoliday  Saturdays are no working days.
void CalcDates(DateValue StartDate, DateValue EndDate, bool SaturdayIsHoliday,
               ResultLabels& Labels);

}
