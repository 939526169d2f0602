#pragma once

#include "tests/support/Person.h"
#include "tests/support/World.h"

#include <QTimer>

namespace vellarno::test {

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
    Workbench() : Form(forms::FormBorder::FixedSingle) { setFixedSize(400, 300); }

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
