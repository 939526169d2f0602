#pragma once

#include "services/forms/Form.h"
#include "services/forms/Strip.h"

#include <cstdint>
#include <span>
#include <string>

namespace vellarno {

/// A strip along the bottom of a form whose parts hold controls of the form: its picture boxes
/// become the strip's panels and draw what they like. Until Create, every operation is without
/// effect; so is one on a part that isn't there.
class StatusBar
{
public:
    StatusBar() = default;
    /// The strip goes; the controls that it held go back to the form, hidden.
    ~StatusBar();
    StatusBar(const StatusBar&) = delete;
    StatusBar& operator=(const StatusBar&) = delete;

    /// Makes the strip, with a single part. @return false if there is one already: it stays as it
    /// is.
    bool Create(forms::Form& frmParent);
    /// The strip, or nullptr before Create.
    forms::Control* hwnd() const { return strip.data(); }

    /// @param lStyle  drawing bits above the lowest byte; all parts look alike here.
    void SetText(std::int16_t iPart, const std::string& sText, std::int32_t lStyle = 0);
    std::string GetText(std::int16_t iPart) const;

    void Hide();
    void Show();
    /// Lays the strip along the bottom of a form whose size has changed.
    void Resize(const forms::Form& frmParent);

    /// Divides the strip into 1 to 255 parts.
    /// @param iPanel  right edge of each part in pixels; -1 (65535 in 16 bits): up to the right
    /// end.
    void SetParts(std::int16_t iPartsNum, std::span<const std::int16_t> iPanel);
    /// Moves a control into a part, inside the part's frame, and shows it.
    void CopyObj(std::int16_t iPart, forms::Control& Obj);

private:
    forms::StripPointer strip;
};

}
