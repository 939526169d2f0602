#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/CommandButton.h"
#include "services/forms/Label.h"
#include "services/forms/OptionButton.h"
#include "services/forms/PictureBox.h"
#include "services/forms/ScrollBar.h"
#include "services/forms/TextBox.h"

#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::Label;
using forms::OptionButton;
using forms::PictureBox;

struct Mouse : testing::Test
{
    Workbench form;

    void Begin()
    {
        for (forms::Control* control : form.Controls()) {
            form.Follow(*control);
            control->GotFocus = control->LostFocus = nullptr;
        }
        form.MouseMove = form.Note("form move");
        Open(form);
    }
    /// What is noted when the pointer comes to the control from afar and presses the button there.
    std::string Over(forms::Control& Control)
    {
        MoveTo(form, 399, 299);
        form.Noted();
        MoveTo(Control);
        Click(Control);
        return form.Noted();
    }
};

TEST_F(Mouse, LabelsAndPicturesRaiseTheirEvents)
{
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &form.Add<Label>("it", 10, 10), &form.Add<forms::Image>("it", 10, 40),
             &form.Add<PictureBox>("it", 10, 70)}) {
        Begin();
        EXPECT_EQ(Over(*control), "it move, it down, it up, it click");
        MouseDown(*control);
        MoveTo(form, 200, 200);
        MouseUpAt(form, 200, 200);
        EXPECT_EQ(form.Noted(), "it down, it move, it up") << "let go elsewhere it is no click";
        MoveTo(*control);
        form.Noted();
        control->MouseDown = [&] { control->SetEnabled(false); };
        Click(*control);
        EXPECT_EQ(form.Noted(), "") << "disabled while it was pressed";
    }
}

TEST_F(Mouse, ADisabledControlsAreaBelongsToWhatLiesBehind)
{
    auto& panel = form.Add<PictureBox>("panel", 0, 0, 200, 100);
    auto& below = form.Add<Label>("below", 20, 20);
    auto& label = form.Add<Label>("label", 20, 20);
    auto& inner = form.Add<Label>("inner", 20, 60, 40, 20, &panel);
    auto& box = form.Add<forms::TextBox>("box", 250, 20);
    auto& button = form.Add<forms::CommandButton>("button", 250, 60);
    Begin();
    const auto whenDisabled = [&](forms::Control& Control) {
        Control.SetEnabled(false);
        return Over(Control);
    };
    EXPECT_EQ(Over(label), "label move, label down, label up, label click");
    EXPECT_EQ(whenDisabled(label), "below move, below down, below up, below click") << "a sibling";
    EXPECT_EQ(whenDisabled(below), "panel move, panel down, panel up, panel click");
    EXPECT_EQ(whenDisabled(inner), "panel move, panel down, panel up, panel click");
    EXPECT_EQ(whenDisabled(box), "form move");
    EXPECT_EQ(whenDisabled(button), "form move");
    panel.SetToolTipText("Pannello");
    label.SetToolTipText("Etichetta");
    EXPECT_EQ(ToolTipOver(label), "Pannello");
    inner.SetEnabled(true);
    EXPECT_EQ(whenDisabled(panel), "form move");
    EXPECT_EQ(Over(inner), "form move") << "a disabled container takes its controls along";
    label.SetEnabled(true);
    EXPECT_EQ(Over(label), "label move, label down, label up, label click");
    EXPECT_EQ(ToolTipOver(label), "Etichetta");
}

TEST_F(Mouse, OptionsClickWhenTheValueTurnsTrue)
{
    auto& group = form.Add<PictureBox>("group", 0, 0, 200, 100);
    auto& a = form.Add<OptionButton>("a", 10, 10, 80, 20, &group);
    auto& b = form.Add<OptionButton>("b", 10, 40, 80, 20, &group);
    auto& elsewhere = form.Add<OptionButton>("elsewhere", 10, 200);
    Open(form);
    a.Click = [&] { form.Note(b.Value() ? "a beside b" : "a")(); };
    b.Click = [&] { form.Note(a.Value() ? "b beside a" : "b")(); };
    for (int twice = 0; twice < 2; ++twice) a.SetValue(true);
    EXPECT_EQ(form.Noted(), "a") << "by a write";
    for (int twice = 0; twice < 2; ++twice) Click(b);
    EXPECT_EQ(form.Noted(), "b") << "by mouse, beside the caption too";
    Press(form, Qt::Key_Up);
    EXPECT_EQ(form.Noted(), "a") << "by arrow key";
    elsewhere.SetValue(true);
    EXPECT_TRUE(a.Value()) << "another container's";
    b.SetEnabled(false);
    b.SetValue(true);
    EXPECT_EQ(form.Noted(), "b") << "a write reaches a disabled option too";
}

TEST_F(Mouse, ScrollBarsChangeInsideAWriteAndStepByKey)
{
    auto& bar = form.Add<forms::ScrollBar>("bar", 10, 10, 200);
    bar.setRange(0, 13);
    Open(form);
    bar.SetFocus();
    bar.Change = [&] {
        form.Note(std::to_string(bar.Value()))();
        if (bar.Value() == 13) bar.SetValue(1);
    };
    bar.SetValue(5);
    bar.SetValue(5);
    bar.SetValue(13);
    EXPECT_EQ(form.Noted(), "5, 13, 1");
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up})
        Press(form, key);
    Wheel(bar, false);
    Wheel(bar, true);
    EXPECT_EQ(form.Noted(), "2, 1, 2, 1, 2, 1");
}

}
}
