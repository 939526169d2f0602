#include "services/StatusBar.h"

namespace vellarno {

namespace {

constexpr int PartMask = 0xFF;
constexpr int MaxParts = 255;
/// Pixels: one less than a new strip has.
constexpr int ResizedThickness = 22;

/// What of a part stays in view around the control that it holds: left, top, and in all.
constexpr int InsetLeft = 1;
constexpr int InsetTop = 1;
constexpr int InsetWidth = 4;
constexpr int InsetHeight = 5;

}

StatusBar::~StatusBar()
{
    if (!strip) return;
    strip->GiveBack();
    delete strip;
}

bool StatusBar::Create(forms::Form& frmParent)
{
    if (strip) return false;
    strip = new forms::Strip(frmParent);
    return true;
}

void StatusBar::SetText(std::int16_t iPart, const std::string& sText, std::int32_t lStyle)
{
    const int part = (iPart | lStyle) & PartMask;
    if (strip && strip->Has(part)) strip->SetText(part, sText);
}

std::string StatusBar::GetText(std::int16_t iPart) const
{
    return strip && strip->Has(iPart) ? strip->Text(iPart) : std::string();
}

void StatusBar::Hide()
{
    if (strip) strip->SetVisible(false);
}

void StatusBar::Show()
{
    if (strip) strip->SetVisible(true);
}

void StatusBar::Resize(const forms::Form& frmParent)
{
    if (!strip) return;
    strip->Move(0, frmParent.ScaleHeight() - strip->Height(), frmParent.ScaleWidth(),
                ResizedThickness);
}

void StatusBar::SetParts(std::int16_t iPartsNum, std::span<const std::int16_t> iPanel)
{
    const auto count = static_cast<std::size_t>(iPartsNum);
    if (!strip || iPartsNum < 1 || iPartsNum > MaxParts || count > iPanel.size()) return;
    strip->SetEdges({iPanel.begin(), iPanel.begin() + iPartsNum});
}

void StatusBar::CopyObj(std::int16_t iPart, forms::Control& Obj)
{
    if (!strip || !strip->Has(iPart)) return;
    const auto area = strip->PartArea(iPart);
    Obj.SetContainer(*strip);
    Obj.Move(area.Left + InsetLeft, area.Top + InsetTop, area.Right - area.Left - InsetWidth,
             area.Bottom - area.Top - InsetHeight);
    Obj.SetVisible(true);
}

}
