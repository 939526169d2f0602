#pragma once

#include "services/forms/Form.h"

#include <Qt>
#include <functional>
#include <string>
#include <vector>

/// A person at the keyboard and the mouse. Everything is handed to the window as the desktop
/// would hand it over, so that focus, shortcuts, hit-testing and disabled controls are the real
/// ones.
namespace vellarno::test {

/// Shows the form and waits until it is the active window.
void Open(forms::Form& Form);

/// Serves all events that wait, also the destruction of closed windows.
void Settle();
/// Serves events for that long.
void Wait(int Milliseconds);
/// Serves events until the condition holds, five seconds at most. @return whether it held.
bool WaitUntil(const std::function<bool()>& Condition);

/// Types the text, a key for each character, into whatever control has the focus.
void Type(forms::Form& Form, const std::string& Text);
/// Presses and releases a key. A letter with no modifier or Shift has its character; so have
/// Space, Enter, Esc, Backspace and Tab, and letters with Ctrl their control code.
void Press(forms::Form& Form, Qt::Key Key, Qt::KeyboardModifiers Modifiers = Qt::NoModifier);

/// The left button, pressed and released over the middle of the control, or at a point of the form.
void Click(forms::Control& Control);
void ClickAt(forms::Form& Form, int X, int Y);
void MouseDown(forms::Control& Control);
void MouseUp(forms::Control& Control);
void MouseDownAt(forms::Form& Form, int X, int Y);
void MouseUpAt(forms::Form& Form, int X, int Y);
/// Moves the pointer to the middle of the control, or to a point of the form.
void MoveTo(forms::Control& Control);
void MoveTo(forms::Form& Form, int X, int Y);
/// Sets the pointer itself to a point of the form. The moves above tell the form alone of a
/// pointer, whatever lies above it; this one tells the desktop, for what asks where the pointer is.
void PutPointer(forms::Form& Form, int X, int Y);
/// One notch of the wheel over the middle of the control.
void Wheel(forms::Control& Control, bool Up);

/// A text that an input method commits to the control, which must have the focus.
void Commit(forms::Control& Control, const std::string& Text);
/// Puts the text on the clipboard and presses Shift+Insert.
void Paste(forms::Form& Form, const std::string& Text);
/// Selects the text elsewhere and clicks the control with the middle button.
/// @return false where the desktop has no such selection: nothing was done then.
bool PasteByMiddleButton(forms::Control& Control, const std::string& Text);
/// Drags the text over the control and drops it there. @return whether it was taken.
bool Drop(forms::Control& Control, const std::string& Text);

/// The tooltip that comes up where the pointer rests over the middle of the control, or nothing.
std::string ToolTipOver(forms::Control& Control);

/// The balloon that stands on the screen.
struct Balloon
{
    std::string Title, Text; ///< lines of the text parted by \n
    int Icon;
    bool OnTop;
    int Left, Top, Width, Height; ///< on the screen, in pixels
};
/// All balloons that stand on the screen: there should never be more than one.
std::vector<Balloon> ShownBalloons();

}
