#include "tests/minicalc/Calculator.h"

#include <algorithm>

namespace vellarno::test {
namespace {

constexpr const char* NoDate = "La data immessa non è valida, il calcolo non può essere eseguito.";
constexpr const char* YearLimit =
    "Massimo valore consentito per il calcolo con le date è l'anno 2300";

class DateSide : public Calculator
{
protected:
    DateSide() { Choose("optBase", 1); }

    /// Takes one step; gives the message that was shown.
    std::string Step(const std::string& From, int Unit, int Operation, const std::string& Quantity)
    {
        Choose("optTipoDati", Unit);
        Choose("optSommaData", Operation);
        Fill("txtData", 0, From);
        Box("txtSommaDati").SetText(Quantity);
        Push("cmdSommaData");
        return Message();
    }
    std::string Message()
    {
        const auto shown = std::exchange(desktop.Messages, {});
        if (shown.empty()) return {};
        EXPECT_EQ(shown.size(), 1U);
        EXPECT_EQ(shown[0].Title, "Vellarno");
        EXPECT_EQ(shown[0].Style, shown[0].Prompt == NoDate ? forms::Critical : forms::Information);
        return shown[0].Prompt;
    }
    /// The date, the quantity and the focus.
    std::string State()
    {
        return Row("txtData", 0) + ", " + Box("txtSommaDati").Text() + ", " + Focus();
    }
};

TEST_F(DateSide, StepsAndFailures)
{
    struct Case
    {
        const char* From;
        int Unit, Operation;
        const char *Quantity, *Result; ///< no result: refused
    };
    for (const Case& c : {Case{"31 01 2020", 2, 0, "001", "29 02 2020"},
                          Case{"29 02 2020", 2, 0, "1", "29 03 2020"},
                          Case{"31 01 2021", 2, 0, "001", "28 02 2021"},
                          Case{"31 03 2021", 2, 1, "1", "28 02 2021"},
                          Case{"30 11 2019", 3, 0, "01", "29 02 2020"},
                          Case{"31 12 2020", 0, 0, "1", "01 01 2021"},
                          Case{"01 03 2020", 0, 1, "0001", "29 02 2020"},
                          Case{"15 06 2021", 1, 0, "2", "29 06 2021"},
                          Case{"5 6 21", 0, 0, "0000", "05 06 2021"},
                          Case{"01 01 30", 0, 0, "0", "01 01 1930"},
                          Case{"01 02 100", 2, 1, "1", "01 01 0100"},
                          Case{"01 01 0100", 0, 1, "1", nullptr},
                          Case{"31 04 2021", 0, 0, "1", nullptr},
                          Case{"29 02 2021", 0, 0, "0", nullptr},
                          Case{"00 05 2021", 0, 0, "1", nullptr},
                          Case{"05 00 2021", 0, 0, "1", nullptr},
                          Case{"05  2021", 0, 0, "1", nullptr},
                          Case{"01 05 2021", 0, 0, "", nullptr},
                          Case{"01 05 2021", 0, 0, "x", nullptr},
                          Case{"15 03 0101", 2, 1, "15", nullptr}}) {
        EXPECT_EQ(Step(c.From, c.Unit, c.Operation, c.Quantity), c.Result ? "" : NoDate) << c.From;
        const std::string after = c.Result ? c.Result : c.From;
        EXPECT_EQ(State(),
                  after + ", " + c.Quantity + (c.Result ? ", txtSommaDati" : ", txtData_0"));
    }
}

/// A day that is counted on the fingers.
struct PlainDate
{
    int Day, Month, Year;

    int MonthLength() const
    {
        const bool leap = (Year % 4 == 0 && Year % 100 != 0) || Year % 400 == 0;
        if (Month == 2) return leap ? 29 : 28;
        return Month == 4 || Month == 6 || Month == 9 || Month == 11 ? 30 : 31;
    }
    void Turn(int Months)
    {
        const int all = Year * 12 + Month - 1 + Months;
        Year = all / 12;
        Month = all % 12 + 1;
    }
    void AddMonths(int Count)
    {
        Turn(Count);
        Day = std::min(Day, MonthLength());
    }
    void AddDays(int Count)
    {
        for (Day += Count; Day > MonthLength(); Turn(1)) Day -= MonthLength();
        for (; Day < 1; Day += MonthLength()) Turn(-1);
    }
    std::string Text() const
    {
        return Format(Day, "00") + ' ' + Format(Month, "00") + ' ' + Format(Year, "0000");
    }
};

TEST_F(DateSide, RandomStepsAgreeWithPlainMonths)
{
    for (int i = 0; i < 400; ++i) {
        PlainDate date{1, Within(1, 12), Within(200, 2200)};
        date.Day = Within(1, date.MonthLength());
        const int unit = Within(0, 3), operation = Within(0, 1);
        const int quantity = Within(0, unit == 0 ? 9999 : unit == 3 ? 99 : 999);
        const std::string from = date.Text();
        EXPECT_EQ(Step(from, unit, operation, CStr(quantity)), "");
        const int step = (operation == 0 ? quantity : -quantity) * (unit == 1   ? 7
                                                                    : unit == 3 ? 3
                                                                                : 1);
        unit < 2 ? date.AddDays(step) : date.AddMonths(step);
        ASSERT_EQ(Row("txtData", 0), date.Text()) << from << " / " << unit << " / " << step;
    }
}

TEST_F(DateSide, AYearAboveTheLimitBringsTodayBackWhole)
{
    EXPECT_EQ(Typed("txtData_2", "2300"), "2300 txtSommaDati 0");
    EXPECT_EQ(Typed("txtData_2", "2301"), "2026 txtSommaDati 2");
    EXPECT_EQ(Message(), YearLimit);
    desktop.Beeps = 0;
    EXPECT_EQ(Step("15 03 2300", 3, 0, "04"), YearLimit);
    EXPECT_EQ(desktop.Beeps, 2);
    EXPECT_EQ(State(), "22 11 2026, 00, txtSommaDati");
}

TEST_F(DateSide, TypingRefusesAndGoesOn)
{
    for (const auto& [field, keys, outcome] : std::initializer_list<std::array<const char*, 3>>{
             {"txtData_0", "31", "31 txtData_1 0"},
             {"txtData_0", "32", " txtData_0 2"},
             {"txtData_0", "00", "00 txtData_1 0"},
             {"txtData_1", "13", " txtData_1 2"},
             {"txtData_1", "12", "12 txtData_2 0"},
             {"txtData_2", "21", "21 txtData_2 0"},
             {"txtData_1", "5\b", " txtData_1 1"},
             {"txtData_2", "0999", "0999 txtSommaDati 0"},
             {"txtSommaDati", "5\b", " txtSommaDati 0"},
             {"txtSommaDati", "x1", "1 txtSommaDati 0"}}) {
        Push("cmdClear");
        EXPECT_EQ(Typed(field, keys), outcome) << field << ' ' << keys;
    }
}

TEST_F(DateSide, DepartureFillsDayAndMonthAndGoesOn)
{
    Typed("txtData_0", "0");
    Press(form, Qt::Key_Tab);
    Type(form, "6");
    Press(form, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(State(), "00 06 2026, 0000, txtData_2");
    Type(form, "7");
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(Row("txtData", 0), "00 06 7");
    EXPECT_EQ(desktop.Beeps, 0);
    Typed("txtData_0", "5");
    Push("cmdSommaData"); // the focus goes to the month, the click still to its button
    EXPECT_EQ(State(), "05 06 2007, 0000, txtSommaDati");
}

}
}
