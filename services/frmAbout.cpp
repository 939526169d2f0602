#include "services/frmAbout.h"

#include "engine/Clock.h"
#include "engine/Text.h"
#include "services/App.h"
#include "services/Endpoints.h"
#include "services/GenericBas.h"
#include "services/Platform.h"

namespace vellarno {

namespace {

constexpr const char* Disclaimer =
    "Disclaimer: questo programma viene fornito \"as is\" (così com'è) senza nessuna garanzia di "
    "funzionamento.\r\n"
    "L 'autore, in ogni caso, non potrà essere ritenuto responsabile per eventuali danni derivati "
    "dall'utilizzo di questo programma.";

/// Where the site's name stands on the banner, beside the globe.
constexpr int BannerTextLeft = 32;
constexpr int BannerTextTop = 7;

}

frmAbout::frmAbout() : Designed(forms::FormBorder::FixedToolWindow)
{
    SetDefaultButton(cmdChiudi);
    SetCancelButton(cmdChiudi);
    Connect();
}

void frmAbout::Connect()
{
    Load = [this] { Form_Load(); };
    cmdChiudi.Click = [this] { cmdChiudi_Click(); };
    imgsito.Click = [this] { imgsito_Click(); };
    lblEmail.Click = [this] { lblEmail_Click(); };
}

void frmAbout::Form_Load()
{
    SetHandCursor(*this);
    if (OnTopFlag) SetAlwaysOnTop(*this, true);
    lblVersione.SetCaption("Versione " + CStr(App::Major) + '.' + CStr(App::Minor) + '.' +
                           CStr(App::Revision));
    ShowLinks();
    lblWarning.SetCaption(Disclaimer);
    ShowToday();
    cmdChiudi.SetFocus();
}

void frmAbout::ShowLinks()
{
    lblEmail.SetCaption(endpoints::Mail);
    imgsito.SetToolTipText(endpoints::WebSite);
    imgsito.SetCurrentX(BannerTextLeft);
    imgsito.SetCurrentY(BannerTextTop);
    imgsito.Print(endpoints::WebSiteName);
    SetHandCursor(lblEmail);
    SetHandCursor(imgsito);
}

void frmAbout::ShowToday()
{
    const DayNumber today = Date();
    lblCalendario[0].SetCaption(Format(today, "mmm yy"));
    lblCalendario[1].SetCaption(Format(today, "dd"));
}

void frmAbout::cmdChiudi_Click()
{
    Close();
}

void frmAbout::imgsito_Click()
{
    System().OpenAddress(endpoints::WebSite);
    Close();
}

// The subject takes the caption, so that it never tells another version than the box.
void frmAbout::lblEmail_Click()
{
    System().OpenAddress(std::string("mailto:") + endpoints::Mail + "?Subject=" + App::Title +
                         " - " + lblVersione.Caption());
    Close();
}

}
