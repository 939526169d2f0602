#include "tests/support/Layout.h"
#include "tests/support/SumsWindow.h"

using namespace vellarno::test;

struct Shell : testing::Test, SumsWindow
{};

TEST_F(Shell, EachControlShowsAndTellsItsOwn)
{
    EXPECT_EQ(form.Caption(), "Calcoli tra tempo e tra date");
    EXPECT_EQ(form.size(), QSize(480, 260));
    ExpectLayout(
        form,
        {{"Image2 Image3 Image4 Image5", ":/pictures/sums.png|:/pictures/mode-time.png|"
                                         ":/pictures/mode-date.png|:/pictures/decoration.png"},
         {"lblTitoloHelp", "SOMME E SOTTRAZIONI TRA ORE MINUTI E SECONDI"},
         {"lblHelpTxt", "Digitare ore, minuti e secondi che si vogliono sommare o sottrarre "
                        "all'orario iniziale,\n e premere il pulsante uguale"},
         {"optBase_0", "Tempo", "Esegue calcoli tra unità di tempo"},
         {"optBase_1", "Data", "Esegue calcoli tra date e giorni"},
         {"cmdClear", "Reset", "Reimposta 'Inizio / progressivo\" al valore iniziale"},
         {"cmdChiudi", "Chiudi"},
         {"lblTime_0 lblTime_1", "hh  :  mm  :  ss"},
         {"lblTime_2 lblTime_6", "inizio / progressivo"},
         {"lblTime_3 lblTime_4 lblTime_5 lblTime_7", "Somma|gg / mm / aaaa|giorni|Somma"},
         {"txtCalc_0 txtCalc_1 txtCalc_2 txtData_0 txtData_1", "00", "", 2},
         {"txtCalc_3", "00", "ore da sommare o sottrarre", 2},
         {"txtCalc_4", "00", "minuti da sommare o sottrarre", 2},
         {"txtCalc_5", "00", "secondi da sommare o sottrarre", 2},
         {"txtData_2", "0000", "", 4},
         {"txtSommaDati", "0000", "giorni da sommare o sottrarre", 4},
         {"lblSeparatore_0 lblSeparatore_1", "/"},
         {"lblSeparatore_4 lblSeparatore_5 lblSeparatore_6 lblSeparatore_7", ":"},
         {"imgFreccia_0 imgFreccia_1 imgFreccia_2 imgFreccia_3", ":/pictures/arrow-right.png"},
         {"Image1_0 Image1_1 Image1_5 Image1_4",
          ":/pictures/plus.png|:/pictures/minus.png|:/pictures/plus.png|:/pictures/minus.png"},
         {"optSomma_0 optSommaData_0", "", "somma al valore precedente quello successivo"},
         {"optSomma_1 optSommaData_1", "", "sottrae al valore precedente quello successivo"},
         {"cmdSommaOre cmdSommaData", "=", "Esegue il calcolo"},
         {"optFormat_0", "hh:mm:ss",
          "Consente di inserire i valori nel formato normale (max 60 minuti e/o secondi)"},
         {"optFormat_1", "hh:mmm:sss",
          "consente di inserire valori superiori ai 60 minuti e/o secondi"},
         {"optTipoDati_0", "Giorni",
          "Consente di sommare o sottrarre dei giorni dalla data iniziale"},
         {"optTipoDati_1", "Settimane",
          "Consente di sommare o sottrarre delle settimane dalla data iniziale"},
         {"optTipoDati_2", "Mesi", "Consente di sommare o sottrarre dei mesi dalla data iniziale"},
         {"optTipoDati_3", "Trimestri",
          "Consente di sommare o sottrarre dei trimestri dalla data iniziale"}});
}

TEST_F(Shell, TabGoesRoundOnEachSide)
{
    EXPECT_EQ(TabOrder(*this), "txtCalc_3 txtCalc_4 txtCalc_5 cmdSommaOre optSomma_0 txtCalc_0 "
                               "txtCalc_1 txtCalc_2 optBase_0 cmdClear cmdChiudi optFormat_0");
    Click(optBase[Date]);
    EXPECT_EQ(TabOrder(*this), "txtSommaDati cmdSommaData txtData_0 txtData_1 txtData_2 "
                               "optSommaData_0 optBase_1 cmdClear cmdChiudi optTipoDati_0");
}

TEST_F(Shell, EachSideBeginsFromItsZeroAndKeepsItsChoices)
{
    Click(optBase[Date]);
    Click(optTipoDati[2]);
    for (const int side : {0, 1}) {
        TakeLog();
        Click(optBase[side]);
        EXPECT_EQ(picBase[0].Visible(), side == 0);
        EXPECT_EQ(picBase[1].Visible(), side == 1);
        EXPECT_EQ(side == 0 ? Times() : Dates(),
                  side == 0 ? "00:00:00 00:00:00" : "22/11/2026 000 mesi");
        EXPECT_EQ(Focus(), side == 0 ? "txtCalc_3" : "txtSommaDati");
        EXPECT_EQ(TakeLog(), "sound 202");
        Type("010203");
    }
}

TEST_F(Shell, PlusAndMinusChooseTheOperationOnTheSideOnScreen)
{
    for (const int side : {0, 1}) {
        if (side == 1) Click(optBase[1]);
        const std::string fields = Times() + Dates();
        TakeLog();
        Type("--");
        EXPECT_EQ(TakeLog(), "sound 202") << "chosen already by the second";
        EXPECT_EQ(lblTime[side == 0 ? 3 : 7].Caption(), "Sottrai");
        EXPECT_TRUE((side == 0 ? optSomma : optSommaData)[1].Value());
        Type("+");
        EXPECT_EQ(lblTime[side == 0 ? 3 : 7].Caption(), "Somma");
        EXPECT_EQ(Times() + Dates(), fields);
    }
}

TEST_F(Shell, TheHelpFollowsTheChoicesAndHasRoom)
{
    const std::pair<const forms::OptionButton&, std::string> rows[] = {
        {optFormat[1], "SECONDI|Digitare ore, minuti e secondi (minuti e secondi anche in numero "
                       "superiore a 60) che si vogliono sommare o sottrarre all'orario iniziale, "
                       "e premere il pulsante uguale"},
        {optBase[1], "MESI / TRIMESTRI|Digitare i giorni che si vogliono sommare o sottrarre alla "
                     "data iniziale,\ne premere il pulsante uguale"},
        {optTipoDati[1], "MESI / TRIMESTRI|Digitare le settimane che si vogliono sommare o "
                         "sottrarre alla data iniziale,\n e premere il pulsante uguale"},
        {optTipoDati[2], "MESI / TRIMESTRI|Digitare i mesi che si vogliono sommare o sottrarre "
                         "alla data iniziale,\n e premere il pulsante uguale"},
        {optTipoDati[3], "MESI / TRIMESTRI|Digitare i trimestri che si vogliono sommare o "
                         "sottrarre alla data iniziale,\n e premere il pulsante uguale"}};
    for (const auto& [choice, text] : rows) {
        Click(choice);
        const std::string shown = lblTitoloHelp.Caption() + '|' + lblHelpTxt.Caption();
        EXPECT_TRUE(shown.ends_with(text)) << shown;
        EXPECT_LE(lblHelpTxt.heightForWidth(lblHelpTxt.width()), lblHelpTxt.height());
    }
    Click(optBase[0]);
    EXPECT_NE(lblHelpTxt.Caption().find("superiore a 60"), std::string::npos) << "as it was left";
}

TEST_F(Shell, TheLegendOfTheValueStandsUnderItsDigits)
{
    for (const int format : {0, 1}) {
        Click(optFormat[format]);
        const QString text = lblTime[1].text();
        const auto width = [&](qsizetype end) {
            return lblTime[1].fontMetrics().horizontalAdvance(text.left(end));
        };
        const double left = lblTime[1].geometry().center().x() - width(text.size()) / 2.0;
        for (const int part : {0, 1, 2}) {
            const QChar letter = u"hms"[part];
            const double letters =
                left + (width(text.indexOf(letter)) + width(text.lastIndexOf(letter) + 1)) / 2.0;
            EXPECT_NEAR(Spot(txtCalc[3 + part]).At.x() - picBase[0].Left(), letters, 2);
        }
    }
}

TEST_F(Shell, AnotherChoiceMadeWhileTheSoundServesEventsWins)
{
    for (const auto* choices : {&optSomma, &optFormat, &optBase}) {
        Soon([this, choices] { Click((*choices)[0]); });
        Click((*choices)[1]);
    }
    EXPECT_EQ(lblTime[3].Caption() + lblTime[1].Caption(), "Sommahh  :  mm  :  ss");
    EXPECT_TRUE(picBase[0].Visible() && lblTitoloHelp.Caption().ends_with("MINUTI E SECONDI"));
    Soon([this] { form.Close(); });
    Click(optBase[1]);
    EXPECT_EQ(OpenWindows(), "") << "it may be closed meanwhile";
}

TEST_F(Shell, ItsButtonAndEscapeCloseIt)
{
    Click(cmdChiudi);
    EXPECT_EQ(OpenWindows(), "");
    SumsWindow another;
    another.Press(Qt::Key_Escape);
    EXPECT_EQ(OpenWindows(), "");
}
