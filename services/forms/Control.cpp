#include "services/forms/Control.h"

#include "services/forms/Form.h"
#include "services/forms/Look.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace vellarno::forms {

namespace {

constexpr short NoCharacter = 0, Escape = 27, DeleteWord = 127;

/// The character code of a key press: control characters as their codes, or NoCharacter.
short CharacterCode(const QKeyEvent& Event)
{
    switch (Event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return KeyEnter;
    case Qt::Key_Escape: return Escape;
    case Qt::Key_Backspace:
        return Event.modifiers().testFlag(Qt::ControlModifier) ? DeleteWord : short{KeyBackspace};
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete: return NoCharacter;
    default: break;
    }
    const auto modifiers = Event.modifiers();
    const bool control = modifiers.testFlag(Qt::ControlModifier);
    if (modifiers.testFlag(Qt::AltModifier) && !control) return NoCharacter;
    if (control && Event.key() >= Qt::Key_A && Event.key() <= Qt::Key_Z)
        return static_cast<short>(Event.key() - Qt::Key_A + 1);
    return Event.text().isEmpty() ? NoCharacter
                                  : static_cast<short>(Event.text().front().unicode());
}

/// A key without Shift and the like.
Key KeyOf(const QKeyEvent& Event)
{
    static constexpr std::pair<int, Key> Keys[] = {
        {Qt::Key_Left, Key::Left},     {Qt::Key_Right, Key::Right},
        {Qt::Key_Up, Key::Up},         {Qt::Key_Down, Key::Down},
        {Qt::Key_PageUp, Key::PageUp}, {Qt::Key_PageDown, Key::PageDown},
        {Qt::Key_Home, Key::Home},     {Qt::Key_End, Key::End},
        {Qt::Key_Return, Key::Enter},  {Qt::Key_Enter, Key::Enter},
        {Qt::Key_Space, Key::Space}};
    const bool alone = (Event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    for (const auto& [code, key] : Keys)
        if (alone && code == Event.key()) return key;
    return Key::Other;
}

}

Control::Control(QWidget& Self) : self(Self)
{
    self.setMouseTracking(true);
}

Form* Control::ParentForm() const
{
    return dynamic_cast<Form*>(self.window());
}

void Control::SetFocus()
{
    if (self.isEnabled()) self.setFocus(Qt::OtherFocusReason);
}

void Control::SetFontSize(int Pixels)
{
    QFont font = self.font();
    font.setPixelSize(Pixels);
    self.setFont(font);
}

void Control::SetFontBold(bool Bold)
{
    if (FontBold() == Bold) return;
    QFont font = self.font();
    font.setBold(Bold);
    self.setFont(font);
}

void Control::SetMousePointer(Pointer Over)
{
    switch (Over) {
    case Pointer::Default: self.unsetCursor(); break;
    case Pointer::Help: self.setCursor(Qt::WhatsThisCursor); break;
    case Pointer::Hand: self.setCursor(Qt::PointingHandCursor); break;
    }
}

void Control::SetMenu(const std::vector<MenuEntry>& Entries)
{
    for (const MenuEntry& entry : Entries) {
        auto* action = new QAction(QString::fromStdString(entry.Text), &self); // the widget owns it
        QObject::connect(action, &QAction::triggered, &self, entry.Click);
        self.addAction(action);
    }
    if (!ClickedByMouse()) return; // an entry field opens its own
    self.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&self, &QWidget::customContextMenuRequested, &self, [this](const QPoint& At) {
        auto* menu = new QMenu(&self);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addActions(self.actions());
        menu->popup(self.mapToGlobal(At));
    });
}

void Control::DrawFocusMark(QPainter& Painter) const
{
    if (self.hasFocus() && self.focusPolicy() == Qt::TabFocus)
        DrawLook(Painter, self.rect(), Look::Mark, true, true);
}

Control::KeyFate Control::FilterCharacter(short& KeyAscii)
{
    const short original = KeyAscii;
    if (Form* form = ParentForm(); form && form->KeyPreview && form->KeyPress)
        form->KeyPress(KeyAscii);
    if (KeyAscii != KeyDropped && KeyPress) KeyPress(KeyAscii);
    if (KeyAscii == KeyDropped || KeyAscii == KeyNothing) return KeyFate::Swallowed;
    return KeyAscii == original ? KeyFate::Unchanged : KeyFate::Replaced;
}

/// The second press of a double click whose first one made place for this control is nobody's.
bool Control::BelongsElsewhere(const QEvent& Event)
{
    static const Control* first = nullptr;
    if (Event.type() == QEvent::MouseButtonPress) first = this;
    if (Event.type() == QEvent::MouseButtonPress || Event.type() == QEvent::MouseButtonDblClick)
        again = Event.type() == QEvent::MouseButtonDblClick;
    return Event.type() == QEvent::MouseButtonDblClick && first != this;
}

bool Control::BeforeEvent(QEvent& Event)
{
    if (BelongsElsewhere(Event)) return true;
    // A key that a control left alone comes by its containers as well.
    if (Event.type() != QEvent::KeyPress || filtered || self.window()->focusWidget() != &self)
        return false;
    auto& key = static_cast<QKeyEvent&>(Event);
    if (Form* form = ParentForm(); form && form->PressDialogButton(key)) return true;
    const Key pressed = KeyOf(key);
    const bool presses = pressed == Key::Space || pressed == Key::Enter;
    // A key that is held down goes on moving, but presses once: it may have opened what hears it.
    if (KeyDown && !(presses && key.isAutoRepeat()) && KeyDown(pressed)) return true;
    short code = CharacterCode(key);
    const KeyFate fate = code == NoCharacter ? KeyFate::Unchanged : FilterCharacter(code);
    if (fate == KeyFate::Swallowed) {
        key.accept();
        return true;
    }
    if (fate == KeyFate::Replaced) {
        QKeyEvent replaced(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(code)));
        filtered = true;
        QCoreApplication::sendEvent(&self, &replaced);
        filtered = false;
        return true;
    }
    if (!presses || !ClickedByMouse() || !Click) return false;
    if (!key.isAutoRepeat()) Click();
    return true;
}

bool Control::AfterEvent(QEvent& Event)
{
    switch (Event.type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        if (Form* form = ParentForm()) form->FocusMoved(*this, static_cast<QFocusEvent&>(Event));
        if (self.parentWidget()) self.parentWidget()->update();
        return false;
    case QEvent::EnabledChange:
        // A disabled control's area belongs to what lies behind it: moves, clicks, tooltips.
        self.setAttribute(Qt::WA_TransparentForMouseEvents, !self.isEnabled());
        if (self.parentWidget()) self.parentWidget()->update();
        return false;
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        // A control may have been disabled while the button was down on it, and events may still
        // wait when their window has been closed.
        if (self.isEnabled() && self.isVisible()) TellMouse(static_cast<QMouseEvent&>(Event));
        // What happened over a control is not told to the window behind it as well.
        Event.accept();
        return true;
    default: return false;
    }
}

void Control::TellMouse(const QMouseEvent& Event)
{
    if (Event.type() == QEvent::MouseMove) {
        if (MouseMove) MouseMove();
    } else if (Event.type() != QEvent::MouseButtonRelease) {
        if (MouseDown) MouseDown();
    } else {
        if (MouseUp) MouseUp();
        if (Click && ClickedByMouse() && !again && Event.button() == Qt::LeftButton &&
            self.rect().contains(Event.position().toPoint()))
            Click();
    }
}

}
