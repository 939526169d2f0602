#include "engine/CountPeriod.h"

#include "engine/Holidays.h"

#include <array>
#include <cstdlib>

namespace vellarno {

namespace {

/// True unless the weekday alone makes the day free.
bool IsWeekdayOfWork(DayNumber Day, bool SaturdayIsHoliday)
{
    const int Number = Weekday(Day, Sunday);
    return Number != Sunday && !(SaturdayIsHoliday && Number == Saturday);
}

/// Holidays of one year, those from the day End on left out.
int HolidaysOfYear(int Year, bool SaturdayIsHoliday, DayNumber End = LastDate + 1)
{
    const auto Counts = [&](DayNumber Holiday) {
        return Holiday < End && IsWeekdayOfWork(Holiday, SaturdayIsHoliday);
    };
    const DayNumber Monday = EasterDate(Year) + 1;
    int Count = Counts(Monday) ? 1 : 0;
    for (const DayOfYear& Each : FixedHolidays) {
        const DayNumber Holiday = DateSerial(Year, Each.Month, Each.Day);
        if (Holiday != Monday && Counts(Holiday)) ++Count;
    }
    return Count;
}

/// For each year, and for the one into which the last day rounds up, the holidays from the
/// beginning of FirstYear to its own.
using YearTotals = std::array<int, LastYear + 1 - FirstYear + 1>;

YearTotals SumYears(bool SaturdayIsHoliday)
{
    YearTotals Totals{};
    for (std::size_t i = 1; i < Totals.size(); ++i)
        Totals[i] =
            Totals[i - 1] + HolidaysOfYear(FirstYear + static_cast<int>(i) - 1, SaturdayIsHoliday);
    return Totals;
}

/// Holidays from the beginning of FirstYear to the day before End.
int HolidaysBefore(DayNumber End, bool SaturdayIsHoliday)
{
    static const std::array<YearTotals, 2> Totals{SumYears(false), SumYears(true)};
    const int EndYear = Year(End);
    return Totals[SaturdayIsHoliday ? 1 : 0].at(static_cast<std::size_t>(EndYear - FirstYear)) +
           HolidaysOfYear(EndYear, SaturdayIsHoliday, End);
}

}

PeriodFigures CountPeriod(DayNumber FromDay, DayNumber ToDay, bool SaturdayIsHoliday)
{
    const int DayCount = std::abs(FromDay - ToDay);
    const DayNumber End = FromDay + DayCount;
    const auto CountWeekdays = [&](int Number) {
        return static_cast<int>(DateDiff("ww", FromDay - 1, End - 1, Number));
    };

    PeriodFigures Figures{};
    Figures.DayCount = DayCount;
    Figures.Sundays = CountWeekdays(Sunday);
    Figures.Saturdays = CountWeekdays(Saturday);
    Figures.Holidays =
        HolidaysBefore(End, SaturdayIsHoliday) - HolidaysBefore(FromDay, SaturdayIsHoliday);
    Figures.WorkingDays =
        DayCount - Figures.Sundays - Figures.Holidays - (SaturdayIsHoliday ? Figures.Saturdays : 0);
    return Figures;
}

}
