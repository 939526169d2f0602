#pragma once

#include <functional>

namespace vellarno {

/// Today at 00:00:00, in local time.
double Date();

/// Today and the time of day in local time, in whole seconds.
double Now();

/// Makes Now() and Date() follow another clock; nullptr gives the system's clock back.
void SetClock(std::function<double()> Clock);

}
