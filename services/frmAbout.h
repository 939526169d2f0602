#pragma once

#include "services/forms/CommandButton.h"
#include "services/forms/ControlArray.h"
#include "services/forms/Label.h"
#include "services/forms/PictureBox.h"
#include "ui_frmAbout.h"

namespace vellarno {

/// The about box: what the program is, its version and disclaimer, today on a calendar page, and
/// the two links. Shown modally; either link closes it, whether or not it could be opened.
class frmAbout : public forms::Designed<Ui::frmAbout>
{
public:
    frmAbout();

private:
    void Connect();
    void Form_Load();
    void cmdChiudi_Click();
    void imgsito_Click();
    void lblEmail_Click();
    void ShowLinks();
    void ShowToday();

    forms::Label& lblVersione = *ui.lblVersione;
    forms::Label& lblWarning = *ui.lblWarning;
    forms::ControlArray<forms::Label> lblCalendario{*this, "lblCalendario"};
    forms::PictureBox& imgsito = *ui.imgsito;
    forms::Label& lblEmail = *ui.lblEmail;
    forms::CommandButton& cmdChiudi = *ui.cmdChiudi;
};

}
