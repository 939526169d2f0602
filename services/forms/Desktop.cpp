#include "services/forms/Desktop.h"

#include "services/forms/Look.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <cstdlib>

namespace vellarno::forms {

namespace {

constexpr int MessagePictureSide = 32;

/// Where the session names no folder, or one that others may enter, the toolkit takes another and
/// tells the terminal each time it looks.
template <class Operation>
auto Quietly(Operation Run)
{
    const auto usual =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    auto result = Run();
    qInstallMessageHandler(usual);
    return result;
}

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
    auto* text = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
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

bool OpenAddress(const std::string& Address)
{
    const QString address = QString::fromStdString(Address);
    const QFileInfo file(address);
    const QUrl url = file.exists() ? QUrl::fromLocalFile(file.absoluteFilePath()) : QUrl(address);
    return Quietly([&url] { return QDesktopServices::openUrl(url); });
}

bool StartEntry(const std::string& Entry)
{
    QFile entry(QStandardPaths::locate(QStandardPaths::ApplicationsLocation,
                                       QString::fromStdString(Entry + ".desktop")));
    if (!entry.exists() || !entry.open(QIODevice::ReadOnly)) return false;
    const QByteArray start = "Exec=";
    QByteArray line; // the first such line is the entry's own, before those of its actions
    do line = entry.readLine();
    while (!line.isEmpty() && !line.startsWith(start));
    QStringList command = QProcess::splitCommand(QString::fromUtf8(line.mid(start.size())));
    if (command.isEmpty()) return false;
    const QString program = QStandardPaths::findExecutable(command.takeFirst());
    return !program.isEmpty() && QProcess::startDetached(program, command);
}

// Platforms without a display may have the interface, but no connection behind it.
xcb_connection_t* X11Connection()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

bool OnX11()
{
    return X11Connection() != nullptr;
}

bool Compositing()
{
    xcb_connection_t* display = X11Connection();
    if (!display) return false;
    // Whoever composes the screen owns this selection (Extended Window Manager Hints).
    constexpr char selection[] = "_NET_WM_CM_S0";
    auto* atom = xcb_intern_atom_reply(
        display, xcb_intern_atom(display, 1, sizeof selection - 1, selection), nullptr);
    if (!atom) return false;
    auto* owner = xcb_get_selection_owner_reply(
        display, xcb_get_selection_owner(display, atom->atom), nullptr);
    const bool composed = owner && owner->owner != XCB_NONE;
    std::free(atom);
    std::free(owner);
    return composed;
}

std::string ReadResource(const std::string& Path)
{
    QFile resource(QString::fromStdString(Path));
    return resource.open(QIODevice::ReadOnly) ? resource.readAll().toStdString() : std::string();
}

}
