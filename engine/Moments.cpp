#include "engine/Moments.h"

#include <utility>

namespace vellarno {

MomentPeriod OrderMoments(Moment One, Moment Other)
{
    if (One.Value() > Other.Value()) std::swap(One, Other);
    const auto startTime = static_cast<float>(One.TimeOfDay);
    const auto endTime = static_cast<float>(Other.TimeOfDay);
    constexpr float Noon = 0.5F;

    DateValue countedEnd = Other.Value();
    if (startTime > endTime) countedEnd -= 1;
    if (startTime < Noon && endTime > Noon) countedEnd -= 0.5;
    return {One.Value(), Other.Value(), countedEnd};
}

}
