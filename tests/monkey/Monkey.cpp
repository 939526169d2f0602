#include "tests/monkey/Monkey.h"

#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Text.h"
#include "services/GenericBas.h"
#include "services/frmAbout.h"
#include "tests/support/Driver.h"

#include <QApplication>
#include <QTest>

namespace vellarno::test {

namespace {

constexpr std::size_t KeptNotes = 25;

/// What a clipboard, a drop or an input method may bring.
const std::string HostileTexts[] = {
    "",
    "1",
    "12",
    "00",
    "24",
    "2005",
    "2101",
    "310120",
    std::string(20000, '9'),
    std::string("1\0"
                "2",
                3),
    std::string(1, '\0'),
    "\u202e21",
    "٣٤",
    "１２",
    "²½",
    "😀",
    "1😀",
    "\xed\xa0\x80",
    "\xff\xfe",
    "e\u0301",
    "-1",
    "+5",
    "1e3",
    "1,5",
    " 7 ",
    "32768",
    "99999999999999999999",
    "12\r\n34",
    "\t",
    "0x1f",
    "%s%n",
    "<b>1</b>",
};

struct Stroke
{
    Qt::Key Key;
    Qt::KeyboardModifiers Modifiers = Qt::NoModifier;
};

constexpr Stroke Strokes[] = {
    {Qt::Key_Tab},
    {Qt::Key_Tab},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Return},
    {Qt::Key_Enter},
    {Qt::Key_Escape},
    {Qt::Key_Space},
    {Qt::Key_Backspace},
    {Qt::Key_Backspace},
    {Qt::Key_Delete},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_PageUp},
    {Qt::Key_PageDown},
    {Qt::Key_Plus},
    {Qt::Key_Minus},
    {Qt::Key_A},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Insert, Qt::ShiftModifier},
    {Qt::Key_Delete, Qt::ShiftModifier},
    {Qt::Key_Left, Qt::ShiftModifier},
    {Qt::Key_Backspace, Qt::ControlModifier},
    {Qt::Key_Menu},
    {Qt::Key_F1},
    {Qt::Key_F4, Qt::AltModifier},
};

}

void Monkey::Desk::MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                          const std::string& Title)
{
    Recorder::MsgBox(Prompt, Style, Title);
    if (ShowsBox()) forms::MsgBox(Prompt, Style, Title);
}

void Monkey::Desk::Forget()
{
    Messages.clear();
    Sounds.clear();
    Opened.clear();
    Started.clear();
    Log.clear();
}

Monkey::Monkey(unsigned Seed) : dice(Seed)
{
    desk.TempFolder = folder.Path;
    desk.ShowsBox = [this] { return OneIn(4); };
    desk.DuringMessage = [this] {
        if (OneIn(4)) JumpClock();
        if (OneIn(40)) form->Close();
    };
    QObject::connect(&boxWatch, &QTimer::timeout, &boxWatch, [this] { AnswerBox(); });
    boxWatch.start(0);
    SetNow(DateSerial(2026, 11, 22) + 0.5);
    OpenMainWindow();
}

Monkey::~Monkey()
{
    if (form->Visible()) form->Close();
    Settle();
    OnTopFlag = false;
    SetClock(nullptr);
}

void Monkey::Act()
{
    ++events;
    Step();
    Settle();
    Check();
    desk.Forget();
}

std::string Monkey::Notes() const
{
    std::string all;
    for (const std::string& note : notes) all += "  " + note + '\n';
    return all;
}

std::string Monkey::Windows() const
{
    const QWidget* focus = QApplication::focusWidget();
    return "focus: " + (focus ? focus->objectName().toStdString() : "none") + "\nmain window:\n" +
           Describe(*form) + (Sums() ? "sums:\n" + Describe(*Sums()) : "");
}

int Monkey::Below(int Count)
{
    return std::uniform_int_distribution(0, Count - 1)(dice);
}

void Monkey::Note(const std::string& What)
{
    notes.push_back(CStr(events) + ' ' + What);
    if (notes.size() > KeptNotes) notes.pop_front();
}

void Monkey::OpenMainWindow()
{
    OnTopFlag = false;
    main.reset();
    form = std::make_unique<frmMain>();
    Open(*form);
    main = std::make_unique<MainWindow>(*form);
    strip = {};
}

frmMiniCalc* Monkey::Sums() const
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* sums = dynamic_cast<frmMiniCalc*>(window); sums && sums->Visible()) return sums;
    return nullptr;
}

/// The window that the next event goes to; nullptr once the program has ended.
forms::Form* Monkey::Window()
{
    frmMiniCalc* sums = Sums();
    if (sums && Below(5) < 3) return &Front(*sums);
    return form->Visible() ? &Front(*form) : nullptr;
}

/// The keyboard goes to the window that the mouse was last in, unless a box stands before it.
forms::Form& Monkey::Front(forms::Form& Form)
{
    if (!QApplication::activeModalWidget()) QApplication::setActiveWindow(&Form);
    return Form;
}

forms::Control* Monkey::AnyControl(forms::Form& Form)
{
    return Any(Form.Controls());
}

forms::TextBox* Monkey::AnyBox(forms::Form& Form)
{
    std::vector<forms::TextBox*> boxes;
    for (forms::Control* control : Form.Controls())
        if (auto* box = dynamic_cast<forms::TextBox*>(control); box && box->isVisible())
            boxes.push_back(box);
    return Any(boxes);
}

void Monkey::Check()
{
    if (!form->Visible()) {
        for (const QWidget* window : QApplication::topLevelWidgets())
            Require(!window->isVisible(), "the main window closes all others");
        OpenMainWindow();
        return;
    }
    CheckMainWindow(*main);
    if (frmMiniCalc* sums = Sums()) CheckSums({*sums});
    CheckDesktop();
    strip.Check(*main, days);
    days = {static_cast<int>(now)};
}

void Monkey::SetNow(double Moment)
{
    now = Moment;
    days.insert(static_cast<int>(now));
    SetClock([Moment] { return Moment; });
}

void Monkey::Tick()
{
    form->Timer1_Timer();
    strip.CheckTick(*main);
}

/// Runs while a box stands: plays with it, and in the end closes it.
void Monkey::AnswerBox()
{
    QWidget* box = QApplication::activeModalWidget();
    if (!box || !box->windowHandle()) return;
    const int choice = Below(12);
    Note("box " + CStr(choice));
    auto* about = dynamic_cast<frmAbout*>(box);
    switch (choice) {
    case 0: ClickAt(*form, Below(form->ScaleWidth()), Below(form->ScaleHeight())); break;
    case 1: Type(*form, "12"); break;
    case 2: JumpClock(); break;
    case 3: Tick(); break;
    case 4: box->close(); break;
    case 5:
        QTest::sendKeyEvent(QTest::Click, box->windowHandle(), Qt::Key_Escape, "\x1b", {});
        break;
    case 6: QTest::sendKeyEvent(QTest::Click, box->windowHandle(), Qt::Key_Return, "\r", {}); break;
    case 7: QTest::sendKeyEvent(QTest::Click, box->windowHandle(), Qt::Key_Space, " ", {}); break;
    case 8:
        if (OneIn(8)) form->Close(); // the desktop session ends
        break;
    default:
        if (about) Click(*AnyControl(*about));
    }
}

void Monkey::Step()
{
    struct Habit
    {
        int Weight;
        const char* Name;
        void (Monkey::*Do)();
    };
    static constexpr Habit habits[] = {
        {20, "type", &Monkey::TypeDigits},
        {20, "key", &Monkey::PressKey},
        {16, "click", &Monkey::ClickControl},
        {6, "click anywhere", &Monkey::ClickAnywhere},
        {4, "double or right click", &Monkey::DoubleOrRightClick},
        {5, "drag", &Monkey::Drag},
        {6, "move", &Monkey::MovePointer},
        {4, "wheel", &Monkey::TurnWheel},
        {8, "text", &Monkey::PutText},
        {8, "fill in", &Monkey::FillIn},
        {8, "sum", &Monkey::FillSums},
        {8, "calendar", &Monkey::UseCalendar},
        {9, "choose", &Monkey::Choose},
        {2, "caption", &Monkey::ClickCaption},
        {5, "icon", &Monkey::PressIcon},
        {1, "pin", &Monkey::Pin},
        {2, "window", &Monkey::SwitchWindow},
        {1, "close", &Monkey::CloseWindow},
        {4, "clock", &Monkey::JumpClock},
        {4, "tick", &Monkey::Tick},
        {1, "rest", &Monkey::Rest},
        {6, "hurry", &Monkey::Hurry},
    };
    if (!form->Visible()) return;
    int weights = 0;
    for (const Habit& habit : habits) weights += habit.Weight;
    int left = Below(weights);
    const Habit* chosen = habits;
    while (left >= chosen->Weight) left -= chosen++->Weight;
    Note(chosen->Name);
    (this->*chosen->Do)();
}

/// The window may be closed between two keys.
void Monkey::TypeInto(forms::Form& Form, const std::string& Text)
{
    const forms::FormRef<> held(Form);
    for (const char key : Text)
        if (held.Open()) Type(Form, std::string(1, key));
}

void Monkey::TypeDigits()
{
    std::string digits;
    for (int i = Below(8); i >= 0; --i) digits += static_cast<char>('0' + Below(10));
    if (forms::Form* window = Window()) TypeInto(*window, digits);
}

void Monkey::PressKey()
{
    const Stroke& stroke = Any(Strokes);
    forms::Form* window = Window();
    // A window that a key closes may be destroyed before its next one.
    for (int i = OneIn(5) ? Below(4) : 0; i >= 0 && window && window->Visible(); --i) {
        Note("  key " + CStr(stroke.Key));
        Press(*window, stroke.Key, stroke.Modifiers);
        window = Window();
    }
}

void Monkey::ClickControl()
{
    forms::Form* window = Window();
    if (!window) return;
    forms::Control* control = AnyControl(*window);
    Note("  " + control->Widget().objectName().toStdString());
    Click(*control);
}

void Monkey::ClickAnywhere()
{
    if (forms::Form* window = Window())
        ClickAt(*window, Below(window->ScaleWidth()), Below(window->ScaleHeight()));
}

void Monkey::DoubleOrRightClick()
{
    forms::Form* window = Window();
    if (!window) return;
    forms::Control* control = AnyControl(*window);
    Note("  " + control->Widget().objectName().toStdString());
    const QWidget& widget = control->Widget();
    const QPoint at = widget.mapTo(window, widget.rect().center());
    QTest::mouseEvent(OneIn(2) ? QTest::MouseDClick : QTest::MouseClick, window->windowHandle(),
                      Any(std::array{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}),
                      Qt::NoModifier, at);
}

/// From one point to another, with something else done meanwhile.
void Monkey::Drag()
{
    forms::Form* window = Window();
    if (!window) return;
    const forms::FormRef<> held(*window);
    const auto x = [&] { return Below(window->ScaleWidth()); };
    const auto y = [&] { return Below(window->ScaleHeight()); };
    OneIn(2) ? MouseDownAt(*window, x(), y()) : MouseDown(*AnyControl(*window));
    if (OneIn(3)) Step();
    if (held.Open()) MoveTo(*window, x(), y());
    if (held.Open()) MouseUpAt(*window, x(), y());
}

void Monkey::MovePointer()
{
    forms::Form* window = Window();
    if (!window) return;
    OneIn(2) ? MoveTo(main->lblTotali[Below(9)])
             : MoveTo(*window, Below(window->ScaleWidth()), Below(window->ScaleHeight()));
}

void Monkey::TurnWheel()
{
    if (forms::Form* window = Window()) Wheel(*AnyControl(*window), OneIn(2));
}

void Monkey::PutText()
{
    forms::Form* window = Window();
    if (!window) return;
    const std::string& text = Any(HostileTexts);
    forms::TextBox* box = AnyBox(*window);
    Note("  " + box->objectName().toStdString() + " <- " + text.substr(0, 20));
    switch (Below(3)) {
    case 0: Paste(*window, text); break;
    case 1: Drop(*box, text); break;
    default:
        Click(*box);
        if (QGuiApplication::focusObject() == box) Commit(*box, text);
    }
}

/// A whole calculation, mostly one that is possible.
void Monkey::FillIn()
{
    const auto twoDigits = [](int Number) { return Format(Number, "00"); };
    Front(*form);
    for (const int first : {0, 3}) {
        const bool extreme = OneIn(4);
        const int year = OneIn(3) ? 1000 + Below(1101) : 2020 + Below(12);
        if (main->txtData[0].Enabled()) {
            Click(main->txtData[first]);
            Type(*form, (extreme ? std::string("3112")
                                 : twoDigits(1 + Below(29)) + twoDigits(1 + Below(12))) +
                            (OneIn(20) ? "0999" : CStr(year)));
        }
        if (main->txtTime[0].Enabled()) {
            Click(main->txtTime[first]);
            Type(*form, extreme
                            ? "120000"
                            : twoDigits(Below(24)) + twoDigits(Below(60)) + twoDigits(Below(60)));
        }
    }
    Click(main->cmdCalcola);
}

void Monkey::FillSums()
{
    frmMiniCalc* sums = Sums();
    if (!sums) return;
    const forms::FormRef<frmMiniCalc> held(*sums);
    Front(*sums);
    SumsWindow window{*sums};
    const bool date = window.optBase[1].Value();
    std::string digits;
    for (int i = Below(10); i >= 0; --i) digits += static_cast<char>('0' + Below(4));
    if (OneIn(2)) Click(date ? window.txtData[0] : window.txtCalc[0]);
    if (held.Open()) TypeInto(*sums, digits);
    if (held.Open() && OneIn(3)) Type(*sums, OneIn(2) ? "+" : "-");
    if (held.Open() && OneIn(3))
        Click(*Any(std::array{&window.optFormat[Below(2)], &window.optTipoDati[Below(4)],
                              &window.optBase[Below(2)]}));
    if (held.Open()) Click(date ? window.cmdSommaData : window.cmdSommaOre);
}

void Monkey::UseCalendar()
{
    Front(*form);
    Click(main->cmdNowData[Below(2)]);
    for (int i = Below(4); i > 0 && form->Visible(); --i) {
        if (OneIn(2)) Wheel(main->hscDataScroll, OneIn(2));
        if (OneIn(3)) Click(main->txtCalMeseAnno);
        if (OneIn(3))
            Press(*form, Any(std::array{Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                                        Qt::Key_PageUp, Qt::Key_PageDown}));
    }
    if (OneIn(2) && form->Visible()) Click(main->GIORNO[1 + Below(42)]);
}

/// The captions of the check boxes are labels of their own.
void Monkey::ClickCaption()
{
    Front(*form);
    Click(main->lblChekBox[Below(2)]);
}

void Monkey::PressIcon()
{
    const std::string home = folder.Path;
    desk.TempFolder = Any(std::array<std::string, 4>{home, home, "", home + "/missing"});
    desk.CanOpen = !OneIn(4);
    desk.IsComposited = OneIn(50); // the window fades in then
    desk.IsInstalled = [there = OneIn(2)](const std::string&) { return there; };
    const int icon = OneIn(2) ? 3 : Below(4);
    Note("  icon " + CStr(icon));
    Front(*form);
    Click(main->picToolBarra[icon]);
    if (frmMiniCalc* sums = Sums(); sums && !sums->property("watched").toBool()) {
        sums->setProperty("watched", true);
        WatchSums(*sums);
    }
}

void Monkey::Pin()
{
    Front(*form);
    Click(main->imgOnTop);
}

void Monkey::SwitchWindow()
{
    forms::Form* window = Window();
    if (!window) return;
    if (OneIn(4)) window->showMinimized();
    Settle();
    if (forms::Form* other = Window()) {
        other->showNormal();
    }
}

void Monkey::CloseWindow()
{
    frmMiniCalc* sums = Sums();
    if (sums && !OneIn(8))
        sums->Close();
    else if (OneIn(4))
        form->Close();
}

void Monkey::JumpClock()
{
    switch (Below(6)) {
    case 0: SetNow(DateSerial(2020 + Below(10), 12, 31) + TimeSerial(23, 59, 59)); break;
    case 1: SetNow(DateSerial(2020 + Below(10), 1, 1)); break;
    case 2: SetNow(DateSerial(1970, 1, 1) + Below(66000) + Below(86400) / 86400.0); break;
    case 3: SetNow(now - 1); break;
    case 4: SetNow(now + 1); break;
    default: SetNow(now + 1 / 86400.0);
    }
}

/// Long enough for a balloon.
void Monkey::Rest()
{
    if (form->Visible()) MoveTo(main->lblTotali[Below(9)]);
    Wait(30);
}

/// Several events at once: what the first one serves meanwhile meets the others.
void Monkey::Hurry()
{
    for (int i = Below(3); i >= 0; --i)
        QTimer::singleShot(0, &boxWatch, [this] { OneIn(2) ? Step() : Choose(); });
    OneIn(3) ? Step() : Choose();
}

/// One of a window's options or check boxes.
void Monkey::Choose()
{
    forms::Form* window = Window();
    if (!window) return;
    std::vector<forms::Control*> choices;
    for (forms::Control* control : window->Controls())
        if (control->Widget().isVisible() && (dynamic_cast<forms::OptionButton*>(control) ||
                                              dynamic_cast<forms::CheckBox*>(control)))
            choices.push_back(control);
    forms::Control* choice = Any(choices);
    Note("  choice " + choice->Widget().objectName().toStdString());
    Click(*choice);
}

}
