#include "services/forms/Label.h"

#include <QPainter>

namespace vellarno::forms {

Label::Label(QWidget* Parent) : ControlOf<QLabel>(Parent)
{
    setTextFormat(Qt::PlainText);
}

void Label::SetCaption(const std::string& Text)
{
    const QString caption = QString::fromStdString(Text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (caption == text()) return;
    setText(caption);
    NameItself();
}

void Label::NameItself()
{
    if (!accessibleTitle.isEmpty()) setAccessibleName(accessibleTitle + QLatin1String(": ") + text());
}

void Label::SetAccessibleTitle(const QString& Title)
{
    accessibleTitle = Title;
    NameItself();
}

void Label::SetForeColor(unsigned int Value)
{
    foreColor = Value;
    QPalette colors = palette();
    colors.setColor(QPalette::Active, QPalette::WindowText, ColorOf(Value));
    colors.setColor(QPalette::Inactive, QPalette::WindowText, ColorOf(Value));
    setPalette(colors);
}

void Label::SetBackOpaque(bool Opaque)
{
    backOpaque = Opaque;
    update();
}

void Label::SetBackColor(unsigned int Value)
{
    backColor = Value;
    update();
}

void Label::SetLook(forms::Look Kind)
{
    look = Kind;
    update();
}

void Label::paintEvent(QPaintEvent* Event)
{
    {
        QPainter painter(this);
        if (backOpaque) painter.fillRect(rect(), ColorOf(backColor));
        DrawLook(painter, rect(), look, isEnabled(), false);
    }
    QLabel::paintEvent(Event);
}

}
