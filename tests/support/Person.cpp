#include "tests/support/Person.h"

#include <QClipboard>
#include <QImage>
#include <QInputMethodEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace vellarno::test {

namespace {

constexpr int Patience = 30'000;
Qt::MouseButtons held;
int mouseTime = 0;

QString Utf16(std::string_view Text)
{
    return QString::fromUtf8(Text.data(), static_cast<qsizetype>(Text.size()));
}

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
    for (const auto* form : Shown<forms::Form>()) {
        const bool pinned = form->windowHandle()->flags() & Qt::WindowStaysOnTopHint;
        names += form->objectName() + (pinned ? "*" : "");
    }
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
    for (const QChar c : Utf16(Text)) Press(Qt::Key(c.toUpper().unicode()), {}, c);
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
    QGuiApplication::clipboard()->setText(Utf16(Text));
    Press(Qt::Key_Insert, Qt::ShiftModifier);
}

void Person::Commit(std::string_view Text) const
{
    QInputMethodEvent commit;
    commit.setCommitString(Utf16(Text));
    if (subject->focusWidget()) QCoreApplication::sendEvent(subject->focusWidget(), &commit);
}

void Person::Mouse(QEvent::Type Act, Spot At, Button By, int Pause) const
{
    QWindow* handle = subject && subject->isVisible() ? subject->windowHandle() : nullptr;
    held.setFlag(By, Act == QEvent::MouseButtonPress);
    mouseTime += Pause;
    const QPoint at = At.At;
    if (handle)
        qt_handleMouseEvent(handle, at, handle->mapToGlobal(at), held, By, Act, {}, mouseTime);
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
    const QWidget& widget = Of.Widget();
    return subject->grab({widget.mapTo(subject, QPoint()), widget.size()}).toImage();
}

std::string Row(const forms::ControlArray<forms::TextBox>& Boxes, int First, char Separator)
{
    std::string row;
    for (const int i : {0, 1, 2}) {
        const std::string text = Boxes[First + i].Text();
        const std::size_t width = Separator == '/' && i == 2 ? 4 : 2; // a year has four digits
        row += text + std::string(std::max(width, text.size()) - text.size(), '_') + Separator;
    }
    return row.substr(0, row.size() - 1);
}

int CountPoints(const QImage& In, const QColor& Of, int Softness)
{
    int count = 0;
    for (int i = 0; i < In.width() * In.height(); ++i) {
        const QColor is = In.pixelColor(i % In.width(), i / In.width());
        count += std::abs(is.red() - Of.red()) + std::abs(is.green() - Of.green()) +
                     std::abs(is.blue() - Of.blue()) <=
                 Softness;
    }
    return count;
}

}
