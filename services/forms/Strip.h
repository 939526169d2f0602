#pragma once

#include "services/forms/Control.h"

#include <QPointer>
#include <string>
#include <vector>

namespace vellarno::forms {

/// A strip along the bottom edge of a form, divided into parts side by side. A part shows a text,
/// or holds a control that lies over it.
class Strip : public ControlOf<QWidget>
{
    Q_OBJECT

public:
    static constexpr int Thickness = 23; ///< pixels
    static constexpr int ToTheEnd = -1;  ///< right edge of a part that takes all that is left

    /// Pixels of the strip; Right and Bottom stand just outside.
    struct Area
    {
        int Left, Top, Right, Bottom;
    };

    /// The form owns the strip.
    explicit Strip(Form& Parent);

    /// Divides the strip anew: the right edge of each part, from left to right.
    void SetEdges(const std::vector<int>& RightEdges);
    bool Has(int Part) const { return Part >= 0 && Part < static_cast<int>(parts.size()); }
    /// The place of a part that is there.
    Area PartArea(int Part) const;
    /// The text of a part that is there.
    std::string Text(int Part) const { return At(Part).Text.toStdString(); }
    void SetText(int Part, const std::string& Words);

    /// Hands all controls that lie on the strip back to the form, hidden.
    void GiveBack();

protected:
    void paintEvent(QPaintEvent* Event) override;

private:
    struct Piece
    {
        int RightEdge = ToTheEnd;
        QString Text;
    };
    const Piece& At(int Part) const { return parts.at(static_cast<std::size_t>(Part)); }
    int RightEdge(int Part) const;

    std::vector<Piece> parts{1};
};

/// A strip that may go with its form: then this points to nothing.
using StripPointer = QPointer<Strip>;

}
