#include "services/forms/Image.h"

#include <QAccessible>
#include <QPainter>

namespace vellarno::forms {

void Image::SetPicturePath(const QString& Path)
{
    picture = Path;
    update();
}

void Image::SetPressed(bool On)
{
    pressed = On;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void Image::SetLook(forms::Look Kind)
{
    look = Kind;
    update();
}

void Image::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    DrawLook(painter, rect(), look, isEnabled(), false);
    if (!picture.isEmpty()) DrawPicture(painter, rect(), picture, isEnabled());
    DrawFocusMark(painter);
}

}
