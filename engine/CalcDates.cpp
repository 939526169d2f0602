#include "engine/CalcDates.h"

#include "engine/CountPeriod.h"
#include "engine/Text.h"

#include <algorithm>
#include <cstdlib>

namespace vellarno {

namespace {

/// Longer periods, in days, show the hourglass.
constexpr int LongPeriod = 20000;

}

DateFigures DateDifference(DateValue StartDate, DateValue EndDate)
{
    const int Y1 = Year(StartDate);
    const int M1 = Month(StartDate);
    const int D1 = Day(StartDate);
    const int Y2 = Year(EndDate);
    const int M2 = Month(EndDate);
    const int D2 = Day(EndDate);

    const bool YearIncomplete = DateSerial(Y2, M1, D1) > EndDate;
    const bool Borrows = D1 > D2;
    // The start's month lends its days or, where both months are the same, the month before.
    // It may have fewer days than are taken from it: never less than 0 remain.
    const int Lent = Borrows ? Day(DateSerial(Y2, M1 == M2 ? M1 : M1 + 1, 0)) : 0;

    return {.Years = Y2 - Y1 - (YearIncomplete ? 1 : 0),
            .Months = (M2 - M1 - (Borrows ? 1 : 0) + 12) % 12,
            .Days = std::max(Lent - D1 + D2, 0),
            .TotalDays = static_cast<int>(std::abs(DateDiff("y", EndDate, StartDate))),
            .TotalWeeks = static_cast<int>(std::abs(DateDiff("ww", EndDate, StartDate, Monday)))};
}

void CalcDates(DateValue StartDate, DateValue EndDate, bool SaturdayIsHoliday, ResultLabels& Labels)
{
    const DateFigures Elapsed = DateDifference(StartDate, EndDate);
    if (Elapsed.TotalDays > LongPeriod) Labels.SetHourglass(true);
    const PeriodFigures Period = CountPeriod(CLng(StartDate), CLng(EndDate), SaturdayIsHoliday);

    Labels.SetDati(ResultLabels::Years, Format(Elapsed.Years, "0,0"));
    Labels.SetDati(ResultLabels::Months, Format(Elapsed.Months, "00"));
    Labels.SetDati(ResultLabels::Days, Format(Elapsed.Days, "00"));
    Labels.SetTotali(ResultLabels::TotalDays, Format(Elapsed.TotalDays, "0,0"));
    Labels.SetTotali(ResultLabels::TotalWeeks, Format(Elapsed.TotalWeeks, "0,0"));
    Labels.SetTotali(ResultLabels::Sundays, Format(Period.Sundays, "0,0"));
    Labels.SetTotali(ResultLabels::Saturdays, Format(Period.Saturdays, "0,0"));
    Labels.SetTotali(ResultLabels::Holidays, Format(Period.Holidays, "0,0"));
    Labels.SetTotali(ResultLabels::WorkingDays, Format(Period.WorkingDays, "0,0"));
    Labels.SetHourglass(false);
}

}
