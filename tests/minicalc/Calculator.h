#pragma once

#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Text.h"
#include "minicalc/frmMiniCalc.h"
#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"
#include "tests/support/Workbench.h"

#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace vellarno::test {

/// The sequential calculator on screen above its owner, on 22/11/2026.
class Calculator : public ::testing::Test
{
protected:
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

    forms::TextBox& Box(const std::string& Name) { return form.Get<forms::TextBox>(Name.c_str()); }
    forms::OptionButton& Option(const std::string& Name)
    {
        return form.Get<forms::OptionButton>(Name.c_str());
    }
    std::string Caption(const char* Name) { return form.Get<forms::Label>(Name).Caption(); }
    void Push(const char* Name) { Click(form.Get<forms::CommandButton>(Name)); }
    /// Clicks one of an array of options.
    void Choose(const std::string& Name, int Index) { Click(Option(Name + '_' + CStr(Index))); }

    /// Name of the control that has the focus.
    std::string Focus() { return form.ActiveControl()->Widget().objectName().toStdString(); }

    /// The texts of three boxes in a row, parted by blanks.
    std::string Row(const std::string& Name, int First)
    {
        std::string all;
        for (int i = First; i < First + 3; ++i)
            all += (i > First ? " " : "") + Box(Name + '_' + CStr(i)).Text();
        return all;
    }
    void Fill(const std::string& Name, int First, const std::string& Row)
    {
        std::istringstream texts(Row + "   ");
        std::string text;
        for (int i = First; i < First + 3; ++i) {
            std::getline(texts, text, ' ');
            Box(Name + '_' + CStr(i)).SetText(text);
        }
    }

    /// Types into a box, where \b is backspace; gives its text, the focus and the beeps, parted by
    /// blanks.
    std::string Typed(const std::string& Name, const std::string& Keys)
    {
        Box(Name).SetFocus();
        desktop.Beeps = 0;
        for (const char key : Keys)
            key == '\b' ? Press(form, Qt::Key_Backspace) : Type(form, std::string(1, key));
        return Box(Name).Text() + ' ' + Focus() + ' ' + CStr(desktop.Beeps);
    }

    Recorder desktop;
    Workbench owner;
    frmMiniCalc& form = *new frmMiniCalc; ///< deletes itself when closed
    forms::FormRef<frmMiniCalc> ref{form};
    std::mt19937 random{20261122};
    int Within(int Low, int High) { return std::uniform_int_distribution(Low, High)(random); }
};

}
