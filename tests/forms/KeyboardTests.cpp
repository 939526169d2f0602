#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/CommandButton.h"
#include "services/forms/Desktop.h"
#include "services/forms/TextBox.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QTimer>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::CommandButton;
using forms::TextBox;

struct Keyboard : testing::Test
{
    Workbench form;
    TextBox& box = form.Add<TextBox>("box", 10, 10);
    TextBox& other = form.Add<TextBox>("other", 10, 40);
    CommandButton& button = form.Add<CommandButton>("button", 10, 70);

    void SetUp() override
    {
        Open(form);
        box.SetFocus();
    }
    void FollowFocus()
    {
        for (forms::Control* control : form.Controls()) {
            form.Follow(*control);
            control->MouseMove = control->MouseDown = control->MouseUp = nullptr;
        }
    }
    /// Makes the form the active window again: offscreen there is no window manager to do it.
    void ComeBack()
    {
        form.Show();
        ASSERT_TRUE(WaitUntil([&] { return form.isActiveWindow(); }));
        Settle();
    }
};

TEST_F(Keyboard, ChangeComesInsideAWriteAndNests)
{
    box.Change = [&] {
        form.Note('[' + box.Text())();
        box.SetText(""); // raises the change again, which ends at the empty text
        form.Note("]")();
    };
    for (const bool enabled : {true, false}) {
        box.SetEnabled(enabled);
        box.SetText("12");
        EXPECT_EQ(form.Noted(), "[12, [, ], ]");
        box.SetText("");
        EXPECT_EQ(form.Noted(), "") << "an equal text is no change";
    }
    box.SetEnabled(true);
    box.SetFocus();
    Type(form, "78");
    EXPECT_EQ(form.Noted(), "[7, [, ], ], [8, [, ], ]") << "typed text as well";
}

TEST_F(Keyboard, EveryWayInIsCutToMaxLength)
{
    box.SetMaxLength(2);
    for (const auto& enter : std::vector<std::function<void()>>{
             [&] { box.SetText("000"); }, [&] { Type(form, "000"); }, [&] { Paste(form, "000"); },
             [&] { EXPECT_TRUE(Drop(box, "000")); }, [&] { Commit(box, "000"); }}) {
        box.SetText("");
        enter();
        EXPECT_EQ(box.Text(), "00");
    }
}

TEST_F(Keyboard, AKeyMayBeReplacedOrTakenAway)
{
    box.KeyPress = [](short& KeyAscii) {
        if (KeyAscii == 'a') KeyAscii = 0;
        if (KeyAscii == 'b' || KeyAscii == 22) KeyAscii = 1;
        if (KeyAscii == 'c') KeyAscii = 'X';
        if (KeyAscii == 8) KeyAscii = '-';
    };
    Type(form, "1a2b3c4è");
    Press(form, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "123X4è-");
    box.Select(0, 7);
    Type(form, "c");
    EXPECT_EQ(box.Text(), "X") << "a replaced key takes the selection's place";
    Commit(box, "1a2b3cè");
    EXPECT_EQ(box.Text(), "X123Xè") << "an input method passes the same filter";
    box.SetText("");
    Paste(form, "abc"); // by Shift+Insert, which has no character
    EXPECT_EQ(box.Text(), "abc");
    Press(form, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "abc") << "the handler refused Ctrl+V";
}

TEST_F(Keyboard, OnlyKeysWithACharacterRaiseKeyPress)
{
    std::vector<short> codes;
    box.KeyPress = [&](short& KeyAscii) { codes.push_back(KeyAscii); };
    for (const auto& [key, modifiers] :
         std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>>{{Qt::Key_V, Qt::ControlModifier},
                                                                {Qt::Key_Return, {}},
                                                                {Qt::Key_Enter, Qt::KeypadModifier},
                                                                {Qt::Key_Escape, {}},
                                                                {Qt::Key_Backspace, {}},
                                                                {Qt::Key_5, Qt::KeypadModifier},
                                                                {Qt::Key_A, Qt::ShiftModifier}})
        Press(form, key, modifiers);
    EXPECT_EQ(codes, (std::vector<short>{22, 13, 13, 27, 8, '5', 'A'}));
    codes.clear();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                              Qt::Key_Delete, Qt::Key_F1, Qt::Key_Shift, Qt::Key_Tab})
        Press(form, key);
    EXPECT_TRUE(codes.empty());
    EXPECT_EQ(form.ActiveControl(), &other);
}

TEST_F(Keyboard, TheFormSeesAKeyFirst)
{
    form.KeyPress = [&](short& KeyAscii) {
        form.Note("form " + std::to_string(KeyAscii))();
        if (KeyAscii == 'a') KeyAscii = 'b';
        if (KeyAscii == 'z') KeyAscii = 0;
    };
    box.KeyPress = [&](short& KeyAscii) { form.Note("box " + std::to_string(KeyAscii))(); };
    button.Click = form.Note("click");
    Type(form, "a");
    EXPECT_EQ(form.Noted(), "box 97") << "without preview it isn't asked";
    form.KeyPreview = true;
    Type(form, "az");
    Commit(box, "a");
    EXPECT_EQ(form.Noted(), "form 97, box 98, form 122, form 97, box 98");
    EXPECT_EQ(box.Text(), "abb");
    button.SetFocus();
    Press(form, Qt::Key_Return);
    EXPECT_EQ(form.Noted(), "form 13, click");
}

TEST_F(Keyboard, TheClickThatBringsTheFocusKeepsTheSelectionMadeThere)
{
    other.SetText("25");
    other.GotFocus = [&] { other.Select(0, 2); };
    Click(other);
    EXPECT_EQ(other.SelLength(), 2);
    Click(other);
    EXPECT_EQ(other.SelLength(), 0) << "the next click sets the caret";
}

TEST_F(Keyboard, TheFocusTellsBothControls)
{
    FollowFocus();
    Press(form, Qt::Key_Tab);
    Click(box);
    button.SetFocus();
    button.SetFocus();
    EXPECT_EQ(form.Noted(), "box lost, other got, other lost, box got, box lost, button got");
    other.SetEnabled(false);
    other.SetFocus();
    Click(other);
    EXPECT_EQ(form.Noted(), "") << "a disabled control takes none";

    box.Change = [] { forms::SendKeys("{TAB}"); };
    box.SetFocus();
    form.Noted();
    box.SetText("1");
    EXPECT_EQ(form.Noted(), "") << "a keystroke sent comes after the handler";
    Settle();
    EXPECT_EQ(form.Noted(), "box lost, button got");
}

TEST_F(Keyboard, TheFocusSetInsideAHandlerWins)
{
    FollowFocus();
    box.LostFocus = [&] { other.SetFocus(); };
    Click(button);
    EXPECT_EQ(form.Noted(), "other got, button click") << "the click still reaches its button";
    other.Change = [&] { box.SetFocus(); };
    Type(form, "12");
    EXPECT_EQ(other.Text() + ' ' + box.Text(), "1 2");
}

TEST_F(Keyboard, MessagesMenusAndOtherWindowsAreNoDeparture)
{
    FollowFocus();
    QTimer::singleShot(20, &form, [] { QApplication::activeModalWidget()->close(); });
    forms::MsgBox("Testo", forms::Information, "Vellarno");
    ComeBack();

    QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&box, &asked);
    Settle();
    ASSERT_TRUE(QApplication::activePopupWidget());
    QApplication::activePopupWidget()->close();
    Settle();

    Workbench window;
    Open(window);
    EXPECT_EQ(form.ActiveControl(), &box);
    ComeBack();
    EXPECT_EQ(form.Noted(), "");

    Open(window);
    other.SetFocus();
    ComeBack();
    EXPECT_EQ(form.Noted(), "box lost, other got") << "what was chosen meanwhile is told on return";
}

TEST_F(Keyboard, ButtonsTakeEnterAndSpaceAndAnswerFromAnywhere)
{
    auto& cancel = form.Add<CommandButton>("cancel", 10, 100);
    auto& third = form.Add<CommandButton>("third", 10, 130);
    for (forms::Control* control : {&button, &cancel, &third}) {
        control->Widget().show();
        form.Follow(*control);
        control->GotFocus = control->LostFocus = nullptr;
    }
    form.SetDefaultButton(button);
    form.SetCancelButton(cancel);
    const auto pressed = [&](forms::Control& At, Qt::Key Key) {
        At.SetFocus();
        Press(form, Key);
        return form.Noted();
    };
    EXPECT_EQ(pressed(third, Qt::Key_Space), "third click");
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        EXPECT_EQ(pressed(third, enter), "third click");
        EXPECT_EQ(pressed(box, enter), "button click");
    }
    EXPECT_EQ(pressed(box, Qt::Key_Escape), "cancel click");
    EXPECT_EQ(pressed(third, Qt::Key_Escape), "cancel click");
    button.SetEnabled(false);
    EXPECT_EQ(pressed(box, Qt::Key_Return), "");
    for (forms::Control* control : form.Controls()) control->Widget().setFocusPolicy(Qt::NoFocus);
    box.clearFocus();
    Press(form, Qt::Key_Escape);
    EXPECT_EQ(form.Noted(), "cancel click") << "also where nothing has the focus";
}

}
}
