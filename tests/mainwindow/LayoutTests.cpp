#include "tests/support/Layout.h"
#include "tests/support/MainWindow.h"

using namespace vellarno::test;
using Layout = Before<Mode::Times>;

constexpr LayoutRow Controls[] = {
    {"lblLabel_10 lblLabel_11", "Inizio (gg mm aaaa)|Fine (gg mm aaaa)"},
    {"lblLabel_0 lblLabel_1", "Inzio  (hh mm ss)|Fine   (hh mm ss)"},
    {"txtData_0 txtData_1 txtData_3 txtData_4", "", "", 2},
    {"txtTime_0 txtTime_1 txtTime_3 txtTime_4", "", "", 2},
    {"txtData_2 txtData_5 txtTime_2 txtTime_5", "", "", 4},
    {"lblSeparatore_0 lblSeparatore_1 lblSeparatore_2 lblSeparatore_3", "/"},
    {"lblSeparatore_4 lblSeparatore_5 lblSeparatore_6 lblSeparatore_7", ":"},
    {"cmdNowData_0 cmdNowData_1", ":/pictures/calendar.png", "Scegli la data dal calendario"},
    {"cmdNowTime_0 cmdNowTime_1", ":/pictures/clock.png", "Imposta l'ora corrente"},
    {"lblLabel_12 lblLabel_13 lblLabel_14 lblLabel_3 lblLabel_4 lblLabel_5",
     "anni|mesi|giorni|ore|minuti|secondi"},
    {"lblLabel_15 lblLabel_16 lblLabel_17 lblLabel_18 lblLabel_19 lblLabel_20",
     "giorni|settimane|lavorativi|sabati|domeniche|festivi"},
    {"lblLabel_2 lblLabel_6 lblLabel_7", "totale ore|totale minuti|totale secondi"},
    {"lblDati_3", "", "Totale ore tra 'Inizio ' e 'Fine'"},
    {"lblDati_4", "", "Totale minuti tra 'Inizio ' e 'Fine'"},
    {"lblDati_5", "", "Totale secondi tra 'Inizio ' e 'Fine'"},
    {"lblChekBox_0 lblChekBox_1",
     "Calcola la data 'Fine' come giorno intero|Calcola il sabato come festivo"},
    {"imgTipoCalcolo_0 imgTipoCalcolo_1 imgTipoCalcolo_2",
     ":/pictures/mode-time.png|:/pictures/mode-moment.png|:/pictures/mode-date.png"},
    {"optDataTime_0", "Ora", "Consente di eseguire calcoli con il tempo (ore, minuti e secondi)"},
    {"optDataTime_1", "Data+Ora", "Consente di eseguire calcoli tra date e  tempo"},
    {"optDataTime_2", "Data", "Consente di eseguire calcoli tra date"},
    {"Image3", ":/pictures/decoration.png"},
    {"cmdCalcola", "Calcola", "Esegue il calcolo in base ai dati digitati"},
    {"imgOnTop", ":/pictures/pin-off.png", "Consente di mantenere la finestra attiva sempre"},
    {"picToolBarra_0", ":/pictures/settings-clock.png", "Modifica data e/o ora di sistema"},
    {"picToolBarra_1", ":/pictures/about.png", "Informazioni sul programma"},
    {"picToolBarra_2", ":/pictures/help.png", "Guida all'utilizzo del programma"},
    {"picToolBarra_3", ":/pictures/calculator-sum.png", "Visualizza una sezione"},
    {"picBarra_0", "", "Trimestre corrente"},
    {"picBarra_1", "", "Settimane trascorse da inizio anno"},
    {"picBarra_2", "", "Settimane mancanti a fine anno"},
    {"picBarra_3", "", "Giorni trascorsi da inizio anno"},
    {"picBarra_4", "", "Giorni mancanti a fine anno"},
    {"picCalendario txtCalMeseAnno", ":/pictures/calendar-sheet.png| NOV 2026"},
    {"gsett_0 gsett_1 gsett_2 gsett_3 gsett_4 gsett_5 gsett_6", "L|M|M|G|V|S|D"}};

TEST_F(Layout, EachControlShowsAndTellsItsOwn)
{
    PassTick();
    ExpectLayout(form, 4 + 2 + 3 + 1 + 1 + 4 + 42 + 1, Controls); // buttons to icons, days, months
}

TEST_F(Layout, TabGoesRoundWhatTheModeUses)
{
    Choose(Mode::Moments);
    EXPECT_EQ(TabOrder(*this),
              "txtData_0 txtData_1 txtData_2 txtData_3 txtData_4 txtData_5 txtTime_0 txtTime_1 "
              "txtTime_2 txtTime_3 txtTime_4 txtTime_5 cmdCalcola optDataTime_1 cmdNowData_0 "
              "cmdNowData_1 cmdNowTime_0 cmdNowTime_1 chkWorkSat imgOnTop picToolBarra_3 "
              "picToolBarra_0 picToolBarra_2 picToolBarra_1");
}

TEST_F(Layout, PicturesAndGroundsShowWhatCanBeUsed)
{
    const std::initializer_list<const forms::Control*> controls = {
        &txtData[0],    &lblLabel[15], &lblTotali[0],  &lblDati[0],    &imgTipoCalcolo[0],
        &cmdNowData[0], &chkDayInt,    &lblChekBox[0], &cmdNowTime[0], &imgBorder};
    for (const forms::Control* each : controls) {
        Choose(Mode::Times);
        form.setFocus();
        const QImage off = Seen(*each);
        Choose(Mode::Dates);
        form.setFocus();
        EXPECT_NE(Seen(*each), off) << each->Widget().objectName().toStdString();
    }
    EXPECT_NE(Seen(cmdNowData[1]), Seen(cmdNowTime[1]));
}

TEST_F(Layout, EntriesPinAndIconsShowThatTheyHaveTheKeyboard)
{
    const auto& entry = Find<forms::PictureBox>(form, "PicData_3");
    const std::pair<const forms::Control&, const forms::Control&> rows[] = {
        {txtTime[4], entry}, {imgOnTop, imgOnTop}, {picToolBarra[3], picToolBarra[3]}};
    for (const auto& [control, edged] : rows) {
        const int before = CountPoints(Seen(edged), forms::palette::Accent);
        control.Widget().setFocus();
        EXPECT_GT(CountPoints(Seen(edged), forms::palette::Accent), before + 20);
    }
}
