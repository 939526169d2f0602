#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "mainwindow/frmMain.h"
#include "services/Platform.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <benchmark/benchmark.h>

namespace vellarno {
namespace {

/// Nothing sounds, beeps or asks while the windows are measured.
class Silence : public Platform
{
public:
    Silence() { SetPlatform(this); }
    ~Silence() override { SetPlatform(nullptr); }

    void Beep() override {}
    void MsgBox(const std::string&, forms::MessageStyle, const std::string&) override {}
    void PlaySound(const std::string&) override {}
    void OpenAddress(const std::string&) override {}
    bool StartEntry(const std::string&) override { return true; }
    std::string PrivateFolder() override { return {}; }
    bool Compositing() override { return false; }
    bool BecomeOnlyInstance() override { return true; }
};

void Settle(QWidget& Window)
{
    Window.activateWindow();
    QApplication::processEvents();
}

/// The main window on screen, in the mode of dates.
struct Measured
{
    const Silence silence;
    frmMain window;

    Measured()
    {
        window.Show();
        Find<forms::OptionButton>("optDataTime_2").SetValue(true);
        Settle(window);
    }
    template <class ControlClass>
    ControlClass& Find(const char* Name) const
    {
        return *window.findChild<ControlClass*>(QLatin1String(Name));
    }
};

/// A digit that replaces the one before, handled and painted.
void TypeDigit(QLineEdit& Box, int Digit)
{
    Box.selectAll();
    const QChar character('1' + Digit);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_0 + 1 + Digit, Qt::NoModifier, character);
    QApplication::sendEvent(&Box, &press);
    QApplication::processEvents();
}

void TypeIntoDateField(benchmark::State& State)
{
    const Measured measured;
    auto& year = measured.Find<forms::TextBox>("txtData_2");
    year.SetFocus();
    int digit = 0;
    for ([[maybe_unused]] auto _ : State) TypeDigit(year, digit ^= 1);
}
BENCHMARK(TypeIntoDateField)->Unit(benchmark::kMicrosecond);

void TypeIntoBareLineEdit(benchmark::State& State)
{
    QWidget window;
    window.setFixedSize(480, 312);
    QLineEdit box(&window);
    box.setGeometry(66, 2, 31, 16);
    window.show();
    Settle(window);
    box.setFocus();
    int digit = 0;
    for ([[maybe_unused]] auto _ : State) TypeDigit(box, digit ^= 1);
}
BENCHMARK(TypeIntoBareLineEdit)->Unit(benchmark::kMicrosecond);

void CalendarMonthStep(benchmark::State& State)
{
    const Measured measured;
    measured.Find<forms::CommandButton>("cmdNowData_0").click();
    auto& months = measured.Find<forms::ScrollBar>("hscDataScroll");
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : State) {
        months.SetValue(months.Value() + 1);
        QApplication::processEvents();
    }
}
BENCHMARK(CalendarMonthStep)->Unit(benchmark::kMicrosecond);

/// A tick on an ordinary day, each with another second to print.
void ClockTick(benchmark::State& State)
{
    Measured measured;
    int second = 0;
    for ([[maybe_unused]] auto _ : State) {
        second = (second + 1) % 60;
        SetClock([=] { return 46348 + TimeSerial(14, 5, second); });
        measured.window.Timer1_Timer();
        QApplication::processEvents();
    }
    SetClock(nullptr);
}
BENCHMARK(ClockTick)->Unit(benchmark::kMicrosecond);

}
}
