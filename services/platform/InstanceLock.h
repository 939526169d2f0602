#pragma once

#include <string>

namespace vellarno {

/// Lets one process of a user run at a time. The kernel holds the lock on an open folder and lets
/// go of it when the process ends, even when it is killed, so that none is ever left behind.
class InstanceLock
{
public:
    InstanceLock() = default;
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    ~InstanceLock();

    /// @param Folder  the same for all processes of the user.
    /// @return false if another process holds the lock; true if this one holds it now, or if the
    ///         folder can't be opened: better two windows than none.
    bool Take(const std::string& Folder);

private:
    int descriptor = -1;
};

}
