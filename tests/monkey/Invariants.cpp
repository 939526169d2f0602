#include "tests/monkey/Invariants.h"

#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/Clock.h"
#include "engine/CountPeriod.h"
#include "engine/Holidays.h"
#include "engine/Moments.h"
#include "engine/Text.h"
#include "minicalc/Accumulators.h"
#include "tests/support/Driver.h"

#include <QApplication>

#include <algorithm>
#include <cctype>
#include <memory>
#include <sstream>

namespace vellarno::test {

namespace {

int Number(const forms::TextBox& Box)
{
    return CInt(Box.Text()).value_or(0);
}

double DateIn(const Array<forms::TextBox>& Boxes, int First)
{
    return DateSerial(Number(Boxes[First + 2]), Number(Boxes[First + 1]), Number(Boxes[First]));
}

double TimeIn(const Array<forms::TextBox>& Boxes, int First)
{
    return TimeSerial(Number(Boxes[First]), Number(Boxes[First + 1]), Number(Boxes[First + 2]));
}

template <class ControlClass>
std::string Captions(const Array<ControlClass>& Labels)
{
    std::string all;
    for (const auto& label : Labels) all += label.Caption() + '|';
    return all;
}

/// All result labels of the window, as one text.
std::string Results(const MainWindow& Main)
{
    return Captions(Main.lblDati) + Captions(Main.lblTotali) + Captions(Main.lblWeekDay);
}

bool Complete(const MainWindow& Main)
{
    const auto filled = [](const forms::TextBox& box) { return !box.Text().empty(); };
    const int mode = Main.Mode();
    for (int i = 0; i < 6; ++i)
        if ((mode != 0 && !filled(Main.txtData[i])) || (mode != 2 && !filled(Main.txtTime[i])))
            return false;
    for (const int first : {0, 3}) {
        if (mode == 0) break;
        const double date = DateIn(Main.txtData, first);
        if (Number(Main.txtData[first + 2]) < 1000 || Day(date) != Number(Main.txtData[first]))
            return false;
    }
    return true;
}

/// What a calculation with the fields as they stand has to show.
std::string ExpectedResults(const MainWindow& Main)
{
    std::string dates = "|||", dateTotals = "||||||", times = "|||", timeTotals = "|||",
                weekdays = "||";
    const auto showTimes = [&](const TimeFigures& f) {
        times = Format(f.Hours, "0,0") + '|' + Format(f.Minutes, "0,0") + '|' +
                Format(f.Seconds, "0,0") + '|';
        timeTotals = Format(f.TotalHours, "0,0") + '|' + Format(f.TotalMinutes, "0,0") + '|' +
                     Format(f.TotalSeconds, "0,0") + '|';
    };
    const auto showDates = [&](double Start, double End) {
        const DateFigures f = DateDifference(Start, End);
        const PeriodFigures p = CountPeriod(CLng(Start), CLng(End), Main.chkWorkSat.Value() == 1);
        dates = Format(f.Years, "0,0") + '|' + Format(f.Months, "00") + '|' + Format(f.Days, "00") +
                '|';
        dateTotals.clear();
        for (const int figure :
             {f.TotalDays, f.TotalWeeks, p.WorkingDays, p.Saturdays, p.Sundays, p.Holidays})
            dateTotals += Format(figure, "0,0") + '|';
        weekdays = WeekdayText(Weekday(DateIn(Main.txtData, 0), 1)) + '|' +
                   WeekdayText(Weekday(DateIn(Main.txtData, 3), 1)) + '|';
    };
    const double startTime = TimeIn(Main.txtTime, 0);
    const double endTime = TimeIn(Main.txtTime, 3);
    const double startDate = DateIn(Main.txtData, 0);
    const double endDate = DateIn(Main.txtData, 3);
    switch (Main.Mode()) {
    case 0:
        showTimes(TimeDifference(startTime, endTime < startTime ? endTime + 1 : endTime));
        break;
    case 1: {
        const auto period = OrderMoments({startDate, startTime}, {endDate, endTime});
        showTimes(TimeDifference(period.StartDate, period.EndDate));
        showDates(period.StartDate, period.CountedEnd);
        break;
    }
    default:
        showDates(std::min(startDate, endDate),
                  std::max(startDate, endDate) + Main.chkDayInt.Value());
    }
    return dates + times + dateTotals + timeTotals + weekdays;
}

void CheckResults(const MainWindow& Main)
{
    const std::string shown = Results(Main);
    if (shown.find_first_not_of('|') == std::string::npos) return;
    Require(Complete(Main), "results stand on screen only where a calculation is possible");
    Require(shown == ExpectedResults(Main), "the results on screen belong to the fields");
}

void CheckSegment(const forms::TextBox& Box, int Limit, bool RefusesZeros = false)
{
    const std::string text = Box.Text();
    if (text.empty()) return;
    Require(IsNumeric(text) && CInt(text).value_or(Limit + 1) <= Limit,
            "a segment holds a number up to its limit");
    Require(!RefusesZeros || text != "00", "days and months hold no \"00\"");
    Require(static_cast<int>(text.size()) <= Box.MaxLength(), "a segment holds its length at most");
}

template <class ControlClass>
bool AllEnabled(const Array<ControlClass>& Controls, int From, int To, bool Enabled)
{
    for (int i = From; i <= To; ++i)
        if (Controls.Has(i) && Controls[i].Enabled() != Enabled) return false;
    return true;
}

void CheckMode(const MainWindow& Main)
{
    const int mode = Main.Mode();
    const bool dates = mode != 0;
    const bool times = mode != 2;
    for (int i = 0; i < 3; ++i) {
        Require(Main.optDataTime[i].Value() == (i == mode), "one mode is chosen");
        Require(Main.imgTipoCalcolo[i].Visible() == (i == mode), "the picture is the mode's");
    }
    Require(AllEnabled(Main.txtData, 0, 5, dates) && AllEnabled(Main.cmdNowData, 0, 1, dates) &&
                AllEnabled(Main.lblTotali, 0, 4, dates) &&
                AllEnabled(Main.lblLabel, 10, 20, dates) && Main.chkWorkSat.Enabled() == dates &&
                AllEnabled(Main.lblChekBox, 1, 1, dates),
            "what belongs to dates is enabled in the modes with dates");
    Require(AllEnabled(Main.txtTime, 0, 5, times) && AllEnabled(Main.cmdNowTime, 0, 1, times) &&
                AllEnabled(Main.lblTotali, 6, 8, times) && AllEnabled(Main.lblLabel, 0, 7, times) &&
                AllEnabled(Main.lblSeparatore, 4, 7, times),
            "what belongs to times is enabled in the modes with times");
    Require(AllEnabled(Main.lblSeparatore, 0, 3, mode == 1), "slashes are enabled in mode 1");
    Require(Main.chkDayInt.Enabled() == !times && AllEnabled(Main.lblChekBox, 0, 0, !times),
            "whole days are a choice of the mode of dates");
    for (int i = 0; i < 6; ++i) {
        if (!dates) Require(Main.txtData[i].Text().empty(), "unused dates are empty");
        const bool wholeDay = i == 3 && Main.chkDayInt.Value() == 1;
        if (!times)
            Require(Main.txtTime[i].Text() == (wholeDay ? "24" : "00"), "unused times are filled");
    }
    const unsigned int color = Main.chkWorkSat.Value() == 1 ? forms::PureRed : forms::Black;
    Require(Main.lblTotali[3].ForeColor() == color && Main.lblLabel[18].ForeColor() == color,
            "Saturdays are red while they are holidays");
}

/// The month and year that a text like " GEN 2005" or "03 gen 2005" ends in, as its first day.
double MonthIn(std::string Text)
{
    std::ranges::transform(Text, Text.begin(), [](unsigned char c) { return std::tolower(c); });
    std::istringstream words(Text.substr(Text.size() < 8 ? 0 : Text.size() - 8));
    std::string name;
    int year = 0;
    words >> name >> year;
    for (int month = 1; month <= 12; ++month) {
        const double first = DateSerial(year, month, 1);
        if (Format(first, "mmm yyyy") == name + ' ' + Format(year, "0000")) return first;
    }
    throw Fault("a month and year are on show");
}

void CheckCalendar(const MainWindow& Main)
{
    Require(Main.shpShadow.Visible() == Main.picCalendario.Visible(),
            "panel and shadow go together");
    if (!Main.picCalendario.Visible()) return;
    Require(Main.Mode() != 0, "the calendar is open only in the modes with dates");
    const double first = MonthIn(Main.txtCalMeseAnno.Text());
    Require(Month(first) == Main.hscDataScroll.Value(), "the month on show is the scroll bar's");
    int serial = static_cast<int>(first) - Weekday(first, 2) + 1;
    for (const auto& cell : Main.GIORNO) {
        const bool inMonth = Month(serial) == Month(first);
        Require(cell.Enabled() == inMonth && cell.Caption() == CStr(Day(serial)),
                "each cell shows its day");
        const bool holiday = IsHoliday(serial, EasterDate(Year(first)) + 1);
        if (inMonth)
            Require(cell.FontBold() == holiday &&
                        cell.ForeColor() == (holiday ? forms::PureRed : forms::ButtonText),
                    "holidays are red and bold");
        ++serial;
    }
}

}

void CheckMainWindow(const MainWindow& Main)
{
    CheckMode(Main);
    CheckResults(Main);
    CheckCalendar(Main);
    for (int i = 0; i < 6; ++i) {
        const int part = i % 3;
        CheckSegment(Main.txtData[i], part == 0 ? 31 : part == 1 ? 12 : 2100, part != 2);
        if (Main.txtTime[i].Enabled()) CheckSegment(Main.txtTime[i], part == 0 ? 23 : 59);
    }
}

void CheckSums(const SumsWindow& Sums)
{
    const bool date = Sums.optBase[1].Value();
    Require(Sums.picBase[0].Visible() == !date && Sums.picBase[1].Visible() == date,
            "the panel on show is the chosen side's");
    Require((Sums.lblTitoloHelp.Caption().find("DATA") != std::string::npos) == date,
            "the help's heading is the chosen side's");

    const bool longFormat = Sums.optFormat[1].Value();
    const std::string help = Sums.lblHelpTxt.Caption();
    Require(Sums.lblTime[1].Caption() == (longFormat ? " hh : mmm : sss" : "hh  :  mm  :  ss"),
            "the legend is the format's");
    if (!date)
        Require((help.find("superiore") != std::string::npos) == longFormat,
                "the help is the format's");
    for (int i = 0; i < 6; ++i) {
        const bool unlimited = i > 3;
        CheckSegment(Sums.txtCalc[i], unlimited ? 999 : i % 3 == 0 ? 23 : 59);
        Require(Sums.txtCalc[i].MaxLength() == (unlimited && longFormat ? 3 : 2),
                "the format gives the digits");
    }

    int unit = 0;
    while (!Sums.optTipoDati[unit].Value()) ++unit;
    const std::string name(DateUnits[unit].Name);
    Require(Sums.lblTime[5].Caption() == name, "the legend is the unit's");
    if (date) Require(help.find(name) != std::string::npos, "the help is the unit's");
    if (date)
        Require(Sums.txtSommaDati.MaxLength() == static_cast<int>(DateUnits[unit].Zero.size()),
                "the unit gives the digits");
    CheckSegment(Sums.txtData[0], 31);
    CheckSegment(Sums.txtData[1], 12);
    CheckSegment(Sums.txtData[2], 2300);

    const auto operation = [](bool subtracts) { return subtracts ? "Sottrai" : "Somma"; };
    Require(Sums.lblTime[3].Caption() == operation(Sums.optSomma[1].Value()) &&
                Sums.lblTime[7].Caption() == operation(Sums.optSommaData[1].Value()),
            "the operation's name is the chosen one's");
}

void CheckDesktop()
{
    const QWidget* focus = QApplication::focusWidget();
    Require(!focus || focus->isVisible(), "the focus is on a control that can be seen");
    for (const QWidget* window : QApplication::topLevelWidgets())
        Require(!window->focusWidget() || window->focusWidget()->isEnabled(),
                "the focus is on an enabled control or nowhere");
    Require(ShownBalloons().size() <= 1, "one balloon at most");
    Require(!QApplication::overrideCursor(), "the hourglass is gone once the work is done");
    Require(!QApplication::activeModalWidget(), "no box is left behind");
}

void StripWatch::Check(const MainWindow& Main, const std::set<int>& Days)
{
    const std::string date = Main.Panel(5);
    if (date != shown) {
        const auto since = std::ranges::find_if(
            Days, [&](int Each) { return Format(Each, " dddd  dd mmm yyyy") == date; });
        Require(since != Days.end(), "the strip shows a day that the clock has shown");
        day = *since;
        shown = date;
    }
    if (shown.empty()) return;

    int tuesdays = 0, sundays = 0;
    const auto first = static_cast<int>(DateSerial(Year(day), 1, 1));
    const auto last = static_cast<int>(DateSerial(Year(day), 12, 31));
    for (int each = first + 1; each <= day; ++each) tuesdays += Weekday(each, 1) == 3;
    for (int each = day + 1; each <= last; ++each) sundays += Weekday(each, 1) == 1;
    Require(Main.Panel(0) == CStr((Month(day) - 1) / 3 + 1) + "°" &&
                Main.Panel(1) == CStr(tuesdays) && Main.Panel(2) == CStr(sundays) &&
                Main.Panel(3) == CStr(day - first + 1) && Main.Panel(4) == CStr(last - day),
            "the strip's figures belong to its date");
}

void StripWatch::CheckTick(const MainWindow& Main) const
{
    Require(Main.Panel(6) == Format(Now(), "hh.mm.ss"), "a tick shows the time");
    Require(Main.Panel(5).find(' ' + Format(Date(), "dd") + ' ') != std::string::npos,
            "a tick on a new day of the month updates the strip");
}

namespace {

std::string Texts(const SumsWindow& Sums)
{
    std::string all;
    for (const auto& box : Sums.txtCalc) all += box.Text() + ' ';
    for (const auto& box : Sums.txtData) all += box.Text() + ' ';
    return all + Sums.txtSommaDati.Text();
}

std::string DateText(double Date)
{
    return Format(Date, "dd") + ' ' + CStr(Month(Date)) + ' ' + CStr(Year(Date));
}

std::string DateText(const SumsWindow& Sums)
{
    return Sums.txtData[0].Text() + ' ' + CStr(Number(Sums.txtData[1])) + ' ' +
           CStr(Number(Sums.txtData[2]));
}

void WatchTimeSum(const SumsWindow& Sums, const std::function<void()>& Add)
{
    constexpr int day = 86400;
    const auto seconds = [&](int First) {
        return Number(Sums.txtCalc[First]) * 3600 + Number(Sums.txtCalc[First + 1]) * 60 +
               Number(Sums.txtCalc[First + 2]);
    };
    const int step = Sums.optSomma[1].Value() ? -seconds(3) : seconds(3);
    const int total = ((seconds(0) + step) % day + day) % day;
    Add();
    Require(seconds(0) == total && seconds(3) == 0, "the running time is the sum");
}

void WatchDateSum(const SumsWindow& Sums, const std::function<void()>& Add)
{
    int unit = 0;
    while (!Sums.optTipoDati[unit].Value()) ++unit;
    const std::string typed =
        Sums.txtData[0].Text() + '/' + Sums.txtData[1].Text() + '/' + Sums.txtData[2].Text();
    const auto result =
        StepDate(typed, DateUnits[unit], Sums.txtSommaDati.Text(), Sums.optSommaData[1].Value());
    const std::string before = Texts(Sums);
    Add();
    if (!result)
        Require(Texts(Sums) == before, "a refused sum leaves the fields");
    else
        Require(DateText(Sums) == DateText(Year(*result) > 2300 ? Date() : *result),
                "the running date is the sum, or today beyond the last year");
}

}

void WatchSums(frmMiniCalc& Form)
{
    const auto sums = std::make_shared<SumsWindow>(Form);
    // The window may be closed, but is not yet destroyed, while a sum shows its message.
    sums->cmdSommaOre.Click = [sums, add = sums->cmdSommaOre.Click] { WatchTimeSum(*sums, add); };
    sums->cmdSommaData.Click = [sums, add = sums->cmdSommaData.Click] { WatchDateSum(*sums, add); };
}

std::string Describe(const forms::Form& Form)
{
    std::string all;
    for (forms::Control* control : Form.Controls()) {
        std::string text = control->Enabled() ? "" : " (disabled)";
        if (const auto* box = dynamic_cast<forms::TextBox*>(control)) text += ' ' + box->Text();
        if (const auto* label = dynamic_cast<forms::Label*>(control))
            text += ' ' + label->Caption();
        if (const auto* box = dynamic_cast<forms::CheckBox*>(control))
            text += ' ' + CStr(box->Value());
        if (const auto* option = dynamic_cast<forms::OptionButton*>(control))
            text += option->Value() ? " (chosen)" : "";
        if (const auto* panel = dynamic_cast<forms::PictureBox*>(control))
            text += ' ' + panel->PrintedText();
        const std::string name = control->Widget().objectName().toStdString();
        if (name.find("GIORNO") == std::string::npos && text.find_first_not_of(' ') < text.size())
            all += "  " + name + text + (control->Visible() ? "\n" : " (hidden)\n");
    }
    return all;
}

}
