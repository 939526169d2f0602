#pragma once

#include <string>

namespace vellarno {

/// A folder for files of this run that only the user can enter, the same for all runs of the user:
/// in the session's folder or, where that can't be had, in the system's temporary one. Without a
/// separator at its end; "/dev/null" where neither is to be had, and empty where the system has no
/// temporary folder at all.
std::string PrivateFolder();

}
