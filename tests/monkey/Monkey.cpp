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
    u"Tab Tab Backtab Backtab Return Enter Esc Space Backspace Del Left Right Up Down Home End "
    u"PgUp "
    "PgDown + - A Ctrl+A Ctrl+C Ctrl+V Ctrl+X Ctrl+Z Shift+Ins Shift+Del Shift+Left Menu F1 "
    "Ctrl+Backspace"_s.split(u' ');
const QStringList Moments =
    u"2026-11-22T14:05:09 2026-11-22T23:59:59 2026-11-23T00:00:00 2026-12-31T23:59:59 "
    "2027-01-01T00:00:00 2028-02-29T12:00:00 1999-06-15T08:30:00"_s.split(u' ');
const QString Results = u"lblDati_\\d,lblTotali_\\d,lblWeekDay_\\d"_s;

/// Whether no box holds a value above its limit.
bool Hold(const QWidget& Window, const QString& Array, std::initializer_list<int> Limits)
{
    return std::ranges::all_of(Limits, [&, i = 0](int Limit) mutable {
        const auto& box = *Window.findChild<TextBox*>(Array + QString::number(i++));
        return !box.Enabled() || box.Text().empty() ||
               CInt(box.Text()).value_or(Limit + 1) <= Limit;
    });
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
        desktop.DuringMessage = [this] {
            if (OneIn(4)) JumpClock();
            if (OneIn(40)) form->Close(); // the desktop session ends
            if (OneIn(4)) MsgBox("Prova", Information, "Vellarno");
        };
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
        const QString option = u"optDataTime_%1"_s.arg(Below(3));
        const std::tuple<const char*, int, std::function<void()>> events[] = {
            {"digits", 7, [&] { TypeInto(window, CStr(Below(100000000))); }},
            {"key", 7, [&] { Press(window, key.key(), key.keyboardModifiers()); }},
            {"click", 9, [&] { Click(control); }},
            {"click at", 2, [&] { Click(window, x, y); }},
            {"other click", 2, [&] { other(control); }},
            {"press", 2, [&] { MouseDown(control); }}, // a drag, with anything done meanwhile
            {"move", 2, [&] { MoveTo(window, x, y); }},
            {"let go", 2, [&] { MouseUp(window, x, y); }},
            {"wheel", 2, [&] { Wheel(control, OneIn(2)); }},
            {"paste", 1, [&] { Paste(window, text); }},
            {"drop", 2, [&] { Drop(focused ? *focused : control, text); }},
            {"commit", 3, [&] { focused ? Commit(*focused, text) : Click(control); }},
            {"mode", 4, [&] { Do(option); }},
            {"tick", 2, [&] { Do(OneIn(2) ? u"chkDayInt"_s : u"chkWorkSat"_s); }},
            {"rest", 2, [&] { Do(u"over:lblTotali_%1"_s.arg(Below(9))), Wait(30); }}, // a balloon
            {"calculate", 5, [&] { Calculate(); }},
            {"calendar", 3, [&] { Do(u"cmdNowData_%1"_s.arg(Below(2))); }},
            {"month", 2, [&] { Press(*form, OneIn(2) ? Qt::Key_Left : Qt::Key_Right); }},
            {"day", 2, [&] { Do(u"GIORNO_%1"_s.arg(1 + Below(42))); }},
            {"icon", 2, [&] { Do(u"picToolBarra_%1"_s.arg(Below(4))); }},
            {"pin", 1, [&] { Do(u"imgOnTop"_s); }},
            {"close", 1, [&] { OneIn(&window == form ? 4 : 1) ? window.Close() : Settle(); }},
            {"clock", 3, [&] { JumpClock(); }},
            // What the click serves meanwhile meets another event.
            {"two at once", 4,
             [&] { QTimer::singleShot(0, &BoxWatch, [this] { Step(); }), Do(option); }},
        };
        std::vector<int> weights;
        for (const auto& event : events) weights.push_back(std::get<int>(event));
        std::discrete_distribution<std::size_t> lot(weights.begin(), weights.end());
        const auto& [name, weight, act] = events[lot(Dice)];
        Notes += name + (' ' + control.Widget().objectName());
        desktop.IsComposited = OneIn(50); // a window fades in then
        // The keyboard goes to the window that the mouse is in, unless a box stands before it.
        if (!QApplication::activeModalWidget()) QApplication::setActiveWindow(&window);
        act();
    }

    /// The window may be closed between two keys.
    static void TypeInto(Form& Window, const std::string& Text)
    {
        const FormRef<> held(Window);
        for (const char key : Text)
            if (held.Open()) Type(Window, std::string(1, key));
    }

    void JumpClock()
    {
        Do("clock:" + Any(Moments));
        form->Timer1_Timer();
    }

    /// Runs while a box stands: works on behind it, and in the end closes it.
    void AnswerBox()
    {
        QWidget* box = QApplication::activeModalWidget();
        if (!box || !box->windowHandle()) return;
        Notes += u"box"_s;
        if (OneIn(2))
            Step();
        else if (OneIn(2))
            QTest::keyClick(box->windowHandle(), Qt::Key_Escape);
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
            const auto hour = CInt(txtTime[i].Text()), minute = CInt(txtTime[i + 1].Text()),
                       second = CInt(txtTime[i + 2].Text());
            if (dates && (!day || CInt(txtData[i + 2].Text()) < 1000)) return u"none"_s;
            if (times && (!hour || !minute || !second)) return u"none"_s;
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
        const auto sums = open.find(u"frmMiniCalc"_s);
        const QString shown = See(Results);
        const std::pair<const char*, bool> rules[] = {
            {"a result belongs to the fields", shown == "none" || shown == Expected()},
            {"dates hold what their rules take",
             Hold(*form, u"txtData_"_s, {31, 12, 2100, 31, 12, 2100}) &&
                 !See(u"txtData_[0134]"_s).contains("00")},
            {"times hold what their rules take",
             Hold(*form, u"txtTime_"_s, {23, 59, 59, 23, 59, 59})},
            {"sums hold what their rules take",
             sums == open.end() ||
                 (Hold(*sums->second, u"txtData_"_s, {31, 12, 2300}) &&
                  Hold(*sums->second, u"txtCalc_"_s, {23, 59, 59, 23, 999, 999}))},
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

/// What the toolkit complains of is a fault too; what the offscreen platform can't do is none.
void TakeComplaint(QtMsgType, const QMessageLogContext&, const QString& Text)
{
    if (Text.startsWith("This plugin does not support")) return;
    std::fprintf(stderr, "%s\n", qPrintable(Text));
    std::abort();
}

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
    qInstallMessageHandler(TakeComplaint);
    const bool held = ArgumentCount == 3 ? Run(static_cast<unsigned>(std::atoll(Arguments[1])),
                                               std::atoi(Arguments[2]))
                                         : Run(20261122, 1000) && Run(std::random_device{}(), 1000);
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}
