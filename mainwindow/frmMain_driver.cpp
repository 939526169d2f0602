#include "mainwindow/frmMain.h"

#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Moments.h"
#include "engine/Text.h"
#include "services/App.h"
#include "services/Platform.h"

namespace vellarno {

namespace {

int Number(const forms::TextBox& Box)
{
    return CInt(Box.Text()).value_or(0);
}

bool AllFilled(const forms::ControlArray<forms::TextBox>& Boxes)
{
    for (const auto& box : Boxes)
        if (box.Text().empty()) return false;
    return true;
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

bool frmMain::HasAllFields(int Mode) const
{
    return (Mode == 2 || AllFilled(txtTime)) && (Mode == 0 || AllFilled(txtData));
}

void frmMain::ShowIncompleteData()
{
    System().MsgBox("      - Impossibile eseguire il calcolo: dati incompleti -  \r\n"
                    "Verificare di aver inserito le date e/o le ore dove richiesto\r\n"
                    "e riprovare.",
                    forms::Information, App::Title);
}

void frmMain::Form_KeyPress(short& KeyAscii)
{
    constexpr short Enter = 13;
    if (KeyAscii != Enter || !dynamic_cast<forms::TextBox*>(ActiveControl())) return;
    forms::SendKeys("{TAB}");
    KeyAscii = 0;
}

void frmMain::SetDati(Elapsed Which, const std::string& Caption)
{
    lblDati[Which].SetCaption(Caption);
}

void frmMain::SetTotali(Total Which, const std::string& Caption)
{
    lblTotali[Which].SetCaption(Caption);
}

void frmMain::SetHourglass(bool Shown)
{
    forms::SetScreenPointer(Shown);
}

}
