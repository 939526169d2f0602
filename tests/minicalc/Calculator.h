#pragma once

#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Text.h"
#include "minicalc/frmMiniCalc.h"
#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"
#include "tests/support/Workbench.h"

#include <gtest/gtest.h>

namespace vellarno::test {

/// The sequential calculator on screen above its owner, on 22/11/2026.
class Calculator : public ::testing::Test
{
protected:
    template <class ControlClass>
    using Array = forms::ControlArray<ControlClass>;
    enum Side { Time, Date };

    Calculator()
    {
        SetClock([] { return DateSerial(2026, 11, 22) + 0.5; });
        Open(owner);
        form.Show(&owner);
        Open(form);
    }

    ~Calculator() override
    {
        if (ref.Open()) form.Close();
        Settle();
        SetClock(nullptr);
    }

    /// Name of the control that has the focus.
    std::string Focus() const { return form.ActiveControl()->Widget().objectName().toStdString(); }

    static std::string Joined(const Array<forms::TextBox>& Boxes, int First, const char* Separator)
    {
        return Boxes[First].Text() + Separator + Boxes[First + 1].Text() + Separator +
               Boxes[First + 2].Text();
    }
    std::string Total() const { return Joined(txtCalc, 0, ":"); }
    std::string Value() const { return Joined(txtCalc, 3, ":"); }
    std::string Day() const { return Joined(txtData, 0, "/"); }

    /// Writes the parts of "05:30:00" or "31/12/2020" into a row.
    static void Write(const Array<forms::TextBox>& Boxes, int First, std::string Parts)
    {
        for (int i = 0; i < 3; ++i) {
            const auto end = Parts.find_first_of(":/");
            Boxes[First + i].SetText(Parts.substr(0, end));
            Parts.erase(0, end == std::string::npos ? end : end + 1);
        }
    }

    int BeepsOf(const std::function<void()>& Action)
    {
        desktop.Beeps = 0;
        Action();
        return desktop.Beeps;
    }

    /// Types into a field; gives its text, the focus and the beeps, parted by blanks.
    std::string Typed(forms::TextBox& Box, const std::string& Keys)
    {
        Box.SetFocus();
        const int beeps = BeepsOf([&] { Type(form, Keys); });
        return Box.Text() + ' ' + Focus() + ' ' + std::to_string(beeps);
    }

    Recorder desktop;
    Workbench owner;
    frmMiniCalc& form = *new frmMiniCalc; ///< deletes itself when closed
    forms::FormRef<frmMiniCalc> ref{form};
    Array<forms::TextBox> txtCalc{form, "txtCalc"};
    Array<forms::TextBox> txtData{form, "txtData"};
    forms::TextBox& txtSommaDati = form.Get<forms::TextBox>("txtSommaDati");
    Array<forms::OptionButton> optBase{form, "optBase"};
    Array<forms::OptionButton> optFormat{form, "optFormat"};
    Array<forms::OptionButton> optTipoDati{form, "optTipoDati"};
    Array<forms::OptionButton> optSomma{form, "optSomma"};
    Array<forms::OptionButton> optSommaData{form, "optSommaData"};
    Array<forms::PictureBox> picBase{form, "picBase"};
    Array<forms::Label> lblTime{form, "lblTime"};
    forms::Label& lblTitoloHelp = form.Get<forms::Label>("lblTitoloHelp");
    forms::Label& lblHelpTxt = form.Get<forms::Label>("lblHelpTxt");
    forms::CommandButton& cmdSommaOre = form.Get<forms::CommandButton>("cmdSommaOre");
    forms::CommandButton& cmdSommaData = form.Get<forms::CommandButton>("cmdSommaData");
    forms::CommandButton& cmdClear = form.Get<forms::CommandButton>("cmdClear");
    forms::CommandButton& cmdChiudi = form.Get<forms::CommandButton>("cmdChiudi");
};

}
