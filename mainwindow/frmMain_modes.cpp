#include "mainwindow/frmMain.h"

#include "services/GenericBas.h"
#include "services/forms/Accessibility.h"

namespace vellarno {

namespace {

constexpr const char* ModeNames[] = {"Calcolo tra ore", "Calcolo tra date e ore",
                                     "Calcolo tra date"};

struct PanelPlace
{
    int Top, Height;
};

/// Where the light panel lies behind the active section, by mode.
constexpr PanelPlace Panels[] = {{115, 107}, {10, 207}, {10, 107}};

bool HoldsText(const forms::ControlArray<forms::TextBox>& Boxes)
{
    for (auto& box : Boxes)
        if (box.Enabled() && !box.Text().empty()) return true;
    return false;
}

/// A box is emptied while it can still be used: its change handling answers with a beep.
void EmptyAndDisable(const forms::ControlArray<forms::TextBox>& Boxes)
{
    for (auto& box : Boxes) {
        box.SetText("");
        box.SetEnabled(false);
    }
}

}

frmMain::Mode frmMain::ChosenMode() const
{
    return optDataTime[Times].Value() ? Times : optDataTime[Moments].Value() ? Moments : Dates;
}

void frmMain::optDataTime_Click(int Index)
{
    const bool filled = HoldsText(txtData) || HoldsText(txtTime);
    HideCalendar();
    DisableAll();
    for (auto& picture : imgTipoCalcolo) picture.SetVisible(false);
    imgTipoCalcolo[Index].SetVisible(true);
    EnableMode(Index);
    ClearResults();
    if (optDataTime[Index].Value())
        forms::Announce(*this, std::string(ModeNames[Index]) + (filled ? ", campi vuoti" : ""));
}

void frmMain::DisableAll()
{
    lblSeparatore.SetEnabled(0, 7, false);
    lblLabel.SetEnabled(0, 20, false);
    lblTotali.SetEnabled(TotalDays, TotalSeconds, false);
    cmdNowData.SetEnabled(0, 1, false);
    cmdNowTime.SetEnabled(0, 1, false);
    EmptyAndDisable(txtData);
    EmptyAndDisable(txtTime);
    lblChekBox.SetEnabled(0, 1, false);
}

void frmMain::EnableMode(int Index)
{
    const bool dates = Index != Times;
    const bool times = Index != Dates;
    if (times) PlayResSound(resources::Sound::Click);
    if (!optDataTime[Index].Value()) return; // another mode was chosen while it sounded
    cmdNowTime.SetEnabled(0, 1, times);
    cmdNowData.SetEnabled(0, 1, dates);
    lblChekBox.SetEnabled(0, 0, !times);
    lblChekBox.SetEnabled(1, 1, dates);
    lblLabel.SetEnabled(10, 20, dates);
    lblLabel.SetEnabled(0, 7, times);
    lblSeparatore.SetEnabled(0, 3, dates && times);
    lblSeparatore.SetEnabled(4, 7, times);
    txtTime.SetEnabled(0, 5, times);
    txtData.SetEnabled(0, 5, dates);
    lblTotali.SetEnabled(TotalDays, Sundays, dates);
    lblTotali.SetEnabled(Holidays, Holidays, true);
    lblTotali.SetEnabled(TotalHours, TotalSeconds, times);
    if (!times)
        for (auto& box : txtTime) box.SetText("00");
    (dates ? txtData : txtTime)[0].SetFocus();
    chkDayInt.SetEnabled(!times);
    if (!times) chkDayInt_Click();
    if (!optDataTime[Index].Value()) return;
    chkWorkSat.SetEnabled(dates);
    imgBorder.SetHeight(Panels[Index].Height);
    imgBorder.SetTop(Panels[Index].Top);
}

void frmMain::chkDayInt_Click()
{
    DescribeTotals();
    PlayResSound(resources::Sound::Click);
    if (!optDataTime[Dates].Value()) return; // the mode was left while it sounded
    txtTime[3].SetText(chkDayInt.Value() == 1 ? "24" : "00");
    if (HasAllFields(Dates))
        cmdCalcola_Click();
    else
        ClearResults();
}

void frmMain::chkWorkSat_Click()
{
    DescribeTotals();
    PlayResSound(resources::Sound::Click);
    const unsigned int color = chkWorkSat.Value() == 1 ? forms::PureRed : forms::Black;
    lblTotali[Saturdays].SetForeColor(color);
    CaptionOf(Saturdays).SetForeColor(color);
    if (HasAllFields(Moments))
        cmdCalcola_Click();
    else
        ClearResults();
}

// The captions are labels of their own; a click on one means its box.
void frmMain::lblChekBox_Click(int Index)
{
    forms::CheckBox& box = Index == 0 ? chkDayInt : chkWorkSat;
    box.SetFocus();
    box.SetValue(1 - box.Value());
}

}
