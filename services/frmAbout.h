#pragma once

#include "services/forms/CommandButton.h"
#include "services/forms/ControlArray.h"
#include "services/forms/Label.h"
#include "services/forms/PictureBox.h"

namespace Ui {
class frmAbout;
}

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

    forms::Label& lblVersione = Get<forms::Label>("lblVersione");
    forms::Label& lblWarning = Get<forms::Label>("lblWarning");
    forms::ControlArray<forms::Label> lblCalendario{*this, "lblCalendario"};
    forms::PictureBox& imgsito = Get<forms::PictureBox>("imgsito");
    forms::Label& lblEmail = Get<forms::Label>("lblEmail");
    forms::CommandButton& cmdChiudi = Get<forms::CommandButton>("cmdChiudi");
};

}
