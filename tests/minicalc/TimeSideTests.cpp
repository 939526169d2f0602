#include "minicalc/Accumulators.h"
#include "tests/minicalc/Calculator.h"

#include <random>

namespace vellarno::test {
namespace {

using TimeSide = Calculator;

TEST_F(TimeSide, Sums)
{
    struct Case
    {
        int Format;
        const char* Total;
        int Operation;
        const char *Value, *Result;
    };
    for (const Case& c : {
             Case{0, "01:30:00", 0, "00:45:00", "02:15:00"},
             Case{0, "23:59:59", 0, "00:00:01", "00:00:00"},
             Case{0, "23:00:00", 0, "02:00:00", "01:00:00"},
             Case{0, "00:00:00", 1, "00:00:01", "23:59:59"},
             Case{0, "00:10:00", 1, "01:00:00", "23:10:00"},
             Case{1, "00:00:00", 0, "00:125:200", "02:08:20"},
             Case{0, "00:00:00", 0, "00:75:00", "01:15:00"},
             Case{0, "5:5:5", 0, "5:5:5", "10:10:10"},
             Case{0, "12:34:56", 0, "00:00:00", "12:34:56"},
             Case{1, "::", 1, "::", "00:00:00"},
         }) {
        optFormat[c.Format].SetValue(true);
        optSomma[c.Operation].SetValue(true);
        Write(txtCalc, 0, c.Total);
        Write(txtCalc, 3, c.Value);
        Click(cmdSommaOre);
        EXPECT_EQ(Total(), c.Result) << c.Total << ' ' << c.Operation << ' ' << c.Value;
        EXPECT_EQ(Value(), c.Format == 0 ? "00:00:00" : "00:000:000");
        EXPECT_EQ(Focus(), "txtCalc_3");
        EXPECT_EQ(txtCalc[3].SelLength(), 2);
    }
}

TEST_F(TimeSide, RandomSumsAgreeWithModuloArithmetic)
{
    std::mt19937 random(20261122);
    const auto upTo = [&](int Highest) { return std::uniform_int_distribution(0, Highest)(random); };
    const auto clock = [](int Seconds) {
        return Format(Seconds / 3600, "00") + ':' + Format(Seconds / 60 % 60, "00") + ':' +
               Format(Seconds % 60, "00");
    };
    for (int i = 0; i < 400; ++i) {
        const int format = i / 200;
        const int highest = format == 0 ? 99 : 999;
        const int start = upTo(86399);
        const int hours = upTo(23), minutes = upTo(highest), seconds = upTo(highest);
        const int sign = upTo(1) == 0 ? 1 : -1;
        optFormat[format].SetValue(true);
        optSomma[sign == 1 ? 0 : 1].SetValue(true);
        Write(txtCalc, 0, clock(start));
        Write(txtCalc, 3, CStr(hours) + ':' + CStr(minutes) + ':' + CStr(seconds));
        cmdSommaOre.Click();
        const int sum = (start + sign * (hours * 3600 + minutes * 60 + seconds)) % 86400;
        ASSERT_EQ(Total(), clock((sum + 86400) % 86400)) << clock(start) << ' ' << sign << ' ' << hours
                                                         << ' ' << minutes << ' ' << seconds;
    }
}

TEST_F(TimeSide, TypingRefusesAndGoesOn)
{
    struct Case
    {
        int Format, Field;
        const char *Keys, *Outcome;
    };
    for (const Case& c : {
             Case{0, 0, "23", "23 txtCalc_1 0"},
             Case{0, 0, "24", " txtCalc_0 2"},
             Case{0, 3, "24", " txtCalc_3 2"},
             Case{1, 3, "24", " txtCalc_3 2"},
             Case{0, 1, "59", "59 txtCalc_2 0"},
             Case{0, 1, "60", " txtCalc_1 2"},
             Case{0, 2, "60", " txtCalc_2 2"},
             Case{0, 2, "00", "00 cmdSommaOre 0"},
             Case{1, 2, "59", "59 cmdSommaOre 0"},
             Case{0, 4, "60", "60 txtCalc_5 0"},
             Case{1, 4, "90", "90 txtCalc_4 0"},
             Case{1, 4, "999", "999 txtCalc_5 0"},
             Case{0, 5, "99", "99 cmdSommaOre 0"},
             Case{1, 5, "999", "999 cmdSommaOre 0"},
             Case{0, 4, "a .5,\r", "5 txtCalc_4 0"},
         }) {
        optFormat[c.Format].SetValue(true);
        Click(cmdClear);
        EXPECT_EQ(Typed(txtCalc[c.Field], c.Keys), c.Outcome) << c.Field << ' ' << c.Keys;
    }
}

TEST_F(TimeSide, ARunOfDigitsLandsOnTheButton)
{
    Type(form, "013000");
    EXPECT_EQ(Focus(), "cmdSommaOre");
    Press(form, Qt::Key_Space);
    Type(form, "004500");
    Press(form, Qt::Key_Return);
    EXPECT_EQ(Total(), "02:15:00");
    Type(form, "5");
    EXPECT_EQ(Value(), "5:00:00");
    EXPECT_EQ(desktop.Beeps, 0);
}

TEST_F(TimeSide, EmptyingBeepsOnceAndLeavingPadsNothing)
{
    EXPECT_EQ(BeepsOf([&] { Press(form, Qt::Key_Backspace); }), 1);
    Type(form, "5");
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(Value(), "5:00:00");
    EXPECT_EQ(Focus(), "txtCalc_4");
    EXPECT_EQ(BeepsOf([&] { Paste(form, "1a"); }), 2);
    EXPECT_EQ(Value(), "5::00");
}

}
}
