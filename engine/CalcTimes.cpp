#include "engine/CalcTimes.h"

#include "engine/Text.h"

namespace vellarno {

TimeFigures TimeDifference(DateValue StartDate, DateValue EndDate)
{
    const DateValue elapsed = EndDate - StartDate;
    const std::int64_t seconds = DateDiff("s", StartDate, EndDate);
    return {.Hours = Hour(elapsed),
            .Minutes = Minute(elapsed),
            .Seconds = Second(elapsed),
            .TotalHours = seconds / 3600,
            .TotalMinutes = seconds / 60,
            .TotalSeconds = seconds};
}

void CalcTimes(DateValue StartDate, DateValue EndDate, ResultLabels& Labels)
{
    if (EndDate < StartDate) EndDate += 1;
    const TimeFigures figures = TimeDifference(StartDate, EndDate);

    Labels.SetDati(ResultLabels::Hours, Format(figures.Hours, "0,0"));
    Labels.SetDati(ResultLabels::Minutes, Format(figures.Minutes, "0,0"));
    Labels.SetDati(ResultLabels::Seconds, Format(figures.Seconds, "0,0"));
    Labels.SetTotali(ResultLabels::TotalSeconds, Format(figures.TotalSeconds, "0,0"));
    Labels.SetTotali(ResultLabels::TotalMinutes, Format(figures.TotalMinutes, "0,0"));
    Labels.SetTotali(ResultLabels::TotalHours, Format(figures.TotalHours, "0,0"));
}

}
