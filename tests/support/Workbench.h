#pragma once

#include "services/forms/Form.h"

#include <string>
#include <utility>

namespace vellarno::test {

/// An empty form on which a test lays out the controls that it needs.
class Workbench : public forms::Form
{
public:
    Workbench() : Form(forms::FormBorder::FixedSingle) { setFixedSize(400, 300); }

    template <class ControlClass>
    ControlClass& Add(const char* Name, int Left = 0, int Top = 0, int Width = 80, int Height = 20,
                      forms::Control* Container = nullptr)
    {
        auto* made = new ControlClass(Container ? &Container->Widget() : this);
        made->setObjectName(QString::fromUtf8(Name));
        made->Move(Left, Top, Width, Height);
        return *made;
    }

    /// An event handler that notes the entry.
    auto Note(const std::string& Entry)
    {
        return [this, Entry] { diary += (diary.empty() ? "" : ", ") + Entry; };
    }
    /// What has been noted since the last look, in order.
    std::string Noted() { return std::exchange(diary, {}); }

    /// Notes the mouse and the focus: "NAME move", "NAME down", "NAME up", "NAME click", …
    void Follow(forms::Control& Control)
    {
        const std::string name = Control.Widget().objectName().toStdString();
        Control.MouseMove = Note(name + " move");
        Control.MouseDown = Note(name + " down");
        Control.MouseUp = Note(name + " up");
        Control.Click = Note(name + " click");
        Control.GotFocus = Note(name + " got");
        Control.LostFocus = Note(name + " lost");
    }

private:
    std::string diary;
};

}
