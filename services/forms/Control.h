#pragma once

#include "services/forms/EventUnderWay.h"

#include <QEvent>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class QKeyEvent;
class QMouseEvent;
class QPainter;

namespace vellarno::forms {

class Form;

/// The mouse pointers over controls; each desktop draws its own.
enum class Pointer { Default, Help, Hand };

/// Keys without a character, and the two that press a control.
enum class Key { Other, Left, Right, Up, Down, PageUp, PageDown, Home, End, Enter, Space };

/// What stands in KeyAscii beside characters: the first two are written by a handler of KeyPress.
enum : short { KeyDropped = 0, KeyNothing = 1, KeyBackspace = 8, KeyEnter = 13 };

/// An entry of the menu that a right click on a control opens.
struct MenuEntry
{
    std::string Text;
    std::function<void()> Click;
};

/// What every control has, whatever widget does its work. Measures are pixels of the container;
/// text is UTF-8. Events are plain callables: an empty one is an event that nobody handles.
class Control
{
public:
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void()> MouseMove;
    std::function<void()> MouseDown;
    std::function<void()> MouseUp;
    std::function<void()> Click;
    /// Comes before KeyPress, for a key alone. True: the key goes no further.
    std::function<bool(Key Pressed)> KeyDown;
    /// The handler may replace KeyAscii: KeyNothing inserts nothing, KeyDropped drops the key.
    std::function<void(short& KeyAscii)> KeyPress;

    virtual ~Control() = default;

    bool Enabled() const { return self.isEnabled(); }
    void SetEnabled(bool On) { self.setEnabled(On); }
    /// What the control itself was told, also while its container is hidden.
    bool Visible() const { return !self.isHidden(); }
    void SetVisible(bool On) { self.setVisible(On); }

    int Left() const { return self.x(); }
    int Top() const { return self.y(); }
    int Width() const { return self.width(); }
    int Height() const { return self.height(); }
    void SetLeft(int X) { self.move(X, self.y()); }
    void SetTop(int Y) { self.move(self.x(), Y); }
    void SetWidth(int Pixels) { self.resize(Pixels, self.height()); }
    void SetHeight(int Pixels) { self.resize(self.width(), Pixels); }
    void Move(int X, int Y, int Wide, int High) { self.setGeometry(X, Y, Wide, High); }
    /// Moves the control, place and all, into another container, where it is hidden.
    void SetContainer(Control& Container) { self.setParent(&Container.self); }

    /// Does nothing on a disabled control; while the control is hidden it is only noted.
    void SetFocus();

    void SetToolTipText(const std::string& Text) { self.setToolTip(QString::fromStdString(Text)); }
    std::string AccessibleName() const { return self.accessibleName().toStdString(); }
    /// A screen reader hears of each change.
    void SetAccessibleName(const std::string& Name)
    {
        if (Name != AccessibleName()) self.setAccessibleName(QString::fromStdString(Name));
    }
    void SetAccessibleDescription(const std::string& Text)
    {
        self.setAccessibleDescription(QString::fromStdString(Text).simplified());
    }

    /// Pixels.
    int FontSize() const { return self.font().pixelSize(); }
    void SetFontSize(int Pixels);
    bool FontBold() const { return self.font().bold(); }
    void SetFontBold(bool Bold);

    void SetMousePointer(Pointer Over);

    /// A menu of its own; an entry field has these entries after those of its editing.
    void SetMenu(const std::vector<MenuEntry>& Entries);

    /// The widget behind the control, for the runtime and for tests that send it real events.
    QWidget& Widget() const { return self; }

protected:
    explicit Control(QWidget& Self);

    /// What became of a key on its way through the KeyPress of the form and of the control.
    enum class KeyFate { Unchanged, Replaced, Swallowed };
    KeyFate FilterCharacter(short& KeyAscii);

    /// Before and after the widget's own handling. True: the event goes no further.
    bool BeforeEvent(QEvent& Event);
    bool AfterEvent(QEvent& Event);
    /// Around a control that only the Tab key reaches, while it has the focus.
    void DrawFocusMark(QPainter& Painter) const;

    /// Labels and pictures are clicked by the mouse, and where the Tab key reaches them by Space
    /// and Enter; buttons raise Click in their own way.
    virtual bool ClickedByMouse() const { return false; }

    Form* ParentForm() const;

private:
    bool BelongsElsewhere(const QEvent& Event);
    void TellMouse(const QMouseEvent& Event);

    QWidget& self;
    bool filtered = false; ///< the key under way has passed the filter already
    bool again = false;    ///< the button is down for the second time of a double click
};

/// Joins the common part of all controls to the Qt widget that does the work.
template <class WidgetClass>
class ControlOf : public WidgetClass, public Control
{
protected:
    explicit ControlOf(QWidget* Parent) : WidgetClass(Parent), Control(static_cast<QWidget&>(*this))
    {}

    bool event(QEvent* Event) override
    {
        const EventUnderWay underWay(*this);
        if (BeforeEvent(*Event)) return true;
        const bool handled = WidgetClass::event(Event);
        return AfterEvent(*Event) || handled;
    }
};

}
