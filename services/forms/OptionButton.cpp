#include "services/forms/OptionButton.h"

#include <QButtonGroup>
#include <QKeyEvent>

namespace vellarno::forms {

namespace {

/// Without a group, Qt's exclusion would reach into the containers further down as well.
QButtonGroup& GroupOf(QWidget& Container)
{
    auto* group = Container.findChild<QButtonGroup*>(QString(), Qt::FindDirectChildrenOnly);
    return group ? *group : *new QButtonGroup(&Container);
}

int StepOf(int Key)
{
    switch (Key) {
    case Qt::Key_Left:
    case Qt::Key_Up: return -1;
    case Qt::Key_Right:
    case Qt::Key_Down: return 1;
    default: return 0;
    }
}

}

OptionButton::OptionButton(QWidget* Parent) : ControlOf<QRadioButton>(Parent)
{
    if (Parent) GroupOf(*Parent).addButton(this);
    LeadTabToSelected();
    connect(this, &QAbstractButton::toggled, this, [this](bool On) {
        if (!On) return;
        LeadTabToSelected();
        if (Click) Click();
    });
}

/// The toolkit would lead the Tab key to the option that had the focus last.
void OptionButton::LeadTabToSelected()
{
    const QAbstractButton* selected = group() ? group()->checkedButton() : nullptr;
    if (!selected) return;
    for (QAbstractButton* each : group()->buttons())
        each->setFocusPolicy(each == selected ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionButton::focusInEvent(QFocusEvent* Event)
{
    QRadioButton::focusInEvent(Event);
    LeadTabToSelected();
}

/// The usable option before or after the selected one, round and round.
OptionButton& OptionButton::Neighbour(int Step)
{
    const auto options = group()->buttons();
    const auto count = options.size();
    QAbstractButton* selected = group()->checkedButton();
    auto at = options.indexOf(selected ? selected : this);
    do at = (at + Step + count) % count;
    while (!options[at]->isEnabled());
    return static_cast<OptionButton&>(*options[at]);
}

void OptionButton::keyPressEvent(QKeyEvent* Event)
{
    const int step = group() ? StepOf(Event->key()) : 0;
    if (step == 0) {
        QRadioButton::keyPressEvent(Event);
        return;
    }
    OptionButton& next = Neighbour(step);
    next.setFocus(Qt::TabFocusReason); // first, since Click may send it further
    next.SetValue(true);
}

}
