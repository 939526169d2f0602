#pragma once

#include "engine/DateTime.h"
#include "services/SegmentedField.h"
#include "services/forms/CommandButton.h"
#include "services/forms/ControlArray.h"
#include "services/forms/Label.h"
#include "services/forms/OptionButton.h"
#include "services/forms/PictureBox.h"
#include "services/forms/TextBox.h"
#include "ui_frmMiniCalc.h"

#include <array>
#include <string>

namespace vellarno {

struct ClockTime;
struct DateUnit;

/// The sequential calculator: a running clock time and a running date, on two panels at the same
/// place, each stepped forward and back by what is typed beside it. What stands in the fields is
/// all that it knows: there is no hidden total, and each opening starts afresh.
class frmMiniCalc : public forms::Designed<Ui::frmMiniCalc>
{
public:
    frmMiniCalc();

private:
    void Connect();
    void Form_Load();
    void Form_KeyPress(short& KeyAscii);
    void cmdChiudi_Click();
    void cmdClear_Click();
    void Clear();
    void ClearTime();
    void ClearDate();

    void optBase_Click(int Index);
    void optFormat_Click(int Index);
    void optTipoDati_Click(int Index);
    void optSomma_Click(int Index);
    void optSommaData_Click(int Index);

    // The running total, as it stands on the side on screen
    std::string Total() const;
    void AnnounceTotal();
    void OfferCopies();
    void CopyTotal(bool WithCaption);

    static int Chosen(const forms::ControlArray<forms::OptionButton>& Of);
    void ShowHelp();
    void SetHelpTitle(int Index);
    void SetHelpText(int HelpIndex);

    // The running clock time
    void cmdSommaOre_Click();
    void txtCalc_Change(int Index);
    void txtCalc_GotFocus(int Index);
    ClockTime ReadTime(int First, int Sign) const;

    // The running date
    void cmdSommaData_Click();
    void txtData_Change(int Index);
    void txtData_GotFocus(int Index);
    void txtData_LostFocus(int Index);
    void txtSommaDati_GotFocus();
    void RefuseYear();
    std::string DateText() const;
    void ShowDate(DateValue Value);
    const DateUnit& Unit() const;

    // Switches
    forms::ControlArray<forms::OptionButton> optBase{*this, "optBase"};
    forms::ControlArray<forms::OptionButton> optFormat{*this, "optFormat"};
    forms::ControlArray<forms::OptionButton> optTipoDati{*this, "optTipoDati"};
    forms::ControlArray<forms::OptionButton> optSomma{*this, "optSomma"};
    forms::ControlArray<forms::OptionButton> optSommaData{*this, "optSommaData"};
    forms::ControlArray<forms::PictureBox> picBase{*this, "picBase"};
    forms::ControlArray<forms::PictureBox> picCalc{*this, "picCalc"};

    // Entry and result
    forms::ControlArray<forms::TextBox> txtCalc{*this, "txtCalc"};
    forms::ControlArray<forms::TextBox> txtData{*this, "txtData"};
    forms::TextBox& txtSommaDati = *ui.txtSommaDati;
    forms::CommandButton& cmdSommaOre = *ui.cmdSommaOre;
    forms::CommandButton& cmdSommaData = *ui.cmdSommaData;

    // Texts
    forms::ControlArray<forms::Label> lblTime{*this, "lblTime"};
    forms::Label& lblTitoloHelp = *ui.lblTitoloHelp;
    forms::Label& lblHelpTxt = *ui.lblHelpTxt;

    forms::CommandButton& cmdClear = *ui.cmdClear;
    forms::CommandButton& cmdChiudi = *ui.cmdChiudi;

    static const std::array<Segment, 6> TimeRules;
    static const std::array<Segment, 3> DateRules;
    const SegmentedField TimeFields{txtCalc, TimeRules, &cmdSommaOre};
    const SegmentedField DateFields{txtData, DateRules, &txtSommaDati};
};

}
