#include "engine/DateTime.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <stdexcept>
#include <string>

namespace vellarno {

namespace {

using namespace std::chrono;

constexpr sys_days Epoch{1899y / December / 30};
constexpr int SecondsPerDay = 86400;

year_month_day CivilDate(DateValue x)
{
    return Epoch + days{Int(x)};
}

DayNumber Serial(sys_days Day)
{
    return static_cast<DayNumber>((Day - Epoch).count());
}

int ClockSecond(DateValue x)
{
    const auto Seconds = static_cast<int>(std::lround((x - std::floor(x)) * SecondsPerDay));
    return Seconds % SecondsPerDay;
}

DateValue AddSeconds(DateValue x, std::int64_t Number)
{
    return static_cast<double>(std::llround(x * SecondsPerDay) + Number) / SecondsPerDay;
}

DateValue AddDays(DateValue x, std::int64_t Number)
{
    return x + static_cast<double>(Number);
}

DateValue AddMonths(DateValue x, std::int64_t Number)
{
    // No step within the valid dates is longer, and a longer one may overflow a 16-bit year.
    constexpr std::int64_t AllMonths = 120000;
    const auto Start = CivilDate(x);
    const auto Target =
        Start.year() / Start.month() + months{std::clamp(Number, -AllMonths, AllMonths)};
    const auto SameDay = Target / Start.day();
    return Serial(SameDay.ok() ? sys_days{SameDay} : sys_days{Target / last}) + (x - std::floor(x));
}

struct Step
{
    std::string_view Interval;
    int Length;
    DateValue (*Add)(DateValue, std::int64_t);
};

constexpr std::array<Step, 7> Steps{{{"s", 1, AddSeconds},
                                     {"n", 60, AddSeconds},
                                     {"h", 3600, AddSeconds},
                                     {"d", 1, AddDays},
                                     {"ww", 7, AddDays},
                                     {"m", 1, AddMonths},
                                     {"q", 3, AddMonths}}};

}

DayNumber DateSerial(int Year, int Month, int Day)
{
    if (Year >= 0 && Year < 100) Year += Year < 30 ? 2000 : 1900;
    const auto FirstMonth = year{Year} / January;
    return Serial(sys_days{(FirstMonth + (months{Month} - months{1})) / 1} + days{Day} - days{1});
}

DateValue TimeSerial(int Hours, int Minutes, int Seconds)
{
    return static_cast<double>(Hours * 3600 + Minutes * 60 + Seconds) / SecondsPerDay;
}

DayNumber Int(DateValue x)
{
    return static_cast<DayNumber>(std::floor(x));
}

int Year(DateValue x)
{
    return static_cast<int>(CivilDate(x).year());
}

int Month(DateValue x)
{
    return static_cast<int>(static_cast<unsigned>(CivilDate(x).month()));
}

int Day(DateValue x)
{
    return static_cast<int>(static_cast<unsigned>(CivilDate(x).day()));
}

int Hour(DateValue x)
{
    return ClockSecond(x) / 3600;
}

int Minute(DateValue x)
{
    return ClockSecond(x) / 60 % 60;
}

int Second(DateValue x)
{
    return ClockSecond(x) % 60;
}

int Weekday(DateValue x, int First)
{
    const weekday Today{Epoch + days{Int(x)}};
    return static_cast<int>((Today - weekday{static_cast<unsigned>(First - 1)}).count()) + 1;
}

std::optional<DateValue> DateAdd(std::string_view Interval, int Number, DateValue x)
{
    const auto* const Found = std::find_if(
        Steps.begin(), Steps.end(), [&](const Step& Each) { return Each.Interval == Interval; });
    if (Found == Steps.end()) throw std::logic_error(std::string(Interval));

    const DateValue Result = Found->Add(x, std::int64_t{Number} * Found->Length);
    if (Result < FirstDate || Result >= LastDate + 1) return std::nullopt;
    return Result;
}

std::int64_t DateDiff(std::string_view Interval, DateValue a, DateValue b, int First)
{
    if (Interval == "s") return std::llround((b - a) * SecondsPerDay);
    if (Interval == "d" || Interval == "y") return Int(b) - Int(a);
    if (Interval == "ww") {
        const auto WeeksBefore = [First](DateValue x) {
            return floor<weeks>(days{Int(x) - First});
        };
        return (WeeksBefore(b) - WeeksBefore(a)).count();
    }
    throw std::logic_error(std::string(Interval));
}

int DatePart(std::string_view Interval, DateValue x)
{
    if (Interval == "q") return (Month(x) + 2) / 3;
    throw std::logic_error(std::string(Interval));
}

}
