#pragma once

#include <functional>
#include <string>

struct xcb_connection_t;

namespace vellarno::forms {

/// Style codes of a message box.
enum MessageStyle { Critical = 16, Information = 64 };

/// Shows a modal message with the one button OK and returns when it has been closed.
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

/// Opens a file or an address in the application that the desktop has for it.
/// @return false when the desktop has none or could not start it.
bool OpenAddress(const std::string& Address);

/// Starts, without a shell, the program of a desktop entry; it then lives by itself.
/// @param Entry  name of the entry's file without ".desktop".
/// @return false if the entry or its program isn't there.
bool StartEntry(const std::string& Entry);

/// Whether windows can be seen through: a compositor runs on the display.
bool Compositing();

/// Whether windows stand on an X server.
bool OnX11();

/// The program's connection to that server, or nothing.
xcb_connection_t* X11Connection();

/// The bytes of a resource, or none if there is no such resource.
std::string ReadResource(const std::string& Path);

}
