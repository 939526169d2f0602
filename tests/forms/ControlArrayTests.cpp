#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/ControlArray.h"
#include "services/forms/Label.h"
#include "services/forms/PictureBox.h"
#include "services/forms/TextBox.h"

#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::ControlArray;
using forms::Label;
using forms::PictureBox;
using forms::TextBox;

struct Arrays : testing::Test
{
    Workbench form;
};

TEST_F(Arrays, HaveTheIndexesOfTheLayout)
{
    for (const char* name : {"lblLabel_1", "lblLabel_10", "lblLabel_7", "lblLabel_x", "lblLabel_",
                             "lblLabels_2", "lblLabel"})
        form.Add<Label>(name, 0, 0);
    form.Add<TextBox>("lblLabel_3", 0, 0); // another kind under the same name
    auto& inner = form.Add<PictureBox>("inner", 0, 0);
    form.Add<Label>("lblLabel_12", 0, 0, 10, 10, &inner);

    const ControlArray<Label> labels(form, "lblLabel");
    std::string found;
    for (const auto& label : labels) found += label.objectName().toStdString() + ' ';
    EXPECT_EQ(found, "lblLabel_1 lblLabel_7 lblLabel_10 lblLabel_12 ");
    EXPECT_EQ(labels.Count(), 4);
    EXPECT_EQ(labels[10].objectName(), QString("lblLabel_10"));
    EXPECT_FALSE(labels.Has(0));
    EXPECT_FALSE(labels.Has(3));
    EXPECT_THROW(labels[8], std::out_of_range);
    EXPECT_THROW(ControlArray<Label>(form, "lblNone"), std::logic_error);

    labels.SetEnabled(2, 10, false);
    EXPECT_TRUE(labels[1].Enabled());
    EXPECT_FALSE(labels[7].Enabled());
    EXPECT_FALSE(labels[10].Enabled());
    EXPECT_TRUE(labels[12].Enabled());
}

struct Window
{
    std::vector<std::string> Seen;
    void Changed(int Index) { Seen.push_back("change " + std::to_string(Index)); }
    void Pressed(int Index, short& KeyAscii)
    {
        Seen.push_back("key " + std::to_string(Index));
        if (KeyAscii == 'x') KeyAscii = 'y';
    }
};

TEST_F(Arrays, HandlersGetTheIndexFirst)
{
    for (const char* name : {"txtData_0", "txtData_3"}) form.Add<TextBox>(name, 0, 0);
    ControlArray<TextBox> boxes(form, "txtData");
    Window window;
    boxes.Connect(&TextBox::Change, &window, &Window::Changed);
    boxes.Connect(&TextBox::KeyPress, &window, &Window::Pressed);
    Open(form);
    boxes[3].SetFocus();
    Type(form, "x");
    EXPECT_EQ(window.Seen, (std::vector<std::string>{"key 3", "change 3"}));
    EXPECT_EQ(boxes[3].Text(), "y");
    EXPECT_EQ(boxes[0].Text(), "");
}

TEST_F(Arrays, LoadMakesALikeness)
{
    auto& inner = form.Add<PictureBox>("inner", 0, 0);
    auto& model = form.Add<PictureBox>("picBarra_0", 7, 8, 51, 18, &inner);
    model.SetToolTipText("Trimestre corrente");
    model.SetFontSize(13);
    model.SetFontBold(true);
    model.SetLook(forms::Look::Panel);
    model.SetPicture(":/pictures/info.svg");
    model.SetMousePointer(forms::CustomPointer);
    model.SetMouseIcon(101);
    model.SetEnabled(false);
    ControlArray<PictureBox> boxes(form, "picBarra");

    PictureBox& made = boxes.Load(4);
    EXPECT_EQ(&boxes[4], &made);
    EXPECT_EQ(boxes.Count(), 2);
    EXPECT_EQ(&form.Get<PictureBox>("picBarra_4"), &made);
    EXPECT_EQ(made.parentWidget(), &inner.Widget());
    EXPECT_EQ(made.geometry(), model.geometry());
    EXPECT_EQ(made.ToolTipText(), "Trimestre corrente");
    EXPECT_EQ(made.FontSize(), 13);
    EXPECT_TRUE(made.FontBold());
    EXPECT_EQ(made.GetLook(), forms::Look::Panel);
    EXPECT_EQ(made.Picture(), ":/pictures/info.svg");
    EXPECT_EQ(made.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_FALSE(made.Enabled());
    EXPECT_FALSE(made.Visible()) << "the program shows it when it is ready";
    Open(form);
    EXPECT_FALSE(made.Visible());
    made.SetVisible(true);
    EXPECT_TRUE(made.isVisible());
}

TEST_F(Arrays, LoadCopiesTextsToo)
{
    auto& label = form.Add<Label>("lblOra_0", 0, 0);
    label.SetCaption("Ora");
    label.SetForeColor(forms::PureRed);
    label.setAlignment(Qt::AlignRight);
    auto& box = form.Add<TextBox>("txtOra_0", 0, 0);
    box.SetMaxLength(2);
    box.SetText("12");
    const Label& likeLabel = ControlArray<Label>(form, "lblOra").Load(1);
    EXPECT_EQ(likeLabel.Caption(), "Ora");
    EXPECT_EQ(likeLabel.ForeColor(), forms::PureRed);
    EXPECT_EQ(likeLabel.alignment(), Qt::AlignRight);
    const TextBox& likeBox = ControlArray<TextBox>(form, "txtOra").Load(1);
    EXPECT_EQ(likeBox.Text(), "12");
    EXPECT_EQ(likeBox.MaxLength(), 2);
}

TEST_F(Arrays, AMissingControlIsAFaultOfTheProgram)
{
    form.Add<Label>("lblTotali_0", 0, 0);
    EXPECT_NO_THROW(form.Get<Label>("lblTotali_0"));
    EXPECT_THROW(form.Get<Label>("lblTotali_1"), std::logic_error);
    EXPECT_THROW(form.Get<TextBox>("lblTotali_0"), std::logic_error);
}

}
}
