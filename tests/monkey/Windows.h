#pragma once

#include "mainwindow/frmMain.h"

namespace vellarno::test {

template <class ControlClass>
using Array = forms::ControlArray<ControlClass>;

/// The main window's controls.
struct MainWindow
{
    frmMain& Form;
    Array<forms::TextBox> txtData{Form, "txtData"};
    Array<forms::TextBox> txtTime{Form, "txtTime"};
    Array<forms::Label> lblDati{Form, "lblDati"};
    Array<forms::Label> lblTotali{Form, "lblTotali"};
    Array<forms::Label> lblWeekDay{Form, "lblWeekDay"};
    Array<forms::Label> lblLabel{Form, "lblLabel"};
    Array<forms::Label> lblSeparatore{Form, "lblSeparatore"};
    Array<forms::Label> lblChekBox{Form, "lblChekBox"};
    Array<forms::OptionButton> optDataTime{Form, "optDataTime"};
    Array<forms::CommandButton> cmdNowData{Form, "cmdNowData"};
    Array<forms::CommandButton> cmdNowTime{Form, "cmdNowTime"};
    Array<forms::Image> imgTipoCalcolo{Form, "imgTipoCalcolo"};
    Array<forms::Label> GIORNO{Form, "GIORNO"};
    Array<forms::PictureBox> picToolBarra{Form, "picToolBarra"};
    forms::CheckBox& chkDayInt = Form.Get<forms::CheckBox>("chkDayInt");
    forms::CheckBox& chkWorkSat = Form.Get<forms::CheckBox>("chkWorkSat");
    forms::CommandButton& cmdCalcola = Form.Get<forms::CommandButton>("cmdCalcola");
    forms::PictureBox& picCalendario = Form.Get<forms::PictureBox>("picCalendario");
    forms::Image& shpShadow = Form.Get<forms::Image>("shpShadow");
    forms::ScrollBar& hscDataScroll = Form.Get<forms::ScrollBar>("hscDataScroll");
    forms::TextBox& txtCalMeseAnno = Form.Get<forms::TextBox>("txtCalMeseAnno");
    forms::Image& imgOnTop = Form.Get<forms::Image>("imgOnTop");

    int Mode() const { return optDataTime[0].Value() ? 0 : optDataTime[1].Value() ? 1 : 2; }
    /// What stands in a panel of the status strip, which only exists once the window has loaded.
    std::string Panel(int Index) const
    {
        const std::string name = "picBarra_" + std::to_string(Index);
        return Form.Get<forms::PictureBox>(name.c_str()).PrintedText();
    }
};

/// The sequential calculator's controls.
struct SumsWindow
{
    frmMiniCalc& Form;
    Array<forms::OptionButton> optBase{Form, "optBase"};
    Array<forms::OptionButton> optFormat{Form, "optFormat"};
    Array<forms::OptionButton> optTipoDati{Form, "optTipoDati"};
    Array<forms::OptionButton> optSomma{Form, "optSomma"};
    Array<forms::OptionButton> optSommaData{Form, "optSommaData"};
    Array<forms::PictureBox> picBase{Form, "picBase"};
    Array<forms::TextBox> txtCalc{Form, "txtCalc"};
    Array<forms::TextBox> txtData{Form, "txtData"};
    Array<forms::Label> lblTime{Form, "lblTime"};
    forms::TextBox& txtSommaDati = Form.Get<forms::TextBox>("txtSommaDati");
    forms::CommandButton& cmdSommaOre = Form.Get<forms::CommandButton>("cmdSommaOre");
    forms::CommandButton& cmdSommaData = Form.Get<forms::CommandButton>("cmdSommaData");
    forms::Label& lblTitoloHelp = Form.Get<forms::Label>("lblTitoloHelp");
    forms::Label& lblHelpTxt = Form.Get<forms::Label>("lblHelpTxt");
};

}
