#include "tests/support/Person.h"

#include <QClipboard>
#include <QImage>
#include <QInputMethodEvent>
#include <QScreen>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace vellarno::test {

namespace {

constexpr int Patience = 30'000;

}

void Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

bool WaitUntil(const std::function<bool()>& Condition)
{
    return QTest::qWaitFor(Condition, Patience);
}

std::string OpenWindows()
{
    QStringList names;
    for (const auto* form : Shown<forms::Form>())
        names += form->objectName() +
                 (form->windowHandle()->flags() & Qt::WindowStaysOnTopHint ? "*" : "");
    return names.join(' ').toStdString();
}

Spot::Spot(const forms::Control& On)
    : At(On.Widget().mapTo(On.Widget().window(), On.Widget().rect().center()))
{}

void Person::Open() const
{
    subject->Show();
    if (!QTest::qWaitForWindowActive(subject, Patience)) throw std::logic_error("not active");
    Settle();
}

void Person::Type(std::string_view Text) const
{
    for (const QChar c : QString::fromUtf8(Text)) Press(Qt::Key(c.toUpper().unicode()), {}, c);
}

void Person::Press(Qt::Key Key, Qt::KeyboardModifiers Modifiers, const QString& Text) const
{
    const QPointer<QWindow> handle = subject ? subject->windowHandle() : nullptr;
    for (const auto act : {QEvent::KeyPress, QEvent::KeyRelease})
        if (handle) qt_handleKeyEvent(handle, act, Key, Modifiers, Text);
    Settle();
}

void Person::Enter(const forms::TextBox& Into, std::string_view Text) const
{
    Click(Into);
    Press(Qt::Key_Home);
    Press(Qt::Key_End, Qt::ShiftModifier);
    Type(Text);
}

void Person::Paste(std::string_view Text) const
{
    QGuiApplication::clipboard()->setText(QString::fromUtf8(Text));
    Press(Qt::Key_Insert, Qt::ShiftModifier);
}

void Person::Commit(std::string_view Text) const
{
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromUtf8(Text));
    if (subject->focusWidget()) QCoreApplication::sendEvent(subject->focusWidget(), &commit);
}

void Person::Mouse(QEvent::Type Act, Spot At, Qt::MouseButton By, int Pause) const
{
    static Qt::MouseButtons held;
    static int mouseTime = 0;
    QWindow* handle = subject && subject->isVisible() ? subject->windowHandle() : nullptr;
    held.setFlag(By, Act == QEvent::MouseButtonPress);
    mouseTime += Pause;
    if (handle)
        qt_handleMouseEvent(handle, At.At, handle->mapToGlobal(At.At), held, By, Act, {},
                            mouseTime);
    if (Act != QEvent::MouseButtonPress) Settle();
}

void Person::Wheel(Spot At, QPoint Turn) const
{
    QWindow* handle = subject->windowHandle();
    QWheelEvent turn(At.At, handle->mapToGlobal(At.At), {}, Turn, {}, {}, {}, false);
    // Only an event from outside comes by what lies behind a control that left it alone.
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(handle, &turn);
}

std::string Person::Focus() const
{
    const QWidget* focused = subject->focusWidget();
    return focused ? focused->objectName().toStdString() : "";
}

QImage Person::Seen(const forms::Control& Of) const
{
    QEvent painting(QEvent::UpdateRequest); // of what has changed alone, as on the screen
    QCoreApplication::sendEvent(subject, &painting);
    const QPoint at = Of.Widget().mapTo(subject, QPoint());
    const auto shown =
        subject->screen()->grabWindow(subject->winId(), at.x(), at.y(), Of.Width(), Of.Height());
    return shown.toImage();
}

std::string Row(const forms::ControlArray<forms::TextBox>& Boxes, int First, char Separator)
{
    QStringList texts;
    for (const int i : {0, 1, 2}) // a year has four digits
        texts += Boxes[First + i].text().leftJustified(Separator == '/' && i == 2 ? 4 : 2, u'_');
    return texts.join(QLatin1Char(Separator)).toStdString();
}

int CountPoints(const QImage& In, const QColor& Of, int Softness)
{
    int count = 0;
    for (int i = 0; i < In.width() * In.height(); ++i) {
        const QColor is = In.pixelColor(i % In.width(), i / In.width());
        const int distance = std::abs(is.red() - Of.red()) + std::abs(is.green() - Of.green()) +
                             std::abs(is.blue() - Of.blue());
        count += distance <= Softness;
    }
    return count;
}

}
