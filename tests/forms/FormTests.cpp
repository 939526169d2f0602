#include "services/forms/CommandButton.h"
#include "services/forms/Image.h"
#include "services/forms/Label.h"
#include "services/forms/OptionButton.h"
#include "services/forms/PictureBox.h"
#include "tests/support/Stage.h"

#include <QLabel>
#include <QMenu>
#include <QMessageBox>

using namespace vellarno::test;

/// A window whose controls a test lays out; the log tells what befalls those that it listens to.
struct Forms : testing::Test, Stage<Workbench>
{
    forms::TextBox& box = form.Add<forms::TextBox>("box", {10, 10, 80, 20});
    forms::TextBox& other = form.Add<forms::TextBox>("other", {10, 40, 80, 20});

    Forms() { box.SetFocus(); }
    std::function<void()> Noting(const std::string& What)
    {
        return [this, What] { Note(What); };
    }
};

TEST_F(Forms, AMenuTakesTheKeyboardButNotTheFocus)
{
    box.LostFocus = Noting("box lost");
    Click(box, Qt::RightButton);
    auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->actions().at(0)->text(), "&Annulla") << "without a shortcut";
    menu->close();
    EXPECT_EQ(TakeLog(), "");
}

TEST_F(Forms, AnotherWindowTakesNeitherFocusNorSelection)
{
    Workbench another;
    box.SetText("00");
    box.Select(0, 2);
    box.LostFocus = Noting("box lost");
    other.GotFocus = Noting("other got");
    Person(another).Open();
    Open();
    Click(box); // as that which brings the window back
    EXPECT_EQ(box.selectionLength(), 2);
    EXPECT_EQ(TakeLog(), "");
    Person(another).Open();
    other.SetFocus();
    Open();
    EXPECT_EQ(TakeLog(), "box lost, other got") << "what was chosen meanwhile is told on return";
}

TEST_F(Forms, ArrowKeysGoRoundTheUsableOptionsOfAContainer)
{
    auto& panel = form.Add<forms::PictureBox>("panel", {200, 0, 200, 100});
    forms::OptionButton* options[3];
    for (const int i : {0, 1, 2}) {
        options[i] = &form.Add<forms::OptionButton>("option", {10, 30 * i, 80, 20}, &panel);
        options[i]->Click = Noting(std::to_string(i));
    }
    form.Add<forms::OptionButton>("outside").SetValue(true);
    Click(*options[0]);
    for (const auto key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up}) Press(key);
    EXPECT_EQ(TakeLog(), "0, 1, 2, 0, 2");
    options[1]->SetEnabled(false);
    Press(Qt::Key_Left);
    EXPECT_EQ(TakeLog(), "0");
}

TEST_F(Forms, WhatADisabledControlGetsBelongsToWhatLiesBehind)
{
    auto& image = form.Add<forms::Image>("image", {10, 120, 80, 20});
    auto& label = form.Add<forms::Label>("label", {10, 120, 80, 20});
    form.MouseMove = Noting("form");
    image.MouseMove = Noting("image");
    image.Click = Noting("click");
    label.SetEnabled(false);
    Hover(label);
    Click(label);
    image.SetEnabled(false);
    Hover(QPoint(45, 131));
    EXPECT_EQ(TakeLog(), "image, click, form");
}

TEST_F(Forms, ADoubleClickIsOneClick)
{
    auto& image = form.Add<forms::Image>("image", {200, 30, 50, 20});
    auto& label = form.Add<forms::Label>("label", {200, 30, 50, 20});
    label.Click = [&] { label.SetVisible(!Note("label")); };
    image.Click = Noting("image");
    DoubleClick(label);
    EXPECT_EQ(TakeLog(), "label") << "and none on what it uncovers";
    DoubleClick(image);
    EXPECT_EQ(TakeLog(), "image");
}

TEST_F(Forms, AMessageBoxShowsItsTitleTextAndIconAndWaitsForOk)
{
    const QColor blue(0x2F, 0x5F, 0x9E), red(0xC0, 0x30, 0x30);
    const auto longLine = QStringLiteral("pagina ").repeated(15) + u'.'; // half a screen and more
    for (const auto style : {forms::Information, forms::Critical}) {
        QImage icon;
        Soon([&] {
            auto* message = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(message);
            EXPECT_EQ(message->windowTitle(), "Titolo");
            EXPECT_EQ(message->text(), longLine + "\naltra riga");
            const auto& text = *message->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            EXPECT_GE(text.width(), text.fontMetrics().horizontalAdvance(longLine)) << "unbroken";
            icon = message->iconPixmap().toImage();
            message->buttons().at(0)->click();
        });
        forms::MsgBox(longLine.toStdString() + "\r\naltra riga", style, "Titolo");
        EXPECT_GT(CountPoints(icon, style == forms::Critical ? red : blue), 100);
    }
}
