#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/DateTime.h"
#include "engine/Moments.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <map>
#include <string>
#include <tuple>

using namespace vellarno;

namespace {

/// Keeps the captions as the window would, and the order of the calls.
class RecordedLabels final : public ResultLabels
{
public:
    void SetDati(int Index, const std::string& Caption) override { Set('D', Index, Caption); }
    void SetTotali(int Index, const std::string& Caption) override { Set('T', Index, Caption); }
    void SetHourglass(bool Shown) override { Calls += Shown ? "hourglass " : "pointer "; }

    std::string Show(char Array, int First, int Last) const
    {
        std::string Text = Captions.at({Array, First});
        while (First < Last) Text += " " + Captions.at({Array, ++First});
        return Text;
    }

    std::string Calls;

private:
    void Set(char Array, int Index, const std::string& Caption)
    {
        Captions[{Array, Index}] = Caption;
        Calls += Array + std::to_string(Index) + " ";
    }

    std::map<std::pair<char, int>, std::string> Captions;
};

double On(int Day, int Month, int Year)
{
    return DateSerial(Year, Month, Day);
}

}

TEST(CalcTimes, TimesOfOneDayAndLongSpans)
{
    const std::tuple<double, double, const char*> Rows[] = {
        {TimeSerial(8, 15, 30), TimeSerial(10, 45, 40), "02 30 10 | 02 150 9.010"},
        {TimeSerial(23, 0, 0), TimeSerial(1, 0, 0), "02 00 00 | 02 120 7.200"},
        {TimeSerial(10, 0, 0), TimeSerial(10, 0, 0), "00 00 00 | 00 00 00"},
        {TimeSerial(0, 0, 1), TimeSerial(0, 0, 0), "23 59 59 | 23 1.439 86.399"},
        {TimeSerial(0, 0, 0), TimeSerial(23, 59, 59), "23 59 59 | 23 1.439 86.399"},
        {TimeSerial(10, 0, 0), TimeSerial(10, 1, 30), "00 01 30 | 00 01 90"}};
    for (const double Today : {On(15, 3, 2005), On(31, 12, 2005), On(28, 2, 2004)}) {
        for (const auto& [Start, End, Result] : Rows) {
            RecordedLabels Labels;
            CalcTimes(Today + Start, Today + End, End, Labels);
            EXPECT_EQ(Labels.Show('D', 3, 5) + " | " + Labels.Show('T', 6, 8), Result);
            EXPECT_EQ(Labels.Calls, "D3 D4 D5 T8 T7 T6 ");
        }
    }
    RecordedLabels Labels;
    CalcTimes(On(5, 5, 1000), On(5, 5, 2100), std::nullopt, Labels);
    EXPECT_EQ(Labels.Show('D', 3, 5) + " | " + Labels.Show('T', 6, 8),
              "00 00 00 | 9.642.408 578.544.480 34.712.668.800");
}

TEST(CalcDates, ElapsedFields)
{
    const std::tuple<double, double, std::tuple<int, int, int>> Rows[] = {
        {On(1, 1, 2005), On(31, 12, 2005), {0, 11, 30}},
        {On(1, 1, 2005), On(1, 1, 2006), {1, 0, 0}},
        {On(10, 12, 2004), On(20, 1, 2005), {0, 1, 10}},
        {On(15, 1, 2005), On(10, 3, 2006), {1, 1, 26}},
        {On(31, 1, 2005), On(28, 2, 2005), {0, 0, 28}},
        {On(31, 1, 2005), On(1, 3, 2005), {0, 1, 1}},
        {On(30, 1, 2005), On(1, 3, 2005), {0, 1, 2}},
        {On(31, 12, 2004), On(1, 1, 2005), {0, 0, 1}},
        {On(15, 3, 2005), On(10, 3, 2006), {0, 11, 23}},
        {On(31, 10, 2005), On(1, 10, 2006), {0, 11, 0}},
        {On(31, 3, 2005), On(30, 3, 2006), {0, 11, 27}},
        {On(20, 2, 2004), On(10, 1, 2005), {0, 10, 18}},
        {On(29, 2, 2004), On(28, 2, 2005), {0, 11, 30}},
        {On(29, 2, 2004), On(1, 3, 2005), {1, 0, 0}},
        {On(29, 2, 2004), On(1, 1, 2005), {0, 10, 0}},
        {On(3, 1, 2005), On(31, 12, 2005), {0, 11, 28}},
        {On(20, 1, 2005), On(10, 1, 2006), {0, 11, 21}}, // the month before is December
        {On(10, 3, 2004) + 0.25, On(10, 3, 2005) + 0.5, {1, 0, 0}},
        {On(10, 3, 2005) + 0.75, On(10, 3, 2005) + 0.25, {0, 0, 0}},
        {On(31, 3, 2005), On(1, 3, 2006), {0, 11, 0}}, // February is too short to lend as much
        {On(30, 3, 2005), On(1, 3, 2006), {0, 11, 0}},
    };
    for (const auto& [Start, End, Result] : Rows) {
        const DateFigures Figures = DateDifference(Start, End);
        EXPECT_EQ(std::tuple(Figures.Years, Figures.Months, Figures.Days), Result)
            << Start << " to " << End;
    }
}

TEST(CalcDates, WritesEveryLabelInOrder)
{
    RecordedLabels Labels;
    CalcDates(On(1, 1, 2005), On(31, 12, 2005), false, Labels);
    EXPECT_EQ(Labels.Show('D', 0, 2) + " | " + Labels.Show('T', 0, 5),
              "00 11 30 | 364 52 303 52 52 09");
    EXPECT_EQ(Labels.Calls, "D0 D1 D2 T0 T1 T4 T3 T5 T2 pointer ");
    CalcDates(On(5, 5, 1000), On(5, 5, 2100), true, Labels);
    EXPECT_EQ(Labels.Show('D', 0, 2), "1.100 00 00");

    for (const int Length : {20000, 20001}) {
        Labels.Calls.clear();
        CalcDates(38353, 38353 + Length, false, Labels);
        EXPECT_EQ(Labels.Calls.starts_with("hourglass D0"), Length > 20000);
        EXPECT_TRUE(Labels.Calls.ends_with("T2 pointer "));
    }
}

static std::string Press(Moment First, Moment Second, bool SaturdayIsHoliday)
{
    RecordedLabels Labels;
    const MomentPeriod Period = OrderMoments(First, Second);
    CalcTimes(Period.StartDate, Period.EndDate, std::nullopt, Labels);
    CalcDates(Period.StartDate, Period.CountedEnd, SaturdayIsHoliday, Labels);
    return Labels.Show('D', 0, 5) + " | " + Labels.Show('T', 0, 5) + " | " + Labels.Show('T', 6, 8);
}

TEST(Moments, SameFiguresInEitherOrderAndInEveryTimeZone)
{
    const double Thursday = On(10, 3, 2005);
    const struct
    {
        double StartTime, EndTime; ///< the start on a Thursday
        const char* Result;
        int Days = 2;
        bool SaturdayIsHoliday = false;
    } Rows[] = {// An afternoon end moves to the morning: else Saturday would count as well.
                {0.25, 0.75, "00 00 02 12 00 00 | 02 00 02 00 00 00 | 60 3.600 216.000"},
                // An incomplete last day goes: else two days would have elapsed.
                {0.75, 0.25, "00 00 01 12 00 00 | 01 00 00 00 00 00 | 36 2.160 129.600"},
                // Two afternoons stay and both round up, to Friday and Sunday.
                {0.75, 0.875, "00 00 02 03 00 00 | 02 00 02 01 00 00 | 51 3.060 183.600"},
                {0.75, 0.875, "00 00 02 03 00 00 | 02 00 01 01 00 00 | 51 3.060 183.600", 2, true},
                // Noon is neither morning nor afternoon, and rounds to the even day.
                {0.25, 0.5, "00 00 02 06 00 00 | 02 00 03 01 00 00 | 54 3.240 194.400"},
                {0.5, 0.75, "00 00 02 06 00 00 | 02 00 02 01 00 00 | 54 3.240 194.400"},
                // Whole days; the week isn't complete before Monday.
                {0.25, 0.25, "00 00 03 00 00 00 | 03 00 03 01 00 00 | 72 4.320 259.200", 3},
                // The counted end rounds to a day before the start: Friday counts all the same.
                {0.75, 0.25, "00 00 00 12 00 00 | 00 00 01 00 00 00 | 12 720 43.200", 1},
                {0.25, 0.75, "00 00 00 12 00 00 | 00 00 00 00 00 00 | 12 720 43.200", 0},
                {0.75, 0.75, "00 00 00 00 00 00 | 00 00 00 00 00 00 | 00 00 00", 0}};
    for (const char* Zone : {"UTC", "Pacific/Apia", "ODD-13:47:11ODE,M3.1.4/0,M3.2.6/0"}) {
        setenv("TZ", Zone, 1);
        tzset();
        for (const auto& Row : Rows) {
            const Moment Start{Thursday, Row.StartTime};
            const Moment End{Thursday + Row.Days, Row.EndTime};
            EXPECT_EQ(Press(Start, End, Row.SaturdayIsHoliday), Row.Result) << Zone;
            EXPECT_EQ(Press(End, Start, Row.SaturdayIsHoliday), Row.Result) << Zone;
        }
    }
    unsetenv("TZ");
    tzset();
}
