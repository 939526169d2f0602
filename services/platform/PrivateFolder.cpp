#include "services/platform/PrivateFolder.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace vellarno {

namespace {

/// Whether the path is a real folder, the user's own, closed to others and open for writing. Made
/// first, looked at then: another start may make it in the same moment, and whoever else writes in
/// the folder around it may have laid a link there.
bool TakeFolder(const std::string& Path)
{
    mkdir(Path.c_str(), S_IRWXU);
    const int folder = open(Path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0) return false;
    struct stat status = {};
    const bool ours = fstat(folder, &status) == 0 && status.st_uid == geteuid() &&
                      (status.st_mode & ACCESSPERMS) == S_IRWXU &&
                      faccessat(folder, ".", W_OK, 0) == 0;
    close(folder);
    return ours;
}

}

std::string PrivateFolder()
{
    const char* session = std::getenv("XDG_RUNTIME_DIR");
    if (session && *session == '/') {
        std::string folder = std::string(session) + "/vellarno";
        if (TakeFolder(folder)) return folder;
    }
    const char* const temporaries[] = {std::getenv("TMPDIR"), P_tmpdir};
    for (const char* temporary : temporaries) {
        std::error_code ignored;
        if (!temporary || !std::filesystem::is_directory(temporary, ignored)) continue;
        const std::string folder =
            std::string(temporary) + "/vellarno-" + std::to_string(geteuid());
        // What stands in its place may be another's: nothing can be written, or deleted, in a
        // folder that is none.
        return TakeFolder(folder) ? folder : "/dev/null";
    }
    return {};
}

}
