#pragma once

// The calendar counted on the fingers, as the judge of the engine: nothing here calls it.

#include <algorithm>
#include <array>

namespace vellarno {

/// Easter Monday as 100 times the month plus the day, by golden number and epact: Knuth, The Art of
/// Computer Programming, volume 1, section 1.3.2, exercise 14.
inline int PlainEasterMonday(int Year)
{
    const int Golden = Year % 19 + 1;
    const int Century = Year / 100 + 1;
    const int Leap = 3 * Century / 4 - 12;
    const int Moon = (8 * Century + 5) / 25 - 5;
    int Epact = (11 * Golden + 20 + Moon - Leap + 60) % 30;
    if ((Epact == 25 && Golden > 11) || Epact == 24) ++Epact;
    int March = Epact <= 23 ? 44 - Epact : 74 - Epact;
    March += 7 - (5 * Year / 4 - Leap - 10 + March) % 7;
    return March < 31 ? 301 + March : 401 + March - 31;
}

/// A day that steps on by one; begins with Friday 01/01/0100.
struct PlainDay
{
    int Serial = -657434;
    int Year = 100;
    int Month = 1;
    int Day = 1;
    int Weekday = 6; ///< 1 is Sunday
    int EasterMonday = PlainEasterMonday(100);

    void Step()
    {
        constexpr std::array<int, 13> Lengths{0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        const bool IsLeap = (Year % 4 == 0 && Year % 100 != 0) || Year % 400 == 0;
        ++Serial;
        Weekday = Weekday % 7 + 1;
        if (++Day <= Lengths.at(static_cast<std::size_t>(Month)) + (Month == 2 && IsLeap)) return;
        Day = 1;
        if (++Month <= 12) return;
        Month = 1;
        EasterMonday = PlainEasterMonday(++Year);
    }

    bool IsListed() const
    {
        const int Fixed[] = {101, 106, 425, 501, 602, 815, 1101, 1208, 1225, 1226, EasterMonday};
        return std::count(std::begin(Fixed), std::end(Fixed), 100 * Month + Day) != 0;
    }
};

}
