#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/CTooltip.h"
#include "services/forms/TextBox.h"

#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace vellarno::test {
namespace {

struct Tooltips : testing::Test
{
    Workbench form;
    CTooltip tip;

    void SetUp() override
    {
        tip.SetStyle(CTooltip::BalloonStyle);
        tip.SetDelayTime(1);
        tip.SetTitle("Totale giorni");
        tip.SetIcon(1);
        tip.SetTipText("prima riga\r\nseconda riga");
        Open(form);
        form.move(200, 300);
        PutPointer(form, 100, 100);
    }

    /// The one balloon that stands, once it is up.
    static Balloon Standing()
    {
        EXPECT_TRUE(WaitUntil([] { return !ShownBalloons().empty(); }));
        const auto shown = ShownBalloons();
        EXPECT_EQ(shown.size(), 1u);
        return shown.empty() ? Balloon{} : shown.front();
    }
};

TEST(Tooltip, HasItsDefaults)
{
    const CTooltip tip;
    EXPECT_EQ(tip.Style(), 0);
    EXPECT_EQ(tip.Icon(), 0);
    EXPECT_FALSE(tip.Centered());
    EXPECT_EQ(tip.Title(), "");
    EXPECT_EQ(tip.TipText(), "");
    EXPECT_EQ(tip.VisibleTime(), 10000);
    EXPECT_EQ(tip.DelayTime(), 250);
}

TEST_F(Tooltips, TheSettingsReachThePopupInCreate)
{
    Wait(20);
    EXPECT_TRUE(ShownBalloons().empty()) << "nothing before Create";
    tip.Create(form, false);
    const auto balloon = Standing();
    EXPECT_EQ(balloon.Title, "Totale giorni");
    EXPECT_EQ(balloon.Text, "prima riga\nseconda riga");
    EXPECT_EQ(balloon.Icon, 1);
    EXPECT_FALSE(balloon.OnTop);
}

TEST_F(Tooltips, AnIconAloneMakesAHeadingInCreateOnly)
{
    tip.SetTitle("");
    tip.Create(form, false);
    EXPECT_EQ(Standing().Icon, 1);
    tip.SetIcon(2);
    EXPECT_EQ(Standing().Icon, 1) << "a set reaches the popup only beside a title";
    tip.SetTitle("Titolo");
    EXPECT_EQ(Standing().Icon, 2);
    EXPECT_EQ(Standing().Title, "Titolo");
    tip.SetIcon(0);
    tip.SetTitle("Altro");
    EXPECT_EQ(Standing().Title, "Titolo") << "nor without an icon";
    EXPECT_EQ(tip.Title(), "Altro");
    tip.Create(form, false);
    EXPECT_EQ(Standing().Title, "Altro");
    EXPECT_EQ(Standing().Icon, 0);
}

TEST_F(Tooltips, TheTextReachesThePopupAtOnce)
{
    tip.Create(form, false);
    const int low = Standing().Height;
    tip.SetTipText("uno\r\ndue\r\ntre\r\nquattro");
    EXPECT_EQ(Standing().Text, "uno\ndue\ntre\nquattro");
    EXPECT_GT(Standing().Height, low) << "the balloon grows with its text";
}

TEST_F(Tooltips, StyleAndPlaceWaitForTheNextCreate)
{
    tip.Create(form, false);
    const auto balloon = Standing();
    tip.SetStyle(0);
    tip.SetCentered(true);
    EXPECT_EQ(Standing().Height, balloon.Height);
    EXPECT_EQ(Standing().Top, balloon.Top);
    tip.Create(form, false);
    const auto plain = Standing();
    EXPECT_LT(plain.Height, balloon.Height) << "no stem";
    EXPECT_EQ(plain.Top, 600) << "under the window";
    EXPECT_NEAR(plain.Left + plain.Width / 2, 400, 1);
    tip.SetCentered(false);
    tip.Create(form, false);
    EXPECT_GT(Standing().Top, 400) << "below the pointer, clear of its picture";
    EXPECT_LT(Standing().Top, 430);
}

TEST_F(Tooltips, OpensAfterItsDelayAndClosesAfterItsTime)
{
    tip.SetDelayTime(150);
    tip.SetVisibleTime(150);
    tip.Create(form, false);
    tip.SetDelayTime(0);
    tip.SetVisibleTime(10000);
    Wait(50);
    EXPECT_TRUE(ShownBalloons().empty()) << "a delay set later changes nothing";
    Standing();
    Wait(50);
    EXPECT_FALSE(ShownBalloons().empty());
    EXPECT_TRUE(WaitUntil([] { return ShownBalloons().empty(); }));
    MoveTo(form, 10, 10);
    Wait(50);
    EXPECT_TRUE(ShownBalloons().empty()) << "it has been, until the next Create";
    tip.SetTipText("x");
    EXPECT_TRUE(ShownBalloons().empty());
    tip.Create(form, false);
    Standing();
}

TEST_F(Tooltips, WaitsForThePointerToRest)
{
    tip.SetDelayTime(100);
    tip.Create(form, false);
    for (int x = 0; x < 10; ++x) {
        PutPointer(form, 100 + x, 100);
        Wait(30);
        EXPECT_TRUE(ShownBalloons().empty());
    }
    Standing();
}

TEST_F(Tooltips, ThereIsNeverMoreThanOne)
{
    tip.Create(form, false);
    Standing();
    tip.SetTitle("Totale settimane");
    tip.Create(form, true);
    EXPECT_TRUE(ShownBalloons().empty()) << "the old one goes at once";
    EXPECT_EQ(Standing().Title, "Totale settimane");
    EXPECT_TRUE(Standing().OnTop);
    Wait(20);
    EXPECT_EQ(ShownBalloons().size(), 1u);
}

TEST_F(Tooltips, GoesAtOnce)
{
    tip.Create(form, false);
    Standing();
    tip.Destroy();
    EXPECT_TRUE(ShownBalloons().empty());
    tip.Destroy();
    {
        CTooltip passing;
        passing.SetDelayTime(1);
        passing.SetTipText("x");
        passing.Create(form, false);
        Standing();
    }
    EXPECT_TRUE(ShownBalloons().empty()) << "with the object";
    tip.Create(form, false);
    tip.Destroy();
    Wait(20);
    EXPECT_TRUE(ShownBalloons().empty()) << "one that was still waiting never comes";
}

TEST_F(Tooltips, GoesWithItsWindow)
{
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"closed", [&] { form.Close(); }},
        {"hidden", [&] { form.hide(); }},
        {"minimised", [&] { form.showMinimized(); }},
    };
    for (const auto& [way, go] : ways) {
        tip.Create(form, false);
        Standing();
        go();
        Settle();
        EXPECT_TRUE(ShownBalloons().empty()) << way;
        tip.Create(form, false);
        Wait(20);
        EXPECT_TRUE(ShownBalloons().empty())
            << way << ", and none comes over a window that isn't there";
        form.showNormal();
        PutPointer(form, 100, 100);
    }
    auto passing = std::make_unique<Workbench>();
    Open(*passing);
    tip.Create(*passing, false);
    Standing();
    passing.reset();
    EXPECT_TRUE(ShownBalloons().empty());
    tip.SetTipText("x");
    tip.Destroy();
}

TEST_F(Tooltips, HidesWhileThePointerIsElsewhere)
{
    tip.Create(form, false);
    Standing();
    PutPointer(form, -100, -100);
    EXPECT_TRUE(ShownBalloons().empty());
    PutPointer(form, 50, 50);
    Standing();
}

TEST_F(Tooltips, LeavesTheFocusWhereItIs)
{
    auto& box = form.Add<forms::TextBox>("box", 10, 10);
    box.show();
    box.SetFocus();
    int lost = 0;
    box.LostFocus = [&] { ++lost; };
    tip.Create(form, true);
    Standing();
    EXPECT_TRUE(form.isActiveWindow());
    Type(form, "12");
    EXPECT_EQ(box.Text(), "12");
    EXPECT_EQ(lost, 0);
}

TEST_F(Tooltips, StaysOnTheScreen)
{
    const QRect screen = form.screen()->availableGeometry();
    const QSize size = form.size();
    const QPoint corners[] = {screen.topLeft(), screen.topRight() - QPoint(size.width(), 0),
                              screen.bottomLeft() - QPoint(0, size.height()),
                              screen.bottomRight() - QPoint(size.width(), size.height())};
    for (const QPoint& corner : corners) {
        form.move(corner);
        for (const QPoint& at : {QPoint(1, 1), QPoint(398, 1), QPoint(1, 298), QPoint(398, 298)})
            for (const int manner : {0, 1, 2, 3}) {
                tip.SetStyle(manner % 2);
                tip.SetCentered(manner > 1);
                PutPointer(form, at.x(), at.y());
                tip.Create(form, false);
                const auto balloon = Standing();
                const QRect area(balloon.Left, balloon.Top, balloon.Width, balloon.Height);
                EXPECT_TRUE(screen.contains(area)) << balloon.Left << ' ' << balloon.Top;
                EXPECT_TRUE(manner > 1 || !area.contains(QCursor::pos()))
                    << "never under the pointer";
            }
    }
}

TEST_F(Tooltips, LongLinesAreBroken)
{
    std::string words;
    for (int i = 0; i < 60; ++i) words += "parola ";
    tip.SetTipText(words);
    tip.Create(form, false);
    const auto balloon = Standing();
    EXPECT_LE(balloon.Width, 480);
    EXPECT_GT(balloon.Height, 80);
}

TEST_F(Tooltips, WithNothingToSayNoneComes)
{
    tip.SetTitle("");
    tip.SetTipText("");
    tip.Create(form, false);
    Wait(20);
    EXPECT_TRUE(ShownBalloons().empty());
}

}
}
