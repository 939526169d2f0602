#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/CountPeriod.h"
#include "engine/Holidays.h"
#include "engine/Moments.h"
#include "engine/Text.h"
#include "minicalc/Accumulators.h"
#include "tests/monkey/Monkey.h"

#include <QApplication>

#include <algorithm>
#include <memory>

namespace vellarno::test {

namespace {

int Number(const forms::TextBox& Box)
{
    return CInt(Box.Text()).value_or(0);
}

/// Figures as the labels print them, each with a blank behind it.
std::string Print(std::initializer_list<std::int64_t> Figures)
{
    std::string all;
    for (const auto figure : Figures) all += Format(figure, "0,0") + ' ';
    return all;
}

void CheckSegment(const forms::TextBox& Box, int Limit, bool RefusesZeros = false)
{
    const std::string text = Box.Text();
    Require(text.empty() || CInt(text).value_or(32767) <= Limit, "numbers up to the limit");
    Require(!RefusesZeros || text != "00", "days and months hold no \"00\"");
    Require(static_cast<int>(text.size()) <= Box.MaxLength(), "a segment holds its length at most");
}

template <class ControlClass>
bool AllAre(bool Enabled, const forms::ControlArray<ControlClass>& Controls, int From, int To)
{
    for (int i = From; i <= To; ++i)
        if (Controls.Has(i) && Controls[i].Enabled() != Enabled) return false;
    return true;
}

}

void Monkey::Check()
{
    CheckMode();
    CheckFields();
    CheckResults();
    CheckCalendar();
    CheckStrip();
    if (const frmMiniCalc* sums = Sums()) test::CheckSums(*sums);
    const QWidget* focus = QApplication::focusWidget();
    Require(!focus || focus->isVisible(), "the focus is on a control that can be seen");
    for (const QWidget* window : QApplication::topLevelWidgets())
        Require(!window->focusWidget() || window->focusWidget()->isEnabled(),
                "the focus is on an enabled control or nowhere");
    Require(ShownBalloons().size() <= 1, "one balloon at most");
    Require(!QApplication::overrideCursor(), "the hourglass is gone once the work is done");
    Require(!QApplication::activeModalWidget(), "no box is left behind");
}

void Monkey::CheckMode() const
{
    const bool dates = !optDataTime[Times].Value();
    const bool times = !optDataTime[Dates].Value();
    Require(AllAre(dates, txtData, 0, 5) && AllAre(dates, cmdNowData, 0, 1) &&
                AllAre(dates, lblTotali, 0, 4) && AllAre(dates, lblLabel, 10, 20) &&
                AllAre(dates, lblChekBox, 1, 1) && chkWorkSat.Enabled() == dates,
            "what belongs to dates is enabled in the modes with dates");
    Require(AllAre(times, txtTime, 0, 5) && AllAre(times, cmdNowTime, 0, 1) &&
                AllAre(times, lblTotali, 6, 8) && AllAre(times, lblLabel, 0, 7) &&
                AllAre(times, lblSeparatore, 4, 7),
            "what belongs to times is enabled in the modes with times");
    Require(AllAre(dates && times, lblSeparatore, 0, 3), "slashes are enabled between both");
    Require(chkDayInt.Enabled() == !times && AllAre(!times, lblChekBox, 0, 0),
            "whole days are a choice of the mode of dates");
    const unsigned int color = chkWorkSat.Value() == 1 ? forms::PureRed : forms::Black;
    Require(lblTotali[3].ForeColor() == color && lblLabel[18].ForeColor() == color,
            "Saturdays are red while they are holidays");
}

void Monkey::CheckFields() const
{
    for (int i = 0; i < 6; ++i) {
        const int part = i % 3;
        CheckSegment(txtData[i], part == 0 ? 31 : part == 1 ? 12 : 2100, part != 2);
        if (txtTime[i].Enabled()) CheckSegment(txtTime[i], part == 0 ? 23 : 59);
    }
    if (!txtData[0].Enabled()) Require(Texts(txtData) == "     ", "unused dates are empty");
    if (!txtTime[0].Enabled())
        Require(Texts(txtTime) ==
                    (chkDayInt.Value() == 1 ? "00 00 00 24 00 00" : "00 00 00 00 00 00"),
                "unused times are filled");
}

double Monkey::DateIn(int First) const
{
    return DateSerial(Number(txtData[First + 2]), Number(txtData[First + 1]),
                      Number(txtData[First]));
}

double Monkey::TimeIn(int First) const
{
    return TimeSerial(Number(txtTime[First]), Number(txtTime[First + 1]),
                      Number(txtTime[First + 2]));
}

void Monkey::CheckResults() const
{
    if (ResultsEmpty()) return;
    for (int i = 0; i < 6; ++i)
        Require(!(txtData[i].Enabled() && txtData[i].Text().empty()) && !txtTime[i].Text().empty(),
                "results stand on screen only where all fields are filled");
    for (const int first : {0, 3})
        Require(!txtData[0].Enabled() || (Number(txtData[first + 2]) >= 1000 &&
                                          Day(DateIn(first)) == Number(txtData[first])),
                "results are of days that the calendar has");
    const std::string shown = Captions(lblDati, 0, 5) + " / " + Captions(lblTotali, 0, 8) + " / " +
                              Captions(lblWeekDay, 0, 1);
    Require(shown == ExpectedResults(), "the results on screen belong to the fields");
}

/// What a calculation with the fields as they stand has to show.
std::string Monkey::ExpectedResults() const
{
    const auto clock = [](const TimeFigures& f) { return Print({f.Hours, f.Minutes, f.Seconds}); };
    const auto clockTotals = [](const TimeFigures& f) {
        return Print({f.TotalHours, f.TotalMinutes, f.TotalSeconds});
    };
    if (optDataTime[Times].Value()) {
        const double end = TimeIn(3) < TimeIn(0) ? TimeIn(3) + 1 : TimeIn(3);
        const TimeFigures f = TimeDifference(TimeIn(0), end);
        return "   " + clock(f) + "/       " + clockTotals(f) + "/  ";
    }
    const bool moments = optDataTime[Moments].Value();
    double start = std::min(DateIn(0), DateIn(3));
    double end = std::max(DateIn(0), DateIn(3)) + chkDayInt.Value();
    TimeFigures t{};
    if (moments) {
        const auto period = OrderMoments({DateIn(0), TimeIn(0)}, {DateIn(3), TimeIn(3)});
        start = period.StartDate;
        end = period.CountedEnd;
        t = TimeDifference(period.StartDate, period.EndDate);
    }
    const DateFigures f = DateDifference(start, end);
    const PeriodFigures p = CountPeriod(CLng(start), CLng(end), chkWorkSat.Value() == 1);
    return Print({f.Years, f.Months, f.Days}) + (moments ? clock(t) : "   ") + "/ " +
           Print({f.TotalDays, f.TotalWeeks, p.WorkingDays, p.Saturdays, p.Sundays, p.Holidays}) +
           (moments ? clockTotals(t) : "   ") + "/ " + WeekdayText(Weekday(DateIn(0), 1)) + ' ' +
           WeekdayText(Weekday(DateIn(3), 1));
}

void Monkey::CheckCalendar() const
{
    Require(shpShadow.Visible() == picCalendario.Visible(), "panel and shadow go together");
    if (!picCalendario.Visible()) return;
    Require(!optDataTime[Times].Value(), "the calendar is open only in the modes with dates");
    const std::string title = txtCalMeseAnno.Text(); // " GEN 2005"
    const double first = DateSerial(CInt(title.substr(5)).value_or(0), hscDataScroll.Value(), 1);
    std::string name = Format(first, " mmm yyyy");
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::toupper(c); });
    Require(title == name, "the month on show is the scroll bar's");
    int serial = static_cast<int>(first) - Weekday(first, 2) + 1;
    for (const auto& cell : GIORNO) {
        const bool shown = Month(serial) == Month(first);
        const bool holiday = IsHoliday(serial, EasterDate(Year(first)) + 1);
        Require(cell.Enabled() == shown && cell.Caption() == CStr(Day(serial++)),
                "each cell shows its day");
        Require(!shown || (cell.FontBold() == holiday &&
                           cell.ForeColor() == (holiday ? forms::PureRed : forms::ButtonText)),
                "holidays are red and bold");
    }
}

/// The strip only has its panels once the window has loaded.
std::string Monkey::Panel(int Index) const
{
    return form.Get<forms::PictureBox>(("picBarra_" + CStr(Index)).c_str()).PrintedText();
}

/// The figures stay for the day of the last full update.
void Monkey::CheckStrip()
{
    if (const std::string date = Panel(5); date != stripDate) {
        const auto since = std::ranges::find_if(
            days, [&](int Each) { return Format(Each, " dddd  dd mmm yyyy") == date; });
        Require(since != days.end(), "the strip shows a day that the clock has shown");
        stripDay = *since;
        stripDate = date;
    }
    days = {static_cast<int>(now)};
    if (stripDate.empty()) return;

    const auto first = static_cast<int>(DateSerial(Year(stripDay), 1, 1));
    const auto last = static_cast<int>(DateSerial(Year(stripDay), 12, 31));
    int tuesdays = 0;
    int sundays = 0;
    for (int each = first + 1; each <= stripDay; ++each) tuesdays += Weekday(each, 1) == 3;
    for (int each = stripDay + 1; each <= last; ++each) sundays += Weekday(each, 1) == 1;
    Require(Panel(0) == CStr((Month(stripDay) - 1) / 3 + 1) + "°" && Panel(1) == CStr(tuesdays) &&
                Panel(2) == CStr(sundays) && Panel(3) == CStr(stripDay - first + 1) &&
                Panel(4) == CStr(last - stripDay),
            "the strip's figures belong to its date");
}

namespace {

/// The sequential calculator's controls by their names.
struct SumsView
{
    const frmMiniCalc& Form;

    forms::TextBox& Box(const std::string& Name) const
    {
        return Form.Get<forms::TextBox>(Name.c_str());
    }
    int Figure(const char* Name, int Index) const { return Number(Box(Name + CStr(Index))); }
    std::string Caption(const char* Name) const { return Form.Get<forms::Label>(Name).Caption(); }
    bool Chosen(const std::string& Name) const
    {
        return Form.Get<forms::OptionButton>(Name.c_str()).Value();
    }
    int Seconds(int First) const
    {
        return Figure("txtCalc_", First) * 3600 + Figure("txtCalc_", First + 1) * 60 +
               Figure("txtCalc_", First + 2);
    }
    const DateUnit& Unit() const
    {
        int unit = 0;
        while (!Chosen("optTipoDati_" + CStr(unit))) ++unit;
        return DateUnits[unit];
    }
    std::string Date() const
    {
        return Box("txtData_0").Text() + '/' + Box("txtData_1").Text() + '/' +
               Box("txtData_2").Text();
    }
};

}

void CheckSums(const frmMiniCalc& Form)
{
    const SumsView sums{Form};
    const bool date = sums.Chosen("optBase_1");
    const bool longFormat = sums.Chosen("optFormat_1");
    const std::string unit(sums.Unit().Name);
    const std::string help = sums.Caption("lblHelpTxt");
    const auto helps = [&](const std::string& Word) {
        return help.find(Word) != std::string::npos;
    };
    Require(Form.Get<forms::PictureBox>("picBase_0").Visible() == !date &&
                Form.Get<forms::PictureBox>("picBase_1").Visible() == date,
            "the panel on show is the chosen side's");
    Require((sums.Caption("lblTitoloHelp").find("DATA") != std::string::npos) == date &&
                (date ? helps(unit) : helps("superiore") == longFormat),
            "the help is the choice's");
    Require((sums.Caption("lblTime_1") == " hh : mmm : sss") == longFormat &&
                sums.Caption("lblTime_5") == unit,
            "the legends are the choices'");
    Require((sums.Caption("lblTime_3") == "Sottrai") == sums.Chosen("optSomma_1") &&
                (sums.Caption("lblTime_7") == "Sottrai") == sums.Chosen("optSommaData_1"),
            "the operation's name is the chosen one's");
    for (int i = 0; i < 6; ++i) {
        const auto& box = sums.Box("txtCalc_" + CStr(i));
        CheckSegment(box, i > 3 ? 999 : i % 3 == 0 ? 23 : 59);
        Require(box.MaxLength() == (i > 3 && longFormat ? 3 : 2), "the format gives the digits");
    }
    Require(!date ||
                sums.Box("txtSommaDati").MaxLength() == static_cast<int>(sums.Unit().Zero.size()),
            "the unit gives the digits");
    CheckSegment(sums.Box("txtData_0"), 31);
    CheckSegment(sums.Box("txtData_1"), 12);
    CheckSegment(sums.Box("txtData_2"), 2300);
}

void WatchSums(frmMiniCalc& Form)
{
    const SumsView sums{Form};
    auto& addTime = Form.Get<forms::CommandButton>("cmdSommaOre");
    addTime.Click = [sums, add = addTime.Click] {
        constexpr int day = 86400;
        const int step = sums.Chosen("optSomma_1") ? -sums.Seconds(3) : sums.Seconds(3);
        const int total = ((sums.Seconds(0) + step) % day + day) % day;
        add();
        Require(sums.Seconds(0) == total && sums.Seconds(3) == 0, "the running time is the sum");
    };
    auto& addDate = Form.Get<forms::CommandButton>("cmdSommaData");
    addDate.Click = [sums, add = addDate.Click] {
        const std::string before = sums.Date();
        const auto result = StepDate(before, sums.Unit(), sums.Box("txtSommaDati").Text(),
                                     sums.Chosen("optSommaData_1"));
        add();
        if (!result)
            Require(sums.Date() == before, "a refused sum leaves the fields");
        else
            Require(CDate(sums.Date()) == (Year(*result) > 2300 ? Date() : *result),
                    "the running date is the sum, or today beyond the last year");
    };
}

std::string Monkey::Windows() const
{
    std::string all;
    std::vector<forms::Control*> controls = form.Controls();
    if (const frmMiniCalc* sums = Sums())
        std::ranges::copy(sums->Controls(), back_inserter(controls));
    for (const forms::Control* control : controls) {
        std::string text;
        if (const auto* box = dynamic_cast<const forms::TextBox*>(control)) text = box->Text();
        if (const auto* label = dynamic_cast<const forms::Label*>(control)) text = label->Caption();
        if (const auto* button = dynamic_cast<const QAbstractButton*>(control))
            text = button->isChecked() ? "chosen" : "";
        if (!text.empty())
            all += "  " + control->Widget().objectName().toStdString() + ' ' + text + '\n';
    }
    return all;
}

}
