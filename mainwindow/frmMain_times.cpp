#include "mainwindow/frmMain.h"

namespace vellarno {

// Zero is a value like any other.
const std::array<Segment, 6> frmMain::TimeRules = {
    {{23, 2, 1}, {59, 2, 2}, {59, 2, 3}, {23, 2, 4}, {59, 2, 5}, {59, 2, Segment::End}}};

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
