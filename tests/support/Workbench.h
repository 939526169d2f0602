#pragma once

#include "services/forms/Form.h"

#include <utility>

namespace vellarno::test {

/// An empty form on which a test lays out the controls that it needs.
class Workbench : public forms::Form
{
    std::string diary;

public:
    Workbench() : Form(forms::FormBorder::FixedSingle) { setFixedSize(400, 300); }

    template <class ControlClass>
    ControlClass& Add(const char* Name, int Left = 0, int Top = 0, int Width = 80, int Height = 20,
                      forms::Control* Container = nullptr)
    {
        auto* made = new ControlClass(Container ? &Container->Widget() : this);
        made->setObjectName(QString::fromUtf8(Name));
        made->Move(Left, Top, Width, Height);
        made->SetVisible(true);
        return *made;
    }

    /// An event handler that notes the entry.
    auto Note(const std::string& Entry)
    {
        return [this, Entry] { diary += (diary.empty() ? "" : ", ") + Entry; };
    }
    /// What has been noted since the last look, in order.
    std::string Noted() { return std::exchange(diary, {}); }

    /// Notes the mouse and the focus of all controls, and the mouse over the form: "form move".
    void Follow()
    {
        MouseMove = Note("form move");
        for (forms::Control* control : Controls()) {
            const std::string name = control->Widget().objectName().toStdString();
            control->MouseMove = Note(name + " move");
            control->MouseDown = Note(name + " down");
            control->MouseUp = Note(name + " up");
            control->Click = Note(name + " click");
            control->GotFocus = Note(name + " got");
            control->LostFocus = Note(name + " lost");
        }
    }
};

}
