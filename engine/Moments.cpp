#include "engine/Moments.h"

#include <utility>

namespace vellarno {

MomentPeriod OrderMoments(Moment One, Moment Other)
{
    if (One.Value() > Other.Value()) std::swap(One, Other);
    constexpr DateValue Noon = 0.5;

    DateValue countedEnd = Other.Value();
    if (One.TimeOfDay > Other.TimeOfDay) countedEnd -= 1;
    if (One.TimeOfDay < Noon && Other.TimeOfDay > Noon) countedEnd -= Noon;
    return {One.Value(), Other.Value(), countedEnd};
}

}
