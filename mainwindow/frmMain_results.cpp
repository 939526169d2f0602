#include "mainwindow/frmMain.h"

#include "services/forms/Accessibility.h"
#include "services/forms/Globals.h"

namespace vellarno {

namespace {

/// Which caption of lblLabel stands beside each figure.
constexpr int ElapsedCaptions[ResultLabels::ElapsedCount] = {12, 13, 14, 3, 4, 5};
constexpr int TotalCaptions[ResultLabels::TotalCount] = {15, 16, 17, 18, 19, 20, 2, 6, 7};

void CopyCaption(const forms::Label& Of)
{
    if (!Of.Caption().empty()) forms::SetClipboardText(Of.Caption());
}

}

forms::Label& frmMain::CaptionOf(Total Which) const
{
    return lblLabel[TotalCaptions[Which]];
}

/// All of them, shown or empty, in the order in which they are read.
std::vector<frmMain::Figure> frmMain::Figures() const
{
    std::vector<Figure> all;
    for (const int i : {0, 1}) all.push_back({lblWeekDay[i], EndNames[i]});
    int index = 0;
    for (const int caption : ElapsedCaptions)
        all.push_back({lblDati[index++], lblLabel[caption].Caption()});
    index = 0;
    for (const int caption : TotalCaptions)
        all.push_back({lblTotali[index++], lblLabel[caption].Caption()});
    return all;
}

void frmMain::SetDati(Elapsed Which, const std::string& Caption)
{
    lblDati[Which].SetCaption(Caption);
}

void frmMain::SetTotali(Total Which, const std::string& Caption)
{
    lblTotali[Which].SetCaption(Caption);
}

void frmMain::SetHourglass(bool Shown)
{
    forms::SetScreenPointer(Shown);
}

void frmMain::ClearResults()
{
    for (auto& label : lblDati) label.SetCaption("");
    for (auto& label : lblTotali) label.SetCaption("");
    for (auto& label : lblWeekDay) label.SetCaption("");
}

void frmMain::AnnounceResults()
{
    for (const auto& [label, caption] : Figures())
        if (!label.Caption().empty()) forms::Announce(*this, label.AccessibleName());
}

void frmMain::PrepareResults()
{
    int index = 0;
    for (const int caption : ElapsedCaptions) lblDati[index++].SetLegend(lblLabel[caption]);
    for (const auto* labels : {&lblWeekDay, &lblDati, &lblTotali})
        for (auto& label : *labels)
            label.SetMenu({{"Copia", [&label] { CopyCaption(label); }},
                           {"Copia tutti i risultati", [this] { CopyResults(); }}});
}

void frmMain::CopyResults()
{
    std::string all;
    for (const auto& [label, caption] : Figures())
        if (!label.Caption().empty()) all += caption + ": " + label.Caption() + '\n';
    if (all.empty()) return;
    forms::SetClipboardText(all);
    forms::Announce(*this, "Risultati copiati");
}

}
