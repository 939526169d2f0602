#include "engine/Clock.h"

#include "engine/DateTime.h"

#include <cmath>
#include <ctime>
#include <utility>

namespace vellarno {

namespace {

double SystemNow()
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

std::function<double()>& CurrentClock()
{
    static std::function<double()> Clock = SystemNow;
    return Clock;
}

}

double Now()
{
    return CurrentClock()();
}

double Date()
{
    return std::floor(Now());
}

void SetClock(std::function<double()> Clock)
{
    CurrentClock() = Clock ? std::move(Clock) : SystemNow;
}

}
