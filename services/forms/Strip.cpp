#include "services/forms/Strip.h"

#include "services/forms/Form.h"
#include "services/forms/Look.h"

#include <QPainter>

namespace vellarno::forms {

namespace {

constexpr int TextInset = 4;
// Level with what the parts hold, which leaves a margin below.
constexpr int SeparatorTop = 3;
constexpr int SeparatorBottom = 6;

}

Strip::Strip(Form& Parent) : ControlOf<QWidget>(&Parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent); // the ground covers it whole
    setGeometry(0, Parent.ScaleHeight() - Thickness, Parent.ScaleWidth(), Thickness);
    show();
}

void Strip::SetEdges(const std::vector<int>& RightEdges)
{
    parts.resize(RightEdges.size());
    for (std::size_t i = 0; i < parts.size(); ++i) parts[i].RightEdge = RightEdges[i];
    update();
}

int Strip::RightEdge(int Part) const
{
    const int edge = At(Part).RightEdge;
    return edge == ToTheEnd ? width() : edge;
}

Strip::Area Strip::PartArea(int Part) const
{
    return {Part == 0 ? 0 : RightEdge(Part - 1), 0, RightEdge(Part), height()};
}

void Strip::SetText(int Part, const std::string& Words)
{
    parts.at(static_cast<std::size_t>(Part)).Text = QString::fromStdString(Words);
    update();
}

void Strip::GiveBack()
{
    for (QWidget* held : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        held->setParent(parentWidget());
}

void Strip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette::Strip);
    painter.fillRect(0, 0, width(), 1, palette::StripLine);
    for (int i = 0; Has(i); ++i) {
        const Area area = PartArea(i);
        if (Has(i + 1))
            painter.fillRect(area.Right - 1, SeparatorTop, 1,
                             height() - SeparatorTop - SeparatorBottom, palette::StripLine);
        painter.setPen(palette::Text);
        painter.drawText(QRect(area.Left, area.Top, area.Right - area.Left, area.Bottom)
                             .adjusted(TextInset, 0, -TextInset, 0),
                         Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, At(i).Text);
    }
}

}
