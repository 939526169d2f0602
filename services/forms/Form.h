#pragma once

#include "services/forms/Control.h"

#include <QEventLoop>
#include <QPointer>
#include <functional>
#include <string>
#include <vector>

namespace vellarno::forms {

class CommandButton;

/// How the desktop frames a window.
enum class FormBorder { FixedSingle, FixedDialog, FixedToolWindow };

/// A top-level window of fixed size. Its layout comes from a .ui file (see Designed).
class Form : public QWidget
{
public:
    std::function<void()> Load;   ///< once, before the window comes up
    std::function<void()> Unload; ///< once, when the window has been closed
    std::function<void()> MouseMove;
    std::function<void(short& KeyAscii)> KeyPress;
    bool KeyPreview = false; ///< KeyPress sees every key before the control that has the focus

    explicit Form(FormBorder Border);

    /// A further window, above this one. This one owns it: it goes with it, or by itself once it
    /// has been closed and its events are served.
    template <class FormClass>
    FormClass& NewOwned()
    {
        auto* made = new FormClass;
        made->setParent(this, made->windowFlags());
        return *made;
    }
    /// Runs Load at the first call, then shows the window; shown already, it comes forward.
    void Show();
    /// The same, and returns when the window has been closed; all others wait meanwhile.
    void ShowModal();
    void Close() { close(); }
    /// Closes every window of the program, message boxes too.
    static void UnloadAll();
    bool Visible() const { return isVisible(); }

    void SetCaption(const std::string& Text) { setWindowTitle(QString::fromStdString(Text)); }
    int ScaleWidth() const { return width(); }
    int ScaleHeight() const { return height(); }
    /// Opacity from 0 to 255, where the desktop can show it.
    void SetAlpha(int Alpha);
    /// Keeps the window above all ordinary ones without hiding or moving it.
    void SetTopmost(bool OnTop);

    /// The control that has the focus, or would have it if the window were the active one.
    Control* ActiveControl() const;
    /// All controls of the form, in no particular order.
    std::vector<Control*> Controls() const;

    /// A key or combination that types nothing, wherever in this window the focus is.
    /// @param Keys  like "F1" or "Ctrl+Shift+C".
    void OnKey(const char* Keys, std::function<void()> Handler);
    void SetDefaultButton(CommandButton& Button) { defaultButton = &Button; }
    void SetCancelButton(CommandButton& Button) { cancelButton = &Button; }

protected:
    bool event(QEvent* Event) override;
    void closeEvent(QCloseEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mouseMoveEvent(QMouseEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;
    void showEvent(QShowEvent* Event) override;

private:
    bool PressDialogButton(const QKeyEvent& Event);
    void FocusMoved(Control& To, const QFocusEvent& Event);
    /// @return false if the window was closed meanwhile.
    bool LoadOnce();
    void Place();

    const FormBorder border;
    bool loaded = false;
    bool closed = false; ///< since it was last told to come up
    bool topmost = false;
    int eventsUnderWay = 0;
    QPointer<QWidget> focused; ///< whose GotFocus was the last to run
    CommandButton* defaultButton = nullptr;
    CommandButton* cancelButton = nullptr;
    QEventLoop* modalLoop = nullptr;
    friend class Control;
    friend class EventUnderWay;
};

/// A form that may be closed, and then destroyed: then this points to nothing.
template <class FormClass>
using FormPointer = QPointer<FormClass>;

/// A form laid out by a class that the .ui compiler made, with its controls as members of `ui`.
template <class Layout>
class Designed : public Form
{
protected:
    explicit Designed(FormBorder Border) : Form(Border)
    {
        ui.setupUi(this);
        setFixedSize(size());
    }

    Layout ui;
};

}
