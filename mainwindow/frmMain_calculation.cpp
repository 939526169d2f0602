#include "mainwindow/frmMain.h"

#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Moments.h"
#include "engine/Text.h"

namespace vellarno {

namespace {

int Number(const forms::TextBox& Box)
{
    return CInt(Box.Text()).value_or(0);
}

}

void frmMain::cmdCalcola_Click()
{
    CloseCalendar();
    if (optDataTime[0].Value())
        CompareTimes();
    else if (optDataTime[1].Value())
        CompareMoments();
    else if (optDataTime[2].Value())
        CompareDates();
    AnnounceResults();
}

void frmMain::CompareTimes()
{
    if (!HasAllFields(0)) {
        ShowIncompleteData();
        return;
    }
    const DayNumber today = Date(); // one reading for both: midnight can't come between them
    CalcTimes(today + TypedTime(0), today + TypedTime(3), TypedTime(3), *this);
}

void frmMain::CompareMoments()
{
    if (!HasAllFields(1)) {
        ShowIncompleteData();
        return;
    }
    if (!ValidateDates()) return;
    const Moment start{TypedDate(0), TypedTime(0)};
    const Moment end{TypedDate(3), TypedTime(3)};
    ShowWeekdays(start.Value(), end.Value());
    const MomentPeriod period = OrderMoments(start, end);
    CalcTimes(period.StartDate, period.EndDate, {}, *this);
    CalcDates(period.StartDate, period.CountedEnd, SaturdayIsHoliday, *this);
}

void frmMain::CompareDates()
{
    if (!HasAllFields(2)) {
        ShowIncompleteData();
        return;
    }
    if (!ValidateDates()) return;
    DayNumber start = TypedDate(0);
    DayNumber end = TypedDate(3);
    ShowWeekdays(start, end);
    if (start > end) std::swap(start, end);
    if (chkDayInt.Value() == 1) end += 1;
    CalcDates(start, end, SaturdayIsHoliday, *this);
}

DayNumber frmMain::TypedDate(int First) const
{
    return DateSerial(Number(txtData[First + 2]), Number(txtData[First + 1]),
                      Number(txtData[First]));
}

DateValue frmMain::TypedTime(int First) const
{
    return TimeSerial(Number(txtTime[First]), Number(txtTime[First + 1]),
                      Number(txtTime[First + 2]));
}

// Before the two are put in order: each weekday stays beside the date that was typed there.
void frmMain::ShowWeekdays(DateValue StartDate, DateValue EndDate)
{
    lblWeekDay[0].SetCaption(WeekdayText(Weekday(StartDate, Sunday)));
    lblWeekDay[1].SetCaption(WeekdayText(Weekday(EndDate, Sunday)));
}

}
