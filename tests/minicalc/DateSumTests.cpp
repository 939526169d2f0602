#include "tests/support/SumsWindow.h"

using namespace vellarno::test;

constexpr const char* NoDate =
    "message 16 Vellarno: La data immessa non è valida, il calcolo non può essere eseguito.";
constexpr const char* YearLimit = "message 64 Vellarno: Massimo valore consentito per il calcolo "
                                  "con le date è l'anno 2300";

struct DateSum : testing::Test, SumsWindow
{
    DateSum() : SumsWindow(Date) {}
};

TEST_F(DateSum, StepsByDaysWeeksMonthsAndQuarters)
{
    const struct
    {
        int Unit; ///< days, weeks, months, quarters
        const char* From;
        const char* Quantity; ///< with its sign
        const char* Result;
    } rows[] = {{0, "01032020", "-1", "29/02/2020 1 giorni"},
                {0, "22112026", "+99999", "08/04/2054 9999 giorni"},
                {1, "15062021", "+2", "29/06/2021 2 settimane"},
                {2, "29022020", "+001", "29/03/2020 001 mesi"},
                {3, "30112019", "+1", "29/02/2020 1 trimestri"}};
    for (const auto& [unit, from, quantity, result] : rows) {
        Click(optTipoDati[unit]);
        Enter(txtData[0], from);
        Type(quantity);
        Click(cmdSommaData);
        EXPECT_EQ(Dates(), result) << from << quantity;
        EXPECT_EQ(Focus(), "txtSommaDati");
    }
}

TEST_F(DateSum, AnotherUnitAndResetBeginFromTodayWithTheUnitsDigits)
{
    const char* const shown[] = {"22/11/2026 0000 giorni", "22/11/2026 000 settimane",
                                 "22/11/2026 000 mesi", "22/11/2026 00 trimestri"};
    for (const int unit : {1, 2, 3, 0}) {
        for (const Spot change : {Spot(optTipoDati[unit]), Spot(cmdClear)}) {
            Enter(txtData[0], "01012000");
            Click(change);
            EXPECT_EQ(Dates(), shown[unit]);
            EXPECT_EQ(Focus(), "txtSommaDati");
        }
    }
}

TEST_F(DateSum, EachBoxHasItsLimitAndSendsTheTypingOn)
{
    ExpectLimits(txtData, {{2, "2300", "txtSommaDati", {}},
                           {1, "12", "txtData_2", {"13"}},
                           {0, "31", "txtData_1", {"32"}}});
}

TEST_F(DateSum, AYearAbove2300IsToldAndTodayComesBack)
{
    Type("9");
    Enter(txtData[2], "2301");
    EXPECT_EQ(TakeLog(), std::string("beep, beep, ") + YearLimit);
    EXPECT_EQ(Dates(), "22/11/2026 0000 giorni");
    EXPECT_EQ(Focus(), "txtSommaDati");
    Enter(txtData[0], "31122300");
    Type("1");
    Click(cmdSommaData);
    EXPECT_EQ(TakeLog(), std::string("beep, beep, ") + YearLimit) << "of a result too";
    EXPECT_EQ(Dates(), "22/11/2026 0000 giorni");
    StopClock(sys_days(2301y / 3 / 5));
    Click(cmdClear);
    EXPECT_EQ(TakeLog(), std::string("beep, beep, ") + YearLimit) << "of a clock, once";
}

TEST_F(DateSum, WhatCantBeCalculatedIsRefusedAndStays)
{
    Enter(txtData[0], "31042021");
    Type("5");
    TakeLog();
    Click(cmdSommaData);
    EXPECT_EQ(TakeLog(), NoDate);
    EXPECT_EQ(Dates(), "31/04/2021 5 giorni");
    EXPECT_EQ(Focus(), "txtData_0");
}

TEST_F(DateSum, DepartureFillsDayAndMonthAndSendsTheFocusOn)
{
    Enter(txtData[0], "0");
    Press(Qt::Key_Tab);
    Type("5");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Focus(), "txtData_2");
    Type("7");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Dates(), "00/05/7___ 0000 giorni") << "a year stays, and so do two zeros";
}
