#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>

class QPainter;
class QPixmap;
class QRect;
class QRectF;
class QString;

namespace vellarno::forms {

Q_NAMESPACE

/// How a control's ground is drawn.
enum class Look {
    Plain, ///< nothing of its own: what lies behind shows through
    Field, ///< white value box with a fine edge
    Panel, ///< light panel that lifts a section
    Band,  ///< gradient strip
    Sheen, ///< light from above, over a band
    Today, ///< mark of today in the calendar
    Mark,  ///< ring around what the keyboard acts on
    Shadow ///< soft shadow of a sheet that lies above
};
Q_ENUM_NS(Look)

/// The one palette of all windows, the same under any desktop theme.
namespace palette {
inline constexpr QColor Ground{0xE0, 0xE0, 0xE0};
inline constexpr QColor Panel{0xF5, 0xF7, 0xF9};
inline constexpr QColor PanelEdge{0xC3, 0xCC, 0xD6};
inline constexpr QColor BandTop{0xFB, 0xFC, 0xFE};
inline constexpr QColor BandBottom{0xC9, 0xD8, 0xEC};
inline constexpr QColor BandEdge{0xA9, 0xBC, 0xD4};
inline constexpr QColor Text{0x1F, 0x29, 0x33};
inline constexpr QColor DisabledText{0x8B, 0x94, 0x9E};
inline constexpr QColor Accent{0x2F, 0x5F, 0x9E};
inline constexpr QColor Field{0xFF, 0xFF, 0xFF};
inline constexpr QColor FieldEdge{0x71, 0x7E, 0x8B};
inline constexpr QColor DisabledField{0xEC, 0xEC, 0xEC};
inline constexpr QColor DisabledFieldEdge{0xC6, 0xCC, 0xD2};
inline constexpr QColor Today{169, 196, 239};
inline constexpr QColor Strip{0xEC, 0xEC, 0xEC};
inline constexpr QColor StripLine{0xC0, 0xC6, 0xCC};
}

/// The palette as the toolkit's own parts take it.
QPalette ToolkitPalette();

/// Draws the ground of a control. Focused: the control, or what it holds, has the keyboard.
void DrawLook(QPainter& Painter, const QRect& Area, Look Kind, bool Enabled, bool Focused);

/// Draws a picture of the program's resources, sharp at every scale.
void DrawPicture(QPainter& Painter, const QRectF& Area, const QString& Path, bool Enabled = true);

/// The picture as the toolkit takes it, at a side and a scale.
QPixmap PicturePixmap(const QString& Path, int Side, qreal Scale = 1);

/// A colour as the windows name it: red in the lowest byte, or with the top bit a system colour.
QColor ColorOf(unsigned int Value);
inline constexpr unsigned int Black = 0x000000;
inline constexpr unsigned int PureRed = 0x0000FF;
inline constexpr unsigned int WindowBackground = 0x80000005;
inline constexpr unsigned int ActiveBorder = 0x8000000A;
inline constexpr unsigned int ButtonText = 0x80000012;

/// Gives the whole program its style, font and palette.
void SetUpLook();

}
