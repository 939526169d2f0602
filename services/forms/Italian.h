#pragma once

#include <QTranslator>

namespace vellarno::forms {

/// The toolkit's own words in the program's language, whatever the desktop's: the context menu of a
/// text box, the button of a message box, what a screen reader can do.
class Italian : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char* Context, const char* Source, const char*, int) const override;
    bool isEmpty() const override { return false; }
};

}
