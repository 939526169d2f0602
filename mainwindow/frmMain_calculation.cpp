#include "mainwindow/frmMain.h"

#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/Moments.h"
#include "engine/Text.h"

#include <utility>

namespace vellarno {

namespace {

int NumberIn(const forms::TextBox& Box)
{
    return CInt(Box.Text()).value_or(0);
}

}

void frmMain::cmdCalcola_Click()
{
    CloseCalendar();
    const Mode mode = ChosenMode();
    if (!HasAllFields(mode))
        ShowIncompleteData();
    else if (mode == Times)
        CompareTimes();
    else if (ValidateDates())
        mode == Moments ? CompareMoments() : CompareDates();
    AnnounceResults();
}

void frmMain::CompareTimes()
{
    CalcTimes(TypedTime(0), TypedTime(1), *this);
}

void frmMain::CompareMoments()
{
    const Moment start{TypedDate(0), TypedTime(0)};
    const Moment end{TypedDate(1), TypedTime(1)};
    ShowWeekdays(start.Value(), end.Value());
    const MomentPeriod period = OrderMoments(start, end);
    CalcTimes(period.StartDate, period.EndDate, *this);
    CalcDates(period.StartDate, period.CountedEnd, chkWorkSat.Value() == 1, *this);
}

void frmMain::CompareDates()
{
    DayNumber start = TypedDate(0);
    DayNumber end = TypedDate(1);
    ShowWeekdays(start, end);
    if (start > end) std::swap(start, end);
    if (chkDayInt.Value() == 1) end += 1;
    CalcDates(start, end, chkWorkSat.Value() == 1, *this);
}

DayNumber frmMain::TypedDate(int End) const
{
    const int first = FirstBox(End);
    return DateSerial(NumberIn(txtData[first + 2]), NumberIn(txtData[first + 1]),
                      NumberIn(txtData[first]));
}

DateValue frmMain::TypedTime(int End) const
{
    const int first = FirstBox(End);
    return TimeSerial(NumberIn(txtTime[first]), NumberIn(txtTime[first + 1]),
                      NumberIn(txtTime[first + 2]));
}

// Before the two are put in order: each weekday stays beside the date that was typed there.
void frmMain::ShowWeekdays(DateValue StartDate, DateValue EndDate)
{
    lblWeekDay[0].SetCaption(WeekdayText(Weekday(StartDate, Sunday)));
    lblWeekDay[1].SetCaption(WeekdayText(Weekday(EndDate, Sunday)));
}

}
