#include "minicalc/Accumulators.h"

#include <gtest/gtest.h>

using namespace vellarno;

TEST(Accumulators, TheClockGoesRoundInSeconds)
{
    const auto seconds = [](ClockTime t) { return (t.Hours * 60 + t.Minutes) * 60 + t.Seconds; };
    constexpr int day = 86400;
    for (int total = 0; total < day; total += 2879) // never in step with minutes or hours
        for (int step = -999; step <= 999; step += 37) {
            const ClockTime by{step % 24, step, -step / 2};
            const ClockTime now = AddOnClock({total / 3600, total / 60 % 60, total % 60}, by);
            ASSERT_EQ(seconds(now), (total + seconds(by) + 10 * day) % day) << total << ' ' << step;
            ASSERT_TRUE(now.Minutes / 60 == 0 && now.Seconds / 60 == 0) << total << ' ' << step;
        }
}

TEST(Accumulators, ADateIsSteppedOrThereIsNone)
{
    const struct
    {
        const char* Date;
        int Unit; ///< days, weeks, months, quarters
        const char* Quantity;
        bool Subtract;
        std::optional<DateValue> Result;
    } rows[] = {{"31/1/2020", 2, "01", false, DateSerial(2020, 2, 29)},
                {"31/3/2021", 2, "1", true, DateSerial(2021, 2, 28)},
                {"1/1/0100", 1, "1", true, {}},
                {"00/01/2021", 0, "0", false, {}},
                {"1/1/2021", 0, "", false, {}}};
    for (const auto& [date, unit, quantity, subtract, result] : rows)
        EXPECT_EQ(StepDate(date, DateUnits[unit], quantity, subtract), result) << date;
}
