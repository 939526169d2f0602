#include "tests/support/Scenarios.h"

#include "services/forms/CommandButton.h"
#include "services/forms/ControlArray.h"
#include "services/forms/Image.h"
#include "services/forms/OptionButton.h"
#include "services/forms/ScrollBar.h"

#include <QAbstractEventDispatcher>
#include <QMenu>
#include <QStyleHints>

namespace vellarno::test {
namespace {

using namespace forms;

auto Note(const std::string& Entry)
{
    return [Entry] { static_cast<Recorder&>(System()).Log += Entry + ", "; };
}

/// A window whose controls tell the log what the keyboard and the mouse do to them.
struct Bench : Workbench
{
    TextBox& box = Add<TextBox>("box", 10, 10);
    TextBox& other = Add<TextBox>("other", 10, 40);
    CommandButton& button = Add<CommandButton>("button", 10, 70);
    CommandButton& cancel = Add<CommandButton>("cancel", 100, 70);
    Image& below = Add<Image>("below", 10, 120);
    Label& label = Add<Label>("label", 10, 120);
    PictureBox& panel = Add<PictureBox>("panel", 200, 0, 200, 100);
    OptionButton& a = Add<OptionButton>("a", 10, 10, 80, 20, &panel);
    OptionButton& b = Add<OptionButton>("b", 10, 40, 80, 20, &panel);
    OptionButton& outside = Add<OptionButton>("outside", 10, 200);
    ScrollBar& bar = Add<ScrollBar>("bar", 10, 230);
    Label& inner = Add<Label>("inner", 100, 60, 40, 20, &panel);

    Bench()
    {
        MouseMove = Note("form move");
        for (Control* control : Controls()) {
            const std::string name = control->Widget().objectName().toStdString();
            control->MouseMove = Note(name + " move");
            control->MouseDown = Note(name + " down");
            control->MouseUp = Note(name + " up");
            control->Click = Note(name + " click");
            control->GotFocus = Note(name + " got");
            control->LostFocus = Note(name + " lost");
        }
        a.Click = [this] { Note(b.Value() ? "a beside b" : "a click")(); };
        SetDefaultButton(button), SetCancelButton(cancel);
        box.SetFocus();
    }
};

struct Forms : testing::Test, Stage<Bench>
{};

TEST(FormScenarios, KeyboardAndMouse)
{
    PlayAll<Bench>(__FILE__, __LINE__, R"(
FAR = over:399,299 forget:
TheFocusTellsBothControls: forget: <Tab> | log=box lost, other got | box focus:button focus:button | log=other lost, box got, box lost, button got
disable:box forget: box | log=none; focus=button

KEYS = forget: <Space> <Return> <Num+Enter> <Esc>
TheDialogsButtonsAnswerEnterAndEscape: KEYS | log=button click, button click, cancel click | focus:cancel KEYS | log=cancel click, cancel click, cancel click, cancel click
focus:outside disable:button KEYS | log=outside click, cancel click

ADisabledControlsMouseBelongsToWhatLiesBehind: disable:label FAR click:label | log=below move, below down, below up, below click
disable:inner FAR click:inner | log=panel move, panel down, panel up, panel click | disable:panel FAR click:panel | log=form move
enable:label enable:inner FAR click:inner | log=form move
FAR down:label up:399,299 | log=label move, label down, label move, label up | FAR down:label disable:label up:label | log=label move, label down

AWheelsNotchIsAStep: focus:bar <Right> <Right> <Right> <Left> wheel:bar | bar.value=1; log=~bar got

EachContainerHasItsOwnChoice: outside b FAR a a | a,b,outside.checked=1 0 1; log=a move, b lost, a got, a down, a click, a up, a down, a up | b forget: <Up> | a,b,outside.checked=1 0 1; log=b lost, a got, a click
)");
}

TEST_F(Forms, ACharacterPassesTheFormAndThenTheControl)
{
    form->box.SetMaxLength(7);
    const auto replacing = [](const std::string& Name, const std::map<short, short>& Replaced) {
        return [Name, Replaced](short& KeyAscii) {
            Note(Name + std::to_string(KeyAscii))();
            if (Replaced.contains(KeyAscii)) KeyAscii = Replaced.at(KeyAscii);
        };
    };
    form->KeyPress = replacing("form ", {{'y', 'c'}, {'z', 0}});
    form->box.KeyPress = replacing("box ", {{'a', 0}, {'b', 1}, {'c', 'X'}});
    for (const char* enter : {"'", "commit:"}) {
        form->KeyPreview = false; // a replaced key takes the selection's place
        Play(QString("box:=00 <Shift+Home> %1c1a2b3yè | box=X123yè; log=~box 97, ").arg(enter));
        form->KeyPreview = true;
        Play(QString("%1yz9 | box=X123yèX; log=form 121, box 99, form 122, form 57, box 57")
                 .arg(enter));
    }
    Play("<Ctrl+V> <Left> <Shift+Ins> <Backspace> <F1> <Ctrl+Backspace> <Alt+5> <Tab> "
         "| log=form 22, box 22, form 8, box 8, form 127, box 127, box lost, other got");
}

TEST_F(Forms, AMenuOrAnotherWindowTakesTheKeyboardButNotTheFocus)
{
    Do("over:399,299 forget:");
    MouseAct{Click.Action, Qt::RightButton}(form->box);
    const auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    QStringList words;
    for (const QAction* each : menu->actions()) words += each->text().section('\t', 0, 0);
    EXPECT_EQ(words.join(' ').toStdString(),
              "&Annulla &Ripeti  &Taglia &Copia &Incolla Elimina  Seleziona tutto");
    QApplication::activePopupWidget()->close();
    Workbench window;
    Open(window), Open(*form);
    Play(" | log=box move, box down");
    Open(window);
    form->other.SetFocus();
    Open(*form);
    Play(" | log=box lost, other got"); // what was chosen meanwhile is told on return
    form->box.GotFocus = [this] { form->box.Select(0, 2); };
    form->other.LostFocus = [this] { form->box.SetFocus(); };
    Play("box:=25 click:button | focus=box; log=button move, button down, button click, button up");
    form->button.LostFocus = nullptr;
    Do("other forget:");
    Open(window);
    form->button.SetFocus();
    Open(*form);
    Play(" | focus=box; log=none"); // it never came to the button
    Play("other forget: click:box | box.selectedText=25; log=box move, box down, box up");
}

TEST_F(Forms, ACaretThatNobodyMovesStopsBlinking)
{
    EXPECT_GT(QGuiApplication::styleHints()->cursorFlashTime(), 0);
    for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(&form->box))
        if (QTimerEvent rested(timer.timerId); timer.interval >= 10000)
            QApplication::sendEvent(&form->box, &rested);
    EXPECT_EQ(QGuiApplication::styleHints()->cursorFlashTime(), 0);
}

TEST_F(Forms, AreDestroyedOnceTheirEventsAreServed)
{
    auto* owned = new Workbench;
    const QPointer<Form> watch = owned;
    owned->Load = Note("load");
    owned->Unload = Note("unload");
    auto& serving = owned->Add<CommandButton>("serving");
    serving.Click = [&] {
        QTimer::singleShot(0, form, [&] { watch->Close(), watch->Close(); });
        for (int turn = 0; turn < 5; ++turn) Wait(1);
        EXPECT_TRUE(watch && !watch->Visible());
    };
    for (int twice = 0; twice < 2; ++twice) owned->Show(form);
    Open(*owned);
    EXPECT_EQ(serving.palette().cacheKey(), form->button.palette().cacheKey()) << "copies pile up";
    Click(serving);
    EXPECT_TRUE(WaitUntil([&] { return !watch; }));
    EXPECT_TRUE(desktop.Log.ends_with("load, unload, ")) << desktop.Log;
}

TEST_F(Forms, ArraysAreSparseAndLoadMakesAHiddenLikenessOfElementNought)
{
    auto& model = form->Add<PictureBox>("pic_0", 7, 8, 51, 18);
    for (const char* name : {"pic_10", "pic_7", "pic_x", "pics_2"}) form->Add<PictureBox>(name);
    form->Add<Label>("pic_3"); // another kind
    model.SetToolTipText("Mese"), model.SetEnabled(false), model.SetMouseIcon(101);
    ControlArray<PictureBox> pictures(*form, "pic");
    const PictureBox& made = pictures.Load(4);
    EXPECT_TRUE(made.ToolTipText() == "Mese" && !made.Enabled() && made.MouseIcon() == 101);
    EXPECT_TRUE(made.geometry() == model.geometry() && !made.Visible());
    std::string names;
    for (const auto& each : pictures) names += each.objectName().toStdString() + ' ';
    EXPECT_EQ(names, "pic_0 pic_4 pic_7 pic_10 ");
}

TEST_F(Forms, APictureBoxShowsATextWhereItWasPrinted)
{
    auto& picture = form->panel;
    const auto seen = [&](const QRect& Area) { return picture.grab(Area).toImage(); };
    const QRect all(picture.rect()), above(0, 0, 200, 70), left(0, 0, 50, 100);
    const QImage areas[] = {seen(all), seen(above), seen(left)};
    picture.SetCurrentX(50), picture.SetCurrentY(70);
    picture.Print("HH");
    EXPECT_TRUE(seen(all) != areas[0] && seen(above) == areas[1] && seen(left) == areas[2]);
    EXPECT_TRUE(picture.CurrentX() == 0 && picture.CurrentY() > 80) << "the next line is below";
}

}
}
