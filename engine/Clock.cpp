#include "engine/Clock.h"

#include <ctime>
#include <utility>

namespace vellarno {

namespace {

DateValue SystemNow()
{
    const std::time_t Seconds = std::time(nullptr);
    std::tm Local{};
    // The user may have changed the system's zone; localtime_r alone keeps to the first one. Where
    // the zone's file is the same this costs a look at it.
    tzset();
    localtime_r(&Seconds, &Local);
    return DateSerial(Local.tm_year + 1900, Local.tm_mon + 1, Local.tm_mday) +
           TimeSerial(Local.tm_hour, Local.tm_min, Local.tm_sec);
}

std::function<DateValue()>& CurrentClock()
{
    static std::function<DateValue()> Clock = SystemNow;
    return Clock;
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
