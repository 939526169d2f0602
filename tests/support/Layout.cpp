#include "tests/support/Layout.h"

#include <QFile>
#include <QLineEdit>
#include <QVariant>
#include <gtest/gtest.h>
#include <map>

namespace vellarno::test {

/// Whether two controls for texts lie over one another by more than their edges; a heading's copy
/// that makes its shadow may.
static bool Overlap(const QWidget& One, const QWidget& Other)
{
    const QVariant texts[] = {One.property("text"), Other.property("text")};
    const QRect common = One.geometry() & Other.geometry();
    return One.parent() == Other.parent() && &One != &Other && common.width() > 2 &&
           common.height() > 2 && !One.isHidden() && !Other.isHidden() && texts[0].isValid() &&
           texts[1].isValid() && (texts[0] != texts[1] || texts[0].toString().isEmpty());
}

void ExpectLayout(const forms::Form& Form, int Hands, std::span<const LayoutRow> Rows)
{
    EXPECT_EQ(Form.minimumSize(), Form.maximumSize());
    std::map<QString, std::pair<QString, LayoutRow>> expected;
    for (const LayoutRow& row : Rows) {
        const auto names = QString(row.Names).split(' '), shows = QString(row.Shows).split('|');
        for (qsizetype i = 0; i < names.size(); ++i)
            expected[names[i]] = {shows.size() == 1 ? shows[0] : shows.at(i), row};
    }
    for (const forms::Control* control : Form.Controls()) {
        const QWidget& widget = control->Widget();
        Hands -= widget.cursor().shape() == Qt::PointingHandCursor;
        if (widget.objectName().startsWith("GIORNO_")) continue; // days change
        SCOPED_TRACE(widget.objectName().toStdString());
        const auto found = expected.extract(widget.objectName());
        const auto [shows, row] = found ? found.mapped() : std::pair(QString(), LayoutRow{"", ""});
        const QString text = widget.property("text").toString();
        const QString picture = widget.property("Picture").toString();
        EXPECT_EQ(text.isEmpty() ? picture : text, shows);
        EXPECT_TRUE(picture.isEmpty() || QFile::exists(picture.chopped(4) + "@3x.png"));
        const std::string begins = row.ToolTip, toolTip = widget.toolTip().toStdString();
        EXPECT_TRUE(toolTip.starts_with(begins) && toolTip.empty() == begins.empty()) << toolTip;
        const auto* box = dynamic_cast<const QLineEdit*>(&widget);
        EXPECT_EQ(box && !box->isReadOnly() ? box->maxLength() : 0, row.MaxLength);
        for (const forms::Control* other : Form.Controls())
            EXPECT_FALSE(Overlap(widget, other->Widget()))
                << other->Widget().objectName().toStdString();
    }
    EXPECT_EQ(Hands, 0) << "hands that lack";
    for (const auto& [name, row] : expected) ADD_FAILURE() << "there is no " << name.toStdString();
}

std::string TabOrder(const Person& Before)
{
    const std::string first = Before.Focus();
    std::string all = first;
    for (int i = 0; i < 100; ++i) { // an order without end is none
        Before.Press(Qt::Key_Tab);
        if (Before.Focus() == first) break;
        all += ' ' + Before.Focus();
    }
    return all;
}

}
