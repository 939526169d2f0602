#pragma once

#include "engine/DateTime.h"
#include "services/SegmentedField.h"

#include <array>

namespace vellarno {

/// Day, month and year of the start, then of the end. The typing runs from the one date into the
/// other, over a start time between them.
inline constexpr std::array<Segment, 6> DateSegments{{
    {31, 2, 1, true},
    {12, 2, 2, true},
    {LastYear, 4, 3},
    {31, 2, 4, true},
    {12, 2, 5, true},
    {LastYear, 4, Segment::End},
}};

/// Hours, minutes and seconds of the start, then of the end. Zero is a value like any other.
inline constexpr std::array<Segment, 6> TimeSegments{{
    {23, 2, 1},
    {59, 2, 2},
    {59, 2, 3},
    {23, 2, 4},
    {59, 2, 5},
    {59, 2, Segment::End},
}};

}
