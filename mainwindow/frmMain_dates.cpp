#include "mainwindow/frmMain.h"

namespace vellarno {

namespace {

/// The first box of a row has nothing before it that waits to be filled.
bool IsDay(int Index)
{
    return Index % 3 == 0;
}

}

void frmMain::Digits_KeyPress(int, short& KeyAscii)
{
    FilterDigits(KeyAscii);
}

void frmMain::txtData_Change(int Index)
{
    ClearResults();
    CloseCalendar();
    DateField.Change(Index);
}

void frmMain::txtData_GotFocus(int Index)
{
    if (!IsDay(Index)) DateField.Pad(Index - 1);
    DateField.Select(Index);
}

void frmMain::txtData_LostFocus(int Index)
{
    if (!IsDay(Index)) DateField.Pad(Index);
}

}
