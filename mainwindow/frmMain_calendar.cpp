#include "mainwindow/frmMain.h"

#include "engine/Clock.h"
#include "engine/Holidays.h"
#include "engine/Text.h"
#include "services/GenericBas.h"
#include "services/forms/Accessibility.h"

#include <algorithm>
#include <cctype>

namespace vellarno {

namespace {

constexpr int FirstSteppedYear = 1900; ///< stepping back goes no further
constexpr int ShadowOffset = 5;
/// Values of the scroll bar that lead into the year before and the year after.
constexpr int YearBefore = 0;
constexpr int YearAfter = 13;

/// The day in full, as it is read aloud: lunedì 3 gennaio 2005.
std::string SpokenDay(DayNumber Serial, bool Holiday)
{
    return Format(Serial, "dddd d mmmm yyyy") + (Holiday ? ", festivo" : "");
}

std::string InCapitals(std::string Text)
{
    std::ranges::transform(Text, Text.begin(),
                           [](unsigned char Letter) { return std::toupper(Letter); });
    return Text;
}

bool IsCorrect(int Mese, int Anno)
{
    return Mese >= 1 && Mese <= 12 && Anno >= FirstYear && Anno <= LastYear;
}

}

void frmMain::cmdNowData_Click(int Index)
{
    picCalendario.SetTop(PicData[Index].Top() + PicData[Index].Height() + 2);
    picCalendario.SetLeft(PicData[Index].Left() - 2);
    ShowCalendar(Index);
    picCalendario.SetVisible(true);
    shpShadow.SetVisible(true);
    CalCampo = Index;
    ClearResults();
    picOption.SetFocus();
    forms::Announce(*this,
                    cmdNowData[Index].AccessibleName() + ": " + MarkedCell().AccessibleName());
}

/// Prepares the panel for an entry, or for today's month with Index -1; it stays hidden.
void frmMain::ShowCalendar(int Index)
{
    for (auto& cell : GIORNO) SetHandCursor(cell);
    SetHandCursor(hscDataScroll);
    HideCalendar();
    shpShadow.Move(picCalendario.Left() + ShadowOffset, picCalendario.Top() + ShadowOffset,
                   picCalendario.Width(), picCalendario.Height());
    const DayNumber today = Date();
    CalMese = Month(today);
    CalAnno = Year(today);
    CalGiorno = 0;
    if (Index >= 0) {
        CalGiorno = CInt(txtData[FirstBox(Index)].Text()).value_or(0);
        const auto month = CInt(txtData[FirstBox(Index) + 1].Text());
        const auto year = CInt(txtData[FirstBox(Index) + 2].Text());
        if (month && year && IsCorrect(*month, *year)) {
            CalMese = *month;
            CalAnno = *year;
        }
    }
    if (CalGiorno < 1 || CalGiorno > LastDay())
        CalGiorno = CalMese == Month(today) && CalAnno == Year(today) ? Day(today) : 1;
    hscDataScroll.SetValue(CalMese);
    FillCalendar(CalMese, CalAnno);
}

void frmMain::HideCalendar()
{
    picCalendario.SetVisible(false);
    shpShadow.SetVisible(false);
}

/// Hides it where something else does so by the way, and tells those who can't see it go.
void frmMain::CloseCalendar()
{
    if (picCalendario.Visible()) forms::Announce(*this, "Calendario chiuso");
    HideCalendar();
}

void frmMain::hscDataScroll_Change()
{
    CalMese = hscDataScroll.Value();
    if (CalMese == YearAfter) {
        if (CalAnno < LastYear) ++CalAnno;
        hscDataScroll.SetValue(1); // comes here again
    } else if (CalMese == YearBefore) {
        if (CalAnno > FirstSteppedYear) --CalAnno;
        hscDataScroll.SetValue(12);
    } else {
        CalGiorno = std::min(CalGiorno, LastDay());
        FillCalendar(CalMese, CalAnno);
        if (picCalendario.Visible()) AnnounceStep();
    }
}

/// The day, if the keyboard acts on the days, else the month.
void frmMain::AnnounceStep()
{
    forms::Announce(*this, ActiveControl() == &picOption ? MarkedCell().AccessibleName()
                                                         : Format(FirstDay(), "mmmm yyyy"));
}

/// While the calendar is open the keys of the option strip go over its days.
bool frmMain::picOption_KeyDown(forms::Key Pressed)
{
    if (!picCalendario.Visible()) return false;
    const DayNumber marked = FirstDay() + CalGiorno - 1;
    using forms::Key;
    switch (Pressed) {
    case Key::Left: MoveMark(marked - 1); break;
    case Key::Right: MoveMark(marked + 1); break;
    case Key::Up: MoveMark(marked - 7); break;
    case Key::Down: MoveMark(marked + 7); break;
    case Key::PageUp: MoveMark(DateAdd("m", -1, marked).value()); break;
    case Key::PageDown: MoveMark(DateAdd("m", 1, marked).value()); break;
    case Key::Home: MoveMark(FirstDay()); break;
    case Key::End: MoveMark(FirstDay() + LastDay() - 1); break;
    case Key::Enter:
    case Key::Space: MarkedCell().Click(); break;
    case Key::Other: return false;
    }
    return true;
}

/// @param To  a day of the month on show, or of the one before or after: the calendar steps there.
void frmMain::MoveMark(DateValue To)
{
    CalGiorno = Day(To);
    const int month = Month(To);
    if (month == CalMese) {
        PlaceMark();
        AnnounceStep();
    } else {
        hscDataScroll.SetValue(CalMese + ((month - CalMese + 12) % 12 == 1 ? 1 : -1));
    }
}

DayNumber frmMain::FirstDay() const
{
    return DateSerial(CalAnno, CalMese, 1);
}

int frmMain::LastDay() const
{
    return Day(DateSerial(CalAnno, CalMese + 1, 0));
}

const forms::Label& frmMain::MarkedCell() const
{
    return GIORNO[Weekday(FirstDay(), Monday) + CalGiorno - 1];
}

void frmMain::PlaceMark()
{
    const forms::Label& cell = MarkedCell();
    shpMarker.Move(cell.Left(), cell.Top(), cell.Width(), cell.Height());
}

void frmMain::txtCalMeseAnno_GotFocus()
{
    hscDataScroll.SetFocus();
}

void frmMain::FillCalendar(int Mese, int Anno)
{
    const DayNumber first = DateSerial(Anno, Mese, 1);
    txtCalMeseAnno.SetText(InCapitals(Format(first, " mmm yyyy")));
    const DayNumber monday = first - Weekday(first, Monday) + 1;
    const DayNumber easterMonday = EasterDate(Year(monday)) + 1;
    shpOggi.SetVisible(false);
    PlaceMark();
    DayNumber serial = monday;
    for (auto& cell : GIORNO) FillDay(cell, serial++, Mese, easterMonday);
    const int today = Date() - monday + 1;
    if (!GIORNO.Has(today) || !GIORNO[today].Enabled()) return;
    shpOggi.SetLeft(GIORNO[today].Left() - 1);
    shpOggi.SetTop(GIORNO[today].Top());
    shpOggi.SetVisible(true);
}

// The days that fill the grid before and after the month keep the colour and weight they had.
void frmMain::FillDay(forms::Label& Cell, DayNumber Serial, int Mese, DayNumber MondayNumber)
{
    const bool shown = Month(Serial) == Mese;
    Cell.SetEnabled(shown);
    Cell.SetCaption(CStr(Day(Serial)));
    const bool holiday = shown && IsHoliday(Serial, MondayNumber);
    Cell.SetAccessibleName(SpokenDay(Serial, holiday));
    if (!shown) return;
    Cell.SetForeColor(holiday ? forms::PureRed : forms::ButtonText);
    Cell.SetFontBold(holiday);
}

void frmMain::GIORNO_MouseDown(int Index)
{
    GIORNO[Index].SetBackOpaque(true);
    GIORNO[Index].SetBackColor(forms::ActiveBorder);
}

void frmMain::GIORNO_MouseUp(int Index)
{
    GIORNO[Index].SetBackOpaque(false);
    GIORNO[Index].SetBackColor(forms::WindowBackground);
}

void frmMain::GIORNO_Click(int Index)
{
    const std::string day = Format(GIORNO[Index].Caption(), "00");
    ClearResults();
    HideCalendar();
    const int first = FirstBox(CalCampo);
    txtData[first].SetText(day);
    txtData[first + 1].SetText(Format(CalMese, "00"));
    txtData[first + 2].SetText(Format(CalAnno, "0000"));
    picOption.SetFocus();
    forms::Announce(*this, std::string(EndNames[CalCampo]) + ": " + GIORNO[Index].AccessibleName());
}

}
