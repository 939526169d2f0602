#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/CheckBox.h"
#include "services/forms/CommandButton.h"
#include "services/forms/OptionButton.h"
#include "services/forms/PictureBox.h"
#include "services/forms/ScrollBar.h"
#include "services/forms/TextBox.h"

#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::CheckBox;
using forms::CommandButton;
using forms::OptionButton;
using forms::PictureBox;
using forms::ScrollBar;
using forms::TextBox;

struct Buttons : testing::Test
{
    Workbench form;
    Diary diary;
};

TEST_F(Buttons, AreClickedByMouseSpaceAndEnter)
{
    auto& button = form.Add<CommandButton>("button", 10, 10);
    button.Click = diary.Note("click");
    Open(form);
    button.SetFocus();
    Click(button);
    EXPECT_EQ(diary.Read(), "click");
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        Press(form, key);
        EXPECT_EQ(diary.Read(), "click") << key;
    }
    button.SetEnabled(false);
    Click(button);
    Press(form, Qt::Key_Return);
    EXPECT_EQ(diary.Read(), "");
}

TEST_F(Buttons, EnterIsSeenByTheFormBeforeTheButton)
{
    auto& button = form.Add<CommandButton>("button", 10, 10);
    button.Click = diary.Note("click");
    form.KeyPreview = true;
    form.KeyPress = [&](short& KeyAscii) { diary.Note("form " + std::to_string(KeyAscii))(); };
    Open(form);
    button.SetFocus();
    Press(form, Qt::Key_Return);
    EXPECT_EQ(diary.Read(), "form 13, click");
    form.KeyPress = [](short& KeyAscii) { KeyAscii = 0; };
    Press(form, Qt::Key_Return);
    EXPECT_EQ(diary.Read(), "") << "the form dropped the key";
}

TEST_F(Buttons, DefaultAndCancelAnswerFromAnywhere)
{
    auto& box = form.Add<TextBox>("box", 10, 10);
    auto& ok = form.Add<CommandButton>("ok", 10, 40);
    auto& cancel = form.Add<CommandButton>("cancel", 10, 70);
    auto& third = form.Add<CommandButton>("third", 10, 100);
    form.SetDefaultButton(ok);
    form.SetCancelButton(cancel);
    ok.Click = diary.Note("ok");
    cancel.Click = diary.Note("cancel");
    third.Click = diary.Note("third");
    Open(form);

    struct Case
    {
        forms::Control* At;
        Qt::Key Key;
        const char* Expected;
    };
    for (const auto& [at, key, expected] :
         {Case{&box, Qt::Key_Return, "ok"}, Case{&box, Qt::Key_Enter, "ok"},
          Case{&box, Qt::Key_Escape, "cancel"}, Case{&third, Qt::Key_Return, "third"},
          Case{&third, Qt::Key_Escape, "cancel"}, Case{&cancel, Qt::Key_Return, "cancel"}}) {
        at->SetFocus();
        Press(form, key);
        EXPECT_EQ(diary.Read(), expected);
    }
    ok.SetEnabled(false);
    box.SetFocus();
    Press(form, Qt::Key_Return);
    EXPECT_EQ(diary.Read(), "");
}

TEST_F(Buttons, OneMayBeDefaultAndCancelInAFormWithNothingElseToFocus)
{
    auto& close = form.Add<CommandButton>("close", 10, 10);
    form.SetDefaultButton(close);
    form.SetCancelButton(close);
    close.Click = diary.Note("close");
    close.Widget().setFocusPolicy(Qt::NoFocus);
    Open(form);
    ASSERT_EQ(form.ActiveControl(), nullptr);
    Press(form, Qt::Key_Return);
    EXPECT_EQ(diary.Read(), "close");
    Press(form, Qt::Key_Escape);
    EXPECT_EQ(diary.Read(), "close");
}

TEST_F(Buttons, CheckBoxesAreOneOrNought)
{
    auto& check = form.Add<CheckBox>("check", 10, 10, 20);
    check.Click = [&] { diary.Note(std::to_string(check.Value()))(); };
    Open(form);
    Click(check);
    EXPECT_EQ(diary.Read(), "1");
    check.SetFocus();
    Press(form, Qt::Key_Space);
    EXPECT_EQ(diary.Read(), "0");
    check.SetValue(1);
    EXPECT_EQ(diary.Read(), "1");
    check.SetValue(1);
    EXPECT_EQ(diary.Read(), "");
}

struct Options : Buttons
{
    PictureBox& group = form.Add<PictureBox>("group", 0, 0, 200, 100);
    OptionButton& a = form.Add<OptionButton>("a", 10, 10, 80, 20, &group);
    OptionButton& b = form.Add<OptionButton>("b", 10, 40, 80, 20, &group);
    OptionButton& elsewhere = form.Add<OptionButton>("elsewhere", 10, 200);

    void SetUp() override
    {
        a.Click = [&] { diary.Note(b.Value() ? "a beside b" : "a")(); };
        b.Click = [&] { diary.Note(a.Value() ? "b beside a" : "b")(); };
        elsewhere.Click = diary.Note("elsewhere");
        Open(form);
    }
};

TEST_F(Options, ClickComesWhenTheValueTurnsTrue)
{
    a.SetValue(true);
    EXPECT_EQ(diary.Read(), "a") << "by a write, at once";
    a.SetValue(true);
    EXPECT_EQ(diary.Read(), "") << "it was true";
    Click(b);
    EXPECT_EQ(diary.Read(), "b") << "by mouse, beside the caption too";
    Click(b);
    EXPECT_EQ(diary.Read(), "");
    Press(form, Qt::Key_Up);
    EXPECT_EQ(diary.Read(), "a") << "by arrow key";
    Press(form, Qt::Key_Down);
    EXPECT_EQ(diary.Read(), "b");
    EXPECT_EQ(form.ActiveControl(), &b);
}

TEST_F(Options, OnlyThoseOfAContainerExcludeOneAnother)
{
    a.SetValue(true);
    elsewhere.SetValue(true);
    EXPECT_TRUE(a.Value());
    b.SetEnabled(false);
    b.SetValue(true);
    EXPECT_EQ(diary.Read(), "a, elsewhere, b") << "a write reaches a disabled option too";
    EXPECT_FALSE(a.Value());
}

struct ScrollBars : Buttons
{
    ScrollBar& bar = form.Add<ScrollBar>("bar", 10, 10, 200);

    void SetUp() override
    {
        bar.setRange(0, 13);
        bar.Change = [&] { diary.Note(std::to_string(bar.Value()))(); };
        Open(form);
    }
};

TEST_F(ScrollBars, ChangeComesInsideAWrite)
{
    bar.SetValue(5);
    EXPECT_EQ(diary.Read(), "5");
    bar.SetValue(5);
    EXPECT_EQ(diary.Read(), "");
    bar.Change = [&] {
        diary.Note(std::to_string(bar.Value()))();
        if (bar.Value() == 13) bar.SetValue(1);
    };
    bar.SetValue(13);
    EXPECT_EQ(diary.Read(), "13, 1") << "a handler may write it again";
    EXPECT_EQ(bar.Value(), 1);
}

TEST_F(ScrollBars, KeysAndWheelStep)
{
    bar.SetValue(5);
    bar.SetFocus();
    diary.Read();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up})
        Press(form, key);
    EXPECT_EQ(diary.Read(), "6, 5, 6, 5");
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home})
        Press(form, key);
    EXPECT_EQ(diary.Read(), "13, 3, 13, 0");
    bar.SetValue(5);
    diary.Read();
    Wheel(bar, false);
    Wheel(bar, true);
    EXPECT_EQ(diary.Read(), "6, 5");
    bar.SetEnabled(false);
    Press(form, Qt::Key_Right);
    Wheel(bar, false);
    EXPECT_EQ(diary.Read(), "");
}

}
}
