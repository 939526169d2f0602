#include "tests/support/MainWindow.h"

using namespace vellarno::test;
using DateEntry = Before<Mode::Dates>;
using TimeEntry = Before<Mode::Times>;
using Entry = Before<Mode::Moments>;

TEST_F(Entry, EachBoxHasItsLimitAndSendsTheTypingOn)
{
    ExpectLimits(txtData, {{5, "2100", "txtData_5", {"2101"}},
                           {4, "12", "txtData_5", {"13", "00"}},
                           {3, "31", "txtData_4", {"32", "00"}},
                           {2, "0000", "txtData_3", {"2101"}},
                           {1, "12", "txtData_2", {"13", "00"}},
                           {0, "31", "txtData_1", {"32", "00"}}});
    ExpectLimits(txtTime, {{5, "0059", "txtTime_5", {"60", "123"}},
                           {4, "59", "txtTime_5", {"60"}},
                           {3, "23", "txtTime_4", {"24"}},
                           {2, "00", "txtTime_3", {"60"}},
                           {1, "59", "txtTime_2", {"60"}},
                           {0, "23", "txtTime_1", {"24"}}});
}

TEST_F(Entry, OnlyDigitsAndBackspaceHaveAnEffect)
{
    Type("a1-+,. /");
    for (const auto modifier : {Qt::AltModifier, Qt::MetaModifier, Qt::ControlModifier})
        for (const auto key : {Qt::Key_5, Qt::Key_A, Qt::Key_V}) Press(key, modifier, QChar(key));
    EXPECT_EQ(Dates(), "1_/__/____ __/__/____");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Dates(), "__/__/____ __/__/____");
    EXPECT_EQ(TakeLog(), "beep") << "emptied by hand";
}

TEST_F(Entry, EnterGoesToTheNextControlAndCalculatesNothing)
{
    EnterTimes("081530104540");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "cmdCalcola");
    EXPECT_FALSE(HasResults());
}

TEST_F(DateEntry, ArrivalFillsALoneDigitOfTheBoxBefore)
{
    for (const int box : {0, 1, 3, 4}) {
        Click(txtData[box]);
        Type("5");
        Click(txtData[box + 1]);
    }
    EXPECT_EQ(Dates(), "05/05/____ 05/05/____");
}

TEST_F(DateEntry, DepartureFillsMonthAndYearButNoDay)
{
    Type("5");
    Enter(txtData[2], "0");
    Enter(txtData[4], "4");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Dates(), "5_/__/00__ __/04/____");
    EXPECT_EQ(Focus(), "txtData_5") << "a month sends it on, whatever was chosen";
}

TEST_F(TimeEntry, DepartureFillsEachBoxAndSendsTheFocusOn)
{
    for (const int box : {0, 1, 2, 3, 4, 5}) {
        Enter(txtTime[box], "7");
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(Focus(), box < 5 ? "txtTime_" + std::to_string(box + 1) : "txtTime_4");
    }
    EXPECT_EQ(Times(), "07:07:07 07:07:07");
}

TEST_F(DateEntry, TextThatComesPastTheKeysIsTestedToo)
{
    for (const char* text : {"-1", "45", "¹²", "x"}) {
        Paste(text);
        EXPECT_EQ(TakeLog(), "beep, beep") << text;
    }
    Commit("a7b");
    Click(txtData[3]);
    Paste("2512");
    EXPECT_EQ(Dates(), "7_/__/____ 25/__/____") << "cut to the length of the box";
}

TEST_F(Entry, ArrivalSelectsTheTextAndEveryChangeClearsTheResults)
{
    EnterDates("0101200531122005");
    EnterTimes("081530104540");
    for (const auto* boxes : {&txtData, &txtTime})
        for (auto& box : *boxes) {
            Click(cmdCalcola);
            box.SetText(box.Text());
            Click(box);
            EXPECT_TRUE(HasResults()) << "arrival and the same text change nothing";
            Type(box.Text().size() == 4 ? "2006" : "11"); // in place of what was selected
            EXPECT_FALSE(HasResults()) << box.objectName().toStdString();
        }
    EXPECT_EQ(Dates() + Times(), "11/11/2006 11/11/200611:11:11 11:11:11");
}

TEST_F(TimeEntry, TheClockButtonsWriteTheTimeAndClearTheResults)
{
    StopClock(sys_days(2026y / 11 / 22) + 7h + 5min + 9s);
    for (const int row : {0, 1, 0}) {
        lblTotali[6].SetCaption("00");
        Click(cmdNowTime[row]);
        EXPECT_FALSE(HasResults()) << "also where the texts stay";
    }
    EXPECT_EQ(Times(), "07:05:09 07:05:09");
}
