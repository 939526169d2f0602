#include "services/forms/CommandButton.h"

#include "services/forms/Look.h"

#include <QKeyEvent>
#include <QPainter>

namespace vellarno::forms {

namespace {

constexpr int PictureSide = 16;

}

CommandButton::CommandButton(QWidget* Parent) : ControlOf<QPushButton>(Parent)
{
    setAutoDefault(false);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (Click) Click();
    });
}

void CommandButton::SetPicture(const QString& Path)
{
    picture = Path;
    update();
}

void CommandButton::keyPressEvent(QKeyEvent* Event)
{
    const bool enter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    if (enter && !Event->isAutoRepeat())
        click();
    else
        QPushButton::keyPressEvent(Event);
}

void CommandButton::paintEvent(QPaintEvent* Event)
{
    QPushButton::paintEvent(Event);
    if (picture.isEmpty()) return;
    QPainter painter(this);
    QRect area(0, 0, PictureSide, PictureSide);
    area.moveCenter(rect().center());
    if (isDown()) area.translate(0, 1);
    DrawPicture(painter, area, picture, isEnabled());
}

}
