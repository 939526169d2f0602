#include "minicalc/Accumulators.h"
#include "tests/minicalc/Calculator.h"

#include <array>
#include <random>

namespace vellarno::test {
namespace {

constexpr const char* NoDate = "La data immessa non è valida, il calcolo non può essere eseguito.";
constexpr const char* YearLimit =
    "Massimo valore consentito per il calcolo con le date è l'anno 2300";

class DateSide : public Calculator
{
protected:
    DateSide() { Click(optBase[Date]); }

    void Step(const std::string& From, int Unit, int Operation, const std::string& Quantity)
    {
        optTipoDati[Unit].SetValue(true);
        optSommaData[Operation].SetValue(true);
        Write(txtData, 0, From);
        txtSommaDati.SetText(Quantity);
        desktop.Beeps = 0;
        Click(cmdSommaData);
    }

    std::string MessageShown()
    {
        const auto shown = std::exchange(desktop.Messages, {});
        EXPECT_LE(shown.size(), 1U);
        if (shown.empty()) return {};
        EXPECT_EQ(shown[0].Title, "Vellarno");
        EXPECT_EQ(shown[0].Style, shown[0].Prompt == NoDate ? forms::Critical : forms::Information);
        return shown[0].Prompt;
    }
};

TEST_F(DateSide, Steps)
{
    struct Case
    {
        const char* From;
        int Unit, Operation;
        const char *Quantity, *Result;
    };
    for (const Case& c : {
             Case{"31/01/2020", 2, 0, "001", "29/02/2020"},
             Case{"29/02/2020", 2, 0, "1", "29/03/2020"},
             Case{"31/01/2021", 2, 0, "001", "28/02/2021"},
             Case{"31/03/2021", 2, 1, "001", "28/02/2021"},
             Case{"30/11/2019", 3, 0, "01", "29/02/2020"},
             Case{"31/12/2020", 0, 0, "0001", "01/01/2021"},
             Case{"01/03/2020", 0, 1, "0001", "29/02/2020"},
             Case{"15/06/2021", 1, 0, "002", "29/06/2021"},
             Case{"5/6/2021", 0, 0, "0000", "05/06/2021"},
             Case{"01/01/21", 0, 0, "0", "01/01/2021"},
             Case{"01/01/30", 0, 0, "0", "01/01/1930"},
             Case{"31/12/2300", 3, 1, "99", "31/03/2276"},
             Case{"01/01/2273", 0, 0, "9999", "19/05/2300"},
             Case{"01/02/100", 2, 1, "1", "01/01/0100"},
         }) {
        Step(c.From, c.Unit, c.Operation, c.Quantity);
        EXPECT_EQ(Day(), c.Result) << c.From << ' ' << c.Quantity;
        EXPECT_EQ(MessageShown(), "");
        EXPECT_EQ(txtSommaDati.Text(), c.Quantity);
        EXPECT_EQ(Focus(), "txtSommaDati");
        EXPECT_EQ(txtSommaDati.SelLength(), static_cast<int>(txtSommaDati.Text().size()));
    }
}

/// A calendar day that counts for itself.
struct PlainDate
{
    int Day, Month, Year;

    int MonthLength() const
    {
        const bool leap = (Year % 4 == 0 && Year % 100 != 0) || Year % 400 == 0;
        constexpr std::array lengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        return lengths.at(static_cast<std::size_t>(Month - 1)) + (Month == 2 && leap ? 1 : 0);
    }
    void AddMonths(int Count)
    {
        const int months = Year * 12 + Month - 1 + Count;
        Year = months / 12;
        Month = months % 12 + 1;
        Day = std::min(Day, MonthLength());
    }
    /// Month by month, to the first of the next or the last of the one before.
    void AddDays(int Count)
    {
        for (Day += Count; Day > MonthLength(); AddFirst(1)) Day -= MonthLength();
        while (Day < 1) {
            AddFirst(-1);
            Day += MonthLength();
        }
    }
    void AddFirst(int Count)
    {
        const int day = std::exchange(Day, 1);
        AddMonths(Count);
        Day = day;
    }
    std::string Text() const
    {
        return Format(Day, "00") + '/' + Format(Month, "00") + '/' + Format(Year, "0000");
    }
};

TEST_F(DateSide, RandomStepsAgreeWithPlainMonths)
{
    std::mt19937 random(20261122);
    const auto within = [&](int Low, int High) {
        return std::uniform_int_distribution(Low, High)(random);
    };
    constexpr std::array highest{9999, 999, 999, 99};
    for (int i = 0; i < 400; ++i) {
        PlainDate date{1, within(1, 12), within(200, 2200)};
        date.Day = within(1, date.MonthLength());
        const int unit = within(0, 3), operation = within(0, 1);
        const int quantity = within(0, highest.at(static_cast<std::size_t>(unit)));
        const std::string from = date.Text();
        const int signedQuantity = operation == 0 ? quantity : -quantity;
        Step(from, unit, operation, CStr(quantity));
        if (unit < 2)
            date.AddDays(unit == 0 ? signedQuantity : 7 * signedQuantity);
        else
            date.AddMonths(unit == 2 ? signedQuantity : 3 * signedQuantity);
        ASSERT_EQ(Day(), date.Text()) << from << ' ' << unit << ' ' << signedQuantity;
    }
    EXPECT_TRUE(desktop.Messages.empty());
}

TEST_F(DateSide, FailureLeavesTheFieldsAsTheyWere)
{
    struct Case
    {
        const char* From;
        int Unit, Operation;
        const char* Quantity;
    };
    for (const Case& c : {
             Case{"31/04/2021", 0, 0, "1"}, Case{"29/02/2021", 0, 0, "0"},
             Case{"00/05/2021", 0, 0, "1"}, Case{"05/00/2021", 0, 0, "1"},
             Case{"05//2021", 0, 0, "1"},   Case{"01/05/2021", 0, 0, ""},
             Case{"01/05/2021", 0, 0, "x"}, Case{"01/01/0100", 0, 1, "1"},
             Case{"15/03/0101", 2, 1, "15"},
         }) {
        Step(c.From, c.Unit, c.Operation, c.Quantity);
        EXPECT_EQ(MessageShown(), NoDate) << c.From;
        EXPECT_EQ(Day(), c.From);
        EXPECT_EQ(txtSommaDati.Text(), c.Quantity);
        EXPECT_EQ(Focus(), "txtData_0");
    }
}

TEST_F(DateSide, AYearAboveTheLimitBringsTodayBack)
{
    optTipoDati[3].SetValue(true);
    txtSommaDati.SetText("7");
    EXPECT_EQ(Typed(txtData[2], "2300"), "2300 txtSommaDati 0");
    EXPECT_EQ(Typed(txtData[2], "2301"), "2026 txtSommaDati 2");
    EXPECT_EQ(MessageShown(), YearLimit);
    EXPECT_EQ(Day() + ' ' + txtSommaDati.Text(), "22/11/2026 00");

    Step("15/03/2300", 3, 0, "04");
    EXPECT_EQ(MessageShown(), YearLimit);
    EXPECT_EQ(desktop.Beeps, 2);
    EXPECT_EQ(Day() + ' ' + txtSommaDati.Text(), "22/11/2026 00");
    EXPECT_EQ(Focus(), "txtSommaDati");
}

TEST_F(DateSide, TypingRefusesAndGoesOn)
{
    struct Case
    {
        int Field;
        const char *Keys, *Outcome;
    };
    for (const Case& c : {
             Case{0, "31", "31 txtData_1 0"},
             Case{0, "32", " txtData_0 2"},
             Case{0, "00", "00 txtData_1 0"},
             Case{1, "12", "12 txtData_2 0"},
             Case{1, "13", " txtData_1 2"},
             Case{1, "00", "00 txtData_2 0"},
             Case{2, "21", "21 txtData_2 0"},
             Case{2, "0999", "0999 txtSommaDati 0"},
         }) {
        Click(cmdClear);
        EXPECT_EQ(Typed(txtData[c.Field], c.Keys), c.Outcome) << c.Field << ' ' << c.Keys;
    }
    EXPECT_EQ(Typed(txtSommaDati, "12345"), "1234 txtSommaDati 0");
    EXPECT_EQ(BeepsOf([&] { txtSommaDati.SetText(""); }), 0);
    EXPECT_EQ(BeepsOf([&] { txtData[1].SetText(""); }), 1);
}

TEST_F(DateSide, DepartureFillsDayAndMonthAndGoesOn)
{
    Typed(txtData[0], "5");
    Click(cmdClear); // the click still reaches its button
    EXPECT_EQ(Day(), "22/11/2026");
    Typed(txtData[0], "0");
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(Day() + ' ' + Focus(), "00/11/2026 txtData_1");
    Type(form, "6");
    Press(form, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Day() + ' ' + Focus(), "00/06/2026 txtData_2");
    Type(form, "7");
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(Day(), "00/06/7");
    EXPECT_EQ(desktop.Beeps, 0);
    Typed(txtData[0], "5");
    Click(cmdSommaData);
    EXPECT_EQ(Day(), "05/06/2007");
}

TEST_F(DateSide, TheSameStepIsRepeated)
{
    optTipoDati[2].SetValue(true);
    Write(txtData, 0, "31/01/2020");
    Typed(txtSommaDati, "001");
    for (const char* result : {"29/02/2020", "29/03/2020", "29/04/2020"}) {
        Click(cmdSommaData);
        EXPECT_EQ(Day(), result);
    }
}

}
}
