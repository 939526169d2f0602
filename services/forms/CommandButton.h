#pragma once

#include "services/forms/Control.h"

#include <QPushButton>

namespace vellarno::forms {

/// A button with a caption or a picture. Enter presses it as the space bar does.
class CommandButton : public ControlOf<QPushButton>
{
    Q_OBJECT
    Q_PROPERTY(QString Picture READ Picture WRITE SetPicture)
    Q_PROPERTY(int FontSize READ FontSize WRITE SetFontSize)
    Q_PROPERTY(bool FontBold READ FontBold WRITE SetFontBold)

public:
    explicit CommandButton(QWidget* Parent = nullptr);

    QString Picture() const { return picture; }
    void SetPicture(const QString& Path);

protected:
    void keyPressEvent(QKeyEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;

private:
    QString picture;
};

}
