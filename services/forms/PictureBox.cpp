#include "services/forms/PictureBox.h"

#include "services/forms/TextBox.h"

#include <QPainter>
#include <algorithm>

namespace vellarno::forms {

void PictureBox::Cls()
{
    printed.clear();
    currentX = currentY = 0;
    update();
}

int PictureBox::TextWidth(const std::string& Text) const
{
    return fontMetrics().horizontalAdvance(QString::fromStdString(Text));
}

void PictureBox::Print(const std::string& Text)
{
    printed.push_back({currentX, currentY, QString::fromStdString(Text)});
    currentX = 0;
    currentY += fontMetrics().height();
    update();
}

std::string PictureBox::PrintedText() const
{
    std::string all;
    for (const auto& line : printed) all += line.Text.toStdString();
    return all;
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // A box around entry fields looks as they do: usable or not, with the keyboard or without.
    const auto fields = findChildren<TextBox*>(QString(), Qt::FindDirectChildrenOnly);
    const bool usable = fields.isEmpty() || std::ranges::any_of(fields, &QWidget::isEnabled);
    const bool focused = hasFocus() || std::ranges::any_of(fields, &QWidget::hasFocus);
    DrawLook(painter, rect(), GetLook(), isEnabled() && usable, focused);
    if (!PicturePath().isEmpty()) DrawPicture(painter, rect(), PicturePath(), isEnabled());
    painter.setPen(QWidget::palette().color(QPalette::WindowText));
    for (const auto& line : printed)
        painter.drawText(line.X, line.Y + painter.fontMetrics().ascent(), line.Text);
    DrawFocusMark(painter);
}

}
