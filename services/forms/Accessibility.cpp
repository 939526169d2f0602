#include "services/forms/Accessibility.h"

#include "services/forms/Balloon.h"
#include "services/forms/Control.h"
#include "services/forms/Form.h"
#include "services/forms/Label.h"
#include "services/forms/PictureBox.h"
#include "services/forms/Strip.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QTimer>

#include <utility>

namespace vellarno::forms {

namespace {

class WindowInterface : public QAccessibleWidget
{
public:
    explicit WindowInterface(Form& Of)
        : QAccessibleWidget(&Of, Of.windowType() == Qt::Dialog ? QAccessible::Dialog
                                                               : QAccessible::Window)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = widget()->isModal();
        return state;
    }
};

/// A label, picture or picture box: a button where a click does something.
class PictureInterface : public QAccessibleWidget
{
public:
    PictureInterface(QWidget& Widget, Control& Of) : QAccessibleWidget(&Widget), control(Of) {}

    /// The interface may be older than the handler of the click, and than what a box holds.
    QAccessible::Role role() const override
    {
        if (Acts(control)) return QAccessible::Button;
        if (childCount() > 0) return QAccessible::Pane;
        const auto* box = dynamic_cast<const PictureBox*>(&control);
        const bool text = dynamic_cast<const Label*>(&control) || (box && box->HasPrint());
        return text ? QAccessible::StaticText : QAccessible::Graphic;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const auto* image = dynamic_cast<const Image*>(&control);
        if (image && image->Pressed()) {
            state.checkable = true;
            state.checked = *image->Pressed();
        }
        return state;
    }

    QString text(QAccessible::Text Kind) const override
    {
        const QString own = QAccessibleWidget::text(Kind);
        const auto* label = dynamic_cast<const Label*>(&control);
        const bool speaks =
            Kind == QAccessible::Name && own.isEmpty() && label && !label->Decoration();
        return speaks ? label->text() : own;
    }

    QStringList actionNames() const override
    {
        return control.Enabled() && Acts(control) ? QStringList{pressAction()} : QStringList{};
    }

    /// The press is answered before the click runs: a window that opens may stay for long.
    void doAction(const QString& Action) override
    {
        const auto press = [&pressed = control] {
            const QWidget& widget = pressed.Widget();
            const QWidget* modal = QApplication::activeModalWidget();
            const bool reachable = widget.isVisible() && (!modal || modal == widget.window());
            if (reachable && pressed.Enabled() && Acts(pressed)) pressed.Click();
        };
        if (Action == pressAction())
            QMetaObject::invokeMethod(widget(), press, Qt::QueuedConnection);
    }

private:
    /// The caption of a check box can be clicked too, but the box is what acts.
    static bool Acts(const Control& Of)
    {
        const auto* label = dynamic_cast<const Label*>(&Of);
        return Of.Click && !(label && label->Decoration());
    }

    Control& control;
};

/// Screen readers speak a notification that begins to show, wherever the focus is. This one has
/// nothing for the eye. What is told in one go makes one notification.
class Announcer : public QWidget
{
public:
    using QWidget::QWidget;

    void Add(const QString& Text)
    {
        if (waiting.isEmpty()) QTimer::singleShot(0, this, [this] { Speak(); });
        waiting += Text;
    }

private:
    void Speak()
    {
        setAccessibleName(std::exchange(waiting, {}).join(QLatin1String(", ")));
        QAccessibleEvent shown(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    }

    QStringList waiting;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* Object)
{
    if (auto* form = dynamic_cast<Form*>(Object)) return new WindowInterface(*form);
    if (auto* label = dynamic_cast<Label*>(Object)) return new PictureInterface(*label, *label);
    if (auto* image = dynamic_cast<Image*>(Object)) return new PictureInterface(*image, *image);
    if (auto* strip = dynamic_cast<Strip*>(Object))
        return new QAccessibleWidget(strip, QAccessible::StatusBar);
    if (auto* balloon = dynamic_cast<Balloon*>(Object))
        return new QAccessibleWidget(balloon, QAccessible::ToolTip);
    if (auto* announcer = dynamic_cast<Announcer*>(Object))
        return new QAccessibleWidget(announcer, QAccessible::Notification);
    return nullptr;
}

}

void SetUpAccessibility()
{
    QAccessible::installFactory(MakeInterface);
}

void Announce(const QWidget& From, const std::string& Text)
{
    if (!QAccessible::isActive()) return;
    Announcer* announcer = nullptr;
    for (QObject* child : From.window()->children())
        if (auto* found = dynamic_cast<Announcer*>(child)) announcer = found;
    if (!announcer) announcer = new Announcer(From.window()); // the window owns it
    announcer->Add(QString::fromStdString(Text));
}

}
