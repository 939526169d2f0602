#include "tests/mainwindow/MainWindow.h"

#include <QApplication>

namespace vellarno::test {
namespace {

class Calculation : public MainWindow
{
protected:
    std::string Elapsed(int From, int To) const { return Captions(lblDati, From, To); }
    std::string Totals(int From, int To) const { return Captions(lblTotali, From, To); }
};

TEST_F(Calculation, TwoTimesTypedInARow)
{
    SetNow(2026, 12, 31, 23, 59, 59); // the day after is in another year
    struct Case
    {
        const char *Digits, *Figures;
    };
    for (const Case& c :
         {Case{"081530104540", "02 30 10 02 150 9.010"},
          Case{"230000010000", "02 00 00 02 120 7.200"}, Case{"100000100000", "00 00 00 00 00 00"},
          Case{"000001000000", "23 59 59 23 1.439 86.399"}}) {
        Enter(txtTime[0], c.Digits);
        EXPECT_EQ(Focus(), "time 5");
        Press(form, Qt::Key_Return); // moves on and calculates nothing
        Settle();
        EXPECT_TRUE(ResultsEmpty());
        Press(form, Qt::Key_Return); // presses the button
        EXPECT_EQ(Elapsed(3, 5) + ' ' + Totals(6, 8), c.Figures);
        EXPECT_EQ(Elapsed(0, 2) + Totals(0, 5) + Captions(lblWeekDay, 0, 1), "        ");
    }
}

TEST_F(Calculation, TwoDatesInEitherOrder)
{
    Choose(Dates);
    struct Case
    {
        const char *Start, *End, *Figures, *Weekdays;
    };
    for (const Case& c :
         {Case{"01012005", "31122005", "00 11 30 364 52 303 52 52 09", "Sabato Sabato"},
          Case{"31122005", "03012005", "00 11 28 362 51 303 51 51 08", "Sabato Lunedì"},
          Case{"03012005", "31122005", "00 11 28 362 51 303 51 51 08", "Lunedì Sabato"},
          Case{"01011000", "31122100", "1.100 11 30 402.131 57.447 334.157 57.447 57.447 10.527",
               "Mercoledì Venerdì"}}) {
        EnterDates(c.Start, c.End);
        Click(cmdCalcola);
        EXPECT_EQ(Elapsed(0, 2) + ' ' + Totals(0, 5), c.Figures) << c.Start;
        EXPECT_EQ(Captions(lblWeekDay, 0, 1), c.Weekdays);
        EXPECT_EQ(Elapsed(3, 5) + Totals(6, 8), "    ");
        EXPECT_EQ(QApplication::overrideCursor(), nullptr); // no hourglass is left
    }
}

TEST_F(Calculation, TheOptionsRecalculateAtOnce)
{
    Choose(Dates);
    EnterDates("31122005", "01012005");
    Click(chkDayInt);
    EXPECT_EQ(Elapsed(0, 2), "01 00 00");
    EXPECT_EQ(Totals(0, 5), "365 52 304 53 52 09");
    Click(chkWorkSat);
    EXPECT_EQ(Totals(0, 5), "365 52 252 53 52 08");
    EXPECT_EQ(lblTotali[3].ForeColor(), forms::PureRed);
    EXPECT_EQ(lblLabel[18].ForeColor(), forms::PureRed);
    Click(lblChekBox[1]);
    EXPECT_EQ(Totals(0, 5), "365 52 304 53 52 09");
    EXPECT_EQ(lblTotali[3].ForeColor(), forms::Black);
    EXPECT_EQ(lblLabel[18].ForeColor(), forms::Black);

    txtData[5].SetText("");
    for (auto* box : {&chkDayInt, &chkWorkSat}) {
        Click(*box);
        EXPECT_TRUE(ResultsEmpty());
    }
    EXPECT_TRUE(desktop.Messages.empty());
}

TEST_F(Calculation, TwoMoments)
{
    struct Case
    {
        const char *StartDate, *StartTime, *EndDate, *EndTime, *Elapsed, *Totals;
    };
    // Each row would show another figure if one rule about the last day were left out.
    for (const Case& c :
         {Case{"10032005", "060000", "12032005", "180000", "00 00 02 12 00 00",
               "02 00 02 00 00 00 60 3.600 216.000"},
          Case{"10032005", "180000", "12032005", "060000", "00 00 01 12 00 00",
               "01 00 00 00 00 00 36 2.160 129.600"},
          Case{"12032005", "060000", "10032005", "200000", "00 00 01 10 00 00",
               "01 00 00 00 00 00 34 2.040 122.400"},
          Case{"10032005", "180000", "10032005", "060000", "00 00 00 12 00 00",
               "00 00 00 00 00 00 12 720 43.200"},
          Case{"10032005", "060000", "12032005", "120000", "00 00 02 06 00 00",
               "02 00 03 01 00 00 54 3.240 194.400"},
          Case{"10032004", "060000", "10032005", "120000", "01 00 00 06 00 00", nullptr},
          Case{"05051000", "000000", "05052100", "000000", "1.100 00 00 00 00 00", nullptr}}) {
        Choose(Times);
        Choose(Moments);
        EnterDates(c.StartDate, c.EndDate);
        EnterTimes(c.StartTime, c.EndTime);
        Click(cmdCalcola);
        EXPECT_EQ(Elapsed(0, 5), c.Elapsed) << c.StartDate << ' ' << c.EndDate;
        if (c.Totals) {
            EXPECT_EQ(Totals(0, 8), c.Totals) << c.StartDate << ' ' << c.EndDate;
        }
    }
    EXPECT_EQ(lblTotali[8].Caption(), "34.712.668.800");
    EXPECT_TRUE(desktop.Messages.empty());
}

TEST_F(Calculation, OneEmptyFieldIsToldAndNothingElseChanges)
{
    for (const int mode : {Times, Moments, Dates}) {
        Choose(mode);
        if (mode != Times) EnterDates("01012005", "31122005");
        if (mode != Dates) EnterTimes("080000", "090000");
        (mode == Dates ? txtData : txtTime)[2].SetText("");
        desktop.Messages.clear();
        Click(cmdCalcola);
        ASSERT_EQ(desktop.Messages.size(), 1u);
        EXPECT_TRUE(ResultsEmpty());
    }
    EXPECT_EQ(desktop.Messages[0].Prompt,
              "      - Impossibile eseguire il calcolo: dati incompleti -  \r\n"
              "Verificare di aver inserito le date e/o le ore dove richiesto\r\ne riprovare.");
    EXPECT_EQ(desktop.Messages[0].Style, forms::Information);
    EXPECT_EQ(desktop.Messages[0].Title, "Vellarno");
}

TEST_F(Calculation, DatesThatTheCalendarDoesNotHaveAreRefused)
{
    const std::string date =
        " è stata immessa una data non valida!\r\nVerificare i dati e riprovare.";
    const std::string year =
        " è stata immesso un anno non valido!\r\nVerificare i dati e riprovare.";
    struct Case
    {
        const char *Start, *End;
        std::string Message;
    };
    Choose(Dates);
    for (const Case& c : {Case{"31042009", "31062009", "Nella casella 'Data inizio'" + date},
                          Case{"30042009", "31062009", "Nella casella 'Data fine'" + date},
                          Case{"29022009", "01012009", "Nella casella 'Data inizio'" + date},
                          Case{"29022008", "01010999", "Nella casella 'Data fine'" + year},
                          Case{"01010999", "31062009", "Nella casella 'Data inizio'" + year},
                          Case{"29022008", "01011000", ""}}) {
        EnterDates(c.Start, c.End);
        const std::string typed = Texts(txtData);
        desktop.Messages.clear();
        desktop.Beeps = 0;
        Click(cmdCalcola);
        EXPECT_EQ(desktop.Messages.empty() ? "" : desktop.Messages[0].Prompt, c.Message);
        EXPECT_LE(desktop.Messages.size(), 1u);
        EXPECT_EQ(ResultsEmpty(), !c.Message.empty());
        EXPECT_EQ(Texts(txtData), typed);
        EXPECT_EQ(desktop.Beeps, 0);
    }
}

}
}
