#include "services/forms/Label.h"

#include <QPainter>
#include <utility>

namespace vellarno::forms {

namespace {

constexpr int FieldMargin = 3; ///< between the edge of a value box and its text

}

Label::Label(QWidget* Parent) : ControlOf<QLabel>(Parent)
{
    setTextFormat(Qt::PlainText);
}

void Label::SetCaption(const std::string& Text)
{
    const QString caption =
        QString::fromStdString(Text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (caption == text()) return;
    setText(caption);
    NameItself();
}

void Label::NameItself()
{
    if (!accessibleTitle.isEmpty())
        setAccessibleName(accessibleTitle + QLatin1String(": ") + text());
}

void Label::SetAccessibleTitle(const QString& Title)
{
    accessibleTitle = Title;
    NameItself();
}

void Label::SetForeColor(unsigned int Value)
{
    if (std::exchange(foreColor, Value) == Value) return;
    QPalette colors = palette();
    colors.setColor(QPalette::Active, QPalette::WindowText, ColorOf(Value));
    colors.setColor(QPalette::Inactive, QPalette::WindowText, ColorOf(Value));
    setPalette(colors);
}

void Label::SetBackOpaque(bool Opaque)
{
    if (std::exchange(backOpaque, Opaque) != Opaque) update();
}

void Label::SetBackColor(unsigned int Value)
{
    backColor = Value;
    update();
}

void Label::SetLook(forms::Look Kind)
{
    look = Kind;
    const int inside = Kind == Look::Field ? FieldMargin : 0;
    setContentsMargins(inside, 0, inside, 0);
    update();
}

void Label::paintEvent(QPaintEvent* Event)
{
    {
        QPainter painter(this);
        if (backOpaque) painter.fillRect(rect(), ColorOf(backColor));
        DrawLook(painter, rect(), look, legend->isEnabled(), false);
        DrawFocusMark(painter);
    }
    QLabel::paintEvent(Event);
}

}
