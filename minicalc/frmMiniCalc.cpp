#include "minicalc/frmMiniCalc.h"

#include "minicalc/Accumulators.h"
#include "services/GenericBas.h"
#include "services/Trasparency.h"
#include "services/forms/Accessibility.h"
#include "services/forms/Globals.h"

namespace vellarno {

namespace {

constexpr int TimeSide = 0;
constexpr int DateSide = 1;
/// The units' help texts follow those of the two formats.
constexpr int FirstHelpOfUnits = 2;

constexpr const char* HelpTitles[] = {
    "SOMME E SOTTRAZIONI TRA ORE MINUTI E SECONDI",
    "SOMME E SOTTRAZIONI TRA DATA E GIORNI / SETTIMANE / MESI / TRIMESTRI"};

constexpr std::array HelpTexts = {
    "Digitare ore, minuti e secondi che si vogliono sommare o sottrarre all'orario iniziale,\r\n"
    " e premere il pulsante uguale",
    "Digitare ore, minuti e secondi (minuti e secondi anche in numero superiore a 60) che si "
    "vogliono sommare o sottrarre all'orario iniziale, e premere il pulsante uguale",
    "Digitare i giorni che si vogliono sommare o sottrarre alla data iniziale,\r\n"
    "e premere il pulsante uguale",
    "Digitare le settimane che si vogliono sommare o sottrarre alla data iniziale,\r\n"
    " e premere il pulsante uguale",
    "Digitare i mesi che si vogliono sommare o sottrarre alla data iniziale,\r\n"
    " e premere il pulsante uguale",
    "Digitare i trimestri che si vogliono sommare o sottrarre alla data iniziale,\r\n"
    " e premere il pulsante uguale"};

/// Plays the click of an option.
/// @return false if another one of its group was chosen while it sounded: that one has done all.
bool PlayClickOf(const forms::OptionButton& Option)
{
    PlayResSound(resources::Sound::Click);
    return Option.Value();
}

constexpr const char* OperationName(int Index)
{
    return Index == 0 ? "Somma" : "Sottrai";
}

/// The value's minutes and seconds, by the chosen format.
struct TimeFormat
{
    int Digits;
    const char* Legend;
    const char* Spoken;
};
constexpr TimeFormat TimeFormats[] = {
    {2, "hh  :  mm  :  ss", "Formato normale, minuti e secondi a due cifre"},
    {3, " hh : mmm : sss", "Formato esteso, minuti e secondi a tre cifre"}};

constexpr const char* SpokenSides[] = {"Calcolo con il tempo", "Calcolo con la data"};

/// Where the total of a side stands: index of its caption and of the box around its fields.
struct TotalPlace
{
    int Caption, Box;
};
constexpr TotalPlace TotalPlaces[] = {{2, 0}, {6, 2}};

}

frmMiniCalc::frmMiniCalc() : Designed(forms::FormBorder::FixedDialog)
{
    KeyPreview = true;
    SetCancelButton(cmdChiudi);
    Connect();
}

void frmMiniCalc::Connect()
{
    Load = [this] { Form_Load(); };
    KeyPress = [this](short& KeyAscii) { Form_KeyPress(KeyAscii); };
    cmdChiudi.Click = [this] { cmdChiudi_Click(); };
    cmdClear.Click = [this] { cmdClear_Click(); };
    optBase.Connect(&forms::OptionButton::Click, this, &frmMiniCalc::optBase_Click);
    optFormat.Connect(&forms::OptionButton::Click, this, &frmMiniCalc::optFormat_Click);
    optTipoDati.Connect(&forms::OptionButton::Click, this, &frmMiniCalc::optTipoDati_Click);
    optSomma.Connect(&forms::OptionButton::Click, this, &frmMiniCalc::optSomma_Click);
    optSommaData.Connect(&forms::OptionButton::Click, this, &frmMiniCalc::optSommaData_Click);

    cmdSommaOre.Click = [this] { cmdSommaOre_Click(); };
    txtCalc.Connect(&forms::TextBox::Change, this, &frmMiniCalc::txtCalc_Change);
    txtCalc.Connect(&forms::TextBox::GotFocus, this, &frmMiniCalc::txtCalc_GotFocus);

    cmdSommaData.Click = [this] { cmdSommaData_Click(); };
    txtData.Connect(&forms::TextBox::Change, this, &frmMiniCalc::txtData_Change);
    txtData.Connect(&forms::TextBox::GotFocus, this, &frmMiniCalc::txtData_GotFocus);
    txtData.Connect(&forms::TextBox::LostFocus, this, &frmMiniCalc::txtData_LostFocus);
    txtSommaDati.GotFocus = [this] { txtSommaDati_GotFocus(); };
    txtSommaDati.KeyPress = FilterDigits;
}

void frmMiniCalc::Form_Load()
{
    SetHandCursor(*this);
    if (OnTopFlag) SetAlwaysOnTop(*this, true);
    ShowHelp();
    OfferCopies();
    FadeInForm(*this); // last: the window can be used, and closed, while it fades in
}

void frmMiniCalc::Form_KeyPress(short& KeyAscii)
{
    if (KeyAscii != '+' && KeyAscii != '-') return;
    const auto& operation = optBase[TimeSide].Value() ? optSomma : optSommaData;
    operation[KeyAscii == '+' ? 0 : 1].SetValue(true);
}

void frmMiniCalc::cmdChiudi_Click()
{
    Close();
}

void frmMiniCalc::cmdClear_Click()
{
    Clear();
    AnnounceTotal();
}

void frmMiniCalc::Clear()
{
    if (optBase[TimeSide].Value())
        ClearTime();
    else
        ClearDate();
}

// A side that comes on screen starts from its zero, whatever it held before.
void frmMiniCalc::optBase_Click(int Index)
{
    for (forms::PictureBox& panel : picBase) panel.SetVisible(false);
    picBase[Index].SetVisible(true);
    if (!PlayClickOf(optBase[Index])) return;
    ShowHelp();
    Clear();
    forms::Announce(*this, SpokenSides[Index]);
}

void frmMiniCalc::optFormat_Click(int Index)
{
    if (!PlayClickOf(optFormat[Index])) return;
    const TimeFormat& format = TimeFormats[Index];
    txtCalc[4].SetMaxLength(format.Digits);
    txtCalc[5].SetMaxLength(format.Digits);
    lblTime[1].SetCaption(format.Legend);
    ShowHelp();
    Clear();
    forms::Announce(*this, format.Spoken);
}

void frmMiniCalc::optTipoDati_Click(int Index)
{
    if (!PlayClickOf(optTipoDati[Index])) return;
    lblTime[5].SetCaption(std::string(DateUnits[Index].Name));
    ShowHelp();
    Clear();
    forms::Announce(*this, lblTime[5].Caption());
}

void frmMiniCalc::optSomma_Click(int Index)
{
    if (!PlayClickOf(optSomma[Index])) return;
    lblTime[3].SetCaption(OperationName(Index));
    forms::Announce(*this, OperationName(Index));
}

void frmMiniCalc::optSommaData_Click(int Index)
{
    if (!PlayClickOf(optSommaData[Index])) return;
    lblTime[7].SetCaption(OperationName(Index));
    forms::Announce(*this, OperationName(Index));
}

std::string frmMiniCalc::Total() const
{
    const bool date = optBase[DateSide].Value();
    const auto& boxes = date ? txtData : txtCalc;
    for (const int i : {0, 1, 2})
        if (boxes[i].Text().empty()) return "";
    const char* separator = date ? "/" : ":";
    return boxes[0].Text() + separator + boxes[1].Text() + separator + boxes[2].Text();
}

void frmMiniCalc::AnnounceTotal()
{
    forms::Announce(*this, (optBase[DateSide].Value() ? "Data: " : "Progressivo: ") + Total());
}

/// On the caption and the box of each total, and on its fields, whose own menu copies what is
/// selected in them.
void frmMiniCalc::OfferCopies()
{
    const forms::MenuEntry one{"Copia", [this] { CopyTotal(false); }};
    const forms::MenuEntry all{"Copia tutti i risultati", [this] { CopyTotal(true); }};
    for (const auto& [caption, box] : TotalPlaces) {
        lblTime[caption].SetMenu({one, all});
        picCalc[box].SetMenu({one, all});
    }
    for (const auto* boxes : {&txtCalc, &txtData})
        for (const int i : {0, 1, 2}) (*boxes)[i].SetMenu({all});
}

void frmMiniCalc::CopyTotal(bool WithCaption)
{
    const int side = optBase[DateSide].Value() ? DateSide : TimeSide;
    if (Total().empty()) return;
    const std::string caption = lblTime[TotalPlaces[side].Caption].Caption() + ": ";
    forms::SetClipboardText((WithCaption ? caption : "") + Total() + (WithCaption ? "\n" : ""));
    forms::Announce(*this, "Risultati copiati");
}

/// The index of the selected option.
int frmMiniCalc::Chosen(const forms::ControlArray<forms::OptionButton>& Of)
{
    int chosen = 0;
    while (!Of[chosen].Value()) ++chosen;
    return chosen;
}

/// Title and text belong to the side on screen, also where it was left while an option sounded.
void frmMiniCalc::ShowHelp()
{
    const int side = optBase[DateSide].Value() ? DateSide : TimeSide;
    SetHelpTitle(side);
    SetHelpText(side == DateSide ? FirstHelpOfUnits + Chosen(optTipoDati) : Chosen(optFormat));
}

void frmMiniCalc::SetHelpTitle(int Index)
{
    lblTitoloHelp.SetCaption(HelpTitles[Index]);
}

void frmMiniCalc::SetHelpText(int HelpIndex)
{
    const auto index = static_cast<std::size_t>(HelpIndex);
    if (index < HelpTexts.size()) lblHelpTxt.SetCaption(HelpTexts[index]);
}

}
