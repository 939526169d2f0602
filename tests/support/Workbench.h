#pragma once

#include "services/forms/Form.h"

namespace vellarno::test {

/// An empty form on which a test lays out the controls that it needs.
struct Workbench : forms::Form
{
    Workbench() : Form(forms::FormBorder::FixedSingle) { setFixedSize(400, 300); }

    template <class ControlClass>
    ControlClass& Add(const char* Name, int Left = 0, int Top = 0, int Width = 80, int Height = 20,
                      QWidget* Container = nullptr)
    {
        auto* made = new ControlClass(Container ? Container : this);
        made->setObjectName(QString::fromUtf8(Name));
        made->Move(Left, Top, Width, Height);
        made->SetVisible(true);
        return *made;
    }
};

}
