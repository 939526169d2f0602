#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "services/Endpoints.h"
#include "services/GenericBas.h"
#include "services/frmAbout.h"
#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"
#include "tests/support/Workbench.h"

#include <QAccessible>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

class About : public ::testing::Test
{
protected:
    About()
    {
        SetClock([] { return DateSerial(2009, 9, 3) + 0.99; });
        Open(owner);
    }
    ~About() override { SetClock(nullptr); }

    /// Opens the box modally, does the action in it, and waits for the box to go.
    void InBox(const std::function<void(frmAbout&)>& Action)
    {
        auto* box = new frmAbout;
        const QPointer<QWidget> alive(box);
        QTimer::singleShot(0, box, [&] {
            EXPECT_TRUE(WaitUntil([&] { return box->isActiveWindow(); }));
            Action(*box);
            EXPECT_FALSE(alive && alive->isVisible());
            if (alive) box->Close();
        });
        box->ShowModal(owner);
        Settle();
        EXPECT_FALSE(alive);
    }

    static std::string Caption(const frmAbout& Box, const char* Name)
    {
        return Box.Get<forms::Label>(Name).Caption();
    }

    Recorder desktop;
    Workbench owner;
};

TEST_F(About, TellsVersionAndDayOfTheOpening)
{
    InBox([&](frmAbout& box) {
        EXPECT_EQ(Caption(box, "lblVersione"), "Versione 2.0.0");
        SetClock([] { return DateSerial(2009, 10, 4); }); // left open past midnight
        Settle();
        EXPECT_EQ(Caption(box, "lblCalendario_0") + Caption(box, "lblCalendario_1"), "set 0903");
        EXPECT_FALSE(box.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
        box.Close();
    });
}

TEST_F(About, ClosesByButtonEnterAndEsc)
{
    InBox([](frmAbout& box) { Click(box.Get<forms::CommandButton>("cmdChiudi")); });
    InBox([](frmAbout& box) { Press(box, Qt::Key_Return); });
    InBox([](frmAbout& box) { Press(box, Qt::Key_Escape); });
    EXPECT_TRUE(desktop.Log.empty());
}

TEST_F(About, ItsOwnerWaits)
{
    auto& button = owner.Add<forms::CommandButton>("button", 0, 0);
    int clicks = 0;
    button.Click = [&] { ++clicks; };
    InBox([&](frmAbout& box) {
        Click(button);
        box.Close();
    });
    EXPECT_EQ(clicks, 0);
}

TEST_F(About, EitherLinkClosesWhetherOrNotItOpens)
{
    for (const bool canOpen : {true, false}) {
        desktop.CanOpen = canOpen;
        InBox([](frmAbout& box) { Click(box.Get<forms::PictureBox>("imgsito")); });
        InBox([](frmAbout& box) {
            Click(box.Get<forms::Image>("imgMail2")); // no link, it only stands beside one
            box.Get<forms::Label>("lblVersione").SetCaption("Versione 2.1.0");
            Click(box.Get<forms::Label>("lblEmail"));
        });
    }
    const std::string mail =
        std::string("mailto:") + endpoints::Mail + "?Subject=Vellarno - Versione 2.1.0";
    EXPECT_EQ(desktop.Opened,
              (std::vector<std::string>{endpoints::WebSite, mail, endpoints::WebSite, mail}));
}

TEST_F(About, TextsAreWholeAndLinksTellWhatTheyAre)
{
    InBox([](frmAbout& box) {
        for (forms::Control* control : box.Controls())
            if (const auto* label = dynamic_cast<forms::Label*>(control)) {
                const QSize hint = label->sizeHint();
                const bool wraps = label->wordWrap();
                EXPECT_LE(wraps ? label->heightForWidth(label->width()) : hint.height(),
                          label->height())
                    << label->Caption();
                EXPECT_TRUE(wraps || hint.width() <= label->width()) << label->Caption();
            }
        const auto& site = box.Get<forms::PictureBox>("imgsito");
        EXPECT_EQ(site.ToolTipText(), endpoints::WebSite);
        EXPECT_EQ(site.AccessibleName(), "Sito web");
        EXPECT_EQ(Caption(box, "lblEmail"), endpoints::Mail);
        for (QWidget* link : {&site.Widget(), &box.Get<forms::Label>("lblEmail").Widget()}) {
            EXPECT_EQ(QAccessible::queryAccessibleInterface(link)->role(), QAccessible::Button);
            EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
        }
        box.Close();
    });
}

TEST_F(About, StandsOnTopWhenTheMainWindowIsPinned)
{
    OnTopFlag = true;
    InBox([](frmAbout& box) {
        EXPECT_TRUE(box.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
        box.Close();
    });
    OnTopFlag = false;
}

}
}
