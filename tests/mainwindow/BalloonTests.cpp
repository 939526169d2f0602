#include "tests/support/MainWindow.h"

using namespace vellarno::test;
using Balloons = Before<Mode::Moments>;

/// Bare panel and bare window, over which balloons close.
constexpr QPoint Panel(458, 210), Bare(476, 225);

struct Meaning
{
    int Total;
    bool WholeDay, SaturdaysOff;
    const char* Balloon;
};

constexpr Meaning Meanings[] = {
    {0, false, false,
     "Totale giorni: Indica il numero di giorni complessivi compresi tra\n"
     "la data 'Inizio' e la data 'Fine' esclusa"},
    {0, true, false,
     "Totale giorni: Indica il numero di giorni complessivi compresi tra\n"
     "la data 'Inizio' e la data 'Fine' inclusa"},
    {1, false, false,
     "Totale settimane: Indica il numero di settimane presenti nel periodo indicato"},
    {2, true, false,
     "Totale giorni lavorativi: Giorni lavorativi (inclusi i sabati)\n"
     "presenti nel periodo indicato"},
    {2, false, true,
     "Totale giorni lavorativi: Giorni lavorativi (esclusi i sabati, le domeniche e i festivi)\n"
     "presenti nel periodo indicato"},
    {3, false, true, "Totale sabati: Indica il numero di sabati presenti nel periodo indicato"},
    {4, true, true,
     "Totale domeniche: Indica il numero delle domeniche presenti nel periodo indicato"},
    {5, false, false,
     "Totale festivi: Indica il numero dei giorni festivi (inclusi quelli coincidenti con il "
     "sabato)\npresenti nel periodo indicato"},
    {5, true, true,
     "Totale festivi: Indica il numero dei giorni festivi (esclusi quelli coincidenti con il "
     "sabato)\npresenti nel periodo indicato"},
    {6, true, true,
     "Totale ore: Intervallo di tempo complessivo, espresso in ore,\ntra 'Inizio ' e  'Fine'"},
    {7, false, false,
     "Totale minuti: Intervallo di tempo complessivo, espresso in minuti,\n"
     "tra  'Inizio ' e  'Fine'"},
    {8, false, false,
     "Totale secondi: Intervallo di tempo complessivo, espresso in secondi,\n"
     "tra  'Inizio ' e  'Fine'"}};

TEST_F(Balloons, TellWhatATotalMeansUnderTheOptionsInForce)
{
    for (const auto& [total, wholeDay, saturdaysOff, balloon] : Meanings) {
        Choose(Mode::Dates);
        Tick(chkDayInt, wholeDay);
        Tick(chkWorkSat, saturdaysOff);
        Choose(Mode::Moments);
        Hover(lblTotali[total]);
        EXPECT_EQ(Balloon(), balloon);
        Hover(Bare);
        EXPECT_EQ(Balloon(), "");
    }
}

TEST_F(Balloons, OneReplacesAnotherAndComesAgainOnceTheBareWindowWasCrossed)
{
    Hover(lblTotali[0]);
    Hover(lblTotali[1]);
    Hover(lblTotali[0]);
    Hover(lblLabel[16]);
    EXPECT_TRUE(Balloon().starts_with("Totale settimane:"));
    for (const QPoint way : {Panel, Bare}) {
        Hover(way);
        EXPECT_EQ(Balloon(), "");
        Hover(lblTotali[0]);
        EXPECT_TRUE(Balloon().starts_with("Totale giorni:"));
    }
}

TEST_F(Balloons, ShowHeadingPictureTextAndStemAboveAPinnedWindowToo)
{
    Click(imgOnTop);
    Hover(lblTotali[6]);
    ASSERT_TRUE(WaitUntil([] { return Shown<forms::Balloon>().size() == 1; }));
    forms::Balloon& balloon = *Shown<forms::Balloon>()[0];
    EXPECT_TRUE(balloon.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const QImage whole = balloon.grab().toImage();
    const QColor outside = whole.pixelColor(whole.width() - 1, 0);
    const int top = whole.pixelColor(whole.width() / 2, 6) == outside ? 12 : 0; // of the body
    const QImage stem = whole.copy(0, top > 0 ? 0 : whole.height() - 12, whole.width(), 12);
    EXPECT_GT(CountPoints(stem, Qt::white), 20);
    EXPECT_LT(CountPoints(stem, Qt::white), whole.width() * 3);
    const QRect picture(10, 8, 16, 16), heading(32, 8, 80, 16),
        lines[] = {{10, 30, 200, 12}, {10, 43, 100, 12}};
    for (const QRect& area : {picture, heading, lines[0], lines[1]}) {
        const QImage part = whole.copy(area.translated(0, top));
        EXPECT_GT(part.width() * part.height() - CountPoints(part, Qt::white), 60) << area.y();
    }
}
