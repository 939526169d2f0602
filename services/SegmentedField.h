#pragma once

#include "services/forms/ControlArray.h"
#include "services/forms/TextBox.h"

#include <functional>
#include <span>

namespace vellarno {

/// What one box of a date or time row takes, and where the typing goes on.
struct Segment
{
    static constexpr int NoLimit = 32767;
    static constexpr int ByMaxLength = 0;
    static constexpr int End = -1;

    int Limit;                    ///< highest value, or NoLimit
    int Next;                     ///< index of the next segment, or End
    bool RefusesZeros = false;    ///< "00" is no value here
    int FullLength = ByMaxLength; ///< characters at which the focus moves on, or ByMaxLength
};

/// Lets digits and backspace through; any other key has no effect.
void FilterDigits(short& KeyAscii);

/// A date or a time typed digit by digit into a row of boxes. A value that a box can't take is
/// emptied with a beep, never corrected; a full box sends the focus on.
class SegmentedField
{
public:
    /// @param Rules  one for each box, by index.
    /// @param After  gets the focus after a segment whose Next is End; nullptr leaves it there.
    SegmentedField(const forms::ControlArray<forms::TextBox>& Boxes, std::span<const Segment> Rules,
                   forms::Control* After = nullptr)
        : boxes(Boxes), rules(Rules), after(After)
    {
        for (auto& box : Boxes) box.KeyPress = FilterDigits;
    }

    /// Every change of a box's text. The writes that it makes raise the change again, inside.
    /// @param AfterRefusal  runs when a value above the limit has been emptied.
    void Change(int Index, const std::function<void()>& AfterRefusal = {}) const;
    /// Fills a lone digit with a leading zero.
    void Pad(int Index) const;
    /// Selects all of a box's text, so that the next digit replaces it.
    void Select(int Index) const;

private:
    const forms::ControlArray<forms::TextBox>& boxes;
    std::span<const Segment> rules;
    forms::Control* after;
};

}
