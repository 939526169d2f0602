#include "tests/mainwindow/MainWindow.h"

namespace vellarno::test {
namespace {

class Fields : public MainWindow
{
protected:
    /// Types; a '\b' is the backspace key.
    void Keys(const std::string& Text)
    {
        for (const char key : Text)
            key == '\b' ? Press(form, Qt::Key_Backspace) : Type(form, std::string(1, key));
    }

    /// Shows a result that the next change of a field has to clear.
    void Calculate()
    {
        EnterDates("01012005", "31122005");
        Click(cmdCalcola);
        ASSERT_FALSE(ResultsEmpty());
    }
};

TEST_F(Fields, Typed)
{
    struct Case
    {
        int Mode, Box;
        const char *Keys, *Text, *Focus;
        int Beeps;
    };
    for (const Case& c : {
             Case{Dates, 0, "31", "31", "data 1", 0},
             Case{Dates, 0, "32", "", "data 0", 2},
             Case{Dates, 0, "00", "", "data 0", 2},
             Case{Dates, 0, "0", "0", "data 0", 0},
             Case{Dates, 0, "a+ 1-", "1", "data 0", 0},
             Case{Dates, 0, "1\b", "", "data 0", 1},
             Case{Dates, 1, "12", "12", "data 2", 0},
             Case{Dates, 1, "13", "", "data 1", 2},
             Case{Dates, 1, "00", "", "data 1", 2},
             Case{Dates, 2, "2101", "", "data 2", 2},
             Case{Dates, 2, "2100", "2100", "data 3", 0},
             Case{Dates, 2, "0000", "0000", "data 3", 0},
             Case{Dates, 4, "07", "07", "data 5", 0},
             Case{Dates, 5, "2100", "2100", "data 5", 0},
             Case{Times, 0, "23", "23", "time 1", 0},
             Case{Times, 0, "24", "", "time 0", 2},
             Case{Times, 0, "00", "00", "time 1", 0},
             Case{Times, 1, "60", "", "time 1", 2},
             Case{Times, 1, "5\b", "", "time 1", 1},
             Case{Times, 2, "59", "59", "time 3", 0},
             Case{Times, 3, "24", "", "time 3", 2},
             Case{Times, 5, "123", "", "time 5", 2},
             Case{Times, 5, "0059", "0059", "time 5", 0},
         }) {
        Choose(Moments);
        Choose(c.Mode);
        auto& box = (c.Mode == Dates ? txtData : txtTime)[c.Box];
        box.SetFocus();
        EXPECT_EQ(BeepsOf([&] { Keys(c.Keys); }), c.Beeps) << c.Focus << ' ' << c.Keys;
        EXPECT_EQ(box.Text(), c.Text) << c.Focus << ' ' << c.Keys;
        EXPECT_EQ(Focus(), c.Focus) << c.Keys;
        EXPECT_EQ(BeepsOf([&] { box.SetText(box.Text()); }), 0); // an equal text is no change
    }
}

TEST_F(Fields, ArrivalAndDepartureFillALoneDigit)
{
    Choose(Dates);
    Type(form, "5");
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(txtData[0].Text(), "05");
    EXPECT_EQ(Focus(), "data 1");
    Type(form, "3");
    Press(form, Qt::Key_Backtab, Qt::ShiftModifier); // a month that was filled leads to the year
    EXPECT_EQ(txtData[1].Text(), "03");
    EXPECT_EQ(Focus(), "data 2");
    Type(form, "0");
    Click(cmdCalcola);
    EXPECT_EQ(txtData[2].Text(), "00");

    Choose(Times);
    Choose(Dates);
    Type(form, "5");
    Click(txtData[2]); // only the month fills the day
    EXPECT_EQ(txtData[0].Text(), "5");
    EXPECT_EQ(Focus(), "data 2");
    txtData[0].SetText("0");
    EXPECT_EQ(BeepsOf([&] { Click(txtData[1]); }), 2);
    EXPECT_EQ(txtData[0].Text(), "");
    Type(form, "4");
    Click(cmdCalcola); // the click counts, the focus goes to the year all the same
    EXPECT_EQ(txtData[1].Text(), "04");
    EXPECT_EQ(Focus(), "data 2");
    EXPECT_EQ(desktop.Messages.size(), 2u);
}

TEST_F(Fields, DepartureFillsATimeInEveryDirection)
{
    Type(form, "7");
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(txtTime[0].Text(), "07");
    EXPECT_EQ(Focus(), "time 1");
    Type(form, "8");
    Press(form, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(txtTime[1].Text(), "08");
    EXPECT_EQ(Focus(), "time 2");
    Click(txtTime[5]);
    Type(form, "9");
    Click(txtTime[0]);
    EXPECT_EQ(txtTime[5].Text(), "09");
    EXPECT_EQ(Focus(), "time 0");
}

TEST_F(Fields, TextThatComesPastTheKeys)
{
    Choose(Dates);
    struct Case
    {
        const char *Text, *Left;
        int Beeps;
    };
    for (const Case& c : {Case{"7", "7", 0}, Case{"-1", "", 2}, Case{"1,", "", 2},
                          Case{"45", "", 2}, Case{"¹²", "", 2}, Case{"2\n", "", 2}}) {
        const auto paste = [&] { Paste(form, c.Text); };
        const auto drop = [&] { Drop(txtData[0], c.Text); };
        const auto middle = [&] { PasteByMiddleButton(txtData[0], c.Text); };
        for (const std::function<void()>& way : {std::function<void()>(paste), {drop}, {middle}}) {
            txtData[0].SetText("");
            txtData[0].SetFocus();
            const int beeps = BeepsOf(way);
            if (beeps == 0 && txtData[0].Text().empty()) continue; // no such way on this desktop
            EXPECT_EQ(beeps, c.Beeps) << c.Text;
            EXPECT_EQ(txtData[0].Text(), c.Left) << c.Text;
        }
    }
    txtData[0].SetText("");
    EXPECT_EQ(BeepsOf([&] { Commit(txtData[0], "a1b"); }), 0);
    EXPECT_EQ(txtData[0].Text(), "1");
    EXPECT_EQ(Texts(txtTime), "00 00 00 00 00 00");
}

TEST_F(Fields, CommandKeysTypeNothing)
{
    EnterTimes("112233", "");
    Click(txtTime[1]);
    for (const auto modifier : {Qt::AltModifier, Qt::MetaModifier, Qt::ControlModifier})
        for (const auto key : {Qt::Key_K, Qt::Key_5, Qt::Key_V, Qt::Key_Backspace}) {
            EXPECT_EQ(BeepsOf([&] { Press(form, key, modifier); }), 0) << key;
            EXPECT_EQ(txtTime[1].Text(), "22") << key;
        }
}

TEST_F(Fields, EveryChangeClearsTheResults)
{
    Choose(Dates);
    const std::function<void()> changes[] = {[&] { Enter(txtData[0], "2"); },
                                             [&] { txtData[5].SetText("2006"); },
                                             [&] {
                                                 txtData[3].SetFocus();
                                                 Press(form, Qt::Key_Backspace);
                                             },
                                             [&] { txtTime[3].SetText("24"); }};
    for (const auto& change : changes) {
        Calculate();
        change();
        EXPECT_TRUE(ResultsEmpty());
    }
    EXPECT_EQ(txtTime[3].Text(), "24");
    Calculate();
    Press(form, Qt::Key_Tab);
    txtData[0].SetText(txtData[0].Text());
    EXPECT_FALSE(ResultsEmpty());
}

}
}
