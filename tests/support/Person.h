#pragma once

#include "services/forms/Balloon.h"
#include "services/forms/ControlArray.h"
#include "services/forms/TextBox.h"

#include <QApplication>
#include <algorithm>
#include <functional>

namespace vellarno::test {

/// Serves all events that wait, also the destruction of closed windows.
void Settle();
/// Serves events until the condition holds, for half a minute at most. @return whether it held.
[[nodiscard]] bool WaitUntil(const std::function<bool()>& Condition);

/// All windows of a kind that stand on the screen.
template <class WindowClass>
std::vector<WindowClass*> Shown()
{
    std::vector<WindowClass*> shown;
    for (QWidget* each : QApplication::topLevelWidgets())
        if (auto* one = dynamic_cast<WindowClass*>(each); one && one->isVisible())
            shown.push_back(one);
    std::ranges::sort(shown, {}, &QWidget::objectName);
    return shown;
}
/// The names of the forms among them, a pinned one with a star: "frmMain* frmMiniCalc".
std::string OpenWindows();

template <class ControlClass>
using Array = const forms::ControlArray<ControlClass>;

/// The control of that name; a missing one ends the test.
template <class ControlClass>
ControlClass& Find(const forms::Form& In, const char* Name)
{
    auto* control = In.findChild<ControlClass*>(QLatin1String(Name));
    return control ? *control : throw std::logic_error(std::string("there is no ") + Name);
}

/// A point of a window: the middle of a control, or by its pixels.
struct Spot
{
    QPoint At;
    Spot(QPoint Pixels) : At(Pixels) {}
    Spot(const forms::Control& On);
};

/// A person at the keyboard and the mouse before a window. All is handed to the window as the
/// desktop hands it over, so that focus, hit-testing and disabled controls are real. A window may
/// go at any moment: what comes after is lost, as it is on a desktop.
class Person
{
public:
    explicit Person(forms::Form& Before) : subject(&Before) {}

    /// Shows the window, or brings it back, until it is the active one.
    void Open() const;

    /// A key for each character, into whatever has the focus.
    void Type(std::string_view Text) const;
    /// @param Text  what the desktop sends along with the key.
    void Press(Qt::Key Key, Qt::KeyboardModifiers Modifiers = {}, const QString& Text = {}) const;
    /// Clicks into a box and types in place of what stands in it.
    void Enter(const forms::TextBox& Into, std::string_view Text) const;
    /// Puts the text on the clipboard and presses Shift+Insert.
    void Paste(std::string_view Text) const;
    /// A text that an input method commits to the control that has the focus.
    void Commit(std::string_view Text) const;

    /// @param Pause  in milliseconds, since the mouse was last used.
    void MouseDown(Spot At, Qt::MouseButton By = Qt::LeftButton, int Pause = 1000) const
    {
        Mouse(QEvent::MouseButtonPress, At, By, Pause);
    }
    void MouseUp(Spot At, Qt::MouseButton By = Qt::LeftButton) const
    {
        Mouse(QEvent::MouseButtonRelease, At, By);
    }
    void Click(Spot At, Qt::MouseButton By = Qt::LeftButton, int Pause = 1000) const
    {
        MouseDown(At, By, Pause);
        MouseUp(At, By);
    }
    void DoubleClick(Spot At, Qt::MouseButton By = Qt::LeftButton) const
    {
        Click(At, By);
        Click(At, By, 1);
    }
    void Hover(Spot At) const { Mouse(QEvent::MouseMove, At, Qt::NoButton); }
    /// In eighths of a degree: 120 is a notch up, or to the left.
    void Wheel(Spot At, QPoint Turn = {0, 120}) const;

    /// Name of the control that has the focus, or would have it if the window were active.
    std::string Focus() const;
    /// What the screen shows where a control stands, with all that lies before and behind it.
    QImage Seen(const forms::Control& Of) const;

private:
    void Mouse(QEvent::Type Act, Spot At, Qt::MouseButton By, int Pause = 1) const;

    QPointer<forms::Form> subject;
};

/// Three boxes of a row with what parts them, empty places as "_": "01/__/____".
std::string Row(const forms::ControlArray<forms::TextBox>& Boxes, int First, char Separator);

/// How many points of a picture are of that colour, or nearly: letters have soft edges.
int CountPoints(const QImage& In, const QColor& Of, int Softness = 100);

}
