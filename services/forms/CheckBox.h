#pragma once

#include "services/forms/Control.h"

#include <QCheckBox>

namespace vellarno::forms {

/// A choice that stands for itself. Click comes with every change of the value.
class CheckBox : public ControlOf<QCheckBox>
{
    Q_OBJECT

public:
    explicit CheckBox(QWidget* Parent = nullptr) : ControlOf<QCheckBox>(Parent)
    {
        connect(this, &QAbstractButton::toggled, this, [this] {
            if (Click) Click();
        });
    }

    /// 1 ticked, 0 not.
    int Value() const { return isChecked() ? 1 : 0; }
    void SetValue(int Ticked) { setChecked(Ticked == 1); }

protected:
    /// All of the control answers the mouse, not its text alone.
    bool hitButton(const QPoint& At) const override { return rect().contains(At); }
};

}
