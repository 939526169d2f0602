#include "services/forms/CommandButton.h"
#include "services/forms/Image.h"
#include "services/forms/Label.h"
#include "services/forms/OptionButton.h"
#include "services/forms/PictureBox.h"
#include "tests/support/Stage.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QDir>
#include <QImage>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMessageBox>
#include <QStyleHints>

using namespace vellarno::test;

/// A window whose controls a test lays out; the log tells what befalls those that it listens to.
struct Forms : testing::Test, Stage<Workbench>
{
    forms::TextBox& box = form.Add<forms::TextBox>("box", {10, 10, 80, 20});
    forms::TextBox& other = form.Add<forms::TextBox>("other", {10, 40, 80, 20});

    Forms() { box.SetFocus(); }
    std::function<void()> Noting(const std::string& What)
    {
        return [this, What] { desktop.Note(What); };
    }
};

TEST_F(Forms, ACharacterPassesTheFormAndThenTheControl)
{
    form.KeyPress = [this](short& code) { desktop.Note("form " + std::to_string(code)); };
    box.KeyPress = [this](short& code) { desktop.Note("box " + std::to_string(code)); };
    Type("a");
    EXPECT_EQ(TakeLog(), "box 97") << "without preview";
    form.KeyPreview = true;
    for (const auto key : {Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Left, Qt::Key_F2}) Press(key);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TakeLog(), "form 13, box 13, form 8, box 8, form 22, box 22");
}

TEST_F(Forms, ATextThatIsStillComposedStaysOutOfABox)
{
    box.SetText("12");
    box.Select(0, 2);
    QInputMethodEvent composing(QStringLiteral("3"), {});
    QCoreApplication::sendEvent(&box, &composing);
    EXPECT_EQ(box.Text(), "12");
}

TEST_F(Forms, AMenuOrAnotherWindowTakesTheKeyboardButNotTheFocus)
{
    box.LostFocus = Noting("box lost");
    other.GotFocus = Noting("other got");
    Click(box, Qt::RightButton);
    auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    QStringList words;
    for (const QAction* each : menu->actions()) words += each->text();
    EXPECT_EQ(words.join(' ').toStdString(),
              "&Annulla &Ripeti  &Taglia &Copia &Incolla Elimina  Seleziona tutto")
        << "without shortcuts, which do nothing here";
    menu->close();
    Workbench another;
    Person(another).Open();
    Open();
    EXPECT_EQ(TakeLog(), "");
    Person(another).Open();
    other.SetFocus();
    Open();
    EXPECT_EQ(TakeLog(), "box lost, other got") << "what was chosen meanwhile is told on return";
}

TEST_F(Forms, TheClickThatBringsTheWindowBackLeavesTheSelection)
{
    Workbench another;
    box.SetText("00");
    for (const bool clickComesFirst : {true, false}) {
        box.Select(0, 2);
        Person(another).Open();
        if (!clickComesFirst) Open();
        Click(box);
        EXPECT_EQ(box.SelLength(), 2) << clickComesFirst;
    }
    Click(box);
    EXPECT_EQ(box.SelLength(), 0) << "a later one sets the caret";
}

TEST_F(Forms, ACaretStopsBlinkingWhenNobodyTypes)
{
    for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(&box))
        if (QTimerEvent rested(timer.timerId); timer.interval >= 10000)
            QApplication::sendEvent(&box, &rested);
    EXPECT_EQ(QGuiApplication::styleHints()->cursorFlashTime(), 0);
    Type("1");
    EXPECT_GT(QGuiApplication::styleHints()->cursorFlashTime(), 0);
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

TEST_F(Forms, TabLandsOnTheSelectedOptionAndArrowsCountFromIt)
{
    forms::OptionButton* options[3];
    for (const int i : {0, 1, 2})
        options[i] = &form.Add<forms::OptionButton>(std::to_string(i).c_str(), {200, 30 * i, 9, 9});
    const std::function<void(forms::OptionButton&)> ways[] = {
        [](auto& option) { option.SetValue(true); },
        [](auto& option) {
            auto* reader = QAccessible::queryAccessibleInterface(&option)->actionInterface();
            reader->doAction(QAccessibleActionInterface::toggleAction());
            ASSERT_TRUE(WaitUntil([&] { return option.Value(); }));
        },
        [this](auto& option) {
            option.Click = [this] { box.SetFocus(); };
            Click(option);
        }};
    for (const auto& select : ways) {
        select(*options[2]);
        other.SetFocus();
        Press(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "2");
        options[1]->SetFocus();
        Press(Qt::Key_Down);
        EXPECT_EQ(Focus(), "0");
    }
}

TEST_F(Forms, WhatADisabledControlGetsBelongsToWhatLiesBehind)
{
    auto& image = form.Add<forms::Image>("image", {10, 120, 80, 20});
    auto& label = form.Add<forms::Label>("label", {10, 120, 80, 20});
    form.MouseMove = Noting("form");
    image.MouseMove = Noting("image");
    image.Click = Noting("click");
    label.SetEnabled(false);
    Click(label);
    image.SetEnabled(false);
    Hover(QPoint(50, 131));
    EXPECT_EQ(TakeLog(), "image, click, form");
}

TEST_F(Forms, ADoubleClickIsOneClick)
{
    forms::Control* const controls[] = {&form.Add<forms::Image>("image", {200, 0, 50, 20}),
                                        &form.Add<forms::Label>("label", {200, 30, 50, 20}),
                                        &form.Add<forms::PictureBox>("panel", {200, 60, 50, 20})};
    for (auto* each : controls) {
        each->Click = Noting(each->Widget().objectName().toStdString());
        DoubleClick(*each);
        Click(*each);
    }
    EXPECT_EQ(TakeLog(), "image, image, label, label, panel, panel");
}

TEST_F(Forms, EveryPictureIsThereForFinerPixelsToo)
{
    const QDir pictures(QStringLiteral(":/pictures"));
    EXPECT_FALSE(pictures.isEmpty());
    for (QString name : pictures.entryList({"*[!x].png"})) {
        const QSize own = QImage(pictures.filePath(name)).size();
        name.insert(name.lastIndexOf(u'.'), QStringLiteral("@3x"));
        EXPECT_EQ(QImage(pictures.filePath(name)).size(), own * 3) << name.toStdString();
    }
}

TEST_F(Forms, AMessageBoxShowsItsTitleTextAndIconAndWaitsForOk)
{
    std::vector<QImage> icons;
    const auto longLine = QStringLiteral("pagina ").repeated(15) + u'.'; // half a screen and more
    for (const auto style : {forms::Information, forms::Critical}) {
        Soon([&] {
            auto* message = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(message);
            EXPECT_EQ(message->windowTitle() + message->text(),
                      QStringLiteral("Titolo") + longLine + "\naltra riga");
            const auto& text = *message->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            EXPECT_GE(text.width(), text.fontMetrics().horizontalAdvance(longLine));
            icons.push_back(message->iconPixmap().toImage());
            message->buttons().at(0)->click();
        });
        forms::MsgBox(longLine.toStdString() + "\r\naltra riga", style, "Titolo");
    }
    ASSERT_EQ(icons.size(), 2U);
    const QColor red(0xC0, 0x30, 0x30), blue(0x2F, 0x5F, 0x9E);
    EXPECT_GT(CountPoints(icons[0], blue), CountPoints(icons[0], red));
    EXPECT_GT(CountPoints(icons[1], red), CountPoints(icons[1], blue));
}
