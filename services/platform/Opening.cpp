#include "services/platform/Opening.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace vellarno {

void OpenAddress(const std::string& Address)
{
    const QString address = QString::fromStdString(Address);
    const QFileInfo file(address);
    const QUrl url = file.exists() ? QUrl::fromLocalFile(file.absoluteFilePath()) : QUrl(address);
    QDesktopServices::openUrl(url);
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

}
