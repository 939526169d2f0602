#include "mainwindow/frmMain.h"

#include "services/App.h"
#include "services/GenericBas.h"
#include "services/Platform.h"
#include "services/SystemSettings.h"
#include "services/forms/Accessibility.h"
#include "services/frmAbout.h"
#include "services/platform/PrivateFile.h"

namespace vellarno {

void frmMain::picToolBarra_Click(int Index)
{
    HideCalendar();
    switch (Index) {
    case DateSettings: StartDateSettings(); break;
    case About: NewOwned<frmAbout>().ShowModal(); break;
    case Help: ShowHelp(); break;
    case SequentialSums:
        PlayResSound(resources::Sound::Opening);
        if (!Visible()) break; // closed while the sound served events
        if (!Sums || !Sums->Visible()) Sums = &NewOwned<frmMiniCalc>();
        Sums->Show();
        break;
    default: break;
    }
}

void frmMain::imgOnTop_Click()
{
    OnTopFlag = !OnTopFlag;
    imgOnTop.SetPicture(resources::Path(OnTopFlag ? resources::Pin::On : resources::Pin::Off));
    imgOnTop.SetPressed(OnTopFlag);
    SetAlwaysOnTop(*this, OnTopFlag);
    forms::Announce(*this, imgOnTop.AccessibleName() + (OnTopFlag ? ": attivo" : ": non attivo"));
}

void frmMain::ShowHelp()
{
    const std::string path = HelpFilePath();
    bool written = WritePrivateFile(path, "");
    forms::DoEvents();
    if (!Visible()) return; // the program has ended meanwhile and has tidied up
    written = written && WritePrivateFile(path, forms::ReadResource(resources::HelpPage));
    forms::DoEvents();
    if (!Visible()) return;
    if (written && FileExists(path))
        System().OpenAddress(path);
    else
        System().MsgBox("Impossibile visualizzare le informazioni.", forms::Critical, App::Title);
}

}
