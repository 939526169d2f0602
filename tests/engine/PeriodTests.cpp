#include "engine/CountPeriod.h"
#include "engine/Holidays.h"
#include "tests/engine/PlainCalendar.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <set>
#include <vector>

namespace vellarno {

bool operator==(const PeriodFigures& a, const PeriodFigures& b)
{
    return a.DayCount == b.DayCount && a.WorkingDays == b.WorkingDays &&
           a.Saturdays == b.Saturdays && a.Sundays == b.Sundays && a.Holidays == b.Holidays;
}

std::ostream& operator<<(std::ostream& Out, const PeriodFigures& a)
{
    return Out << a.DayCount << " days: " << a.WorkingDays << " working, " << a.Saturdays
               << " Saturdays, " << a.Sundays << " Sundays, " << a.Holidays << " holidays";
}

namespace {

bool IsListed(const PlainDay& i)
{
    static const std::set<int> Fixed{101, 106, 425, 501, 602, 815, 1101, 1208, 1225, 1226};
    const int MonthAndDay = 100 * i.Month + i.Day;
    return Fixed.count(MonthAndDay) != 0 || MonthAndDay == PlainEasterMonday(i.Year);
}

/// Every day of the calendar walked once, with the figures of all days before it.
class Walk
{
public:
    explicit Walk(bool SaturdayIsHoliday)
    {
        PeriodFigures Sum{};
        for (PlainDay i; i.Year <= 9999; i.Step()) {
            Sums.push_back(Sum);
            ++Sum.DayCount;
            if (i.Weekday == 1) ++Sum.Sundays;
            if (i.Weekday == 7) ++Sum.Saturdays;
            if (i.Weekday == 1 || (i.Weekday == 7 && SaturdayIsHoliday)) continue;
            if (IsListed(i))
                ++Sum.Holidays;
            else
                ++Sum.WorkingDays;
        }
    }

    PeriodFigures Count(DayNumber From, DayNumber To) const
    {
        const auto& a = Sums.at(static_cast<std::size_t>(From - FirstDate));
        const auto& b = Sums.at(static_cast<std::size_t>(From + std::abs(To - From) - FirstDate));
        return {b.DayCount - a.DayCount, b.WorkingDays - a.WorkingDays, b.Saturdays - a.Saturdays,
                b.Sundays - a.Sundays, b.Holidays - a.Holidays};
    }

private:
    std::vector<PeriodFigures> Sums;
};

int Serial(int Day, int Month, int Year)
{
    return static_cast<int>(DateSerial(Year, Month, Day));
}

TEST(Holidays, Easter)
{
    for (int i = 100; i <= 9999; ++i) {
        const int Easter = EasterDate(i);
        const int Monday = Easter + 1;
        ASSERT_EQ(Month(Monday) * 100 + Day(Monday), PlainEasterMonday(i)) << i;
        ASSERT_EQ(Weekday(Easter, 1), 1) << i;
        ASSERT_TRUE(Serial(22, 3, i) <= Easter && Easter <= Serial(25, 4, i)) << i;
    }
    for (const int Sunday :
         {Serial(30, 3, 1000), Serial(22, 3, 1818), Serial(25, 4, 1943), Serial(27, 3, 2005),
          Serial(23, 3, 2008), Serial(12, 4, 2009), Serial(24, 4, 2011), Serial(28, 3, 2100)})
        EXPECT_EQ(EasterDate(Year(Sunday)), Sunday);
    for (const int Outside : {-1, 10000, 32768, 65536 + 2005}) EXPECT_EQ(EasterDate(Outside), 0);
}

TEST(Holidays, EveryDayOfTheProgram)
{
    PlainDay i;
    while (i.Year < 1000) i.Step();
    for (int Monday = 0; i.Year <= 2100; i.Step()) {
        if (i.Month == 1 && i.Day == 1) Monday = EasterDate(i.Year) + 1;
        ASSERT_EQ(IsHoliday(i.Serial, Monday), i.Weekday == 1 || IsListed(i)) << i.Serial;
    }
}

TEST(Holidays, EasterMondayIsSoughtInMarchAndAprilOnly)
{
    const int Tuesday = Serial(3, 5, 2005);
    EXPECT_FALSE(IsHoliday(Tuesday, Tuesday));
    EXPECT_TRUE(IsHoliday(Serial(5, 4, 2005), Serial(5, 4, 2005))) << "compared, not computed";
    EXPECT_FALSE(IsHoliday(Serial(28, 3, 2005), EasterDate(2004) + 1));
    EXPECT_TRUE(IsHoliday(Serial(25, 4, 2012), 1)) << "no Easter Monday at all";
}

TEST(CountPeriod, Tables)
{
    const struct
    {
        int From, To;
        bool SaturdayIsHoliday;
        PeriodFigures Result; ///< days, working days, Saturdays, Sundays, holidays
    } Rows[] = {
        {Serial(1, 1, 2005), Serial(31, 12, 2005), false, {364, 303, 52, 52, 9}},
        {Serial(1, 1, 2005), Serial(31, 12, 2005), true, {364, 252, 52, 52, 8}},
        {Serial(1, 1, 2005), Serial(1, 1, 2006), false, {365, 304, 53, 52, 9}},
        {Serial(1, 1, 2005), Serial(1, 1, 2006), true, {365, 252, 53, 52, 8}},
        {Serial(26, 12, 2004), Serial(3, 1, 2005), false, {8, 5, 1, 2, 1}},
        {Serial(24, 12, 2005), Serial(27, 12, 2005), false, {3, 1, 1, 1, 1}},
        {Serial(24, 12, 2005), Serial(27, 12, 2005), true, {3, 0, 1, 1, 1}},
        {Serial(31, 12, 2007), Serial(31, 3, 2009), false, {456, 379, 65, 65, 12}},
        {Serial(25, 4, 2011), Serial(26, 4, 2011), false, {1, 0, 0, 0, 1}},
        {Serial(5, 3, 2005), Serial(5, 3, 2005), false, {0, 0, 0, 0, 0}},
        {Serial(5, 3, 2005), Serial(6, 3, 2005), false, {1, 1, 1, 0, 0}},
        {Serial(5, 3, 2005), Serial(6, 3, 2005), true, {1, 0, 1, 0, 0}},
        {Serial(11, 3, 2005), Serial(10, 3, 2005), false, {1, 1, 0, 0, 0}},
        {Serial(1, 1, 2101), Serial(31, 12, 2100), false, {1, 0, 1, 0, 1}},
        {Serial(1, 1, 10000), Serial(31, 12, 9999), false, {1, 0, 1, 0, 1}},
    };
    for (const auto& Row : Rows)
        EXPECT_EQ(CountPeriod(Row.From, Row.To, Row.SaturdayIsHoliday), Row.Result);
}

TEST(CountPeriod, EqualsTheWalk)
{
    const struct
    {
        int First, Last, Longest, Pairs;
    } Ranges[] = {{Serial(1, 1, 1000), Serial(31, 12, 2101), 402130, 3000},
                  {Serial(1, 1, 1000), Serial(31, 12, 2101), 400, 3000},
                  {FirstDate, LastDate, 1000000, 10}};
    std::mt19937 Random(7);
    for (const bool SaturdayIsHoliday : {false, true}) {
        const Walk Judge(SaturdayIsHoliday);
        for (const auto& Range : Ranges) {
            for (int i = 0; i < Range.Pairs; ++i) {
                const int From = std::uniform_int_distribution(Range.First, Range.Last)(Random);
                const int Length = std::uniform_int_distribution(
                    0, std::min(Range.Longest, Range.Last - From))(Random);
                ASSERT_EQ(CountPeriod(From, From + Length, SaturdayIsHoliday),
                          Judge.Count(From, From + Length))
                    << From;
                ASSERT_EQ(CountPeriod(From, From - Length, SaturdayIsHoliday),
                          Judge.Count(From, From - Length))
                    << From;
            }
        }
        EXPECT_EQ(CountPeriod(-328716, 73415, SaturdayIsHoliday), Judge.Count(-328716, 73415));
    }
}

}

}
