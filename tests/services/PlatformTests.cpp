#include "services/platform/InstanceLock.h"
#include "services/platform/PrivateFile.h"
#include "services/SystemSettings.h"
#include "tests/support/Stage.h"

#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

using namespace vellarno::test;
namespace fs = std::filesystem;

/// The system's own platform, with a run-time folder of the test's own.
struct RuntimeFolder : testing::Test
{
    const QTemporaryDir made;
    const fs::path runtime = made.path().toStdString();
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR"), temporary = qgetenv("TMPDIR");

    RuntimeFolder()
    {
        for (const char* name : {"XDG_RUNTIME_DIR", "TMPDIR"}) qputenv(name, runtime.c_str());
    }
    ~RuntimeFolder() override
    {
        qputenv("XDG_RUNTIME_DIR", before);
        temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
    }
};

TEST_F(RuntimeFolder, HoldsOneThatOnlyTheUserCanEnter)
{
    for (int run = 0; run < 2; ++run) EXPECT_EQ(GetTempDirectory(), runtime / "vellarno/");
    EXPECT_EQ(fs::status(runtime / "vellarno").permissions(), fs::perms::owner_all);
}

TEST_F(RuntimeFolder, IsReplacedInTheTemporaryFolderByARealOneOfTheUsersOwn)
{
    const fs::path usual = runtime / "vellarno", real = runtime / "real",
                   instead = runtime / ("vellarno-" + std::to_string(geteuid()));
    const std::function<void(const fs::path&)> obstacles[] = {
        [](const fs::path& at) { std::ofstream(at) << "file"; },
        [](const fs::path& at) { mkfifo(at.c_str(), S_IRWXU); },
        [&](const fs::path& at) { fs::create_directory_symlink(real, at); },
        [](const fs::path& at) { fs::create_directory(at); }, // open to others
        [](const fs::path& at) { mkdir(at.c_str(), S_IRWXU), chown(at.c_str(), 1, 1); }};
    mkdir(real.c_str(), S_IRWXU);
    for (const auto& lay : obstacles) {
        if (&lay == std::end(obstacles) - 1 && geteuid() != 0) break; // only root gives away
        lay(usual);
        EXPECT_EQ(GetTempDirectory(), instead / "") << &lay - obstacles;
        EXPECT_EQ(fs::status(instead).permissions(), fs::perms::owner_all);
        fs::remove(instead);
        lay(instead);
        EXPECT_EQ(GetTempDirectory(), "/dev/null/") << &lay - obstacles;
        EXPECT_FALSE(WritePrivateFile(GetTempDirectory() + HelpFileName, "page"));
        for (const auto& path : {usual, instead}) fs::remove(path);
    }
    qputenv("XDG_RUNTIME_DIR", "/proc");
    EXPECT_EQ(GetTempDirectory(), instead / "");
}

TEST_F(RuntimeFolder, OnlyAnOrdinaryFileIsWrittenOverAndOnlyForTheUser)
{
    const fs::path file = runtime / "file";
    for (const char* bytes : {"long", "x"}) EXPECT_TRUE(WritePrivateFile(file, bytes));
    EXPECT_TRUE(fs::file_size(file) == 1 && FileExists(file) && !FileExists(runtime));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_hard_link(file, runtime / "twin");
    fs::create_symlink(file, runtime / "link");
    mkfifo((runtime / "pipe").c_str(), S_IRUSR | S_IWUSR);
    for (const char* other : {"twin", "link", "pipe"})
        EXPECT_FALSE(WritePrivateFile(runtime / other, "other")) << other;
    for (const char* other : {"link", "pipe", "file"}) DeletePrivateFile(runtime / other);
    EXPECT_TRUE(fs::is_symlink(runtime / "link") && fs::exists(runtime / "pipe"));
    EXPECT_FALSE(FileExists(file));
}

TEST_F(RuntimeFolder, OneProcessAtATimeHoldsTheLock)
{
    auto first = std::make_unique<InstanceLock>();
    InstanceLock second, third;
    for (int twice = 0; twice < 2; ++twice) EXPECT_TRUE(first->Take(runtime));
    EXPECT_FALSE(second.Take(runtime));
    first.reset();
    EXPECT_TRUE(second.Take(runtime));
    EXPECT_TRUE(third.Take(runtime / "none")) << "without a folder nobody is refused";
}

TEST_F(RuntimeFolder, AProgramIsStartedAsItsEntrySaysIfItIsThere)
{
    const fs::path file = runtime / "a b";
    qputenv("XDG_DATA_HOME", runtime.c_str());
    fs::create_directory(runtime / "applications");
    std::ofstream(runtime / "applications/touch.desktop")
        << "[Desktop Entry]\nExec=touch \"" << file.string() << "\"\n";
    std::ofstream(runtime / "applications/gone.desktop") << "[Desktop Entry]\nExec=vellarno-none\n";
    EXPECT_TRUE(System().StartEntry("touch"));
    EXPECT_TRUE(WaitUntil([&] { return FileExists(file); }));
    for (const char* entry : {"gone", "never"}) EXPECT_FALSE(System().StartEntry(entry)) << entry;
}

TEST(DateSettings, EachDesktopsOwnProgramIsKnownAndItsAbsenceTold)
{
    World world;
    for (const char* entry : {"gnome-datetime-panel", "kcm_clock", "cinnamon-settings-calendar",
                              "mate-time-admin", "lxqt-admin-time", "time"}) {
        world.desktop.OnlyEntry = entry;
        StartDateSettings();
        EXPECT_EQ(world.TakeLog(), std::string("start ") + entry);
    }
    world.desktop.OnlyEntry = "none";
    StartDateSettings();
    EXPECT_EQ(
        world.TakeLog(),
        "message 64 Vellarno: Nel sistema non c'è un programma per impostare la data e l'ora.");
}
