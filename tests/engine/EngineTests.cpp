#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Holidays.h"
#include "engine/Text.h"
#include "tests/support/PlainCalendar.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <tuple>

using namespace vellarno;
using namespace vellarno::test;

TEST(Dates, EveryDayHasItsDateWeekdayWeekAndHolidays)
{
    int mondays = 0, easterMonday = 0;
    for (PlainDay i; i.Year < 10000; i.Step()) {
        mondays += i.Weekday == 2;
        if (i.Year > 2310 && i.Year < 9990) continue; // like those before, and long to walk
        if (i.Month == 1 && i.Day == 1) easterMonday = EasterDate(i.Year) + 1;
        const double x = i.Serial + 0.99;
        ASSERT_EQ(std::tuple(Year(x), Month(x), Day(x)), std::tuple(i.Year, i.Month, i.Day));
        ASSERT_EQ(DateSerial(i.Year, i.Month, i.Day), i.Serial) << i.Year;
        ASSERT_EQ(Weekday(x, 1), i.Weekday) << i.Serial;
        ASSERT_EQ(DateDiff("ww", x, FirstDate, 2), -mondays) << i.Serial;
        ASSERT_EQ(IsHoliday(i.Serial, easterMonday), i.Weekday == 1 || i.IsListed()) << i.Serial;
    }
    EXPECT_EQ(EasterDate(-1) + EasterDate(10000), 0);
}

TEST(Dates, CarryOverAndHaveNearYearsOfTwoDigits)
{
    EXPECT_EQ(DateSerial(2005, 3, 0), DateSerial(2005, 2, 28));
    EXPECT_EQ(DateSerial(2005, 13, 0), DateSerial(2005, 12, 31));
    EXPECT_EQ(DateSerial(2005, 12, 32), DateSerial(2006, 1, 1));
    EXPECT_EQ(DateSerial(29, 1, 1), DateSerial(2029, 1, 1));
    EXPECT_EQ(DateSerial(30, 1, 1), DateSerial(1930, 1, 1));
}

TEST(Dates, StepsMeetMidnightAndEndWithTheValidDates)
{
    const double lastSecond = TimeSerial(23, 59, 59);
    EXPECT_EQ(DateAdd("s", 1, 38717 + lastSecond), 38718);
    EXPECT_EQ(DateAdd("h", -37, 0), -2 + TimeSerial(11, 0, 0));
    EXPECT_EQ(DateAdd("q", 2, *DateAdd("ww", 3, 38353)), DateSerial(2005, 7, 22));
    for (const char* interval : {"s", "n", "h", "d", "ww", "m", "q"}) {
        EXPECT_FALSE(DateAdd(interval, -1, FirstDate)) << interval;
        EXPECT_FALSE(DateAdd(interval, 1, LastDate + lastSecond)) << interval;
    }
    EXPECT_THROW(DateAdd("y", 1, 0), std::logic_error);
    EXPECT_THROW(DateDiff("m", 0, 1), std::logic_error);
}

TEST(Dates, TheClockTellsLocalTimeAlsoWhenTheZoneHasChanged)
{
    const double utc = DateSerial(1970, 1, 1) + static_cast<double>(std::time(nullptr)) / 86400;
    for (const auto& [zone, hours] : {std::pair("AAA-13:45", 13.75), std::pair("BBB5", -5.0)}) {
        setenv("TZ", zone, 1);
        const double passed = Now() - hours / 24 - utc;
        EXPECT_TRUE(passed > -TimeSerial(0, 0, 2) && passed < TimeSerial(1, 0, 0)) << passed;
    }
}

TEST(Texts, NumbersHaveZerosAndPointsAndDatesItalianNames)
{
    EXPECT_EQ(Format(-2, "00") + Format(999, "0000") + Format("", "00"), "-020999");
    EXPECT_EQ(Format(0, "0,0") + ' ' + Format(1234567, "0,0"), "00 1.234.567");
    const double friday = DateSerial(994, 1, 3) + TimeSerial(14, 5, 9);
    EXPECT_EQ(Format(friday, " dddd  dd mmm yyyy"), " venerdì  03 gen 0994");
    EXPECT_EQ(Format(friday, "hh.mm.ss mmm yy"), "14.05.09 gen 94");
    std::string names;
    for (int i = 1; i <= 12; ++i)
        names += Format(DateSerial(2005, i, 1), "mmm ") + WeekdayText(i) + Format(i, "dddd ");
    EXPECT_EQ(names, "gen Domenicadomenica feb Lunedìlunedì mar Martedìmartedì "
                     "apr Mercoledìmercoledì mag Giovedìgiovedì giu Venerdìvenerdì "
                     "lug Sabatosabato ago domenica set lunedì ott martedì nov mercoledì "
                     "dic giovedì ");
}

TEST(Texts, DatesAreReadDayFirstAndOnlyWhereTheCalendarHasThem)
{
    EXPECT_EQ(CDate("29/2/2008"), DateSerial(2008, 2, 29));
    EXPECT_EQ(CDate(" 5 / 3 / 29 "), DateSerial(2029, 3, 5));
    for (const char* text : {"31/4/2009", "29/2/1900", "0/1/2009", "1/0/2009", "1/13/2009",
                             "1/1/10000", "1/1/65545", "", "//", "1/1/", "1/1/2009/", "1 1/1/2009"})
        EXPECT_FALSE(IsDate(text)) << text;
}
