#include "tests/support/MainWindow.h"
#include "tests/support/PlainCalendar.h"

#include <cstdlib>

using namespace vellarno::test;

struct Calendar : Before<Mode::Dates>
{
    void OpenFor(int Entry)
    {
        cmdNowData[Entry].SetFocus();
        Press(Qt::Key_Space);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, {}, QString(), true);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &held);
        ASSERT_TRUE(CalendarIsOpen()) << "and the key that opens it takes no day";
    }
    void OpenOn(int Mese, int Anno)
    {
        txtData[1].SetText(std::to_string(Mese));
        txtData[2].SetText(std::to_string(Anno));
        OpenFor(0);
    }
    std::string After(Qt::Key Arrow)
    {
        hscDataScroll.SetFocus();
        Press(Arrow);
        return MonthOnShow();
    }
};

/// A sample; all 13,212 months with VELLARNO_EVERY_MONTH in the environment.
TEST_F(Calendar, ShowsTheDaysOfAMonthWithSundaysAndHolidaysInRed)
{
    const int stride = std::getenv("VELLARNO_EVERY_MONTH") ? 1 : 61;
    for (int count = 1000 * 12; count < 2101 * 12; count += stride) {
        const int month = count % 12 + 1, year = count / 12;
        OpenOn(month, year);
        const PlainDay first = *PlainDayOf(1, month, year);
        int day = -(first.Weekday + 5) % 7; // the days before the first in its week
        for (const auto& cell : GIORNO) {
            SCOPED_TRACE(cell.objectName().toStdString() + MonthOnShow());
            ASSERT_EQ(cell.Enabled(), ++day >= 1 && day <= PlainMonthLength(year, month));
            if (!cell.Enabled()) continue;
            const PlainDay& judged = PlainDayOf(first.Serial + day - 1);
            const bool red = judged.Weekday == 1 || judged.IsListed();
            ASSERT_EQ(cell.Caption(), std::to_string(day));
            ASSERT_EQ(cell.ForeColor(), red ? forms::PureRed : forms::ButtonText);
            ASSERT_EQ(cell.FontBold(), red);
        }
    }
}

TEST_F(Calendar, OpensOnTheMonthOfItsEntryElseOnTodaysAndStepsUpToItsLimits)
{
    const struct
    {
        std::string Month, Year, Shown;
        Qt::Key Arrow;
        std::string Stepped;
    } rows[] = {{"03", "2021", " MAR 2021", Qt::Key_Left, " FEB 2021"},
                {"1", "2005", " GEN 2005", Qt::Key_Left, " DIC 2004"},
                {"12", "2005", " DIC 2005", Qt::Key_Right, " GEN 2006"},
                {"12", "2100", " DIC 2100", Qt::Key_Right, " GEN 2100"},
                {"1", "1900", " GEN 1900", Qt::Key_Left, " DIC 1900"},
                {"12", "999", " NOV 2026", Qt::Key_Right, " DIC 2026"},
                {"", "2021", " NOV 2026", Qt::Key_Left, " OTT 2026"}};
    for (const int entry : {0, 1})
        for (const auto& [month, year, shown, arrow, stepped] : rows) {
            txtData[entry * 3 + 1].SetText(month);
            txtData[entry * 3 + 2].SetText(year);
            OpenFor(entry);
            EXPECT_EQ(MonthOnShow(), shown);
            EXPECT_EQ(picCalendario.pos(), QPoint(12, entry == 0 ? 51 : 101));
            EXPECT_EQ(shpShadow.geometry(), picCalendario.geometry().translated(5, 5));
            EXPECT_GT(cmdNowData[0].Left(), shpShadow.geometry().right()) << "stands clear";
            EXPECT_EQ(After(arrow), stepped);
            TakeLog();
        }
}

TEST_F(Calendar, TheWheelAndASwipeStepWhereverThePanelLies)
{
    OpenOn(3, 2021);
    for (const Spot place : {Spot(hscDataScroll), Spot(txtCalMeseAnno), Spot(GIORNO[1]),
                             Spot(GIORNO[20]), Spot(Find<forms::Label>(form, "gsett_0"))})
        for (const QPoint back : {QPoint(0, 120), QPoint(120, 0), QPoint(120, -30)}) {
            Wheel(place, back);
            EXPECT_EQ(MonthOnShow(), " FEB 2021") << place.At.x() << ' ' << back.x();
            Wheel(place, -back);
            EXPECT_EQ(MonthOnShow(), " MAR 2021") << place.At.x() << ' ' << back.x();
        }
}

TEST_F(Calendar, TodayIsMarkedBehindItsNumberInItsOwnMonthAlone)
{
    StopClock(sys_days(2026y / 11 / 30) + 10h);
    const auto marked = [&](const forms::Control& in) {
        return CountPoints(Seen(in), QColor(169, 196, 239), 0);
    };
    OpenOn(11, 2026);
    EXPECT_GT(marked(GIORNO[36]), 100);
    EXPECT_LT(marked(GIORNO[35]) + marked(GIORNO[37]), 60);
    EXPECT_GT(CountPoints(Seen(GIORNO[36]), forms::palette::Text), 5) << "the number";
    After(Qt::Key_Right);
    EXPECT_EQ(marked(picCalendario), 0) << "nor where it fills the next month's first week";
}

TEST_F(Calendar, APressedDayIsGreyWhileTheButtonIsDown)
{
    OpenOn(3, 2021);
    const auto ground = [&] { return Seen(GIORNO[5]).pixelColor(3, 3); };
    const QColor before = ground();
    MouseDown(GIORNO[5]);
    EXPECT_NE(ground(), before);
    MouseUp(QPoint(300, 220));
    EXPECT_EQ(ground(), before);
    EXPECT_TRUE(CalendarIsOpen()) << "let go elsewhere, no day is taken";
}

TEST_F(Calendar, ADayPickedIsWrittenIntoItsEntryWithTheMonthOnShow)
{
    OpenOn(2, 2021);
    After(Qt::Key_Right);
    Click(GIORNO[33]);
    EXPECT_TRUE(CalendarIsOpen()) << "the next month's days can't be picked";
    for (int again = 0; again < 2; ++again) { // also the day that stands there already
        Click(GIORNO[5]);
        EXPECT_EQ(Dates(), "05/03/2021 __/__/____");
        EXPECT_TRUE(CalendarIsClosed());
        EXPECT_EQ(Focus(), "picOption");
        OpenFor(0);
    }
}

TEST_F(Calendar, OpeningItClearsTheResults)
{
    Compare("0503202101042021");
    EXPECT_TRUE(HasResults());
    OpenFor(1);
    EXPECT_FALSE(HasResults());
    DoubleClick(GIORNO[22]);
    EXPECT_EQ(Dates(), "05/03/2021 19/04/2021");
    EXPECT_EQ(Focus(), "picOption") << "what lay under the day was not clicked";
}

TEST_F(Calendar, KeysMoveAMarkOverTheDaysAndTakeOne)
{
    const struct
    {
        std::string Typed;
        std::vector<Qt::Key> Keys;
        std::string Taken;
    } rows[] = {{"31012021", {Qt::Key_PageDown, Qt::Key_Return}, "28/02/2021"},
                {"28022021", {Qt::Key_Right, Qt::Key_Down, Qt::Key_Enter}, "08/03/2021"},
                {"15032021", {Qt::Key_PageUp, Qt::Key_End, Qt::Key_Space}, "28/02/2021"},
                {"15012021", {Qt::Key_Home, Qt::Key_Left, Qt::Key_Up, Qt::Key_Space}, "24/12/2020"},
                {"31122100", {Qt::Key_Right, Qt::Key_Space}, "01/01/2100"}};
    for (const auto& [typed, keys, taken] : rows) {
        EnterDates(typed);
        OpenFor(0);
        for (const auto key : keys) Press(key);
        EXPECT_TRUE(CalendarIsClosed());
        EXPECT_EQ(Dates().substr(0, 10), taken) << typed;
        EXPECT_EQ(Focus(), "picOption");
    }
}

TEST_F(Calendar, TheMarkIsSeenWhileTheKeysMoveIt)
{
    const auto points = [&](int cell) {
        return CountPoints(Seen(GIORNO[cell]), forms::palette::Accent);
    };
    OpenOn(3, 2021); // no day typed, and not today's month: on the first
    EXPECT_GT(points(1), points(2) + 20);
    Press(Qt::Key_Right);
    EXPECT_GT(points(2), points(1) + 20);
    Click(txtCalMeseAnno);
    EXPECT_EQ(Focus(), "hscDataScroll");
    EXPECT_LT(points(2), 20);
}

TEST_F(Calendar, IsClosedByWhatNeedsItsPlaceAndByNothingElse)
{
    Choose(Mode::Moments);
    const std::function<void()> acts[] = {
        [&] { txtTime[2].SetFocus(); },   [&] { cmdNowTime[1].click(); },
        [&] { txtData[4].SetText("7"); }, [&] { txtData[0].SetText("7"); },
        [&] { Click(cmdCalcola); },       [&] { Choose(Mode::Dates); },
        [&] { Click(picToolBarra[0]); }};
    for (const auto& act : acts) {
        OpenFor(1);
        act();
        EXPECT_TRUE(CalendarIsClosed()) << &act - acts;
    }
    TakeLog();
    OpenFor(1);
    Press(Qt::Key_Escape);
    Click(QPoint(300, 218));
    PassTick();
    EXPECT_TRUE(CalendarIsOpen());
}

TEST_F(Calendar, TheLeftButtonAlonePressesAnArrow)
{
    OpenOn(3, 2021);
    const Spot arrow =
        hscDataScroll.geometry().translated(picCalendario.pos()).topLeft() + QPoint(6, 8);
    hscDataScroll.SetFocus();
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
        const QImage before = Seen(hscDataScroll);
        MouseDown(arrow, button);
        EXPECT_EQ(Seen(hscDataScroll), before);
        EXPECT_FALSE(QApplication::activePopupWidget());
        Click(arrow);
        MouseUp(arrow, button);
    }
    EXPECT_EQ(MonthOnShow(), " GEN 2021") << "also with another button down";
}
