#pragma once

#include "engine/Clock.h"
#include "services/GenericBas.h"
#include "tests/support/Person.h"
#include "tests/support/Recorder.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <gtest/gtest.h>

namespace vellarno::test {

using namespace vellarno;
using namespace std::chrono_literals;
using std::chrono::sys_days;

/// What surrounds a window in a test: a platform that takes notes, a folder of its own, and a clock
/// that stands at 14:05:09 on Sunday 22/11/2026. A beep or a message that the test did not take
/// from the log is a fault.
class World
{
public:
    const QTemporaryDir folder;
    Recorder desktop;

    World()
    {
        desktop.TempFolder = folder.path().toStdString();
        StopClock(sys_days(2026y / 11 / 22) + 14h + 5min + 9s);
    }
    ~World()
    {
        EXPECT_FALSE(desktop.Alarmed()) << "not expected: " << desktop.TakeLog();
        SetClock(nullptr);
        OnTopFlag = false;
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    void StopClock(std::chrono::sys_seconds At)
    {
        using Days = std::chrono::duration<double, std::chrono::days::period>;
        SetClock([now = Days(At - sys_days(1899y / 12 / 30)).count()] { return now; });
    }
    std::string TakeLog() { return desktop.TakeLog(); }
};

/// What a box of an entry takes, where the typing goes on, and what it empties with two beeps.
struct Limit
{
    int Box;
    const char* Highest;
    const char* Next;
    std::vector<const char*> Refused;
};

template <class FormClass>
struct Held
{
    FormClass form;
};

/// A window on screen, in its surroundings, with a person before it.
template <class FormClass>
class Stage : public World, public Held<FormClass>, public Person
{
public:
    Stage() : Person(this->form) { Open(); }
    ~Stage() { Settle(); }

    /// Happens when events are served next: in the midst of a sound, a fade or an opened page.
    void Soon(std::function<void()> Act) { QTimer::singleShot(0, &this->form, std::move(Act)); }

    void ExpectLimits(const forms::ControlArray<forms::TextBox>& Boxes, std::vector<Limit> Rows)
    {
        for (const auto& [box, highest, next, refused] : Rows) {
            const std::string name = Boxes[box].objectName().toStdString();
            for (const char* value : refused) {
                Enter(Boxes[box], value);
                EXPECT_EQ(Boxes[box].Text() + Focus(), name) << value;
                EXPECT_EQ(TakeLog(), "beep, beep") << name << ' ' << value;
            }
            Enter(Boxes[box], highest);
            EXPECT_EQ(Boxes[box].Text(), highest) << name;
            EXPECT_EQ(Focus(), next);
        }
    }
};

/// An empty form on which a test lays out the controls that it needs.
struct Workbench : forms::Form
{
    Workbench() : Form(forms::FormBorder::FixedSingle)
    {
        setObjectName("workbench");
        setFixedSize(400, 300);
    }

    template <class ControlClass>
    ControlClass& Add(const char* Name, QRect Place = {0, 0, 80, 20}, QWidget* Container = nullptr)
    {
        auto* made = new ControlClass(Container ? Container : this);
        made->setObjectName(QString::fromUtf8(Name));
        made->setGeometry(Place);
        made->SetVisible(true);
        return *made;
    }
};

}
