#include "mainwindow/frmMain.h"

namespace vellarno {

// Zero is a value like any other.
const std::array<Segment, 6> frmMain::TimeRules = {
    {{23, 1}, {59, 2}, {59, 3, false, 2}, {23, 4}, {59, 5}, {59, Segment::End, false, 2}}};

void frmMain::txtTime_Change(int Index)
{
    ClearResults();
    // Without times, the boxes hold what the program put there, "24" hours among it.
    if (txtTime[0].Enabled()) TimeField.Change(Index);
}

void frmMain::txtTime_GotFocus(int Index)
{
    CloseCalendar();
    TimeField.Select(Index);
}

void frmMain::txtTime_LostFocus(int Index)
{
    TimeField.Pad(Index);
}

}
