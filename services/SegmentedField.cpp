#include "services/SegmentedField.h"

#include "engine/Text.h"
#include "services/Platform.h"
#include "services/forms/Accessibility.h"

namespace vellarno {

namespace {

void Refuse(forms::TextBox& Box)
{
    if (!Box.Text().empty()) forms::Announce(Box, Box.AccessibleName() + ": vuoto");
    Box.SetText("");
    System().Beep();
}

}

void SegmentedField::Change(int Index, const std::function<void()>& AfterRefusal) const
{
    forms::TextBox& box = boxes[Index];
    const Segment& rule = rules[static_cast<std::size_t>(Index)];
    if (!IsNumeric(box.Text())) {
        Refuse(box);
        return;
    }
    if (const auto value = CInt(box.Text()); !value || *value > rule.Limit) {
        Refuse(box);
        if (AfterRefusal) AfterRefusal();
    }
    if (rule.RefusesZeros && box.Text() == "00") Refuse(box);
    const int full = rule.FullLength == Segment::ByMaxLength ? box.MaxLength() : rule.FullLength;
    if (static_cast<int>(box.Text().size()) != full) return;
    if (rule.Next != Segment::End)
        boxes[rule.Next].SetFocus();
    else if (after)
        after->SetFocus();
}

void SegmentedField::Pad(int Index) const
{
    forms::TextBox& box = boxes[Index];
    if (box.Text().size() == 1) box.SetText(Format(box.Text(), "00"));
}

void SegmentedField::Select(int Index) const
{
    boxes[Index].Select(0, static_cast<int>(boxes[Index].Text().size()));
}

void FilterDigits(short& KeyAscii)
{
    const bool digit = KeyAscii >= '0' && KeyAscii <= '9';
    if (!digit && KeyAscii != forms::KeyBackspace) KeyAscii = forms::KeyNothing;
}

}
