#include "mainwindow/frmMain.h"

namespace vellarno {

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
