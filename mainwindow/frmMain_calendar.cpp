#include "mainwindow/frmMain.h"

#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "engine/Holidays.h"
#include "engine/Text.h"
#include "resources/Resources.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace vellarno {

namespace {

constexpr int FirstYear = 1000;
constexpr int LastYear = 2100;
constexpr int FirstSteppedYear = 1900; ///< stepping back goes no further
constexpr int ShadowOffset = 5;
/// Values of the scroll bar that lead into the year before and the year after.
constexpr int YearBefore = 0;
constexpr int YearAfter = 13;

constexpr std::array MonthNames{"gennaio",   "febbraio", "marzo",    "aprile",
                                "maggio",    "giugno",   "luglio",   "agosto",
                                "settembre", "ottobre",  "novembre", "dicembre"};

/// The day in full, as it is read aloud: lunedì 3 gennaio 2005.
std::string SpokenDay(int Serial, bool Holiday)
{
    std::string weekday = WeekdayText(Weekday(Serial, 1));
    weekday[0] = static_cast<char>(std::tolower(weekday[0]));
    return weekday + ' ' + CStr(Day(Serial)) + ' ' +
           MonthNames[static_cast<std::size_t>(Month(Serial) - 1)] + ' ' + CStr(Year(Serial)) +
           (Holiday ? ", festivo" : "");
}

std::string InCapitals(std::string Text)
{
    std::ranges::transform(Text, Text.begin(), [](unsigned char c) { return std::toupper(c); });
    return Text;
}

}

bool IsCorrect(int Mese, int Anno)
{
    return Mese >= 1 && Mese <= 12 && Anno >= FirstYear && Anno <= LastYear;
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
}

/// Prepares the panel for an entry, or for today's month with Index -1; it stays hidden.
void frmMain::ShowCalendar(int Index)
{
    for (auto& cell : GIORNO) {
        cell.SetMousePointer(forms::CustomPointer);
        cell.SetMouseIcon(resources::HandCursor);
    }
    hscDataScroll.SetMousePointer(forms::CustomPointer);
    hscDataScroll.SetMouseIcon(resources::HandCursor);
    HideCalendar();
    shpShadow.Move(picCalendario.Left() + ShadowOffset, picCalendario.Top() + ShadowOffset,
                   picCalendario.Width(), picCalendario.Height());
    CalMese = Month(Date());
    CalAnno = Year(Date());
    if (Index >= 0) {
        const auto month = CInt(txtData[Index * 3 + 1].Text());
        const auto year = CInt(txtData[Index * 3 + 2].Text());
        if (month && year && IsCorrect(*month, *year)) {
            CalMese = *month;
            CalAnno = *year;
        }
    }
    hscDataScroll.SetValue(CalMese);
    FillCalendar(CalMese, CalAnno);
}

void frmMain::HideCalendar()
{
    picCalendario.SetVisible(false);
    shpShadow.SetVisible(false);
}

void frmMain::hscDataScroll_Change()
{
    if (hscDataScroll.Value() == YearAfter) {
        hscDataScroll.SetValue(1);
        if (CalAnno < LastYear) ++CalAnno;
    } else if (hscDataScroll.Value() == YearBefore) {
        hscDataScroll.SetValue(12);
        if (CalAnno > FirstSteppedYear) --CalAnno;
    }
    CalMese = hscDataScroll.Value();
    FillCalendar(CalMese, CalAnno);
}

/// By the keyboard a day is typed, which marks it, and taken with Enter.
void frmMain::hscDataScroll_KeyPress(short& KeyAscii)
{
    constexpr short Enter = 13;
    if (KeyAscii == Enter && GIORNO.Has(TypedCell())) {
        GIORNO_Click(TypedCell());
    } else if (KeyAscii >= '0' && KeyAscii <= '9') {
        CalGiorno = CalGiorno * 10 + (KeyAscii - '0');
        if (!GIORNO.Has(TypedCell())) CalGiorno = KeyAscii - '0'; // no such day: another begins
        MarkCell(TypedCell());
    }
}

/// The cell of the day that is being typed, 0 if the month has no such day.
int frmMain::TypedCell() const
{
    const int first = CLng(DateSerial(CalAnno, CalMese, 1));
    const int cell = Weekday(first, 2) + CalGiorno - 1;
    return CalGiorno > 0 && Month(first + CalGiorno - 1) == CalMese ? cell : 0;
}

void frmMain::MarkCell(int Index)
{
    for (auto& cell : GIORNO) cell.SetBackOpaque(false);
    if (!GIORNO.Has(Index)) return;
    GIORNO[Index].SetBackOpaque(true);
    GIORNO[Index].SetBackColor(forms::ActiveBorder);
}

void frmMain::txtCalMeseAnno_GotFocus()
{
    hscDataScroll.SetFocus();
}

void frmMain::FillCalendar(int Mese, int Anno)
{
    const int first = CLng(DateSerial(Anno, Mese, 1));
    txtCalMeseAnno.SetText(InCapitals(Format(first, " mmm yyyy")));
    const int monday = first - Weekday(first, 2) + 1;
    const int easterMonday = EasterDate(Year(monday)) + 1;
    shpOggi.SetVisible(false);
    CalGiorno = 0;
    MarkCell(0);
    int serial = monday;
    for (auto& cell : GIORNO) FillDay(cell, serial++, Mese, easterMonday);
    const int today = static_cast<int>(Date()) - monday + 1;
    if (!GIORNO.Has(today) || !GIORNO[today].Enabled()) return;
    shpOggi.SetLeft(GIORNO[today].Left() - 1);
    shpOggi.SetTop(GIORNO[today].Top());
    shpOggi.SetVisible(true);
}

// The days that fill the grid before and after the month keep the colour and weight they had.
void frmMain::FillDay(forms::Label& Cell, int Serial, int Mese, int MondayNumber)
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
    MarkCell(Index);
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
    const int first = CalCampo == 0 ? 0 : 3;
    txtData[first].SetText(day);
    txtData[first + 1].SetText(Format(CalMese, "00"));
    txtData[first + 2].SetText(Format(CalAnno, "0000"));
    HideCalendar();
    picOption.SetFocus();
}

}
