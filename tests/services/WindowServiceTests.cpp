#include "services/Endpoints.h"
#include "services/frmAbout.h"
#include "tests/support/Layout.h"
#include "tests/support/Stage.h"

#include <cmath>

using namespace vellarno::test;

constexpr LayoutRow Controls[] = {
    {"Label2_0 Label2_1 lblVersione", "VELLARNO|VELLARNO|Versione 2.0.0"},
    {"lblCalendario_0 lblCalendario_1", "nov 26|22"},
    {"Label1", "Programma per l'esecuzione di calcoli tra date e/o ore"},
    {"Label4", "Programma freeware di libero utilizzo e distribuzione"},
    {"Label3", "© 2026 gli autori di Vellarno"},
    {"lblWarning",
     "Disclaimer: questo programma viene fornito \"as is\" (così com'è) senza nessuna garanzia "
     "di funzionamento.\nL 'autore, in ogni caso, non potrà essere ritenuto responsabile per "
     "eventuali danni derivati dall'utilizzo di questo programma."},
    {"Label7", "Per aggiornamenti visita il sito:"},
    {"imgsito", ":/pictures/banner.png", endpoints::WebSite},
    {"Image4 imgMail2", ":/pictures/about-calendar.png|:/pictures/envelope.png"},
    {"lblEmail", endpoints::Mail, "e-mail"},
    {"cmdChiudi", "Chiudi", "Esci"}};

TEST(AboutBox, TellsWhatTheProgramIsAndTodaysDate)
{
    const Stage<frmAbout> box;
    EXPECT_EQ(box.form.windowTitle(), "Informazioni");
    EXPECT_EQ(TabOrder(box), "cmdChiudi imgsito lblEmail");
    EXPECT_EQ(box.form.size(), QSize(433, 317));
    ExpectLayout(box.form, 3, Controls);
    EXPECT_EQ(Find<forms::PictureBox>(box.form, "imgsito").PrintedText(), endpoints::WebSiteName);
    const auto& warning = Find<forms::Label>(box.form, "lblWarning");
    EXPECT_LE(warning.heightForWidth(warning.width()), warning.height());
    EXPECT_GT(CountPoints(box.Seen(warning), Qt::red), 100);
}

TEST(AboutBox, ClosesByItsButtonItsKeysAndItsLinks)
{
    const std::pair<const char*, std::string> rows[] = {
        {"cmdChiudi", ""},
        {"imgsito", std::string("open ") + endpoints::WebSite},
        {"lblEmail",
         std::string("open mailto:") + endpoints::Mail + "?Subject=Vellarno - Versione 2.0.0"}};
    for (const auto& [clicked, log] : rows) {
        OnTopFlag = true;
        Stage<frmAbout> box;
        EXPECT_EQ(OpenWindows(), "frmAbout*");
        box.Click(Find<QWidget>(box.form, clicked).geometry().center());
        EXPECT_EQ(OpenWindows() + box.TakeLog(), log);
    }
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
        Stage<frmAbout> box;
        box.Press(key);
        EXPECT_EQ(OpenWindows(), "");
    }
}

TEST(Contrast, IsEnoughForFieldsAndGreyLetters)
{
    const auto light = [](const QColor& of) { // as the Web Content Accessibility Guidelines have it
        const auto linear = [](double part) { return std::pow((part + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(of.redF()) + 0.7152 * linear(of.greenF()) +
               0.0722 * linear(of.blueF()) + 0.05;
    };
    using namespace forms::palette;
    const frmAbout about;
    const auto grey = forms::ColorOf(Find<forms::Label>(about, "Label3").ForeColor());
    EXPECT_GE(light(Ground) / light(grey), 4.5);
    for (const QColor& around : {Panel, Ground}) EXPECT_GE(light(around) / light(FieldEdge), 3);
}
