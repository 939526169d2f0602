#include "tests/mainwindow/MainWindow.h"

#include "services/GenericBas.h"
#include "services/frmAbout.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdlib.h>

namespace vellarno::test {
namespace {

namespace fs = std::filesystem;

class Toolbar : public MainWindow
{
protected:
    Toolbar()
    {
        char name[] = "/tmp/vellarno-test-XXXXXX";
        folder = mkdtemp(name);
        desktop.TempFolder = folder;
    }
    ~Toolbar() override
    {
        OnTopFlag = false;
        fs::remove_all(folder);
    }

    std::string HelpFile() const { return (folder / "HelpVellarno.htm").string(); }

    static std::string Content(const std::string& Path)
    {
        std::ifstream file(Path, std::ios::binary);
        std::stringstream all;
        all << file.rdbuf();
        return all.str();
    }

    bool OnTop() const { return form.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint); }

    template <class FormClass>
    FormClass* Child() const
    {
        Settle();
        FormClass* found = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* child = dynamic_cast<FormClass*>(widget)) {
                EXPECT_EQ(found, nullptr);
                found = child;
            }
        return found;
    }

    fs::path folder;
    Array<forms::PictureBox> picToolBarra{form, "picToolBarra"};
    forms::Image& imgOnTop = form.Get<forms::Image>("imgOnTop");
};

TEST_F(Toolbar, ThePinTurnsOverAndTheWindowStays)
{
    const QRect place = form.geometry();
    for (const bool pinned : {true, false, true, false}) {
        Click(imgOnTop);
        EXPECT_EQ(OnTop(), pinned);
        EXPECT_EQ(OnTopFlag, pinned);
        EXPECT_EQ(imgOnTop.Picture(), resources::Icon(pinned ? 202 : 201));
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.geometry(), place);
    }
}

TEST_F(Toolbar, TheHelpPageIsWrittenWholeAndOpened)
{
    for (int press = 0; press < 100; ++press) Click(picToolBarra[2]);
    EXPECT_EQ(desktop.Opened, std::vector<std::string>(100, HelpFile()));
    EXPECT_EQ(Content(HelpFile()).size(), 7231u);
    EXPECT_EQ(fs::status(HelpFile()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    std::ofstream(HelpFile(), std::ios::app) << std::string(5000, 'x');
    Click(picToolBarra[2]);
    EXPECT_EQ(Content(HelpFile()).size(), 7231u);
    form.Close();
    EXPECT_FALSE(fs::exists(HelpFile()));
}

TEST_F(Toolbar, WhatStandsInTheHelpFilesWayIsLeftAlone)
{
    const fs::path victim = folder / "victim";
    std::ofstream(victim) << "precious";
    const std::function<void()> obstacles[] = {
        [&] { fs::create_symlink(victim, HelpFile()); },
        [&] { fs::create_hard_link(victim, HelpFile()); },
        [&] { fs::create_directory(HelpFile()); },
        [&] { desktop.TempFolder = (folder / "missing").string(); }};
    for (const auto& lay : obstacles) {
        lay();
        desktop.Messages.clear();
        Click(picToolBarra[2]);
        ASSERT_EQ(desktop.Messages.size(), 1u);
        EXPECT_EQ(desktop.Messages[0].Prompt, "Impossibile visualizzare le informazioni.");
        EXPECT_EQ(desktop.Messages[0].Style, forms::Critical);
        EXPECT_EQ(Content(victim.string()), "precious");
        fs::remove_all(HelpFile());
    }
    EXPECT_TRUE(desktop.Opened.empty());

    desktop.TempFolder = folder.string();
    fs::create_symlink(victim, HelpFile());
    form.Close();
    EXPECT_EQ(Content(victim.string()), "precious");
    EXPECT_TRUE(fs::is_symlink(HelpFile()));
}

TEST_F(Toolbar, TheFirstSettingsProgramThatIsThereIsStarted)
{
    Click(picToolBarra[0]);
    desktop.IsInstalled = [](const std::string& program) { return program == "mate-time-admin"; };
    Click(picToolBarra[0]);
    desktop.IsInstalled = [](const std::string&) { return false; };
    Click(picToolBarra[0]);
    EXPECT_EQ(desktop.Started,
              (std::vector<std::string>{"gnome-control-center datetime", "mate-time-admin"}));
    EXPECT_TRUE(desktop.Messages.empty());
}

TEST_F(Toolbar, TheSequentialCalculatorOpensOnceWithItsSound)
{
    Click(picToolBarra[3]);
    auto* sums = Child<frmMiniCalc>();
    ASSERT_TRUE(sums && sums->isVisible());
    EXPECT_EQ(desktop.Log, std::vector<std::string>{"sound 201"});
    Click(picToolBarra[3]);
    EXPECT_EQ(Child<frmMiniCalc>(), sums);
    EXPECT_EQ(desktop.Sounds.size(), 2u);
    EnterTimes("080000", "090000"); // the main window goes on working
    Click(cmdCalcola);
    EXPECT_EQ(lblDati[3].Caption(), "01");
    sums->Close();
    EXPECT_EQ(Child<frmMiniCalc>(), nullptr);
    Click(picToolBarra[3]);
    ASSERT_TRUE(Child<frmMiniCalc>());
    form.Close();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(Child<frmMiniCalc>(), nullptr);
}

TEST_F(Toolbar, TheAboutBoxGoesWhenTheProgramIsAskedToEnd)
{
    bool shown = false;
    QTimer::singleShot(0, &form, [&] {
        auto* box = Child<frmAbout>();
        shown = box && box->isVisible() && QApplication::activeModalWidget() == box;
        form.Close();
    });
    Click(picToolBarra[1]); // returns when the box has gone
    EXPECT_TRUE(shown);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(Child<frmAbout>(), nullptr);
    EXPECT_TRUE(desktop.Sounds.empty());
}

}
}
