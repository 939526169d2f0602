#pragma once

#include <string>

namespace vellarno {

/// Writes a file that only the user can read, in place of one that is there. Never through a link
/// and never into anything but an ordinary file.
/// @return false if it could not be written whole.
bool WritePrivateFile(const std::string& Path, const std::string& Bytes);

/// Deletes an ordinary file; anything else of that name, and a file that can't go, is left alone.
/// So is a file of the working folder that this run has not written: it may be anyone's.
void DeletePrivateFile(const std::string& Path);

}
