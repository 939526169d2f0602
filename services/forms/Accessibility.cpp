#include "services/forms/Accessibility.h"

#include "services/forms/Control.h"
#include "services/forms/Image.h"
#include "services/forms/Label.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace vellarno::forms {

namespace {

/// A label, picture or picture box: a button where a click does something.
class PictureInterface : public QAccessibleWidget
{
public:
    PictureInterface(QWidget& Widget, Control& Of, QAccessible::Role Passive)
        : QAccessibleWidget(&Widget, Passive), control(Of)
    {}

    /// The interface may be older than the handler of the click.
    QAccessible::Role role() const override
    {
        return Acts(control) ? QAccessible::Button : QAccessibleWidget::role();
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
        return Acts(control) ? QStringList{pressAction()} : QStringList{};
    }

    void doAction(const QString& Action) override
    {
        if (Action == pressAction() && control.Enabled() && Acts(control)) control.Click();
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

QAccessibleInterface* MakeInterface(const QString&, QObject* Object)
{
    if (auto* label = dynamic_cast<Label*>(Object))
        return new PictureInterface(*label, *label, QAccessible::StaticText);
    if (auto* image = dynamic_cast<Image*>(Object))
        return new PictureInterface(*image, *image, QAccessible::Graphic);
    return nullptr;
}

}

void SetUpAccessibility()
{
    QAccessible::installFactory(MakeInterface);
}

}
