#pragma once

#include "mainwindow/frmMain.h"
#include "tests/support/Stage.h"

namespace vellarno::test {

enum class Mode { Times, Moments, Dates };
/// The icons of the strip, by their index.
enum ToolIcon { DateSettingsIcon, AboutIcon, HelpIcon, SumsIcon };

/// The main window with a person before it, who reads it as a person does: empty places show as "_"
/// in the entry fields and as "-" among the figures.
class MainWindow : public Stage<frmMain>
{
public:
    explicit MainWindow(Mode Chosen = Mode::Times)
    {
        if (Chosen != Mode::Times) Choose(Chosen);
        TakeLog();
    }

    void Choose(Mode To) { Click(optDataTime[static_cast<int>(To)]); }
    void Tick(const forms::CheckBox& Box, bool On)
    {
        if ((Box.Value() == 1) != On) Click(Box);
    }
    /// Types a start and an end, from the first box of the rows on.
    void EnterDates(std::string_view Digits) { Enter(txtData[0], Digits); }
    void EnterTimes(std::string_view Digits) { Enter(txtTime[0], Digits); }
    /// Enters what the mode needs and presses the button.
    void Compare(std::string_view DateDigits, std::string_view TimeDigits = {})
    {
        if (!DateDigits.empty()) EnterDates(DateDigits);
        if (!TimeDigits.empty()) EnterTimes(TimeDigits);
        Click(cmdCalcola);
    }
    /// The clock's next tick, without waiting for it.
    void PassTick() { form.Timer1_Timer(); }

    /// "01/01/2005 __/__/____"
    std::string Dates() const { return Row(txtData, 0, '/') + ' ' + Row(txtData, 3, '/'); }
    /// "08:15:30 __:__:__"
    std::string Times() const { return Row(txtTime, 0, ':') + ' ' + Row(txtTime, 3, ':'); }
    /// Elapsed years to seconds, the totals of days to seconds, and the weekdays, parted by bars:
    /// "00 11 30 - - -|364 52 303 52 52 09 - - -|Sabato Sabato"
    std::string Figures() const
    {
        std::string all;
        for (const auto* labels : {&lblDati, &lblTotali, &lblWeekDay}) {
            for (const auto& label : *labels)
                all += (label.Caption().empty() ? "-" : label.Caption()) + ' ';
            all.back() = '|';
        }
        return all.substr(0, all.size() - 1);
    }
    bool HasResults() const { return Figures().find_first_not_of("- |") != std::string::npos; }
    bool CalendarIsOpen() const { return picCalendario.Visible() && shpShadow.Visible(); }
    bool CalendarIsClosed() const { return !picCalendario.Visible() && !shpShadow.Visible(); }
    std::string MonthOnShow() const { return txtCalMeseAnno.Text(); }
    /// What the balloon says that stands or is about to: heading, colon, text.
    std::string Balloon() const
    {
        std::string all;
        for (const auto* balloon : form.findChildren<forms::Balloon*>())
            all += balloon->Title() + ": " + balloon->Text();
        return all;
    }

    Array<forms::TextBox> txtData{form, "txtData"}, txtTime{form, "txtTime"};
    Array<forms::Label> lblDati{form, "lblDati"}, lblTotali{form, "lblTotali"};
    Array<forms::Label> lblWeekDay{form, "lblWeekDay"}, lblLabel{form, "lblLabel"};
    Array<forms::Label> lblSeparatore{form, "lblSeparatore"}, lblChekBox{form, "lblChekBox"};
    Array<forms::Label> GIORNO{form, "GIORNO"};
    Array<forms::CommandButton> cmdNowData{form, "cmdNowData"}, cmdNowTime{form, "cmdNowTime"};
    Array<forms::OptionButton> optDataTime{form, "optDataTime"};
    Array<forms::Image> imgTipoCalcolo{form, "imgTipoCalcolo"};
    Array<forms::PictureBox> picBarra{form, "picBarra"}, picToolBarra{form, "picToolBarra"};
    forms::CheckBox& chkDayInt = Find<forms::CheckBox>(form, "chkDayInt");
    forms::CheckBox& chkWorkSat = Find<forms::CheckBox>(form, "chkWorkSat");
    forms::CommandButton& cmdCalcola = Find<forms::CommandButton>(form, "cmdCalcola");
    forms::Image& imgBorder = Find<forms::Image>(form, "imgBorder");
    forms::Image& imgOnTop = Find<forms::Image>(form, "imgOnTop");
    forms::PictureBox& picCalendario = Find<forms::PictureBox>(form, "picCalendario");
    forms::Image& shpShadow = Find<forms::Image>(form, "shpShadow");
    forms::ScrollBar& hscDataScroll = Find<forms::ScrollBar>(form, "hscDataScroll");
    forms::TextBox& txtCalMeseAnno = Find<forms::TextBox>(form, "txtCalMeseAnno");
};

/// Tests before the main window in a mode.
template <Mode Chosen>
struct Before : testing::Test, MainWindow
{
    Before() : MainWindow(Chosen) {}
};

}
