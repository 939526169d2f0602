#include "mainwindow/frmMain.h"

#include "services/GenericBas.h"

#include <utility>

namespace vellarno {

namespace {

/// What a balloon says. Where an option decides, the text of its ticked box stands second.
struct BalloonText
{
    const char* Title;
    const char* Body[2];
    enum { Nothing, WholeDay, Saturdays } Option;
};

constexpr const char* Weeks = "Indica il numero di settimane presenti nel periodo indicato";
constexpr const char* SaturdayCount = "Indica il numero di sabati presenti nel periodo indicato";
constexpr const char* SundayCount =
    "Indica il numero delle domeniche presenti nel periodo indicato";
constexpr const char* Hours =
    "Intervallo di tempo complessivo, espresso in ore,\r\ntra 'Inizio ' e  'Fine'";
constexpr const char* Minutes =
    "Intervallo di tempo complessivo, espresso in minuti,\r\ntra  'Inizio ' e  'Fine'";
constexpr const char* Seconds =
    "Intervallo di tempo complessivo, espresso in secondi,\r\ntra  'Inizio ' e  'Fine'";

constexpr BalloonText Texts[ResultLabels::TotalCount] = {
    {"Totale giorni",
     {"Indica il numero di giorni complessivi compresi tra\r\n"
      "la data 'Inizio' e la data 'Fine' esclusa",
      "Indica il numero di giorni complessivi compresi tra\r\n"
      "la data 'Inizio' e la data 'Fine' inclusa"},
     BalloonText::WholeDay},
    {"Totale settimane", {Weeks, Weeks}, BalloonText::Nothing},
    {"Totale giorni lavorativi",
     {"Giorni lavorativi (inclusi i sabati)\r\npresenti nel periodo indicato",
      "Giorni lavorativi (esclusi i sabati, le domeniche e i festivi)\r\n"
      "presenti nel periodo indicato"},
     BalloonText::Saturdays},
    {"Totale sabati", {SaturdayCount, SaturdayCount}, BalloonText::Nothing},
    {"Totale domeniche", {SundayCount, SundayCount}, BalloonText::Nothing},
    {"Totale festivi",
     {"Indica il numero dei giorni festivi (inclusi quelli coincidenti con il sabato)\r\n"
      "presenti nel periodo indicato",
      "Indica il numero dei giorni festivi (esclusi quelli coincidenti con il sabato)\r\n"
      "presenti nel periodo indicato"},
     BalloonText::Saturdays},
    {"Totale ore", {Hours, Hours}, BalloonText::Nothing},
    {"Totale minuti", {Minutes, Minutes}, BalloonText::Nothing},
    {"Totale secondi", {Seconds, Seconds}, BalloonText::Nothing},
};

}

const char* frmMain::MeaningOfTotal(int Index) const
{
    const BalloonText& text = Texts[Index];
    return text.Body[text.Option == BalloonText::WholeDay    ? chkDayInt.Value()
                     : text.Option == BalloonText::Saturdays ? chkWorkSat.Value()
                                                             : 0];
}

void frmMain::InitBalloons()
{
    BalloonTip.SetStyle(CTooltip::BalloonStyle);
    BalloonTip.SetIcon(CTooltip::InformationIcon);
    BalloonTip.SetDelayTime(20);
    DescribeTotals();
}

// A balloon comes to the mouse alone: a screen reader finds its text with the figure.
void frmMain::DescribeTotals()
{
    int index = 0;
    for (auto& total : lblTotali) total.SetAccessibleDescription(MeaningOfTotal(index++));
}

void frmMain::lblTotali_MouseMove(int Index)
{
    const auto at = static_cast<std::size_t>(Index);
    if (BalloonShown[at]) return;
    BalloonShown[at] = true;
    BalloonTip.SetTitle(Texts[at].Title);
    BalloonTip.SetTipText(MeaningOfTotal(Index));
    BalloonTip.Create(*this, OnTopFlag);
}

void frmMain::CloseBalloons()
{
    for (bool& shown : BalloonShown)
        if (std::exchange(shown, false)) BalloonTip.Destroy();
}

}
