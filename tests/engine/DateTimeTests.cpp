#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Text.h"
#include "tests/engine/PlainCalendar.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <ctime>
#include <random>
#include <string>
#include <tuple>

using namespace vellarno;

namespace {

std::string Show(double x)
{
    return Format(x, "dd/") + Format(Month(x), "00") + Format(x, "/yyyy hh.mm.ss");
}

}

TEST(DateTime, EveryDayOfTheCalendar)
{
    for (PlainDay i; i.Year < 10000; i.Step()) {
        const bool Same = Year(i.Serial) == i.Year && Month(i.Serial) == i.Month &&
                          Day(i.Serial + 0.99) == i.Day && Weekday(i.Serial, 1) == i.Weekday &&
                          DateSerial(i.Year, i.Month, i.Day) == i.Serial;
        ASSERT_TRUE(Same) << i.Day << "/" << i.Month << "/" << i.Year;
    }
}

TEST(DateTime, DateSerialCarriesAndReadsShortYears)
{
    const std::tuple<int, int, int, const char*> Rows[] = {
        {2005, 3, 0, "28/02/2005"},  {2004, 3, 0, "29/02/2004"},   {1900, 3, 0, "28/02/1900"},
        {2000, 3, 0, "29/02/2000"},  {2005, 13, 0, "31/12/2005"},  {2006, 1, 0, "31/12/2005"},
        {2005, 4, 31, "01/05/2005"}, {2005, 12, 32, "01/01/2006"}, {2005, -12, 1, "01/12/2003"},
        {0, 1, 1, "01/01/2000"},     {29, 1, 1, "01/01/2029"},     {30, 1, 1, "01/01/1930"},
        {99, 1, 1, "01/01/1999"},    {100, 1, 1, "01/01/0100"}};
    for (const auto& [Year, Month, Day, Result] : Rows)
        EXPECT_EQ(Show(DateSerial(Year, Month, Day)), Result + std::string(" 00.00.00"));
}

TEST(DateTime, TimeOfDayCountsUpwardAlsoBeforeSerialZero)
{
    EXPECT_EQ(TimeSerial(12, 0, 0), 0.5);
    EXPECT_EQ(Show(-0.75), "29/12/1899 06.00.00");
    EXPECT_EQ(Show(1.5), "31/12/1899 12.00.00");
    EXPECT_EQ(Show(1 - 1e-9), "30/12/1899 00.00.00");
    for (int i = 1; i <= 7; ++i) EXPECT_EQ(Weekday(i - 6.25, 2), (i + 5) % 7 + 1);
}

TEST(DateTime, DifferencesKeepEverySecond)
{
    std::mt19937 Random(1); // NOLINT(cert-msc51-cpp): the same cases in each run
    std::uniform_int_distribution Seconds(0, 86399);
    for (const int Base : {-328716, -1, 38353, 73415}) {
        for (int i = 0; i < 2000; ++i) {
            const int Start = Seconds(Random);
            const int Span = Seconds(Random);
            const int End = Start + Span;
            const int EndDay = Base + i + End / 86400;
            const double Elapsed =
                (EndDay + TimeSerial(0, 0, End % 86400)) - (Base + TimeSerial(0, 0, Start));
            ASSERT_EQ(Hour(Elapsed), Span / 3600);
            ASSERT_EQ(Minute(Elapsed), Span % 3600 / 60);
            ASSERT_EQ(Second(Elapsed), Span % 60);
        }
    }
}

TEST(DateTime, DateAdd)
{
    const double LastSecond = TimeSerial(23, 59, 59);
    const std::tuple<const char*, int, double, const char*> Rows[] = {
        {"m", 1, DateSerial(2005, 1, 31), "28/02/2005 00.00.00"},
        {"m", 2, DateSerial(2005, 1, 31), "31/03/2005 00.00.00"},
        {"m", 12, DateSerial(2004, 2, 29) + 0.5, "28/02/2005 12.00.00"},
        {"m", -1, DateSerial(2005, 3, 31), "28/02/2005 00.00.00"},
        {"m", -14, DateSerial(2005, 1, 15), "15/11/2003 00.00.00"},
        {"m", 1, -0.75, "29/01/1900 06.00.00"},
        {"q", 1, DateSerial(2019, 11, 30), "29/02/2020 00.00.00"},
        {"q", -99, DateSerial(2005, 3, 31), "30/06/1980 00.00.00"},
        {"ww", 2, DateSerial(2021, 6, 15), "29/06/2021 00.00.00"},
        {"d", -1, DateSerial(2020, 3, 1) + 0.25, "29/02/2020 06.00.00"},
        {"h", 2, TimeSerial(23, 0, 0), "31/12/1899 01.00.00"},
        {"n", -60, TimeSerial(0, 10, 0), "29/12/1899 23.10.00"},
        {"s", -1, 0, "29/12/1899 23.59.59"},
        {"s", 1, DateSerial(2005, 12, 31) + LastSecond, "01/01/2006 00.00.00"},
        {"m", 1, DateSerial(9999, 11, 30), "30/12/9999 00.00.00"},
        {"d", -1, DateSerial(100, 1, 2), "01/01/0100 00.00.00"}};
    for (const auto& [Interval, Number, x, Result] : Rows)
        EXPECT_EQ(Show(DateAdd(Interval, Number, x).value_or(0)), Result) << Interval << Number;

    EXPECT_EQ(DateAdd("s", 38400, *DateAdd("n", 20, *DateAdd("h", 13, 0))), 1)
        << "midnight exactly";
    for (const char* Interval : {"s", "n", "h", "d", "ww", "m", "q"}) {
        EXPECT_FALSE(DateAdd(Interval, -1, FirstDate)) << Interval;
        EXPECT_FALSE(DateAdd(Interval, 1, LastDate + LastSecond)) << Interval;
    }
    for (const int Number : {INT_MIN, -65536 * 12, 65536 * 12, INT_MAX})
        EXPECT_FALSE(DateAdd("m", Number, 38353)) << Number;
}

TEST(DateTime, DateDiffAndDatePart)
{
    const double LateEvening = DateSerial(2000, 1, 1) + TimeSerial(23, 59, 59);
    const double EarlyMorning = DateSerial(2000, 1, 2) + TimeSerial(0, 0, 1);
    EXPECT_EQ(DateDiff("d", LateEvening, EarlyMorning), 1);
    EXPECT_EQ(DateDiff("y", EarlyMorning, LateEvening), -1);
    EXPECT_EQ(DateDiff("s", LateEvening, EarlyMorning), 2);

    std::string Quarters;
    for (int i = 1; i <= 12; ++i) Quarters += CStr(DatePart("q", DateSerial(2005, i + 1, 0)));
    EXPECT_EQ(Quarters, "111222333444");

    for (int First = 1; First <= 7; ++First) {
        for (int From = -15; From < 0; ++From) {
            int Crossings = 0;
            for (int To = From; To < 30; ++To) {
                if (To > From && (To + 27) % 7 + 1 == First) ++Crossings;
                ASSERT_EQ(DateDiff("ww", From + 0.9, To + 0.1, First), Crossings);
                ASSERT_EQ(DateDiff("ww", To, From, First), -Crossings);
            }
        }
    }
}

TEST(Clock, IsLocalTimeInWholeSecondsAndCanBeSet)
{
    const auto NowIn = [](const char* Zone) {
        setenv("TZ", Zone, 1);
        tzset();
        return Now();
    };
    const double Utc = DateSerial(1970, 1, 1) + static_cast<double>(std::time(nullptr)) / 86400;
    const double West = NowIn("AAA12");
    const double East = NowIn("BBB-13:45");
    unsetenv("TZ");
    tzset();
    EXPECT_NEAR((West - Utc) * 86400, -12 * 3600, 5);
    EXPECT_NEAR((East - Utc) * 86400, 13.75 * 3600, 5);

    SetClock([] { return -0.75; });
    EXPECT_EQ(Now(), -0.75);
    EXPECT_EQ(Date(), -1);
    SetClock(nullptr);
    EXPECT_GT(Date(), DateSerial(2020, 1, 1));
}
