#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Text.h"
#include "tests/engine/PlainCalendar.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <random>
#include <string>

namespace vellarno {

namespace {

double At(int Hours, int Minutes, int Seconds)
{
    return (Hours * 3600 + Minutes * 60 + Seconds) / 86400.0;
}

std::string Show(double x)
{
    return Format(Day(x), "00") + "/" + Format(Month(x), "00") + "/" + CStr(Year(x)) + " " +
           Format(x, "hh.mm.ss");
}

TEST(DateTime, EveryDayOfTheCalendar)
{
    for (PlainDay i; i.Year < 10000; i.Step()) {
        const bool Same = Year(i.Serial) == i.Year && Month(i.Serial) == i.Month &&
                          Day(i.Serial + 0.99) == i.Day &&
                          DateSerial(i.Year, i.Month, i.Day) == i.Serial &&
                          Weekday(i.Serial, 1) == i.Weekday;
        ASSERT_TRUE(Same) << i.Day << "/" << i.Month << "/" << i.Year;
    }
}

TEST(DateTime, DateSerialCarriesAndReadsShortYears)
{
    const struct
    {
        int Year, Month, Day;
        const char* Result;
    } Rows[] = {
        {2005, 3, 0, "28/02/2005"},   {2004, 3, 0, "29/02/2004"},   {1900, 3, 0, "28/02/1900"},
        {2000, 3, 0, "29/02/2000"},   {2005, 13, 0, "31/12/2005"},  {2006, 1, 0, "31/12/2005"},
        {2005, 4, 31, "01/05/2005"},  {2005, 12, 32, "01/01/2006"}, {2005, 0, 15, "15/12/2004"},
        {2005, -12, 1, "01/12/2003"}, {2005, 1, -30, "01/12/2004"}, {0, 1, 1, "01/01/2000"},
        {29, 1, 1, "01/01/2029"},     {30, 1, 1, "01/01/1930"},     {99, 1, 1, "01/01/1999"},
        {100, 1, 1, "01/01/100"}};
    for (const auto& Row : Rows)
        EXPECT_EQ(Show(DateSerial(Row.Year, Row.Month, Row.Day)),
                  Row.Result + std::string(" 00.00.00"));
}

TEST(DateTime, TimeOfDayCountsUpwardAlsoBeforeSerialZero)
{
    EXPECT_EQ(TimeSerial(12, 0, 0), 0.5);
    EXPECT_EQ(Show(-0.75), "29/12/1899 06.00.00");
    EXPECT_EQ(Show(1.5), "31/12/1899 12.00.00");
    EXPECT_EQ(Show(1 - 1e-9), "30/12/1899 00.00.00") << "rounds to midnight, on the same day";
    EXPECT_EQ(Weekday(-0.75, 1), 6);
    for (int Number = 1; Number <= 7; ++Number)
        EXPECT_EQ(Weekday(Number, 2), Number == 1 ? 7 : Number - 1);
}

TEST(DateTime, DifferencesKeepEverySecond)
{
    std::mt19937 Random(1);
    for (const int Base : {-328716, -1, 38353, 40000, 73415}) {
        for (int i = 0; i < 2000; ++i) {
            const auto Start = static_cast<int>(Random() % 86400);
            const auto Span = static_cast<int>(Random() % 86400);
            const auto Days = static_cast<int>(Random() % 400000);
            const int End = Start + Span;
            const double Elapsed =
                (Base + Days + End / 86400 + At(0, 0, End % 86400)) - (Base + At(0, 0, Start));
            ASSERT_EQ(Hour(Elapsed) * 3600 + Minute(Elapsed) * 60 + Second(Elapsed), Span);
            ASSERT_LT(Minute(Elapsed), 60);
        }
    }
}

TEST(DateTime, DateAdd)
{
    const struct
    {
        const char* Interval;
        int Number;
        double x;
        const char* Result;
    } Rows[] = {
        {"m", 1, DateSerial(2005, 1, 31), "28/02/2005 00.00.00"},
        {"m", 1, DateSerial(2020, 1, 31), "29/02/2020 00.00.00"},
        {"m", 2, DateSerial(2005, 1, 31), "31/03/2005 00.00.00"},
        {"m", 12, DateSerial(2004, 2, 29) + 0.5, "28/02/2005 12.00.00"},
        {"m", -1, DateSerial(2005, 3, 31), "28/02/2005 00.00.00"},
        {"m", -14, DateSerial(2005, 1, 15), "15/11/2003 00.00.00"},
        {"q", 1, DateSerial(2005, 3, 31), "30/06/2005 00.00.00"},
        {"q", 1, DateSerial(2019, 11, 30), "29/02/2020 00.00.00"},
        {"q", -99, DateSerial(2005, 3, 31), "30/06/1980 00.00.00"},
        {"m", 1, -0.75, "29/01/1900 06.00.00"},
        {"ww", 2, DateSerial(2021, 6, 15), "29/06/2021 00.00.00"},
        {"d", -1, DateSerial(2020, 3, 1) + 0.25, "29/02/2020 06.00.00"},
        {"h", 2, At(23, 0, 0), "31/12/1899 01.00.00"},
        {"n", 125, At(23, 0, 0), "31/12/1899 01.05.00"},
        {"n", -60, At(0, 10, 0), "29/12/1899 23.10.00"},
        {"s", -1, 0, "29/12/1899 23.59.59"},
        {"s", 1, DateSerial(2005, 12, 31) + At(23, 59, 59), "01/01/2006 00.00.00"},
        {"s", 1, DateSerial(9998, 12, 31) + At(23, 59, 59), "01/01/9999 00.00.00"},
    };
    for (const auto& Row : Rows) {
        const auto Result = DateAdd(Row.Interval, Row.Number, Row.x);
        ASSERT_TRUE(Result) << Row.Result;
        EXPECT_EQ(Show(*Result), Row.Result) << Row.Interval << " " << Row.Number;
    }
}

TEST(DateTime, DateAddFailsOutsideTheCalendar)
{
    const double Last = DateSerial(9999, 12, 31);
    EXPECT_EQ(DateAdd("d", -1, DateSerial(100, 1, 2)), FirstDate);
    EXPECT_EQ(DateAdd("m", 1, DateSerial(9999, 11, 30)), Last - 1);
    for (const char* Interval : {"s", "n", "h", "d", "ww", "m", "q"}) {
        EXPECT_FALSE(DateAdd(Interval, -1, FirstDate)) << Interval;
        EXPECT_FALSE(DateAdd(Interval, 1, Last + At(23, 59, 59))) << Interval;
    }
    for (const int Number : {INT32_MIN, -65536 * 12, 65536 * 12, INT32_MAX}) {
        EXPECT_FALSE(DateAdd("m", Number, 38353)) << Number;
        EXPECT_FALSE(DateAdd("ww", Number, 38353)) << Number;
    }
    EXPECT_FALSE(DateAdd("x", 1, 38353));
}

TEST(DateTime, DateDiff)
{
    const double LateEvening = DateSerial(2000, 1, 1) + At(23, 59, 59);
    const double EarlyMorning = DateSerial(2000, 1, 2) + At(0, 0, 1);
    EXPECT_EQ(DateDiff("d", LateEvening, EarlyMorning), 1);
    EXPECT_EQ(DateDiff("y", EarlyMorning, LateEvening), -1);
    EXPECT_EQ(DateDiff("s", LateEvening, EarlyMorning), 2);
    EXPECT_EQ(DateDiff("s", DateSerial(1000, 5, 5), DateSerial(2100, 5, 5)), 34712668800);

    for (int First = 1; First <= 7; ++First) {
        for (int From = -15; From < 0; ++From) {
            int Crossings = 0;
            for (int To = From; To < 30; ++To) {
                if (To > From && (To % 7 + 13) % 7 + 1 == First) ++Crossings;
                ASSERT_EQ(DateDiff("ww", From + 0.9, To + 0.1, First), Crossings);
                ASSERT_EQ(DateDiff("ww", To, From, First), -Crossings);
            }
        }
    }
}

TEST(DateTime, Quarters)
{
    std::string Quarters;
    for (int Month = 1; Month <= 12; ++Month)
        Quarters += CStr(DatePart("q", DateSerial(2005, Month + 1, 0)));
    EXPECT_EQ(Quarters, "111222333444");
}

TEST(Clock, SystemClockIsLocalTimeInWholeSeconds)
{
    const auto NowIn = [](const char* Zone) {
        setenv("TZ", Zone, 1);
        tzset();
        return Now();
    };
    const std::time_t Before = std::time(nullptr);
    const double West = NowIn("A12");
    const double East = NowIn("B-13:45");
    EXPECT_EQ(Date(), static_cast<int>(East));
    unsetenv("TZ");
    tzset();

    const double Expected = DateSerial(1970, 1, 1) + static_cast<double>(Before) / 86400 - 0.5;
    EXPECT_NEAR((West - Expected) * 86400, 0, 5);
    EXPECT_NEAR((East - West) * 86400, 25.75 * 3600, 5);
    EXPECT_NEAR(West * 86400, std::round(West * 86400), 1e-3);
}

TEST(Clock, CanBeSet)
{
    SetClock([] { return -0.75; });
    EXPECT_EQ(Now(), -0.75);
    EXPECT_EQ(Date(), -1);
    SetClock(nullptr);
    EXPECT_GT(Now(), DateSerial(2020, 1, 1));
}

}

}
