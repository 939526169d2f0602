#include "tests/support/MainWindow.h"

using namespace vellarno::test;

/// Which elements can be used, a digit for each.
static std::string Usable(const auto& Of)
{
    std::string all;
    for (const auto& control : Of) all += control.Enabled() ? '1' : '0';
    return all + ' ';
}

struct Outcome
{
    /// Dates, times; separators, captions 0 to 7 and 10 to 20, totals; buttons of the calendar and
    /// of the clock; the captions of the boxes, which can be used like them.
    const char* Usable;
    int PanelTop, PanelHeight;
    const char* Times;
    const char* Focus;
};

constexpr Outcome Outcomes[] = {{"000000 111111 00001111 1111111100000000000 000001111 00 11 00 ",
                                 115, 107, "__:__:__ __:__:__", "txtTime_0"},
                                {"111111 111111 11111111 1111111111111111111 111111111 11 11 01 ",
                                 10, 207, "__:__:__ __:__:__", "txtData_0"},
                                {"111111 000000 00000000 0000000011111111111 111111000 11 00 11 ",
                                 10, 107, "00:00:00 00:00:00", "txtData_0"}};

constexpr Mode AllModes[] = {Mode::Times, Mode::Moments, Mode::Dates};

struct Modes : Before<Mode::Times>
{
    std::string Usables() const
    {
        EXPECT_EQ(chkDayInt.Enabled(), lblChekBox[0].Enabled());
        EXPECT_EQ(chkWorkSat.Enabled(), lblChekBox[1].Enabled());
        return Usable(txtData) + Usable(txtTime) + Usable(lblSeparatore) + Usable(lblLabel) +
               Usable(lblTotali) + Usable(cmdNowData) + Usable(cmdNowTime) + Usable(lblChekBox);
    }
    void ExpectOutcome(Mode Of)
    {
        const auto& [usable, top, height, times, focus] = Outcomes[static_cast<int>(Of)];
        EXPECT_EQ(Usables(), usable);
        for (const int mode : {0, 1, 2})
            EXPECT_EQ(imgTipoCalcolo[mode].Visible(), mode == static_cast<int>(Of));
        EXPECT_EQ(imgBorder.geometry(), QRect(8, top, 464, height));
        EXPECT_EQ(Dates(), "__/__/____ __/__/____");
        EXPECT_EQ(Times(), times);
        EXPECT_EQ(Focus(), focus);
        EXPECT_FALSE(HasResults());
    }
    void Fill(Mode Of)
    {
        Compare(Of == Mode::Times ? "" : "0101200531122005",
                Of == Mode::Dates ? "" : "080000090000");
        ASSERT_TRUE(HasResults());
        TakeLog();
    }
};

TEST_F(Modes, TheWindowOpensSilentlyInThatOfTimesButForTheHolidays)
{
    EXPECT_EQ(Usables(), "000000 111111 00001111 1111111100000000000 000000111 00 11 00 ");
    lblTotali[5].SetEnabled(true);
    ExpectOutcome(Mode::Times);
    EXPECT_EQ(form.windowTitle(), "Vellarno 2.0");
    EXPECT_EQ(form.size(), QSize(480, 312));
}

TEST_F(Modes, ASwitchEmptiesTheFieldsAndEnablesWhatTheModeUses)
{
    for (const Mode from : AllModes)
        for (const Mode to : AllModes) {
            SCOPED_TRACE(testing::Message() << int(from) << " to " << int(to));
            Choose(from);
            Fill(from);
            Choose(from);
            EXPECT_TRUE(HasResults()) << "chosen already";
            if (from == to) continue;
            Choose(to);
            ExpectOutcome(to);
            EXPECT_EQ(QString::fromStdString(TakeLog()).count("sound 202"), 1);
        }
}

TEST_F(Modes, AnotherOneChosenWhileTheSoundServesEventsWinsWhole)
{
    for (const Mode before : AllModes)
        for (const Mode first : AllModes)
            for (const Mode last : AllModes) {
                Choose(before);
                if (first == before || last == first) continue;
                Soon([this, last] { Choose(last); });
                Choose(first);
                ExpectOutcome(last);
            }
}

TEST_F(Modes, ABoxRecalculatesCompleteDataAtOnce)
{
    for (const Mode mode : {Mode::Moments, Mode::Dates}) {
        Choose(mode);
        Fill(mode);
        for (const bool off : {true, false}) {
            Tick(chkWorkSat, off);
            EXPECT_NE(Figures().find(off ? " 252 52 52 08" : " 303 52 52 09"), std::string::npos)
                << Figures();
            for (const int total : {0, 1, 2, 3, 4, 5}) // saturdays, sundays, holidays last
                for (const auto* label : {&lblTotali[total], &lblLabel[15 + total]})
                    EXPECT_EQ(CountPoints(Seen(*label), Qt::red) > 3, total > (off ? 2 : 3));
            EXPECT_EQ(TakeLog(), "sound 202");
        }
    }
}

TEST_F(Modes, TheBoxOfTheWholeDayStaysTickedMeanwhile)
{
    Choose(Mode::Dates);
    Tick(chkDayInt, true);
    Choose(Mode::Times);
    Choose(Mode::Dates);
    EXPECT_EQ(Times(), "00:00:00 24:00:00");
    Fill(Mode::Dates);
    EXPECT_TRUE(Figures().starts_with("01 00 00")) << Figures();
}

TEST_F(Modes, TheCaptionOfABoxWorksTheBox)
{
    Choose(Mode::Dates);
    for (const int value : {1, 0}) {
        Click(lblChekBox[0]);
        EXPECT_EQ(Focus(), "chkDayInt");
        Click(lblChekBox[1]);
        EXPECT_EQ(Focus(), "chkWorkSat");
        Click(QPoint(440, lblChekBox[1].geometry().center().y())); // beside the letters
        EXPECT_TRUE(chkDayInt.Value() == value && chkWorkSat.Value() == value);
    }
}
