#include "engine/CountPeriod.h"

#include "engine/Holidays.h"

#include <array>
#include <cstdlib>

namespace vellarno {

namespace {

/// True unless the weekday alone makes the day free.
bool IsWeekdayOfWork(DayNumber Serial, bool SaturdayIsHoliday)
{
    const int number = Weekday(Serial, Sunday);
    return number != Sunday && !(SaturdayIsHoliday && number == Saturday);
}

/// Holidays of one year, those from the day End on left out.
int HolidaysOfYear(int Anno, bool SaturdayIsHoliday, DayNumber End = LastDate + 1)
{
    const auto counts = [&](DayNumber Holiday) {
        return Holiday < End && IsWeekdayOfWork(Holiday, SaturdayIsHoliday);
    };
    const DayNumber monday = EasterDate(Anno) + 1;
    int count = counts(monday) ? 1 : 0;
    for (const DayOfYear& each : FixedHolidays) {
        const DayNumber holiday = DateSerial(Anno, each.Month, each.Day);
        if (holiday != monday && counts(holiday)) ++count;
    }
    return count;
}

/// For each year, and for the one into which the last day rounds up, the holidays from the
/// beginning of FirstYear to its own.
using YearTotals = std::array<int, LastYear + 1 - FirstYear + 1>;

YearTotals SumYears(bool SaturdayIsHoliday)
{
    YearTotals totals{};
    for (std::size_t i = 1; i < totals.size(); ++i)
        totals[i] =
            totals[i - 1] + HolidaysOfYear(FirstYear + static_cast<int>(i) - 1, SaturdayIsHoliday);
    return totals;
}

/// Holidays from the beginning of FirstYear to the day before End.
int HolidaysBefore(DayNumber End, bool SaturdayIsHoliday)
{
    static const std::array<YearTotals, 2> totals{SumYears(false), SumYears(true)};
    const int endYear = Year(End);
    return totals[SaturdayIsHoliday ? 1 : 0].at(static_cast<std::size_t>(endYear - FirstYear)) +
           HolidaysOfYear(endYear, SaturdayIsHoliday, End);
}

}

PeriodFigures CountPeriod(DayNumber FromDay, DayNumber ToDay, bool SaturdayIsHoliday)
{
    const int dayCount = std::abs(FromDay - ToDay);
    const DayNumber end = FromDay + dayCount;
    const auto countWeekdays = [&](int Number) {
        return static_cast<int>(DateDiff("ww", FromDay - 1, end - 1, Number));
    };

    PeriodFigures figures{};
    figures.Sundays = countWeekdays(Sunday);
    figures.Saturdays = countWeekdays(Saturday);
    figures.Holidays =
        HolidaysBefore(end, SaturdayIsHoliday) - HolidaysBefore(FromDay, SaturdayIsHoliday);
    figures.WorkingDays =
        dayCount - figures.Sundays - figures.Holidays - (SaturdayIsHoliday ? figures.Saturdays : 0);
    return figures;
}

}
