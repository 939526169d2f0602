#include "services/forms/ScrollBar.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace vellarno::forms {

ScrollBar::ScrollBar(QWidget* Parent) : ControlOf<QScrollBar>(Parent)
{
    setOrientation(Qt::Horizontal);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractSlider::valueChanged, this, [this] {
        if (Change) Change();
    });
}

/// The toolkit has the side arrows of a scroll bar the wrong way round.
void ScrollBar::keyPressEvent(QKeyEvent* Event)
{
    if (Event->key() == Qt::Key_Left)
        triggerAction(SliderSingleStepSub);
    else if (Event->key() == Qt::Key_Right)
        triggerAction(SliderSingleStepAdd);
    else
        QScrollBar::keyPressEvent(Event);
}

/// One notch of the wheel is one step, whatever the desktop scrolls a text by.
void ScrollBar::wheelEvent(QWheelEvent* Event)
{
    const int turn =
        Event->angleDelta().y() != 0 ? Event->angleDelta().y() : -Event->angleDelta().x();
    if (turn != 0) triggerAction(turn > 0 ? SliderSingleStepSub : SliderSingleStepAdd);
    Event->accept();
}

}
