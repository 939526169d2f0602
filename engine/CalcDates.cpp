#include "engine/CalcDates.h"

#include "engine/CountPeriod.h"
#include "engine/Text.h"

#include <algorithm>

namespace vellarno {

namespace {

/// Longer periods, in days, show the hourglass.
constexpr int LongPeriod = 20000;

}

DateFigures DateDifference(DateValue StartDate, DateValue EndDate)
{
    const int y1 = Year(StartDate);
    const int m1 = Month(StartDate);
    const int d1 = Day(StartDate);
    const int y2 = Year(EndDate);
    const int m2 = Month(EndDate);
    const int d2 = Day(EndDate);

    const bool yearIncomplete = DateSerial(y2, m1, d1) > EndDate;
    const bool borrows = d1 > d2;
    // The start's month lends its days or, where both months are the same, the month before.
    // It may have fewer days than are taken from it: never less than 0 remain.
    const int lent = borrows ? Day(DateSerial(y2, m1 == m2 ? m1 : m1 + 1, 0)) : 0;

    return {.Years = y2 - y1 - (yearIncomplete ? 1 : 0),
            .Months = (m2 - m1 - (borrows ? 1 : 0) + 12) % 12,
            .Days = std::max(lent - d1 + d2, 0),
            .TotalDays = static_cast<int>(DateDiff("y", StartDate, EndDate)),
            .TotalWeeks = static_cast<int>(DateDiff("ww", StartDate, EndDate, Monday))};
}

void CalcDates(DateValue StartDate, DateValue EndDate, bool SaturdayIsHoliday, ResultLabels& Labels)
{
    const DateFigures elapsed = DateDifference(StartDate, EndDate);
    if (elapsed.TotalDays > LongPeriod) Labels.SetHourglass(true);
    const PeriodFigures period = CountPeriod(CLng(StartDate), CLng(EndDate), SaturdayIsHoliday);

    Labels.SetDati(ResultLabels::Years, Format(elapsed.Years, "0,0"));
    Labels.SetDati(ResultLabels::Months, Format(elapsed.Months, "00"));
    Labels.SetDati(ResultLabels::Days, Format(elapsed.Days, "00"));
    Labels.SetTotali(ResultLabels::TotalDays, Format(elapsed.TotalDays, "0,0"));
    Labels.SetTotali(ResultLabels::TotalWeeks, Format(elapsed.TotalWeeks, "0,0"));
    Labels.SetTotali(ResultLabels::Sundays, Format(period.Sundays, "0,0"));
    Labels.SetTotali(ResultLabels::Saturdays, Format(period.Saturdays, "0,0"));
    Labels.SetTotali(ResultLabels::Holidays, Format(period.Holidays, "0,0"));
    Labels.SetTotali(ResultLabels::WorkingDays, Format(period.WorkingDays, "0,0"));
    Labels.SetHourglass(false);
}

}
