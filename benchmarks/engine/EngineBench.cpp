// The period counters against the plain walk over the days that they replace, and the cost of the
// primitives that a press of the button or a tick of the clock uses.

#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/CountPeriod.h"
#include "engine/DateTime.h"
#include "engine/Holidays.h"
#include "engine/Moments.h"
#include "engine/Text.h"

#include <benchmark/benchmark.h>

#include <string>

namespace vellarno {

namespace {

const DayNumber FirstDay = DateSerial(FirstYear, 1, 1);
const DayNumber LastDay = DateSerial(LastYear, 12, 31);

/// One step for each day, Easter once for each year.
PeriodFigures WalkPeriod(DayNumber FromDay, DayNumber ToDay, bool SaturdayIsHoliday)
{
    PeriodFigures Figures{};
    Figures.DayCount = ToDay - FromDay;
    int CurrentYear = Year(FromDay);
    DayNumber MondayNumber = EasterDate(CurrentYear) + 1;
    for (DayNumber i = FromDay; i < ToDay; ++i) {
        if (Year(i) != CurrentYear) {
            CurrentYear = Year(i);
            MondayNumber = EasterDate(CurrentYear) + 1;
        }
        const int Number = Weekday(i, Sunday);
        if (Number == Sunday) {
            ++Figures.Sundays;
            continue;
        }
        if (Number == Saturday) {
            ++Figures.Saturdays;
            if (SaturdayIsHoliday) continue;
        }
        if (IsHoliday(i, MondayNumber)) ++Figures.Holidays;
    }
    Figures.WorkingDays = Figures.DayCount - Figures.Sundays - Figures.Holidays -
                          (SaturdayIsHoliday ? Figures.Saturdays : 0);
    return Figures;
}

template <auto Count>
void LongestPeriod(benchmark::State& State)
{
    const bool SaturdayIsHoliday = State.range(0) != 0;
    if (Count(FirstDay, LastDay, SaturdayIsHoliday).Holidays !=
        WalkPeriod(FirstDay, LastDay, SaturdayIsHoliday).Holidays)
        State.SkipWithError("the counts differ");

    DayNumber To = LastDay;
    for (auto _ : State) {
        benchmark::DoNotOptimize(To);
        benchmark::DoNotOptimize(Count(FirstDay, To, SaturdayIsHoliday));
    }
}
BENCHMARK(LongestPeriod<WalkPeriod>)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(LongestPeriod<CountPeriod>)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

class KeptLabels final : public ResultLabels
{
public:
    void SetDati(Elapsed, const std::string& Caption) override { Length += Caption.size(); }
    void SetTotali(Total, const std::string& Caption) override { Length += Caption.size(); }
    void SetHourglass(bool /*Shown*/) override {}

private:
    std::size_t Length = 0;
};

/// Runs Call(i) with a whole number that changes from turn to turn, from 0 to Count - 1.
template <typename Function>
void Repeat(benchmark::State& State, int Count, Function Call)
{
    int i = 0;
    for (auto _ : State) {
        benchmark::DoNotOptimize(Call(i));
        i = i + 1 < Count ? i + 1 : 0;
    }
}

/// Every figure of one press for two moments 1100 years apart, with the texts.
void PressWithDatesAndTimes(benchmark::State& State)
{
    KeptLabels Labels;
    Repeat(State, 86400, [&](int i) {
        const MomentPeriod Period =
            OrderMoments({LastDay, i / 86400.0}, {FirstDay, TimeSerial(0, 0, 0)});
        CalcTimes(Period.StartDate, Period.EndDate, std::nullopt, Labels);
        CalcDates(Period.StartDate, Period.CountedEnd, false, Labels);
        return Labels;
    });
}
BENCHMARK(PressWithDatesAndTimes);

void Easter(benchmark::State& State)
{
    Repeat(State, 1101, [](int i) { return EasterDate(1000 + i); });
}
BENCHMARK(Easter);

void DateFromFields(benchmark::State& State)
{
    Repeat(State, 1101, [](int i) { return DateSerial(1000 + i, 1 + i % 12, 1 + i % 28); });
}
BENCHMARK(DateFromFields);

void FieldsFromDate(benchmark::State& State)
{
    Repeat(State, LastDay - FirstDay, [](int i) {
        const double x = FirstDay + i;
        return Year(x) + Month(x) + Day(x);
    });
}
BENCHMARK(FieldsFromDate);

void FormatNumber(benchmark::State& State)
{
    Repeat(State, 1000000, [](int i) { return Format(i * 35000.0, "0,0"); });
}
BENCHMARK(FormatNumber);

void FormatClock(benchmark::State& State)
{
    Repeat(State, 86400, [](int i) { return Format(38353 + i / 86400.0, "hh.mm.ss"); });
}
BENCHMARK(FormatClock);

void FormatDate(benchmark::State& State)
{
    Repeat(State, LastDay - FirstDay,
           [](int i) { return Format(FirstDay + i, " dddd  dd mmm yyyy"); });
}
BENCHMARK(FormatDate);

}

}
