#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "services/Endpoints.h"
#include "services/GenericBas.h"
#include "services/frmAbout.h"
#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"
#include "tests/support/Workbench.h"

#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

namespace vellarno::test {

TEST(About, ShowsItsOpeningAndClosesByButtonKeysAndLinks)
{
    Recorder desktop;
    Workbench owner;
    auto& button = owner.Add<forms::CommandButton>("button");
    button.Click = [] { ADD_FAILURE() << "the owner works meanwhile"; };
    Open(owner);
    SetClock([] { return DateSerial(2009, 9, 3) + 0.99; });
    // Opens the box modally and does the action in it, which has to close it.
    const auto inBox = [&](const std::function<void(frmAbout&)>& action) {
        auto* box = new frmAbout;
        const QPointer<QWidget> alive(box);
        QTimer::singleShot(0, box, [&] {
            EXPECT_TRUE(WaitUntil([&] { return box->isActiveWindow(); }));
            std::string texts;
            for (const char* name : {"lblVersione", "lblCalendario_0", "lblCalendario_1"})
                texts += box->Get<forms::Label>(name).Caption() + ' ';
            EXPECT_EQ(texts, "Versione 2.0.0 set 09 03 ");
            EXPECT_EQ(box->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), OnTopFlag);
            Click(button);
            action(*box);
            EXPECT_FALSE(alive && alive->isVisible() && alive->close());
        });
        box->ShowModal(owner);
        Settle();
    };
    inBox([](frmAbout& box) { Click(box.Get<forms::CommandButton>("cmdChiudi")); });
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape})
        inBox([&](frmAbout& box) { Press(box, key); });
    OnTopFlag = true;
    inBox([](frmAbout& box) { Click(box.Get<forms::PictureBox>("imgsito")); });
    OnTopFlag = desktop.CanOpen = false;
    inBox([](frmAbout& box) {
        box.Get<forms::Label>("lblVersione").SetCaption("Versione 2.1.0");
        Click(box.Get<forms::Label>("lblEmail"));
    });
    const auto mail = std::string("mailto:") + endpoints::Mail + "?Subject=Vellarno - ";
    EXPECT_EQ(desktop.Opened,
              (std::vector{std::string(endpoints::WebSite), mail + "Versione 2.1.0"}));
    SetClock(nullptr);
}

}
