#include "tests/support/PlainCalendar.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <tuple>
#include <vector>

namespace vellarno::test {

namespace {

constexpr int DaySeconds = 86400, Noon = DaySeconds / 2;
constexpr const char* Weekdays[] = {"-",         "Domenica", "Lunedì",  "Martedì",
                                    "Mercoledì", "Giovedì",  "Venerdì", "Sabato"};

const std::vector<PlainDay>& AllDays()
{
    static const auto days = [] {
        std::vector<PlainDay> all;
        for (PlainDay day; day.Year <= 2101; day.Step())
            if (day.Year >= 1000) all.push_back(day);
        return all;
    }();
    return days;
}

std::string Print(bool Used, std::initializer_list<std::int64_t> Numbers, char End)
{
    std::string all;
    for (const auto number : Numbers) {
        std::string text = (number < 10 ? "0" : "") + std::to_string(number);
        for (auto at = static_cast<int>(text.size()) - 3; at > 0; at -= 3)
            text.insert(static_cast<std::size_t>(at), 1, '.');
        all += (Used ? text : "-") + ' ';
    }
    all.back() = End;
    return all;
}

/// Easter Monday as 100 times the month plus the day, by golden number and epact: Knuth, The Art of
/// Computer Programming, volume 1, section 1.3.2, exercise 14.
int EasterMonday(int Year)
{
    const int golden = Year % 19 + 1, century = Year / 100 + 1, leap = 3 * century / 4 - 12;
    int epact = (11 * golden + 20 + (8 * century + 5) / 25 - 5 - leap + 60) % 30;
    if ((epact == 25 && golden > 11) || epact == 24) ++epact;
    int march = epact <= 23 ? 44 - epact : 74 - epact;
    march += 7 - (5 * Year / 4 - leap - 10 + march) % 7;
    return march < 31 ? 301 + march : 401 + march - 31;
}

/// Noon belongs to the day of even number.
int Rounded(const PlainMoment& Moment)
{
    const bool odd = Moment.Day.Serial % 2 != 0;
    return Moment.Day.Serial + (Moment.Second > Noon || (Moment.Second == Noon && odd) ? 1 : 0);
}

/// Years, months and days by the fields of the dates: the start's month lends its days, or the one
/// before it where both months are the same.
std::tuple<int, int, int> Between(const PlainDay& Start, const PlainDay& End)
{
    const bool borrows = Start.Day > End.Day;
    const bool early = std::tuple(End.Month, End.Day) < std::tuple(Start.Month, Start.Day);
    const int months = End.Month - Start.Month - (borrows ? 1 : 0);
    const int lender = Start.Month == End.Month ? (Start.Month + 10) % 12 + 1 : Start.Month;
    const int lent = borrows ? PlainMonthLength(End.Year, lender) : 0;
    return {End.Year - Start.Year - (early ? 1 : 0), months < 0 ? months + 12 : months,
            std::max(0, End.Day - Start.Day + lent)};
}

}

int PlainMonthLength(int Year, int Month)
{
    const int lengths[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (Year % 4 == 0 && Year % 100 != 0) || Year % 400 == 0;
    return lengths[Month] + (Month == 2 && leap ? 1 : 0);
}

void PlainDay::Step()
{
    ++Serial;
    Weekday = Weekday % 7 + 1;
    if (++Day <= PlainMonthLength(Year, Month)) return;
    Day = 1;
    if (++Month <= 12) return;
    Month = 1;
    ++Year;
}

bool PlainDay::IsListed() const
{
    const int listed[] = {101, 106, 425, 501, 602, 815, 1101, 1208, 1225, 1226, EasterMonday(Year)};
    return std::count(std::begin(listed), std::end(listed), 100 * Month + Day) != 0;
}

const PlainDay& PlainDayOf(int Serial)
{
    return AllDays().at(static_cast<std::size_t>(Serial - AllDays().front().Serial));
}

std::optional<PlainDay> PlainDayOf(int Day, int Month, int Year)
{
    const auto date = [](const PlainDay& of) { return (of.Year * 100 + of.Month) * 100 + of.Day; };
    const int sought = (Year * 100 + Month) * 100 + Day;
    const auto found = std::ranges::lower_bound(AllDays(), sought, {}, date);
    if (found == AllDays().end() || date(*found) != sought) return std::nullopt;
    return *found;
}

std::string JudgeFigures(bool Dates, bool Times, PlainMoment Start, PlainMoment End, bool WholeDay,
                         bool SaturdaysOff)
{
    const auto order = [](const PlainMoment& of) { return std::tuple(of.Day.Serial, of.Second); };
    const std::string weekdays = std::string(Weekdays[Dates ? Start.Day.Weekday : 0]) + ' ' +
                                 Weekdays[Dates ? End.Day.Weekday : 0];

    if (!Dates && End.Second < Start.Second) End.Day.Step();
    if (order(End) < order(Start)) std::swap(Start, End);
    const std::int64_t seconds =
        std::int64_t{End.Day.Serial - Start.Day.Serial} * DaySeconds + End.Second - Start.Second;
    const std::int64_t clock = seconds % DaySeconds;

    if (WholeDay && !Times) End.Day.Step();
    if (Start.Second > End.Second && Dates) End.Day = PlainDayOf(End.Day.Serial - 1);
    if (Start.Second < Noon && End.Second > Noon) End.Second -= Noon;
    const auto [years, months, days] = Between(Start.Day, End.Day);
    int mondays = 0, sundays = 0, saturdays = 0, holidays = 0, working = 0;
    for (int i = Start.Day.Serial; i < End.Day.Serial; ++i)
        mondays += PlainDayOf(i + 1).Weekday == 2;
    for (int i = Rounded(Start), left = std::abs(Rounded(End) - i); left > 0; ++i, --left) {
        const PlainDay& day = PlainDayOf(i);
        const bool sunday = day.Weekday == 1, saturday = day.Weekday == 7;
        sundays += sunday;
        saturdays += saturday;
        if (!sunday && !(saturday && SaturdaysOff)) ++(day.IsListed() ? holidays : working);
    }
    const int total = End.Day.Serial - Start.Day.Serial;
    return Print(Dates, {years, months, days}, ' ') +
           Print(Times, {clock / 3600, clock / 60 % 60, clock % 60}, '|') +
           Print(Dates, {total, mondays, working, saturdays, sundays, holidays}, ' ') +
           Print(Times, {seconds / 3600, seconds / 60, seconds}, '|') + weekdays;
}

}
