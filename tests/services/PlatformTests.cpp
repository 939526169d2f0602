#include "services/InstanceLock.h"
#include "services/PrivateFile.h"
#include "services/SystemSettings.h"
#include "tests/support/Stage.h"

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using namespace vellarno::test;
namespace fs = std::filesystem;

/// The system's own platform, with a run-time folder of the test's own.
struct RuntimeFolder : testing::Test
{
    const QTemporaryDir made;
    const fs::path runtime = made.path().toStdString();
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");

    RuntimeFolder() { qputenv("XDG_RUNTIME_DIR", runtime.c_str()); }
    ~RuntimeFolder() override { qputenv("XDG_RUNTIME_DIR", before); }
};

TEST_F(RuntimeFolder, HoldsOneThatOnlyTheUserCanEnter)
{
    for (int run = 0; run < 2; ++run) EXPECT_EQ(GetTempDirectory(), runtime / "vellarno/");
    EXPECT_EQ(fs::status(runtime / "vellarno").permissions(), fs::perms::owner_all);
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

TEST_F(RuntimeFolder, AProgramIsStartedWithItsArgumentsIfItIsThere)
{
    const fs::path file = runtime / "a b";
    EXPECT_TRUE(System().StartProgram("touch", {file}));
    EXPECT_TRUE(WaitUntil([&] { return FileExists(file); }));
    EXPECT_FALSE(System().StartProgram("vellarno-none", {}));
}

TEST(DateSettings, EachDesktopsOwnProgramIsKnown)
{
    World world;
    for (const char* command :
         {"gnome-control-center datetime", "systemsettings kcm_clock", "systemsettings5 kcm_clock",
          "kcmshell5 clock", "cinnamon-settings calendar", "mate-time-admin", "time-admin",
          "lxqt-admin-time"}) {
        world.desktop.OnlyProgram = QString(command).section(' ', 0, 0).toStdString();
        StartDateSettings();
        EXPECT_EQ(world.TakeLog(), std::string("start ") + command);
    }
}
