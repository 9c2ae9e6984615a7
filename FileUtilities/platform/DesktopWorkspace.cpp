#include "DesktopWorkspace.h"

#include "FreedesktopTrash.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>

bool DesktopWorkspace::openURL(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

bool DesktopWorkspace::selectFile(const QString &path)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString()} << QString();
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 5000);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return true;
    // No file manager on the bus: the folder that holds the item is the next best thing.
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

TrashResult DesktopWorkspace::moveToTrash(const QString &path)
{
    const FreedesktopTrash::Result result = FreedesktopTrash().moveToTrash(path);
    return TrashResult{result.trashed, QFile::decodeName(result.pathInTrash), result.error};
}
