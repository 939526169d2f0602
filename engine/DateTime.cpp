#include "engine/DateTime.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace vellarno {

namespace {

using namespace std::chrono;

constexpr sys_days Epoch{1899y / December / 30};
constexpr int SecondsPerDay = 86400;

DayNumber DayOf(double x)
{
    return static_cast<DayNumber>(std::floor(x));
}

year_month_day CivilDate(double x)
{
    return Epoch + days{DayOf(x)};
}

DayNumber Serial(sys_days Day)
{
    return static_cast<DayNumber>((Day - Epoch).count());
}

int ClockSecond(double x)
{
    const auto Seconds = static_cast<int>(std::lround((x - std::floor(x)) * SecondsPerDay));
    return Seconds % SecondsPerDay;
}

double AddSeconds(double x, std::int64_t Number)
{
    return static_cast<double>(std::llround(x * SecondsPerDay) + Number) / SecondsPerDay;
}

double AddDays(double x, std::int64_t Number)
{
    return x + static_cast<double>(Number);
}

double AddMonths(double x, std::int64_t Number)
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
    double (*Add)(double, std::int64_t);
};

constexpr std::array<Step, 7> Steps{{{"s", 1, AddSeconds},
                                     {"n", 60, AddSeconds},
                                     {"h", 3600, AddSeconds},
                                     {"d", 1, AddDays},
                                     {"ww", 7, AddDays},
                                     {"m", 1, AddMonths},
                                     {"q", 3, AddMonths}}};

}

double DateSerial(int Year, int Month, int Day)
{
    if (Year >= 0 && Year < 100) Year += Year < 30 ? 2000 : 1900;
    const auto FirstMonth = year{Year} / January;
    return Serial(sys_days{(FirstMonth + (months{Month} - months{1})) / 1} + days{Day} - days{1});
}

double TimeSerial(int Hours, int Minutes, int Seconds)
{
    return static_cast<double>(Hours * 3600 + Minutes * 60 + Seconds) / SecondsPerDay;
}

int Year(double x)
{
    return static_cast<int>(CivilDate(x).year());
}

int Month(double x)
{
    return static_cast<int>(static_cast<unsigned>(CivilDate(x).month()));
}

int Day(double x)
{
    return static_cast<int>(static_cast<unsigned>(CivilDate(x).day()));
}

int Hour(double x)
{
    return ClockSecond(x) / 3600;
}

int Minute(double x)
{
    return ClockSecond(x) / 60 % 60;
}

int Second(double x)
{
    return ClockSecond(x) % 60;
}

int Weekday(double x, int First)
{
    const weekday Today{Epoch + days{DayOf(x)}};
    return static_cast<int>((Today - weekday{static_cast<unsigned>(First - 1)}).count()) + 1;
}

std::optional<double> DateAdd(std::string_view Interval, int Number, double x)
{
    const auto* const Found = std::find_if(
        Steps.begin(), Steps.end(), [&](const Step& Each) { return Each.Interval == Interval; });
    if (Found == Steps.end()) return std::nullopt;

    const double Result = Found->Add(x, std::int64_t{Number} * Found->Length);
    if (Result < FirstDate || Result >= LastDate + 1) return std::nullopt;
    return Result;
}

std::int64_t DateDiff(std::string_view Interval, double a, double b, int First)
{
    if (Interval == "s") return std::llround((b - a) * SecondsPerDay);
    if (Interval == "d" || Interval == "y") return DayOf(b) - DayOf(a);
    if (Interval == "ww") {
        const auto WeeksBefore = [First](double x) { return floor<weeks>(days{DayOf(x) - First}); };
        return (WeeksBefore(b) - WeeksBefore(a)).count();
    }
    return 0;
}

int DatePart(std::string_view Interval, double x)
{
    return Interval == "q" ? (Month(x) + 2) / 3 : 0;
}

}
