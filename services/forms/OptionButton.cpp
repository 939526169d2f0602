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
    connect(this, &QAbstractButton::toggled, this, [this](bool On) {
        if (On && Click) Click();
    });
}

/// The usable option before or after this one, round and round.
OptionButton& OptionButton::Neighbour(int Step)
{
    const auto options = group()->buttons();
    const auto count = options.size();
    auto at = options.indexOf(this);
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
