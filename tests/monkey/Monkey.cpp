#include "tests/monkey/Monkey.h"

#include "engine/Text.h"
#include "services/GenericBas.h"
#include "services/frmAbout.h"

#include <QApplication>
#include <QTest>

#include <array>

namespace vellarno::test {

namespace {

constexpr std::size_t KeptNotes = 40;

/// What a clipboard, a drop or an input method may bring.
const std::string HostileTexts[] = {"",
                                    "1",
                                    "12",
                                    "00",
                                    "24",
                                    "32",
                                    "2005",
                                    "2101",
                                    "310120",
                                    std::string(20000, '9'),
                                    std::string("1\0002", 3),
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
                                    "<b>1</b>"};

const QKeyCombination Keys[] = {Qt::Key_Tab,
                                Qt::Key_Tab,
                                Qt::SHIFT | Qt::Key_Backtab,
                                Qt::SHIFT | Qt::Key_Backtab,
                                Qt::Key_Return,
                                Qt::Key_Enter,
                                Qt::Key_Escape,
                                Qt::Key_Space,
                                Qt::Key_Backspace,
                                Qt::Key_Delete,
                                Qt::Key_Left,
                                Qt::Key_Right,
                                Qt::Key_Up,
                                Qt::Key_Down,
                                Qt::Key_Home,
                                Qt::Key_End,
                                Qt::Key_PageUp,
                                Qt::Key_PageDown,
                                Qt::Key_Plus,
                                Qt::Key_Minus,
                                Qt::Key_A,
                                Qt::CTRL | Qt::Key_A,
                                Qt::CTRL | Qt::Key_C,
                                Qt::CTRL | Qt::Key_V,
                                Qt::CTRL | Qt::Key_X,
                                Qt::CTRL | Qt::Key_Z,
                                Qt::SHIFT | Qt::Key_Insert,
                                Qt::SHIFT | Qt::Key_Delete,
                                Qt::SHIFT | Qt::Key_Left,
                                Qt::CTRL | Qt::Key_Backspace,
                                Qt::Key_Menu,
                                Qt::Key_F1};

}

Monkey::Monkey(std::mt19937& Dice) : dice(Dice)
{
    desktop.TempFolder = folder.Path;
    desktop.DuringMessage = [this] {
        if (OneIn(4)) JumpClock();
        if (OneIn(40)) form.Close(); // the desktop session ends
        const auto [prompt, title, style] = desktop.Messages.back();
        if (OneIn(4)) forms::MsgBox(prompt, style, title);
    };
    QObject::connect(&boxWatch, &QTimer::timeout, &boxWatch, [this] { AnswerBox(); });
    boxWatch.start(0);
    ClockShows(DateSerial(2026, 11, 22) + 0.5);
}

Monkey::~Monkey()
{
    form.Close();
    Settle();
    OnTopFlag = false;
}

bool Monkey::Act()
{
    Step();
    Settle();
    if (form.Visible()) {
        Check();
    } else {
        for (const QWidget* window : QApplication::topLevelWidgets())
            Require(!window->isVisible(), "the main window closes all others");
    }
    desktop.Messages.clear();
    desktop.Sounds.clear();
    desktop.Opened.clear();
    desktop.Started.clear();
    desktop.Log.clear();
    return form.Visible();
}

std::string Monkey::Notes() const
{
    std::string all;
    for (const std::string& note : notes) all += note + ' ';
    return all + '\n';
}

void Monkey::ClockShows(double Moment)
{
    now = Moment;
    days.insert(static_cast<int>(now));
    SetClock([Moment] { return Moment; });
}

void Monkey::Tick()
{
    form.Timer1_Timer();
    Require(Panel(6) == Format(now, "hh.mm.ss"), "a tick shows the time");
    Require(Panel(5).find(' ' + Format(now, "dd") + ' ') != std::string::npos,
            "a tick on a new day of the month updates the strip");
}

frmMiniCalc* Monkey::Sums()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* sums = dynamic_cast<frmMiniCalc*>(window); sums && sums->Visible()) return sums;
    return nullptr;
}

/// A visible control of one of the kinds.
template <class... Kinds>
forms::Control& Monkey::AnyOf(const forms::Form& Form)
{
    std::vector<forms::Control*> found;
    for (forms::Control* control : Form.Controls())
        if (control->Widget().isVisible() && (dynamic_cast<Kinds*>(control) || ...))
            found.push_back(control);
    return *Any(found);
}

std::string Monkey::Digits(int Most)
{
    std::string digits(static_cast<std::size_t>(1 + Below(Most)), '0');
    for (char& digit : digits) digit = static_cast<char>('0' + Below(10));
    return digits;
}

/// The keyboard goes to the window that the mouse was last in, unless a box stands before it.
void Monkey::Front(forms::Form& Form)
{
    if (!QApplication::activeModalWidget()) QApplication::setActiveWindow(&Form);
}

/// The window may be closed between two keys.
void Monkey::TypeInto(forms::Form& Form, const std::string& Text)
{
    const forms::FormRef<> held(Form);
    for (const char key : Text)
        if (held.Open()) Type(Form, std::string(1, key));
}

void Monkey::Step()
{
    static constexpr std::string_view letters =
        "tttttttkkkkkkkcccccccaaddggmmmwwpoiiFFFSSSllloooooniqvjjTTrhhh";
    if (!form.Visible()) return;
    frmMiniCalc* sums = Sums();
    forms::Form& window = sums && Below(5) < 3 ? static_cast<forms::Form&>(*sums) : form;
    forms::Control& control = *Any(window.Controls());
    auto& box = dynamic_cast<forms::TextBox&>(AnyOf<forms::TextBox>(window));
    const int x = Below(window.ScaleWidth());
    const int y = Below(window.ScaleHeight());
    const char letter = Any(letters);
    const forms::FormRef<> held(window);
    notes.push_back(letter + (':' + control.Widget().objectName().toStdString()));
    if (notes.size() > KeptNotes) notes.pop_front();
    Front(window);
    switch (letter) {
    case 't': TypeInto(window, Digits(8)); break;
    case 'k': {
        const QKeyCombination key = Any(Keys);
        for (int i = OneIn(5) ? Below(4) : 0; i >= 0 && held.Open(); --i)
            Press(window, key.key(), key.keyboardModifiers());
        break;
    }
    case 'c': Click(control); break;
    case 'a': ClickAt(window, x, y); break;
    case 'd':
        MouseAct{OneIn(2) ? QTest::MouseDClick : QTest::MouseClick,
                 Any(std::array{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})}(control);
        break;
    case 'g': Drag(window, control); break;
    case 'm': OneIn(2) ? MoveTo(lblTotali[Below(9)]) : MoveTo(window, x, y); break;
    case 'w': Wheel(control, OneIn(2)); break;
    case 'p': Paste(window, Any(HostileTexts)); break;
    case 'o': Drop(box, Any(HostileTexts)); break;
    case 'i':
        Click(box);
        if (held.Open() && QGuiApplication::focusObject() == &box) Commit(box, Any(HostileTexts));
        break;
    case 'F': FillIn(); break;
    case 'S':
        if (sums) FillSums(*sums);
        break;
    case 'l': UseCalendar(); break;
    case 'x': Click(AnyOf<forms::OptionButton, forms::CheckBox>(window)); break;
    case 'n': PressIcon(); break;
    case 'v':
        if (OneIn(4)) window.showMinimized();
        Settle();
        if (held.Open()) window.showNormal();
        break;
    case 'q':
        if (sums && !OneIn(8))
            sums->Close();
        else if (OneIn(4))
            form.Close();
        break;
    case 'j': JumpClock(); break;
    case 'T': Tick(); break;
    case 'r': // long enough for a balloon
        MoveTo(lblTotali[Below(9)]);
        Wait(30);
        break;
    case 'h': // several events at once: what the first one serves meanwhile meets the others
        for (int i = Below(3); i >= 0; --i) QTimer::singleShot(0, &boxWatch, [this] { Step(); });
        Click(AnyOf<forms::OptionButton, forms::CheckBox>(window));
        break;
    default: throw std::logic_error("an event without a hand");
    }
}

/// From one point to another, with something else done meanwhile.
void Monkey::Drag(forms::Form& Form, forms::Control& Control)
{
    const forms::FormRef<> held(Form);
    MouseDown(Control);
    if (OneIn(3)) Step();
    const int x = Below(400);
    const int y = Below(250);
    if (held.Open()) MoveTo(Form, x, y);
    if (held.Open()) MouseUpAt(Form, x, y);
}

/// A whole calculation, mostly one that is possible.
void Monkey::FillIn()
{
    const auto twoDigits = [this](int From, int To) {
        return Format(From + Below(To - From + 1), "00");
    };
    Front(form);
    for (const int first : {0, 3}) {
        const bool extreme = OneIn(4);
        const int year = OneIn(3) ? 1000 + Below(1101) : 2020 + Below(12);
        if (txtData[0].Enabled()) {
            Click(txtData[first]);
            TypeInto(form, extreme ? "3112" : twoDigits(1, 29) + twoDigits(1, 12));
            TypeInto(form, OneIn(20) ? "0999" : CStr(year));
        }
        if (txtTime[0].Enabled()) {
            Click(txtTime[first]);
            TypeInto(form,
                     extreme ? "120000" : twoDigits(0, 23) + twoDigits(0, 59) + twoDigits(0, 59));
        }
    }
    Click(cmdCalcola);
}

void Monkey::FillSums(frmMiniCalc& Form)
{
    const forms::FormRef<> held(Form);
    const auto part = [&](const char* Name) -> forms::Control& {
        return *dynamic_cast<forms::Control*>(Form.findChild<QWidget*>(QLatin1String(Name)));
    };
    Front(Form);
    if (OneIn(2)) Click(part(OneIn(2) ? "txtData_0" : "txtCalc_0"));
    if (held.Open()) TypeInto(Form, Digits(10));
    if (held.Open() && OneIn(3)) Type(Form, OneIn(2) ? "+" : "-");
    if (held.Open()) Click(part(OneIn(2) ? "cmdSommaData" : "cmdSommaOre"));
}

void Monkey::UseCalendar()
{
    Front(form);
    Click(cmdNowData[Below(2)]);
    for (int i = Below(4); i > 0 && form.Visible(); --i) {
        if (OneIn(2)) Wheel(hscDataScroll, OneIn(2));
        if (OneIn(3)) Click(txtCalMeseAnno);
        if (OneIn(3))
            Press(form, Any(std::array{Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                                       Qt::Key_PageUp, Qt::Key_PageDown}));
    }
    if (OneIn(2) && form.Visible()) Click(GIORNO[1 + Below(42)]);
}

void Monkey::PressIcon()
{
    const std::string home = folder.Path;
    desktop.TempFolder = Any(std::array<std::string, 4>{home, home, "", home + "/missing"});
    desktop.CanOpen = !OneIn(4);
    desktop.IsComposited = OneIn(50); // the window fades in then
    desktop.IsInstalled = [there = OneIn(2)](const std::string&) { return there; };
    Front(form);
    Click(picToolBarra[OneIn(2) ? 3 : Below(4)]);
    frmMiniCalc* sums = Sums();
    if (!sums || sums->property("watched").toBool()) return;
    sums->setProperty("watched", true);
    WatchSums(*sums);
}

void Monkey::JumpClock()
{
    const int year = 2020 + Below(10);
    ClockShows(
        Any(std::array{DateSerial(year, 12, 31) + TimeSerial(23, 59, 59), DateSerial(year, 1, 1),
                       DateSerial(1970, 1, 1) + Below(66000) + Below(86400) / 86400.0, now - 1,
                       now + 1, now + TimeSerial(0, 0, 1)}));
}

/// Runs while a box stands: plays with it, and in the end closes it.
void Monkey::AnswerBox()
{
    QWidget* box = QApplication::activeModalWidget();
    if (!box || !box->windowHandle()) return;
    const int choice = Below(10);
    notes.push_back("box" + CStr(choice));
    switch (choice) {
    case 0: ClickAt(form, Below(form.ScaleWidth()), Below(form.ScaleHeight())); break;
    case 1: Type(form, "12"); break;
    case 2: JumpClock(); break;
    case 3: Tick(); break;
    case 4: box->close(); break;
    case 5:
        if (OneIn(8)) form.Close();
        break;
    case 6: QTest::keyClick(box->windowHandle(), Qt::Key_Escape); break;
    case 7: QTest::keyClick(box->windowHandle(), Qt::Key_Return); break;
    default:
        if (auto* about = dynamic_cast<frmAbout*>(box)) Click(*Any(about->Controls()));
    }
}

}
