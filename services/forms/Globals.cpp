#include "services/forms/Globals.h"

#include "services/forms/Look.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>

#include <stdexcept>

namespace vellarno::forms {

namespace {

constexpr int MessagePictureSide = 32;

}

void MsgBox(const std::string& Prompt, MessageStyle Style, const std::string& Title)
{
    // The window under the box may go while it stands, and takes the box with it then.
    const QPointer<QMessageBox> box = new QMessageBox(QApplication::activeWindow());
    // One without a window of its own would stay behind a pinned one of another start.
    box->setWindowFlag(Qt::WindowStaysOnTopHint, !box->parentWidget());
    box->setTextFormat(Qt::PlainText);
    box->setText(
        QString::fromStdString(Prompt).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    box->setWindowTitle(QString::fromStdString(Title));
    box->setIconPixmap(PicturePixmap(Style == Critical ? QStringLiteral(":/pictures/error.png")
                                                       : QStringLiteral(":/pictures/info.png"),
                                     MessagePictureSide, box->devicePixelRatioF()));
    box->setStandardButtons(QMessageBox::Ok);
    // The toolkit would wrap whatever is wider than half of the screen.
    if (auto* text = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
        text->setMinimumWidth(text->sizeHint().width());
    box->exec();
    delete box;
}

void Beep()
{
    QApplication::beep();
}

void DoEvents()
{
    QApplication::processEvents();
}

void SendKeys(const std::string& Keys)
{
    QWidget* target = QApplication::focusWidget();
    if (Keys != "{TAB}" || !target) return;
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QApplication::postEvent(target, new QKeyEvent(type, Qt::Key_Tab, Qt::NoModifier));
}

void SetClipboardText(const std::string& Text)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(Text));
}

void SetScreenPointer(bool Hourglass)
{
    while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
    if (Hourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
}

std::string ReadResource(const std::string& Path)
{
    QFile resource(QString::fromStdString(Path));
    if (!resource.open(QIODevice::ReadOnly)) throw std::logic_error(Path);
    return resource.readAll().toStdString();
}

}
