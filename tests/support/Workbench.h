#pragma once

#include "services/forms/Form.h"

#include <QVariant>
#include <string>

namespace vellarno::test {

/// An empty form on which a test lays out the controls that it needs.
class Workbench : public forms::Form
{
public:
    explicit Workbench(forms::FormBorder Border = forms::FormBorder::FixedSingle) : Form(Border)
    {
        setFixedSize(400, 300);
    }

    template <class ControlClass>
    ControlClass& Add(const std::string& Name, int Left, int Top, int Width = 80, int Height = 20,
                      forms::Control* Container = nullptr)
    {
        auto* made = new ControlClass(Container ? &Container->Widget() : this);
        made->setObjectName(QString::fromStdString(Name));
        made->Move(Left, Top, Width, Height);
        return *made;
    }

    /// Sets a property by its name and a text, as the layout files do.
    static bool Set(forms::Control& Control, const char* Property, const char* Value)
    {
        return Control.Widget().setProperty(Property, QString::fromUtf8(Value));
    }
};

/// Notes what happens to a control, in order: "NAME got", "NAME lost", "NAME click", …
class Diary
{
public:
    std::vector<std::string> Entries;

    void Follow(forms::Control& Control, const std::string& Name)
    {
        Control.GotFocus = Note(Name + " got");
        Control.LostFocus = Note(Name + " lost");
        Control.MouseMove = Note(Name + " move");
        Control.MouseDown = Note(Name + " down");
        Control.MouseUp = Note(Name + " up");
        Control.Click = Note(Name + " click");
    }

    std::function<void()> Note(const std::string& Entry)
    {
        return [this, Entry] { Entries.push_back(Entry); };
    }

    /// What has happened since the last look, parted by commas.
    std::string Read()
    {
        std::string all;
        for (const auto& entry : std::exchange(Entries, {}))
            all += (all.empty() ? "" : ", ") + entry;
        return all;
    }
};

}
