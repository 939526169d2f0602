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

DayNumber Serial(sys_days Of)
{
    return static_cast<DayNumber>((Of - Epoch).count());
}

int ClockSecond(DateValue x)
{
    const auto seconds = static_cast<int>(std::lround((x - std::floor(x)) * SecondsPerDay));
    return seconds % SecondsPerDay;
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
    const auto start = CivilDate(x);
    const auto target =
        start.year() / start.month() + months{std::clamp(Number, -AllMonths, AllMonths)};
    const auto sameDay = target / start.day();
    return Serial(sameDay.ok() ? sys_days{sameDay} : sys_days{target / last}) + (x - std::floor(x));
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

DayNumber DateSerial(int Anno, int Mese, int Giorno)
{
    if (Anno >= 0 && Anno < 100) Anno += Anno < 30 ? 2000 : 1900;
    const auto firstMonth = year{Anno} / January;
    return Serial(sys_days{(firstMonth + (months{Mese} - months{1})) / 1} + days{Giorno} - days{1});
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
    const weekday today{Epoch + days{Int(x)}};
    return static_cast<int>((today - weekday{static_cast<unsigned>(First - 1)}).count()) + 1;
}

std::optional<DateValue> DateAdd(std::string_view Interval, int Number, DateValue x)
{
    const auto* const found = std::find_if(
        Steps.begin(), Steps.end(), [&](const Step& Each) { return Each.Interval == Interval; });
    if (found == Steps.end()) throw std::logic_error(std::string(Interval));

    const DateValue result = found->Add(x, std::int64_t{Number} * found->Length);
    if (result < FirstDate || result >= LastDate + 1) return std::nullopt;
    return result;
}

std::int64_t DateDiff(std::string_view Interval, DateValue a, DateValue b, int First)
{
    if (Interval == "s") return std::llround((b - a) * SecondsPerDay);
    if (Interval == "d" || Interval == "y") return Int(b) - Int(a);
    if (Interval == "ww") {
        const auto weeksBefore = [First](DateValue x) {
            return floor<weeks>(days{Int(x) - First});
        };
        return (weeksBefore(b) - weeksBefore(a)).count();
    }
    throw std::logic_error(std::string(Interval));
}

int DatePart(std::string_view Interval, DateValue x)
{
    if (Interval == "q") return (Month(x) + 2) / 3;
    throw std::logic_error(std::string(Interval));
}

}
