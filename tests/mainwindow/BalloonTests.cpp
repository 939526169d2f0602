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
    const char* plain[] = {
        "Totale giorni|Indica il numero di giorni complessivi compresi tra\n"
        "la data 'Inizio' e la data 'Fine' esclusa",
        "Totale settimane|Indica il numero di settimane presenti nel periodo indicato",
        "Totale giorni lavorativi|Giorni lavorativi (inclusi i sabati)\n"
        "presenti nel periodo indicato",
        "Totale sabati|Indica il numero di sabati presenti nel periodo indicato",
        "Totale domeniche|Indica il numero delle domeniche presenti nel periodo indicato",
        "Totale festivi|Indica il numero dei giorni festivi (inclusi quelli coincidenti con il "
        "sabato)\npresenti nel periodo indicato",
        "Totale ore|Intervallo di tempo complessivo, espresso in ore,\ntra 'Inizio ' e  'Fine'",
        "Totale minuti|Intervallo di tempo complessivo, espresso in minuti,\n"
        "tra  'Inizio ' e  'Fine'",
        "Totale secondi|Intervallo di tempo complessivo, espresso in secondi,\n"
        "tra  'Inizio ' e  'Fine'"};
    const std::string ticked[] = {
        "Totale giorni|Indica il numero di giorni complessivi compresi tra\n"
        "la data 'Inizio' e la data 'Fine' inclusa",
        plain[1],
        "Totale giorni lavorativi|Giorni lavorativi (esclusi i sabati, le domeniche e i festivi)\n"
        "presenti nel periodo indicato",
        plain[3],
        plain[4],
        "Totale festivi|Indica il numero dei giorni festivi (esclusi quelli coincidenti con il "
        "sabato)\npresenti nel periodo indicato",
        plain[6],
        plain[7],
        plain[8]};
    Choose(Moments);
    for (int index = 0; index < 9; ++index) {
        MoveTo(lblTotali[index]);
        EXPECT_EQ(Balloon(), plain[index]);
        Leave();
        EXPECT_EQ(Balloon(), "");
    }
    Choose(Dates);
    Click(chkDayInt);
    Click(chkWorkSat);
    Choose(Moments);
    for (int index = 0; index < 9; ++index) {
        MoveTo(lblTotali[index]);
        EXPECT_EQ(Balloon(), ticked[index]);
        Leave();
    }
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

TEST_F(Balloons, OpensSoonAndTakesNoFocus)
{
    txtTime[0].SetFocus();
    MoveTo(lblTotali[6]);
    EXPECT_TRUE(WaitUntil([&] {
        const auto balloons = form.findChildren<forms::Balloon*>();
        return !balloons.isEmpty() && balloons[0]->isVisible();
    }));
    EXPECT_EQ(Focus(), "time 0");
    Type(form, "12");
    EXPECT_EQ(txtTime[0].Text(), "12");
}

}
}
