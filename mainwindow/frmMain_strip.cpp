#include "mainwindow/frmMain.h"

#include "engine/Clock.h"
#include "engine/Text.h"
#include "services/GenericBas.h"
#include "services/forms/Accessibility.h"

#include <utility>

namespace vellarno {

namespace {

constexpr short RightEdges[] = {142, 200, 235, 270, 305, 340, 375, 400, 425, 450, -1};

constexpr int DatePanel = 5;
constexpr int ClockPanel = 6;
/// The boxes of the strip's parts from left to right.
constexpr int Panels[] = {DatePanel, ClockPanel, 0, 1, 2, 3, 4};

struct YearFigure
{
    std::string Text;
    const char* Meaning;
};

std::string Weeks(DayNumber From, DayNumber To, int First)
{
    return CStr(static_cast<int>(DateDiff("ww", From, To, First)));
}

/// What the panels 0 to 4 show on a day. Weeks gone are the Tuesdays since the 1st of January,
/// weeks left the Sundays still to come; days gone count today, days left don't.
std::array<YearFigure, 5> FiguresOf(DayNumber Today)
{
    const DayNumber first = DateSerial(Year(Today), 1, 1);
    const DayNumber last = DateSerial(Year(Today), 12, 31);
    return {{{CStr(DatePart("q", Today)) + "°", "Trimestre corrente"},
             {Weeks(first, Today, Tuesday), "Settimane trascorse da inizio anno"},
             {Weeks(Today, last, Sunday), "Settimane mancanti a fine anno"},
             {CStr(Today - first + 1), "Giorni trascorsi da inizio anno"},
             {CStr(last - Today), "Giorni mancanti a fine anno"}}};
}

}

void frmMain::InitStatusStrip()
{
    picBarra[0].SetMousePointer(forms::Pointer::Help);
    for (int index = 1; index <= ClockPanel; ++index) picBarra.Load(index).SetVisible(true);
    StatusStrip.Create(*this);
    StatusStrip.SetParts(std::size(RightEdges), RightEdges);
    short part = 0;
    for (const int index : Panels) StatusStrip.CopyObj(part++, picBarra[index]);
    for (const int index : {SequentialSums, DateSettings, Help, About})
        StatusStrip.CopyObj(part++, picToolBarra[index]);
}

void frmMain::Timer1_Timer()
{
    const DateValue now = Now();
    if (std::exchange(UltimoGiorno, Day(now)) != Day(now)) UpdateStatusStrip(Int(now));
    const std::string time = Format(now, "hh.mm.ss");
    if (picBarra[ClockPanel].PrintedText() == time) return; // two ticks or three in a second
    picBarra[ClockPanel].Cls();
    PrintCentred(picBarra[ClockPanel], time);
    picBarra[ClockPanel].SetAccessibleName("Ora: " + time);
}

void frmMain::UpdateStatusStrip(DayNumber Today)
{
    for (auto& panel : picBarra) {
        panel.Cls();
        panel.SetCurrentY(1);
    }
    picBarra[DatePanel].SetMousePointer(forms::Pointer::Default);
    picBarra[ClockPanel].SetMousePointer(forms::Pointer::Default);
    const std::string today = Format(Today, " dddd  dd mmm yyyy");
    PrintCentred(picBarra[DatePanel], today);
    picBarra[DatePanel].SetAccessibleName("Data di oggi:" + today);
    int index = 0;
    for (const auto& [text, meaning] : FiguresOf(Today)) {
        forms::PictureBox& panel = picBarra[index++];
        panel.SetToolTipText(meaning);
        panel.SetAccessibleName(std::string(meaning) + ": " + text);
        PrintCentred(panel, text);
    }
    for (auto& icon : picToolBarra) SetHandCursor(icon);
}

void frmMain::PrintCentred(forms::PictureBox& Panel, const std::string& Text)
{
    Panel.SetCurrentX(CLng((Panel.Width() - Panel.TextWidth(Text)) / 2.0));
    Panel.Print(Text);
}

void frmMain::cmdNowTime_Click(int Index)
{
    HideCalendar();
    const DateValue now = Now();
    ClearResults();
    const int first = FirstBox(Index);
    txtTime[first].SetText(Format(Hour(now), "00"));
    txtTime[first + 1].SetText(Format(Minute(now), "00"));
    txtTime[first + 2].SetText(Format(Second(now), "00"));
    forms::Announce(*this, EndNames[Index] + Format(now, ": hh:mm:ss"));
}

}
