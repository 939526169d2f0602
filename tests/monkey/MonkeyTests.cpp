#include "tests/support/MainWindow.h"
#include "tests/support/PlainCalendar.h"

#include <cstdlib>
#include <random>

using namespace vellarno::test;

/// What a clipboard or an input method may bring.
constexpr const char* HostileTexts[] = {
    "",     "1",   "12",  "00",      "24",   "2101", "32768",    "99999999999999999999",
    "-1",   "1e3", "1,5", " 7 ",     "%s%n", "\t",   "12\r\n34", "٣٤",
    "１２", "²½",  "😀",   "\u202e21"};

constexpr Qt::Key Keys[] = {
    Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Backspace,
    Qt::Key_Left, Qt::Key_Right,   Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Home,  Qt::Key_End,
    Qt::Key_Plus, Qt::Key_Minus,   Qt::Key_F1,     Qt::Key_Menu,   Qt::Key_PageUp};
constexpr Qt::KeyboardModifiers Modifiers[] = {{}, {}, {}, Qt::ShiftModifier, Qt::ControlModifier};

const std::chrono::sys_seconds Moments[] = {
    sys_days(2026y / 11 / 22) + 14h, sys_days(2026y / 12 / 31) + 23h + 59min + 59s,
    sys_days(2027y / 1 / 1),         sys_days(2028y / 2 / 29) + 12h,
    sys_days(2150y / 7 / 2),         sys_days(2301y / 3 / 5) + 1h};

/// One life of the program under the hands of someone who presses, clicks and drags whatever comes
/// along, in all windows, while the clock jumps. What it does follows from its dice alone.
class Monkey : public MainWindow
{
public:
    explicit Monkey(std::mt19937& Given) : dice(Given)
    {
        desktop.RealBoxes = true;
        QObject::connect(&boxWatch, &QTimer::timeout, [this] { AnswerBox(); });
        boxWatch.start(0);
    }
    ~Monkey() { form.Close(), TakeLog(); }

    std::string Notes;  ///< the events so far
    std::string Broken; ///< the first rule that did not hold

    void Step();
    void Check();

private:
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
        if (!box || !box->windowHandle()) return;
        Notes += "box\n";
        if (!OneIn(2))
            box->close();
        else
            Soon([this] { Step(); });
    }
    void Calculate();
    std::string Expected() const;
    void Require(bool Holds, const char* Rule)
    {
        if (Holds || !Broken.empty()) return;
        Broken = std::string(Rule) + "\nfields " + Dates() + ' ' + Times() + "\nshown  " +
                 Figures() + "\nright  " + Expected();
    }

    std::mt19937& dice;
    QTimer boxWatch;
    std::string judged; ///< fields, options and results at the last check
};

void Monkey::Step()
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
        &optDataTime[0], &optDataTime[1],  &optDataTime[2],  &chkDayInt,       &chkWorkSat,
        &cmdNowData[0],  &cmdNowData[1],   &GIORNO[7],       &GIORNO[20],      &GIORNO[36],
        &imgOnTop,       &picToolBarra[0], &picToolBarra[1], &picToolBarra[2], &picToolBarra[3]};
    const forms::Control& mode = *favourites[Below(3)];
    const std::pair<const char*, std::function<void()>> acts[] = {
        {"digits", [&] { person.Type(std::to_string(Below(100000000))); }},
        {"key", [&] { person.Press(Any(Keys), Any(Modifiers)); }},
        {"click", [&] { person.Click(control, button); }},
        {"click at", [&] { person.Click(at); }},
        {"double click", [&] { person.DoubleClick(control, button); }},
        {"press", [&] { person.MouseDown(control); }}, // a drag, with anything done meanwhile
        {"move", [&] { person.Hover(at); }},
        {"let go", [&] { person.MouseUp(at); }},
        {"wheel", [&] { person.Wheel(control, QPoint(OneIn(3) ? 120 : 0, OneIn(2) ? 120 : -40)); }},
        {"paste", [&] { person.Paste(Any(HostileTexts)); }},
        {"commit", [&] { person.Commit(Any(HostileTexts)); }},
        {"favourite", [&] { before.Click(*Any(favourites)); }},
        {"total", [&] { before.Hover(lblTotali[Below(9)]); }}, // a balloon
        {"calculate", [&] { Calculate(); }},
        {"month", [&] { before.Wheel(hscDataScroll, QPoint(0, OneIn(2) ? 120 : -120)); }},
        {"close", [&] { &window != &form || OneIn(4) ? window.Close() : Settle(); }},
        {"minimise", [&] { window.setWindowState(Qt::WindowMinimized); }},
        {"restore", [&] { window.setWindowState(Qt::WindowNoState); }},
        {"clock", [&] { StopClock(Any(Moments)), PassTick(); }},
        // What the click serves meanwhile meets another event.
        {"two at once", [&] { Soon([this] { Step(); }), before.Click(mode); }}};
    const auto& [name, act] = Any(acts);
    Notes += std::string(name) + ' ' + control.Widget().objectName().toStdString() + '\n';
    desktop.IsComposited = OneIn(50); // a window fades in then
    // The keyboard goes to the window that the mouse is in, unless a box stands before it.
    if (!QApplication::activeModalWidget() && !window.isMinimized()) window.activateWindow();
    act();
}

/// A whole calculation, mostly one that is possible.
void Monkey::Calculate()
{
    const auto between = [this](int from, int to) {
        const std::string number = std::to_string(from + Below(to - from + 1));
        return number.size() < 2 ? '0' + number : number;
    };
    for (const int i : {0, 3}) {
        const bool last = OneIn(4); // of the year, at noon
        txtData[i].SetText(last ? "31" : between(1, 29));
        txtData[i + 1].SetText(last ? "12" : between(1, 12));
        txtData[i + 2].SetText(OneIn(20) ? "0999" : between(OneIn(3) ? 1000 : 2020, 2100));
        txtTime[i].SetText(last ? "12" : between(0, 23));
        for (const int j : {i + 1, i + 2}) txtTime[j].SetText(last ? "00" : between(0, 59));
    }
    const std::string expected = Expected();
    cmdCalcola.Click(); // nothing else happens meanwhile, unless a box refuses it
    Require(expected.empty() || Figures() == expected, "what can be calculated is");
}

/// What a calculation with the fields as they stand has to show, or nothing if it is refused.
std::string Monkey::Expected() const
{
    const bool dates = !optDataTime[0].Value(), times = !optDataTime[2].Value();
    PlainMoment ends[2]{};
    for (const int i : {0, 3}) {
        int numbers[6];
        for (const int j : {0, 1, 2, 3, 4, 5}) {
            const std::string text = (j < 3 ? txtData : txtTime)[i + j % 3].Text();
            if (text.empty() && (j < 3 ? dates : times)) return "";
            numbers[j] = std::atoi(text.c_str());
        }
        const auto [day, month, year, hour, minute, second] = numbers;
        ends[i / 3] = {day, month, year, hour, minute, second};
    }
    return JudgeFigures(dates, times, ends[0], ends[1], chkDayInt.Value() == 1,
                        chkWorkSat.Value() == 1);
}

void Monkey::Check()
{
    // Years are walked day by day: what was judged once is not judged again.
    const std::string all = Dates() + Times() + Figures() + std::to_string(chkDayInt.Value()) +
                            std::to_string(chkWorkSat.Value());
    if (std::exchange(judged, all) != all)
        Require(!HasResults() || Figures() == Expected(), "a result belongs to the fields");
    const auto hold = [this](const Array<forms::TextBox>& boxes, std::vector<int> limits) {
        std::size_t i = 0;
        for (const auto& box : boxes) {
            const int limit = limits[i++ % limits.size()];
            const std::string text = box.Enabled() ? box.Text() : "";
            const bool digits = text.find_first_not_of("0123456789") == std::string::npos;
            Require(digits && std::atoi(text.c_str()) <= limit, "no box holds what it refuses");
            Require(text != "00" || limit != 12, "no month of two zeros");
        }
    };
    hold(txtData, {31, 12, 2100});
    hold(txtTime, {23, 59, 59});
    Require(CalendarIsClosed() || !optDataTime[0].Value(), "no calendar in the mode of times");
    Require(Shown<forms::Balloon>().size() <= 1, "one balloon at most");
    for (const forms::Form* window : Shown<forms::Form>()) {
        Require(!window->focusWidget() || window->focusWidget()->isEnabled(),
                "the focus is on an enabled control or nowhere");
        if (window->objectName() != "frmMiniCalc") continue;
        hold({*window, "txtCalc"}, {23, 59, 59, 23, 999, 999});
    }
}

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
        for (; left > 0 && life.form.Visible() && life.Broken.empty(); --left) {
            life.Step();
            Settle();
            if (life.form.Visible()) life.Check();
        }
        ASSERT_EQ(life.Broken, "") << life.Notes;
    }
}
