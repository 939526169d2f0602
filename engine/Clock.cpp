#include "engine/Clock.h"

#include <ctime>
#include <utility>

namespace vellarno {

namespace {

DateValue SystemNow()
{
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    // The user may have changed the system's zone; localtime_r alone keeps to the first one. Where
    // the zone's file is the same this costs a look at it.
    tzset();
    localtime_r(&seconds, &local);
    return DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
           TimeSerial(local.tm_hour, local.tm_min, local.tm_sec);
}

std::function<DateValue()>& CurrentClock()
{
    static std::function<DateValue()> clock = SystemNow;
    return clock;
}

}

DateValue Now()
{
    return CurrentClock()();
}

DayNumber Date()
{
    return Int(Now());
}

void SetClock(std::function<DateValue()> Clock)
{
    CurrentClock() = Clock ? std::move(Clock) : SystemNow;
}

}
