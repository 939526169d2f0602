#include "services/platform/InstanceLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vellarno {

InstanceLock::~InstanceLock()
{
    if (descriptor >= 0) close(descriptor);
}

bool InstanceLock::Take(const std::string& Folder)
{
    if (descriptor >= 0) return true;
    descriptor = open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0 || flock(descriptor, LOCK_EX | LOCK_NB) == 0) return true;
    const bool held = errno == EWOULDBLOCK;
    close(descriptor);
    descriptor = -1;
    return !held;
}

}
