#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/CTooltip.h"
#include "services/forms/TextBox.h"

#include <QScreen>
#include <gtest/gtest.h>

#include <memory>

namespace vellarno::test {
namespace {

struct Tooltips : testing::Test
{
    std::unique_ptr<Workbench> form = std::make_unique<Workbench>();
    CTooltip tip;

    void SetUp() override
    {
        tip.SetStyle(CTooltip::BalloonStyle);
        tip.SetDelayTime(1);
        tip.SetTitle("Titolo");
        tip.SetIcon(1);
        tip.SetTipText("prima riga\r\nseconda riga");
        Open(*form);
        form->move(200, 300);
        PutPointer(*form, 100, 100);
    }

    /// The one balloon that stands, once it is up.
    static Balloon Standing()
    {
        EXPECT_TRUE(WaitUntil([] { return !ShownBalloons().empty(); }));
        const auto shown = ShownBalloons();
        EXPECT_EQ(shown.size(), 1u);
        return shown.empty() ? Balloon{} : shown.front();
    }
    static std::string Heading()
    {
        const Balloon balloon = Standing();
        return std::to_string(balloon.Icon) + ' ' + balloon.Title;
    }
    static bool NoneComes()
    {
        Wait(20);
        return ShownBalloons().empty();
    }
};

TEST_F(Tooltips, AHeadingReachesThePopupInCreateOrWithTitleAndIcon)
{
    EXPECT_TRUE(NoneComes()) << "the settings alone make no popup";
    tip.SetTitle("");
    tip.Create(*form, false);
    EXPECT_EQ(Heading(), "1 ") << "in Create an icon is enough";
    tip.SetIcon(2);
    EXPECT_EQ(Heading(), "1 ");
    tip.SetTitle("Titolo");
    EXPECT_EQ(Heading(), "2 Titolo");
    tip.SetIcon(0);
    tip.SetTitle("Altro");
    EXPECT_EQ(Heading(), "2 Titolo");
    tip.Create(*form, false);
    EXPECT_EQ(Heading(), "0 Altro") << "so is a title";
}

TEST_F(Tooltips, TheTextReachesThePopupAtOnceStyleAndPlaceInCreate)
{
    tip.Create(*form, false);
    const Balloon balloon = Standing();
    EXPECT_EQ(balloon.Text, "prima riga\nseconda riga");
    tip.SetTipText("uno\r\ndue\r\ntre");
    tip.SetTipText(tip.TipText() + "\r\nquattro");
    EXPECT_EQ(Standing().Text, "uno\ndue\ntre\nquattro");
    EXPECT_GT(Standing().Height, balloon.Height) << "the balloon grows with its text";

    const Balloon before = Standing();
    tip.SetStyle(0);
    tip.SetCentered(true);
    EXPECT_EQ(Standing().Top, before.Top);
    tip.Create(*form, false);
    EXPECT_LT(Standing().Height, before.Height) << "no stem";
    EXPECT_NEAR(Standing().Top, 605, 5) << "under the window and its frame";
    EXPECT_NEAR(Standing().Left + Standing().Width / 2, 400, 1);
    tip.SetCentered(false);
    tip.SetTipText(std::string(30, 'x') + ' ' + std::string(90, 'y'));
    tip.Create(*form, false);
    EXPECT_NEAR(Standing().Top, 425, 10) << "below the pointer, clear of its picture";
    EXPECT_LT(Standing().Width, 620) << "a long line is broken";
}

TEST_F(Tooltips, OpensAfterTheDelayAndClosesAfterItsTime)
{
    tip.SetDelayTime(300);
    tip.SetVisibleTime(300);
    tip.Create(*form, false);
    tip.SetDelayTime(0);
    tip.SetVisibleTime(10000);
    for (int x = 0; x < 10; ++x) {
        EXPECT_TRUE(NoneComes()) << "a delay set later changes nothing";
        PutPointer(*form, 100 + x, 100);
        Wait(20);
    }
    EXPECT_TRUE(ShownBalloons().empty()) << "the pointer has not rested";
    Standing();
    Wait(50);
    EXPECT_FALSE(ShownBalloons().empty());
    EXPECT_TRUE(WaitUntil([] { return ShownBalloons().empty(); }));
    PutPointer(*form, -100, -100);
    PutPointer(*form, 10, 10);
    tip.SetTipText("x");
    Wait(700);
    EXPECT_TRUE(ShownBalloons().empty()) << "it has been, until the next Create";
}

TEST_F(Tooltips, ThereIsNeverMoreThanOneAndItGoesAtOnce)
{
    tip.Create(*form, false);
    EXPECT_FALSE(Standing().OnTop);
    tip.Create(*form, true);
    EXPECT_TRUE(ShownBalloons().empty()) << "the new one waits for its delay";
    EXPECT_TRUE(Standing().OnTop);
    for (int twice = 0; twice < 2; ++twice) tip.Destroy();
    EXPECT_TRUE(ShownBalloons().empty());
    tip.Create(*form, false);
    tip.Destroy();
    EXPECT_TRUE(NoneComes()) << "one that was still waiting";
    {
        CTooltip passing;
        EXPECT_EQ(passing.VisibleTime(), 10000);
        EXPECT_EQ(passing.DelayTime(), 250);
        passing.SetTipText("x");
        passing.Create(*form, false);
        Standing();
    }
    EXPECT_TRUE(ShownBalloons().empty()) << "with its object";
}

TEST_F(Tooltips, GoesWithItsWindowAndThePointer)
{
    for (const auto& go : std::vector<std::function<void()>>{[&] { form->Close(); },
                                                             [&] { form->showMinimized(); }}) {
        tip.Create(*form, false);
        Standing();
        go();
        EXPECT_TRUE(ShownBalloons().empty());
        tip.Create(*form, false);
        EXPECT_TRUE(NoneComes()) << "over a window that isn't there";
        form->showNormal();
        PutPointer(*form, 100, 100);
    }
    tip.Create(*form, false);
    Standing();
    PutPointer(*form, -100, -100);
    EXPECT_TRUE(ShownBalloons().empty());
    PutPointer(*form, 50, 50);
    Standing();
    form.reset();
    EXPECT_TRUE(ShownBalloons().empty());
    tip.SetTipText("x");
}

TEST_F(Tooltips, LeavesTheFocusWhereItIs)
{
    auto& box = form->Add<forms::TextBox>("box", 10, 10);
    box.show();
    box.SetFocus();
    box.LostFocus = form->Note("lost");
    tip.Create(*form, true);
    Standing();
    Type(*form, "12");
    EXPECT_EQ(box.Text(), "12");
    EXPECT_EQ(form->Noted(), "");
}

TEST_F(Tooltips, StaysOnTheScreenAndOffThePointer)
{
    const QRect screen = form->screen()->availableGeometry();
    const int right = screen.right() - 400;
    const int bottom = screen.bottom() - 300;
    for (const QPoint& corner :
         {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
        for (const QPoint& at : {QPoint(1, 1), QPoint(398, 1), QPoint(1, 298), QPoint(398, 298)})
            for (const int manner : {0, 1, 2, 3}) {
                form->move(corner);
                tip.SetStyle(manner % 2);
                tip.SetCentered(manner > 1);
                PutPointer(*form, at.x(), at.y());
                tip.Create(*form, false);
                const Balloon balloon = Standing();
                const QRect area(balloon.Left, balloon.Top, balloon.Width, balloon.Height);
                EXPECT_TRUE(screen.contains(area)) << balloon.Left << ' ' << balloon.Top;
                EXPECT_TRUE(manner > 1 || !area.contains(QCursor::pos()));
            }
}

}
}
