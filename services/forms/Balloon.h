#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <string>

class QBitmap;
class QPainterPath;

namespace vellarno::forms {

class Form;

/// A tip over a whole form, with a heading and some lines of text. It opens once the pointer has
/// rested on the form, closes by itself, and goes for good when the pointer or the keyboard leaves
/// the form. It takes neither the focus nor the mouse.
class Balloon : public QWidget
{
    Q_OBJECT

public:
    struct Manner
    {
        bool Stem;       ///< a balloon that points to the pointer; else a plain rectangle
        bool Centered;   ///< under the form, whatever the pointer's place
        bool OnTop;      ///< above other windows
        int DelayTime;   ///< milliseconds of rest before it opens
        int VisibleTime; ///< milliseconds until it closes
    };

    /// The pointer counts as being over the form already. The form owns the balloon.
    Balloon(Form& Parent, const Manner& How);

    /// @param Icon  0 none, 1 information, 2 warning, 3 error.
    void SetHeading(const std::string& Words, int Icon);
    /// Lines are parted by CR LF.
    void SetText(const std::string& Words);

    std::string Title() const { return title.toStdString(); }
    std::string Text() const { return text.toStdString(); }

protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;

private:
    /// The parts of the balloon's body, from its upper left corner.
    struct Layout
    {
        QRect Picture, Heading, Lines;
        QSize Size;
    };
    Layout Measure() const;
    QFont HeadingFont() const;
    QPainterPath Outline() const;
    QBitmap Silhouette() const;

    void LetMouseThrough();
    void Rest();
    void Rested();
    void Open();
    void Dismiss();
    void Arrange();
    void Place(const QSize& Body);
    void Changed();

    const Manner manner;
    const bool translucent;
    QString title;
    QString text;
    int icon = 0;

    QTimer rest;
    QTimer life;
    QPoint pointer;        ///< where it rests
    bool finished = false; ///< has been open, or its form has gone

    QRect body;     ///< the balloon without its stem
    QPoint stemTip; ///< in the window's pixels
};

/// A balloon that may go with its form: then this points to nothing.
using BalloonPointer = QPointer<Balloon>;

}
