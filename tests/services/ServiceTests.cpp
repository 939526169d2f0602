#include "tests/support/Scenarios.h"

#include "services/CTooltip.h"
#include "services/Endpoints.h"
#include "services/PrivateFile.h"
#include "services/StatusBar.h"
#include "services/Trasparency.h"
#include "services/frmAbout.h"

#include <QElapsedTimer>
#include <QScreen>

#include <filesystem>
#include <sys/stat.h>

namespace vellarno::test {
namespace {

namespace fs = std::filesystem;

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
    fs::create_hard_link(file, own / "twin");
    mkfifo((own / "pipe").c_str(), S_IRUSR | S_IWUSR);
    for (const char* other : {"pipe", "twin"})
        EXPECT_FALSE(WritePrivateFile(own / other, "other")) << other;
}

TEST(Services, AFadeTakesItsTimeUnlessItIsClosed)
{
    Recorder desktop;
    desktop.IsComposited = true;
    Workbench form;
    QElapsedTimer clock;
    clock.start();
    FadeInForm(form);
    EXPECT_TRUE(form.isVisible() && form.windowOpacity() == 1 && clock.elapsed() >= 738);
    clock.start();
    QTimer::singleShot(50, &form, [&] { EXPECT_LT(form.windowOpacity(), 0.5); });
    QTimer::singleShot(60, &form, [&] { form.Close(); });
    FadeInForm(form);
    EXPECT_LT(clock.elapsed(), 500) << "the rest of the fade is left out";
}

TEST(Services, TheStatusBarHoldsControlsInItsParts)
{
    Workbench form;
    auto& panel = form.Add<forms::PictureBox>("panel");
    auto bar = std::make_unique<StatusBar>();
    bar->CopyObj(0, panel); // there is no strip yet
    EXPECT_TRUE(bar->Create(form) && !bar->Create(form));
    const std::int16_t edges[] = {25, 100, static_cast<std::int16_t>(65535)};
    for (const short count : std::array<short, 5>{3, 0, -1, 4, 256}) bar->SetParts(count, edges);
    bar->CopyObj(0, panel);
    EXPECT_EQ(panel.geometry(), QRect(1, 1, 21, 18)) << "the part's frame stays in view";
    form.setFixedSize(500, 200);
    bar->Resize(form);
    bar->CopyObj(2, panel);
    EXPECT_EQ(panel.geometry(), QRect(101, 1, 396, 17)) << "the last part follows the width";
    bar.reset();
    EXPECT_EQ(panel.parentWidget(), &form) << "the form's again";
}

TEST(Services, TheAboutBoxShowsItsOpeningAndClosesByButtonKeysAndLinks)
{
    const QString table(R"(
Shows: | lblVersione=Versione 2.0.0; lblCalendario_\d=nov 26 22
End: cmdChiudi | windows=none
End: <Return> | windows=none
End: <Esc> | windows=none
End: imgsito | windows=none; log=open %1
End: lblEmail | windows=none; log=open mailto:%2?Subject=Vellarno - Versione 2.0.0)");
    PlayAll<frmAbout>(__FILE__, __LINE__, table.arg(endpoints::WebSite, endpoints::Mail));
    OnTopFlag = true;
    Stage<frmAbout>().Play(" | windows=frmAbout*");
}

struct Tooltips : testing::Test
{
    Workbench form;
    CTooltip tip;

    Tooltips()
    {
        tip.SetStyle(CTooltip::BalloonStyle), tip.SetDelayTime(1), tip.SetIcon(1);
        tip.SetTipText("prima riga\r\nseconda riga");
        Open(form);
        form.move(200, 300);
        PutPointer(100, 100);
    }
    void PutPointer(int X, int Y)
    {
        QCursor::setPos(form.mapToGlobal(QPoint(X, Y)));
        Settle();
    }
    /// The one balloon that stands, once it is up.
    static const forms::Balloon& Standing()
    {
        EXPECT_TRUE(WaitUntil([] { return ShownBalloons().size() == 1; }));
        return *ShownBalloons().at(0);
    }
    static bool None(int After = 0) { return Wait(After), ShownBalloons().empty(); }
};

TEST_F(Tooltips, TextsReachABalloonThatStandsAndItsMannerDoesNot)
{
    tip.Create(form, false);
    tip.SetIcon(2);
    EXPECT_EQ(Standing().Icon(), 1) << "a heading changes only with both icon and title";
    tip.SetTitle("Titolo");
    EXPECT_TRUE(Standing().Icon() == 2 && Standing().Title() == "Titolo");
    const QRect before = Standing().geometry();
    tip.SetStyle(0), tip.SetCentered(true);
    tip.SetTipText(tip.TipText() + "\r\nterza");
    EXPECT_EQ(Standing().Text(), "prima riga\nseconda riga\nterza");
    EXPECT_TRUE(Standing().height() > before.height() && Standing().x() == before.x());
    tip.Create(form, false);
    EXPECT_NEAR(Standing().y(), 605, 5) << "under the window and its frame";
    EXPECT_NEAR(Standing().geometry().center().x(), 400, 1);
}

TEST_F(Tooltips, OpensAfterTheDelayOfARestAndClosesAfterItsTime)
{
    tip.SetDelayTime(300), tip.SetVisibleTime(300);
    tip.Create(form, false);
    tip.SetDelayTime(0), tip.SetVisibleTime(10000);
    for (int x = 0; x < 10; ++x) {
        EXPECT_TRUE(None(40)) << "too late for a shorter delay, and the pointer has not rested";
        PutPointer(100 + x, 100);
    }
    Standing();
    EXPECT_FALSE(None(50));
    EXPECT_TRUE(WaitUntil([] { return None(); }));
    for (const int at : {-100, 10}) PutPointer(at, at);
    EXPECT_TRUE(None(450)) << "it has been, until the next Create";
}

TEST_F(Tooltips, ThereIsNeverMoreThanOneAndItGoesAtOnce)
{
    const std::function<void()> ends[] = {[&] { tip.Destroy(); }, [&] { PutPointer(-100, -100); },
                                          [&] { form.showMinimized(); }, [&] { form.Close(); }};
    for (const auto& end : ends) {
        form.showNormal();
        PutPointer(100, 100);
        for (const bool onTop : {false, true}) {
            tip.Create(form, onTop);
            EXPECT_TRUE(None()) << "it waits for its delay";
            EXPECT_EQ(Standing().windowFlags().testFlag(Qt::WindowStaysOnTopHint), onTop);
        }
        end();
        EXPECT_TRUE(None()) << &end - ends;
    }
}

TEST_F(Tooltips, StaysOnTheScreenAndOffThePointer)
{
    const QRect screen = form.screen()->availableGeometry();
    for (int corner = 0; corner < 4; ++corner) {
        const int right = corner % 2, bottom = corner / 2;
        form.move(right * (screen.right() - 400), bottom * (screen.bottom() - 300));
        PutPointer(1 + right * 397, 1 + bottom * 297);
        tip.Create(form, false);
        const QRect area = Standing().geometry();
        EXPECT_TRUE(screen.contains(area) && !area.contains(QCursor::pos())) << corner;
    }
}

}
}
