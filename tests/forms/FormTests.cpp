#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/CommandButton.h"
#include "services/forms/Desktop.h"
#include "services/forms/Image.h"
#include "services/forms/Label.h"
#include "services/forms/TextBox.h"
#include "services/forms/Timer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::CommandButton;
using forms::Form;
using forms::TextBox;
using forms::Timer;

struct Forms : testing::Test
{
    Workbench form;
    Diary diary;
};

TEST_F(Forms, LoadOnceBeforeTheyComeUpAndUnloadOnce)
{
    form.Load = [&] { diary.Note(form.isVisible() ? "load seen" : "load")(); };
    form.Unload = diary.Note("unload");
    Open(form);
    form.Show();
    EXPECT_EQ(diary.Read(), "load");
    form.Close();
    form.Close();
    EXPECT_EQ(diary.Read(), "unload");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Forms, TheFocusSetInLoadIsThereWhenTheyComeUp)
{
    form.Add<TextBox>("first", 10, 10);
    auto& chosen = form.Add<TextBox>("chosen", 10, 40);
    chosen.GotFocus = diary.Note("got");
    form.Load = [&] { chosen.SetFocus(); };
    Open(form);
    EXPECT_EQ(form.ActiveControl(), &chosen);
    EXPECT_EQ(diary.Read(), "got");
}

TEST_F(Forms, AnOwnedOneGoesWithItsEvents)
{
    Open(form);
    auto* owned = new Workbench(forms::FormBorder::FixedDialog);
    const QPointer<Form> watch = owned;
    owned->Unload = diary.Note("unload");
    owned->Show(&form);
    EXPECT_EQ(owned->windowHandle()->transientParent(), form.windowHandle());
    owned->Close();
    EXPECT_TRUE(watch) << "its own handler may still be running";
    Settle();
    EXPECT_FALSE(watch);
    EXPECT_EQ(diary.Read(), "unload");
}

TEST_F(Forms, AModalOneHoldsItsOwnerUntilItCloses)
{
    auto& box = form.Add<TextBox>("box", 10, 10);
    Open(form);
    auto* dialog = new Workbench(forms::FormBorder::FixedToolWindow);
    auto& close = dialog->Add<CommandButton>("close", 10, 10);
    dialog->SetCancelButton(close);
    close.Click = [dialog] { dialog->Close(); };
    dialog->Unload = diary.Note("unload");
    QTimer::singleShot(20, dialog, [&] {
        Type(form, "1");
        Click(box);
        diary.Note("open")();
        Press(*dialog, Qt::Key_Escape);
    });
    dialog->ShowModal(form);
    EXPECT_EQ(diary.Read(), "open, unload");
    EXPECT_EQ(box.Text(), "") << "the owner took no key meanwhile";
    Settle();
    form.Show();
    box.SetFocus();
    Type(form, "2");
    EXPECT_EQ(box.Text(), "2");
}

TEST_F(Forms, OneClosedWhileItLoadsNeverComesUp)
{
    form.Load = [&] { form.Close(); };
    form.Unload = diary.Note("unload");
    form.Show();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(diary.Read(), "unload");
}

TEST_F(Forms, AllCloseTogetherThoughOneTakesAnotherAlong)
{
    auto* one = new Workbench;
    auto* two = new Workbench;
    one->Unload = [&] { delete std::exchange(two, nullptr); };
    two->Unload = [&] { delete std::exchange(one, nullptr); };
    for (Form* opened :
         {static_cast<Form*>(&form), static_cast<Form*>(one), static_cast<Form*>(two)})
        Open(*opened);
    Form::UnloadAll();
    EXPECT_FALSE(form.isVisible());
    EXPECT_NE(one == nullptr, two == nullptr) << "the first to close took the other along";
    delete one;
    delete two;
}

TEST_F(Forms, ArePinnedInPlace)
{
    form.SetTopmost(true); // before it is shown: it comes up pinned
    Open(form);
    const auto pinned = [&] {
        return form.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    EXPECT_TRUE(pinned());
    form.move(40, 30);
    Settle();
    const QRect place = form.geometry();
    for (const bool on : {false, true}) {
        form.SetTopmost(on);
        Settle();
        EXPECT_EQ(pinned(), on);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.geometry(), place);
    }
}

TEST_F(Forms, KnowTheirControls)
{
    auto& box = form.Add<TextBox>("box", 10, 10);
    auto& picture = form.Add<forms::Image>("picture", 10, 40);
    auto& inner = form.Add<forms::Label>("inner", 0, 0, 5, 5, &picture);
    auto controls = form.Controls();
    std::ranges::sort(controls);
    std::vector<forms::Control*> expected{&box, &picture, &inner};
    std::ranges::sort(expected);
    EXPECT_EQ(controls, expected);
}

TEST_F(Forms, TheirHeightIsThatOfTheFrame)
{
    form.SetHeight(339 * 15);
    EXPECT_EQ(form.ScaleHeight(), 312);
    EXPECT_EQ(form.ScaleWidth(), 400);
}

TEST_F(Forms, ATickComesBetweenHandlersNotInsideThem)
{
    Timer timer;
    int ticks = 0;
    timer.Tick = [&] { ++ticks; };
    timer.Start(1);
    auto& button = form.Add<CommandButton>("button", 10, 10);
    button.Click = [&] {
        const int before = ticks;
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(30);
        while (std::chrono::steady_clock::now() < end) {
        }
        EXPECT_EQ(ticks, before) << "a handler runs to its end";
        forms::DoEvents();
        EXPECT_GT(ticks, before) << "unless it serves the events itself";
        diary.Note("done")();
    };
    Open(form);
    Click(button);
    EXPECT_EQ(diary.Read(), "done");
}

TEST_F(Forms, TheHourglassStandsOverAllUntilItGoes)
{
    forms::SetScreenPointer(true);
    forms::SetScreenPointer(true);
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    forms::SetScreenPointer(false);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(Forms, MessagesAreModalWithASingleButton)
{
    Open(form);
    QString seen;
    QTimer::singleShot(20, &form, [&] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_TRUE(box);
        seen = box->windowTitle() + '|' + box->property("text").toString();
        const auto buttons = box->findChildren<QAbstractButton*>();
        ASSERT_EQ(buttons.size(), 1);
        buttons.front()->click();
    });
    forms::MsgBox("È già\r\nin esecuzione", forms::Information, "Vellarno");
    EXPECT_EQ(seen, QString("Vellarno|È già\nin esecuzione"));
}

}
}
