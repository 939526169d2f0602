#include "tests/support/MainWindow.h"
#include "tests/support/PlainCalendar.h"

#include <cstdio>
#include <cstdlib>
#include <random>

using namespace vellarno::test;

/// What a clipboard or an input method may bring.
constexpr const char* HostileTexts[] = {
    "", "00", "2101", "99999999999999999999", "-1", " 7 ", "12\r\n34", "٣٤", "²½", "\u202e21"};

constexpr Qt::Key Keys[] = {Qt::Key_Tab,   Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Escape,
                            Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Left,   Qt::Key_Down,
                            Qt::Key_Home,  Qt::Key_End,       Qt::Key_Plus,   Qt::Key_Minus,
                            Qt::Key_F1,    Qt::Key_Menu,      Qt::Key_PageUp};
constexpr Qt::KeyboardModifiers Modifiers[] = {{}, {}, {}, Qt::ShiftModifier, Qt::ControlModifier};

const std::chrono::sys_seconds Moments[] = {sys_days(2026y / 12 / 31) + 23h + 59min + 59s,
                                            sys_days(2028y / 2 / 29) + 12h, sys_days(2150y / 7 / 2),
                                            sys_days(2301y / 3 / 5) + 1h};

/// One life of the program under the hands of someone who presses, clicks and drags whatever comes
/// along, in all windows, while the clock jumps. What it does follows from its dice alone.
struct Monkey : MainWindow
{
    std::mt19937& dice;
    QTimer boxWatch;
    std::string judged; ///< fields, options and results at the last check

    explicit Monkey(std::mt19937& Given) : dice(Given)
    {
        RealBoxes = true;
        QObject::connect(&boxWatch, &QTimer::timeout, [this] { AnswerBox(); });
        boxWatch.start(0);
    }
    ~Monkey()
    {
        form.Close();
        TakeLog();
    }

    int Below(int Count) { return std::uniform_int_distribution(0, Count - 1)(dice); }
    bool OneIn(int Chances) { return Below(Chances) == 0; }
    const auto& Any(const auto& Of)
    {
        return Of[static_cast<std::size_t>(Below(static_cast<int>(std::size(Of))))];
    }
    /// Runs while a box stands: works on behind it, and in the end closes it.
    void AnswerBox()
    {
        QWidget* box = QApplication::activeModalWidget();
        if (box && OneIn(2)) box->close();
        if (box) Soon([this] { Step(); });
    }
    void Require(bool Holds, const char* Rule) const
    {
        EXPECT_TRUE(Holds) << Rule << "\nfields " << Dates() << ' ' << Times() << "\nshown  "
                           << Figures() << "\nright  " << Expected();
    }

    void Step()
    {
        const auto windows = Shown<forms::Form>();
        if (windows.empty()) return;
        forms::Form& window = *Any(windows);
        const Person person(window), before(form);
        const auto controls = window.Controls();
        const forms::Control& control = *Any(controls);
        const QPoint at(Below(window.ScaleWidth()), Below(window.ScaleHeight()));
        const auto button = OneIn(2) ? Qt::RightButton : Qt::LeftButton;
        const forms::Control* const favourites[] = {
            &optDataTime[0], &optDataTime[1], &optDataTime[2],  &chkDayInt,       &chkWorkSat,
            &cmdNowData[0],  &GIORNO[20],     &picToolBarra[1], &picToolBarra[2], &picToolBarra[3]};
        const std::function<void()> acts[] = {
            [&] { person.Type(std::to_string(Below(100000000))); },
            [&] { person.Press(Any(Keys), Any(Modifiers)); },
            [&] { person.Click(OneIn(2) ? at : Spot(control), button); },
            [&] { person.DoubleClick(control, button); },
            [&] { person.MouseDown(control); }, // a drag, with anything done meanwhile
            [&] { person.MouseUp(at); },
            [&] { person.Wheel(control, QPoint(OneIn(3) ? 120 : 0, OneIn(2) ? 120 : -40)); },
            [&] { person.Paste(Any(HostileTexts)); },
            [&] { person.Commit(Any(HostileTexts)); },
            [&] { before.Click(*Any(favourites)); },
            [&] { before.Hover(lblTotali[Below(ResultLabels::TotalCount)]); }, // a balloon
            [&] { Calculate(); },
            [&] { (&window != &form || OneIn(4)) ? window.Close() : void(); },
            [&] { window.setWindowState(OneIn(2) ? Qt::WindowMinimized : Qt::WindowNoState); },
            [&] { StopClock(Any(Moments)); },
            [&] { Soon([this] { Step(); }); }}; // meets what the next one serves meanwhile
        IsComposited = OneIn(50);               // a window fades in then
        // The keyboard goes to the window that the mouse is in, unless a box stands before it.
        if (!QApplication::activeModalWidget() && !window.isMinimized()) window.activateWindow();
        Any(acts)();
    }

    /// A whole calculation, mostly in our days and often at noon.
    void Calculate()
    {
        QString dates, times;
        for (int end = 0; end < 2; ++end) {
            const PlainDay& day =
                PlainDayOf(OneIn(3) ? Below(402'132) - 328'716 : 44'000 + Below(3'000));
            const int second = OneIn(4) ? 43'200 : Below(86'400);
            dates += QString::asprintf("%02d%02d%04d", day.Day, day.Month, day.Year);
            times +=
                QString::asprintf("%02d%02d%02d", second / 3600, second / 60 % 60, second % 60);
        }
        Compare(dates.toStdString(), times.toStdString());
    }

    /// What a calculation with the fields as they stand has to show, or nothing if it is refused.
    std::string Expected() const
    {
        const bool dates = !optDataTime[0].Value(), times = !optDataTime[2].Value();
        std::string all =
            (dates ? Dates() : "1/1/2000 1/1/2000") + ' ' + (times ? Times() : "0:0:0 0:0:0");
        std::erase(all, '_'); // where a number lacks, reading ends
        int d[6], t[6];
        if (std::sscanf(all.c_str(), "%d/%d/%d %d/%d/%d %d:%d:%d %d:%d:%d", &d[0], &d[1], &d[2],
                        &d[3], &d[4], &d[5], &t[0], &t[1], &t[2], &t[3], &t[4], &t[5]) < 12)
            return "";
        const auto start = PlainDayOf(d[0], d[1], d[2]), end = PlainDayOf(d[3], d[4], d[5]);
        if (!start || !end) return "";
        return JudgeFigures(dates, times, {*start, t[0] * 3600 + t[1] * 60 + t[2]},
                            {*end, t[3] * 3600 + t[4] * 60 + t[5]}, chkDayInt.Value() == 1,
                            chkWorkSat.Value() == 1);
    }

    void Check()
    {
        // Years are walked day by day: what was judged once is not judged again.
        const std::string all = Dates() + Times() + Figures() +
                                std::to_string(2 * chkDayInt.Value() + chkWorkSat.Value());
        if (std::exchange(judged, all) != all)
            Require(!HasResults() || Figures() == Expected(), "a result belongs to the fields");
        const auto within = [](const forms::TextBox& box, int limit) {
            const std::string text = box.Enabled() ? box.Text() : "";
            return text.find_first_not_of("0123456789") == text.npos &&
                   std::atoi(text.c_str()) <= limit;
        };
        const int dates[] = {31, 12, 2100}, times[] = {23, 59, 59};
        for (const int i : {0, 1, 2, 3, 4, 5})
            Require(within(txtData[i], dates[i % 3]) && within(txtTime[i], times[i % 3]),
                    "no box holds what it refuses");
        Require(CalendarIsClosed() || !optDataTime[0].Value(), "no calendar in the mode of times");
        Require(Shown<forms::Balloon>().size() <= 1, "one balloon at most");
        for (const forms::Form* window : Shown<forms::Form>())
            Require(!window->focusWidget() || window->focusWidget()->isEnabled(),
                    "the focus is on an enabled control or nowhere");
    }
};

/// VELLARNO_MONKEY_SEED and VELLARNO_MONKEY_EVENTS choose a run; the same ones repeat it.
TEST(Monkey, FindsNothingBroken)
{
    const char* const given = std::getenv("VELLARNO_MONKEY_SEED");
    const char* const count = std::getenv("VELLARNO_MONKEY_EVENTS");
    const auto seed = given ? static_cast<unsigned>(std::atoi(given)) : std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 dice(seed);
    for (int left = count ? std::atoi(count) : 2000; left > 0;) {
        Monkey life(dice);
        for (; left > 0 && life.form.Visible() && !HasFailure(); --left) {
            life.Step();
            Settle();
            if (life.form.Visible()) life.Check();
        }
        ASSERT_FALSE(HasFailure());
    }
}
