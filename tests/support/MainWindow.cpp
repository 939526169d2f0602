#include "tests/support/MainWindow.h"

namespace vellarno::test {

MainWindow::MainWindow(Mode Chosen)
{
    if (Chosen != Mode::Times) Choose(Chosen);
    TakeLog();
}

void MainWindow::Tick(const forms::CheckBox& Box, bool On)
{
    if ((Box.Value() == 1) != On) Click(Box);
}

void MainWindow::Compare(std::string_view DateDigits, std::string_view TimeDigits)
{
    if (!DateDigits.empty()) EnterDates(DateDigits);
    if (!TimeDigits.empty()) EnterTimes(TimeDigits);
    Click(cmdCalcola);
}

std::string MainWindow::Figures() const
{
    std::string all;
    for (const auto* labels : {&lblDati, &lblTotali, &lblWeekDay}) {
        for (const auto& label : *labels)
            all += (label.Caption().empty() ? "-" : label.Caption()) + ' ';
        all.back() = '|';
    }
    all.pop_back();
    return all;
}

std::string MainWindow::Balloon() const
{
    std::string all;
    for (const auto* balloon : form.findChildren<forms::Balloon*>())
        all += balloon->Title() + ": " + balloon->Text();
    return all;
}

}
