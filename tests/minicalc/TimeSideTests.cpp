#include "tests/minicalc/Calculator.h"

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
    for (const Case& c :
         {Case{0, "01 30 00", 0, "00 45 00", "02 15 00"},
          Case{0, "23 59 59", 0, "0 0 1", "00 00 00"},
          Case{0, "23 00 00", 0, "02 00 00", "01 00 00"},
          Case{0, "00 00 00", 1, "0 0 1", "23 59 59"},
          Case{0, "00 10 00", 1, "01 00 00", "23 10 00"},
          Case{1, "0 0 0", 0, "0 125 200", "02 08 20"},
          Case{0, "00 00 00", 0, "00 75 00", "01 15 00"}, Case{0, "5 5 5", 0, "5 5 5", "10 10 10"},
          Case{0, "12 34 56", 0, "00 00 00", "12 34 56"}, Case{1, "", 1, "", "00 00 00"}}) {
        Choose("optFormat", c.Format);
        Choose("optSomma", c.Operation);
        Fill("txtCalc", 0, c.Total);
        Fill("txtCalc", 3, c.Value);
        Push("cmdSommaOre");
        EXPECT_EQ(Row("txtCalc", 0), c.Result) << c.Total << " / " << c.Value;
        EXPECT_EQ(Row("txtCalc", 3), c.Format == 0 ? "00 00 00" : "00 000 000");
        EXPECT_EQ(Focus(), "txtCalc_3");
        EXPECT_EQ(Box("txtCalc_3").SelLength(), 2);
    }
}

TEST_F(TimeSide, RandomSumsAgreeWithModuloArithmetic)
{
    const auto clock = [](int Seconds) {
        return Format(Seconds / 3600, "00") + ' ' + Format(Seconds / 60 % 60, "00") + ' ' +
               Format(Seconds % 60, "00");
    };
    for (int i = 0; i < 400; ++i) {
        const int highest = i < 200 ? 99 : 999, sign = 1 - 2 * Within(0, 1);
        const int start = Within(0, 86399), hours = Within(0, 23);
        const int minutes = Within(0, highest), seconds = Within(0, highest);
        Option(i < 200 ? "optFormat_0" : "optFormat_1").SetValue(true);
        Option(sign > 0 ? "optSomma_0" : "optSomma_1").SetValue(true);
        Fill("txtCalc", 0, clock(start));
        const std::string value = CStr(hours) + ' ' + CStr(minutes) + ' ' + CStr(seconds);
        Fill("txtCalc", 3, value);
        Push("cmdSommaOre");
        const int sum = start + sign * (hours * 3600 + minutes * 60 + seconds);
        ASSERT_EQ(Row("txtCalc", 0), clock((sum % 86400 + 86400) % 86400))
            << clock(start) << " / " << sign << " / " << value;
    }
}

TEST_F(TimeSide, TypingRefusesAndGoesOn)
{
    struct Case
    {
        int Format;
        const char *Field, *Keys, *Outcome;
    };
    for (const Case& c :
         {Case{0, "txtCalc_0", "23", "23 txtCalc_1 0"}, Case{0, "txtCalc_0", "24", " txtCalc_0 2"},
          Case{1, "txtCalc_3", "24", " txtCalc_3 2"}, Case{0, "txtCalc_1", "59", "59 txtCalc_2 0"},
          Case{0, "txtCalc_1", "60", " txtCalc_1 2"}, Case{0, "txtCalc_2", "60", " txtCalc_2 2"},
          Case{1, "txtCalc_2", "00", "00 cmdSommaOre 0"},
          Case{0, "txtCalc_4", "60", "60 txtCalc_5 0"},
          Case{1, "txtCalc_4", "90", "90 txtCalc_4 0"},
          Case{1, "txtCalc_4", "999", "999 txtCalc_5 0"},
          Case{0, "txtCalc_5", "99", "99 cmdSommaOre 0"},
          Case{0, "txtCalc_4", "a .5,\r", "5 txtCalc_4 0"},
          Case{0, "txtCalc_4", "5\b", " txtCalc_4 1"}}) {
        Choose("optFormat", c.Format);
        Push("cmdClear");
        EXPECT_EQ(Typed(c.Field, c.Keys), c.Outcome) << c.Field << ' ' << c.Keys;
    }
}

TEST_F(TimeSide, ARunOfDigitsLandsOnTheButton)
{
    Type(form, "013000");
    EXPECT_EQ(Focus(), "cmdSommaOre");
    Press(form, Qt::Key_Space);
    Type(form, "004500");
    Press(form, Qt::Key_Return);
    EXPECT_EQ(Row("txtCalc", 0), "02 15 00");
    Type(form, "5");
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(Row("txtCalc", 3), "5 00 00"); // leaving pads nothing here
}

}
}
