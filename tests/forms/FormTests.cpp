#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/CommandButton.h"
#include "services/forms/ControlArray.h"
#include "services/forms/Image.h"
#include "services/forms/Label.h"
#include "services/forms/OptionButton.h"
#include "services/forms/PictureBox.h"
#include "services/forms/TextBox.h"

#include <QApplication>
#include <QTimer>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using namespace forms;

struct Forms : testing::Test
{
    Workbench form;
    TextBox& box = form.Add<TextBox>("box", 10, 10);
    TextBox& other = form.Add<TextBox>("other", 10, 40);
    CommandButton& button = form.Add<CommandButton>("button", 10, 70);

    Forms() { Open(form), box.SetFocus(); }
    /// What is noted when the pointer comes to the control from afar and presses the button there.
    std::string Over(const Control& Control)
    {
        MoveTo(form, 399, 299);
        form.Noted();
        Click(Control);
        return form.Noted();
    }
};

TEST_F(Forms, LoadOnceAndAreDestroyedOnceTheirEventsAreServed)
{
    auto* owned = new Workbench;
    const QPointer<Form> watch = owned;
    owned->Load = form.Note("load");
    owned->Unload = form.Note("unload");
    auto& serving = owned->Add<CommandButton>("serving");
    serving.Click = [&] {
        QTimer::singleShot(0, &form, [&] { watch->Close(), watch->Close(); });
        for (int turn = 0; turn < 5; ++turn) Wait(1);
        EXPECT_TRUE(watch && !watch->Visible());
    };
    for (int twice = 0; twice < 2; ++twice) owned->Show(&form);
    Open(*owned);
    EXPECT_EQ(serving.palette().cacheKey(), button.palette().cacheKey()) << "pictures pile up";
    Click(serving);
    EXPECT_EQ(form.Noted(), "load, unload");
    EXPECT_TRUE(WaitUntil([&] { return !watch; }));
}

TEST_F(Forms, ChangeComesInsideAWriteAndNests)
{
    box.SetMaxLength(2), box.SetEnabled(false);
    box.Change = [&] {
        form.Note('[' + box.Text())();
        box.SetText(""); // raises the change again, which ends at the empty text
        form.Note("]")();
    };
    for (const char* text : {"123", ""}) box.SetText(text);
    EXPECT_EQ(form.Noted(), "[12, [, ], ]") << "cut to its length; an equal text is no change";
}

TEST_F(Forms, ACharacterPassesTheFormAndThenTheControl)
{
    box.SetMaxLength(7);
    const auto replacing = [&](const char* Name, const std::map<short, short>& Replaced) {
        return [this, Name, Replaced](short& KeyAscii) {
            form.Note(Name + std::to_string(KeyAscii))();
            if (Replaced.contains(KeyAscii)) KeyAscii = Replaced.at(KeyAscii);
        };
    };
    form.KeyPress = replacing("form ", {{'y', 'c'}, {'z', 0}});
    box.KeyPress = replacing("box ", {{'a', 0}, {'b', 1}, {'c', 'X'}});
    for (const bool inputMethod : {false, true}) {
        const auto enter = [&](const char* s) { inputMethod ? Commit(box, s) : Type(form, s); };
        box.SetText("00");
        box.Select(0, 2);
        form.KeyPreview = false;
        enter("c1a2b3yè");
        EXPECT_EQ(box.Text(), "X123yè") << "a replaced key takes the selection's place";
        form.Noted();
        form.KeyPreview = true;
        enter("yz9");
        EXPECT_EQ(box.Text(), "X123yèX");
        EXPECT_EQ(form.Noted(), "form 121, box 99, form 122, form 57, box 57");
    }
    for (const QKeyCombination key : std::initializer_list<QKeyCombination>{
             Qt::CTRL | Qt::Key_V, Qt::Key_Return, Qt::Key_Left, Qt::KeypadModifier | Qt::Key_Enter,
             Qt::SHIFT | Qt::Key_Insert, Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_F1,
             Qt::CTRL | Qt::Key_Backspace, Qt::ALT | Qt::Key_5, Qt::Key_Tab})
        Press(form, key.key(), key.keyboardModifiers());
    EXPECT_EQ(form.Noted(), "form 22, box 22, form 13, box 13, form 13, box 13, form 27, box 27, "
                            "form 8, box 8, form 127, box 127")
        << "only keys with a character raise KeyPress";
    EXPECT_EQ(form.ActiveControl(), &other);
}

TEST_F(Forms, TheFocusTellsBothControlsUnlessAMenuOrAWindowTakesIt)
{
    form.Follow();
    Press(form, Qt::Key_Tab);
    box.SetFocus();
    for (int twice = 0; twice < 2; ++twice) button.SetFocus();
    EXPECT_EQ(form.Noted(), "box lost, other got, other lost, box got, box lost, button got");
    box.GotFocus = [&] { box.SetText("25"), box.Select(0, 2); };
    Click(box);
    EXPECT_EQ(box.SelLength(), 2) << "the click that brings the focus keeps the selection";
    form.Noted();
    MouseAct{Click.Action, Qt::RightButton}(box);
    ASSERT_TRUE(QApplication::activePopupWidget());
    QApplication::activePopupWidget()->close();
    Workbench window;
    for (Form* each : {static_cast<Form*>(&window), static_cast<Form*>(&form)}) Open(*each);
    EXPECT_EQ(form.Noted(), "box down");
    Open(window);
    other.SetFocus();
    Open(form);
    EXPECT_EQ(form.Noted(), "box lost, other got") << "what was chosen meanwhile is told on return";
    other.LostFocus = [&] { box.SetFocus(); };
    Click(button);
    EXPECT_EQ(form.Noted(), "button move, button down, button click, button up");
    box.SetEnabled(false);
    box.SetFocus();
    EXPECT_NE(form.ActiveControl(), &box) << "a disabled control takes none";
}

TEST_F(Forms, ButtonsAndOptionsAnswerTheirKeys)
{
    auto& cancel = form.Add<CommandButton>("cancel");
    form.SetDefaultButton(button), form.SetCancelButton(cancel);
    auto& group = form.Add<PictureBox>("group", 200, 0, 200, 100);
    auto& a = form.Add<OptionButton>("a", 10, 10, 80, 20, &group);
    auto& b = form.Add<OptionButton>("b", 10, 40, 80, 20, &group);
    auto& outside = form.Add<OptionButton>("outside", 10, 200);
    form.Follow();
    const auto press = [&](Control& At) {
        At.SetFocus();
        form.Noted();
        for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
            Press(form, key);
        return form.Noted();
    };
    EXPECT_EQ(press(cancel), "cancel click, cancel click, cancel click, cancel click");
    EXPECT_EQ(press(box), "button click, button click, cancel click");
    button.SetEnabled(false);
    EXPECT_EQ(press(outside), "outside click, cancel click");
    a.Click = [&] { form.Note(b.Value() ? "a beside b" : "a")(); };
    for (int twice = 0; twice < 2; ++twice) a.SetValue(true);
    b.SetValue(true), b.SetFocus();
    form.Noted();
    Press(form, Qt::Key_Up);
    EXPECT_EQ(form.Noted(), "b lost, a got, a");
    EXPECT_TRUE(outside.Value()) << "each container has its own choice";
}

TEST_F(Forms, ADisabledControlsMouseBelongsToWhatLiesBehind)
{
    auto& panel = form.Add<PictureBox>("panel", 200, 0, 200, 100);
    form.Add<Image>("below", 10, 120);
    auto& label = form.Add<Label>("label", 10, 120);
    auto& inner = form.Add<Label>("inner", 20, 60, 40, 20, &panel);
    form.Follow();
    const std::pair<Control*, std::string> cases[] = {
        {&label, "below move, below down, below up, below click"}, // a sibling
        {&inner, "panel move, panel down, panel up, panel click"},
        {&panel, "form move"}};
    for (const auto& [control, behind] : cases) {
        control->SetEnabled(false);
        EXPECT_EQ(Over(*control), behind);
    }
    for (Control* control : {&label, &inner}) control->SetEnabled(true);
    EXPECT_EQ(Over(inner), "form move") << "a disabled container takes its controls along";
    MouseDown(label);
    MouseUpAt(form, 399, 299);
    EXPECT_EQ(form.Noted(), "label move, label down, label move, label up") << "let go elsewhere";
    label.MouseDown = [&] { label.SetEnabled(false); };
    EXPECT_EQ(Over(label), "label move") << "disabled while it was pressed";
}

TEST_F(Forms, ArraysAreSparseAndLoadMakesAHiddenLikenessOfElementNought)
{
    auto& model = form.Add<PictureBox>("pic_0", 7, 8, 51, 18);
    for (const char* name : {"pic_10", "pic_7", "pic_x", "pics_2"}) form.Add<PictureBox>(name);
    form.Add<Label>("pic_3"); // another kind
    const std::pair<const char*, QString> given[] = {
        {"Look", "Panel"}, {"FontSize", "13"}, {"toolTip", "Mese"}, {"enabled", "false"}};
    for (const auto& [name, value] : given) EXPECT_TRUE(model.setProperty(name, value)) << name;
    model.SetMousePointer(CustomPointer);
    model.SetMouseIcon(101);
    ControlArray<PictureBox> pictures(form, "pic");
    PictureBox& made = pictures.Load(4);
    for (const auto& each : pictures) form.Note(each.objectName().toStdString())();
    EXPECT_EQ(form.Noted(), "pic_0, pic_4, pic_7, pic_10");
    EXPECT_THROW(pictures[3], std::out_of_range);
    for (const auto& [name, value] : given) EXPECT_EQ(made.property(name).toString(), value);
    EXPECT_EQ(made.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_TRUE(made.geometry() == model.geometry() && !made.Visible());
}

TEST_F(Forms, APictureBoxKeepsWhatWasPrintedWhereItWasPrinted)
{
    auto& picture = form.Add<PictureBox>("picture", 200, 10, 120, 60);
    const auto seen = [&](const QRect& Area) { return picture.grab().toImage().copy(Area); };
    const QRect all(0, 0, 120, 60), above(0, 0, 120, 20), left(0, 0, 40, 60);
    const QImage blank = seen(all);
    picture.SetCurrentX(40), picture.SetCurrentY(20);
    picture.Print("HH");
    EXPECT_TRUE(seen(above) == blank.copy(above) && seen(left) == blank.copy(left));
    EXPECT_FALSE(seen(all) == blank);
    EXPECT_TRUE(picture.CurrentX() == 0 && picture.CurrentY() > 30) << "the next line is below";
    picture.Cls();
    EXPECT_TRUE(seen(all) == blank && picture.CurrentY() == 0);
}

}
}
