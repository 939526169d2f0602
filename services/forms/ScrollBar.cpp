#include "services/forms/ScrollBar.h"

#include "services/forms/Look.h"
#include <QKeyEvent>

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace vellarno::forms {

namespace {

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

/// Two flat arrows and nothing between them: a label stands there.
void ScrollBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QStyleOptionSlider option;
    initStyleOption(&option);
    for (const auto arrow : {QStyle::SC_ScrollBarSubLine, QStyle::SC_ScrollBarAddLine}) {
        const QRectF area = style()->subControlRect(QStyle::CC_ScrollBar, &option, arrow, this);
        const bool pressed =
            option.activeSubControls == arrow && option.state & QStyle::State_Sunken;
        painter.setPen(hasFocus() ? palette::Accent : palette::PanelEdge);
        painter.setBrush(pressed ? palette::BandBottom : palette::Panel);
        painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        DrawArrow(painter, area, arrow == QStyle::SC_ScrollBarAddLine ? 1 : -1, palette::Accent);
    }
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
