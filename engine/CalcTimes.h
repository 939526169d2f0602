#pragma once

#include "engine/DateTime.h"
#include "engine/ResultLabels.h"

#include <cstdint>

namespace vellarno {

/// The distance of two moments: its clock figures without the whole days, and the whole span cut
/// down to each unit.
struct TimeFigures
{
    int Hours;   ///< 0 to 23
    int Minutes; ///< 0 to 59
    int Seconds; ///< 0 to 59
    std::int64_t TotalHours;
    std::int64_t TotalMinutes;
    std::int64_t TotalSeconds; ///< 1100 years have more than 32 bits hold
};

/// @param EndDate  not before StartDate.
TimeFigures TimeDifference(DateValue StartDate, DateValue EndDate);

/// Writes the figures of the distance from StartDate to EndDate. Where two times of day are
/// compared an end before the start lies on the next day.
void CalcTimes(DateValue StartDate, DateValue EndDate, ResultLabels& Labels);

}
