#include "tests/mainwindow/MainWindow.h"

#include "services/forms/Balloon.h"

namespace vellarno::test {
namespace {

class Balloons : public MainWindow
{
protected:
    /// Title and text of the balloon, open or about to open, or nothing. Never more than one.
    std::string Balloon() const
    {
        Settle();
        const auto balloons = form.findChildren<forms::Balloon*>();
        EXPECT_LE(balloons.size(), 1);
        return balloons.isEmpty() ? "" : balloons[0]->Title() + "|" + balloons[0]->Text();
    }

    void Leave() { MoveTo(form, 476, 225); }
};

TEST_F(Balloons, TextsFollowTheOptions)
{
    const auto texts = [&] {
        std::string all;
        for (const int index : {0, 2, 5}) {
            MoveTo(lblTotali[index]);
            all += Balloon() + '\n';
            Leave();
            EXPECT_EQ(Balloon(), "");
        }
        return all;
    };
    Choose(Moments);
    EXPECT_EQ(texts(), "Totale giorni|Indica il numero di giorni complessivi compresi tra\n"
                       "la data 'Inizio' e la data 'Fine' esclusa\n"
                       "Totale giorni lavorativi|Giorni lavorativi (inclusi i sabati)\n"
                       "presenti nel periodo indicato\n"
                       "Totale festivi|Indica il numero dei giorni festivi (inclusi quelli "
                       "coincidenti con il sabato)\npresenti nel periodo indicato\n");
    chkDayInt.SetValue(1); // ticked in the mode of dates, it counts here as well
    Click(chkWorkSat);
    EXPECT_EQ(texts(), "Totale giorni|Indica il numero di giorni complessivi compresi tra\n"
                       "la data 'Inizio' e la data 'Fine' inclusa\n"
                       "Totale giorni lavorativi|Giorni lavorativi (esclusi i sabati, le "
                       "domeniche e i festivi)\npresenti nel periodo indicato\n"
                       "Totale festivi|Indica il numero dei giorni festivi (esclusi quelli "
                       "coincidenti con il sabato)\npresenti nel periodo indicato\n");
}

TEST_F(Balloons, OnlyOverTotalsThatTheModeUses)
{
    const auto opening = [&] {
        std::string all;
        for (int index = 0; index < 9; ++index) {
            Leave();
            MoveTo(lblTotali[index]);
            all += Balloon().empty() ? '0' : '1';
        }
        Leave();
        return all;
    };
    EXPECT_EQ(opening(), "000000111");
    Choose(Dates);
    EXPECT_EQ(opening(), "111111000");
    Choose(Times);
    EXPECT_EQ(opening(), "000001111");
}

TEST_F(Balloons, AMarkStandsUntilThePointerCrossesTheWindowOrThePanel)
{
    Choose(Moments);
    MoveTo(lblTotali[0]);
    MoveTo(lblTotali[1]);
    EXPECT_EQ(Balloon().substr(0, 16), "Totale settimane");
    MoveTo(lblTotali[0]);
    EXPECT_EQ(Balloon().substr(0, 16), "Totale settimane");
    MoveTo(lblLabel[16]);
    MoveTo(cmdCalcola);
    EXPECT_EQ(Balloon().substr(0, 16), "Totale settimane");
    MoveTo(form, imgBorder.Left() + 450, imgBorder.Top() + 200);
    EXPECT_EQ(Balloon(), "");
    MoveTo(lblTotali[0]);
    EXPECT_EQ(Balloon().substr(0, 13), "Totale giorni");
    Choose(Times); // a total that can't be used any more belongs to what lies behind it
    MoveTo(lblTotali[0]);
    EXPECT_EQ(Balloon(), "");
}

}
}
