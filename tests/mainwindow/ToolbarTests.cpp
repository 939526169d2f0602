#include "tests/support/MainWindow.h"

#include <QDir>

using namespace vellarno::test;

using Toolbar = Before<Mode::Times>;

TEST_F(Toolbar, ThePinKeepsTheWindowOnTopAndLetsItGo)
{
    const QImage off = Seen(imgOnTop);
    Click(imgOnTop);
    EXPECT_NE(Seen(imgOnTop), off);
    EXPECT_EQ(OpenWindows() + Focus(), "frmMain*txtTime_0") << "a click on it moves no focus";
    Click(imgOnTop);
    EXPECT_EQ(OpenWindows(), "frmMain");
    EXPECT_EQ(Seen(imgOnTop), off);
}

TEST_F(Toolbar, TheCalculatorSoundsOpensOnceAndReadsThePinAsItOpens)
{
    Click(imgOnTop);
    for (int press = 0; press < 2; ++press) {
        Click(picToolBarra[SumsIcon]);
        EXPECT_EQ(TakeLog(), "sound 201");
        EXPECT_EQ(OpenWindows(), "frmMain* frmMiniCalc*");
    }
    Click(imgOnTop);
    EXPECT_EQ(OpenWindows(), "frmMain frmMiniCalc*");
    form.Close();
    EXPECT_EQ(OpenWindows(), "");
}

TEST_F(Toolbar, AnswersTheLeftButtonAlone)
{
    for (const auto& icon : picToolBarra) Click(icon, Qt::RightButton);
    Click(imgOnTop, Qt::MiddleButton);
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(OpenWindows(), "frmMain");
}

TEST_F(Toolbar, NothingMoreOpensInAWindowThatIsClosedMeanwhile)
{
    const std::pair<ToolIcon, int> rows[] = {{HelpIcon, 1}, {HelpIcon, 2}, {SumsIcon, 1}};
    for (const auto& [icon, turn] : rows) { // in which events are served
        MainWindow window;
        const std::function<void()> close = [&] { window.form.Close(); };
        window.Soon(turn == 1 ? close : [&] { window.Soon(close); });
        window.Click(window.picToolBarra[icon]);
        EXPECT_EQ(window.TakeLog(), icon == HelpIcon ? "" : "sound 201");
        EXPECT_TRUE(QDir(window.folder.path()).isEmpty());
        EXPECT_EQ(OpenWindows(), "");
    }
}
