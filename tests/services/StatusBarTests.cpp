#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/StatusBar.h"
#include "services/forms/PictureBox.h"

#include <gtest/gtest.h>

#include <memory>

namespace vellarno::test {
namespace {

struct StatusBars : testing::Test
{
    Workbench form;
    forms::PictureBox& panel = form.Add<forms::PictureBox>("panel", 100, 100);
    std::unique_ptr<StatusBar> bar = std::make_unique<StatusBar>();
    const std::int16_t edges[3] = {25, 100, static_cast<std::int16_t>(65535)};

    void SetUp() override { panel.SetVisible(false); }
    QRect Copied(std::int16_t Part)
    {
        bar->CopyObj(Part, panel);
        return panel.geometry();
    }
};

TEST_F(StatusBars, LieAlongTheBottomAndAreMadeOnce)
{
    ASSERT_TRUE(bar->Create(form));
    forms::Control* strip = bar->hwnd();
    EXPECT_EQ(strip->Widget().geometry(), QRect(0, 277, 400, 23));
    strip->SetTop(2);
    EXPECT_FALSE(bar->Create(form));
    EXPECT_EQ(bar->hwnd(), strip);
    EXPECT_EQ(strip->Top(), 2) << "left as it was";
}

TEST_F(StatusBars, APartsFrameStaysInViewAroundItsControl)
{
    bar->Create(form);
    bar->SetParts(3, edges);
    EXPECT_EQ(Copied(0), QRect(1, 1, 21, 18));
    EXPECT_EQ(Copied(1), QRect(26, 1, 71, 18));
    EXPECT_EQ(Copied(2), QRect(101, 1, 296, 18));
    EXPECT_EQ(panel.Widget().parentWidget(), &bar->hwnd()->Widget());
    EXPECT_TRUE(panel.Visible());
    form.setFixedSize(500, 200);
    bar->Resize(form);
    EXPECT_EQ(bar->hwnd()->Widget().geometry(), QRect(0, 177, 500, 22));
    EXPECT_EQ(Copied(2), QRect(101, 1, 396, 17)) << "the last part follows the width";
}

TEST_F(StatusBars, PartsKeepTheirTexts)
{
    bar->Create(form);
    bar->SetText(0, "tutto");
    bar->SetParts(3, edges);
    bar->SetText(1, "lunedì", 0x200);
    bar->SetText(0, "due", 2); // the style is or-ed into the part's number
    bar->SetText(3, "x");
    EXPECT_EQ(bar->GetText(0), "tutto");
    EXPECT_EQ(bar->GetText(1), "lunedì");
    EXPECT_EQ(bar->GetText(2), "due");
    EXPECT_EQ(bar->GetText(3) + bar->GetText(-1), "");
}

TEST_F(StatusBars, WithoutAStripOrAPartNothingHappens)
{
    const auto tryAll = [&](std::int16_t Part) {
        bar->SetText(Part, "x");
        EXPECT_EQ(bar->GetText(Part), "");
        EXPECT_EQ(Copied(Part), QRect(100, 100, 80, 20));
        EXPECT_FALSE(panel.Visible());
    };
    bar->SetParts(2, edges);
    bar->Hide();
    bar->Show();
    bar->Resize(form);
    tryAll(0);
    bar->Create(form);
    for (const int count : {0, -1, 4, 256}) bar->SetParts(static_cast<std::int16_t>(count), edges);
    tryAll(1); // a new strip is a single part
}

TEST_F(StatusBars, HideAndGoWithoutTheirControls)
{
    bar->Create(form);
    bar->CopyObj(0, panel);
    Open(form);
    bar->Hide();
    EXPECT_FALSE(panel.isVisible());
    bar->Show();
    EXPECT_TRUE(panel.isVisible());
    bar.reset();
    EXPECT_EQ(panel.Widget().parentWidget(), &form) << "the form's again";
    EXPECT_FALSE(panel.isVisible());

    StatusBar survivor;
    {
        Workbench passing;
        survivor.Create(passing);
        survivor.CopyObj(0, passing.Add<forms::PictureBox>("panel"));
    }
    EXPECT_EQ(survivor.hwnd(), nullptr) << "the form has gone and its strip with it";
}

TEST_F(StatusBars, KeepTheMouseFromTheForm)
{
    bar->Create(form);
    bar->SetParts(3, edges);
    bar->CopyObj(1, panel);
    panel.MouseMove = form.Note("panel");
    form.MouseMove = form.Note("form");
    Open(form);
    MoveTo(form, 200, 100);
    MoveTo(panel);
    MoveTo(*bar->hwnd());
    EXPECT_EQ(form.Noted(), "form, panel");
}

}
}
