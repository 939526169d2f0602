#pragma once

#include "engine/DateTime.h"
#include "engine/ResultLabels.h"
#include "minicalc/frmMiniCalc.h"
#include "services/CTooltip.h"
#include "services/SegmentedField.h"
#include "services/StatusBar.h"
#include "services/forms/CheckBox.h"
#include "services/forms/CommandButton.h"
#include "services/forms/ControlArray.h"
#include "services/forms/Form.h"
#include "services/forms/Image.h"
#include "services/forms/Label.h"
#include "services/forms/OptionButton.h"
#include "services/forms/PictureBox.h"
#include "services/forms/ScrollBar.h"
#include "services/forms/TextBox.h"
#include "services/forms/Timer.h"
#include "ui_frmMain.h"

#include <array>
#include <string>
#include <vector>

namespace vellarno {

/// The main window: two dates, two clock times or two moments are typed in and compared. The mode
/// is the selected option; results stand in the labels alone.
class frmMain : public forms::Designed<Ui::frmMain>, private ResultLabels
{
public:
    frmMain();

    /// Shows the time, and on a new day of the month everything else in the strip
    /// (frmMain_strip.cpp). Public for those that don't wait for a tick.
    void Timer1_Timer();

private:
    /// What is compared, as the options are numbered.
    enum Mode { Times, Moments, Dates };

    // The entry rows
    forms::ControlArray<forms::PictureBox> PicData{*this, "PicData"};
    forms::ControlArray<forms::TextBox> txtData{*this, "txtData"};
    forms::ControlArray<forms::TextBox> txtTime{*this, "txtTime"};
    forms::ControlArray<forms::Label> lblSeparatore{*this, "lblSeparatore"};
    forms::ControlArray<forms::CommandButton> cmdNowData{*this, "cmdNowData"};
    forms::ControlArray<forms::CommandButton> cmdNowTime{*this, "cmdNowTime"};

    // The results and their captions
    forms::ControlArray<forms::Label> lblDati{*this, "lblDati"};
    forms::ControlArray<forms::Label> lblTotali{*this, "lblTotali"};
    forms::ControlArray<forms::Label> lblWeekDay{*this, "lblWeekDay"};
    forms::ControlArray<forms::Label> lblLabel{*this, "lblLabel"};
    forms::Image& imgBorder = *ui.imgBorder;

    // The choices
    forms::CheckBox& chkDayInt = *ui.chkDayInt;
    forms::CheckBox& chkWorkSat = *ui.chkWorkSat;
    forms::ControlArray<forms::Label> lblChekBox{*this, "lblChekBox"};
    forms::PictureBox& picOption = *ui.picOption;
    forms::ControlArray<forms::Image> imgTipoCalcolo{*this, "imgTipoCalcolo"};
    forms::ControlArray<forms::OptionButton> optDataTime{*this, "optDataTime"};
    forms::CommandButton& cmdCalcola = *ui.cmdCalcola;
    forms::Image& imgOnTop = *ui.imgOnTop;

    // The calendar
    forms::PictureBox& picCalendario = *ui.picCalendario;
    forms::Image& shpShadow = *ui.shpShadow;
    forms::ScrollBar& hscDataScroll = *ui.hscDataScroll;
    forms::TextBox& txtCalMeseAnno = *ui.txtCalMeseAnno;
    forms::Image& shpOggi = *ui.shpOggi;
    forms::Image& shpMarker = *ui.shpMarker;
    forms::ControlArray<forms::Label> GIORNO{*this, "GIORNO"};

    // The status strip
    forms::ControlArray<forms::PictureBox> picBarra{*this, "picBarra"};
    forms::ControlArray<forms::PictureBox> picToolBarra{*this, "picToolBarra"};
    forms::Timer Timer1;

    // What the window remembers beyond its controls
    int CalMese = 0;      ///< month on show in the calendar, 1 to 12
    int CalAnno = 0;      ///< year on show in the calendar
    int CalCampo = 0;     ///< the entry that the calendar serves: 0 the start, 1 the end
    int CalGiorno = 0;    ///< day of the month on show that the keyboard acts on
    int UltimoGiorno = 0; ///< day of the month of the strip's last full update
    std::array<bool, TotalCount> BalloonShown{};
    StatusBar StatusStrip;
    CTooltip BalloonTip;
    forms::FormPointer<frmMiniCalc> Sums;
    static const std::array<Segment, 6> DateRules;
    static const std::array<Segment, 6> TimeRules;
    const SegmentedField DateField{txtData, DateRules};
    const SegmentedField TimeField{txtTime, TimeRules};

    void Connect();

    // Start and end, and the Enter key: frmMain.cpp
    void Form_Load();
    void Form_Unload();
    void Form_KeyPress(short& KeyAscii);

    // Calculation: frmMain_calculation.cpp
    void cmdCalcola_Click();
    void CompareTimes();
    void CompareMoments();
    void CompareDates();
    DayNumber TypedDate(int End) const;
    DateValue TypedTime(int End) const;
    void ShowWeekdays(DateValue StartDate, DateValue EndDate);

    // Refusals of what was entered: frmMain_validation.cpp
    bool HasAllFields(Mode Of) const;
    void ShowIncompleteData();
    bool ValidateDates();

    // Results: frmMain_results.cpp
    void SetDati(Elapsed Which, const std::string& Caption) override;
    void SetTotali(Total Which, const std::string& Caption) override;
    void SetHourglass(bool Shown) override;
    struct Figure
    {
        const forms::Label& Label;
        std::string Caption;
    };
    std::vector<Figure> Figures() const;
    forms::Label& CaptionOf(Total Which) const;
    void ClearResults();
    void AnnounceResults();
    void PrepareResults();
    void CopyResults();

    // Modes and options: frmMain_modes.cpp
    Mode ChosenMode() const;
    void optDataTime_Click(int Index);
    void DisableAll();
    void EnableMode(int Index);
    void chkDayInt_Click();
    void chkWorkSat_Click();
    void lblChekBox_Click(int Index);

    // Entry fields: frmMain_dates.cpp, frmMain_times.cpp
    void txtData_Change(int Index);
    void txtData_GotFocus(int Index);
    void txtData_LostFocus(int Index);
    void txtTime_Change(int Index);
    void txtTime_GotFocus(int Index);
    void txtTime_LostFocus(int Index);

    // Calendar: frmMain_calendar.cpp
    void cmdNowData_Click(int Index);
    void ShowCalendar(int Index);
    void HideCalendar();
    void CloseCalendar();
    void hscDataScroll_Change();
    bool picOption_KeyDown(forms::Key Pressed);
    void MoveMark(DateValue To);
    void PlaceMark();
    const forms::Label& MarkedCell() const;
    DayNumber FirstDay() const;
    int LastDay() const;
    void AnnounceStep();
    void txtCalMeseAnno_GotFocus();
    void FillCalendar(int Mese, int Anno);
    void FillDay(forms::Label& Cell, DayNumber Serial, int Mese, DayNumber MondayNumber);
    void GIORNO_MouseDown(int Index);
    void GIORNO_MouseUp(int Index);
    void GIORNO_Click(int Index);

    // Status strip and clock: frmMain_strip.cpp
    void InitStatusStrip();
    void UpdateStatusStrip(DayNumber Today);
    void PrintCentred(forms::PictureBox& Panel, const std::string& Text);
    void cmdNowTime_Click(int Index);

    // Balloons: frmMain_balloons.cpp
    void InitBalloons();
    const char* MeaningOfTotal(int Index) const;
    void DescribeTotals();
    void lblTotali_MouseMove(int Index);
    void CloseBalloons();

    // Toolbar, pin and help: frmMain_toolbar.cpp
    enum ToolIcon { DateSettings, About, Help, SequentialSums };
    void picToolBarra_Click(int Index);
    void imgOnTop_Click();
    void ShowHelp();
};

/// The two entries, as they are read aloud.
inline constexpr const char* EndNames[] = {"Inizio", "Fine"};

/// The first of the three boxes of an entry.
constexpr int FirstBox(int End)
{
    return 3 * End;
}

}
