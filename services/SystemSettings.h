#pragma once

namespace vellarno {

/// Starts the desktop's own date and time settings, the first that is there, or tells that there
/// are none.
void StartDateSettings();

}
