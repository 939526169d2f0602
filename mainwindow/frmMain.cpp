#include "mainwindow/frmMain.h"

#include "engine/Text.h"
#include "services/App.h"
#include "services/GenericBas.h"
#include "services/forms/Application.h"
#include "services/forms/Globals.h"
#include "services/platform/PrivateFile.h"

namespace vellarno {

namespace {

constexpr int ClockInterval = 400; // milliseconds

}

frmMain::frmMain() : Designed(forms::FormBorder::FixedSingle)
{
    Connect();
}

void frmMain::Connect()
{
    using namespace forms;
    KeyPreview = true;
    Load = [this] { Form_Load(); };
    Unload = [this] { Form_Unload(); };
    KeyPress = [this](short& KeyAscii) { Form_KeyPress(KeyAscii); };
    Form::MouseMove = [this] { CloseBalloons(); };
    imgBorder.MouseMove = [this] { CloseBalloons(); };

    cmdCalcola.Click = [this] { cmdCalcola_Click(); };
    optDataTime.Connect(&OptionButton::Click, this, &frmMain::optDataTime_Click);
    chkDayInt.Click = [this] { chkDayInt_Click(); };
    chkWorkSat.Click = [this] { chkWorkSat_Click(); };
    lblChekBox.Connect(&Label::Click, this, &frmMain::lblChekBox_Click);

    txtData.Connect(&TextBox::Change, this, &frmMain::txtData_Change);
    txtData.Connect(&TextBox::GotFocus, this, &frmMain::txtData_GotFocus);
    txtData.Connect(&TextBox::LostFocus, this, &frmMain::txtData_LostFocus);
    txtTime.Connect(&TextBox::Change, this, &frmMain::txtTime_Change);
    txtTime.Connect(&TextBox::GotFocus, this, &frmMain::txtTime_GotFocus);
    txtTime.Connect(&TextBox::LostFocus, this, &frmMain::txtTime_LostFocus);

    cmdNowData.Connect(&CommandButton::Click, this, &frmMain::cmdNowData_Click);
    hscDataScroll.Change = [this] { hscDataScroll_Change(); };
    picOption.KeyDown = [this](Key Pressed) { return picOption_KeyDown(Pressed); };
    picOption.GotFocus = [this] { shpMarker.SetVisible(true); };
    picOption.LostFocus = [this] { shpMarker.SetVisible(false); };
    txtCalMeseAnno.GotFocus = [this] { txtCalMeseAnno_GotFocus(); };
    GIORNO.Connect(&Label::MouseDown, this, &frmMain::GIORNO_MouseDown);
    GIORNO.Connect(&Label::MouseUp, this, &frmMain::GIORNO_MouseUp);
    GIORNO.Connect(&Label::Click, this, &frmMain::GIORNO_Click);

    Timer1.Tick = [this] { Timer1_Timer(); };
    cmdNowTime.Connect(&CommandButton::Click, this, &frmMain::cmdNowTime_Click);
    lblTotali.Connect(&Label::MouseMove, this, &frmMain::lblTotali_MouseMove);
    picToolBarra.Connect(&PictureBox::Click, this, &frmMain::picToolBarra_Click);
    imgOnTop.Click = [this] { imgOnTop_Click(); };
    OnKey("F1", [this] { picToolBarra_Click(Help); });
    OnKey("Ctrl+Shift+C", [this] { CopyResults(); });
}

void frmMain::Form_Load()
{
    InitStatusStrip();
    SetHandCursor(*this);
    for (auto& caption : lblChekBox) caption.FitWidth();
    SetHandCursor(imgOnTop);
    imgOnTop.SetPicture(resources::Path(resources::Pin::Off));
    imgOnTop.SetPressed(false);
    InitBalloons();
    PrepareResults();
    ShowCalendar(-1);
    SetCaption(std::string(App::Title) + ' ' + CStr(App::Major) + '.' + CStr(App::Minor));
    Timer1.Start(ClockInterval);
}

void frmMain::Form_Unload()
{
    DeletePrivateFile(HelpFilePath());
    BalloonTip.Destroy();
    UnloadAll();
    forms::Application::Quit();
}

void frmMain::Form_KeyPress(short& KeyAscii)
{
    if (KeyAscii != forms::KeyEnter || !dynamic_cast<forms::TextBox*>(ActiveControl())) return;
    forms::SendKeys("{TAB}");
    KeyAscii = forms::KeyDropped;
}

}
