#include "tests/mainwindow/MainWindow.h"

namespace vellarno::test {
namespace {

class Strip : public MainWindow
{
protected:
    /// Texts of the panels from left to right.
    std::string Panels() const
    {
        std::string all;
        for (const int index : {5, 6, 0, 1, 2, 3, 4}) all += picBarra[index].PrintedText() + '|';
        return all;
    }

    Array<forms::PictureBox> picBarra{form, "picBarra"};
    Array<forms::PictureBox> picToolBarra{form, "picToolBarra"};
};

TEST_F(Strip, PanelsStandInTheirPartsAndAreEmptyAtFirst)
{
    struct Case
    {
        forms::PictureBox& Box;
        int Left, Width;
    };
    for (const Case& c : {Case{picBarra[5], 0, 142}, Case{picBarra[6], 142, 58},
                          Case{picBarra[0], 200, 35}, Case{picBarra[4], 340, 35},
                          Case{picToolBarra[3], 375, 25}, Case{picToolBarra[0], 400, 25},
                          Case{picToolBarra[2], 425, 25}, Case{picToolBarra[1], 450, 30}}) {
        EXPECT_EQ(c.Box.Left(), c.Left + 1);
        EXPECT_EQ(c.Box.Width(), c.Width - 4);
    }
    EXPECT_EQ(Panels(), "|||||||");
    EXPECT_EQ(picBarra[0].ToolTipText(), "");
}

TEST_F(Strip, FiguresOfTheYear)
{
    struct Case
    {
        int Year, Month, Day;
        const char* Panels;
    };
    // Each day differs from the one before in its number, so that each is a new day.
    for (const Case& c : {Case{2026, 11, 22, " domenica  22 nov 2026|00.00.00|4°|46|5|326|39|"},
                          Case{2008, 1, 1, " martedì  01 gen 2008|00.00.00|1°|0|52|1|365|"},
                          Case{2005, 12, 31, " sabato  31 dic 2005|00.00.00|4°|52|0|365|0|"},
                          Case{2008, 4, 1, " martedì  01 apr 2008|00.00.00|2°|13|39|92|274|"},
                          Case{2004, 12, 31, " venerdì  31 dic 2004|00.00.00|4°|52|0|366|0|"}}) {
        SetNow(c.Year, c.Month, c.Day);
        ASSERT_TRUE(WaitUntil([&] { return Panels() == c.Panels; })) << Panels();
    }
    SetNow(2005, 10, 31); // the same number again: the day goes on unnoticed
    Wait(900);
    EXPECT_EQ(picBarra[5].PrintedText(), " venerdì  31 dic 2004");
    EXPECT_EQ(picBarra[1].ToolTipText(), "Settimane trascorse da inizio anno");
    EXPECT_EQ(picBarra[4].AccessibleName(), "Giorni mancanti a fine anno: 0");
    EXPECT_EQ(picBarra[6].AccessibleName(), "Ora: 00.00.00");
    EXPECT_EQ(picBarra[5].AccessibleName(), "Data di oggi: venerdì  31 dic 2004");
}

}
}
