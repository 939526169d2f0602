#include "tests/support/Driver.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace vellarno::test {

namespace {

QWindow* WindowOf(const QWidget& Widget)
{
    return Widget.window()->windowHandle();
}

QPoint MiddleOf(const forms::Control& Control)
{
    return Control.Widget().mapTo(Control.Widget().window(), Control.Widget().rect().center());
}

}

void Open(forms::Form& Form)
{
    Form.Show();
    if (!QTest::qWaitForWindowActive(&Form)) throw std::logic_error("the form is not active");
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
    for (const QChar c : QString::fromStdString(Text))
        QTest::sendKeyEvent(QTest::Click, WindowOf(Form), Qt::Key(c.toUpper().unicode()), c, {});
}

void Press(forms::Form& Form, Qt::Key Key, Qt::KeyboardModifiers Modifiers)
{
    QTest::keyClick(WindowOf(Form), Key, Modifiers);
}

void MouseAct::operator()(const forms::Control& Control) const
{
    const auto action = static_cast<QTest::MouseAction>(Action);
    QTest::mouseEvent(action, WindowOf(Control.Widget()), Button, {}, MiddleOf(Control));
}

void MouseAct::operator()(const forms::Form& Form, int X, int Y) const
{
    QTest::mouseEvent(static_cast<QTest::MouseAction>(Action), WindowOf(Form), Button, {}, {X, Y});
}

const MouseAct Click{QTest::MouseClick}, MouseDown{QTest::MousePress};
const MouseAct MouseUp{QTest::MouseRelease}, MoveTo{QTest::MouseMove, Qt::NoButton};

void Wheel(forms::Control& Control, bool Up)
{
    const QPoint at = MiddleOf(Control);
    QWindow* window = WindowOf(Control.Widget());
    QWheelEvent turn(at, window->mapToGlobal(at), {}, {0, Up ? 120 : -120}, {}, {}, {}, false);
    QCoreApplication::sendEvent(window, &turn);
}

void Commit(forms::Control& Control, const std::string& Text)
{
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromStdString(Text));
    QCoreApplication::sendEvent(&Control.Widget(), &commit);
}

void Paste(forms::Form& Form, const std::string& Text)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(Text));
    Press(Form, Qt::Key_Insert, Qt::ShiftModifier);
}

void Drop(forms::Control& Control, const std::string& Text)
{
    QWindow* window = WindowOf(Control.Widget());
    QMimeData dragged;
    dragged.setText(QString::fromStdString(Text));
    QDragMoveEvent move(MiddleOf(Control), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QDropEvent drop(MiddleOf(Control), Qt::CopyAction, &dragged, {}, {});
    QCoreApplication::sendEvent(window, &move);
    if (move.isAccepted()) QCoreApplication::sendEvent(window, &drop);
}

std::vector<const forms::Balloon*> ShownBalloons()
{
    std::vector<const forms::Balloon*> shown;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (const auto* balloon = dynamic_cast<const forms::Balloon*>(window))
            if (balloon->isVisible()) shown.push_back(balloon);
    return shown;
}

}
