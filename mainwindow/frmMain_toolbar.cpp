#include "mainwindow/frmMain.h"

#include "resources/Resources.h"
#include "services/App.h"
#include "services/GenericBas.h"
#include "services/Platform.h"
#include "services/platform/PrivateFile.h"
#include "services/SystemSettings.h"
#include "services/forms/Accessibility.h"
#include "services/frmAbout.h"

namespace vellarno {

namespace {

constexpr int OpeningSound = 201;
constexpr int HelpPage = 300;

}

void frmMain::picToolBarra_Click(int Index)
{
    HideCalendar();
    switch (Index) {
    case DateSettings: StartDateSettings(); break;
    case About: (new frmAbout)->ShowModal(*this); break; // deletes itself when closed
    case Help: ShowHelp(); break;
    case SequentialSums:
        PlayResSound(OpeningSound);
        if (!Visible()) break;                        // closed while the sound served events
        if (!Sums.Open()) Sums.Set(*new frmMiniCalc); // deletes itself when closed
        Sums->Show(this);
        break;
    default: break;
    }
}

void frmMain::imgOnTop_Click()
{
    OnTopFlag = !OnTopFlag;
    imgOnTop.SetPicture(resources::Icon(OnTopFlag ? 202 : 201));
    imgOnTop.SetPressed(OnTopFlag);
    SetAlwaysOnTop(*this, OnTopFlag);
    forms::Announce(*this, imgOnTop.AccessibleName() + (OnTopFlag ? ": attivo" : ": non attivo"));
}

void frmMain::ShowHelp()
{
    const std::string path = GetTempDirectory() + HelpFileName;
    bool written = WritePrivateFile(path, "");
    forms::DoEvents();
    if (!Visible()) return; // the program has ended meanwhile and has tidied up
    written = written && WritePrivateFile(path, forms::ReadResource(resources::Custom(HelpPage)));
    forms::DoEvents();
    if (!Visible()) return;
    if (written && FileExists(path))
        System().OpenAddress(path);
    else
        System().MsgBox("Impossibile visualizzare le informazioni.", forms::Critical, App::Title);
}

}
