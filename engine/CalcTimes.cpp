#include "engine/CalcTimes.h"

#include "engine/DateTime.h"
#include "engine/Text.h"

#include <cmath>
#include <cstdlib>

namespace vellarno {

TimeFigures TimeDifference(double StartDate, double EndDate)
{
    const double Elapsed = EndDate - StartDate;
    const std::int64_t Seconds = std::abs(DateDiff("s", EndDate, StartDate));
    return {.Hours = Hour(Elapsed),
            .Minutes = Minute(Elapsed),
            .Seconds = Second(Elapsed),
            .TotalHours = Seconds / 3600,
            .TotalMinutes = Seconds / 60,
            .TotalSeconds = Seconds};
}

void CalcTimes(double StartDate, double EndDate, std::optional<double> EndTimeOfDay,
               ResultLabels& Labels)
{
    if (EndTimeOfDay && EndDate < StartDate) EndDate = std::floor(StartDate) + 1 + *EndTimeOfDay;
    const TimeFigures Figures = TimeDifference(StartDate, EndDate);

    Labels.SetDati(3, Format(Figures.Hours, "0,0"));
    Labels.SetDati(4, Format(Figures.Minutes, "0,0"));
    Labels.SetDati(5, Format(Figures.Seconds, "0,0"));
    Labels.SetTotali(8, Format(Figures.TotalSeconds, "0,0"));
    Labels.SetTotali(7, Format(Figures.TotalMinutes, "0,0"));
    Labels.SetTotali(6, Format(Figures.TotalHours, "0,0"));
}

}
