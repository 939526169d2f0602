#pragma once

#include <string>

namespace vellarno::forms {

/// Style codes of a message box.
enum MessageStyle { Critical = 16, Information = 64 };

/// Shows a modal message with the one button OK and returns when it has been closed. Lines of the
/// prompt are parted by CR LF.
void MsgBox(const std::string& Prompt, MessageStyle Style, const std::string& Title);

/// The system's beep.
void Beep();

/// Serves the pending events once.
void DoEvents();

/// Sends a keystroke to the control that has the focus, after the events that wait already.
/// @param Keys  "{TAB}"; anything else is ignored.
void SendKeys(const std::string& Keys);

/// Puts a text on the clipboard.
void SetClipboardText(const std::string& Text);

/// The pointer over all windows of the program: the hourglass, or their own pointers again.
void SetScreenPointer(bool Hourglass);

/// The bytes of a resource. One that isn't there is a fault of the program: std::logic_error.
std::string ReadResource(const std::string& Path);

}
