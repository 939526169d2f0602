#include "engine/Holidays.h"

#include <algorithm>

namespace vellarno {

DayNumber EasterDate(int Anno)
{
    if (Anno < 0 || Anno > 9999) return 0;
    const int a = Anno % 19;
    const int b = Anno / 100;
    const int c = Anno % 100;
    const int d = b / 4;
    const int e = b % 4;
    const int f = (b + 8) / 25;
    const int g = (b - f + 1) / 3;
    const int h = (19 * a + b - d - g + 15) % 30;
    const int i = c / 4;
    const int k = c % 4;
    const int l = (32 + 2 * e + 2 * i - h - k) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int n = h + l - 7 * m + 114;
    return DateSerial(Anno, n / 31, n % 31 + 1);
}

bool IsHoliday(DayNumber Serial, DayNumber MondayNumber)
{
    if (Weekday(Serial, Sunday) == Sunday) return true;

    const int mese = Month(Serial);
    const int giorno = Day(Serial);
    if (Serial == MondayNumber && (mese == 3 || mese == 4)) return true;
    return std::any_of(FixedHolidays.begin(), FixedHolidays.end(), [&](const DayOfYear& Each) {
        return Each.Month == mese && Each.Day == giorno;
    });
}

}
