#include "services/forms/TextBox.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QMouseEvent>

namespace vellarno::forms {

TextBox::TextBox(QWidget* Parent) : ControlOf<QLineEdit>(Parent)
{
    setFrame(false);
    setAttribute(Qt::WA_OpaquePaintEvent); // its own ground covers it whole
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (Change) Change();
    });
}

void TextBox::inputMethodEvent(QInputMethodEvent* Event)
{
    QString committed;
    for (const QChar character : Event->commitString()) {
        auto code = static_cast<short>(character.unicode());
        if (FilterCharacter(code) != KeyFate::Swallowed) committed += QChar(code);
    }
    Event->setCommitString(committed, Event->replacementStart(), Event->replacementLength());
    QLineEdit::inputMethodEvent(Event);
}

// The click that brings the focus leaves the selection which GotFocus made: it sets no caret.
void TextBox::focusInEvent(QFocusEvent* Event)
{
    QLineEdit::focusInEvent(Event);
    arriving = Event->reason() == Qt::MouseFocusReason;
}

void TextBox::mousePressEvent(QMouseEvent* Event)
{
    if (!arriving || Event->button() != Qt::LeftButton) QLineEdit::mousePressEvent(Event);
}

void TextBox::mouseMoveEvent(QMouseEvent* Event)
{
    if (!arriving) QLineEdit::mouseMoveEvent(Event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* Event)
{
    if (!arriving) QLineEdit::mouseReleaseEvent(Event);
    arriving = false;
}

}
