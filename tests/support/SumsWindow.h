#pragma once

#include "minicalc/frmMiniCalc.h"
#include "tests/support/Stage.h"

namespace vellarno::test {

/// The sequential calculator with a person before it, who reads it as a person does: empty places
/// show as "_".
class SumsWindow : public Stage<frmMiniCalc>
{
public:
    enum Side { Time, Date };

    explicit SumsWindow(Side Chosen = Time)
    {
        if (Chosen != Time) Click(optBase[Chosen]);
        TakeLog();
    }

    /// The running clock time and the value: "02:15:00 00:00:00"
    std::string Times() const { return Row(txtCalc, 0, ':') + ' ' + Row(txtCalc, 3, ':'); }
    /// The running date and what it is moved by: "22/11/2026 0000 giorni"
    std::string Dates() const
    {
        return Row(txtData, 0, '/') + ' ' + txtSommaDati.Text() + ' ' + lblTime[5].Caption();
    }

    Array<forms::OptionButton> optBase{form, "optBase"}, optFormat{form, "optFormat"};
    Array<forms::OptionButton> optTipoDati{form, "optTipoDati"}, optSomma{form, "optSomma"};
    Array<forms::OptionButton> optSommaData{form, "optSommaData"};
    Array<forms::PictureBox> picBase{form, "picBase"};
    Array<forms::TextBox> txtCalc{form, "txtCalc"}, txtData{form, "txtData"};
    Array<forms::Label> lblTime{form, "lblTime"};
    forms::TextBox& txtSommaDati = Find<forms::TextBox>(form, "txtSommaDati");
    forms::CommandButton& cmdSommaOre = Find<forms::CommandButton>(form, "cmdSommaOre");
    forms::CommandButton& cmdSommaData = Find<forms::CommandButton>(form, "cmdSommaData");
    forms::CommandButton& cmdClear = Find<forms::CommandButton>(form, "cmdClear");
    forms::CommandButton& cmdChiudi = Find<forms::CommandButton>(form, "cmdChiudi");
    forms::Label& lblHelpTxt = Find<forms::Label>(form, "lblHelpTxt");
};

}
