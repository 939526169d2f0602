#include "engine/Text.h"
#include "minicalc/Accumulators.h"
#include "minicalc/frmMiniCalc.h"

namespace vellarno {

namespace {

constexpr int FirstOfTotal = 0;
constexpr int FirstOfValue = 3;
constexpr int Fields = 6;

/// Each field cuts it to the digits that it holds.
constexpr const char* Zero = "000";

}

// The value's minutes and seconds have no limit but their digits.
const std::array<Segment, 6> frmMiniCalc::TimeRules = {{{23, 1},
                                                        {59, 2},
                                                        {59, Segment::End},
                                                        {23, 4},
                                                        {Segment::NoLimit, 5},
                                                        {Segment::NoLimit, Segment::End}}};

void frmMiniCalc::cmdSommaOre_Click()
{
    for (forms::TextBox& field : txtCalc)
        if (field.Text().empty()) field.SetText(Zero);
    const int sign = optSomma[0].Value() ? 1 : -1;
    const ClockTime total = AddOnClock(ReadTime(FirstOfTotal, 1), ReadTime(FirstOfValue, sign));
    txtCalc[0].SetText(Format(total.Hours, "00"));
    txtCalc[1].SetText(Format(total.Minutes, "00"));
    txtCalc[2].SetText(Format(total.Seconds, "00"));
    for (int i = FirstOfValue; i < Fields; ++i) txtCalc[i].SetText(Zero);
    txtCalc[FirstOfValue].SetFocus();
    AnnounceTotal();
}

ClockTime frmMiniCalc::ReadTime(int First, int Sign) const
{
    const auto figure = [&](int i) { return Sign * CInt(txtCalc[First + i].Text()).value_or(0); };
    return {figure(0), figure(1), figure(2)};
}

void frmMiniCalc::ClearTime()
{
    for (forms::TextBox& field : txtCalc) field.SetText(Zero);
    txtCalc[FirstOfValue].SetFocus();
}

void frmMiniCalc::txtCalc_Change(int Index)
{
    TimeFields.Change(Index);
}

void frmMiniCalc::txtCalc_GotFocus(int Index)
{
    TimeFields.Select(Index);
}

}
