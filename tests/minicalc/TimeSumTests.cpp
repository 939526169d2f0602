#include "tests/support/SumsWindow.h"

#include <QClipboard>
#include <QMenu>

using namespace vellarno::test;

struct TimeSum : testing::Test, SumsWindow
{};

TEST_F(TimeSum, GoesRoundTheClock)
{
    const std::array<std::string, 3> rows[] = {{"235959", "+007501", "01:15:00"},
                                               {"001000", "-010000", "23:10:00"}};
    for (const auto& [total, value, result] : rows) {
        Enter(txtCalc[0], total);
        Enter(txtCalc[3], value);
        EXPECT_EQ(Focus(), "cmdSommaOre");
        Press(Qt::Key_Return);
        EXPECT_EQ(Times(), result + " 00:00:00") << total << value;
        EXPECT_EQ(Focus(), "txtCalc_3");
    }
}

TEST_F(TimeSum, TheLongFormatTakesThreeDigitsAndBeginsAnew)
{
    Enter(txtCalc[0], "050000");
    Click(optFormat[1]);
    EXPECT_EQ(Times(), "00:00:00 00:000:000");
    Type("0090");
    EXPECT_EQ(Focus(), "txtCalc_4") << "two digits of three";
    Type("5200");
    Press(Qt::Key_Space);
    EXPECT_EQ(Times(), "15:08:20 00:000:000");
    Click(optFormat[0]);
    EXPECT_EQ(Times(), "00:00:00 00:00:00");
}

TEST_F(TimeSum, EachBoxHasItsLimitAndSendsTheTypingOn)
{
    ExpectLimits(txtCalc, {{5, "99", "cmdSommaOre", {}},
                           {4, "99", "txtCalc_5", {}},
                           {3, "23", "txtCalc_4", {"24"}},
                           {2, "59", "cmdSommaOre", {"60"}},
                           {1, "59", "txtCalc_2", {"60"}},
                           {0, "23", "txtCalc_1", {"24"}}});
}

TEST_F(TimeSum, EmptyBoxesCountAsZeroAndLoneDigitsAsTheyStand)
{
    for (const int box : {0, 1, 2, 4, 5}) {
        Click(txtCalc[box]);
        Press(Qt::Key_Backspace);
        EXPECT_EQ(TakeLog(), "beep");
    }
    Enter(txtCalc[3], "a5.");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Times(), "__:__:__ 5_:__:__") << "leaving fills nothing";
    Click(cmdSommaOre);
    EXPECT_EQ(Times(), "05:00:00 00:00:00");
}

TEST_F(TimeSum, TheTotalIsCopied)
{
    Enter(txtCalc[0], "113000");
    Click(txtCalc[0], Qt::RightButton);
    auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    menu->actions().back()->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "inizio / progressivo: 11:30:00\n");
    lblTime[2].actions().at(0)->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "11:30:00");
}

TEST_F(TimeSum, ResetTakesAllButTheChoices)
{
    Click(optFormat[1]);
    Type("-12345678");
    Click(cmdSommaOre);
    Type("1");
    Click(cmdClear);
    EXPECT_EQ(Times(), "00:00:00 00:000:000");
    EXPECT_EQ(Focus(), "txtCalc_3");
    EXPECT_EQ(lblTime[3].Caption(), "Sottrai");
}
