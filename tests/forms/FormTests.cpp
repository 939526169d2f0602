#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/CommandButton.h"
#include "services/forms/ControlArray.h"
#include "services/forms/Desktop.h"
#include "services/forms/Label.h"
#include "services/forms/PictureBox.h"
#include "services/forms/TextBox.h"
#include "services/forms/Timer.h"

#include <QThread>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::ControlArray;
using forms::Form;
using forms::Label;
using forms::PictureBox;
using forms::TextBox;

struct Forms : testing::Test
{
    Workbench form;
};

TEST_F(Forms, LoadOnceAndUnloadOnce)
{
    auto& first = form.Add<TextBox>("first", 10, 10);
    auto& chosen = form.Add<TextBox>("chosen", 10, 40);
    chosen.GotFocus = form.Note("got");
    form.Load = [&] {
        form.Note(form.isVisible() ? "load seen" : "load")();
        chosen.SetFocus();
    };
    form.Unload = form.Note("unload");
    Open(form);
    form.Show();
    EXPECT_EQ(form.Noted(), "load, got") << "the focus set in Load is there when it comes up";
    EXPECT_NE(form.ActiveControl(), &first);
    form.Close();
    form.Close();
    EXPECT_EQ(form.Noted(), "unload");

    Workbench hasty;
    hasty.Load = [&] { hasty.Close(); };
    hasty.Show();
    EXPECT_FALSE(hasty.isVisible()) << "closed while it loaded";
}

TEST_F(Forms, AnOwnedOneIsDestroyedAfterItsEventsAndAModalOneHoldsItsOwner)
{
    auto& box = form.Add<TextBox>("box", 10, 10);
    Open(form);
    for (const bool modal : {false, true}) {
        auto* owned = new Workbench;
        const QPointer<Form> watch = owned;
        auto& close = owned->Add<forms::CommandButton>("close");
        owned->SetCancelButton(close);
        close.Click = [&] {
            watch->Close();
            form.Note(watch ? "there" : "gone")();
        };
        owned->Unload = form.Note("unload");
        QTimer::singleShot(20, owned, [&] {
            Type(form, "1");
            Press(static_cast<Form&>(*watch), Qt::Key_Escape);
        });
        if (modal)
            owned->ShowModal(form);
        else
            owned->Show(&form);
        EXPECT_TRUE(WaitUntil([&] { return !watch; }));
        EXPECT_EQ(form.Noted(), "unload, there");
        EXPECT_EQ(box.Text(), "1") << "the owner of a modal window takes no key";
    }
}

TEST_F(Forms, AllCloseTogetherThoughOneTakesAnotherAlong)
{
    auto* one = new Workbench;
    auto* two = new Workbench;
    one->Unload = [&] { delete std::exchange(two, nullptr); };
    two->Unload = [&] { delete std::exchange(one, nullptr); };
    for (Form* opened : std::initializer_list<Form*>{&form, one, two}) Open(*opened);
    Form::UnloadAll();
    EXPECT_FALSE(form.isVisible());
    EXPECT_NE(one == nullptr, two == nullptr);
    delete one;
    delete two;
}

TEST_F(Forms, ArePinnedInPlace)
{
    form.SetTopmost(true); // before it is shown: it comes up pinned
    Open(form);
    const QRect place = form.geometry();
    for (const bool on : {true, false, true}) {
        form.SetTopmost(on);
        Settle();
        EXPECT_EQ(form.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), on);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.geometry(), place);
    }
}

TEST_F(Forms, ATickComesBetweenHandlersNotInsideThem)
{
    forms::Timer timer;
    timer.Tick = form.Note("tick");
    timer.Start(1);
    form.Load = [&] {
        QThread::msleep(20);
        EXPECT_EQ(form.Noted(), "") << "a handler runs to its end";
        forms::DoEvents();
        EXPECT_NE(form.Noted(), "") << "unless it serves the events itself";
    };
    form.Show();
}

TEST_F(Forms, ArraysHaveTheIndexesOfTheLayout)
{
    auto& inner = form.Add<PictureBox>("inner");
    for (const char* name : {"txt_1", "txt_10", "txt_7", "txt_x", "txt_", "txts_2", "txt"})
        form.Add<TextBox>(name);
    form.Add<Label>("txt_3"); // another kind under the same name
    form.Add<TextBox>("txt_12", 0, 0, 10, 10, &inner);
    ControlArray<TextBox> boxes(form, "txt");
    std::string found;
    for (const auto& box : boxes) found += box.objectName().toStdString() + ' ';
    EXPECT_EQ(found, "txt_1 txt_7 txt_10 txt_12 ");
    EXPECT_THROW(boxes[3], std::out_of_range);

    struct Window
    {
        std::string Seen;
        void Pressed(int Index, short& KeyAscii)
        {
            Seen += std::to_string(Index) + char(KeyAscii);
            KeyAscii = 'y';
        }
    } window;
    boxes.Connect(&TextBox::KeyPress, &window, &Window::Pressed);
    Open(form);
    for (const int index : {10, 7}) {
        boxes[index].SetFocus();
        Type(form, "x");
        EXPECT_EQ(boxes[index].Text(), "y");
    }
    EXPECT_EQ(window.Seen, "10x7x");
    boxes.SetEnabled(2, 10, false);
    EXPECT_TRUE(boxes[1].Enabled() && !boxes[7].Enabled() && !boxes[10].Enabled());
}

TEST_F(Forms, LoadMakesALikenessOfElementNought)
{
    auto& inner = form.Add<PictureBox>("inner");
    auto& model = form.Add<PictureBox>("pic_0", 7, 8, 51, 18, &inner);
    model.SetToolTipText("Trimestre corrente");
    model.SetFontSize(13);
    model.SetLook(forms::Look::Panel);
    model.SetPicture(":/pictures/info.svg");
    model.SetMousePointer(forms::CustomPointer);
    model.SetMouseIcon(101);
    model.SetEnabled(false);
    ControlArray<PictureBox> pictures(form, "pic");
    PictureBox& made = pictures.Load(4);
    EXPECT_EQ(&pictures[4], &form.Get<PictureBox>("pic_4"));
    EXPECT_EQ(made.parentWidget(), &inner.Widget());
    EXPECT_EQ(made.geometry(), model.geometry());
    EXPECT_EQ(made.ToolTipText(), "Trimestre corrente");
    EXPECT_EQ(made.FontSize(), 13);
    EXPECT_EQ(made.GetLook(), forms::Look::Panel);
    EXPECT_EQ(made.Picture(), ":/pictures/info.svg");
    EXPECT_EQ(made.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_FALSE(made.Enabled());
    EXPECT_FALSE(made.Visible());

    auto& label = form.Add<Label>("lbl_0");
    label.SetCaption("Ora");
    label.SetForeColor(forms::PureRed);
    const Label& likeLabel = ControlArray<Label>(form, "lbl").Load(1);
    EXPECT_EQ(likeLabel.Caption(), "Ora");
    EXPECT_EQ(likeLabel.ForeColor(), forms::PureRed);
}

TEST_F(Forms, LayoutFilesSetPropertiesByNameAndText)
{
    auto& label = form.Add<Label>("label");
    auto& box = form.Add<PictureBox>("box");
    const auto set = [](QWidget& Widget, const char* Name, const char* Value) {
        return Widget.setProperty(Name, QString::fromUtf8(Value));
    };
    EXPECT_TRUE(set(label, "Look", "Field") && set(box, "Look", "Band"));
    EXPECT_EQ(label.GetLook(), forms::Look::Field);
    EXPECT_EQ(box.GetLook(), forms::Look::Band);
    EXPECT_TRUE(set(box, "Picture", ":/pictures/info.svg") && set(box, "FontSize", "17"));
    EXPECT_EQ(box.Picture(), ":/pictures/info.svg");
    EXPECT_EQ(box.FontSize(), 17);
    EXPECT_TRUE(set(label, "ForeColor", "255"));
    EXPECT_EQ(label.ForeColor(), forms::PureRed);
}

/// The first and the last column, and row, that hold any ink of what the control shows.
QRect Ink(QWidget& Widget, int Scale = 1)
{
    QImage seen(Widget.size() * Scale, QImage::Format_Grayscale8);
    seen.setDevicePixelRatio(Scale);
    seen.fill(Qt::white);
    Widget.render(&seen, {}, {}, QWidget::DrawChildren);
    QRect ink;
    for (int y = 0; y < seen.height(); ++y)
        for (int x = 0; x < seen.width(); ++x)
            if (qGray(seen.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
    return ink;
}

TEST_F(Forms, APictureBoxKeepsWhatWasPrintedWhereItWasPrinted)
{
    auto& box = form.Add<PictureBox>("box", 10, 10, 120, 60);
    Open(form);
    box.SetCurrentX(40);
    box.SetCurrentY(20);
    box.Print("HH");
    const QRect ink = Ink(box);
    EXPECT_NEAR(ink.left(), 41, 1);
    EXPECT_NEAR(ink.width(), box.TextWidth("HH") - 2, 2);
    EXPECT_TRUE(ink.top() >= 20 && ink.bottom() < 34);
    box.SetVisible(false);
    form.showMinimized();
    Settle();
    form.showNormal();
    box.SetVisible(true);
    EXPECT_EQ(Ink(box), ink);
    EXPECT_NEAR(Ink(box, 2).left(), 2 * ink.left(), 2) << "at twice the scale it is drawn anew";
    EXPECT_NEAR(Ink(box, 2).width(), 2 * ink.width(), 3);

    EXPECT_EQ(box.CurrentX(), 0);
    EXPECT_GT(box.CurrentY(), 30) << "the next line is below";
    box.Cls();
    EXPECT_TRUE(Ink(box).isEmpty());
    EXPECT_EQ(box.CurrentY(), 0);
    const std::string wide(60, 'H');
    box.SetCurrentX((box.Width() - box.TextWidth(wide)) / 2);
    box.Print(wide);
    EXPECT_TRUE(Ink(box).left() < 10 && Ink(box).right() > 110) << "clipped at both ends";
}

}
}
