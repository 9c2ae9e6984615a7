#include "DesktopWorkspace.h"

#include "PlatformLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

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

// A trashed item lands in "files" of the home Trash or of a volume's ".Trash-UID" or
// ".Trash/UID"; anything else is not the freedesktop Trash.
bool DesktopWorkspace::isInsideATrash(const QString &pathInTrash)
{
    if (!QDir::isAbsolutePath(pathInTrash))
        return false;
    const QString uid = QString::number(::getuid());
    const QString folder = QFileInfo(pathInTrash).absolutePath();
    return folder.endsWith(QStringLiteral("/Trash/files")) ||
           folder.endsWith(QStringLiteral("/.Trash-") + uid + QStringLiteral("/files")) ||
           folder.endsWith(QStringLiteral("/.Trash/") + uid + QStringLiteral("/files"));
}

TrashResult DesktopWorkspace::moveToTrash(const QString &path)
{
    TrashResult result;
    struct stat info = {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0) {
        result.error = QStringLiteral("“%1” does not exist.").arg(QFileInfo(path).fileName());
        return result;
    }
    // Qt 6.4 reports success while putting the item into "./files" of the current folder
    // when the home Trash does not exist yet, so the Trash is made first.
    const QString homeTrash =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
        QStringLiteral("/Trash");
    QDir().mkpath(homeTrash + QStringLiteral("/files"));
    QDir().mkpath(homeTrash + QStringLiteral("/info"));

    QFile item(path);
    if (!item.moveToTrash()) {
        result.error = item.errorString();
        qCWarning(platformLog).noquote()
            << "could not move" << path << "to the Trash:" << item.errorString();
        return result;
    }
    const QString pathInTrash = item.fileName();
    if (!isInsideATrash(pathInTrash)) {
        // It went somewhere that is no Trash: bring it back, never over another item.
        if (!QFile::exists(path))
            QFile::rename(QDir::current().absoluteFilePath(pathInTrash), path);
        qCWarning(platformLog).noquote()
            << "the Trash put" << path << "outside any Trash, at" << pathInTrash;
        result.error =
            QStringLiteral("The Trash could not be used for “%1”.").arg(QFileInfo(path).fileName());
        return result;
    }
    result.trashed = true;
    result.pathInTrash = pathInTrash;
    return result;
}
