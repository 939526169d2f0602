#include "tests/support/MainWindow.h"

using namespace vellarno::test;

struct Strip : Before<Mode::Times>
{
    std::string At(std::chrono::sys_seconds Moment)
    {
        StopClock(Moment);
        PassTick();
        std::string all;
        for (const int panel : {5, 6, 0, 1, 2, 3, 4}) all += picBarra[panel].PrintedText() + '|';
        return all;
    }
};

TEST_F(Strip, TellsTheDayTheTimeAndTheYearsFiguresOnceAnotherDayBegins)
{
    const std::pair<std::chrono::sys_seconds, const char*> rows[] = {
        {sys_days(2026y / 11 / 22) + 14h + 5min + 9s,
         " domenica  22 nov 2026|14.05.09|4°|46|5|326|39|"},
        {sys_days(2008y / 1 / 1), " martedì  01 gen 2008|00.00.00|1°|0|52|1|365|"},
        {sys_days(2008y / 1 / 7), " lunedì  07 gen 2008|00.00.00|1°|0|51|7|359|"},
        {sys_days(2005y / 12 / 31), " sabato  31 dic 2005|00.00.00|4°|52|0|365|0|"},
        {sys_days(2008y / 4 / 1), " martedì  01 apr 2008|00.00.00|2°|13|39|92|274|"},
        {sys_days(2150y / 7 / 2) + 12h, " giovedì  02 lug 2150|12.00.00|3°|26|26|183|182|"},
        {sys_days(2149y / 3 / 2) + 13h, " giovedì  02 lug 2150|13.00.00|3°|26|26|183|182|"}};
    for (const auto& [moment, texts] : rows) EXPECT_EQ(At(moment), texts);
}

TEST_F(Strip, ItsClockGoesOnByItself)
{
    ASSERT_TRUE(WaitUntil([&] { return picBarra[6].PrintedText() == "14.05.09"; }));
    const QImage before = Seen(picBarra[6]);
    StopClock(sys_days(2026y / 11 / 22) + 14h + 5min + 10s);
    bool late = false; // a longer timer can't overtake the clock's, however busy the machine is
    QTimer::singleShot(1000, &form, [&] { late = true; });
    ASSERT_TRUE(WaitUntil([&] { return late || picBarra[6].PrintedText() == "14.05.10"; }));
    EXPECT_FALSE(late);
    EXPECT_NE(Seen(picBarra[6]), before);
}

TEST_F(Strip, ItsPartsStandSideBySideWithTheirFiguresInTheMiddle)
{
    PassTick();
    std::string lefts;
    for (const auto* parts : {&picBarra, &picToolBarra})
        for (const auto& part : *parts) {
            lefts += std::to_string(part.Left()) + ' ';
            EXPECT_EQ(part.Top() + part.Height(), 19);
        }
    EXPECT_EQ(lefts, "201 236 271 306 341 1 143 401 451 426 376 ");
    EXPECT_EQ(CountPoints(Seen(picBarra[0]).copy(2, 2, 8, 15), forms::palette::Text), 0);
}
