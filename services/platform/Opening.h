#pragma once

#include <string>

namespace vellarno {

/// Opens a file or an address in the application that the desktop has for it, if it has one.
void OpenAddress(const std::string& Address);

/// Starts, without a shell, the program of a desktop entry; it then lives by itself.
/// @param Entry  name of the entry's file without ".desktop".
/// @return false if the entry or its program isn't there.
bool StartEntry(const std::string& Entry);

}
