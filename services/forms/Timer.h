#pragma once

#include <QTimer>
#include <functional>

namespace vellarno::forms {

/// Ticks on the windows' own thread, between other events.
class Timer
{
public:
    std::function<void()> Tick;

    Timer()
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
            if (Tick) Tick();
        });
    }
    /// @param Milliseconds  between two ticks; the first comes after one interval.
    void Start(int Milliseconds) { timer.start(Milliseconds); }

private:
    QTimer timer;
};

}
