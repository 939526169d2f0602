#pragma once

#include "services/forms/Control.h"

#include <QButtonGroup>
#include <QPointer>
#include <QRadioButton>

namespace vellarno::forms {

/// One of several choices; the options of a container exclude one another. Click comes when the
/// value turns true, by mouse, by key or by a write.
class OptionButton : public ControlOf<QRadioButton>
{
    Q_OBJECT

public:
    explicit OptionButton(QWidget* Parent = nullptr) : ControlOf<QRadioButton>(Parent)
    {
        if (Parent) JoinOptionsOf(*Parent);
        connect(this, &QAbstractButton::toggled, this, [this](bool On) {
            if (!On || !Click) return;
            Click();
            focusAfterClick = window()->focusWidget();
        });
    }

    bool Value() const { return isChecked(); }
    void SetValue(bool On) { setChecked(On); }
    std::string Caption() const { return text().toStdString(); }

protected:
    /// An arrow key clicks the next option and only then gives it the focus; where Click itself
    /// has moved the focus, it stays there.
    void keyPressEvent(QKeyEvent* Event) override
    {
        focusAfterClick = nullptr;
        QRadioButton::keyPressEvent(Event);
        if (focusAfterClick && focusAfterClick != this)
            focusAfterClick->setFocus(Qt::OtherFocusReason);
    }
    /// All of the control answers the mouse, not its text alone.
    bool hitButton(const QPoint& At) const override { return rect().contains(At); }

private:
    /// Auto-exclusive buttons of Qt also exclude those in containers further down.
    void JoinOptionsOf(QWidget& Container)
    {
        setAutoExclusive(false);
        auto* group = Container.findChild<QButtonGroup*>(QString(), Qt::FindDirectChildrenOnly);
        if (!group) group = new QButtonGroup(&Container);
        group->addButton(this);
    }

    static inline QPointer<QWidget> focusAfterClick;
};

}
