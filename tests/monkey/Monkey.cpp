#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/CountPeriod.h"
#include "engine/Moments.h"
#include "engine/Text.h"
#include "mainwindow/frmMain.h"
#include "services/forms/Application.h"
#include "tests/support/Scenarios.h"

#include <QTest>

#include <random>

using namespace vellarno;
using namespace vellarno::forms;
using namespace vellarno::test;
using namespace Qt::StringLiterals;

namespace {

/// What a clipboard, a drop or an input method may bring.
const QStringList HostileTexts =
    u"|1|12|00|24|2005|2101|310120|1\0002|\0|\u202e21|٣٤|１２|²½|😀|1😀|\xd800|\xdc00|e\u0301|-1|+5|"
    "1e3|1,5| 7 |32768|99999999999999999999|12\r\n34|\t|0x1f|%s%n|<b>1</b>"_s.split(u'|')
    << QString(20000, u'9');
const QStringList Keys =
    u"Tab Tab Backtab Backtab Return Enter Esc Space Backspace Del Left Right Up Down Home End + - "
    "A Ctrl+A Ctrl+C Ctrl+V Ctrl+X Ctrl+Z Shift+Ins Shift+Del Shift+Left Menu Ctrl+Backspace"_s
        .split(u' ');
/// What a click at random seldom finds.
const QStringList Controls =
    u"optDataTime_0 optDataTime_1 optDataTime_2 chkDayInt chkWorkSat cmdNowData_0 cmdNowData_1 "
    "GIORNO_7 GIORNO_20 GIORNO_36 picToolBarra_0 picToolBarra_1 picToolBarra_2 picToolBarra_3 "
    "imgOnTop"_s.split(u' ');
const QStringList Moments =
    u"2026-11-22T14:05:09 2026-11-22T23:59:59 2026-11-23T00:00:00 2026-12-31T23:59:59 "
    "2027-01-01T00:00:00 2028-02-29T12:00:00 1999-06-15T08:30:00"_s.split(u' ');
const QString Results = u"lblDati_\\d,lblTotali_\\d,lblWeekDay_\\d"_s;

/// Whether no box holds a value above its limit; the limits go round.
bool Hold(const ControlArray<TextBox>& Boxes, const QList<int>& Limits)
{
    for (qsizetype i = 0; const TextBox& box : Boxes) {
        const int limit = Limits[i++ % Limits.size()];
        if (box.Enabled() && !box.Text().empty() && CInt(box.Text()).value_or(limit + 1) > limit)
            return false;
    }
    return true;
}

/// One life of the program under the hands of someone who presses, clicks and drags whatever comes
/// along, in all windows, while the clock jumps. What it does follows from its dice alone.
struct Monkey : Stage<frmMain>
{
    std::mt19937& Dice;
    QStringList Notes; ///< the events so far
    QString Broken;    ///< the first rule that did not hold
    QTimer BoxWatch;
    ControlArray<TextBox> txtData{*form, "txtData"}, txtTime{*form, "txtTime"};
    ControlArray<OptionButton> optDataTime{*form, "optDataTime"};

    explicit Monkey(std::mt19937& Given) : Dice(Given)
    {
        QObject::connect(&BoxWatch, &QTimer::timeout, &BoxWatch, [this] { AnswerBox(); });
        BoxWatch.start(0);
    }
    ~Monkey() { form->Close(), Settle(); }

    int Below(int Count) { return std::uniform_int_distribution(0, Count - 1)(Dice); }
    bool OneIn(int Chances) { return Below(Chances) == 0; }
    auto Any(const auto& Of)
    {
        return Of[static_cast<qsizetype>(Below(static_cast<int>(std::size(Of))))];
    }
    std::string Between(int From, int To) { return Format(From + Below(To - From + 1), "00"); }
    void Require(bool Holds, const char* Rule)
    {
        if (!Holds && Broken.isEmpty())
            Broken = Rule + u"\nfields "_s + See(u"txtData_\\d,txtTime_\\d"_s) + "\nshown " +
                     See(Results) + "\nof " + Expected();
    }

    void Step()
    {
        QList<Form*> windows;
        for (const auto& [name, each] : Windows())
            if (auto* open = dynamic_cast<Form*>(each)) windows += open;
        if (!form->Visible()) return;
        Form& window = *Any(windows);
        Control& control = *Any(window.Controls());
        auto* focused = dynamic_cast<TextBox*>(window.focusWidget());
        const std::string text = Any(HostileTexts).toStdString();
        const auto key = QKeySequence(Any(Keys))[0];
        const MouseAct other{OneIn(2) ? QTest::MouseDClick : QTest::MouseClick,
                             Any(QList{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})};
        const int x = Below(window.ScaleWidth()), y = Below(window.ScaleHeight());
        const QString mode = Controls[Below(3)];
        const std::pair<const char*, std::function<void()>> events[] = {
            {"digits",
             [&, held = FormRef(window)] {
                 for (const char digit : CStr(Below(100000000)))
                     if (held.Open()) Type(window, {digit}); // one may close it
             }},
            {"key", [&] { Press(window, key.key(), key.keyboardModifiers()); }},
            {"click", [&] { Click(control); }},
            {"click at", [&] { Click(window, x, y); }},
            {"other click", [&] { other(control); }},
            {"press", [&] { MouseDown(control); }}, // a drag, with anything done meanwhile
            {"move", [&] { MoveTo(window, x, y); }},
            {"let go", [&] { MouseUp(window, x, y); }},
            {"wheel", [&] { Wheel(control, OneIn(2)); }},
            {"paste", [&] { Paste(window, text); }},
            {"drop", [&] { Drop(focused ? *focused : control, text); }},
            {"commit", [&] { focused ? Commit(*focused, text) : Click(control); }},
            {"controls", [&] { Do(Any(Controls)), Do(Any(Controls)), Do(Any(Controls)); }},
            {"rest", [&] { Do(u"over:lblTotali_%1"_s.arg(Below(9))), Wait(30); }}, // a balloon
            {"calculate", [&] { Calculate(); }},
            {"month", [&] { Wheel(form->Get<ScrollBar>("hscDataScroll"), OneIn(2)); }},
            {"close", [&] { OneIn(&window == form ? 4 : 1) ? window.Close() : Settle(); }},
            {"clock", [&] { Do("clock:" + Any(Moments)), form->Timer1_Timer(); }},
            // What the click serves meanwhile meets another event.
            {"two at once",
             [&] { QTimer::singleShot(0, &BoxWatch, [this] { Step(); }), Do(mode); }},
        };
        const auto [event, act] = Any(events);
        Notes += event + (' ' + control.Widget().objectName());
        desktop.IsComposited = OneIn(50); // a window fades in then
        // The keyboard goes to the window that the mouse is in, unless a box stands before it.
        if (!QApplication::activeModalWidget()) QApplication::setActiveWindow(&window);
        act();
    }

    /// Runs while a box stands: works on behind it, and in the end closes it.
    void AnswerBox()
    {
        QWidget* box = QApplication::activeModalWidget();
        if (!box || !box->windowHandle()) return;
        Notes += u"box"_s;
        if (OneIn(2))
            QTimer::singleShot(0, &BoxWatch, [this] { Step(); });
        else
            box->close();
    }

    /// A whole calculation, mostly one that is possible.
    void Calculate()
    {
        for (const int i : {0, 3}) {
            const bool last = OneIn(4); // of the year
            txtData[i].SetText(last ? "31" : Between(1, 29));
            txtData[i + 1].SetText(last ? "12" : Between(1, 12));
            txtData[i + 2].SetText(OneIn(20) ? "0999" : Between(OneIn(3) ? 1000 : 2020, 2100));
            txtTime[i].SetText(last ? "12" : Between(0, 23));
            txtTime[i + 1].SetText(last ? "00" : Between(0, 59));
            txtTime[i + 2].SetText(last ? "00" : Between(0, 59));
        }
        form->Get<CommandButton>("cmdCalcola").Click(); // nothing else happens meanwhile
        Require(See(Results) == Expected(), "what can be calculated is");
    }

    /// What a calculation with the fields as they stand has to show.
    QString Expected() const
    {
        const bool dates = !optDataTime[0].Value(), times = !optDataTime[2].Value();
        Moment ends[2]{};
        for (const int i : {0, 3}) {
            const auto day = CDate(txtData[i].Text() + '/' + txtData[i + 1].Text() + '/' +
                                   txtData[i + 2].Text());
            const auto year = CInt(txtData[i + 2].Text()), hour = CInt(txtTime[i].Text()),
                       minute = CInt(txtTime[i + 1].Text()), second = CInt(txtTime[i + 2].Text());
            const bool timed = hour && minute && second;
            if ((dates && (!day || year < 1000)) || (times && !timed)) return u"none"_s;
            ends[i / 3] = {dates ? *day : 0, times ? TimeSerial(*hour, *minute, *second) : 0};
        }
        if (!dates && ends[1].TimeOfDay < ends[0].TimeOfDay) ends[1].Day = 1;
        const auto [start, end, counted] = OrderMoments(ends[0], ends[1]);
        const double last = counted + (!times && form->Get<CheckBox>("chkDayInt").Value() == 1);
        const bool saturdays = form->Get<CheckBox>("chkWorkSat").Value() == 1;
        const TimeFigures t = TimeDifference(start, end);
        const DateFigures d = DateDifference(start, last);
        const PeriodFigures p = CountPeriod(CLng(start), CLng(last), saturdays);
        QStringList all;
        const auto print = [&](bool Used, std::initializer_list<std::int64_t> Figures) {
            for (const auto each : Figures)
                all += Used ? QString::fromStdString(Format(each, "0,0")) : u"-"_s;
        };
        print(dates, {d.Years, d.Months, d.Days});
        print(times, {t.Hours, t.Minutes, t.Seconds});
        print(dates,
              {d.TotalDays, d.TotalWeeks, p.WorkingDays, p.Saturdays, p.Sundays, p.Holidays});
        print(times, {t.TotalHours, t.TotalMinutes, t.TotalSeconds});
        for (const Moment& each : ends)
            all += dates ? QString::fromStdString(WeekdayText(Weekday(each.Day, 1))) : u"-"_s;
        return all.join(' ');
    }

    void Check()
    {
        const auto open = Windows();
        const QString shown = See(Results);
        bool hold = Hold(txtData, {31, 12, 2100}) && Hold(txtTime, {23, 59, 59}) &&
                    !See(u"txtData_[0134]"_s).contains("00");
        if (const auto sums = open.find(u"frmMiniCalc"_s); sums != open.end()) {
            const auto& window = dynamic_cast<Form&>(*sums->second);
            hold = hold && Hold({window, "txtData"}, {31, 12, 2300}) &&
                   Hold({window, "txtCalc"}, {23, 59, 59, 23, 999, 999});
        }
        const std::pair<const char*, bool> rules[] = {
            {"a result belongs to the fields", shown == "none" || shown == Expected()},
            {"no box holds what its rules refuse", hold},
            {"the calendar is open only in a mode with dates",
             !form->Get<PictureBox>("picCalendario").Visible() || !optDataTime[0].Value()},
            {"one balloon at most", ShownBalloons().size() <= 1},
        };
        for (const auto& [rule, holds] : rules) Require(holds || !form->Visible(), rule);
        for (const auto& [name, window] : open)
            Require(!window->focusWidget() || window->focusWidget()->isEnabled(),
                    "the focus is on an enabled control or nowhere");
    }
};

/// Life after life. @return false if something didn't hold.
bool Run(unsigned Seed, int Events)
{
    std::printf("monkey: seed %u, %d events\n", Seed, Events);
    std::fflush(stdout);
    std::mt19937 dice(Seed);
    while (Events > 0) {
        Monkey life(dice);
        for (; Events > 0 && life.form->Visible() && life.Broken.isEmpty(); --Events) {
            life.Step();
            Settle();
            life.Check();
        }
        if (life.Broken.isEmpty()) continue;
        std::fprintf(stderr, "%s\n%s\n", qPrintable(life.Notes.join('\n')),
                     qPrintable(life.Broken));
        return false;
    }
    return true;
}

}

/// monkey               two short runs, one of them of a random seed
/// monkey SEED EVENTS   that run; a seed with the same events repeats it
int main(int ArgumentCount, char** Arguments)
{
    const Application application(ArgumentCount, Arguments);
    const bool held = ArgumentCount == 3 ? Run(static_cast<unsigned>(std::atoll(Arguments[1])),
                                               std::atoi(Arguments[2]))
                                         : Run(20261122, 1000) && Run(std::random_device{}(), 1000);
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}
