#include "tests/support/MainWindow.h"

using namespace vellarno::test;
using Balloons = Before<Mode::Moments>;

struct Meaning
{
    int Total;
    bool WholeDay, SaturdaysOff;
    const char* Heading;
    const char* Tells; ///< by these words, among others
};

constexpr Meaning Meanings[] = {
    {0, false, false, "Totale giorni", "la data 'Inizio' e la data 'Fine' esclusa"},
    {0, true, false, "Totale giorni", "la data 'Inizio' e la data 'Fine' inclusa"},
    {1, true, true, "Totale settimane", "numero di settimane presenti nel periodo"},
    {2, true, false, "Totale giorni lavorativi", "(inclusi i sabati)\npresenti nel periodo"},
    {2, false, true, "Totale giorni lavorativi", "(esclusi i sabati, le domeniche e i festivi)"},
    {3, false, true, "Totale sabati", "numero di sabati presenti nel periodo indicato"},
    {4, true, true, "Totale domeniche", "numero delle domeniche presenti nel periodo indicato"},
    {5, true, false, "Totale festivi", "(inclusi quelli coincidenti con il sabato)\npresenti nel"},
    {5, false, true, "Totale festivi", "(esclusi quelli coincidenti con il sabato)\npresenti nel"},
    {6, true, true, "Totale ore", "complessivo, espresso in ore,\ntra 'Inizio ' e  'Fine'"},
    {7, true, true, "Totale minuti", "complessivo, espresso in minuti,\ntra  'Inizio ' e  'Fine'"},
    {8, true, true, "Totale secondi", "espresso in secondi,\ntra  'Inizio ' e  'Fine'"}};

TEST_F(Balloons, TellWhatATotalMeansUnderTheOptionsInForce)
{
    for (const auto& [total, wholeDay, saturdaysOff, heading, tells] : Meanings) {
        Choose(Mode::Dates);
        Tick(chkDayInt, wholeDay);
        Tick(chkWorkSat, saturdaysOff);
        Choose(Mode::Moments);
        Hover(lblTotali[(total + 1) % ResultLabels::TotalCount]); // whose balloon goes
        Hover(lblTotali[total]);
        EXPECT_TRUE(Balloon().starts_with(std::string(heading) + ": ")) << Balloon();
        EXPECT_NE(Balloon().find(tells), std::string::npos) << Balloon();
        Hover(total < 6 ? QPoint(458, 210) : QPoint(476, 225)); // panel or bare window
        EXPECT_EQ(Balloon(), "");
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
    const QImage stem = whole.copy(0, 0, whole.width(), 12);
    EXPECT_GT(CountPoints(stem, Qt::white), 20);
    EXPECT_LT(CountPoints(stem, Qt::white), whole.width() * 3);
    EXPECT_GT(CountPoints(whole.copy(10, 20, 16, 16), forms::palette::Accent), 60);
    for (const QRect& text : {QRect(32, 20, 80, 16), QRect(10, 42, 200, 12), QRect(10, 55, 99, 12)})
        EXPECT_GT(CountPoints(whole.copy(text), forms::palette::Text), 30);
}
