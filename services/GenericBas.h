#pragma once

#include "resources/Resources.h"
#include "services/forms/Form.h"

#include <string>

namespace vellarno {

/// The main window is pinned always on top. Only its pin writes this; the other windows read it
/// when they load. Not stored between runs.
extern bool OnTopFlag;

/// The hand cursor over what can be pressed.
void SetHandCursor(forms::Control& Control);
/// The same over the form's check boxes, option buttons and command buttons.
void SetHandCursor(const forms::Form& Form);

/// Starts a sound of the resources, serves the pending events and returns while it still plays.
/// By then the user may have chosen something else, or closed the window.
void PlayResSound(resources::Sound Id);

/// Keeps the window above all ordinary windows, or gives that up. It is neither moved nor hidden.
void SetAlwaysOnTop(forms::Form& Form, bool OnTop);

/// The user's folder for files of a run, with a separator at its end so that a file name can be
/// added, or the empty string if the system has no temporary folder.
std::string GetTempDirectory();

/// Where the help page's file lies while the program runs.
std::string HelpFilePath();

/// Whether the path names something that isn't a folder. No error leaves it.
bool FileExists(const std::string& Path);

}
