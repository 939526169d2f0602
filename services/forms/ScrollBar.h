#pragma once

#include "services/forms/Control.h"

#include <QScrollBar>
#include <QStyle>

namespace vellarno::forms {

/// A horizontal scroll bar. Change comes inside every write or move that changes the value. The
/// wheel turns it wherever it is turned over the bar's container.
class ScrollBar : public ControlOf<QScrollBar>
{
    Q_OBJECT

public:
    std::function<void()> Change;

    explicit ScrollBar(QWidget* Parent = nullptr);

    int Value() const { return value(); }
    void SetValue(int To) { setValue(To); }

    bool eventFilter(QObject* Container, QEvent* Event) override;

protected:
    void paintEvent(QPaintEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;

private:
    QRect ArrowArea(QStyle::SubControl Arrow) const;

    QStyle::SubControl pressed = QStyle::SC_None; ///< the arrow under the button that is down
    int turned = 0;                               ///< of the wheel, less than a notch
};

}
