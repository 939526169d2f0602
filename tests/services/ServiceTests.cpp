#include "tests/support/Driver.h"
#include "tests/support/Folder.h"
#include "tests/support/Recorder.h"
#include "tests/support/Workbench.h"

#include "services/GenericBas.h"
#include "services/InstanceLock.h"
#include "services/SoundPlayer.h"
#include "services/StatusBar.h"
#include "services/Trasparency.h"
#include "services/forms/PictureBox.h"

#include <QElapsedTimer>
#include <QTimer>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vellarno::test {
namespace {

namespace fs = std::filesystem;

TEST(Services, OneOfTwentyProcessesAtOnceHasTheLockUntilItIsKilled)
{
    const Folder folder;
    InstanceLock lock;
    auto& [go, taken, refused] = *static_cast<std::array<std::atomic<int>, 3>*>(
        mmap(nullptr, 64, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    std::vector<pid_t> rivals(20);
    for (pid_t& rival : rivals) {
        rival = fork();
        if (rival != 0) continue;
        alarm(60); // should the test itself end before
        while (!go) usleep(100);
        ++(lock.Take(folder.Path) ? taken : refused);
        for (;;) pause();
    }
    for (go = 1; taken + refused < 20;) usleep(100);
    EXPECT_EQ(taken, 1);
    for (int twice = 0; twice < 2; ++twice) EXPECT_FALSE(lock.Take(folder.Path));
    for (const pid_t rival : rivals) kill(rival, SIGKILL), waitpid(rival, nullptr, 0);
    for (int twice = 0; twice < 2; ++twice) EXPECT_TRUE(lock.Take(folder.Path));
    EXPECT_TRUE(InstanceLock().Take(folder.Path / "missing")) << "it stops nobody";
}

TEST(Services, ASoundServiceThatHangsCostsTheCallerNothing)
{
    const Folder folder;
    const fs::path settings = folder.Path / "settings"; // a pipe into which nobody writes
    mkfifo(settings.c_str(), S_IRUSR | S_IWUSR);
    setenv("ALSA_CONFIG_PATH", settings.c_str(), 1), setenv("CANBERRA_DRIVER", "alsa", 1);
    int writer = -1;
    auto player = std::make_unique<SoundPlayer>();
    QElapsedTimer clock;
    for (int sound = 0; sound < 2; ++sound) {
        clock.start();
        player->Play(forms::ReadResource(resources::Custom(202)));
        EXPECT_LT(clock.elapsed(), 50);
        EXPECT_TRUE(WaitUntil([&] { // it hangs
            if (writer < 0) writer = open(settings.c_str(), O_WRONLY | O_NONBLOCK);
            return writer >= 0;
        }));
    }
    player.reset();
    EXPECT_LT(clock.elapsed(), 500);
    close(writer); // lets go of whoever is caught
}

TEST(Services, FilesAreToldFromFoldersAndThePrivateFolderIsNoLink)
{
    const Folder folder;
    const fs::path file = folder.Path / "file", own = folder.Path / "vellarno";
    std::ofstream(file) << 'x';
    EXPECT_TRUE(FileExists(file));
    for (const auto& none : {folder.Path, own, file / "below", fs::path(std::string(5000, 'x'))})
        EXPECT_FALSE(FileExists(none)) << none;

    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", folder.Path.c_str());
    fs::create_symlink(fs::temp_directory_path(), own);
    EXPECT_EQ(GetTempDirectory(), "");
    fs::remove(own);
    for (int run = 0; run < 2; ++run) EXPECT_EQ(GetTempDirectory(), own.string() + '/');
    EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
    qputenv("XDG_RUNTIME_DIR", before);
}

TEST(Services, AFadeTakesItsTimeUnlessTheWindowClosesOrNothingIsComposited)
{
    Recorder recorder;
    Workbench owner;
    FadeInForm(owner);
    EXPECT_FALSE(owner.isVisible());
    recorder.IsComposited = true;
    QElapsedTimer clock;
    clock.start();
    FadeInForm(owner);
    EXPECT_GE(clock.restart(), 738);
    EXPECT_TRUE(owner.isVisible() && owner.windowOpacity() == 1);
    const QPointer<Workbench> form = new Workbench;
    form->Load = [&] { FadeInForm(*form); };
    QTimer::singleShot(50, form, [&] {
        EXPECT_LT(form->windowOpacity(), 0.5);
        form->Close();
    });
    form->Show(&owner);
    EXPECT_LT(clock.elapsed(), 500) << "the rest of the fade is left out";
    Settle();
    EXPECT_FALSE(form) << "the window does not come up again";
}

TEST(Services, TheStatusBarHoldsControlsInItsParts)
{
    Workbench form;
    auto& panel = form.Add<forms::PictureBox>("panel");
    auto bar = std::make_unique<StatusBar>();
    const auto copied = [&](std::int16_t Part) {
        panel.SetVisible(false);
        bar->CopyObj(Part, panel);
        return panel.Visible() ? panel.geometry() : QRect();
    };
    const std::int16_t edges[] = {25, 100, static_cast<std::int16_t>(65535)};
    EXPECT_EQ(copied(0), QRect()) << "there is no strip";
    EXPECT_TRUE(bar->Create(form) && !bar->Create(form));
    EXPECT_EQ(bar->hwnd()->Widget().geometry(), QRect(0, 277, 400, 23));
    for (const int count : {0, -1, 4, 256}) bar->SetParts(static_cast<std::int16_t>(count), edges);
    EXPECT_EQ(copied(1), QRect()) << "a new strip is a single part";
    bar->SetParts(3, edges);
    EXPECT_EQ(copied(0), QRect(1, 1, 21, 18)) << "the part's frame stays in view";
    EXPECT_EQ(copied(2), QRect(101, 1, 296, 18));
    form.setFixedSize(500, 200);
    bar->Resize(form);
    EXPECT_EQ(bar->hwnd()->Widget().geometry(), QRect(0, 177, 500, 22));
    EXPECT_EQ(copied(2), QRect(101, 1, 396, 17)) << "the last part follows the width";
    bar.reset();
    EXPECT_EQ(panel.parentWidget(), &form) << "the form's again";
}

}
}
