#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/CommandButton.h"
#include "services/forms/Label.h"
#include "services/forms/PictureBox.h"
#include "services/forms/TextBox.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::CommandButton;
using forms::Image;
using forms::Label;
using forms::PictureBox;
using forms::TextBox;

struct Mouse : testing::Test
{
    Workbench form;
    Diary diary;

    void Begin()
    {
        form.MouseMove = diary.Note("form move");
        Open(form);
        MoveTo(form, 399, 299);
        diary.Read();
    }

    template <class ControlClass>
    void ExpectMouseEvents(const char* Kind)
    {
        auto& control = form.Add<ControlClass>(Kind, 10, 10);
        diary.Follow(control, Kind);
        Begin();
        const std::string name = Kind;
        MoveTo(control);
        EXPECT_EQ(diary.Read(), name + " move");
        MouseDown(control);
        EXPECT_EQ(diary.Read(), name + " down");
        MouseUp(control);
        EXPECT_EQ(diary.Read(), name + " up, " + name + " click");

        MouseDown(control);
        MoveTo(form, 200, 200);
        MouseUpAt(form, 200, 200);
        EXPECT_EQ(diary.Read(), name + " down, " + name + " move, " + name + " up")
            << "let go elsewhere it is no click";
    }
};

TEST_F(Mouse, LabelsRaiseTheirEvents)
{
    ExpectMouseEvents<Label>("label");
}
TEST_F(Mouse, ImagesRaiseTheirEvents)
{
    ExpectMouseEvents<Image>("image");
}
TEST_F(Mouse, PictureBoxesRaiseTheirEvents)
{
    ExpectMouseEvents<PictureBox>("picture");
}

TEST_F(Mouse, TwoQuickClicksAreTwoClicks)
{
    auto& image = form.Add<Image>("image", 10, 10);
    Begin();
    int clicks = 0;
    image.Click = [&] { ++clicks; };
    Click(image);
    DoubleClick(image);
    EXPECT_EQ(clicks, 3);
}

TEST_F(Mouse, OnlyTheLeftButtonClicks)
{
    auto& image = form.Add<Image>("image", 10, 10);
    Begin();
    image.Click = diary.Note("click");
    RightClick(image);
    EXPECT_EQ(diary.Read(), "");
}

TEST_F(Mouse, ADisabledControlsAreaBelongsToWhatLiesBehind)
{
    auto& panel = form.Add<Image>("panel", 0, 0, 200, 100);
    auto& covered = form.Add<Label>("covered", 20, 20);
    auto& label = form.Add<Label>("label", 20, 20);
    auto& onPanel = form.Add<Label>("onPanel", 20, 60);
    auto& box = form.Add<TextBox>("box", 250, 20);
    auto& button = form.Add<CommandButton>("button", 250, 60);
    for (auto& [control, name] : {std::pair<forms::Control*, const char*>{&panel, "panel"},
                                  {&covered, "covered"},
                                  {&label, "label"},
                                  {&onPanel, "onPanel"},
                                  {&box, "box"},
                                  {&button, "button"}})
        diary.Follow(*control, name);
    Begin();
    const auto over = [&](forms::Control& Control) {
        MoveTo(form, 399, 299);
        diary.Read();
        MoveTo(Control);
        Click(Control);
        return diary.Read();
    };

    EXPECT_EQ(over(label), "label move, label down, label up, label click");
    label.SetEnabled(false);
    EXPECT_EQ(over(label), "covered move, covered down, covered up, covered click")
        << "a sibling underneath";
    covered.SetEnabled(false);
    EXPECT_EQ(over(label), "panel move, panel down, panel up, panel click");
    onPanel.SetEnabled(false);
    EXPECT_EQ(over(onPanel), "panel move, panel down, panel up, panel click");
    box.SetEnabled(false);
    EXPECT_EQ(over(box), "form move");
    button.SetEnabled(false);
    EXPECT_EQ(over(button), "form move");
    label.SetEnabled(true);
    EXPECT_EQ(over(label), "label move, label down, label up, label click");
}

TEST_F(Mouse, ADisabledControlInAContainerLeavesItsAreaToTheContainer)
{
    auto& container = form.Add<PictureBox>("container", 10, 10, 100, 60);
    auto& label = form.Add<Label>("label", 10, 10, 40, 20, &container);
    diary.Follow(container, "container");
    diary.Follow(label, "label");
    Begin();
    MoveTo(label);
    EXPECT_EQ(diary.Read(), "label move");
    label.SetEnabled(false);
    MoveTo(form, 70, 60);
    diary.Read();
    MoveTo(label);
    EXPECT_EQ(diary.Read(), "container move");
    container.SetEnabled(false);
    MoveTo(label);
    MoveTo(form, 31, 31);
    EXPECT_EQ(diary.Read(), "form move") << "a disabled container takes its controls along";
}

TEST_F(Mouse, AControlThatIsDisabledWhilePressedRaisesNothingMore)
{
    auto& image = form.Add<Image>("image", 10, 10);
    diary.Follow(image, "image");
    image.MouseDown = [&] { image.SetEnabled(false); };
    Begin();
    Click(image);
    EXPECT_EQ(diary.Read(), "image move");
}

TEST_F(Mouse, ADisabledControlsTooltipIsThatOfWhatLiesBehind)
{
    auto& panel = form.Add<Image>("panel", 0, 0, 200, 100);
    auto& label = form.Add<Label>("label", 20, 20);
    panel.SetToolTipText("Pannello");
    label.SetToolTipText("Etichetta");
    Begin();
    EXPECT_EQ(ToolTipOver(label), "Etichetta");
    label.SetEnabled(false);
    EXPECT_EQ(ToolTipOver(label), "Pannello");
}

TEST_F(Mouse, PointersAreThoseOfTheControl)
{
    auto& image = form.Add<Image>("image", 10, 10);
    const auto shape = [&] { return image.cursor().shape(); };
    struct Case
    {
        int Pointer, Icon;
        Qt::CursorShape Shape;
    };
    for (const auto& [pointer, icon, expected] :
         {Case{forms::HelpPointer, 0, Qt::WhatsThisCursor},
          {forms::HourglassPointer, 0, Qt::WaitCursor},
          {forms::CustomPointer, 0, Qt::ArrowCursor},
          {forms::CustomPointer, 101, Qt::PointingHandCursor},
          {forms::DefaultPointer, 101, Qt::ArrowCursor}}) {
        image.SetMousePointer(pointer);
        image.SetMouseIcon(icon);
        EXPECT_EQ(shape(), expected) << pointer << ' ' << icon;
    }
}

}
}
