#pragma once

#include "tests/monkey/Invariants.h"
#include "tests/support/Folder.h"
#include "tests/support/Recorder.h"

#include <QTimer>

#include <deque>
#include <memory>
#include <random>
#include <set>
#include <string>

namespace vellarno::test {

/// Someone who presses, clicks and drags whatever comes under the hand, in all windows of the
/// program, while the clock jumps. What it does follows from its seed alone.
class Monkey
{
public:
    explicit Monkey(unsigned Seed);
    ~Monkey();
    Monkey(const Monkey&) = delete;
    Monkey& operator=(const Monkey&) = delete;

    /// One event more, and then a look at everything that must hold.
    /// @throws Fault
    void Act();
    int Events() const { return events; }
    /// The last events, for the report of a fault.
    std::string Notes() const;
    /// What stands in the windows now.
    std::string Windows() const;

    void SetNow(double Moment);
    void Tick();

private:
    /// Message boxes are mostly taken note of; now and then a real one stands and is answered.
    class Desk : public Recorder
    {
    public:
        std::function<bool()> ShowsBox;
        void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                    const std::string& Title) override;
        void Forget();
    };

    int Below(int Count);
    bool OneIn(int Chances) { return Below(Chances) == 0; }
    template <class Range>
    const auto& Any(const Range& Of)
    {
        return Of[static_cast<std::size_t>(Below(static_cast<int>(std::size(Of))))];
    }

    void OpenMainWindow();
    frmMiniCalc* Sums() const;
    forms::Form* Window();
    static forms::Form& Front(forms::Form& Form);
    static void TypeInto(forms::Form& Form, const std::string& Text);
    forms::Control* AnyControl(forms::Form& Form);
    forms::TextBox* AnyBox(forms::Form& Form);
    void Note(const std::string& What);
    void Check();
    void AnswerBox();

    void Step();
    void TypeDigits();
    void PressKey();
    void ClickControl();
    void ClickAnywhere();
    void DoubleOrRightClick();
    void Drag();
    void MovePointer();
    void TurnWheel();
    void PutText();
    void FillIn();
    void FillSums();
    void UseCalendar();
    void Choose();
    void ClickCaption();
    void PressIcon();
    void Pin();
    void SwitchWindow();
    void CloseWindow();
    void JumpClock();
    void Rest();
    void Hurry();

    std::mt19937 dice;
    int events = 0;
    std::deque<std::string> notes;
    std::set<int> days; ///< that the clock has shown since the last look at the strip
    double now = 0;
    Folder folder;
    Desk desk;
    std::unique_ptr<frmMain> form;
    std::unique_ptr<MainWindow> main;
    StripWatch strip;
    QTimer boxWatch;
};

}
