#include "engine/Moments.h"

#include <utility>

namespace vellarno {

MomentPeriod OrderMoments(Moment First, Moment Second)
{
    if (First.Value() > Second.Value()) std::swap(First, Second);
    const auto StartTime = static_cast<float>(First.TimeOfDay);
    const auto EndTime = static_cast<float>(Second.TimeOfDay);
    constexpr float Noon = 0.5F;

    DateValue CountedEnd = Second.Value();
    if (StartTime > EndTime) CountedEnd -= 1;
    if (StartTime < Noon && EndTime > Noon) CountedEnd -= 0.5;
    return {First.Value(), Second.Value(), CountedEnd};
}

}
