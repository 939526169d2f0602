#pragma once

#include "tests/mainwindow/MainWindow.h"
#include "tests/support/Folder.h"

#include <QTimer>

#include <deque>
#include <random>
#include <set>
#include <stdexcept>

namespace vellarno::test {

/// Something that must always hold doesn't.
struct Fault : std::logic_error
{
    using std::logic_error::logic_error;
};

inline void Require(bool Holds, const char* Rule)
{
    if (!Holds) throw Fault(Rule);
}

/// One life of the program under the hands of someone who presses, clicks and drags whatever comes
/// along, in all windows, while the clock jumps. What it does follows from its dice alone.
class Monkey : private MainWindow
{
public:
    explicit Monkey(std::mt19937& Dice);
    ~Monkey() override;

    /// One event, and then a look at everything that must hold.
    /// @return false once the program has ended.
    /// @throws Fault
    bool Act();
    /// The last events, each by its letter in Step.
    std::string Notes() const;
    /// What stands in the windows.
    std::string Windows() const;

    void ClockShows(double Moment);
    void Tick();

private:
    void TestBody() override {}

    int Below(int Count) { return std::uniform_int_distribution(0, Count - 1)(dice); }
    bool OneIn(int Chances) { return Below(Chances) == 0; }
    template <class Range>
    auto Any(const Range& Of)
    {
        return Of[static_cast<std::size_t>(Below(static_cast<int>(std::size(Of))))];
    }
    template <class... Kinds>
    forms::Control& AnyOf(const forms::Form& Form);
    std::string Digits(int Most);

    static frmMiniCalc* Sums();
    static void Front(forms::Form& Form);
    static void TypeInto(forms::Form& Form, const std::string& Text);

    void Step();
    void Drag(forms::Form& Form, forms::Control& Control);
    void FillIn();
    void FillSums(frmMiniCalc& Form);
    void UseCalendar();
    void PressIcon();
    void JumpClock();
    void AnswerBox();

    // What must hold between any two events, whatever came before
    void Check();
    void CheckMode() const;
    void CheckFields() const;
    void CheckResults() const;
    void CheckCalendar() const;
    void CheckStrip();
    std::string ExpectedResults() const;
    std::string Panel(int Index) const;
    double DateIn(int First) const;
    double TimeIn(int First) const;

    std::mt19937& dice;
    std::deque<std::string> notes;
    double now = 0;
    std::set<int> days; ///< that the clock has shown since the last look at the strip
    int stripDay = 0;
    std::string stripDate;
    const Folder folder;
    QTimer boxWatch;
    Array<forms::Label> GIORNO{form, "GIORNO"};
    Array<forms::PictureBox> picToolBarra{form, "picToolBarra"};
    forms::ScrollBar& hscDataScroll = form.Get<forms::ScrollBar>("hscDataScroll");
    forms::TextBox& txtCalMeseAnno = form.Get<forms::TextBox>("txtCalMeseAnno");
};

/// Fields and captions of the sequential calculator.
void CheckSums(const frmMiniCalc& Form);
/// Puts a witness before both "=": it compares each sum with one worked out apart from the window.
void WatchSums(frmMiniCalc& Form);

}
