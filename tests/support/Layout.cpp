#include "tests/support/Layout.h"

#include <QLineEdit>
#include <QVariant>
#include <gtest/gtest.h>
#include <map>

namespace vellarno::test {

void ExpectLayout(const forms::Form& Form, const std::vector<LayoutRow>& Rows)
{
    std::map<QString, std::pair<QString, LayoutRow>> expected;
    for (const LayoutRow& row : Rows) {
        const auto names = QString(row.Names).split(' '), shows = QString(row.Shows).split('|');
        for (qsizetype i = 0; i < names.size(); ++i)
            expected[names[i]] = {shows.size() == 1 ? shows[0] : shows.at(i), row};
    }
    for (const forms::Control* control : Form.Controls()) {
        const QWidget& widget = control->Widget();
        if (widget.objectName().startsWith("GIORNO_")) continue; // days change
        SCOPED_TRACE(widget.objectName().toStdString());
        const auto found = expected.extract(widget.objectName());
        const auto [shows, row] = found ? found.mapped() : std::pair(QString(), LayoutRow{"", ""});
        const QString text = widget.property("text").toString();
        EXPECT_EQ(text.isEmpty() ? widget.property("Picture").toString() : text, shows);
        EXPECT_EQ(control->ToolTipText(), row.ToolTip);
        const auto* box = dynamic_cast<const QLineEdit*>(&widget);
        EXPECT_EQ(box && !box->isReadOnly() ? box->maxLength() : 0, row.MaxLength);
    }
    for (const auto& [name, row] : expected) ADD_FAILURE() << "there is no " << name.toStdString();
}

std::string TabOrder(const Person& Before)
{
    const std::string first = Before.Focus();
    std::string all = first;
    for (int i = 0; i < 100; ++i) {
        Before.Press(Qt::Key_Tab);
        if (Before.Focus() == first) return all;
        all += ' ' + Before.Focus();
    }
    return all + " without end";
}

}
