#pragma once

namespace vellarno {

/// A moment as the user types it.
struct Moment
{
    double Day;       ///< date value at 00:00:00
    double TimeOfDay; ///< 0 to below 1

    double Value() const { return Day + TimeOfDay; }
};

/// The period between two moments.
struct MomentPeriod
{
    double StartDate;  ///< the earlier moment
    double EndDate;    ///< the later moment
    double CountedEnd; ///< where the count of whole days ends, for CalcDates
};

/// The two moments in order, whichever was typed first, with the end for the count of days: a last
/// day that isn't complete is taken off, and an afternoon end after a morning start is moved to the
/// morning, so that both ends round to their own dates.
MomentPeriod OrderMoments(Moment First, Moment Second);

}
