#include "engine/Moments.h"

#include <utility>

namespace vellarno {

MomentPeriod OrderMoments(Moment First, Moment Second)
{
    if (First.Value() > Second.Value()) std::swap(First, Second);
    const auto startTime = static_cast<float>(First.TimeOfDay);
    const auto endTime = static_cast<float>(Second.TimeOfDay);
    constexpr float Noon = 0.5F;

    DateValue countedEnd = Second.Value();
    if (startTime > endTime) countedEnd -= 1;
    if (startTime < Noon && endTime > Noon) countedEnd -= 0.5;
    return {First.Value(), Second.Value(), countedEnd};
}

}
