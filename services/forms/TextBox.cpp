#include "services/forms/TextBox.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimerEvent>

namespace vellarno::forms {

namespace {

/// How long a caret blinks that nobody moves. Other toolkits wait as long.
constexpr int BlinkingMilliseconds = 10'000;

/// A caret that rests stays lit: each blink would wake the processor twice a second for as long as
/// the window stands open. The toolkit has one flash time for the whole program.
void LetCaretBlink(bool On)
{
    constexpr int AsTheDesktopHasIt = -1, Never = 0;
    QStyleHints& hints = *QGuiApplication::styleHints();
    if ((hints.cursorFlashTime() != Never) != On)
        hints.setCursorFlashTime(On ? AsTheDesktopHasIt : Never);
}

/// A click that brings the window back follows its return at once, nobody else's click does.
constexpr int ComebackMilliseconds = 400;

}

TextBox::TextBox(QWidget* Parent) : ControlOf<QLineEdit>(Parent)
{
    setFrame(false);
    setAttribute(Qt::WA_OpaquePaintEvent); // its own ground covers it whole
    setInputMethodHints(Qt::ImhDigitsOnly | Qt::ImhNoPredictiveText);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (Change) Change();
    });
}

/// Alt or the system key with a character is no typing, though the widget would take it for that.
void TextBox::keyPressEvent(QKeyEvent* Event)
{
    BlinkForAWhile();
    const auto modifiers = Event->modifiers();
    const bool command = modifiers.testAnyFlags(Qt::AltModifier | Qt::MetaModifier) &&
                         !modifiers.testFlag(Qt::ControlModifier);
    if (command && !Event->text().isEmpty())
        Event->ignore();
    else
        QLineEdit::keyPressEvent(Event);
}

// A text that is still being composed is kept out: it would take the place of what is selected.
void TextBox::inputMethodEvent(QInputMethodEvent* Event)
{
    QString committed;
    for (const QChar character : Event->commitString()) {
        auto code = static_cast<short>(character.unicode());
        if (FilterCharacter(code) != KeyFate::Swallowed) committed += QChar(code);
    }
    if (committed.isEmpty()) return;
    QInputMethodEvent commit;
    commit.setCommitString(committed, Event->replacementStart(), Event->replacementLength());
    QLineEdit::inputMethodEvent(&commit);
}

// The click that brings the focus, alone or with the whole window, leaves the selection which
// GotFocus made: it sets no caret. The window may come back before the button is told or after.
void TextBox::focusInEvent(QFocusEvent* Event)
{
    BlinkForAWhile();
    QLineEdit::focusInEvent(Event);
    const bool withWindow = Event->reason() == Qt::ActiveWindowFocusReason;
    arriving = Event->reason() == Qt::MouseFocusReason || (arriving && withWindow);
    if (withWindow) comeback.setRemainingTime(ComebackMilliseconds);
}

void TextBox::focusOutEvent(QFocusEvent* Event)
{
    caretRest.stop();
    QLineEdit::focusOutEvent(Event);
}

void TextBox::timerEvent(QTimerEvent* Event)
{
    if (Event->timerId() != caretRest.timerId()) return QLineEdit::timerEvent(Event);
    caretRest.stop();
    LetCaretBlink(false);
}

void TextBox::BlinkForAWhile()
{
    LetCaretBlink(true);
    caretRest.start(BlinkingMilliseconds, this);
}

void TextBox::contextMenuEvent(QContextMenuEvent* Event)
{
    QMenu* menu = createStandardContextMenu();
    if (!actions().isEmpty()) menu->addSeparator();
    menu->addActions(actions());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(Event->globalPos());
}

void TextBox::mousePressEvent(QMouseEvent* Event)
{
    arriving = arriving || !hasFocus() || !comeback.hasExpired();
    comeback = {};
    if (!arriving || Event->button() != Qt::LeftButton) QLineEdit::mousePressEvent(Event);
}

void TextBox::mouseMoveEvent(QMouseEvent* Event)
{
    if (!arriving) QLineEdit::mouseMoveEvent(Event);
}

// The first click may have passed the focus on.
void TextBox::mouseDoubleClickEvent(QMouseEvent* Event)
{
    if (hasFocus()) QLineEdit::mouseDoubleClickEvent(Event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* Event)
{
    if (!arriving || Event->button() != Qt::LeftButton) QLineEdit::mouseReleaseEvent(Event);
    arriving = false;
}

}
