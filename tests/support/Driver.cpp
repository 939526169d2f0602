#include "tests/support/Driver.h"

#include "services/forms/Balloon.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>

#include <stdexcept>

namespace vellarno::test {

namespace {

QWindow* WindowOf(const QWidget& Widget)
{
    if (QWindow* window = Widget.window()->windowHandle()) return window;
    throw std::logic_error("the form has not been shown");
}

QPoint MiddleOf(const forms::Control& Control)
{
    const QWidget& widget = Control.Widget();
    return widget.mapTo(widget.window(), widget.rect().center());
}

/// The text that a keyboard sends along with the key.
QString TextOf(Qt::Key Key, Qt::KeyboardModifiers Modifiers)
{
    switch (Key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return QStringLiteral("\r");
    case Qt::Key_Escape: return QStringLiteral("\x1b");
    case Qt::Key_Backspace: return QStringLiteral("\b");
    case Qt::Key_Tab: return QStringLiteral("\t");
    case Qt::Key_Delete: return QStringLiteral("\x7f");
    default: break;
    }
    const bool letter = Key >= Qt::Key_A && Key <= Qt::Key_Z;
    if (letter && Modifiers.testFlag(Qt::ControlModifier)) return QChar(Key - Qt::Key_A + 1);
    if (letter && !Modifiers.testFlag(Qt::ShiftModifier)) return QChar(Key).toLower();
    return Key < Qt::Key_Escape ? QString(QChar(Key)) : QString();
}

void Button(QTest::MouseAction Action, const QWidget& Widget, const QPoint& At,
            Qt::MouseButton Which = Qt::LeftButton)
{
    QTest::mouseEvent(Action, WindowOf(Widget), Which, Qt::NoModifier, At);
}

}

void Open(forms::Form& Form)
{
    Form.Show();
    if (!QTest::qWaitForWindowActive(&Form))
        throw std::logic_error("the form did not become active");
    Settle();
}

void Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Wait(int Milliseconds)
{
    QTest::qWait(Milliseconds);
}

bool WaitUntil(const std::function<bool()>& Condition)
{
    return QTest::qWaitFor(Condition);
}

void Type(forms::Form& Form, const std::string& Text)
{
    for (const QChar character : QString::fromStdString(Text))
        QTest::sendKeyEvent(QTest::Click, WindowOf(Form), Qt::Key(character.toUpper().unicode()),
                            QString(character), Qt::NoModifier);
}

void Press(forms::Form& Form, Qt::Key Key, Qt::KeyboardModifiers Modifiers)
{
    QTest::sendKeyEvent(QTest::Click, WindowOf(Form), Key, TextOf(Key, Modifiers), Modifiers);
}

void Click(forms::Control& Control)
{
    Button(QTest::MouseClick, Control.Widget(), MiddleOf(Control));
}

void ClickAt(forms::Form& Form, int X, int Y)
{
    Button(QTest::MouseClick, Form, {X, Y});
}

void MouseDown(forms::Control& Control)
{
    Button(QTest::MousePress, Control.Widget(), MiddleOf(Control));
}

void MouseUp(forms::Control& Control)
{
    Button(QTest::MouseRelease, Control.Widget(), MiddleOf(Control));
}

void MouseDownAt(forms::Form& Form, int X, int Y)
{
    Button(QTest::MousePress, Form, {X, Y});
}

void MouseUpAt(forms::Form& Form, int X, int Y)
{
    Button(QTest::MouseRelease, Form, {X, Y});
}

void MoveTo(forms::Control& Control)
{
    Button(QTest::MouseMove, Control.Widget(), MiddleOf(Control), Qt::NoButton);
}

void MoveTo(forms::Form& Form, int X, int Y)
{
    Button(QTest::MouseMove, Form, {X, Y}, Qt::NoButton);
}

void PutPointer(forms::Form& Form, int X, int Y)
{
    for (const int x : {X + 1, X}) { // a pointer that stands still tells nothing
        QCursor::setPos(Form.mapToGlobal(QPoint(x, Y)));
        Settle();
    }
}

void Wheel(forms::Control& Control, bool Up)
{
    const QPoint at = MiddleOf(Control);
    QWindow* window = WindowOf(Control.Widget());
    QWheelEvent turn(at, window->mapToGlobal(at), {}, {0, Up ? 120 : -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &turn);
}

void Commit(forms::Control& Control, const std::string& Text)
{
    if (QGuiApplication::focusObject() != &Control.Widget())
        throw std::logic_error("input methods commit to the control that has the focus");
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromStdString(Text));
    QCoreApplication::sendEvent(&Control.Widget(), &commit);
}

void Paste(forms::Form& Form, const std::string& Text)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(Text));
    Press(Form, Qt::Key_Insert, Qt::ShiftModifier);
}

bool PasteByMiddleButton(forms::Control& Control, const std::string& Text)
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (!clipboard->supportsSelection()) return false;
    clipboard->setText(QString::fromStdString(Text), QClipboard::Selection);
    Button(QTest::MouseClick, Control.Widget(), MiddleOf(Control), Qt::MiddleButton);
    return true;
}

bool Drop(forms::Control& Control, const std::string& Text)
{
    QWindow* window = WindowOf(Control.Widget());
    const QPoint at = MiddleOf(Control);
    QMimeData dragged;
    dragged.setText(QString::fromStdString(Text));
    QDragEnterEvent enter(at, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &enter);
    QDragMoveEvent move(at, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &move);
    if (!move.isAccepted()) return false;
    QDropEvent drop(at, Qt::CopyAction, &dragged, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &drop);
    return drop.isAccepted();
}

std::string ToolTipOver(forms::Control& Control)
{
    QToolTip::hideText();
    WaitUntil([] { return !QToolTip::isVisible(); });
    const QPoint middle = MiddleOf(Control);
    for (const QPoint& at :
         {middle + QPoint(1, 0), middle}) // a pointer that stands still tells nothing
        Button(QTest::MouseMove, Control.Widget(), at, Qt::NoButton);
    const auto shown = [] { return QToolTip::isVisible(); };
    const int beyondDelay = 1500;
    return QTest::qWaitFor(shown, beyondDelay) ? QToolTip::text().toStdString() : std::string();
}

std::vector<Balloon> ShownBalloons()
{
    std::vector<Balloon> shown;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        const auto* balloon = dynamic_cast<const forms::Balloon*>(window);
        if (!balloon || !balloon->isVisible()) continue;
        const QRect at = balloon->geometry();
        shown.push_back({balloon->Title(), balloon->Text(), balloon->Icon(),
                         balloon->windowFlags().testFlag(Qt::WindowStaysOnTopHint), at.x(), at.y(),
                         at.width(), at.height()});
    }
    return shown;
}

}
