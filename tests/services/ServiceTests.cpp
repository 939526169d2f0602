#include "tests/support/Scenarios.h"
#include "tests/support/Workbench.h"

#include "services/Endpoints.h"
#include "services/InstanceLock.h"
#include "services/PrivateFile.h"
#include "services/StatusBar.h"
#include "services/Trasparency.h"
#include "services/frmAbout.h"

#include <QElapsedTimer>

#include <filesystem>
#include <sys/stat.h>

namespace vellarno::test {
namespace {

namespace fs = std::filesystem;

TEST(Services, TheLockIsHeldByOneAndMissingFoldersStopNobody)
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    InstanceLock second;
    {
        InstanceLock first;
        EXPECT_TRUE(first.Take(path) && !second.Take(path) && first.Take(path));
    }
    EXPECT_TRUE(second.Take(path));
    EXPECT_TRUE(InstanceLock().Take(path + "/missing"));
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
    EXPECT_TRUE(fs::file_size(file) == 1 && !FileExists(own));
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
    for (const short count : std::array<short, 4>{0, -1, 4, 256}) bar->SetParts(count, edges);
    EXPECT_EQ(copied(1), QRect()) << "a new strip is a single part";
    bar->SetParts(3, edges);
    EXPECT_EQ(copied(0), QRect(1, 1, 21, 18)) << "the part's frame stays in view";
    form.setFixedSize(500, 200);
    bar->Resize(form);
    EXPECT_EQ(copied(2), QRect(101, 1, 396, 17)) << "the last part follows the width";
    bar.reset();
    EXPECT_EQ(panel.parentWidget(), &form) << "the form's again";
}

TEST(Services, TheAboutBoxShowsItsOpeningAndClosesByButtonKeysAndLinks)
{
    QString table = "Shows: | lblVersione=Versione 2.0.0; lblCalendario_\\d=nov 26 22\n";
    for (const char* end : {"cmdChiudi", "<Return>", "<Esc>"})
        table += QString("End: %1 | windows=none\n").arg(end);
    table += QString("Site: imgsito | windows=none; log=open %1\n").arg(endpoints::WebSite);
    table += QString("Mail: lblEmail | windows=none; log=open mailto:%1?Subject=Vellarno - "
                     "Versione 2.0.0")
                 .arg(endpoints::Mail);
    PlayAll<frmAbout>(__FILE__, __LINE__, table);
    OnTopFlag = true;
    Stage<frmAbout>().Play(" | windows=frmAbout*");
}

TEST(Services, AModalWindowKeepsItsOwnerWaiting)
{
    Workbench owner;
    auto& button = owner.Add<forms::CommandButton>("button");
    button.Click = [] { ADD_FAILURE() << "the owner works meanwhile"; };
    Open(owner);
    const QPointer<Workbench> box = new Workbench;
    QTimer::singleShot(0, box, [&] {
        EXPECT_TRUE(WaitUntil([&] { return box->isActiveWindow(); }));
        Click(button);
        box->Close();
    });
    box->ShowModal(owner);
    EXPECT_TRUE(WaitUntil([&] { return !box; }));
}

}
}
