#pragma once

#include "services/forms/Balloon.h"
#include "services/forms/Form.h"

/// A person at the keyboard and the mouse. Everything is handed to the window as the desktop
/// would hand it over, so that focus, shortcuts, hit-testing and disabled controls are real.
namespace vellarno::test {

/// Shows the form, or brings it back, and waits until it is the active window.
void Open(forms::Form& Form);

/// Serves all events that wait, also the destruction of closed windows.
void Settle();
/// Serves events for that long.
void Wait(int Milliseconds);
/// Serves events until the condition holds, five seconds at most. @return whether it held.
bool WaitUntil(const std::function<bool()>& Condition);

/// Types the text, a key for each character, into whatever control has the focus.
void Type(forms::Form& Form, const std::string& Text);
/// Presses and releases a key.
void Press(forms::Form& Form, Qt::Key Key, Qt::KeyboardModifiers Modifiers = Qt::NoModifier);

/// What the mouse does over the middle of a control, or at a point of a form.
struct MouseAct
{
    int Action;
    Qt::MouseButton Button = Qt::LeftButton;
    void operator()(const forms::Control& Control) const;
    void operator()(const forms::Form& Form, int X, int Y) const;
};
extern const MouseAct Click, MouseDown, MouseUp, MoveTo;
/// One notch of the wheel over the middle of the control.
void Wheel(forms::Control& Control, bool Up);

/// A text that an input method commits to the control, which must have the focus.
void Commit(forms::Control& Control, const std::string& Text);
/// Puts the text on the clipboard and presses Shift+Insert.
void Paste(forms::Form& Form, const std::string& Text);
/// Drags the text over the control and drops it there, if it is taken.
void Drop(forms::Control& Control, const std::string& Text);

/// All balloons that stand on the screen: there should never be more than one.
std::vector<const forms::Balloon*> ShownBalloons();

}
