#pragma once

#include <QTimer>
#include <functional>

namespace vellarno::forms {

/// Ticks on the windows' own thread, between other events.
class Timer
{
public:
    std::function<void()> Tick;

    /// @param Milliseconds  between two ticks; the first comes after one interval.
    void Start(int Milliseconds)
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
            if (Tick) Tick();
        });
        timer.start(Milliseconds);
    }
    int Interval() const { return timer.interval(); }
    bool Enabled() const { return timer.isActive(); }

private:
    QTimer timer;
};

}
