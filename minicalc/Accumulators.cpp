#include "minicalc/Accumulators.h"

#include "engine/Text.h"

namespace vellarno {

namespace {

DateValue Move(DateValue Moment, ClockTime Step)
{
    Moment = DateAdd("h", Step.Hours, Moment).value();
    Moment = DateAdd("n", Step.Minutes, Moment).value();
    return DateAdd("s", Step.Seconds, Moment).value();
}

}

ClockTime AddOnClock(ClockTime Total, ClockTime Step)
{
    const DateValue moment = Move(Move(0, Total), Step);
    return {Hour(moment), Minute(moment), Second(moment)};
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
