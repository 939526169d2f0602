#include "engine/CalcTimes.h"

#include "engine/Text.h"

#include <cstdlib>

namespace vellarno {

TimeFigures TimeDifference(DateValue StartDate, DateValue EndDate)
{
    const DateValue Elapsed = EndDate - StartDate;
    const std::int64_t Seconds = std::abs(DateDiff("s", EndDate, StartDate));
    return {.Hours = Hour(Elapsed),
            .Minutes = Minute(Elapsed),
            .Seconds = Second(Elapsed),
            .TotalHours = Seconds / 3600,
            .TotalMinutes = Seconds / 60,
            .TotalSeconds = Seconds};
}

void CalcTimes(DateValue StartDate, DateValue EndDate, std::optional<DateValue> EndTimeOfDay,
               ResultLabels& Labels)
{
    if (EndTimeOfDay && EndDate < StartDate) EndDate = Int(StartDate) + 1 + *EndTimeOfDay;
    const TimeFigures Figures = TimeDifference(StartDate, EndDate);

    Labels.SetDati(ResultLabels::Hours, Format(Figures.Hours, "0,0"));
    Labels.SetDati(ResultLabels::Minutes, Format(Figures.Minutes, "0,0"));
    Labels.SetDati(ResultLabels::Seconds, Format(Figures.Seconds, "0,0"));
    Labels.SetTotali(ResultLabels::TotalSeconds, Format(Figures.TotalSeconds, "0,0"));
    Labels.SetTotali(ResultLabels::TotalMinutes, Format(Figures.TotalMinutes, "0,0"));
    Labels.SetTotali(ResultLabels::TotalHours, Format(Figures.TotalHours, "0,0"));
}

}
