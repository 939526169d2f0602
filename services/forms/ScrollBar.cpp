#include "services/forms/ScrollBar.h"

#include "services/forms/Look.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <cstdlib>

namespace vellarno::forms {

namespace {

constexpr auto Arrows = {QStyle::SC_ScrollBarSubLine, QStyle::SC_ScrollBarAddLine};

constexpr int OuterMargin = 2;
constexpr int InnerMargin = 1;
constexpr qreal ArrowWidth = 4;
constexpr qreal ArrowHeight = 8;

void DrawArrow(QPainter& Painter, const QRectF& Area, qreal Direction, const QColor& Color)
{
    const QPointF tip = Area.center() + QPointF(Direction * ArrowWidth / 2, 0);
    const qreal back = -Direction * ArrowWidth;
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(Color);
    Painter.drawPolygon(QPolygonF(
        {tip, tip + QPointF(back, -ArrowHeight / 2), tip + QPointF(back, ArrowHeight / 2)}));
}

}

ScrollBar::ScrollBar(QWidget* Parent) : ControlOf<QScrollBar>(Parent)
{
    setOrientation(Qt::Horizontal);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    if (Parent) Parent->installEventFilter(this);
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

QRect ScrollBar::ArrowArea(QStyle::SubControl Arrow) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, Arrow, this);
}

/// Two flat arrows and nothing between them: a label stands there, over the last pixel of the left
/// one. They keep a margin, so that both show all their edges.
void ScrollBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto arrow : Arrows) {
        const bool left = arrow == QStyle::SC_ScrollBarSubLine;
        const QRectF area = ArrowArea(arrow).adjusted(left ? OuterMargin : InnerMargin, 0,
                                                      left ? -InnerMargin : -OuterMargin, 0);
        painter.setPen(hasFocus() ? palette::Accent : palette::PanelEdge);
        painter.setBrush(pressed == arrow ? palette::BandBottom : palette::Panel);
        painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        DrawArrow(painter, area, left ? -1 : 1, palette::Accent);
    }
}

/// The toolkit looks at the other buttons too: one that is down keeps an arrow from answering, or
/// from letting go.
void ScrollBar::mousePressEvent(QMouseEvent* Event)
{
    if (Event->button() != Qt::LeftButton) return;
    for (const auto arrow : Arrows)
        if (ArrowArea(arrow).contains(Event->position().toPoint())) pressed = arrow;
    QMouseEvent alone(Event->type(), Event->position(), Event->globalPosition(), Qt::LeftButton,
                      Qt::LeftButton, Event->modifiers());
    QScrollBar::mousePressEvent(&alone);
    update();
}

void ScrollBar::mouseReleaseEvent(QMouseEvent* Event)
{
    if (Event->button() != Qt::LeftButton) return;
    pressed = QStyle::SC_None;
    QMouseEvent alone(Event->type(), Event->position(), Event->globalPosition(), Qt::LeftButton,
                      Qt::NoButton, Event->modifiers());
    QScrollBar::mouseReleaseEvent(&alone);
    update();
}

/// One notch of the wheel is one step, whatever the desktop scrolls a text by; a touchpad tells
/// small parts of a notch.
void ScrollBar::wheelEvent(QWheelEvent* Event)
{
    constexpr int Notch = QWheelEvent::DefaultDeltasPerStep;
    const QPoint turn = Event->angleDelta();
    // To the left as upwards; a swipe is never quite straight.
    turned += std::abs(turn.y()) < std::abs(turn.x()) ? turn.x() : turn.y();
    for (; turned >= Notch; turned -= Notch) triggerAction(SliderSingleStepSub);
    for (; turned <= -Notch; turned += Notch) triggerAction(SliderSingleStepAdd);
    Event->accept();
}

bool ScrollBar::eventFilter(QObject* Container, QEvent* Event)
{
    if (Event->type() != QEvent::Wheel) return QScrollBar::eventFilter(Container, Event);
    wheelEvent(static_cast<QWheelEvent*>(Event));
    return true;
}

}
