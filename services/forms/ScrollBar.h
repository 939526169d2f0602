#pragma once

#include "services/forms/Control.h"

#include <QScrollBar>

namespace vellarno::forms {

/// A horizontal scroll bar. Change comes inside every write or move that changes the value.
class ScrollBar : public ControlOf<QScrollBar>
{
    Q_OBJECT

public:
    std::function<void()> Change;

    explicit ScrollBar(QWidget* Parent = nullptr);

    int Value() const { return value(); }
    void SetValue(int Value) { setValue(Value); }

protected:
    void paintEvent(QPaintEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;
};

}
