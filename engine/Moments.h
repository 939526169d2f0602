#pragma once

#include "engine/DateTime.h"

namespace vellarno {

/// A moment as the user types it.
struct Moment
{
    DayNumber Day;
    DateValue TimeOfDay; ///< 0 to below 1

    DateValue Value() const { return Day + TimeOfDay; }
};

/// The period between two moments.
struct MomentPeriod
{
    DateValue StartDate;  ///< the earlier moment
    DateValue EndDate;    ///< the later moment
    DateValue CountedEnd; ///< where the count of whole days ends, for CalcDates
};

/// The two moments in order, whichever was typed first, with the end for the count of days: a last
/// day that isn't complete is taken off, and an afternoon end after a morning start is moved to the
/// morning, so that both ends round to their own dates. An end at exactly 12:00:00 is left in the
/// middle of two days: rounding takes the even one, as often the day before as the day after.
MomentPeriod OrderMoments(Moment One, Moment Other);

}
