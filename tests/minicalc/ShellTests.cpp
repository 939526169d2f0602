#include "tests/support/Layout.h"
#include "tests/support/SumsWindow.h"

using namespace vellarno::test;

struct Shell : testing::Test, SumsWindow
{};

constexpr LayoutRow Controls[] = {
    {"Image2 Image3 Image4 Image5", ":/pictures/sums.png|:/pictures/mode-time.png|"
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
    {"optFormat_0", "hh:mm:ss", "Consente di inserire i valori nel formato normale"},
    {"optFormat_1", "hh:mmm:sss", "consente di inserire valori superiori ai 60 minuti e/o secondi"},
    {"optTipoDati_0", "Giorni", "Consente di sommare o sottrarre dei giorni dalla data iniziale"},
    {"optTipoDati_1", "Settimane", "Consente di sommare o sottrarre delle settimane dalla"},
    {"optTipoDati_2", "Mesi", "Consente di sommare o sottrarre dei mesi dalla data iniziale"},
    {"optTipoDati_3", "Trimestri", "Consente di sommare o sottrarre dei trimestri dalla"}};

TEST_F(Shell, EachControlShowsAndTellsItsOwn)
{
    EXPECT_EQ(form.windowTitle(), "Calcoli tra tempo e tra date");
    EXPECT_EQ(form.size(), QSize(480, 260));
    ExpectLayout(form, 16, Controls);
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
    Click(optBase[Time]);
    EXPECT_EQ(Times(), "00:00:00 00:00:00");
    EXPECT_EQ(Focus(), "txtCalc_3");
    EXPECT_TRUE(picBase[Time].Visible() && !picBase[Date].Visible());
    TakeLog();
    Click(optBase[Date]);
    EXPECT_EQ(Dates(), "22/11/2026 000 mesi");
    EXPECT_EQ(Focus(), "txtSommaDati");
    EXPECT_TRUE(picBase[Date].Visible() && !picBase[Time].Visible());
    EXPECT_EQ(TakeLog(), "sound 202");
}

TEST_F(Shell, TheHelpFollowsTheChoicesAndHasRoom)
{
    const std::pair<const forms::OptionButton&, const char*> rows[] = {
        {optFormat[1], "superiore a 60"},    {optBase[1], "Digitare i giorni"},
        {optTipoDati[1], "le settimane"},    {optTipoDati[2], "i mesi"},
        {optTipoDati[3], "i trimestri che"}, {optBase[0], "superiore a 60"}}; // as it was left
    for (const auto& [choice, text] : rows) {
        Click(choice);
        EXPECT_NE(lblHelpTxt.Caption().find(text), std::string::npos) << lblHelpTxt.Caption();
        EXPECT_LE(lblHelpTxt.heightForWidth(lblHelpTxt.width()), lblHelpTxt.height());
    }
}

TEST_F(Shell, AnotherChoiceMadeWhileTheSoundServesEventsWins)
{
    for (const auto* choices : {&optSomma, &optFormat, &optBase}) {
        Soon([this, choices] { Click((*choices)[0]); });
        Click((*choices)[1]);
    }
    EXPECT_EQ(lblTime[3].Caption() + lblTime[1].Caption(), "Sommahh  :  mm  :  ss");
    EXPECT_TRUE(picBase[0].Visible() && !picBase[1].Visible());
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

TEST(Sums, FadeInUntilTheyAreOpaqueOrClosed)
{
    for (const bool closed : {false, true}) {
        World world;
        world.IsComposited = true;
        frmMiniCalc form;
        double opacity = 1;
        QTimer::singleShot(0, &form, [&] {
            opacity = form.windowOpacity();
            if (closed) form.Close();
        });
        form.Show();
        EXPECT_LT(opacity, 0.1);
        EXPECT_EQ(form.isVisible(), !closed);
        EXPECT_EQ(form.windowOpacity() == 1, !closed);
    }
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
