#include "tests/support/Driver.h"
#include "tests/support/Workbench.h"

#include "services/forms/TextBox.h"

#include <gtest/gtest.h>

namespace vellarno::test {
namespace {

using forms::TextBox;

struct TextBoxes : testing::Test
{
    Workbench form;
    TextBox& box = form.Add<TextBox>("box", 10, 10);
    TextBox& other = form.Add<TextBox>("other", 10, 40);
    std::vector<short> keys; ///< what reached the box's KeyPress

    void Begin()
    {
        Open(form);
        box.SetFocus();
        box.KeyPress = [this](short& KeyAscii) { keys.push_back(KeyAscii); };
    }
};

TEST_F(TextBoxes, ChangeComesInsideAWriteThatChangesTheText)
{
    for (const bool enabled : {true, false}) {
        box.SetEnabled(enabled);
        std::vector<std::string> seen;
        box.Change = [&] { seen.push_back(box.Text()); };
        box.SetText("12");
        EXPECT_EQ(seen, std::vector<std::string>{"12"}) << "enabled " << enabled;
        box.SetText("12");
        EXPECT_EQ(seen.size(), 1u) << "an equal text is no change";
        box.SetText("");
        box.SetText("");
        EXPECT_EQ(seen, (std::vector<std::string>{"12", ""}));
    }
}

TEST_F(TextBoxes, HandlersNestAndEndAtTheEmptyText)
{
    int depth = 0;
    std::vector<std::pair<int, std::string>> seen;
    box.Change = [&] {
        ++depth;
        seen.emplace_back(depth, box.Text());
        box.SetText("");
        EXPECT_EQ(box.Text(), "");
        --depth;
    };
    Begin();
    Type(form, "7");
    EXPECT_EQ(seen, (std::vector<std::pair<int, std::string>>{{1, "7"}, {2, ""}}));
    Type(form, "8");
    EXPECT_EQ(seen.size(), 4u) << "the box goes on working after a nested write";
    EXPECT_EQ(box.Text(), "");
}

TEST_F(TextBoxes, EveryWayInIsCutToMaxLength)
{
    Begin();
    box.SetMaxLength(2);
    const auto fill = [&](const char* Way, const std::function<void()>& Enter) {
        box.SetText("");
        Enter();
        EXPECT_EQ(box.Text(), "00") << Way;
    };
    fill("write", [&] { box.SetText("000"); });
    fill("keys", [&] { Type(form, "000"); });
    fill("paste", [&] { Paste(form, "000"); });
    fill("drop", [&] { EXPECT_TRUE(Drop(box, "000")); });
    fill("input method", [&] { Commit(box, "000"); });
}

TEST_F(TextBoxes, AKeyMayBeReplacedOrTakenAway)
{
    Begin();
    box.KeyPress = [](short& KeyAscii) {
        if (KeyAscii == 'a') KeyAscii = 0;
        if (KeyAscii == 'b') KeyAscii = 1;
        if (KeyAscii == 'c') KeyAscii = 'X';
        if (KeyAscii == 8) KeyAscii = '-';
    };
    Type(form, "1a2b3c4è");
    EXPECT_EQ(box.Text(), "123X4è");
    Press(form, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "123X4è-");
    box.SetText("");
    Commit(box, "1a2b3cè");
    EXPECT_EQ(box.Text(), "123Xè") << "an input method's text passes the same filter";
}

TEST_F(TextBoxes, AReplacedKeyTakesTheSelectionsPlace)
{
    Begin();
    box.SetText("12");
    box.Select(0, 2);
    box.KeyPress = [](short& KeyAscii) { KeyAscii = '9'; };
    Type(form, "x");
    EXPECT_EQ(box.Text(), "9");
}

TEST_F(TextBoxes, ControlCharactersComeAsTheirCodes)
{
    Begin();
    struct Case
    {
        Qt::Key Key;
        Qt::KeyboardModifiers Modifiers;
        std::vector<short> Codes;
    };
    const Case cases[] = {
        {Qt::Key_V, Qt::ControlModifier, {22}},
        {Qt::Key_C, Qt::ControlModifier, {3}},
        {Qt::Key_Return, {}, {13}},
        {Qt::Key_Enter, Qt::KeypadModifier, {13}},
        {Qt::Key_Escape, {}, {27}},
        {Qt::Key_Backspace, {}, {8}},
        {Qt::Key_5, Qt::KeypadModifier, {'5'}},
        {Qt::Key_A, Qt::ShiftModifier, {'A'}},
        {Qt::Key_Left, {}, {}},
        {Qt::Key_Home, {}, {}},
        {Qt::Key_End, {}, {}},
        {Qt::Key_Delete, {}, {}},
        {Qt::Key_F1, {}, {}},
        {Qt::Key_Shift, Qt::ShiftModifier, {}},
        {Qt::Key_Insert, Qt::ShiftModifier, {}},
    };
    for (const auto& [key, modifiers, codes] : cases) {
        keys.clear();
        Press(form, key, modifiers);
        EXPECT_EQ(keys, codes) << "key " << std::hex << key;
    }
    keys.clear();
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(keys, std::vector<short>{});
    EXPECT_EQ(form.ActiveControl(), &other);
}

TEST_F(TextBoxes, TheFormSeesAKeyFirst)
{
    Begin();
    std::vector<std::string> order;
    form.KeyPress = [&](short& KeyAscii) {
        order.push_back("form " + std::to_string(KeyAscii));
        if (KeyAscii == 'a') KeyAscii = 'b';
        if (KeyAscii == 'z') KeyAscii = 0;
    };
    box.KeyPress = [&](short& KeyAscii) { order.push_back("box " + std::to_string(KeyAscii)); };

    Type(form, "a");
    EXPECT_EQ(order, std::vector<std::string>{"box 97"}) << "without preview the form is not asked";
    form.KeyPreview = true;
    order.clear();
    Type(form, "az");
    EXPECT_EQ(order, (std::vector<std::string>{"form 97", "box 98", "form 122"}));
    EXPECT_EQ(box.Text(), "ab");
    order.clear();
    Commit(box, "a");
    EXPECT_EQ(order, (std::vector<std::string>{"form 97", "box 98"}));
}

TEST_F(TextBoxes, PastingByKeyIsFilteredByItsCodeAlone)
{
    Begin();
    Paste(form, "abc"); // by Shift+Insert, which has no character
    EXPECT_EQ(keys, std::vector<short>{});
    EXPECT_EQ(box.Text(), "abc");
    Press(form, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "abcabc");
    box.KeyPress = [](short& KeyAscii) { KeyAscii = KeyAscii == 22 ? short{1} : KeyAscii; };
    Press(form, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "abcabc") << "the handler refused Ctrl+V";
}

TEST_F(TextBoxes, AKeyThatMovesTheFocusIsNotTypedTwice)
{
    Begin();
    box.Change = [&] { other.SetFocus(); };
    Type(form, "12");
    EXPECT_EQ(box.Text(), "1");
    EXPECT_EQ(other.Text(), "2");
}

TEST_F(TextBoxes, TheClickThatBringsTheFocusKeepsTheSelectionMadeThere)
{
    other.SetText("25");
    other.GotFocus = [&] { other.Select(0, 2); };
    Begin();
    Click(other);
    EXPECT_EQ(form.ActiveControl(), &other);
    EXPECT_EQ(other.SelLength(), 2);
    Click(other);
    EXPECT_EQ(other.SelLength(), 0) << "the next click sets the caret";
    Click(box);
    Type(form, "3");
    Press(form, Qt::Key_Tab);
    Type(form, "9");
    EXPECT_EQ(other.Text(), "9") << "the typed digit replaces what was selected";
}

TEST_F(TextBoxes, ADisabledBoxTakesNothingFromThePerson)
{
    box.SetEnabled(false);
    Begin();
    EXPECT_NE(form.ActiveControl(), &box);
    box.SetFocus();
    Click(box);
    EXPECT_NE(form.ActiveControl(), &box);
    EXPECT_FALSE(Drop(box, "12"));
    EXPECT_EQ(box.Text(), "");
}

}
}
