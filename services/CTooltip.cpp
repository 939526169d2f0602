#include "services/CTooltip.h"

namespace vellarno {

void CTooltip::SetIcon(std::int32_t vData)
{
    icon = vData;
    UpdateHeading();
}

void CTooltip::SetTitle(const std::string& vData)
{
    title = vData;
    UpdateHeading();
}

void CTooltip::UpdateHeading()
{
    if (popup && !title.empty() && icon != 0) popup->SetHeading(title, icon);
}

void CTooltip::SetTipText(const std::string& vData)
{
    tipText = vData;
    if (popup) popup->SetText(tipText);
}

void CTooltip::Create(forms::Form& Parent, bool PP)
{
    Destroy();
    popup = new forms::Balloon(Parent, {.Stem = style == BalloonStyle,
                                        .Centered = centered,
                                        .OnTop = PP,
                                        .DelayTime = delayTime,
                                        .VisibleTime = visibleTime});
    popup->SetText(tipText);
    popup->SetHeading(title, icon);
}

void CTooltip::Destroy()
{
    delete popup;
}

}
