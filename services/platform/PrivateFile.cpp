#include "services/platform/PrivateFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vellarno {

namespace {

bool writtenInWorkingFolder = false;

bool InWorkingFolder(const std::string& Path)
{
    return Path.find('/') == std::string::npos;
}

}

bool WritePrivateFile(const std::string& Path, const std::string& Bytes)
{
    // O_NONBLOCK: a pipe laid at the path must not hold the program up.
    const int file = open(Path.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                          S_IRUSR | S_IWUSR);
    if (file < 0) return false;
    struct stat status = {};
    const bool ordinary =
        fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink == 1;
    if (ordinary && InWorkingFolder(Path)) writtenInWorkingFolder = true;
    const bool written =
        ordinary && ftruncate(file, 0) == 0 &&
        write(file, Bytes.data(), Bytes.size()) == static_cast<ssize_t>(Bytes.size());
    return close(file) == 0 && written;
}

void DeletePrivateFile(const std::string& Path)
{
    if (InWorkingFolder(Path) && !writtenInWorkingFolder) return;
    struct stat status = {};
    if (lstat(Path.c_str(), &status) == 0 && S_ISREG(status.st_mode)) unlink(Path.c_str());
}

}
