#include "engine/CountPeriod.h"
#include "engine/Holidays.h"
#include "tests/engine/PlainCalendar.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

using namespace vellarno;

namespace {

DayNumber On(int Day, int Month, int Year)
{
    return static_cast<DayNumber>(DateSerial(Year, Month, Day));
}

}

TEST(Holidays, Easter)
{
    for (int i = 100; i <= 9999; ++i) {
        const int Easter = EasterDate(i);
        const int Monday = Easter + 1;
        ASSERT_EQ(Month(Monday) * 100 + Day(Monday), PlainEasterMonday(i)) << i;
        ASSERT_TRUE(Weekday(Easter, 1) == 1 && On(22, 3, i) <= Easter && Easter <= On(25, 4, i));
    }
    for (const int Sunday : {On(30, 3, 1000), On(22, 3, 1818), On(25, 4, 1943), On(27, 3, 2005),
                             On(23, 3, 2008), On(12, 4, 2009), On(24, 4, 2011), On(28, 3, 2100)})
        EXPECT_EQ(EasterDate(Year(Sunday)), Sunday);
    for (const int Outside : {-1, 10000, 32768, 65536 + 2005}) EXPECT_EQ(EasterDate(Outside), 0);
}

TEST(Holidays, EveryDayOfTheProgram)
{
    PlainDay i;
    while (i.Year < 1000) i.Step();
    for (int Monday = 0; i.Year <= 2100; i.Step()) {
        if (i.Month == 1 && i.Day == 1) Monday = EasterDate(i.Year) + 1;
        ASSERT_EQ(IsHoliday(i.Serial, Monday), i.Weekday == 1 || i.IsListed()) << i.Serial;
    }
    EXPECT_FALSE(IsHoliday(On(28, 3, 2005), EasterDate(2004) + 1));
    EXPECT_FALSE(IsHoliday(On(3, 5, 2005), On(3, 5, 2005))) << "Easter Monday is never in May";
}

TEST(CountPeriod, Tables)
{
    // The figures: days, working days, Saturdays, Sundays, holidays.
    const std::tuple<DayNumber, DayNumber, bool, PeriodFigures> Rows[] = {
        {On(1, 1, 2005), On(31, 12, 2005), false, {364, 303, 52, 52, 9}},
        {On(1, 1, 2005), On(31, 12, 2005), true, {364, 252, 52, 52, 8}},
        {On(1, 1, 2005), On(1, 1, 2006), false, {365, 304, 53, 52, 9}},
        {On(1, 1, 2005), On(1, 1, 2006), true, {365, 252, 53, 52, 8}},
        {On(26, 12, 2004), On(3, 1, 2005), false, {8, 5, 1, 2, 1}},
        {On(24, 12, 2005), On(27, 12, 2005), false, {3, 1, 1, 1, 1}},
        {On(24, 12, 2005), On(27, 12, 2005), true, {3, 0, 1, 1, 1}},
        {On(31, 12, 2007), On(31, 3, 2009), false, {456, 379, 65, 65, 12}},
        {On(25, 4, 2011), On(26, 4, 2011), false, {1, 0, 0, 0, 1}},
        {On(5, 3, 2005), On(5, 3, 2005), false, {0, 0, 0, 0, 0}},
        {On(5, 3, 2005), On(6, 3, 2005), true, {1, 0, 1, 0, 0}},
        {On(11, 3, 2005), On(10, 3, 2005), false, {1, 1, 0, 0, 0}},
        {On(1, 1, 2101), On(31, 12, 2100), true, {1, 0, 1, 0, 0}},
        {On(1, 1, 10000), On(31, 12, 9999), false, {1, 0, 1, 0, 1}},
    };
    for (const auto& [From, To, SaturdayIsHoliday, Result] : Rows)
        EXPECT_EQ(CountPeriod(From, To, SaturdayIsHoliday), Result) << From << " to " << To;
}

TEST(CountPeriod, EqualsTheWalkOverEveryDay)
{
    std::mt19937 Random(7); // NOLINT(cert-msc51-cpp): the same periods in each run
    PlainDay First;
    while (First.Year < 990) First.Step();
    for (int Round = 0; First.Year <= 2101; ++Round) {
        const bool SaturdayIsHoliday = Random() % 2 == 0;
        const int Length = static_cast<int>(Random() % (Round % 16 == 0 ? 400000 : 1000));
        PeriodFigures Sum{};
        for (PlainDay Today = First; Sum.DayCount <= Length; Today.Step()) {
            if (Random() % static_cast<unsigned>(Length / 50 + 1) == 0) {
                const int Mirrored = First.Serial - Sum.DayCount;
                ASSERT_EQ(CountPeriod(First.Serial, Today.Serial, SaturdayIsHoliday), Sum);
                ASSERT_EQ(CountPeriod(First.Serial, Mirrored, SaturdayIsHoliday), Sum);
            }
            const bool IsSaturday = Today.Weekday == 7;
            ++Sum.DayCount;
            if (IsSaturday) ++Sum.Saturdays;
            if (Today.Weekday == 1)
                ++Sum.Sundays;
            else if (!(IsSaturday && SaturdayIsHoliday))
                ++(Today.IsListed() ? Sum.Holidays : Sum.WorkingDays);
        }
        for (auto Skipped = Random() % 6000; Skipped > 0; --Skipped) First.Step();
    }
}
