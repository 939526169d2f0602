#include "services/forms/Form.h"

#include "services/forms/CommandButton.h"
#include "services/forms/Look.h"
#include "services/platform/X11.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace vellarno::forms {

namespace {

Qt::WindowFlags FlagsOf(FormBorder Border)
{
    const Qt::WindowFlags framed = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    switch (Border) {
    case FormBorder::FixedSingle: return Qt::Window | framed | Qt::WindowMinimizeButtonHint;
    case FormBorder::FixedDialog:
    case FormBorder::FixedToolWindow: return Qt::Dialog | framed;
    }
    return Qt::Window;
}

}

Form::Form(FormBorder Border) : QWidget(nullptr, FlagsOf(Border)), border(Border)
{
    setMouseTracking(true);
}

bool Form::LoadOnce()
{
    closed = false;
    if (!std::exchange(loaded, true) && Load) Load();
    return !closed;
}

void Form::UnloadAll()
{
    const auto windows = QApplication::topLevelWidgets();
    // One that closes may take others along.
    for (const auto& window : QList<QPointer<QWidget>>(windows.begin(), windows.end()))
        if (window && window->isVisible()) window->close();
}

void Form::Place()
{
    const QWidget* owner = border == FormBorder::FixedToolWindow ? parentWidget() : nullptr;
    const QRect room = (owner ? owner : this)->screen()->availableGeometry();
    const QMargins frame = FrameMargins(*this);
    QRect place = rect().marginsAdded(frame);
    place.moveCenter((owner ? owner->frameGeometry() : room).center());
    // Where there is not room for all of it, the title bar and the left edge are what counts.
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveTo(std::max(place.left(), room.left()), std::max(place.top(), room.top()));
    setGeometry(place.marginsRemoved(frame));
}

void Form::Show()
{
    const EventUnderWay underWay(*this);
    if (!LoadOnce()) return;
    if (!isVisible()) {
        Place();
        show();
        return;
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void Form::ShowModal()
{
    const EventUnderWay underWay(*this);
    setWindowModality(Qt::ApplicationModal);
    if (!LoadOnce()) return;
    QEventLoop loop;
    modalLoop = &loop;
    Place();
    show();
    loop.exec(QEventLoop::DialogExec);
    modalLoop = nullptr;
}

void Form::SetAlpha(int Alpha)
{
    setWindowOpacity(Alpha / 255.0);
}

void Form::SetTopmost(bool OnTop)
{
    topmost = OnTop;
    if (QWindow* window = windowHandle()) window->setFlag(Qt::WindowStaysOnTopHint, OnTop);
}

void Form::showEvent(QShowEvent* Event)
{
    QWidget::showEvent(Event);
    if (topmost) SetTopmost(true);
}

Control* Form::ActiveControl() const
{
    return dynamic_cast<Control*>(focusWidget());
}

std::vector<Control*> Form::Controls() const
{
    std::vector<Control*> controls;
    for (QWidget* child : findChildren<QWidget*>()) {
        auto* control = dynamic_cast<Control*>(child);
        if (control && child->window() == this) controls.push_back(control); // not an owned form's
    }
    return controls;
}

void Form::OnKey(const char* Keys, std::function<void()> Handler)
{
    auto* shortcut = new QShortcut(QKeySequence(QLatin1String(Keys)), this); // owned by the form
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, std::move(Handler));
}

bool Form::PressDialogButton(const QKeyEvent& Event)
{
    const bool enter = Event.key() == Qt::Key_Return || Event.key() == Qt::Key_Enter;
    CommandButton* button = nullptr;
    if (Event.key() == Qt::Key_Escape)
        button = cancelButton;
    else if (enter && !dynamic_cast<CommandButton*>(focusWidget()))
        button = defaultButton;
    if (!button || !button->Enabled()) return false;
    button->click();
    return true;
}

void Form::FocusMoved(Control& To, const QFocusEvent& Event)
{
    // Another program, a message box or a menu took the keyboard: nobody left the field.
    const auto reason = Event.reason();
    const bool elsewhere = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    auto* previous = dynamic_cast<Control*>(focused.data());
    if (Event.gotFocus()) {
        if (previous == &To) return;
        focused = &To.Widget();
        if (previous && previous->LostFocus) previous->LostFocus();
        if (focused == &To.Widget() && To.GotFocus) To.GotFocus();
    } else if (!elsewhere && previous == &To) {
        focused = nullptr;
        if (To.LostFocus) To.LostFocus();
    }
}

void Form::keyPressEvent(QKeyEvent* Event)
{
    if (!PressDialogButton(*Event)) QWidget::keyPressEvent(Event);
}

void Form::mouseMoveEvent(QMouseEvent* Event)
{
    QWidget::mouseMoveEvent(Event);
    if (MouseMove && isVisible()) MouseMove();
}

void Form::paintEvent(QPaintEvent* Event)
{
    QPainter(this).fillRect(Event->rect(), palette::Ground);
}

bool Form::event(QEvent* Event)
{
    const EventUnderWay underWay(*this);
    return QWidget::event(Event);
}

void Form::closeEvent(QCloseEvent* Event)
{
    Event->accept();
    closed = true;
    const auto unload = std::exchange(Unload, nullptr);
    if (unload) unload();
    if (modalLoop) modalLoop->quit();
}

}
