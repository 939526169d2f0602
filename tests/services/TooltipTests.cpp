#include "services/CTooltip.h"
#include "tests/support/Stage.h"

#include <QCursor>
#include <QScreen>

using namespace vellarno::test;

struct Tooltip : testing::Test, Stage<Workbench>
{
    CTooltip tip;

    Tooltip()
    {
        tip.SetStyle(CTooltip::BalloonStyle);
        tip.SetDelayTime(1);
        tip.SetTipText("prima riga\r\nseconda riga");
        form.move(200, 300);
        PutPointer(100, 100);
    }
    void PutPointer(int X, int Y)
    {
        QCursor::setPos(form.mapToGlobal(QPoint(X, Y)));
        Settle();
    }
    /// The one balloon that stands, once it is up.
    static QRect Standing()
    {
        EXPECT_TRUE(WaitUntil([] { return Shown<forms::Balloon>().size() == 1; }));
        return Shown<forms::Balloon>().at(0)->geometry();
    }
    /// Long enough for a balloon that should not come.
    static bool NoneComes()
    {
        bool over = false;
        QTimer::singleShot(300, qApp, [&] { over = true; });
        return WaitUntil([&] { return over; }) && Shown<forms::Balloon>().empty();
    }
};

TEST_F(Tooltip, ComesAfterItsDelayWhereThePointerIs)
{
    tip.SetDelayTime(1'000'000);
    tip.Create(form, false);
    EXPECT_TRUE(NoneComes());
    tip.SetDelayTime(50);
    tip.Create(form, false);
    const int left = Standing().x();
    PutPointer(160, 100);
    tip.Create(form, false);
    EXPECT_EQ(Standing().x(), left + 60);
}

TEST_F(Tooltip, GoesForGoodAfterItsTimeOrWithPointerOrWindow)
{
    Workbench another;
    const std::function<void()> ends[] = {
        [] { EXPECT_TRUE(WaitUntil([] { return Shown<forms::Balloon>().empty(); })); },
        [&] { PutPointer(-100, -100); }, [&] { Person(another).Open(); },
        [&] { form.showMinimized(); }, [&] { form.Close(); }};
    for (const auto& end : ends) {
        tip.SetVisibleTime(&end == ends ? 300 : 100'000);
        tip.Create(form, false);
        Standing();
        end();
        EXPECT_TRUE(Shown<forms::Balloon>().empty());
        form.showNormal();
        PutPointer(-100, -100);
        PutPointer(100, 100);
        EXPECT_TRUE(NoneComes());
    }
}

TEST_F(Tooltip, StaysOnTheScreenAndOffThePointer)
{
    const QRect screen = form.screen()->availableGeometry();
    for (const QPoint corner : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        form.move(corner.x() * (screen.right() - 400), corner.y() * (screen.bottom() - 300));
        PutPointer(1 + corner.x() * 397, 1 + corner.y() * 297);
        tip.Create(form, false);
        EXPECT_TRUE(screen.contains(Standing())) << corner.x() << corner.y();
        EXPECT_FALSE(Standing().contains(QCursor::pos())) << corner.x() << corner.y();
    }
}
