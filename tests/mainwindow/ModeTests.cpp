#include "tests/mainwindow/MainWindow.h"

#include <QTimer>

namespace vellarno::test {
namespace {

class Modes : public MainWindow
{
protected:
    template <class ControlClass>
    static std::string Usable(const Array<ControlClass>& Controls, int From, int To)
    {
        std::string all;
        for (int index = From; index <= To; ++index)
            if (Controls.Has(index)) all += Controls[index].Enabled() ? '1' : '0';
        return all;
    }

    /// All that a mode decides, a row for each kind of control.
    std::vector<std::string> Outcome() const
    {
        const Array<forms::Image> pictures(form, "imgTipoCalcolo");
        std::string shown;
        for (const auto& picture : pictures) shown += picture.Visible() ? '1' : '0';
        return {Usable(txtData, 0, 5) + ' ' + Texts(txtData),
                Usable(txtTime, 0, 5) + ' ' + Texts(txtTime),
                Usable(lblSeparatore, 0, 7),
                Usable(lblLabel, 0, 7) + ' ' + Usable(lblLabel, 10, 20),
                Usable(lblTotali, 0, 8),
                Usable(cmdNowData, 0, 1) + Usable(cmdNowTime, 0, 1),
                Usable(lblChekBox, 0, 1) + (chkDayInt.Enabled() ? '1' : '0') +
                    (chkWorkSat.Enabled() ? '1' : '0'),
                shown,
                std::to_string(imgBorder.Top()) + ' ' + std::to_string(imgBorder.Height()),
                Focus()};
    }

    const std::vector<std::string> expected[3] = {
        {"000000      ", "111111      ", "00001111", "11111111 00000000000", "000001111", "0011",
         "0000", "100", "115 107", "time 0"},
        {"111111      ", "111111      ", "11111111", "11111111 11111111111", "111111111", "1111",
         "0101", "010", "10 207", "data 0"},
        {"111111      ", "000000 00 00 00 00 00 00", "00000000", "00000000 11111111111",
         "111111000", "1100", "1111", "001", "10 107", "data 0"}};
};

TEST_F(Modes, TheWindowOpensSilentlyForTimes)
{
    auto atStart = expected[Times];
    atStart[4] = "000000111"; // the total of holidays waits for the first switch
    EXPECT_EQ(Outcome(), atStart);
    EXPECT_EQ(form.Caption(), "Vellarno 2.0");
    EXPECT_TRUE(desktop.Log.empty());
    EXPECT_FALSE(picCalendario.Visible());
    EXPECT_EQ(form.ScaleWidth(), 480);
    EXPECT_EQ(form.ScaleHeight(), 312);
}

TEST_F(Modes, EachFromEachOther)
{
    for (const int from : {Times, Moments, Dates})
        for (const int to : {Times, Moments, Dates}) {
            if (from == to) continue;
            Choose(from);
            desktop.Sounds.clear();
            Choose(to);
            EXPECT_EQ(Outcome(), expected[to]) << from << " to " << to;
            EXPECT_EQ(desktop.Sounds, std::vector<int>{202});
            EXPECT_TRUE(ResultsEmpty());
        }
}

TEST_F(Modes, ASwitchOverAFilledFormBeepsForEachDateBoxAndTheFirstTimeBox)
{
    struct Case
    {
        int From, To, Beeps;
    };
    for (const Case& c : {Case{Moments, Dates, 7}, Case{Moments, Times, 7}, Case{Dates, Times, 6},
                          Case{Dates, Moments, 6}, Case{Times, Dates, 1}}) {
        Choose(c.From);
        if (c.From != Times) EnterDates("01012005", "31122005");
        if (c.From != Dates) EnterTimes("080000", "090000");
        Click(cmdCalcola);
        desktop.Log.clear();
        EXPECT_EQ(BeepsOf([&] { Choose(c.To); }), c.Beeps) << c.From << " to " << c.To;
        ASSERT_EQ(desktop.Log.size(), static_cast<std::size_t>(c.Beeps + 1));
        EXPECT_EQ(desktop.Log.back(), "sound 202");
        EXPECT_EQ(Outcome(), expected[c.To]);
        EXPECT_TRUE(ResultsEmpty());
    }
}

TEST_F(Modes, TickedBoxesSurviveAndTheHoursOfAWholeDayReturn)
{
    Choose(Dates);
    Click(chkDayInt);
    Click(chkWorkSat);
    EXPECT_EQ(Texts(txtTime), "00 00 00 24 00 00");
    Choose(Times);
    EXPECT_EQ(chkDayInt.Value() + chkWorkSat.Value(), 2);
    EXPECT_EQ(Texts(txtTime), "     ");
    Choose(Dates);
    EXPECT_EQ(Texts(txtTime), "00 00 00 24 00 00");
    EXPECT_EQ(lblTotali[3].ForeColor(), forms::PureRed);
    EnterDates("05032005", "05032005");
    Click(cmdCalcola);
    EXPECT_EQ(Captions(lblTotali, 0, 5), "01 00 00 01 00 00");

    // Whole days mean nothing where times are compared as well.
    Choose(Moments);
    EnterDates("05032005", "05032005");
    EnterTimes("080000", "080000");
    Click(cmdCalcola);
    EXPECT_EQ(lblTotali[0].Caption(), "00");
}

TEST_F(Modes, TheOptionThatIsChosenAlreadyKeepsTheData)
{
    EnterTimes("080000", "090000");
    Choose(Times);
    EXPECT_EQ(Texts(txtTime), "08 00 00 09 00 00");
    EXPECT_TRUE(desktop.Log.empty());
    EXPECT_FALSE(lblTotali[5].Enabled());
}

TEST_F(Modes, AnotherModeChosenWhileTheSoundServesEventsWins)
{
    for (const int first : {Times, Moments, Dates})
        for (const int second : {Times, Moments, Dates}) {
            if (first == second) continue;
            const int before = 3 - first - second;
            Choose(before);
            QTimer::singleShot(0, &form, [&] { Choose(second); });
            Choose(first);
            EXPECT_EQ(Outcome(), expected[second]) << before << first << second;
        }
}

}
}
