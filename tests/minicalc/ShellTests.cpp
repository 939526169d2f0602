#include "services/GenericBas.h"
#include "tests/minicalc/Calculator.h"

#include <QAccessible>
#include <QWindow>
#include <cstring>
#include <set>

namespace vellarno::test {
namespace {

using Shell = Calculator;

TEST_F(Shell, EachOpeningIsFresh)
{
    Choose("optBase", 1);
    Choose("optTipoDati", 2);
    Press(form, Qt::Key_Escape); // from a text box
    EXPECT_FALSE(ref.Open());
    auto& second = *new frmMiniCalc;
    second.Show(&owner);
    for (const char* option :
         {"optBase_0", "optFormat_0", "optTipoDati_0", "optSomma_0", "optSommaData_0"})
        EXPECT_TRUE(second.Get<forms::OptionButton>(option).Value()) << option;
    EXPECT_TRUE(second.Get<forms::PictureBox>("picBase_0").Visible());
    EXPECT_EQ(second.Get<forms::TextBox>("txtCalc_3").Text(), "00");
    second.Close();
}

TEST_F(Shell, PlusAndMinusChooseTheOperationEverywhere)
{
    for (const auto& [side, operation, name, field] :
         {std::tuple{0, "optSomma", "lblTime_3", "txtCalc_3"},
          {1, "optSommaData", "lblTime_7", "txtSommaDati"}}) {
        Choose("optBase", side);
        const std::string before = Box(field).Text();
        desktop.Sounds.clear();
        Type(form, "+"); // selected already
        EXPECT_TRUE(desktop.Sounds.empty());
        Type(form, "-");
        EXPECT_EQ(Caption(name), "Sottrai");
        form.Get<forms::CommandButton>("cmdChiudi").SetFocus();
        Type(form, "+");
        EXPECT_EQ(Caption(name), "Somma");
        EXPECT_TRUE(Option(std::string(operation) + "_0").Value());
        EXPECT_EQ(desktop.Sounds, (std::vector{202, 202}));
        EXPECT_EQ(Box(field).Text(), before);
    }
}

TEST_F(Shell, SwitchesKeepAndResetWhatTheyShould)
{
    const auto time = [&] { return Row("txtCalc", 0) + ", " + Row("txtCalc", 3) + ", " + Focus(); };
    const auto date = [&] {
        return Row("txtData", 0) + ", " + Box("txtSommaDati").Text() + ", " + Focus();
    };
    Fill("txtCalc", 0, "05 00 00");
    Choose("optSomma", 1);
    EXPECT_EQ(Row("txtCalc", 0), "05 00 00"); // the operation touches no field
    Choose("optFormat", 1);
    EXPECT_EQ(time(), "00 00 00, 00 000 000, txtCalc_3");
    EXPECT_EQ(Caption("lblTime_0") + Caption("lblTime_1"), "hh  :  mm  :  ss hh : mmm : sss");
    Fill("txtCalc", 0, "05 00 00");
    Push("cmdClear");
    EXPECT_EQ(time(), "00 00 00, 00 000 000, txtCalc_3");
    Fill("txtCalc", 0, "05 00 00");
    Choose("optBase", 1);
    Choose("optSommaData", 1);
    for (const auto& [unit, zero, name] : {std::tuple{3, "00", "trimestri"},
                                           {2, "000", "mesi"},
                                           {1, "000", "settimane"},
                                           {0, "0000", "giorni"},
                                           {2, "000", "mesi"}}) {
        Fill("txtData", 0, "01 01 2000");
        Choose("optTipoDati", unit);
        EXPECT_EQ(date(), std::string("22 11 2026, ") + zero + ", txtSommaDati");
        EXPECT_EQ(Caption("lblTime_5"), name);
        Type(form, "99999");
        EXPECT_EQ(Box("txtSommaDati").Text(), std::string(std::strlen(zero), '9'));
    }
    Choose("optBase", 0);
    EXPECT_EQ(time(), "00 00 00, 00 000 000, txtCalc_3"); // each side comes back from its zero
    EXPECT_NE(Caption("lblHelpTxt").find("superiore a 60"), std::string::npos);
    Choose("optBase", 1);
    EXPECT_EQ(date(), "22 11 2026, 000, txtSommaDati");
    EXPECT_TRUE(Option("optTipoDati_2").Value() && Option("optSommaData_1").Value());
    EXPECT_NE(Caption("lblHelpTxt").find("i mesi"), std::string::npos);
    EXPECT_EQ(desktop.Sounds, std::vector(11, 202));
}

TEST_F(Shell, EveryHelpTextIsWhole)
{
    const auto check = [&](const char* title, const char* word) {
        EXPECT_NE(Caption("lblTitoloHelp").find(title), std::string::npos) << word;
        EXPECT_NE(Caption("lblHelpTxt").find(word), std::string::npos) << word;
        const auto& heading = form.Get<forms::Label>("lblTitoloHelp");
        const auto& text = form.Get<forms::Label>("lblHelpTxt");
        EXPECT_LE(heading.sizeHint().width(), heading.Width());
        EXPECT_LE(text.heightForWidth(text.Width()), text.Height()) << word;
    };
    check("TRA ORE MINUTI E SECONDI", "orario iniziale,\n e premere");
    Choose("optFormat", 1);
    check("TRA ORE MINUTI E SECONDI", "superiore a 60");
    Choose("optBase", 1);
    for (const auto& [unit, word] :
         {std::pair{0, "i giorni"}, {1, "le settimane"}, {2, "i mesi"}, {3, "i trimestri"}}) {
        Choose("optTipoDati", unit);
        check("TRA DATA E GIORNI / SETTIMANE / MESI / TRIMESTRI", word);
    }
}

TEST_F(Shell, TabOrder)
{
    for (const auto& [side, expected] :
         {std::pair{0, "txtCalc_3 txtCalc_4 txtCalc_5 cmdSommaOre optSomma_0 txtCalc_0 txtCalc_1 "
                       "txtCalc_2 optBase_0 cmdClear cmdChiudi optFormat_0 "},
          {1, "txtSommaDati cmdSommaData txtData_0 txtData_1 txtData_2 optSommaData_0 optBase_1 "
              "cmdClear cmdChiudi optTipoDati_0 "}}) {
        if (side == 1) Choose("optBase", 1); // the first opening has the focus by itself
        std::string order;
        do {
            order += Focus() + ' ';
            Press(form, Qt::Key_Tab);
        } while (!order.starts_with(Focus() + ' ') && order.size() < 300);
        EXPECT_EQ(order, expected);
    }
}

TEST_F(Shell, AnArrowKeyLeavesTheFocusWhereTheResetPutsIt)
{
    Option("optBase_0").SetFocus();
    Press(form, Qt::Key_Down);
    EXPECT_EQ(Focus(), "txtSommaDati");
    Option("optSommaData_0").SetFocus();
    Press(form, Qt::Key_Down);
    EXPECT_EQ(Focus(), "optSommaData_1");
}

TEST_F(Shell, ClosingWhileEventsAreServedIsHarmless)
{
    struct ClosesDuringSound : Recorder
    {
        QWidget* Closed = nullptr;
        void PlaySound(const std::string&) override
        {
            QMetaObject::invokeMethod(Closed, &QWidget::close, Qt::QueuedConnection);
        }
    } other;
    other.Closed = &form;
    Choose("optBase", 1);
    EXPECT_FALSE(ref.Open());

    other.IsComposited = true;
    auto& fading = *new frmMiniCalc;
    const forms::FormRef<frmMiniCalc> watch(fading);
    QMetaObject::invokeMethod(&fading, &QWidget::close, Qt::QueuedConnection);
    fading.Show(&owner);
    EXPECT_FALSE(watch.Open());
}

TEST_F(Shell, StandsOnTopOnlyIfPinnedWhenOpened)
{
    EXPECT_FALSE(form.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    OnTopFlag = true;
    auto& pinned = *new frmMiniCalc;
    pinned.Show(&owner);
    OnTopFlag = false;
    EXPECT_TRUE(pinned.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(pinned.Get<forms::OptionButton>("optBase_1").MousePointer(), forms::CustomPointer);
    pinned.Close();
}

TEST_F(Shell, AScreenReaderTellsAllApart)
{
    for (const int side : {0, 1}) {
        Choose("optBase", side);
        std::set<std::string> names;
        for (forms::Control* control : form.Controls()) {
            if (!control->Widget().isVisible()) continue;
            auto* spoken = QAccessible::queryAccessibleInterface(&control->Widget());
            const std::string name = spoken->text(QAccessible::Name).toStdString();
            EXPECT_TRUE(name.empty() || // pure decoration
                        names.insert(name).second)
                << name;
        }
        EXPECT_TRUE(names.contains(side == 0 ? "Valore, minuti" : "Quantità"));
        EXPECT_TRUE(names.contains("Uguale"));
    }
}

}
}
