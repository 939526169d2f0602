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
    PeriodFigures figures{};
    int year = Year(FromDay);
    DayNumber monday = EasterDate(year) + 1;
    for (DayNumber i = FromDay; i < ToDay; ++i) {
        if (Year(i) != year) {
            year = Year(i);
            monday = EasterDate(year) + 1;
        }
        const int weekday = Weekday(i, Sunday);
        if (weekday == Sunday) {
            ++figures.Sundays;
            continue;
        }
        if (weekday == Saturday) {
            ++figures.Saturdays;
            if (SaturdayIsHoliday) continue;
        }
        if (IsHoliday(i, monday)) ++figures.Holidays;
    }
    figures.WorkingDays = ToDay - FromDay - figures.Sundays - figures.Holidays -
                          (SaturdayIsHoliday ? figures.Saturdays : 0);
    return figures;
}

template <auto Count>
void LongestPeriod(benchmark::State& State)
{
    const bool saturdaysOff = State.range(0) != 0;
    if (Count(FirstDay, LastDay, saturdaysOff).Holidays !=
        WalkPeriod(FirstDay, LastDay, saturdaysOff).Holidays)
        State.SkipWithError("the counts differ");

    DayNumber to = LastDay;
    for (auto _ : State) {
        benchmark::DoNotOptimize(to);
        benchmark::DoNotOptimize(Count(FirstDay, to, saturdaysOff));
    }
}
BENCHMARK(LongestPeriod<WalkPeriod>)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(LongestPeriod<CountPeriod>)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

class KeptLabels final : public ResultLabels
{
public:
    void SetDati(Elapsed, const std::string& Caption) override { length += Caption.size(); }
    void SetTotali(Total, const std::string& Caption) override { length += Caption.size(); }
    void SetHourglass(bool /*Shown*/) override {}

private:
    std::size_t length = 0;
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
    KeptLabels labels;
    Repeat(State, 86400, [&](int i) {
        const MomentPeriod period =
            OrderMoments({LastDay, i / 86400.0}, {FirstDay, TimeSerial(0, 0, 0)});
        CalcTimes(period.StartDate, period.EndDate, labels);
        CalcDates(period.StartDate, period.CountedEnd, false, labels);
        return labels;
    });
}
BENCHMARK(PressWithDatesAndTimes);

void Easter(benchmark::State& State)
{
    Repeat(State, LastYear - FirstYear + 1, [](int i) { return EasterDate(FirstYear + i); });
}
BENCHMARK(Easter);

void DateFromFields(benchmark::State& State)
{
    Repeat(State, LastYear - FirstYear + 1,
           [](int i) { return DateSerial(FirstYear + i, 1 + i % 12, 1 + i % 28); });
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
