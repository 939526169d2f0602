#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/StatusBar.h"
#include "services/forms/PictureBox.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace vellarno::test {
namespace {

using forms::PictureBox;

/// Left, top, width and height.
std::array<int, 4> PlaceOf(const forms::Control& Control)
{
    return {Control.Left(), Control.Top(), Control.Width(), Control.Height()};
}

struct StatusBars : testing::Test
{
    using Place = std::array<int, 4>;

    Workbench form;
    StatusBar bar;

    PictureBox& Panel(const char* Name = "panel")
    {
        auto& panel = form.Add<PictureBox>(Name, 100, 100);
        panel.SetVisible(false);
        return panel;
    }
};

TEST_F(StatusBars, LieAlongTheBottomAndAreMadeOnce)
{
    EXPECT_EQ(bar.hwnd(), nullptr);
    ASSERT_TRUE(bar.Create(form));
    forms::Control* strip = bar.hwnd();
    ASSERT_TRUE(strip);
    EXPECT_EQ(PlaceOf(*strip), (Place{0, 277, 400, 23}));
    strip->Move(1, 2, 3, 4);
    EXPECT_FALSE(bar.Create(form));
    EXPECT_EQ(bar.hwnd(), strip);
    EXPECT_EQ(PlaceOf(*strip), (Place{1, 2, 3, 4})) << "left as it was";
}

TEST_F(StatusBars, APartsFrameStaysInViewAroundItsControl)
{
    bar.Create(form);
    const std::int16_t edges[] = {25, 100, static_cast<std::int16_t>(65535)};
    bar.SetParts(3, edges);
    struct Case
    {
        std::int16_t Part;
        Place Expected;
    };
    for (const auto& [part, expected] :
         {Case{0, {1, 1, 21, 18}}, Case{1, {26, 1, 71, 18}}, Case{2, {101, 1, 296, 18}}}) {
        auto& panel = Panel();
        bar.CopyObj(part, panel);
        EXPECT_EQ(PlaceOf(panel), expected) << "part " << part;
        EXPECT_EQ(panel.Widget().parentWidget(), &bar.hwnd()->Widget());
        EXPECT_TRUE(panel.Visible());
    }
}

TEST_F(StatusBars, TheLastPartFollowsTheFormsWidth)
{
    bar.Create(form);
    const std::int16_t edges[] = {40, -1};
    bar.SetParts(2, edges);
    form.setFixedSize(500, 200);
    bar.Resize(form);
    EXPECT_EQ(PlaceOf(*bar.hwnd()), (Place{0, 177, 500, 22})) << "one row lower than a new one";
    auto& panel = Panel();
    bar.CopyObj(1, panel);
    EXPECT_EQ(PlaceOf(panel), (Place{41, 1, 456, 17}));
}

TEST_F(StatusBars, PartsKeepTheirTexts)
{
    bar.Create(form);
    bar.SetText(0, "tutto");
    EXPECT_EQ(bar.GetText(0), "tutto") << "a new strip is one part";
    const std::int16_t edges[] = {50, 90, -1};
    bar.SetParts(3, edges);
    bar.SetText(1, "lunedì", 0x200);
    bar.SetText(0, "due", 2); // the style is or-ed into the part's number
    EXPECT_EQ(bar.GetText(0), "tutto");
    EXPECT_EQ(bar.GetText(1), "lunedì");
    EXPECT_EQ(bar.GetText(2), "due");
    bar.SetText(3, "x");
    EXPECT_EQ(bar.GetText(3), "");
    EXPECT_EQ(bar.GetText(-1), "");
}

TEST_F(StatusBars, HideAndComeBackWithTheirControls)
{
    bar.Create(form);
    auto& panel = Panel();
    bar.CopyObj(0, panel);
    Open(form);
    bar.Hide();
    EXPECT_FALSE(panel.isVisible());
    bar.Show();
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(StatusBars, WithoutAStripOrAPartNothingHappens)
{
    auto& panel = Panel();
    const std::int16_t edges[] = {25, 50};
    const auto all = [&](std::int16_t Part) {
        bar.SetText(Part, "x");
        bar.CopyObj(Part, panel);
        EXPECT_EQ(bar.GetText(Part), "");
        EXPECT_EQ(PlaceOf(panel), (Place{100, 100, 80, 20}));
        EXPECT_FALSE(panel.Visible());
    };
    bar.SetParts(2, edges);
    bar.Hide();
    bar.Show();
    bar.Resize(form);
    all(0);
    bar.Create(form);
    for (const int count : {0, -1, 3, 256})
        bar.SetParts(static_cast<std::int16_t>(count), edges);
    all(1); // still the single part of a new strip
    bar.SetParts(2, edges);
    all(2);
    all(-1);
}

TEST_F(StatusBars, TheControlsAreTheFormsAgainWhenTheStripGoes)
{
    auto& panel = Panel();
    {
        StatusBar passing;
        passing.Create(form);
        passing.CopyObj(0, panel);
        Open(form);
    }
    EXPECT_EQ(panel.Widget().parentWidget(), &form);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(StatusBars, MayOutliveTheForm)
{
    auto passing = std::make_unique<Workbench>();
    bar.Create(*passing);
    bar.CopyObj(0, passing->Add<PictureBox>("panel", 0, 0));
    passing.reset();
    EXPECT_EQ(bar.hwnd(), nullptr);
    EXPECT_TRUE(bar.Create(form));
}

TEST_F(StatusBars, TakeTheMouseFromTheForm)
{
    Diary diary;
    form.MouseMove = diary.Note("form");
    bar.Create(form);
    auto& panel = Panel();
    const std::int16_t edges[] = {100, -1};
    bar.SetParts(2, edges);
    bar.CopyObj(0, panel);
    panel.MouseMove = diary.Note("panel");
    Open(form);
    MoveTo(form, 200, 100);
    MoveTo(panel);
    MoveTo(*bar.hwnd());
    EXPECT_EQ(diary.Read(), "form, panel");
}

}
}
