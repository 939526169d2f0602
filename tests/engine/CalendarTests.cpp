#include "engine/Clock.h"
#include "engine/CountPeriod.h"
#include "engine/Holidays.h"
#include "engine/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <random>
#include <tuple>

using namespace vellarno;

// The calendar counted on the fingers, as the judge of the engine: nothing here calls it.

/// Easter Monday as 100 times the month plus the day, by golden number and epact: Knuth, The Art of
/// Computer Programming, volume 1, section 1.3.2, exercise 14.
static int PlainEasterMonday(int Year)
{
    const int Golden = Year % 19 + 1, Century = Year / 100 + 1, Leap = 3 * Century / 4 - 12;
    int Epact = (11 * Golden + 20 + (8 * Century + 5) / 25 - 5 - Leap + 60) % 30;
    if ((Epact == 25 && Golden > 11) || Epact == 24) ++Epact;
    int March = Epact <= 23 ? 44 - Epact : 74 - Epact;
    March += 7 - (5 * Year / 4 - Leap - 10 + March) % 7;
    return March < 31 ? 301 + March : 401 + March - 31;
}

/// A day that steps on by one; begins with Friday 01/01/0100.
struct PlainDay
{
    int Serial = -657434, Year = 100, Month = 1, Day = 1, EasterMonday = PlainEasterMonday(100);
    int Weekday = 6; ///< 1 is Sunday

    void Step()
    {
        const int Lengths[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        const bool IsLeap = (Year % 4 == 0 && Year % 100 != 0) || Year % 400 == 0;
        ++Serial;
        Weekday = Weekday % 7 + 1;
        if (++Day <= Lengths[Month] + (Month == 2 && IsLeap)) return;
        Day = 1;
        if (++Month <= 12) return;
        Month = 1;
        EasterMonday = PlainEasterMonday(++Year);
    }
    bool IsListed() const
    {
        const int Fixed[] = {101, 106, 425, 501, 602, 815, 1101, 1208, 1225, 1226, EasterMonday};
        return std::count(std::begin(Fixed), std::end(Fixed), 100 * Month + Day) != 0;
    }
};

TEST(Calendar, EveryDay)
{
    int Mondays = 0, EasterMonday = 0;
    for (PlainDay i; i.Year < 10000; i.Step()) {
        if (i.Month == 1 && i.Day == 1) EasterMonday = EasterDate(i.Year) + 1;
        if (i.Weekday == 2) ++Mondays;
        const double x = i.Serial + 0.99;
        const bool Same =
            std::tuple(Year(x), Month(x), Day(x)) == std::tuple(i.Year, i.Month, i.Day) &&
            DateSerial(i.Year, i.Month, i.Day) == i.Serial && Weekday(x, 1) == i.Weekday &&
            DateDiff("ww", x, FirstDate, 2) == -Mondays &&
            IsHoliday(i.Serial, EasterMonday) == (i.Weekday == 1 || i.IsListed());
        ASSERT_TRUE(Same) << i.Day << "/" << i.Month << "/" << i.Year;
    }
}

TEST(Calendar, CountPeriodEqualsTheWalkOverEveryDay)
{
    std::mt19937 Random(7); // NOLINT(cert-msc51-cpp): the same periods in each run
    PlainDay First;
    while (First.Year < 990) First.Step();
    for (int Round = 0; First.Year <= 2101; ++Round) {
        const bool SaturdayIsHoliday = Random() % 2 == 0;
        const int Length = static_cast<int>(Random() % (Round % 16 == 0 ? 400000 : 1000));
        PeriodFigures Sum{};
        PlainDay Today = First;
        for (; Sum.DayCount < Length; Today.Step(), ++Sum.DayCount) {
            Sum.Saturdays += Today.Weekday == 7;
            Sum.Sundays += Today.Weekday == 1;
            if (Today.Weekday == 1 || (Today.Weekday == 7 && SaturdayIsHoliday)) continue;
            ++(Today.IsListed() ? Sum.Holidays : Sum.WorkingDays);
        }
        for (const int To : {Today.Serial, First.Serial - Length})
            ASSERT_EQ(CountPeriod(First.Serial, To, SaturdayIsHoliday), Sum);
        for (auto Skipped = Random() % 2000; Skipped > 0; --Skipped) First.Step();
    }
}

TEST(Calendar, TimesKeepEverySecondAndMonthsTheirDay)
{
    std::mt19937 Random(1); // NOLINT(cert-msc51-cpp): the same cases in each run
    const auto Within = [&](int Low, int High) {
        return std::uniform_int_distribution(Low, High)(Random);
    };
    for (int i = 0; i < 8000; ++i) {
        const int Start = Within(0, 86399), Span = Within(0, 86399), End = Start + Span;
        const double Today = Within(-328716, 73415) + TimeSerial(0, 0, Start);
        const double Elapsed = std::floor(Today) + i + TimeSerial(0, 0, End) - Today;
        ASSERT_EQ(std::tuple(Hour(Elapsed), Minute(Elapsed), Second(Elapsed)),
                  std::tuple(Span / 3600, Span / 60 % 60, Span % 60));

        const int y = Within(1000, 2300), m = Within(1, 12), Number = Within(-9999, 9999);
        const int d = Within(1, Day(DateSerial(y, m + 1, 0)));
        const int Last = Day(DateSerial(y, m + Number + 1, 0));
        ASSERT_EQ(DateAdd("m", Number, DateSerial(y, m, d) + 0.25),
                  DateSerial(y, m + Number, std::min(d, Last)) + 0.25);
    }
}

TEST(Calendar, StepsDistancesAndToday)
{
    const double LastSecond = TimeSerial(23, 59, 59);
    EXPECT_EQ(DateAdd("s", 1, 38717 + LastSecond), 38718);
    EXPECT_EQ(DateAdd("s", 38400, *DateAdd("n", 20, *DateAdd("h", 13, 0))), 1) << "exactly";
    EXPECT_EQ(DateAdd("q", 2, *DateAdd("ww", 3, 38353)), DateSerial(2005, 7, 22));
    EXPECT_EQ(DateAdd("d", 1, LastDate - 0.5), LastDate + 0.5);
    for (const char* Interval : {"s", "n", "h", "d", "ww", "m", "q"}) {
        EXPECT_FALSE(DateAdd(Interval, -1, FirstDate)) << Interval;
        EXPECT_FALSE(DateAdd(Interval, 1, LastDate + LastSecond)) << Interval;
    }
    EXPECT_EQ(DateDiff("d", LastSecond - 1, TimeSerial(0, 0, 1)), 1);

    const auto Utc = DateSerial(1970, 1, 1) + static_cast<double>(std::time(nullptr)) / 86400;
    setenv("TZ", "AAA-13:45", 1);
    tzset();
    EXPECT_NEAR((Now() - Utc) * 86400, 13.75 * 3600, 5) << "local time";
}

TEST(Text, Formats)
{
    const std::tuple<int, const char*, const char*> Rows[] = {
        {-2, "00", "-02"}, {-123, "0,0", "-123"}, {1234567, "0,0", "1.234.567"}};
    for (const auto& [Value, Pattern, Result] : Rows) EXPECT_EQ(Format(Value, Pattern), Result);
    const double Monday = DateSerial(1994, 1, 3) + TimeSerial(14, 5, 9);
    EXPECT_EQ(Format(Monday, " dddd  dd mmm yy hh.mm.ss"), " lunedì  03 gen 94 14.05.09");
    std::string Names;
    for (int i = 1; i <= 12; ++i) Names += Format(DateSerial(999, i, 1), "mmm ") + WeekdayText(i);
    EXPECT_EQ(Names, "gen Domenicafeb Lunedìmar Martedìapr Mercoledìmag Giovedìgiu Venerdì"
                     "lug Sabatoago set ott nov dic ");
}

TEST(Text, ReadsDates)
{
    std::string Read;
    for (const char* Text : {"5/3/0", " 5 / 3 / 29 ", "5/3/30", "05/03/99", "5/3/100", "29/2/2008"})
        Read += Format(CDate(Text).value_or(0), "dd mmm yyyy, ");
    EXPECT_EQ(Read, "05 mar 2000, 05 mar 2029, 05 mar 1930, 05 mar 1999, 05 mar 0100, "
                    "29 feb 2008, ");
    for (const char* Text : {"31/4/2009", "29/2/1900", "0/1/2009", "1/0/2009", "1/13/2009",
                             "1/1/10000", "1/1/65545", "", "//", "1/1/", "1/1/2009/", "1 1/1/2009"})
        EXPECT_FALSE(IsDate(Text)) << Text;
}
