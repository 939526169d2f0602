#pragma once

#include "engine/DateTime.h"

#include <functional>

namespace vellarno {

/// Today, in local time.
DayNumber Date();

/// Today and the time of day in local time, in whole seconds.
DateValue Now();

/// Makes Now() and Date() follow another clock; nullptr gives the system's clock back.
void SetClock(std::function<DateValue()> Clock);

}
