#pragma once

namespace vellarno {

/// Starts the desktop's own date and time settings, the first that is there. Nothing happens where
/// there are none.
void StartDateSettings();

}
