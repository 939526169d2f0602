#include "tests/support/Driver.h"
#include "tests/support/Folder.h"
#include "tests/support/Recorder.h"
#include "tests/support/Workbench.h"

#include "services/GenericBas.h"
#include "services/Trasparency.h"
#include "services/forms/CheckBox.h"
#include "services/forms/CommandButton.h"
#include "services/forms/Label.h"
#include "services/forms/OptionButton.h"
#include "services/forms/PictureBox.h"
#include "services/forms/TextBox.h"

#include <QTimer>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

namespace vellarno::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

TEST(Services, SoundsAreThoseOfTheResourcesAndServeTheEventsOnce)
{
    Recorder recorder;
    bool served = false;
    QTimer::singleShot(0, [&] { served = true; });
    PlayResSound(202);
    EXPECT_TRUE(served);
    PlayResSound(201);
    EXPECT_EQ(recorder.Sounds, (std::vector{202, 201}));
}

TEST(Services, TheHandIsForWhatCanBePressed)
{
    Workbench form;
    auto& panel = form.Add<forms::PictureBox>("panel", 0, 0);
    const std::pair<forms::Control*, bool> controls[] = {
        {&form.Add<forms::CheckBox>("check", 0, 0), true},
        {&form.Add<forms::OptionButton>("option", 0, 0, 9, 9, &panel), true},
        {&form.Add<forms::CommandButton>("button", 0, 0), true},
        {&form.Add<forms::Label>("label", 0, 0), false},
        {&form.Add<forms::TextBox>("text", 0, 0), false},
        {&panel, false}};
    SetHandCursor(form);
    for (const auto& [control, hand] : controls) {
        const auto name = control->Widget().objectName().toStdString();
        EXPECT_EQ(control->MousePointer(), hand ? forms::CustomPointer : forms::DefaultPointer)
            << name;
        EXPECT_EQ(control->Widget().cursor().shape() == Qt::PointingHandCursor, hand) << name;
    }
}

struct PrivateFolder : testing::Test
{
    Folder runtime;
    const std::string before = std::getenv("XDG_RUNTIME_DIR") ? std::getenv("XDG_RUNTIME_DIR") : "";
    const std::filesystem::path own = runtime.Path / "vellarno";

    void SetUp() override { setenv("XDG_RUNTIME_DIR", runtime.Path.c_str(), 1); }
    void TearDown() override { setenv("XDG_RUNTIME_DIR", before.c_str(), 1); }
};

TEST_F(PrivateFolder, LetsOnlyItsUserIn)
{
    for (int run = 0; run < 2; ++run) EXPECT_EQ(GetTempDirectory(), own.string() + '/');
    EXPECT_EQ(std::filesystem::status(own).permissions(), std::filesystem::perms::owner_all);
}

TEST_F(PrivateFolder, IsNeverReachedThroughALink)
{
    for (const auto& target : {std::filesystem::temp_directory_path(), runtime.Path / "nowhere"}) {
        std::filesystem::create_symlink(target, own);
        EXPECT_EQ(GetTempDirectory(), "");
        std::filesystem::remove(own);
    }
}

TEST(Services, FilesAreToldFromFolders)
{
    const Folder folder;
    const auto file = folder.Write("file", "x");
    std::filesystem::create_symlink(file, folder.Path / "link");
    std::filesystem::create_symlink(folder.Path / "gone", folder.Path / "dangling");
    EXPECT_TRUE(FileExists(file));
    EXPECT_TRUE(FileExists(folder.Path / "link"));
    for (const auto& none : {folder.Path, folder.Path / "missing", folder.Path / "dangling",
                             file / "below", std::filesystem::path()})
        EXPECT_FALSE(FileExists(none)) << none;
    EXPECT_FALSE(FileExists(std::string(5000, 'x'))) << "no error leaves it";
}

TEST(Fade, WithoutACompositorNothingHappens)
{
    Recorder recorder;
    Workbench form;
    form.Load = [] { FAIL() << "not even loaded"; };
    FadeInForm(form);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.windowOpacity(), 1);
}

TEST(Fade, EndsOpaqueAfterItsTime)
{
    Recorder recorder;
    recorder.IsComposited = true;
    Workbench form;
    double early = 1;
    QTimer::singleShot(200, [&] { early = form.windowOpacity(); });
    const auto start = Clock::now();
    FadeInForm(form);
    EXPECT_GE(Clock::now() - start, 738ms);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.windowOpacity(), 1);
    EXPECT_LT(early, 0.5) << "events are served meanwhile";
}

TEST(Fade, AWindowMayCloseMeanwhile)
{
    Recorder recorder;
    recorder.IsComposited = true;
    Workbench owner;
    Open(owner);
    auto* form = new Workbench;
    const QPointer<forms::Form> watch = form;
    int unloads = 0;
    form->Load = [form] { FadeInForm(*form); };
    form->Unload = [&] { ++unloads; };
    QTimer::singleShot(50, form, [form] { form->Close(); });
    const auto start = Clock::now();
    form->Show(&owner);
    EXPECT_LT(Clock::now() - start, 500ms) << "the rest of the fade is left out";
    Settle();
    EXPECT_FALSE(watch) << "the window does not come up again";
    EXPECT_EQ(unloads, 1);
}

}
}
