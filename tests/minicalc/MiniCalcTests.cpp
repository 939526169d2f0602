#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Text.h"
#include "minicalc/frmMiniCalc.h"
#include "services/GenericBas.h"
#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"
#include "tests/support/Workbench.h"

#include <QTimer>
#include <QWindow>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <sstream>

namespace vellarno::test {

/// The sequential calculator on screen above its owner, on 22/11/2026.
class MiniCalc : public ::testing::Test
{
protected:
    MiniCalc()
    {
        SetClock([] { return DateSerial(2026, 11, 22) + 0.5; });
        Open(owner);
        form.Show(&owner);
        Open(form);
    }
    ~MiniCalc() override
    {
        if (ref.Open()) form.Close();
        Settle();
        SetClock(nullptr);
    }

    std::string Text(const char* Box) { return form.Get<forms::TextBox>(Box).Text() + ' '; }
    std::string Caption(const char* Name) { return form.Get<forms::Label>(Name).Caption(); }
    bool Chosen(const char* Name) { return form.Get<forms::OptionButton>(Name).Value(); }
    std::string Focus() { return form.ActiveControl()->Widget().objectName().toStdString(); }

    /// The side on screen, the focus, ! for each beep and ~ for each sound, and the message.
    std::string State()
    {
        std::string all =
            Chosen("optBase_0")
                ? Text("txtCalc_0") + Text("txtCalc_1") + Text("txtCalc_2") + Caption("lblTime_3") +
                      ' ' + Text("txtCalc_3") + Text("txtCalc_4") + Text("txtCalc_5")
                : Text("txtData_0") + Text("txtData_1") + Text("txtData_2") + Caption("lblTime_7") +
                      ' ' + Text("txtSommaDati") + Caption("lblTime_5") + ' ';
        all += Focus() + std::string(std::exchange(desktop.Beeps, 0), '!') +
               std::string(std::exchange(desktop.Sounds, {}).size(), '~');
        for (const auto& shown : std::exchange(desktop.Messages, {}))
            all += ' ' + shown.Title + CStr(shown.Style) + ' ' + shown.Prompt;
        return all;
    }
    /// Does word by word what the script says: a box gets the focus, any other control a click,
    /// keys are pressed (< is backspace) and all else is typed.
    std::string Play(const std::string& Script)
    {
        const std::map<std::string, Qt::Key> keys{
            {"Tab", Qt::Key_Tab},      {"Backtab", Qt::Key_Backtab}, {"Space", Qt::Key_Space},
            {"Enter", Qt::Key_Return}, {"Down", Qt::Key_Down},       {"<", Qt::Key_Backspace}};
        std::istringstream words(Script);
        for (std::string word; words >> word;) {
            auto* control = dynamic_cast<forms::Control*>(
                form.findChild<QWidget*>(QString::fromStdString(word)));
            if (control && word.starts_with("txt"))
                control->SetFocus();
            else if (control)
                Click(*control);
            else if (keys.contains(word))
                Press(form, keys.at(word));
            else
                Type(form, word);
        }
        return State();
    }

    Recorder desktop;
    Workbench owner;
    frmMiniCalc& form = *new frmMiniCalc; ///< deletes itself when closed
    forms::FormRef<frmMiniCalc> ref{form};
};

TEST_F(MiniCalc, SumsAgreeWithModuloArithmetic)
{
    std::mt19937 random(20261122); // NOLINT(cert-msc51-cpp): the same cases in each run
    const auto within = [&](int Low, int High) {
        return std::uniform_int_distribution(Low, High)(random);
    };
    const auto clock = [](int s) {
        return Format(s / 3600, "00") + ' ' + Format(s / 60 % 60, "00") + ' ' +
               Format(s % 60, "00");
    };
    for (int i = 0; i < 400; ++i) {
        if (i == 200) Play("optFormat_1");
        const int highest = i < 200 ? 99 : 999, start = within(0, 86399), h = within(0, 23),
                  m = within(0, highest), s = within(0, highest);
        const bool adds = within(0, 1) == 0;
        const std::string pattern = i < 200 ? "00" : "000";
        const std::string script = "txtCalc_0 " + clock(start) + " txtCalc_3 " + Format(h, "00") +
                                   Format(m, pattern) + Format(s, pattern) + (adds ? " +" : " -") +
                                   " cmdSommaOre";
        Play(script);
        const int sum = 30 * 86400 + start + (adds ? 1 : -1) * (h * 3600 + m * 60 + s);
        ASSERT_EQ(State(), clock(sum % 86400) + (adds ? " Somma 00 " : " Sottrai 00 ") + pattern +
                               ' ' + pattern + " txtCalc_3")
            << script;
    }
}

TEST_F(MiniCalc, KeysAndClicksOfASession)
{
    const std::string noDate =
        " Vellarno16 La data immessa non è valida, il calcolo non può essere eseguito.";
    const std::string limit =
        " Vellarno64 Massimo valore consentito per il calcolo con le date è l'anno 2300";
    const std::pair<const char*, std::string> Rows[] = {
        {"txtCalc_0 23", "23 00 00 Somma 00 00 00 txtCalc_1"},
        {"cmdClear txtCalc_0 24", " 00 00 Somma 00 00 00 txtCalc_0!!"},
        {"cmdClear txtCalc_1 59", "00 59 00 Somma 00 00 00 txtCalc_2"},
        {"txtCalc_1 60", "00  00 Somma 00 00 00 txtCalc_1!!"},
        {"cmdClear txtCalc_2 60", "00 00  Somma 00 00 00 txtCalc_2!!"},
        {"59", "00 00 59 Somma 00 00 00 cmdSommaOre"},
        {"cmdClear 60", "00 00 00 Somma  00 00 txtCalc_3!!"},
        {"txtCalc_4 60", "00 00 00 Somma  60 00 txtCalc_5"},
        {"99", "00 00 00 Somma  60 99 cmdSommaOre"},
        {"txtCalc_4 a.5,", "00 00 00 Somma  5 99 txtCalc_4"},
        {"<", "00 00 00 Somma   99 txtCalc_4!"},
        {"Enter cmdSommaOre", "00 01 39 Somma 00 00 00 txtCalc_3"},
        {"cmdClear 013000 Space 004500 Enter", "02 15 00 Somma 00 00 00 txtCalc_3"},
        {"5 Tab - cmdSommaOre", "21 15 00 Sottrai 00 00 00 txtCalc_3~"}, // nothing is padded
        {"-", "21 15 00 Sottrai 00 00 00 txtCalc_3"},
        {"txtCalc_2 30 +", "21 15 30 Somma 00 00 00 cmdSommaOre~"},
        {"optFormat_1", "00 00 00 Somma 00 000 000 txtCalc_3~"},
        {"txtCalc_4 90", "00 00 00 Somma 00 90 000 txtCalc_4"},
        {"9 12 txtCalc_0 7", "7 00 00 Somma 00 909 12 txtCalc_0"},
        {"cmdClear", "00 00 00 Somma 00 000 000 txtCalc_3"},
        {"5 optBase_1", "22 11 2026 Somma 0000 giorni txtSommaDati~"},
        {"99999 txtData_0 31", "31 11 2026 Somma 9999 giorni txtData_1"},
        {"13", "31  2026 Somma 9999 giorni txtData_1!!"},
        {"00 21", "31 00 21 Somma 9999 giorni txtData_2"},
        {"cmdSommaData", "31 00 21 Somma 9999 giorni txtData_0" + noDate},
        {"cmdClear txtData_0 32", " 11 2026 Somma 0000 giorni txtData_0!!"},
        {"0 Tab 5 Backtab", "00 05 2026 Somma 0000 giorni txtData_2"}, // padding moves on
        {"7 Tab", "00 05 7 Somma 0000 giorni optSommaData_0"},
        {"txtData_0 5 cmdSommaData", "05 05 2007 Somma 0000 giorni txtSommaDati"},
        {"txtSommaDati <", "05 05 2007 Somma  giorni txtSommaDati"},
        {"cmdSommaData", "05 05 2007 Somma  giorni txtData_0" + noDate},
        {"txtData_1 <", "05  2007 Somma  giorni txtData_1!"},
        {"txtSommaDati x1 cmdSommaData", "05  2007 Somma 1 giorni txtData_0" + noDate},
        {"cmdClear txtData_0 31122020 1 cmdSommaData", "01 01 2021 Somma 1 giorni txtSommaDati"},
        {"txtData_0 01032020 - cmdSommaData", "29 02 2020 Sottrai 1 giorni txtSommaDati~"},
        {"txtData_0 01010100 cmdSommaData", "01 01 0100 Sottrai 1 giorni txtData_0" + noDate},
        {"txtData_0 31042021 0 cmdSommaData", "31 04 2021 Sottrai 0 giorni txtData_0" + noDate},
        {"optTipoDati_1 9999", "22 11 2026 Sottrai 999 settimane txtSommaDati~"},
        {"txtData_0 15062021 2 + cmdSommaData", "29 06 2021 Somma 2 settimane txtSommaDati~"},
        {"optTipoDati_3 999", "22 11 2026 Somma 99 trimestri txtSommaDati~"},
        {"txtData_0 30112019 01 cmdSommaData", "29 02 2020 Somma 01 trimestri txtSommaDati"},
        {"optTipoDati_2 9999", "22 11 2026 Somma 999 mesi txtSommaDati~"},
        {"txtData_0 31012020 1 cmdSommaData", "29 02 2020 Somma 1 mesi txtSommaDati"},
        {"cmdSommaData", "29 03 2020 Somma 1 mesi txtSommaDati"}, // the same step again
        {"txtData_2 2300", "29 03 2300 Somma 1 mesi txtSommaDati"},
        {"999 cmdSommaData", "22 11 2026 Somma 000 mesi txtSommaDati!!" + limit},
        {"9 txtData_2 2301", "22 11 2026 Somma 000 mesi txtSommaDati!!" + limit},
        {"- optBase_0",
         "00 00 00 Somma 00 000 000 txtCalc_3~~"}, // each side keeps its choices alone
        {"optBase_1", "22 11 2026 Sottrai 000 mesi txtSommaDati~"}};
    for (const auto& [script, state] : Rows) EXPECT_EQ(Play(script), state) << script;
}

TEST_F(MiniCalc, HelpOfTheChoiceOnScreenIsWhole)
{
    const std::array<const char*, 3> Rows[] = {
        {"optFormat_1", "ORE MINUTI E SECONDI", "superiore a 60"},
        {"optFormat_0", "ORE MINUTI E SECONDI", "e secondi che"},
        {"optBase_1", "TRIMESTRI", "i giorni"},
        {"optTipoDati_1", "TRIMESTRI", "le settimane"},
        {"optTipoDati_2", "TRIMESTRI", "i mesi"},
        {"optTipoDati_3", "TRIMESTRI", "i trimestri"},
        {"optBase_0", "SECONDI", "e secondi che"},
        {"optBase_1", "TRIMESTRI", "i trimestri"}};
    const auto& text = form.Get<forms::Label>("lblHelpTxt");
    for (const auto& [option, title, words] : Rows) {
        Play(option);
        EXPECT_TRUE(Caption("lblTitoloHelp").ends_with(title)) << option;
        EXPECT_NE(text.Caption().find(words), std::string::npos) << option;
        EXPECT_LE(text.heightForWidth(text.Width()), text.Height()) << option;
    }
}

TEST_F(MiniCalc, AnotherChoiceWhileTheSoundServesEventsWins)
{
    const std::array<const char*, 6> Rows[] = {
        {"optBase_0", "optBase_1", "optBase_0", "lblTitoloHelp", "SECONDI", "orario"},
        {"optBase_0", "optFormat_1", "optFormat_0", "lblTime_1", "mm  :  ss", "secondi che"},
        {"optBase_0", "optFormat_1", "optBase_1", "lblTime_1", "mmm : sss", "giorni"},
        {"optBase_0", "optSomma_1", "optSomma_0", "lblTime_3", "Somma", "orario"},
        {"optBase_1", "optSommaData_1", "optSommaData_0", "lblTime_7", "Somma", "giorni"},
        {"optBase_1", "optTipoDati_2", "optTipoDati_3", "lblTime_5", "trimestri", "trimestri"},
        {"optBase_1", "optTipoDati_0", "optBase_0", "lblTime_5", "giorni", "orario"}};
    for (const auto& [side, first, second, label, caption, help] : Rows) {
        Play(side);
        QTimer::singleShot(0, &form, [this, name = second] { Play(name); });
        Play(first);
        EXPECT_TRUE(Caption(label).ends_with(caption)) << first << ' ' << second;
        EXPECT_NE(Caption("lblHelpTxt").find(help), std::string::npos) << first << ' ' << second;
        EXPECT_EQ(form.Get<forms::PictureBox>("picBase_0").Visible(), Chosen("optBase_0"));
    }
}

TEST_F(MiniCalc, TabOrder)
{
    for (const std::string expected :
         {"txtCalc_3 txtCalc_4 txtCalc_5 cmdSommaOre optSomma_0 txtCalc_0 txtCalc_1 txtCalc_2 "
          "optBase_0 cmdClear cmdChiudi optFormat_0 ",
          "txtSommaDati cmdSommaData txtData_0 txtData_1 txtData_2 optSommaData_0 optBase_1 "
          "cmdClear cmdChiudi optTipoDati_0 "}) {
        std::string order;
        do {
            order += Focus() + ' ';
            Play("Tab");
        } while (!order.starts_with(Focus() + ' ') && order.size() < 300);
        EXPECT_EQ(order, expected);
        form.Get<forms::OptionButton>("optBase_0").SetFocus();
        Play("Down"); // leaves the focus where the reset puts it
    }
}

TEST_F(MiniCalc, OpeningReadsThePinAndEscCloses)
{
    const auto onTop = [](const QWidget& window) {
        return window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    EXPECT_FALSE(onTop(form));
    Press(form, Qt::Key_Escape); // from a text box
    EXPECT_FALSE(ref.Open());
    OnTopFlag = true;
    auto& second = *new frmMiniCalc;
    second.Show(&owner);
    OnTopFlag = false;
    EXPECT_TRUE(onTop(second));
    second.Close();
}

TEST_F(MiniCalc, ClosingWhileEventsAreServedIsHarmless)
{
    const auto close = [](QWidget& window) { QTimer::singleShot(0, &window, &QWidget::close); };
    close(form);
    Click(form.Get<forms::OptionButton>("optBase_1"));
    EXPECT_EQ(desktop.Sounds.size(), 1U);
    EXPECT_FALSE(ref.Open());

    desktop.IsComposited = true;
    auto& fading = *new frmMiniCalc;
    const forms::FormRef<frmMiniCalc> watch(fading);
    close(fading);
    fading.Show(&owner);
    EXPECT_FALSE(watch.Open());
}

}
