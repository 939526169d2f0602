#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/CommandButton.h"
#include "services/forms/Desktop.h"
#include "services/forms/TextBox.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QTimer>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::CommandButton;
using forms::TextBox;

struct Focus : testing::Test
{
    Workbench form;
    TextBox& first = form.Add<TextBox>("first", 10, 10);
    TextBox& second = form.Add<TextBox>("second", 10, 40);
    CommandButton& button = form.Add<CommandButton>("button", 10, 70);
    Diary diary;

    void SetUp() override
    {
        for (auto* control :
             {static_cast<forms::Control*>(&first), static_cast<forms::Control*>(&second),
              static_cast<forms::Control*>(&button)}) {
            const std::string name = control->Widget().objectName().toStdString();
            control->GotFocus = diary.Note(name + " got");
            control->LostFocus = diary.Note(name + " lost");
        }
        button.Click = diary.Note("button click");
        first.SetFocus();
        Open(form);
    }
};

TEST_F(Focus, MovesBetweenControlsTellBoth)
{
    EXPECT_EQ(diary.Read(), "first got");
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(diary.Read(), "first lost, second got");
    Click(first);
    EXPECT_EQ(diary.Read(), "second lost, first got");
    button.SetFocus();
    EXPECT_EQ(diary.Read(), "first lost, button got");
    button.SetFocus();
    EXPECT_EQ(diary.Read(), "") << "it had the focus already";
}

TEST_F(Focus, AMessageBoxIsNoDeparture)
{
    diary.Read();
    QTimer::singleShot(50, &form, [] {
        ASSERT_TRUE(QApplication::activeModalWidget());
        QApplication::activeModalWidget()->close();
    });
    forms::MsgBox("Testo", forms::Information, "Vellarno");
    form.Show(); // offscreen no window manager gives the activation back
    ASSERT_TRUE(WaitUntil([&] { return form.isActiveWindow(); }));
    EXPECT_EQ(diary.Read(), "");
    Type(form, "1");
    EXPECT_EQ(first.Text(), "1");
}

TEST_F(Focus, AContextMenuIsNoDeparture)
{
    diary.Read();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5),
                            first.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&first, &asked);
    Settle();
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu);
    EXPECT_EQ(diary.Read(), "");
    menu->close();
    Settle();
    EXPECT_EQ(diary.Read(), "");
    EXPECT_EQ(form.ActiveControl(), &first);
}

TEST_F(Focus, AnotherWindowIsNoDeparture)
{
    diary.Read();
    Workbench other;
    other.Add<TextBox>("elsewhere", 10, 10);
    Open(other);
    EXPECT_FALSE(form.isActiveWindow());
    EXPECT_EQ(form.ActiveControl(), &first);
    other.Close();
    form.Show();
    ASSERT_TRUE(WaitUntil([&] { return form.isActiveWindow(); }));
    EXPECT_EQ(diary.Read(), "");
}

TEST_F(Focus, AControlChosenWhileAnotherWindowIsActiveIsToldOnReturn)
{
    diary.Read();
    Workbench other;
    Open(other);
    second.SetFocus();
    other.Close();
    form.Show();
    ASSERT_TRUE(WaitUntil([&] { return form.isActiveWindow(); }));
    Settle();
    EXPECT_EQ(diary.Read(), "first lost, second got");
}

TEST_F(Focus, SetInsideAHandlerItWinsOverTheControlThatWasClicked)
{
    first.LostFocus = [&] { second.SetFocus(); };
    diary.Read();
    Click(button);
    EXPECT_EQ(diary.Read(), "second got, button click") << "the click still reaches its button";
    EXPECT_EQ(form.ActiveControl(), &second);
}

TEST_F(Focus, ADisabledControlTakesNone)
{
    second.SetEnabled(false);
    diary.Read();
    second.SetFocus();
    Click(second);
    EXPECT_EQ(diary.Read(), "");
    EXPECT_EQ(form.ActiveControl(), &first);
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(form.ActiveControl(), &button);
}

TEST_F(Focus, AKeystrokeSentByTheProgramComesAfterTheHandler)
{
    first.Change = [&] {
        forms::SendKeys("{TAB}");
        EXPECT_EQ(form.ActiveControl(), &first);
    };
    Type(form, "1");
    Settle();
    EXPECT_EQ(form.ActiveControl(), &second);
}

}
}
