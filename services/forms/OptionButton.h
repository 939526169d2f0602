#pragma once

#include "services/forms/Control.h"

#include <QRadioButton>

namespace vellarno::forms {

/// One of several choices; the options of a container exclude one another. Click comes when the
/// value turns true, by mouse, by arrow key or by a write.
class OptionButton : public ControlOf<QRadioButton>
{
    Q_OBJECT

public:
    explicit OptionButton(QWidget* Parent = nullptr);

    bool Value() const { return isChecked(); }
    void SetValue(bool On) { setChecked(On); }

protected:
    void focusInEvent(QFocusEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    /// All of the control answers the mouse, not its text alone.
    bool hitButton(const QPoint& At) const override { return rect().contains(At); }

private:
    OptionButton& Neighbour(int Step);
    void LeadTabToSelected();
};

}
