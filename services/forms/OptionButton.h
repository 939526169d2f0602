#pragma once

#include "services/forms/Control.h"

#include <QRadioButton>

namespace vellarno::forms {

/// One of several choices; the options of a container exclude one another. Click comes when the
/// value turns true, by mouse, by key or by a write.
class OptionButton : public ControlOf<QRadioButton>
{
    Q_OBJECT

public:
    explicit OptionButton(QWidget* Parent = nullptr) : ControlOf<QRadioButton>(Parent)
    {
        connect(this, &QAbstractButton::toggled, this, [this](bool On) {
            if (On && Click) Click();
        });
    }

    bool Value() const { return isChecked(); }
    void SetValue(bool On) { setChecked(On); }
    std::string Caption() const { return text().toStdString(); }
};

}
