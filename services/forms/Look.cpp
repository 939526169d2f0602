#include "services/forms/Look.h"

#include "services/forms/Globals.h"

#include <QApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QScrollBar>
#include <QToolTip>

#include <png.h>

namespace vellarno::forms {

namespace {

constexpr int TextPixels = 11;
constexpr qreal FieldRadius = 3;
constexpr qreal PanelRadius = 6;
constexpr qreal DisabledOpacity = 0.35;

struct Backdrop
{
    QBrush Fill;
    QColor Edge;
    qreal Radius;
};

Backdrop GroundOf(const QRect& Area, Look Kind, bool Enabled, bool Focused)
{
    using namespace palette;
    if (Kind == Look::Field)
        return Enabled ? Backdrop{Field, Focused ? Accent : FieldEdge, FieldRadius}
                       : Backdrop{DisabledField, DisabledFieldEdge, FieldRadius};
    if (Kind == Look::Panel) return {Panel, Focused ? Accent : PanelEdge, PanelRadius};
    if (Kind == Look::Today) return {Today, Qt::transparent, FieldRadius};
    if (Kind == Look::Mark) return {Qt::NoBrush, Accent, FieldRadius};
    QLinearGradient gradient(Area.topLeft(), Area.bottomLeft());
    if (Kind == Look::Sheen) {
        gradient.setColorAt(0, QColor(255, 255, 255, 160));
        gradient.setColorAt(1, QColor(255, 255, 255, 0));
        return {gradient, Qt::transparent, PanelRadius};
    }
    gradient.setColorAt(0, BandTop);
    gradient.setColorAt(1, BandBottom);
    return {gradient, Focused ? Accent : BandEdge, PanelRadius};
}

/// Darker towards the middle, by sheets of the same faint grey one inside the other.
void DrawShadow(QPainter& Painter, const QRect& Area)
{
    constexpr int Sheets = 6;
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(QColor(0, 0, 0, 16));
    for (int i = 0; i < Sheets; ++i)
        Painter.drawRoundedRect(Area.adjusted(i, i, -i, -i), PanelRadius, PanelRadius);
}

/// A picture of the resources, all of which are PNG. The toolkit's own reader would first load
/// every other format that the desktop has, to ask whether it is the one.
QImage ReadPicture(const QString& Path)
{
    const std::string bytes = ReadResource(Path.toStdString());
    png_image file{};
    file.version = PNG_IMAGE_VERSION;
    png_image_begin_read_from_memory(&file, bytes.data(), bytes.size());
    file.format = PNG_FORMAT_RGBA;
    QImage picture(static_cast<int>(file.width), static_cast<int>(file.height),
                   QImage::Format_RGBA8888);
    png_image_finish_read(&file, nullptr, picture.bits(),
                          static_cast<png_int_32>(picture.bytesPerLine()), nullptr);
    return picture;
}

/// The drawing at its own size if that is the one wanted, else the large one shrunk to the pixel.
QImage PictureOfSize(const QString& Path, const QSize& Pixels)
{
    QImage own = ReadPicture(Path);
    if (own.size() == own.size().scaled(Pixels, Qt::KeepAspectRatio)) return own;
    QString large = Path;
    large.insert(Path.lastIndexOf(u'.'), QStringLiteral("@3x"));
    return ReadPicture(large).scaled(Pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// The palette comes from the style, not from the application: colours set there are copied for
/// each widget, and the toolkit would keep pictures of the buttons of every window ever opened.
class ToolkitStyle : public QProxyStyle
{
public:
    ToolkitStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
    using QProxyStyle::polish;
    void polish(QPalette& Colors) override
    {
        Colors = ToolkitPalette();
        Colors.setResolveMask(0);
    }
    /// The arrows of a scroll bar are as wide as it is high: no bare track shows beside its label.
    int pixelMetric(PixelMetric Which, const QStyleOption* Option,
                    const QWidget* Widget) const override
    {
        const bool arrows = Which == PM_ScrollBarExtent && qobject_cast<const QScrollBar*>(Widget);
        return arrows ? Widget->height() : QProxyStyle::pixelMetric(Which, Option, Widget);
    }
    int styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                  QStyleHintReturn* Return) const override
    {
        if (Hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0; // a message's OK is a plain one
        return QProxyStyle::styleHint(Hint, Option, Widget, Return);
    }
};

}

QPalette ToolkitPalette()
{
    using namespace palette;
    QPalette colors(palette::Ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::PlaceholderText}) {
        colors.setColor(role, Text);
        colors.setColor(QPalette::Disabled, role, DisabledText);
    }
    colors.setColor(QPalette::Base, Field);
    colors.setColor(QPalette::Disabled, QPalette::Base, DisabledField);
    colors.setColor(QPalette::ToolTipBase, Field);
    colors.setColor(QPalette::Button, Panel);
    colors.setColor(QPalette::Highlight, Accent);
    colors.setColor(QPalette::HighlightedText, Field);
    colors.setColor(QPalette::Disabled, QPalette::Highlight, DisabledFieldEdge);
    return colors;
}

void DrawLook(QPainter& Painter, const QRect& Area, Look Kind, bool Enabled, bool Focused)
{
    if (Kind == Look::Plain) return;
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    if (Kind == Look::Shadow) {
        DrawShadow(Painter, Area);
    } else {
        const auto ground = GroundOf(Area, Kind, Enabled, Focused);
        Painter.setPen(ground.Edge);
        Painter.setBrush(ground.Fill);
        const qreal inset = Kind == Look::Sheen ? 2 : 0.5; // the band's own edge stays in view
        Painter.drawRoundedRect(QRectF(Area).adjusted(inset, inset, -inset, -inset), ground.Radius,
                                ground.Radius);
    }
    Painter.restore();
}

void DrawPicture(QPainter& Painter, const QRectF& Area, const QString& Path, bool Enabled)
{
    const qreal scale = Painter.device()->devicePixelRatioF();
    const QSize pixels = (Area.size() * scale).toSize();
    const QString key =
        QStringLiteral("%1@%2x%3").arg(Path).arg(pixels.width()).arg(pixels.height());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap::fromImage(PictureOfSize(Path, pixels));
        picture.setDevicePixelRatio(scale);
        QPixmapCache::insert(key, picture);
    }
    QRectF place({}, picture.deviceIndependentSize());
    place.moveCenter(Area.center());
    Painter.setOpacity(Enabled ? 1 : DisabledOpacity);
    Painter.drawPixmap(place.topLeft(), picture);
    Painter.setOpacity(1);
}

QPixmap PicturePixmap(const QString& Path, int Side, qreal Scale)
{
    QPixmap picture(QSize(Side, Side) * Scale);
    picture.setDevicePixelRatio(Scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    DrawPicture(painter, QRectF(0, 0, Side, Side), Path);
    return picture;
}

QColor ColorOf(unsigned int Value)
{
    switch (Value) {
    case Black:
    case ButtonText: return palette::Text;
    case WindowBackground: return palette::Field;
    case ActiveBorder: return palette::PanelEdge;
    default:
        return QColor(static_cast<int>(Value & 0xFF), static_cast<int>(Value >> 8 & 0xFF),
                      static_cast<int>(Value >> 16 & 0xFF));
    }
}

void SetUpLook()
{
    QApplication::setStyle(new ToolkitStyle);
    // The fields' key filter takes them, so that a menu would name keys without effect.
    QApplication::setAttribute(Qt::AA_DontShowShortcutsInContextMenus);
    QApplication::setPalette(QPalette());
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"),
                      QStringLiteral("Arimo"), QStringLiteral("Helvetica"),
                      QStringLiteral("Nimbus Sans"), QStringLiteral("sans-serif")});
    font.setPixelSize(TextPixels);
    // Italian words and digits: there is nothing to search the other fonts for.
    font.setStyleStrategy(QFont::NoFontMerging);
    QApplication::setFont(font);
    QApplication::setWindowIcon(
        QPixmap::fromImage(ReadPicture(QStringLiteral(":/pictures/vellarno.png"))));
    QToolTip::setFont(font);
    QToolTip::setPalette(ToolkitPalette());
}

}
