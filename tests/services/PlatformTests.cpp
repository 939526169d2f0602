#include "services/SystemSettings.h"
#include "services/platform/InstanceLock.h"
#include "services/platform/PrivateFile.h"
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
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");

    RuntimeFolder()
    {
        for (const char* name : {"XDG_RUNTIME_DIR", "TMPDIR"}) qputenv(name, runtime.c_str());
    }
    ~RuntimeFolder() override
    {
        qputenv("XDG_RUNTIME_DIR", before);
        qunsetenv("TMPDIR");
    }
};

TEST_F(RuntimeFolder, HoldsOneOfTheUsersOwnElseTheTemporaryFolderDoes)
{
    const fs::path usual = runtime / "vellarno", real = runtime / "real",
                   instead = runtime / ("vellarno-" + std::to_string(geteuid()));
    const std::function<void(const fs::path&)> obstacles[] = {
        [](const fs::path& at) { mkfifo(at.c_str(), S_IRWXU); },
        [&](const fs::path& at) { fs::create_directory_symlink(real, at); },
        [](const fs::path& at) { fs::create_directory(at); }}; // open to others
    mkdir(real.c_str(), S_IRWXU);
    for (const auto& lay : obstacles) {
        for (int run = 0; run < 2; ++run) EXPECT_EQ(GetTempDirectory(), usual / "");
        EXPECT_EQ(fs::status(usual).permissions(), fs::perms::owner_all);
        fs::remove(usual);
        lay(usual);
        EXPECT_EQ(GetTempDirectory(), instead / "") << &lay - obstacles;
        fs::remove(instead);
        lay(instead);
        EXPECT_EQ(GetTempDirectory(), "/dev/null/") << &lay - obstacles;
        for (const auto& path : {usual, instead}) fs::remove(path);
    }
}

TEST_F(RuntimeFolder, OnlyAnOrdinaryFileIsWrittenOverAndOnlyForTheUser)
{
    const fs::path file = runtime / "file";
    for (const char* bytes : {"long", "x"}) EXPECT_TRUE(WritePrivateFile(file, bytes));
    EXPECT_TRUE(fs::file_size(file) == 1 && FileExists(file) && !FileExists(runtime));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_hard_link(file, runtime / "twin");
    fs::create_symlink(file, runtime / "link");
    for (const char* other : {"twin", "link"})
        EXPECT_FALSE(WritePrivateFile(runtime / other, "other")) << other;
    for (const char* other : {"link", "file"}) DeletePrivateFile(runtime / other);
    EXPECT_TRUE(fs::is_symlink(runtime / "link") && !FileExists(file));
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
    qputenv("XDG_DATA_HOME", runtime.c_str());
    fs::create_directory(runtime / "applications");
    const auto entry = [&](const char* name) {
        return std::ofstream(runtime / "applications" / name) << "[Desktop Entry]\nExec=";
    };
    entry("touch.desktop") << "touch " << runtime / "a b" << '\n';
    entry("gone.desktop") << "vellarno-none\n";
    EXPECT_TRUE(System().StartEntry("touch"));
    EXPECT_TRUE(WaitUntil([&] { return FileExists(runtime / "a b"); }));
    for (const char* name : {"gone", "never"}) EXPECT_FALSE(System().StartEntry(name)) << name;
}

TEST(DateSettings, TheirAbsenceIsTold)
{
    World world;
    world.OnlyEntry = "none";
    StartDateSettings();
    EXPECT_TRUE(world.TakeLog().starts_with("message 64 Vellarno: Nel sistema non c'è un"));
}
