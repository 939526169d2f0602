#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/Label.h"
#include "services/forms/PictureBox.h"
#include "services/forms/TextBox.h"

#include <QImage>
#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::Image;
using forms::Label;
using forms::PictureBox;
using forms::TextBox;

/// What the control shows, at a scale of the desktop.
QImage Seen(const forms::Control& Control, qreal Scale = 1)
{
    QWidget& widget = Control.Widget();
    QImage picture(widget.size() * Scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(Scale);
    picture.fill(Qt::white);
    widget.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

/// The columns, or with Rows the rows, between the first and the last that hold any ink.
std::pair<int, int> Ink(const QImage& Picture, bool Rows = false)
{
    std::pair<int, int> span{-1, -1};
    const int along = Rows ? Picture.height() : Picture.width();
    const int across = Rows ? Picture.width() : Picture.height();
    for (int i = 0; i < along; ++i)
        for (int j = 0; j < across; ++j) {
            if (qGray(Rows ? Picture.pixel(j, i) : Picture.pixel(i, j)) > 128) continue;
            if (span.first < 0) span.first = i;
            span.second = i;
        }
    return span;
}

struct Drawing : testing::Test
{
    Workbench form;
    PictureBox& box = form.Add<PictureBox>("box", 10, 10, 120, 60);
};

TEST_F(Drawing, APrintStandsAtTheDrawingPosition)
{
    Open(form);
    EXPECT_EQ(Ink(Seen(box)).first, -1);
    box.SetCurrentX(40);
    box.SetCurrentY(20);
    box.Print("HH");
    const auto columns = Ink(Seen(box));
    const auto rows = Ink(Seen(box), true);
    EXPECT_NEAR(columns.first, 41, 1);
    EXPECT_NEAR(columns.second - columns.first, box.TextWidth("HH") - 2, 2);
    EXPECT_GE(rows.first, 20);
    EXPECT_LT(rows.second, 34);
    EXPECT_EQ(box.CurrentX(), 0);
    EXPECT_GT(box.CurrentY(), 30) << "the next line is below";

    box.Print("I");
    EXPECT_LT(Ink(Seen(box)).first, 5);
    EXPECT_EQ(box.PrintedText(), "HHI");
    box.Cls();
    EXPECT_EQ(Ink(Seen(box)).first, -1);
    EXPECT_EQ(box.CurrentX(), 0);
    EXPECT_EQ(box.CurrentY(), 0);
    EXPECT_EQ(box.PrintedText(), "");
}

TEST_F(Drawing, APrintBeyondTheEdgesIsClippedAtBoth)
{
    Open(form);
    const std::string wide(60, 'H');
    box.SetCurrentX((box.Width() - box.TextWidth(wide)) / 2);
    box.Print(wide);
    const auto columns = Ink(Seen(box));
    EXPECT_LT(columns.first, 10);
    EXPECT_GT(columns.second, 110);
}

TEST_F(Drawing, WhatWasPrintedStays)
{
    Open(form);
    box.SetCurrentX(10);
    box.Print("12.34.56");
    const QImage before = Seen(box);
    box.SetVisible(false);
    Settle();
    box.SetVisible(true);
    EXPECT_EQ(Seen(box), before) << "through hiding";
    form.showMinimized();
    Settle();
    form.showNormal();
    Settle();
    EXPECT_EQ(Seen(box), before) << "through minimising";

    const auto one = Ink(before);
    const auto two = Ink(Seen(box, 2));
    EXPECT_NEAR(two.first, 2 * one.first, 2) << "at twice the scale it is drawn anew";
    EXPECT_NEAR(two.second, 2 * one.second, 3);
}

TEST_F(Drawing, TextWidthFollowsTheFont)
{
    const int plain = box.TextWidth("Mercoledì");
    EXPECT_GT(plain, 9 * 3);
    box.SetFontSize(22);
    EXPECT_NEAR(box.TextWidth("Mercoledì"), 2 * plain, 4);
    EXPECT_EQ(box.TextWidth(""), 0);
}

TEST_F(Drawing, LayoutFilesSetPropertiesByName)
{
    auto& label = form.Add<Label>("label", 10, 100);
    auto& image = form.Add<Image>("image", 10, 130);
    auto& text = form.Add<TextBox>("text", 10, 160);
    ASSERT_TRUE(Workbench::Set(label, "Look", "Field"));
    EXPECT_EQ(label.GetLook(), forms::Look::Field);
    ASSERT_TRUE(Workbench::Set(image, "Look", "Shadow"));
    EXPECT_EQ(image.GetLook(), forms::Look::Shadow);
    ASSERT_TRUE(Workbench::Set(box, "Look", "Band"));
    EXPECT_EQ(box.GetLook(), forms::Look::Band);
    ASSERT_TRUE(Workbench::Set(image, "Picture", ":/pictures/info.svg"));
    EXPECT_EQ(image.Picture(), ":/pictures/info.svg");
    ASSERT_TRUE(Workbench::Set(label, "ForeColor", "255"));
    EXPECT_EQ(label.ForeColor(), forms::PureRed);
    for (forms::Control* control :
         {static_cast<forms::Control*>(&label), static_cast<forms::Control*>(&box),
          static_cast<forms::Control*>(&text)}) {
        ASSERT_TRUE(Workbench::Set(*control, "FontSize", "17"));
        EXPECT_EQ(control->FontSize(), 17);
    }
    EXPECT_FALSE(Workbench::Set(label, "Look", "Gold")) << "a name that isn't there is refused";
    EXPECT_EQ(label.GetLook(), forms::Look::Field);
}

TEST_F(Drawing, ALabelShowsItsColourAndItsGround)
{
    auto& label = form.Add<Label>("label", 10, 100);
    label.SetFontSize(18);
    label.SetCaption("HHHH");
    label.SetForeColor(forms::PureRed);
    Open(form);
    const auto has = [&](QRgb Colour) {
        const QImage seen = Seen(label);
        for (int x = 0; x < seen.width(); ++x)
            for (int y = 0; y < seen.height(); ++y)
                if (seen.pixel(x, y) == Colour) return true;
        return false;
    };
    EXPECT_TRUE(has(qRgb(255, 0, 0)));
    label.SetEnabled(false);
    EXPECT_FALSE(has(qRgb(255, 0, 0))) << "a disabled label is grey";
    label.SetEnabled(true);
    EXPECT_TRUE(has(qRgb(255, 0, 0)));

    const QRgb edge = forms::palette::PanelEdge.rgb();
    label.SetBackColor(forms::ActiveBorder);
    EXPECT_FALSE(has(edge)) << "a transparent label has no ground";
    label.SetBackOpaque(true);
    EXPECT_TRUE(has(edge));
}

TEST_F(Drawing, CaptionsTakeBothKindsOfLineEnd)
{
    auto& label = form.Add<Label>("label", 10, 100);
    label.SetCaption("uno\r\ndue");
    EXPECT_EQ(label.text(), QString("uno\ndue"));
    label.SetCaption("<b>x</b> & y");
    Open(form);
    EXPECT_EQ(label.Caption(), "<b>x</b> & y") << "a caption is plain text";
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

}
}
