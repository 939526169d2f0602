#include "services/GenericBas.h"
#include "tests/minicalc/Calculator.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWindow>
#include <set>

namespace vellarno::test {
namespace {

using Shell = Calculator;

TEST_F(Shell, OpensOnTheTimeSideWithZeros)
{
    EXPECT_EQ(form.Caption(), "Calcoli tra tempo e tra date");
    EXPECT_EQ(Total() + ' ' + Value(), "00:00:00 00:00:00");
    EXPECT_EQ(Focus(), "txtCalc_3");
    EXPECT_TRUE(picBase[Time].Visible());
    EXPECT_FALSE(picBase[Date].Visible());
    for (const auto* options : {&optBase, &optFormat, &optTipoDati, &optSomma, &optSommaData})
        for (int i = 0; i < options->Count(); ++i) EXPECT_EQ((*options)[i].Value(), i == 0);
    EXPECT_TRUE(desktop.Log.empty());
}

TEST_F(Shell, ASecondOpeningIsFresh)
{
    Click(optBase[Date]);
    Click(optTipoDati[2]);
    form.Close();
    Settle();
    auto& second = *new frmMiniCalc;
    second.Show(&owner);
    EXPECT_TRUE(second.Get<forms::OptionButton>("optBase_0").Value());
    EXPECT_TRUE(second.Get<forms::OptionButton>("optTipoDati_0").Value());
    EXPECT_EQ(second.Get<forms::TextBox>("txtCalc_3").Text(), "00");
    second.Close();
}

TEST_F(Shell, PlusAndMinusChooseTheOperationEverywhere)
{
    for (const int side : {Time, Date}) {
        Click(optBase[side]);
        const auto& operation = side == Time ? optSomma : optSommaData;
        const auto& name = lblTime[side == Time ? 3 : 7];
        auto& field = side == Time ? txtCalc[3] : txtSommaDati;
        const std::string before = field.Text();
        desktop.Sounds.clear();
        Type(form, "+");
        EXPECT_TRUE(desktop.Sounds.empty()); // selected already
        Type(form, "-");
        EXPECT_TRUE(operation[1].Value());
        EXPECT_EQ(name.Caption(), "Sottrai");
        cmdChiudi.SetFocus();
        Type(form, "+");
        EXPECT_TRUE(operation[0].Value());
        EXPECT_EQ(name.Caption(), "Somma");
        EXPECT_EQ(desktop.Sounds, (std::vector{202, 202}));
        EXPECT_EQ(field.Text(), before);
    }
}

TEST_F(Shell, SwitchesKeepAndResetWhatTheyShould)
{
    Write(txtCalc, 0, "05:00:00");
    Click(optSomma[1]);
    EXPECT_EQ(Total(), "05:00:00"); // the operation touches no field
    Click(optFormat[1]);
    EXPECT_EQ(Total() + ' ' + Value(), "00:00:00 00:000:000");
    EXPECT_EQ(lblTime[1].Caption(), " hh : mmm : sss");
    EXPECT_EQ(lblTime[0].Caption(), "hh  :  mm  :  ss");
    Write(txtCalc, 0, "05:00:00");
    Click(cmdClear);
    EXPECT_EQ(Total() + ' ' + Value() + ' ' + Focus(), "00:00:00 00:000:000 txtCalc_3");

    Write(txtCalc, 0, "05:00:00");
    Click(optBase[Date]);
    EXPECT_EQ(Day() + ' ' + txtSommaDati.Text(), "22/11/2026 0000");
    Write(txtData, 0, "01/01/2000");
    Click(optSommaData[1]);
    EXPECT_EQ(Day(), "01/01/2000");
    const char* zeros[] = {"0000", "000", "000", "00"};
    const char* names[] = {"giorni", "settimane", "mesi", "trimestri"};
    for (const int unit : {3, 2, 1, 0}) {
        Write(txtData, 0, "01/01/2000");
        Click(optTipoDati[unit]);
        EXPECT_EQ(Day() + ' ' + txtSommaDati.Text(), std::string("22/11/2026 ") + zeros[unit]);
        EXPECT_EQ(lblTime[5].Caption(), names[unit]);
        EXPECT_EQ(Focus(), "txtSommaDati");
        Type(form, "99999");
        EXPECT_EQ(txtSommaDati.Text(), std::string(txtSommaDati.Text().size(), '9'));
        EXPECT_EQ(txtSommaDati.Text().size(), std::string(zeros[unit]).size());
    }
    Click(optTipoDati[2]);
    Click(optBase[Time]);
    EXPECT_EQ(Total(), "00:00:00"); // back on screen, from zero
    EXPECT_TRUE(optFormat[1].Value());
    Click(optBase[Date]);
    EXPECT_TRUE(optTipoDati[2].Value());
    EXPECT_TRUE(optSommaData[1].Value());
    EXPECT_NE(lblHelpTxt.Caption().find("i mesi"), std::string::npos);
}

TEST_F(Shell, EveryHelpTextIsWhole)
{
    const auto check = [&](const char* title, const char* word) {
        EXPECT_NE(lblTitoloHelp.Caption().find(title), std::string::npos) << word;
        EXPECT_NE(lblHelpTxt.Caption().find(word), std::string::npos) << lblHelpTxt.Caption();
        for (const auto* label : {&lblTitoloHelp, &lblHelpTxt}) {
            const QSize needed = static_cast<QLabel&>(label->Widget()).sizeHint();
            const int width = label->Width();
            EXPECT_LE(label->Widget().heightForWidth(width) > 0 ? 0 : needed.width(), width) << word;
            EXPECT_LE(label->Widget().heightForWidth(width), label->Height()) << word;
        }
    };
    check("TRA ORE MINUTI E SECONDI", "orario iniziale,\n e premere");
    Click(optFormat[1]);
    check("TRA ORE MINUTI E SECONDI", "superiore a 60");
    Click(optBase[Date]);
    const char* words[] = {"i giorni", "le settimane", "i mesi", "i trimestri"};
    for (const int unit : {0, 1, 2, 3}) {
        Click(optTipoDati[unit]);
        check("TRA DATA E GIORNI / SETTIMANE / MESI / TRIMESTRI", words[unit]);
    }
}

TEST_F(Shell, TabOrder)
{
    const auto walk = [&](int Steps) {
        std::string order = Focus();
        for (int i = 1; i < Steps; ++i) {
            Press(form, Qt::Key_Tab);
            order += ' ' + Focus();
        }
        return order;
    };
    EXPECT_EQ(walk(13), "txtCalc_3 txtCalc_4 txtCalc_5 cmdSommaOre optSomma_0 txtCalc_0 txtCalc_1 "
                        "txtCalc_2 optBase_0 cmdClear cmdChiudi optFormat_0 txtCalc_3");
    Click(optBase[Date]);
    EXPECT_EQ(walk(11), "txtSommaDati cmdSommaData txtData_0 txtData_1 txtData_2 optSommaData_0 "
                        "optBase_1 cmdClear cmdChiudi optTipoDati_0 txtSommaDati");
}

TEST_F(Shell, AnArrowKeyChoosesAndLeavesTheFocusWhereTheResetPutIt)
{
    optBase[Time].SetFocus();
    Press(form, Qt::Key_Down);
    EXPECT_TRUE(optBase[Date].Value());
    EXPECT_EQ(Focus(), "txtSommaDati");
    optSommaData[0].SetFocus();
    Press(form, Qt::Key_Down);
    EXPECT_EQ(Focus(), "optSommaData_1");
}

TEST_F(Shell, EscClosesFromAField)
{
    Press(form, Qt::Key_Escape);
    EXPECT_FALSE(ref.Open());
}

/// Closes the window from an event that is served while a sound is started.
class ClosesDuringSound : public Recorder
{
public:
    QWidget* Closed = nullptr;
    void PlaySound(const std::string&) override
    {
        QMetaObject::invokeMethod(Closed, &QWidget::close, Qt::QueuedConnection);
    }
};

TEST_F(Shell, ClosingWhileASwitchServesEventsIsHarmless)
{
    ClosesDuringSound other;
    other.Closed = &form;
    Click(optBase[Date]);
    Settle();
    EXPECT_FALSE(ref.Open());
}

TEST_F(Shell, ClosingDuringTheFadeIsHarmless)
{
    desktop.IsComposited = true;
    auto& fading = *new frmMiniCalc;
    const forms::FormRef<frmMiniCalc> watch(fading);
    QMetaObject::invokeMethod(&fading, &QWidget::close, Qt::QueuedConnection);
    fading.Show(&owner);
    EXPECT_FALSE(watch.Open());
}

TEST_F(Shell, FadesInAndStandsOnTopOnlyIfPinnedWhenOpened)
{
    EXPECT_FALSE(form.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    desktop.IsComposited = true;
    OnTopFlag = true;
    auto& pinned = *new frmMiniCalc;
    pinned.Show(&owner);
    OnTopFlag = false;
    EXPECT_TRUE(pinned.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(pinned.windowOpacity(), 1.0);
    pinned.Close();
}

TEST_F(Shell, NamesForAScreenReaderAreToldApart)
{
    for (const int side : {Time, Date}) {
        Click(optBase[side]);
        std::multiset<std::string> names;
        for (forms::Control* control : form.Controls()) {
            if (!control->Widget().isVisible()) continue;
            std::string name = control->AccessibleName();
            if (const auto* button = qobject_cast<QAbstractButton*>(&control->Widget());
                button && name.empty())
                name = button->text().toStdString();
            if (const auto* label = dynamic_cast<forms::Label*>(control); label && name.empty())
                name = label->Caption();
            if (name.size() > 1) names.insert(name); // not the separators between the digits
        }
        for (const auto& name : names) EXPECT_EQ(names.count(name), 1U) << name;
        EXPECT_GE(names.size(), side == Time ? 20U : 18U);
    }
}

}
}
