#pragma once

#include "services/forms/Image.h"

#include <vector>

namespace vellarno::forms {

/// A drawing surface that also holds other controls. What was printed on it stays until Cls,
/// through covering, minimising and a change of scale.
class PictureBox : public Image
{
    Q_OBJECT
    Q_PROPERTY(int FontSize READ FontSize WRITE SetFontSize)

public:
    explicit PictureBox(QWidget* Parent = nullptr) : Image(Parent) {}

    /// Takes away all that was printed; the drawing position is the upper left corner again.
    void Cls();
    void SetCurrentX(int Pixels) { currentX = Pixels; }
    void SetCurrentY(int Pixels) { currentY = Pixels; }
    int TextWidth(const std::string& Text) const;
    /// Prints at the drawing position, which then stands at the start of the next line.
    void Print(const std::string& Text);
    /// All that stands on the box, in the order of printing.
    std::string PrintedText() const;
    bool HasPrint() const { return !printed.empty(); }

protected:
    void paintEvent(QPaintEvent* Event) override;

private:
    struct Printed
    {
        int X, Y;
        QString Text;
    };
    std::vector<Printed> printed;
    int currentX = 0;
    int currentY = 0;
};

}
