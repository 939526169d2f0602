#pragma once

#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "mainwindow/frmMain.h"
#include "tests/support/Driver.h"
#include "tests/support/Recorder.h"

#include <gtest/gtest.h>

namespace vellarno::test {

enum Mode { Times, Moments, Dates };

/// The main window on screen, with a clock that stands still and a recorder behind it.
class MainWindow : public ::testing::Test
{
protected:
    template <class ControlClass>
    using Array = forms::ControlArray<ControlClass>;

    static void SetNow(int Year, int Month, int Day, int Hour = 0, int Minute = 0, int Second = 0)
    {
        const double now = DateSerial(Year, Month, Day) + TimeSerial(Hour, Minute, Second);
        SetClock([now] { return now; });
    }

    MainWindow()
    {
        SetNow(2026, 11, 22, 14, 5, 9);
        Open(form);
    }
    ~MainWindow() override { SetClock(nullptr); }

    void Choose(int Mode) { Click(optDataTime[Mode]); }

    /// Types into the first field of a date or time row: "01012005", "081530".
    void Enter(forms::TextBox& First, const std::string& Digits)
    {
        First.SetFocus();
        Type(form, Digits);
    }

    void EnterDates(const std::string& Start, const std::string& End)
    {
        Enter(txtData[0], Start);
        Enter(txtData[3], End);
    }

    void EnterTimes(const std::string& Start, const std::string& End)
    {
        Enter(txtTime[0], Start);
        Enter(txtTime[3], End);
    }

    template <class ControlClass>
    static std::string Captions(const Array<ControlClass>& Labels, int From, int To)
    {
        std::string all;
        for (int index = From; index <= To; ++index)
            all += (index > From ? " " : "") + Labels[index].Caption();
        return all;
    }

    static std::string Texts(const Array<forms::TextBox>& Boxes)
    {
        std::string all;
        for (int index = 0; index < 6; ++index) all += (index ? " " : "") + Boxes[index].Text();
        return all;
    }

    bool ResultsEmpty() const
    {
        std::string all;
        for (const auto* labels : {&lblDati, &lblTotali, &lblWeekDay})
            for (const auto& label : *labels) all += label.Caption();
        return all.empty();
    }

    /// The index of the box that has the focus, as "data 3" or "time 0", or nothing.
    std::string Focus() const
    {
        for (int index = 0; index < 6; ++index) {
            if (form.ActiveControl() == &txtData[index]) return "data " + std::to_string(index);
            if (form.ActiveControl() == &txtTime[index]) return "time " + std::to_string(index);
        }
        return {};
    }

    int BeepsOf(const std::function<void()>& Action)
    {
        desktop.Beeps = 0;
        Action();
        return desktop.Beeps;
    }

    Recorder desktop;
    frmMain form;
    Array<forms::TextBox> txtData{form, "txtData"};
    Array<forms::TextBox> txtTime{form, "txtTime"};
    Array<forms::Label> lblDati{form, "lblDati"};
    Array<forms::Label> lblTotali{form, "lblTotali"};
    Array<forms::Label> lblWeekDay{form, "lblWeekDay"};
    Array<forms::Label> lblLabel{form, "lblLabel"};
    Array<forms::Label> lblSeparatore{form, "lblSeparatore"};
    Array<forms::Label> lblChekBox{form, "lblChekBox"};
    Array<forms::OptionButton> optDataTime{form, "optDataTime"};
    Array<forms::CommandButton> cmdNowData{form, "cmdNowData"};
    Array<forms::CommandButton> cmdNowTime{form, "cmdNowTime"};
    forms::CheckBox& chkDayInt = form.Get<forms::CheckBox>("chkDayInt");
    forms::CheckBox& chkWorkSat = form.Get<forms::CheckBox>("chkWorkSat");
    forms::CommandButton& cmdCalcola = form.Get<forms::CommandButton>("cmdCalcola");
    forms::PictureBox& picOption = form.Get<forms::PictureBox>("picOption");
    forms::PictureBox& picCalendario = form.Get<forms::PictureBox>("picCalendario");
    forms::Image& shpShadow = form.Get<forms::Image>("shpShadow");
    forms::Image& imgBorder = form.Get<forms::Image>("imgBorder");
};

}
