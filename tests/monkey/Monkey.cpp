#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/Clock.h"
#include "engine/CountPeriod.h"
#include "engine/Moments.h"
#include "engine/Text.h"
#include "mainwindow/frmMain.h"
#include "minicalc/Accumulators.h"
#include "services/GenericBas.h"
#include "services/forms/Application.h"
#include "services/frmAbout.h"
#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"

#include <QApplication>
#include <QKeySequence>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <array>
#include <deque>
#include <random>
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

using namespace vellarno;
using namespace vellarno::forms;
using namespace vellarno::test;
using namespace std::string_literals;
using namespace Qt::StringLiterals;

namespace {

/// What a clipboard, a drop or an input method may bring.
const QStringList HostileTexts =
    u"|1|12|00|24|32|2005|2101|310120|1\0002|\0|\u202e21|٣٤|１２|²½|😀|1😀|\xd800|\xdc00|e\u0301|-1|+"
    u"5|"
    "1e3|1,5| 7 |32768|99999999999999999999|12\r\n34|\t|0x1f|%s%n|<b>1</b>"_s.split(u'|')
    << QString(20000, u'9');
const QStringList Keys =
    u"Tab Tab Backtab Backtab Return Enter Esc Space Backspace Del Left Right Up Down Home End "
    u"PgUp "
    "PgDown + - A Ctrl+A Ctrl+C Ctrl+V Ctrl+X Ctrl+Z Shift+Ins Shift+Del Shift+Left Menu F1 "
    "Ctrl+Backspace"_s.split(u' ');

template <class ControlClass = Control>
ControlClass& At(const Form& Window, const std::string& Name)
{
    return dynamic_cast<ControlClass&>(*Window.findChild<QWidget*>(QString::fromStdString(Name)));
}

/// What stands on some controls of an array, parted by a slash.
template <class ControlClass = TextBox>
std::string Texts(const Form& Window, const std::string& Array, int From, int Count)
{
    std::string all;
    for (int i = From; i < From + Count; ++i) {
        const auto& each = At<ControlClass>(Window, Array + '_' + CStr(i));
        all += (i > From ? "/" : "") + each.text().toStdString();
    }
    return all;
}

/// Three boxes of a time, in seconds.
int Seconds(const Form& Window, int First, const std::string& Array = "txtCalc_")
{
    const auto part = [&](int i) {
        return CInt(At<TextBox>(Window, Array + CStr(First + i)).Text()).value_or(0);
    };
    return part(0) * 3600 + part(1) * 60 + part(2);
}

/// Whether no box holds a value above its limit.
bool Hold(const Form& Window, const std::string& Array, std::initializer_list<int> Limits)
{
    return std::ranges::all_of(Limits, [&, i = 0](int Limit) mutable {
        const auto& box = At<TextBox>(Window, Array + '_' + CStr(i++));
        return !box.Enabled() || box.Text().empty() ||
               CInt(box.Text()).value_or(Limit + 1) <= Limit;
    });
}

/// The window may be closed between two keys.
void TypeInto(Form& Window, const std::string& Text)
{
    const FormRef<> held(Window);
    for (const char key : Text)
        if (held.Open()) Type(Window, std::string(1, key));
}

/// One life of the program under the hands of someone who presses, clicks and drags whatever comes
/// along, in all windows, while the clock jumps. What it does follows from its dice alone.
struct Monkey
{
    std::mt19937& Dice;
    std::deque<std::string> Notes; ///< the last events
    std::string Broken;            ///< the first rule that did not hold
    double Clock = DateSerial(2026, 11, 22) + 0.5;
    const QTemporaryDir Folder;
    Recorder Desktop;
    frmMain Main;
    QTimer BoxWatch;
    ControlArray<TextBox> txtData{Main, "txtData"}, txtTime{Main, "txtTime"};
    ControlArray<OptionButton> optDataTime{Main, "optDataTime"};

    explicit Monkey(std::mt19937& Given) : Dice(Given)
    {
        Desktop.DuringMessage = [this] {
            if (OneIn(4)) JumpClock();
            if (OneIn(40)) Main.Close(); // the desktop session ends
            const auto [prompt, title, style] = Desktop.Messages.back();
            if (OneIn(4)) MsgBox(prompt, style, title);
        };
        Open(Main);
        ClockShows(Clock);
        QObject::connect(&BoxWatch, &QTimer::timeout, &BoxWatch, [this] { AnswerBox(); });
        BoxWatch.start(0);
    }
    ~Monkey()
    {
        Main.Close(), Settle();
        OnTopFlag = false;
        SetClock(nullptr);
    }

    int Below(int Count) { return std::uniform_int_distribution(0, Count - 1)(Dice); }
    bool OneIn(int Chances) { return Below(Chances) == 0; }
    auto Any(const auto& Of)
    {
        return Of[static_cast<std::size_t>(Below(static_cast<int>(std::size(Of))))];
    }
    frmMiniCalc* Sums() const
    {
        for (QObject* child : Main.children())
            if (auto* sums = dynamic_cast<frmMiniCalc*>(child); sums && sums->Visible())
                return sums;
        return nullptr;
    }
    std::string Between(int From, int To) { return Format(From + Below(To - From + 1), "00"); }
    void Require(bool Holds, const std::string& Rule)
    {
        if (!Holds && Broken.empty())
            Broken = Rule + "\nfields " + Texts(Main, "txtData", 0, 6) + ' ' +
                     Texts(Main, "txtTime", 0, 6) + "\nshown " + Shown() + "\nof " + Expected();
    }

    void Step()
    {
        if (!Main.Visible()) return;
        frmMiniCalc* sums = Sums();
        Form& window = sums && Below(5) < 3 ? static_cast<Form&>(*sums) : Main;
        Control& control = *Any(window.Controls());
        Control& box = *Any(window.findChildren<TextBox*>());
        Control& option = *Any(window.findChildren<OptionButton*>());
        auto* focused = dynamic_cast<TextBox*>(window.focusWidget());
        const std::string text = Any(HostileTexts).toStdString();
        const auto key = QKeySequence(Any(Keys))[0];
        const MouseAct other{OneIn(2) ? QTest::MouseDClick : QTest::MouseClick,
                             Any(std::array{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})};
        const int x = Below(window.ScaleWidth()), y = Below(window.ScaleHeight());
        const std::string total = "lblTotali_" + CStr(Below(9));
        const std::tuple<const char*, int, std::function<void()>> events[] = {
            {"digits", 7, [&] { TypeInto(window, CStr(Below(100000000))); }},
            {"key", 7, [&] { Press(window, key.key(), key.keyboardModifiers()); }},
            {"click", 7, [&] { Click(control); }},
            {"click at", 2, [&] { ClickAt(window, x, y); }},
            {"other click", 2, [&] { other(control); }},
            {"press", 2, [&] { MouseDown(control); }}, // a drag, with anything done meanwhile
            {"move", 2, [&] { MoveTo(window, x, y); }},
            {"let go", 2, [&] { MouseUpAt(window, x, y); }},
            {"option", 4, [&] { Click(option); }},
            {"tick", 2, [&] { Click(At(Main, OneIn(2) ? "chkDayInt" : "chkWorkSat")); }},
            {"pass", 1, [&] { MoveTo(At(Main, total)); }},
            {"rest", 1, [&] { MoveTo(At(Main, total)), Wait(30); }}, // a balloon comes
            {"wheel", 2, [&] { Wheel(control, OneIn(2)); }},
            {"paste", 1, [&] { Paste(window, text); }},
            {"drop", 2, [&] { Drop(box, text); }},
            {"commit", 3, [&] { focused ? Commit(*focused, text) : Click(box); }},
            {"calculate", 4, [&] { Calculate(); }},
            {"sum", 3, [&] { sums ? Sum(*sums) : Calculate(); }},
            {"calendar", 3, [&] { Click(At(Main, "cmdNowData_" + CStr(Below(2)))); }},
            {"month", 2, [&] { Wheel(At(Main, "hscDataScroll"), OneIn(2)); }},
            {"day", 2, [&] { Click(At(Main, "GIORNO_" + CStr(1 + Below(42)))); }},
            {"icon", 1, [&] { Click(At(Main, "picToolBarra_" + CStr(Below(4)))); }},
            {"open sums", 1, [&] { Click(At(Main, "picToolBarra_3")); }},
            {"pin", 1, [&] { Click(At(Main, "imgOnTop")); }},
            {"minimise", 1, [&] { window.showMinimized(); }},
            {"restore", 1, [&] { window.showNormal(); }},
            {"close", 1, [&] { OneIn(&window == &Main ? 4 : 1) ? window.Close() : Settle(); }},
            {"clock", 3, [&] { JumpClock(); }},
            // What the click serves meanwhile meets another event.
            {"two at once", 4,
             [&] { QTimer::singleShot(0, &BoxWatch, [this] { Step(); }), Click(option); }},
        };
        std::vector<int> weights;
        for (const auto& event : events) weights.push_back(std::get<int>(event));
        std::discrete_distribution<std::size_t> lot(weights.begin(), weights.end());
        const auto& [name, weight, act] = events[lot(Dice)];
        Notes.push_back(name + " "s + control.Widget().objectName().toStdString());
        if (Notes.size() > 40) Notes.pop_front();
        Desktop.TempFolder = Folder.filePath(OneIn(3) ? u"missing"_s : u"."_s).toStdString();
        Desktop.IsComposited = OneIn(50); // a window fades in then
        // The keyboard goes to the window that the mouse is in, unless a box stands before it.
        if (!QApplication::activeModalWidget()) QApplication::setActiveWindow(&window);
        act();
    }

    void ClockShows(double Moment)
    {
        SetClock([Moment] { return Moment; });
        Clock = Moment;
        Main.Timer1_Timer();
        Require(At<PictureBox>(Main, "picBarra_6").PrintedText() == Format(Moment, "hh.mm.ss"),
                "a tick shows the time");
    }
    void JumpClock()
    {
        const int year = 2020 + Below(10);
        ClockShows(Any(std::array{
            DateSerial(year, 12, 31) + TimeSerial(23, 59, 59), DateSerial(year, 1, 1), Clock - 1,
            Clock + 1, Clock + TimeSerial(0, 0, 1), Below(99999) + Below(86400) / 86400.0}));
    }

    /// Runs while a box stands: plays with it, and in the end closes it.
    void AnswerBox()
    {
        QWidget* box = QApplication::activeModalWidget();
        if (!box || !box->windowHandle()) return;
        auto* about = dynamic_cast<frmAbout*>(box);
        const int choice = Below(9);
        Notes.push_back("box " + CStr(choice));
        if (choice == 0) ClickAt(Main, Below(Main.ScaleWidth()), Below(Main.ScaleHeight()));
        if (choice == 1) Type(Main, "12");
        if (choice == 2) JumpClock();
        if (choice == 3 && OneIn(8)) Main.Close();
        if (choice == 4) QTest::keyClick(box->windowHandle(), Qt::Key_Escape);
        if (choice == 5) QTest::keyClick(box->windowHandle(), Qt::Key_Return);
        if (choice > 5) about ? Click(*Any(about->Controls())) : void(box->close());
    }

    /// A whole calculation, mostly one that is possible.
    void Calculate()
    {
        const auto enter = [this](TextBox& Box, const std::string& Digits) {
            if (!Box.Enabled()) return;
            Box.SetText(Digits);
            Require(Box.Text() == Digits, "values within the limit are taken");
        };
        for (const int i : {0, 3}) {
            const bool last = OneIn(4); // of the year
            enter(txtData[i], last ? "31" : Between(1, 29));
            enter(txtData[i + 1], last ? "12" : Between(1, 12));
            enter(txtData[i + 2], OneIn(20) ? "0999" : Between(OneIn(3) ? 1000 : 2020, 2100));
            enter(txtTime[i], last ? "12" : Between(0, 23));
            enter(txtTime[i + 1], last ? "00" : Between(0, 59));
            enter(txtTime[i + 2], last ? "00" : Between(0, 59));
        }
        At<CommandButton>(Main, "cmdCalcola").Click(); // nothing else happens meanwhile
        Require(Expected().empty() || Shown() == Expected(), "what can be calculated is");
    }

    /// A sum, compared with one worked out apart from the window.
    void Sum(frmMiniCalc& Form)
    {
        const EventUnderWay underWay(Form); // as for a click: it outlives a box that it shows
        const auto chosen = [&](const std::string& Option) {
            return At<OptionButton>(Form, Option).Value();
        };
        const auto date = [&] { return Texts(Form, "txtData", 0, 3); };
        if (OneIn(2)) Click(At(Form, OneIn(2) ? "txtData_0" : "txtCalc_0"));
        if (Form.Visible()) TypeInto(Form, CStr(Below(100000000)) + Any("+-*"s));
        if (!Form.Visible()) return;
        const int step = Seconds(Form, 3) * (chosen("optSomma_0") ? 1 : -1);
        const int total = 30 * 86400 + Seconds(Form, 0) + step;
        if (chosen("optBase_0")) {
            At<CommandButton>(Form, "cmdSommaOre").Click();
            Require(Seconds(Form, 0) == total % 86400, "the running time is the sum");
            return;
        }
        int unit = 0; // the legend follows its option only once the click has sounded
        while (!chosen("optTipoDati_" + CStr(unit))) ++unit;
        const std::string number = At<TextBox>(Form, "txtSommaDati").Text();
        const auto sum = StepDate(date(), DateUnits[unit], number, chosen("optSommaData_1"));
        At<CommandButton>(Form, "cmdSommaData").Click();
        Require(!sum || CDate(date()) == (Year(*sum) > 2300 ? vellarno::Date() : *sum),
                "the running date is the sum, or today beyond the last year");
    }

    std::string Shown() const
    {
        return Texts<Label>(Main, "lblDati", 0, 6) + '/' + Texts<Label>(Main, "lblTotali", 0, 9) +
               '/' + Texts<Label>(Main, "lblWeekDay", 0, 2) + '/';
    }
    /// What a calculation with the fields as they stand has to show, nothing if none is possible.
    std::string Expected() const
    {
        const bool dates = !optDataTime[0].Value(), times = !optDataTime[2].Value();
        Moment ends[2]{};
        for (Moment& end : ends) {
            const int first = &end == ends ? 0 : 3;
            const auto day = CDate(Texts(Main, "txtData", first, 3));
            const std::string time = '/' + Texts(Main, "txtTime", first, 3) + '/';
            if (dates && (!day || CInt(txtData[first + 2].Text()) < 1000)) return {};
            if (times && time.find("//") != std::string::npos) return {};
            if (dates) end.Day = *day;
            if (times) end.TimeOfDay = TimeSerial(0, 0, Seconds(Main, first, "txtTime_"));
        }
        if (!dates && ends[1].TimeOfDay < ends[0].TimeOfDay) ends[1].Day = 1;
        const auto [start, end, counted] = OrderMoments(ends[0], ends[1]);
        const double last = counted + (times ? 0 : At<CheckBox>(Main, "chkDayInt").Value());
        const bool saturdays = At<CheckBox>(Main, "chkWorkSat").Value() == 1;
        const TimeFigures t = TimeDifference(start, end);
        const DateFigures d = DateDifference(start, last);
        const PeriodFigures p = CountPeriod(CLng(start), CLng(last), saturdays);
        std::string all;
        const auto print = [&](bool Used, std::initializer_list<std::int64_t> Figures) {
            for (const auto figure : Figures) all += (Used ? Format(figure, "0,0") : "") + '/';
        };
        print(dates, {d.Years, d.Months, d.Days});
        print(times, {t.Hours, t.Minutes, t.Seconds});
        print(dates,
              {d.TotalDays, d.TotalWeeks, p.WorkingDays, p.Saturdays, p.Sundays, p.Holidays});
        print(times, {t.TotalHours, t.TotalMinutes, t.TotalSeconds});
        for (const Moment& each : ends) all += WeekdayText(dates ? Weekday(each.Day, 1) : 0) + '/';
        return all;
    }

    void Check()
    {
        const frmMiniCalc* sums = Sums();
        const bool calendar = At(Main, "picCalendario").Visible();
        const std::string shown = Shown();
        const bool empty = shown.find_first_not_of('/') == std::string::npos;
        const std::pair<const char*, bool> invariants[] = {
            {"results belong to the fields", empty || shown == Expected()},
            {"dates hold what their rules take",
             Hold(Main, "txtData", {31, 12, 2100, 31, 12, 2100}) &&
                 (!sums || Hold(*sums, "txtData", {31, 12, 2300}))},
            {"times hold what their rules take",
             Hold(Main, "txtTime", {23, 59, 59, 23, 59, 59}) &&
                 (!sums || Hold(*sums, "txtCalc", {23, 59, 59, 23, 999, 999}))},
            {"no day and no month is 00",
             (Texts(Main, "txtData", 0, 2) + '/' + Texts(Main, "txtData", 3, 2)).find("00") ==
                 std::string::npos},
            {"the mode's fields can be used", txtData[0].Enabled() != optDataTime[0].Value() &&
                                                  txtTime[0].Enabled() != optDataTime[2].Value()},
            {"the calendar is open only in a mode with dates",
             !calendar || !optDataTime[0].Value()},
            {"no result stands beside the calendar", !calendar || empty},
            {"the calendar has its shadow", At(Main, "shpShadow").Visible() == calendar},
            {"one balloon at most", ShownBalloons().size() <= 1},
            {"no box is left behind", !QApplication::activeModalWidget()},
            {"no hourglass is left behind", !QApplication::overrideCursor()},
        };
        for (const auto& [rule, holds] : invariants) Require(holds || !Main.Visible(), rule);
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            Require(Main.Visible() || !window->isVisible(), "the main window closes all others");
            Require(!window->focusWidget() || window->focusWidget()->isEnabled(),
                    "the focus is on an enabled control or nowhere");
        }
    }
};

unsigned seed = 0;
int event = 0;
const Monkey* running = nullptr;

void TellPlace()
{
    if (!running) return;
    for (const auto& note : running->Notes) std::fprintf(stderr, "%s\n", note.c_str());
    std::fprintf(stderr, "seed %u, event %d: %s\n", seed, event, running->Broken.c_str());
}

/// What the toolkit complains of is a fault too; what the offscreen platform can't do is none.
void TakeComplaint(QtMsgType, const QMessageLogContext&, const QString& Text)
{
    if (Text.startsWith(QLatin1String("This plugin does not support"))) return;
    TellPlace();
    std::fprintf(stderr, "%s\n", qPrintable(Text));
    std::abort();
}

/// Life after life. @return false if something didn't hold.
bool Run(unsigned Seed, int Events, bool TimeAlone = false)
{
    std::printf("monkey: seed %u, %d events\n", seed = Seed, Events);
    std::fflush(stdout);
    std::mt19937 dice(Seed);
    bool held = true;
    for (event = 0; held && event < Events;) {
        Monkey life(dice);
        running = &life;
        while (life.Broken.empty() && life.Main.Visible() && event++ < Events) {
            TimeAlone ? life.ClockShows(life.Clock + TimeSerial(0, 1, 0)) : life.Step();
            Settle();
            life.Check();
        }
        held = life.Broken.empty();
        if (!held) TellPlace();
        running = nullptr;
    }
    return held;
}

}

/// monkey               two short runs, one of them of a random seed
/// monkey SEED EVENTS   that run; a seed with the same events repeats it
/// monkey --days DAYS   the window stands open for days, and its clock alone goes on
int main(int ArgumentCount, char** Arguments)
{
    const Application application(ArgumentCount, Arguments);
    qInstallMessageHandler(TakeComplaint);
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(TellPlace);
#endif
    if (ArgumentCount < 3)
        return Run(20261122, 1000) && Run(std::random_device{}(), 1000) ? EXIT_SUCCESS
                                                                        : EXIT_FAILURE;
    const bool days = Arguments[1] == "--days"s;
    const int amount = std::atoi(Arguments[2]);
    const auto given = static_cast<unsigned>(std::atoll(Arguments[1]));
    return Run(given, days ? amount * 1440 : amount, days) ? EXIT_SUCCESS : EXIT_FAILURE;
}
