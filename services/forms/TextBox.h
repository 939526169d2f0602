#pragma once

#include "services/forms/Control.h"

#include <QBasicTimer>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QWheelEvent>

namespace vellarno::forms {

/// One line of text. Change comes inside every write that changes the text, typed or not.
class TextBox : public ControlOf<QLineEdit>
{
    Q_OBJECT
    Q_PROPERTY(int FontSize READ FontSize WRITE SetFontSize)

public:
    std::function<void()> Change;

    explicit TextBox(QWidget* Parent = nullptr);

    std::string Text() const { return text().toStdString(); }
    /// A text longer than MaxLength is cut to it.
    void SetText(const std::string& Words) { setText(QString::fromStdString(Words)); }
    int MaxLength() const { return maxLength(); }
    void SetMaxLength(int Characters) { setMaxLength(Characters); }
    void Select(int From, int Length) { setSelection(From, Length); }

protected:
    void keyPressEvent(QKeyEvent* Event) override;
    void inputMethodEvent(QInputMethodEvent* Event) override;
    void focusInEvent(QFocusEvent* Event) override;
    void focusOutEvent(QFocusEvent* Event) override;
    void timerEvent(QTimerEvent* Event) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseMoveEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override { Event->ignore(); }

private:
    void BlinkForAWhile();

    QBasicTimer caretRest;
    QDeadlineTimer comeback; ///< runs while the click may follow that brought the window back
    bool arriving = false;   ///< the button that brought the focus is still down
};

}
