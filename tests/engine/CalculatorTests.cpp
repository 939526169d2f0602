#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/DateTime.h"
#include "engine/Moments.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <map>
#include <string>

namespace vellarno {

namespace {

/// Keeps the captions as the window would, and the order of the calls.
class RecordedLabels final : public ResultLabels
{
public:
    void SetDati(int Index, const std::string& Caption) override { Set("D", Index, Caption); }
    void SetTotali(int Index, const std::string& Caption) override { Set("T", Index, Caption); }
    void SetHourglass(bool Shown) override { Calls += Shown ? "hourglass " : "pointer "; }

    /// The captions of the labels from First to Last, split by blanks.
    std::string Show(const std::string& Array, int First, int Last) const
    {
        std::string Text;
        for (int i = First; i <= Last; ++i)
            Text += (i == First ? "" : " ") + Captions.at(Array + std::to_string(i));
        return Text;
    }

    std::string Calls;

private:
    void Set(const char* Array, int Index, const std::string& Caption)
    {
        Captions[Array + std::to_string(Index)] = Caption;
        Calls += Array + std::to_string(Index) + " ";
    }

    std::map<std::string, std::string> Captions;
};

double On(int Day, int Month, int Year)
{
    return DateSerial(Year, Month, Day);
}

TEST(CalcTimes, TimesOfOneDay)
{
    const struct
    {
        double Start, End;
        const char* Elapsed;
        const char* Totals;
    } Rows[] = {{TimeSerial(8, 15, 30), TimeSerial(10, 45, 40), "02 30 10", "02 150 9.010"},
                {TimeSerial(23, 0, 0), TimeSerial(1, 0, 0), "02 00 00", "02 120 7.200"},
                {TimeSerial(10, 0, 0), TimeSerial(10, 0, 0), "00 00 00", "00 00 00"},
                {TimeSerial(0, 0, 1), TimeSerial(0, 0, 0), "23 59 59", "23 1.439 86.399"},
                {TimeSerial(0, 0, 0), TimeSerial(23, 59, 59), "23 59 59", "23 1.439 86.399"},
                {TimeSerial(10, 0, 0), TimeSerial(10, 1, 30), "00 01 30", "00 01 90"}};
    for (const double Today : {On(15, 3, 2005), On(31, 12, 2005), On(28, 2, 2004)}) {
        for (const auto& Row : Rows) {
            RecordedLabels Labels;
            CalcTimes(Today + Row.Start, Today + Row.End, Row.End, Labels);
            EXPECT_EQ(Labels.Show("D", 3, 5), Row.Elapsed);
            EXPECT_EQ(Labels.Show("T", 6, 8), Row.Totals);
            EXPECT_EQ(Labels.Calls, "D3 D4 D5 T8 T7 T6 ");
        }
    }
}

TEST(CalcTimes, WholeDaysCountInTheTotalsOnly)
{
    RecordedLabels Labels;
    CalcTimes(On(10, 3, 2005), On(11, 3, 2005), std::nullopt, Labels);
    EXPECT_EQ(Labels.Show("D", 3, 5) + " " + Labels.Show("T", 6, 8), "00 00 00 24 1.440 86.400");
    CalcTimes(On(5, 5, 1000), On(5, 5, 2100), std::nullopt, Labels);
    EXPECT_EQ(Labels.Show("T", 6, 8), "9.642.408 578.544.480 34.712.668.800");
}

TEST(CalcDates, ElapsedFields)
{
    const struct
    {
        double Start, End;
        int Years, Months, Days;
    } Rows[] = {
        {On(1, 1, 2005), On(31, 12, 2005), 0, 11, 30},
        {On(1, 1, 2005), On(1, 1, 2006), 1, 0, 0},
        {On(10, 12, 2004), On(20, 1, 2005), 0, 1, 10},
        {On(15, 1, 2005), On(10, 3, 2006), 1, 1, 26},
        {On(31, 1, 2005), On(28, 2, 2005), 0, 0, 28},
        {On(31, 1, 2005), On(1, 3, 2005), 0, 1, 1},
        {On(30, 1, 2005), On(1, 3, 2005), 0, 1, 2},
        {On(31, 12, 2004), On(1, 1, 2005), 0, 0, 1},
        {On(15, 3, 2005), On(10, 3, 2006), 0, 11, 23},
        {On(31, 10, 2005), On(1, 10, 2006), 0, 11, 0},
        {On(31, 3, 2005), On(30, 3, 2006), 0, 11, 27},
        {On(20, 2, 2004), On(10, 1, 2005), 0, 10, 18},
        {On(29, 2, 2004), On(28, 2, 2005), 0, 11, 30},
        {On(29, 2, 2004), On(1, 3, 2005), 1, 0, 0},
        {On(29, 2, 2004), On(1, 1, 2005), 0, 10, 0},
        {On(3, 1, 2005), On(31, 12, 2005), 0, 11, 28},
        {On(20, 1, 2005), On(10, 1, 2006), 0, 11, 21}, // the month before is December
        {On(5, 5, 1000), On(5, 5, 2100), 1100, 0, 0},
        {On(10, 3, 2004) + 0.25, On(10, 3, 2005) + 0.5, 1, 0, 0},
        {On(10, 3, 2005) + 0.75, On(10, 3, 2005) + 0.25, 0, 0, 0},
        {On(31, 3, 2005), On(1, 3, 2006), 0, 11, 0}, // February is too short to lend as much
        {On(30, 3, 2005), On(1, 3, 2006), 0, 11, 0},
    };
    for (const auto& Row : Rows) {
        const DateFigures Figures = DateDifference(Row.Start, Row.End);
        EXPECT_TRUE(Figures.Years == Row.Years && Figures.Months == Row.Months &&
                    Figures.Days == Row.Days)
            << Row.Start << " to " << Row.End << ": " << Figures.Years << " " << Figures.Months
            << " " << Figures.Days;
    }
}

TEST(CalcDates, WritesEveryLabelInOrder)
{
    RecordedLabels Labels;
    CalcDates(On(1, 1, 2005), On(31, 12, 2005), false, Labels);
    EXPECT_EQ(Labels.Show("D", 0, 2), "00 11 30");
    EXPECT_EQ(Labels.Show("T", 0, 5), "364 52 303 52 52 09");
    EXPECT_EQ(Labels.Calls, "D0 D1 D2 T0 T1 T4 T3 T5 T2 pointer ");
    CalcDates(On(5, 3, 2005), On(5, 3, 2005), false, Labels);
    EXPECT_EQ(Labels.Show("D", 0, 2) + " " + Labels.Show("T", 0, 5), "00 00 00 00 00 00 00 00 00");
    CalcDates(On(5, 5, 1000), On(5, 5, 2100), true, Labels);
    EXPECT_EQ(Labels.Show("D", 0, 2), "1.100 00 00");
}

TEST(CalcDates, HourglassAboveTwentyThousandDays)
{
    for (const int Length : {20000, 20001}) {
        RecordedLabels Labels;
        CalcDates(38353, 38353 + Length, false, Labels);
        EXPECT_EQ(Labels.Calls.rfind("hourglass D0", 0) == 0, Length > 20000);
        EXPECT_TRUE(Labels.Calls.ends_with("T2 pointer "));
    }
}

std::string Press(Moment First, Moment Second, bool SaturdayIsHoliday)
{
    RecordedLabels Labels;
    const MomentPeriod Period = OrderMoments(First, Second);
    CalcTimes(Period.StartDate, Period.EndDate, std::nullopt, Labels);
    CalcDates(Period.StartDate, Period.CountedEnd, SaturdayIsHoliday, Labels);
    return Labels.Show("D", 0, 2) + " | " + Labels.Show("T", 0, 5) + " | " +
           Labels.Show("D", 3, 5) + " | " + Labels.Show("T", 6, 8);
}

struct MomentRow
{
    Moment Start, End;
    bool SaturdayIsHoliday;
    /// Years, months, days | days, weeks, working days, Saturdays, Sundays, holidays | clock |
    /// totals
    const char* Result;
};

const double Thursday = 38421; // 10/03/2005

const MomentRow MomentRows[] = {
    // The end moves to the morning; without that Saturday would count as well.
    {{Thursday, 0.25},
     {Thursday + 2, 0.75},
     false,
     "00 00 02 | 02 00 02 00 00 00 | 12 00 00 | 60 3.600 216.000"},
    // The incomplete last day goes; without that two days would have elapsed.
    {{Thursday, 0.75},
     {Thursday + 2, 0.25},
     false,
     "00 00 01 | 01 00 00 00 00 00 | 12 00 00 | 36 2.160 129.600"},
    // Both in the afternoon: nothing moves, both ends round up.
    {{Thursday, 0.75},
     {Thursday + 2, TimeSerial(20, 0, 0)},
     false,
     "00 00 02 | 02 00 02 01 00 00 | 02 00 00 | 50 3.000 180.000"},
    {{Thursday, 0.75},
     {Thursday + 2, TimeSerial(20, 0, 0)},
     true,
     "00 00 02 | 02 00 01 01 00 00 | 02 00 00 | 50 3.000 180.000"},
    // Noon is neither morning nor afternoon; a tie rounds to the even day.
    {{Thursday, 0.25},
     {Thursday + 2, 0.5},
     false,
     "00 00 02 | 02 00 03 01 00 00 | 06 00 00 | 54 3.240 194.400"},
    {{Thursday, 0.5},
     {Thursday + 2, 0.75},
     false,
     "00 00 02 | 02 00 02 01 00 00 | 06 00 00 | 54 3.240 194.400"},
    {{Thursday, TimeSerial(11, 59, 59)},
     {Thursday + 2, TimeSerial(12, 0, 1)},
     false,
     "00 00 02 | 02 00 02 00 00 00 | 00 00 02 | 48 2.880 172.802"},
    // The counted end falls before the start: Friday is walked all the same.
    {{Thursday, 0.75},
     {Thursday + 1, 0.25},
     false,
     "00 00 00 | 00 00 01 00 00 00 | 12 00 00 | 12 720 43.200"},
    {{Thursday, 0.25},
     {Thursday, 0.75},
     false,
     "00 00 00 | 00 00 00 00 00 00 | 12 00 00 | 12 720 43.200"},
    {{Thursday, 0.75},
     {Thursday, 0.75},
     false,
     "00 00 00 | 00 00 00 00 00 00 | 00 00 00 | 00 00 00"},
};

TEST(Moments, SameFiguresInEitherOrderAndEveryTimeZone)
{
    for (const char* Zone :
         {"UTC", "Europe/Rome", "Pacific/Apia", "ODD-13:47:11ODE,M3.1.4/0,M3.2.6/0"}) {
        setenv("TZ", Zone, 1);
        tzset();
        for (const auto& Row : MomentRows) {
            EXPECT_EQ(Press(Row.Start, Row.End, Row.SaturdayIsHoliday), Row.Result) << Zone;
            EXPECT_EQ(Press(Row.End, Row.Start, Row.SaturdayIsHoliday), Row.Result) << Zone;
        }
    }
    unsetenv("TZ");
    tzset();
}

}

}
