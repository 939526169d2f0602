#include "services/forms/Balloon.h"

#include "services/forms/Form.h"
#include "services/forms/Look.h"
#include "services/platform/X11.h"

#include <QBitmap>
#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace vellarno::forms {

namespace {

constexpr int PaddingX = 10;
constexpr int PaddingY = 8;
constexpr int PictureSide = 16;
constexpr int PictureGap = 6;
constexpr int HeadingGap = 5;
constexpr int MaxLineWidth = 440;
constexpr int Radius = 6;

constexpr int StemLength = 12;
constexpr int StemWidth = 14;
constexpr int StemInset = 24; ///< from the left edge to the tip, where the screen leaves room

/// Clear of the pointer's own picture, which hangs below the point that it marks.
constexpr int GapBelowPointer = 20;
constexpr int GapAbove = 2;

QString PictureOf(int Icon)
{
    switch (Icon) {
    case 1: return QStringLiteral(":/pictures/info.png");
    case 2: return QStringLiteral(":/pictures/warning.png");
    case 3: return QStringLiteral(":/pictures/error.png");
    default: return {};
    }
}

Qt::WindowFlags FlagsOf(const Balloon::Manner& How)
{
    const Qt::WindowFlags flags = Qt::ToolTip | Qt::FramelessWindowHint |
                                  Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus;
    return How.OnTop ? flags | Qt::WindowStaysOnTopHint : flags;
}

/// Where a window of that size stands by a point: centred on it or to its right, above or below,
/// and always on the screen.
QRect Beside(const QPoint& Point, const QSize& Size, int Left, int GapBelow, bool PreferAbove,
             const QRect& Screen)
{
    const int above = Point.y() - GapAbove - Size.height();
    const int below = Point.y() + GapBelow;
    const bool fitsAbove = above >= Screen.top();
    const bool fitsBelow = below + Size.height() <= Screen.bottom() + 1;
    const int wanted = (PreferAbove ? fitsAbove : !fitsBelow) ? above : below;
    const auto inside = [](int Wanted, int Low, int High) {
        return std::max(Low, std::min(Wanted, High));
    };
    return {QPoint(inside(Point.x() - Left, Screen.left(), Screen.right() + 1 - Size.width()),
                   inside(wanted, Screen.top(), Screen.bottom() + 1 - Size.height())),
            Size};
}

}

Balloon::Balloon(Form& Parent, const Manner& How)
    : QWidget(&Parent, FlagsOf(How)), manner(How), translucent(!OnX11() || Compositing())
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground, translucent);
    rest.setSingleShot(true);
    life.setSingleShot(true);
    connect(&rest, &QTimer::timeout, this, &Balloon::Rested);
    connect(&life, &QTimer::timeout, this, &Balloon::Dismiss);
    Parent.installEventFilter(this);
    Rest();
}

/// On X11 the toolkit heeds the flag only when it changes on a window that is on screen.
void Balloon::LetMouseThrough()
{
    for (const bool on : {false, true}) windowHandle()->setFlag(Qt::WindowTransparentForInput, on);
}

void Balloon::SetHeading(const std::string& Words, int Icon)
{
    title = QString::fromStdString(Words);
    icon = Icon;
    Changed();
}

void Balloon::SetText(const std::string& Words)
{
    text = QString::fromStdString(Words).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    Changed();
}

void Balloon::Changed()
{
    setAccessibleName(title);
    setAccessibleDescription(text);
    if (isVisible()) Arrange();
}

bool Balloon::eventFilter(QObject* Watched, QEvent* Event)
{
    switch (Event->type()) {
    case QEvent::Hide:
    case QEvent::Close: Dismiss(); break;
    case QEvent::Leave:
    case QEvent::WindowDeactivate:
        rest.stop();
        if (isVisible()) Dismiss();
        break;
    case QEvent::Enter: Rest(); break;
    default: break;
    }
    return QWidget::eventFilter(Watched, Event);
}

void Balloon::Rest()
{
    if (finished || isVisible()) return;
    pointer = QCursor::pos();
    rest.start(std::max(manner.DelayTime, 0));
}

void Balloon::Rested()
{
    if (!parentWidget()->isVisible() || parentWidget()->isMinimized())
        Dismiss();
    else if (QCursor::pos() == pointer)
        Open();
    else
        Rest();
}

void Balloon::Open()
{
    if (title.isEmpty() && text.isEmpty()) return;
    Arrange();
    show();
    LetMouseThrough();
    life.start(std::max(manner.VisibleTime, 0));
}

void Balloon::Dismiss()
{
    finished = true;
    rest.stop();
    life.stop();
    hide();
}

QFont Balloon::HeadingFont() const
{
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

Balloon::Layout Balloon::Measure() const
{
    const QRect room(0, 0, MaxLineWidth, 0);
    const bool pictured = !PictureOf(icon).isEmpty();
    const int pictureRoom = pictured ? PictureSide + PictureGap : 0;
    QSize heading = title.isEmpty()
                        ? QSize(0, 0)
                        : QFontMetrics(HeadingFont()).boundingRect(room, 0, title).size();
    if (pictured) heading.setHeight(std::max(heading.height(), PictureSide));
    const QSize lines = text.isEmpty()
                            ? QSize(0, 0)
                            : fontMetrics().boundingRect(room, Qt::TextWordWrap, text).size();
    const int gap = heading.height() > 0 && lines.height() > 0 ? HeadingGap : 0;

    Layout layout;
    const QPoint corner(PaddingX, PaddingY);
    layout.Picture = {corner + QPoint(0, (heading.height() - PictureSide) / 2),
                      QSize(PictureSide, PictureSide)};
    layout.Heading = {corner + QPoint(pictureRoom, 0), heading};
    layout.Lines = {corner + QPoint(0, heading.height() + gap), lines};
    layout.Size = {2 * PaddingX + std::max(pictureRoom + heading.width(), lines.width()),
                   2 * PaddingY + heading.height() + gap + lines.height()};
    return layout;
}

void Balloon::Arrange()
{
    Place(Measure().Size);
    if (!translucent) setMask(Silhouette());
    update();
}

void Balloon::Place(const QSize& Body)
{
    const QRect form = parentWidget()->frameGeometry();
    const QPoint point = manner.Centered ? QPoint(form.center().x(), form.bottom() + 1) : pointer;
    const QScreen* at = QGuiApplication::screenAt(point);
    const QRect screen = (at ? at : parentWidget()->screen())->availableGeometry();
    const QSize size = manner.Stem ? Body + QSize(0, StemLength) : Body;
    const QRect window = manner.Centered ? Beside(point, size, size.width() / 2, 0, false, screen)
                                         : Beside(point, size, manner.Stem ? StemInset : 0,
                                                  GapBelowPointer, manner.Stem, screen);
    setGeometry(window);

    const bool stemAtTop = manner.Stem && window.center().y() > point.y();
    body = QRect(QPoint(0, stemAtTop ? StemLength : 0), Body);
    const int margin = Radius + StemWidth / 2;
    stemTip = {
        std::clamp(point.x() - window.left(), margin, std::max(margin, size.width() - margin)),
        stemAtTop ? 0 : size.height()};
}

QPainterPath Balloon::Outline() const
{
    QPainterPath outline;
    const QRectF box = QRectF(body).adjusted(0.5, 0.5, -0.5, -0.5);
    if (!manner.Stem) {
        outline.addRect(box);
        return outline;
    }
    outline.addRoundedRect(box, Radius, Radius);
    const bool atTop = stemTip.y() == 0;
    const qreal root = atTop ? box.top() + 1 : box.bottom() - 1;
    const qreal tip = atTop ? 1 : stemTip.y() - 1;
    const qreal half = StemWidth / 2.0;
    QPainterPath stem;
    stem.addPolygon(QPolygonF(
        {{stemTip.x() - half, root}, {qreal(stemTip.x()), tip}, {stemTip.x() + half, root}}));
    stem.closeSubpath();
    return outline.united(stem);
}

/// Cuts the window to the balloon's shape where the desktop can't let what lies behind show.
QBitmap Balloon::Silhouette() const
{
    QBitmap shape(size());
    shape.clear();
    QPainter painter(&shape);
    painter.setPen(Qt::color1);
    painter.setBrush(Qt::color1);
    painter.drawPath(Outline());
    return shape;
}

void Balloon::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!translucent) painter.fillRect(rect(), palette::BandEdge); // behind the smoothed edge
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette::BandEdge);
    painter.setBrush(palette::Field);
    painter.drawPath(Outline());

    const Layout layout = Measure();
    painter.translate(body.topLeft());
    if (const QString picture = PictureOf(icon); !picture.isEmpty())
        DrawPicture(painter, layout.Picture, picture);
    painter.setPen(palette::Text);
    painter.drawText(layout.Lines, Qt::TextWordWrap, text);
    painter.setFont(HeadingFont());
    painter.drawText(layout.Heading, Qt::AlignVCenter, title);
}

}
