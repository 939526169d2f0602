#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/CTooltip.h"

#include <QScreen>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

struct Tooltips : testing::Test
{
    Workbench form;
    CTooltip tip;

    Tooltips()
    {
        tip.SetStyle(CTooltip::BalloonStyle), tip.SetDelayTime(1), tip.SetIcon(1);
        tip.SetTipText("prima riga\r\nseconda riga");
        Open(form);
        form.move(200, 300);
        PutPointer(100, 100);
    }
    void PutPointer(int X, int Y)
    {
        QCursor::setPos(form.mapToGlobal(QPoint(X, Y)));
        Settle();
    }
    /// The one balloon that stands, once it is up.
    static const forms::Balloon& Standing()
    {
        EXPECT_TRUE(WaitUntil([] { return ShownBalloons().size() == 1; }));
        return *ShownBalloons().at(0);
    }
    static bool None(int After = 0) { return Wait(After), ShownBalloons().empty(); }
};

TEST_F(Tooltips, TextsReachABalloonThatStandsAndItsMannerDoesNot)
{
    const auto heading = [] { return std::to_string(Standing().Icon()) + Standing().Title(); };
    tip.Create(form, false);
    tip.SetIcon(2);
    EXPECT_EQ(heading(), "1") << "a heading changes only with both icon and title";
    tip.SetTitle("Titolo");
    EXPECT_EQ(heading(), "2Titolo");
    const QRect before = Standing().geometry();
    tip.SetStyle(0), tip.SetCentered(true);
    tip.SetTipText(tip.TipText() + "\r\nterza");
    EXPECT_EQ(Standing().Text(), "prima riga\nseconda riga\nterza");
    EXPECT_TRUE(Standing().height() > before.height() && Standing().x() == before.x());
    const int height = Standing().height();
    tip.Create(form, false);
    EXPECT_LT(Standing().height(), height) << "no stem";
    EXPECT_NEAR(Standing().y(), 605, 5) << "under the window and its frame";
    EXPECT_NEAR(Standing().geometry().center().x(), 400, 1);
}

TEST_F(Tooltips, OpensAfterTheDelayOfARestAndClosesAfterItsTime)
{
    tip.SetDelayTime(300), tip.SetVisibleTime(300);
    tip.Create(form, false);
    tip.SetDelayTime(0), tip.SetVisibleTime(10000);
    for (int x = 0; x < 10; ++x) {
        EXPECT_TRUE(None(40)) << "too late for a shorter delay, and the pointer has not rested";
        PutPointer(100 + x, 100);
    }
    Standing();
    EXPECT_FALSE(None(50));
    EXPECT_TRUE(WaitUntil([] { return None(); }));
    for (const int at : {-100, 10}) PutPointer(at, at);
    EXPECT_TRUE(None(450)) << "it has been, until the next Create";
}

TEST_F(Tooltips, ThereIsNeverMoreThanOneAndItGoesAtOnce)
{
    const std::function<void()> ends[] = {[&] { tip.Destroy(); }, [&] { PutPointer(-100, -100); },
                                          [&] { form.showMinimized(); }, [&] { form.Close(); }};
    for (const auto& end : ends) {
        form.showNormal();
        PutPointer(100, 100);
        for (const bool onTop : {false, true}) {
            tip.Create(form, onTop);
            EXPECT_TRUE(None()) << "it waits for its delay";
            EXPECT_EQ(Standing().windowFlags().testFlag(Qt::WindowStaysOnTopHint), onTop);
        }
        end();
        EXPECT_TRUE(None()) << &end - ends;
    }
}

TEST_F(Tooltips, StaysOnTheScreenAndOffThePointer)
{
    const QRect screen = form.screen()->availableGeometry();
    for (int i = 0; i < 8; ++i) {
        const int right = i % 2, bottom = i / 2 % 2, centered = i / 4;
        form.move(right * (screen.right() - 400), bottom * (screen.bottom() - 300));
        PutPointer(1 + right * 397, 1 + bottom * 297);
        tip.SetCentered(centered);
        tip.Create(form, false);
        const QRect area = Standing().geometry();
        EXPECT_TRUE(screen.contains(area) && (centered || !area.contains(QCursor::pos()))) << i;
    }
}

}
}
