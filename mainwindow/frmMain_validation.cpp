#include "mainwindow/frmMain.h"

#include "engine/Text.h"
#include "services/App.h"
#include "services/Platform.h"

namespace vellarno {

namespace {

constexpr const char* GroupNames[] = {"'Data inizio'", "'Data fine'"};

void Refuse(const char* Name, const std::string& Fault)
{
    System().MsgBox(std::string("Nella casella ") + Name + Fault +
                        "\r\nVerificare i dati e riprovare.",
                    forms::Information, App::Title);
}

bool AllFilled(const forms::ControlArray<forms::TextBox>& Boxes)
{
    for (const auto& box : Boxes)
        if (box.Text().empty()) return false;
    return true;
}

}

bool frmMain::HasAllFields(Mode Of) const
{
    return (Of == Dates || AllFilled(txtTime)) && (Of == Times || AllFilled(txtData));
}

void frmMain::ShowIncompleteData()
{
    System().MsgBox("      - Impossibile eseguire il calcolo: dati incompleti -  \r\n"
                    "Verificare di aver inserito le date e/o le ore dove richiesto\r\n"
                    "e riprovare.",
                    forms::Information, App::Title);
}

bool frmMain::ValidateDates()
{
    for (const int end : {0, 1}) {
        const int first = FirstBox(end);
        const std::string year = txtData[first + 2].Text();
        if (!IsDate(txtData[first].Text() + '/' + txtData[first + 1].Text() + '/' + year)) {
            Refuse(GroupNames[end], " è stata immessa una data non valida!");
            return false;
        }
        if (CInt(year).value_or(0) < FirstYear) {
            Refuse(GroupNames[end], " è stata immesso un anno non valido!");
            return false;
        }
    }
    return true;
}

}
