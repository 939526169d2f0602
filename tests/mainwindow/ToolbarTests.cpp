#include "tests/support/MainWindow.h"

#include <filesystem>
#include <fstream>

using namespace vellarno::test;
namespace fs = std::filesystem;

struct Toolbar : Before<Mode::Times>
{
    const fs::path page = desktop.TempFolder + "/HelpVellarno.htm";

    void Press(ToolIcon Icon) { Click(picToolBarra[Icon]); }
};

TEST_F(Toolbar, ThePinKeepsTheWindowOnTopAndLetsItGo)
{
    const QImage off = Seen(imgOnTop);
    Click(imgOnTop);
    EXPECT_EQ(OpenWindows(), "frmMain*");
    EXPECT_NE(Seen(imgOnTop), off);
    EXPECT_EQ(Focus(), "txtTime_0") << "a click on it moves no focus";
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        imgOnTop.Widget().setFocus();
        Person::Press(key);
    }
    form.setFocus();
    EXPECT_EQ(OpenWindows(), "frmMain");
    EXPECT_EQ(Seen(imgOnTop), off);
}

TEST_F(Toolbar, TheCalculatorSoundsOpensOnceAndReadsThePinAsItOpens)
{
    Click(imgOnTop);
    for (int press = 0; press < 2; ++press) {
        Press(SumsIcon);
        EXPECT_EQ(TakeLog(), "sound 201");
        EXPECT_EQ(OpenWindows(), "frmMain* frmMiniCalc*");
    }
    Click(imgOnTop);
    EXPECT_EQ(OpenWindows(), "frmMain frmMiniCalc*");
    Compare({}, "080000090000");
    EXPECT_TRUE(HasResults()) << "it blocks nothing";
    form.Close();
    EXPECT_EQ(OpenWindows(), "");
}

TEST_F(Toolbar, TheAboutBoxHoldsTheWindow)
{
    std::string meanwhile;
    Soon([&] {
        Click(imgOnTop);
        meanwhile = OpenWindows();
        QApplication::activeModalWidget()->close();
    });
    Press(AboutIcon);
    EXPECT_EQ(meanwhile, "frmAbout frmMain");
    EXPECT_EQ(OpenWindows(), "frmMain");
}

TEST_F(Toolbar, AnswersTheLeftButtonAlone)
{
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
        for (const auto& icon : picToolBarra) Click(icon, button);
        Click(imgOnTop, button);
    }
    EXPECT_EQ(TakeLog(), "");
    EXPECT_EQ(OpenWindows(), "frmMain");
}

TEST_F(Toolbar, EachIconClosesTheCalendar)
{
    Choose(Mode::Dates);
    for (const auto& icon : picToolBarra) {
        Click(cmdNowData[0]);
        Soon([] {
            if (QWidget* box = QApplication::activeModalWidget()) box->close();
        });
        Click(icon);
        EXPECT_TRUE(CalendarIsClosed()) << icon.AccessibleName();
    }
}

TEST_F(Toolbar, TheHelpPageIsWrittenWholeOpenedAndGoneWithTheWindow)
{
    for (const bool key : {false, true}) {
        key ? Person::Press(Qt::Key_F1) : Press(HelpIcon);
        EXPECT_EQ(TakeLog(), "open " + page.string());
        EXPECT_EQ(fs::file_size(page), 7231U);
        std::ofstream(page, std::ios::app) << "more";
    }
    form.Close();
    EXPECT_TRUE(fs::is_empty(desktop.TempFolder));
}

TEST_F(Toolbar, WhatStandsInTheWayOfTheHelpPageIsLeftAloneAndTold)
{
    const fs::path victim = page.string() + ".txt";
    std::ofstream(victim) << "precious";
    fs::create_symlink(victim, page);
    Press(HelpIcon);
    EXPECT_EQ(TakeLog(), "message 16 Vellarno: Impossibile visualizzare le informazioni.");
    form.Close();
    EXPECT_TRUE(fs::is_symlink(page));
    EXPECT_EQ(fs::file_size(victim), 8U);
}

TEST_F(Toolbar, InTheWorkingFolderNoPageIsDeletedButItsOwn)
{
    const fs::path before = fs::current_path();
    fs::current_path(desktop.TempFolder);
    std::ofstream(page) << "precious";
    desktop.TempFolder.clear();
    form.Close();
    EXPECT_EQ(fs::file_size(page), 8U);
    MainWindow another;
    another.desktop.TempFolder.clear();
    another.Click(another.picToolBarra[HelpIcon]);
    EXPECT_EQ(another.TakeLog(), "open HelpVellarno.htm");
    another.form.Close();
    EXPECT_FALSE(fs::exists(page));
    fs::current_path(before);
}

TEST_F(Toolbar, NothingMoreOpensInAWindowThatIsClosedMeanwhile)
{
    Soon([&] { form.Close(); });
    Press(HelpIcon);
    EXPECT_EQ(TakeLog(), "");
    EXPECT_TRUE(fs::is_empty(desktop.TempFolder));
    MainWindow another;
    another.Soon([&] { another.form.Close(); });
    another.Click(another.picToolBarra[SumsIcon]);
    EXPECT_EQ(OpenWindows(), "");
}
