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

    /// Opens the box modally and does the action in it, which has to close it.
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

TEST_F(About, TellsVersionAndDayOfTheOpeningAndStandsAsTheMainWindowDoes)
{
    for (const bool pinned : {false, true}) {
        OnTopFlag = pinned;
        InBox([&](frmAbout& box) {
            EXPECT_EQ(Caption(box, "lblVersione"), "Versione 2.0.0");
            SetClock([] { return DateSerial(2009, 9, 4); }); // left open past midnight
            Wait(1);
            EXPECT_EQ(Caption(box, "lblCalendario_0"), "set 09");
            EXPECT_EQ(Caption(box, "lblCalendario_1"), pinned ? "04" : "03");
            EXPECT_EQ(box.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), pinned);
            box.Close();
        });
    }
    OnTopFlag = false;
}

TEST_F(About, ItsOwnerWaitsUntilButtonEnterOrEsc)
{
    auto& button = owner.Add<forms::CommandButton>("button", 0, 0);
    button.Click = [] { ADD_FAILURE() << "the owner works meanwhile"; };
    InBox([&](frmAbout& box) {
        Click(button);
        Click(box.Get<forms::CommandButton>("cmdChiudi"));
    });
    InBox([](frmAbout& box) { Press(box, Qt::Key_Return); });
    InBox([](frmAbout& box) { Press(box, Qt::Key_Escape); });
    EXPECT_TRUE(desktop.Log.empty());
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
    const std::string site = endpoints::WebSite;
    const auto mail =
        std::string("mailto:") + endpoints::Mail + "?Subject=Vellarno - Versione 2.1.0";
    EXPECT_EQ(desktop.Opened, (std::vector{site, mail, site, mail}));
}

TEST_F(About, TextsAreWholeAndLinksTellWhatTheyAre)
{
    InBox([](frmAbout& box) {
        for (forms::Control* control : box.Controls())
            if (const auto* label = dynamic_cast<forms::Label*>(control)) {
                const QSize hint = label->sizeHint();
                const bool wraps = label->wordWrap();
                const int needed = wraps ? label->heightForWidth(label->Width()) : hint.height();
                EXPECT_LE(needed, label->Height()) << label->Caption();
                EXPECT_TRUE(wraps || hint.width() <= label->Width()) << label->Caption();
            }
        const auto& site = box.Get<forms::PictureBox>("imgsito");
        EXPECT_EQ(site.ToolTipText() + ' ' + site.AccessibleName(),
                  std::string(endpoints::WebSite) + " Sito web");
        EXPECT_EQ(Caption(box, "lblEmail"), endpoints::Mail);
        for (QWidget* link : {&site.Widget(), &box.Get<forms::Label>("lblEmail").Widget()}) {
            EXPECT_EQ(QAccessible::queryAccessibleInterface(link)->role(), QAccessible::Button);
            EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
        }
        box.Close();
    });
}

}
}
