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
    const char* Fields;   ///< dates, times
    const char* Captions; ///< separators; captions 0 to 7 and 10 to 20; totals
    const char* Choices;  ///< buttons of the calendar and of the clock, boxes and their captions
    QRect Panel;
    const char* Texts;
    const char* Focus;
};

constexpr Outcome Outcomes[] = {{"000000 111111 ",
                                 "00001111 1111111100000000000 000001111 ",
                                 "00 11 0 0 00 ",
                                 {8, 115, 464, 107},
                                 "__/__/____ __/__/____ __:__:__ __:__:__",
                                 "txtTime_0"},
                                {"111111 111111 ",
                                 "11111111 1111111111111111111 111111111 ",
                                 "11 11 0 1 01 ",
                                 {8, 10, 464, 207},
                                 "__/__/____ __/__/____ __:__:__ __:__:__",
                                 "txtData_0"},
                                {"111111 000000 ",
                                 "00000000 0000000011111111111 111111000 ",
                                 "11 00 1 1 11 ",
                                 {8, 10, 464, 107},
                                 "__/__/____ __/__/____ 00:00:00 00:00:00",
                                 "txtData_0"}};

struct Switch
{
    Mode From, To;
    int Beeps; ///< for each filled date box and the first time box
};

constexpr Switch Switches[] = {{Mode::Times, Mode::Moments, 1}, {Mode::Moments, Mode::Dates, 7},
                               {Mode::Dates, Mode::Moments, 6}, {Mode::Moments, Mode::Times, 7},
                               {Mode::Times, Mode::Dates, 1},   {Mode::Dates, Mode::Times, 6}};

struct Modes : Before<Mode::Times>
{
    void ExpectOutcome(Mode Of, const char* Captions = nullptr)
    {
        const Outcome& outcome = Outcomes[static_cast<int>(Of)];
        EXPECT_EQ(Usable(txtData) + Usable(txtTime), outcome.Fields);
        EXPECT_EQ(Usable(lblSeparatore) + Usable(lblLabel) + Usable(lblTotali),
                  Captions ? Captions : outcome.Captions);
        EXPECT_EQ(Usable(cmdNowData) + Usable(cmdNowTime) + (chkDayInt.Enabled() ? "1 " : "0 ") +
                      (chkWorkSat.Enabled() ? "1 " : "0 ") + Usable(lblChekBox),
                  outcome.Choices);
        for (const int mode : {0, 1, 2})
            EXPECT_EQ(imgTipoCalcolo[mode].Visible(), mode == static_cast<int>(Of));
        EXPECT_EQ(imgBorder.geometry(), outcome.Panel);
        EXPECT_EQ(Dates() + ' ' + Times(), outcome.Texts);
        EXPECT_EQ(Focus(), outcome.Focus);
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
    ExpectOutcome(Mode::Times, "00001111 1111111100000000000 000000111 ");
    EXPECT_EQ(form.Caption(), "Vellarno 2.0");
    EXPECT_EQ(form.size(), QSize(480, 312));
    EXPECT_TRUE(CalendarIsClosed());
}

TEST_F(Modes, ASwitchEmptiesTheFieldsAndEnablesWhatTheModeUses)
{
    for (const auto& [from, to, beeps] : Switches) {
        SCOPED_TRACE(testing::Message() << int(from) << " to " << int(to));
        Fill(from);
        Choose(from);
        EXPECT_TRUE(HasResults()) << "chosen already";
        Choose(to);
        ExpectOutcome(to);
        EXPECT_EQ(TakeLog(), QString("beep, ").repeated(beeps).toStdString() + "sound 202");
    }
}

TEST_F(Modes, AnotherOneChosenWhileTheSoundServesEventsWinsWhole)
{
    for (const auto& [first, last, beeps] : Switches) {
        for (const Mode mode : {Mode::Times, Mode::Moments, Mode::Dates})
            if (mode != first && mode != last) Choose(mode);
        Soon([this, to = last] { Choose(to); });
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
            EXPECT_NE(Figures().find(off ? " 252 52 52 08" : " 303 52 52 09"), std::string::npos);
            EXPECT_EQ(CountPoints(Seen(lblTotali[3]), Qt::red) > 3, off);
            EXPECT_EQ(CountPoints(Seen(lblLabel[18]), Qt::red) > 3, off);
            EXPECT_EQ(TakeLog(), "sound 202");
        }
    }
    Click(chkDayInt);
    EXPECT_TRUE(Figures().starts_with("01 00 00")) << Figures();
    Choose(Mode::Times);
    Choose(Mode::Dates);
    EXPECT_EQ(Times(), "00:00:00 24:00:00") << "a ticked box stays so";
    Fill(Mode::Dates);
    Click(chkDayInt);
    EXPECT_TRUE(Figures().starts_with("00 11 30")) << Figures();
}

TEST_F(Modes, ABoxClearsTheResultsOfIncompleteDataWithoutAWord)
{
    Choose(Mode::Dates);
    for (const auto* box : {&chkDayInt, &chkWorkSat}) {
        lblDati[0].SetCaption("00");
        TakeLog();
        Click(*box);
        EXPECT_FALSE(HasResults());
        EXPECT_EQ(TakeLog(), "sound 202");
    }
}

TEST_F(Modes, TheCaptionOfABoxWorksTheBox)
{
    Choose(Mode::Dates);
    for (const int value : {1, 0}) {
        Click(lblChekBox[0]);
        EXPECT_EQ(Focus(), "chkDayInt");
        Click(lblChekBox[1]);
        EXPECT_EQ(Focus(), "chkWorkSat");
        for (const auto& caption : lblChekBox) Click(QPoint(440, caption.geometry().center().y()));
        EXPECT_TRUE(chkDayInt.Value() == value && chkWorkSat.Value() == value);
    }
}
