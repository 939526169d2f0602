#include "tests/support/MainWindow.h"

#include <QAction>
#include <QClipboard>

using namespace vellarno::test;
using TimeCalculation = Before<Mode::Times>;
using DateCalculation = Before<Mode::Dates>;
using MomentCalculation = Before<Mode::Moments>;

struct Comparison
{
    std::string Start, End, Figures;
    bool WholeDay = false, SaturdaysOff = false;
};

TEST_F(TimeCalculation, TakesAnEndBeforeTheStartForTheNextDays)
{
    const Comparison rows[] = {
        {"081530", "104540", "- - - 02 30 10|- - - - - - 02 150 9.010|- -"},
        {"000001", "000000", "- - - 23 59 59|- - - - - - 23 1.439 86.399|- -"},
        {"100000", "100000", "- - - 00 00 00|- - - - - - 00 00 00|- -"}};
    for (const auto& [start, end, figures, wholeDay, saturdaysOff] : rows) {
        Compare({}, start + end);
        EXPECT_EQ(Figures(), figures) << start;
    }
}

TEST_F(DateCalculation, IsTheSameInEitherOrder)
{
    const Comparison rows[] = {
        {"01012005", "31122005", "00 11 30 - - -|364 52 303 52 52 09 - - -|"},
        {"01012005", "31122005", "00 11 30 - - -|364 52 252 52 52 08 - - -|", false, true},
        {"01012005", "31122005", "01 00 00 - - -|365 52 252 53 52 08 - - -|", true, true},
        {"05032005", "05032005", "00 00 00 - - -|00 00 00 00 00 00 - - -|"},
        {"31032005", "01032006", "00 11 00 - - -|335 48 "}, // February lends too few days
        {"01011000", "31122100",
         "1.100 11 30 - - -|402.131 57.447 334.157 57.447 57.447 10.527 - - -|"}};
    for (const auto& [start, end, figures, wholeDay, saturdaysOff] : rows)
        for (const bool reversed : {false, true}) {
            Tick(chkDayInt, wholeDay);
            Tick(chkWorkSat, saturdaysOff);
            Compare(reversed ? end + start : start + end);
            EXPECT_TRUE(Figures().starts_with(figures)) << start << ' ' << Figures();
        }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the hourglass has gone";
}

TEST_F(MomentCalculation, CountsWholeDaysAndTheClockOfTheRest)
{
    const Comparison rows[] = {
        // from evening to morning no day has passed, but the Friday is walked
        {"1003200511032005", "180000060000",
         "00 00 00 12 00 00|00 00 01 00 00 00 12 720 43.200|Giovedì Venerdì"},
        // noon of an even day belongs to it, of an odd one to the next
        {"1003200511032005", "060000120000",
         "00 00 01 06 00 00|01 00 01 00 00 00 30 1.800 108.000|Giovedì Venerdì"},
        {"1003200512032005", "060000120000",
         "00 00 02 06 00 00|02 00 03 01 00 00 54 3.240 194.400|Giovedì Sabato"},
        // the last evening counts for the day after it
        {"3112210031122100", "180000200000",
         "00 00 00 02 00 00|00 00 00 00 00 00 02 120 7.200|Venerdì Venerdì"}};
    for (const auto& [dates, times, figures, wholeDay, saturdaysOff] : rows) {
        Compare(dates, times);
        EXPECT_EQ(Figures(), figures) << dates << ' ' << times;
    }
}

TEST_F(MomentCalculation, RefusesAnyEmptyField)
{
    for (const auto* boxes : {&txtTime, &txtData})
        for (auto& box : *boxes) {
            EnterDates("0101200531122005");
            EnterTimes("080000090000");
            box.SetText("");
            TakeLog();
            Click(cmdCalcola);
            EXPECT_TRUE(TakeLog().starts_with("message 64 Vellarno:       - Impossibile eseguire"));
            EXPECT_FALSE(HasResults()) << box.objectName().toStdString();
        }
}

TEST_F(MomentCalculation, AllThatIsOnScreenIsCopied)
{
    const auto copied = [] { return QGuiApplication::clipboard()->text().toStdString(); };
    Compare("1003200512032005", "060000120000");
    Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(copied().starts_with("Inizio: Giovedì\nFine: Sabato\nanni: 00\nmesi: 00\n"));
    EXPECT_TRUE(copied().ends_with("\nfestivi: 00\ntotale ore: 54\ntotale minuti: 3.240\n"
                                   "totale secondi: 194.400\n"));
    lblTotali[8].Widget().actions().at(0)->trigger();
    EXPECT_EQ(copied(), "194.400");
}

TEST_F(DateCalculation, RefusesADateThatIsNoneOrBefore1000WhichStays)
{
    const std::pair<std::string, std::string> rows[] = {
        {"3004200931062009", "'Data fine' è stata immessa una data non valida!"},
        {"2902099931062009", "'Data inizio' è stata immessa una data non valida!"},
        {"0101099931062009", "'Data inizio' è stata immesso un anno non valido!"},
        {"2902200801010999", "'Data fine' è stata immesso un anno non valido!"}};
    for (const auto& [typed, fault] : rows) {
        Compare(typed);
        EXPECT_EQ(TakeLog(), "message 64 Vellarno: Nella casella " + fault +
                                 "\r\nVerificare i dati e riprovare.");
        EXPECT_EQ(txtData[0].Text(), typed.substr(0, 2));
        EXPECT_FALSE(HasResults());
    }
}
