#pragma once

#include <QTemporaryDir>

#include <filesystem>

namespace vellarno::test {

/// A folder that only this process's user can enter; it goes with this object.
struct Folder
{
    const QTemporaryDir Made;
    const std::filesystem::path Path = Made.path().toStdString();
};

}
