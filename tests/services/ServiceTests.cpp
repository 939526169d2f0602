#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"
#include "tests/support/Workbench.h"

#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "services/Endpoints.h"
#include "services/GenericBas.h"
#include "services/InstanceLock.h"
#include "services/PrivateFile.h"
#include "services/StatusBar.h"
#include "services/Trasparency.h"
#include "services/frmAbout.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <sys/stat.h>

namespace vellarno::test {
namespace {

namespace fs = std::filesystem;

TEST(Services, TheLockIsHeldByOneAndMissingFoldersStopNobody)
{
    const QTemporaryDir folder;
    auto first = std::make_unique<InstanceLock>();
    InstanceLock second;
    for (int twice = 0; twice < 2; ++twice) {
        EXPECT_TRUE(first->Take(folder.path().toStdString()));
        EXPECT_FALSE(second.Take(folder.path().toStdString()));
    }
    first.reset();
    EXPECT_TRUE(second.Take(folder.path().toStdString()));
    EXPECT_TRUE(InstanceLock().Take(folder.filePath("missing").toStdString()));
}

TEST(Services, PrivateFilesAreOrdinaryOnesInAFolderThatIsNoLink)
{
    const QTemporaryDir made;
    const fs::path folder = made.path().toStdString(), own = folder / "vellarno", file = own / "a";
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", folder.c_str());
    fs::create_symlink(fs::temp_directory_path(), own);
    EXPECT_EQ(GetTempDirectory(), "");
    fs::remove(own);
    for (int run = 0; run < 2; ++run) EXPECT_EQ(GetTempDirectory(), own.string() + '/');
    EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
    qputenv("XDG_RUNTIME_DIR", before);

    for (const char* bytes : {"long", "x"}) EXPECT_TRUE(WritePrivateFile(file, bytes));
    EXPECT_TRUE(FileExists(file) && fs::file_size(file) == 1 && !FileExists(own));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(file, own / "link"), fs::create_hard_link(file, own / "twin");
    mkfifo((own / "pipe").c_str(), S_IRUSR | S_IWUSR);
    for (const char* other : {"link", "pipe", "twin"})
        EXPECT_FALSE(WritePrivateFile(own / other, "other")) << other;
    for (const auto& path : {file, own / "link"}) DeletePrivateFile(path);
    EXPECT_TRUE(fs::is_symlink(own / "link") && !FileExists(file));
}

TEST(Services, AFadeTakesItsTimeUnlessItIsClosedOrNothingIsComposited)
{
    Recorder desktop;
    Workbench form;
    FadeInForm(form);
    EXPECT_FALSE(form.isVisible());
    desktop.IsComposited = true;
    QElapsedTimer clock;
    clock.start();
    QTimer::singleShot(50, &form, [&] { EXPECT_LT(form.windowOpacity(), 0.5); });
    FadeInForm(form);
    EXPECT_GE(clock.elapsed(), 738);
    EXPECT_TRUE(form.isVisible() && form.windowOpacity() == 1);
    clock.start();
    QTimer::singleShot(50, &form, [&] { form.Close(); });
    FadeInForm(form);
    EXPECT_LT(clock.elapsed(), 500) << "the rest of the fade is left out";
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
    form.setFixedSize(500, 200);
    bar->Resize(form);
    EXPECT_EQ(bar->hwnd()->Widget().geometry(), QRect(0, 177, 500, 22));
    EXPECT_EQ(copied(2), QRect(101, 1, 396, 17)) << "the last part follows the width";
    bar.reset();
    EXPECT_EQ(panel.parentWidget(), &form) << "the form's again";
}

TEST(Services, TheAboutBoxShowsItsOpeningAndClosesByButtonKeysAndLinks)
{
    Recorder desktop;
    Workbench owner;
    auto& button = owner.Add<forms::CommandButton>("button");
    button.Click = [] { ADD_FAILURE() << "the owner works meanwhile"; };
    Open(owner);
    SetClock([] { return DateSerial(2009, 9, 3) + 0.99; });
    for (const int end : std::array<int, 5>{0, Qt::Key_Return, Qt::Key_Escape, 1, 2}) {
        const QPointer<frmAbout> box = new frmAbout;
        QTimer::singleShot(0, box, [&] {
            EXPECT_TRUE(WaitUntil([&] { return box->isActiveWindow(); }));
            std::string texts;
            for (const char* name : {"lblVersione", "lblCalendario_0", "lblCalendario_1"})
                texts += box->Get<forms::Label>(name).Caption() + ' ';
            EXPECT_EQ(texts, "Versione 2.0.0 set 09 03 ");
            EXPECT_EQ(box->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), OnTopFlag);
            Click(button);
            const char* const controls[] = {"cmdChiudi", "imgsito", "lblEmail"};
            end > 2 ? Press(*box, Qt::Key(end))
                    : Click(dynamic_cast<forms::Control&>(box->Get<QWidget>(controls[end])));
            EXPECT_FALSE(box && box->isVisible() && box->close());
        });
        box->ShowModal(owner);
        Settle();
        OnTopFlag = !OnTopFlag, desktop.CanOpen = false;
    }
    const std::string mail = endpoints::Mail, site = endpoints::WebSite;
    EXPECT_EQ(desktop.Opened,
              (std::vector{site, "mailto:" + mail + "?Subject=Vellarno - Versione 2.0.0"}));
    OnTopFlag = false;
    SetClock(nullptr);
}

}
}
