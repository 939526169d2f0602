#include "mainwindow/frmMain.h"

namespace vellarno {

namespace {

/// The first box of a date has none before it; a lone digit waits there for the month's box.
bool IsDay(int Index)
{
    return Index % 3 == 0;
}

}

// The typing runs from the one date into the other, over a start time between them.
const std::array<Segment, 6> frmMain::DateRules = {{{31, 1, true},
                                                    {12, 2, true},
                                                    {LastYear, 3},
                                                    {31, 4, true},
                                                    {12, 5, true},
                                                    {LastYear, Segment::End}}};

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
