#pragma once

#include "services/forms/Balloon.h"

#include <cstdint>
#include <string>

namespace vellarno {

/// A balloon over a whole window. The properties are plain settings; Create makes a popup of them
/// as they stand then, and it lives until Destroy, also after it has closed by itself.
class CTooltip
{
public:
    static constexpr std::int32_t BalloonStyle = 1; ///< any other Style is the plain rectangle
    static constexpr std::int32_t InformationIcon = 1;

    CTooltip() = default;
    ~CTooltip() { Destroy(); }
    CTooltip(const CTooltip&) = delete;
    CTooltip& operator=(const CTooltip&) = delete;

    // These take effect at the next Create.
    std::int32_t Style() const { return style; }
    void SetStyle(std::int32_t vData) { style = vData; }
    /// Centred under the window instead of beside the pointer.
    bool Centered() const { return centered; }
    void SetCentered(bool vData) { centered = vData; }
    /// Milliseconds for which the balloon stays up.
    std::int32_t VisibleTime() const { return visibleTime; }
    void SetVisibleTime(std::int32_t lData) { visibleTime = lData; }
    /// Milliseconds from the pointer's arrival to the balloon.
    std::int32_t DelayTime() const { return delayTime; }
    void SetDelayTime(std::int32_t lData) { delayTime = lData; }

    // These reach a popup that stands: the heading only while it has both a title and an icon.
    /// 0 none, 1 information, 2 warning, 3 error.
    std::int32_t Icon() const { return icon; }
    void SetIcon(std::int32_t vData);
    std::string Title() const { return title; }
    void SetTitle(const std::string& vData);
    /// The body; its lines are parted by CR LF.
    std::string TipText() const { return tipText; }
    void SetTipText(const std::string& vData);

    /// Makes the popup, in place of the one before. It opens beside the pointer, which is over the
    /// parent already.
    /// @param PP  the popup stays above other windows.
    void Create(forms::Form& Parent, bool PP);
    /// Takes the popup away at once, if there is one.
    void Destroy();

private:
    void UpdateHeading();

    std::string title;
    std::string tipText;
    std::int32_t icon = 0;
    std::int32_t style = 0;
    std::int32_t visibleTime = 10000;
    std::int32_t delayTime = 250;
    bool centered = false;
    forms::BalloonPointer popup;
};

}
