#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace vellarno::test {

/// A folder that only this process's user can enter; it goes with this object.
class Folder
{
public:
    const std::filesystem::path Path = Make();

    Folder() = default;
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(Path, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::filesystem::path Write(const std::string& Name, const std::string& Bytes) const
    {
        std::ofstream(Path / Name, std::ios::binary) << Bytes;
        return Path / Name;
    }

private:
    static std::filesystem::path Make()
    {
        std::string path = (std::filesystem::temp_directory_path() / "vellarno-XXXXXX").string();
        if (!mkdtemp(path.data())) throw std::runtime_error("no temporary folder");
        return path;
    }
};

}
