#include "minicalc/Accumulators.h"

#include "engine/Text.h"

namespace vellarno {

ClockTime AddOnClock(ClockTime Total, ClockTime Step)
{
    constexpr int DaySeconds = 24 * 3600;
    const int seconds = (Total.Hours + Step.Hours) * 3600 + (Total.Minutes + Step.Minutes) * 60 +
                        Total.Seconds + Step.Seconds;
    const int ofDay = (seconds % DaySeconds + DaySeconds) % DaySeconds;
    return {ofDay / 3600, ofDay / 60 % 60, ofDay % 60};
}

std::optional<DateValue> StepDate(std::string_view From, const DateUnit& Unit,
                                  std::string_view Quantity, bool Subtract)
{
    const auto start = CDate(From);
    const auto number = CInt(Quantity);
    if (!start || !number) return std::nullopt;
    return DateAdd(Unit.Interval, Subtract ? -*number : *number, *start);
}

}
