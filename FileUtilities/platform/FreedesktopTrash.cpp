#include "FreedesktopTrash.h"

#include "FileDescriptor.h"
#include "FileSystemPlace.h"
#include "PlatformLog.h"
#include "TrashInfo.h"
#include "TrashLocator.h"

#include <QDateTime>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <QCoreApplication>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

using CPath = std::unique_ptr<char, decltype(&std::free)>;

QByteArray recordSuffix()
{
    return QByteArrayLiteral(".trashinfo");
}

QString systemText(int error)
{
    char buffer[256] = {};
    return QString::fromLocal8Bit(::strerror_r(error, buffer, sizeof buffer));
}

// The absolute form of a path, without trailing slashes; "." and ".." as the last part are
// resolved, since they name no entry that could be moved.
QByteArray absolutePath(const QByteArray &path)
{
    QByteArray absolute = path;
    if (!absolute.startsWith('/')) {
        const CPath workingFolder(::getcwd(nullptr, 0), &std::free);
        if (!workingFolder)
            return QByteArray();
        absolute = QByteArray(workingFolder.get()) + '/' + absolute;
    }
    while (absolute.size() > 1 && absolute.endsWith('/'))
        absolute.chop(1);
    const QByteArray last = absolute.mid(absolute.lastIndexOf('/') + 1);
    if (last == "." || last == "..") {
        const CPath resolved(::realpath(absolute.constData(), nullptr), &std::free);
        if (resolved)
            absolute = QByteArray(resolved.get());
    }
    return absolute;
}

// The item's name as the Trash's files will carry it: short enough that "NAME.1000.trashinfo"
// fits the file system, cut between characters and keeping a short extension.
QByteArray fittedName(const QByteArray &name, long nameMax)
{
    const qsizetype counter = QByteArray::number(FreedesktopTrash::maxNamesPerItem).size() + 1;
    const qsizetype limit = static_cast<qsizetype>(nameMax) - recordSuffix().size() - counter;
    if (name.size() <= limit)
        return name;
    const qsizetype dot = name.lastIndexOf('.');
    const QByteArray extension = dot > 0 && name.size() - dot <= 16 ? name.mid(dot) : QByteArray();
    qsizetype cut = limit - extension.size();
    while (cut > 0 && (static_cast<unsigned char>(name.at(cut)) & 0xC0) == 0x80)
        --cut;
    return name.left(cut) + extension;
}

// errno of the first write that failed, 0 when every byte is written.
int writeWhole(int descriptor, const QByteArray &data)
{
    qsizetype written = 0;
    while (written < data.size()) {
        const ssize_t result = ::write(descriptor, data.constData() + written,
                                       static_cast<size_t>(data.size() - written));
        if (result < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        if (result == 0)
            return EIO;
        written += result;
    }
    return 0;
}

// The kernel or the file system does not know RENAME_NOREPLACE (NFS, some FUSE).
bool lacksNoReplace(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

// Renames without ever replacing; where the file system cannot, a file is linked under its
// new name and then unlinked under its old one, which refuses a taken name just the same.
// A folder cannot be linked. Gives errno, 0 on success; on failure nothing has changed.
int moveWithoutReplacing(int fromFolder, const char *name, int toFolder, const char *newName,
                         bool isFolder)
{
    if (::renameat2(fromFolder, name, toFolder, newName, RENAME_NOREPLACE) == 0)
        return 0;
    const int error = errno;
    if (!lacksNoReplace(error) || isFolder)
        return error;
    if (::linkat(fromFolder, name, toFolder, newName, 0) != 0)
        return errno;
    if (::unlinkat(fromFolder, name, 0) != 0) {
        const int unlinkError = errno;
        // The new name is a second link made a moment ago to the data the old name holds.
        ::unlinkat(toFolder, newName, 0);
        return unlinkError;
    }
    return 0;
}

TrashFailure recordFailure(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
        return TrashFailure::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
        return TrashFailure::TrashFolderNotWritable;
    default:
        return TrashFailure::Unexpected;
    }
}

TrashFailure moveFailure(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return TrashFailure::Missing;
    case EACCES:
    case EPERM:
        return TrashFailure::PermissionDenied;
    case EROFS:
        return TrashFailure::ReadOnly;
    case ENOSPC:
    case EDQUOT:
        return TrashFailure::DiskFull;
    case EXDEV:
        return TrashFailure::NoTrashOnDrive;
    case EBUSY:
        return TrashFailure::NotMovable;
    default:
        return TrashFailure::Unexpected;
    }
}

bool isInside(const QByteArray &path, const QByteArray &folder)
{
    return path.startsWith(folder) && path.size() > folder.size() &&
           (folder.endsWith('/') || path.at(folder.size()) == '/');
}

} // namespace

FreedesktopTrash::FreedesktopTrash()
{
    const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (dataHome.startsWith(u'/'))
        m_homeTrash = QFile::encodeName(dataHome) + "/Trash";
}

FreedesktopTrash::Result FreedesktopTrash::moveToTrash(const QString &path) const
{
    return moveNativeToTrash(QFile::encodeName(path));
}

FreedesktopTrash::Result FreedesktopTrash::moveNativeToTrash(const QByteArray &givenPath) const
{
    const QByteArray path = absolutePath(givenPath);
    const qsizetype slash = path.lastIndexOf('/');
    const QByteArray folder = slash <= 0 ? QByteArray("/") : path.left(slash);
    const QByteArray name = path.mid(slash + 1);
    const QString shownName = QFile::decodeName(name.isEmpty() ? givenPath : name);

    const auto fail = [&](TrashFailure failure, const char *step, int error,
                          const QByteArray &trashFolder = QByteArray()) {
        qCWarning(platformLog).noquote()
            << "could not move" << QFile::decodeName(givenPath) << "to the Trash:" << step
            << (trashFolder.isEmpty() ? QString() : QFile::decodeName(trashFolder))
            << (error ? systemText(error) : QString());
        return Result{false, QByteArray(), failure,
                      sentence(failure, shownName, QFile::decodeName(trashFolder))};
    };

    if (path.isEmpty() || name.isEmpty())
        return fail(TrashFailure::NotMovable, "no item named in", 0, givenPath);
    const FileDescriptor folderDescriptor(
        ::open(folder.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folderDescriptor.isValid()) {
        const int error = errno;
        return fail(error == EACCES ? TrashFailure::PermissionDenied : TrashFailure::Missing,
                    "opening its folder", error);
    }
    struct stat item = {};
    if (::fstatat(folderDescriptor.get(), name.constData(), &item, AT_SYMLINK_NOFOLLOW) != 0) {
        const int error = errno;
        return fail(error == EACCES ? TrashFailure::PermissionDenied : TrashFailure::Missing,
                    "examining it", error);
    }
    // Nothing leaves a read-only drive; saying so beats naming whichever step fails first.
    struct statvfs drive = {};
    if (::fstatvfs(folderDescriptor.get(), &drive) == 0 && (drive.f_flag & ST_RDONLY))
        return fail(TrashFailure::ReadOnly, "its drive is read-only", EROFS);

    const std::optional<FileSystemPlace> place =
        FileSystemPlace::of(folderDescriptor.get(), "", true);
    if (!place)
        return fail(moveFailure(errno), "examining its folder", errno);
    const CPath canonicalFolder(::realpath(folder.constData(), nullptr), &std::free);
    if (!canonicalFolder)
        return fail(moveFailure(errno), "resolving its folder", errno);
    if (S_ISDIR(item.st_mode)) {
        const std::optional<FileSystemPlace> itemPlace =
            FileSystemPlace::of(folderDescriptor.get(), name.constData(), false);
        if (itemPlace && !(*itemPlace == *place))
            return fail(TrashFailure::NotMovable, "it is a mount point", EBUSY);
    }
    // Records name the item without links, so that a link changed later cannot send it
    // back somewhere else.
    const QByteArray canonicalParent(canonicalFolder.get());
    const QByteArray canonicalItem =
        canonicalParent.endsWith('/') ? canonicalParent + name : canonicalParent + '/' + name;

    TrashLocator::Result where = TrashLocator(m_homeTrash).locate(canonicalParent, *place);
    if (!where.location)
        return fail(where.failure, "no Trash to use at", where.error, where.failedPath);
    const TrashLocator::Location &trash = *where.location;
    if (canonicalItem == trash.canonicalPath || isInside(trash.canonicalPath, canonicalItem))
        return fail(TrashFailure::HoldsTheTrash, "it holds the Trash", 0, trash.folderPath);
    if (isInside(canonicalItem, trash.canonicalPath))
        return fail(TrashFailure::AlreadyInTrash, "it is already in", 0, trash.folderPath);

    // A drive may be mounted elsewhere next time: its Trash names items from its top.
    TrashInfo info;
    info.path = trash.topFolder.isEmpty()
                    ? canonicalItem
                    : canonicalItem.mid(trash.topFolder.size() + (trash.topFolder == "/" ? 0 : 1));
    info.deletionDate = QDateTime::currentDateTime();
    const QByteArray record = info.toBytes();

    long nameMax = ::fpathconf(trash.info.get(), _PC_NAME_MAX);
    if (nameMax <= 0)
        nameMax = NAME_MAX;
    const QByteArray baseName = fittedName(name, nameMax);
    const QByteArray filesPath = trash.folderPath + "/files";
    const QByteArray infoPath = trash.folderPath + "/info";
    for (int attempt = 1; attempt <= maxNamesPerItem; ++attempt) {
        const QByteArray trashName =
            attempt == 1 ? baseName : baseName + '.' + QByteArray::number(attempt);
        struct stat taken = {};
        if (::fstatat(trash.files.get(), trashName.constData(), &taken, AT_SYMLINK_NOFOLLOW) == 0)
            continue;
        if (errno != ENOENT)
            return fail(TrashFailure::Unexpected, "looking for a free name in", errno, filesPath);

        // The record first, under a name only this call can have made.
        const QByteArray recordName = trashName + recordSuffix();
        FileDescriptor recordFile(::openat(trash.info.get(), recordName.constData(),
                                           O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW,
                                           0600));
        if (!recordFile.isValid()) {
            if (errno == EEXIST)
                continue;
            const int error = errno;
            return fail(recordFailure(error), "making its record in", error, infoPath);
        }
        int error = writeWhole(recordFile.get(), record);
        if (error == 0 && ::fsync(recordFile.get()) != 0)
            error = errno;
        const int closeError = recordFile.close();
        if (error == 0)
            error = closeError;
        // So that the record is on the disk before its item is in the Trash; a file system
        // that cannot sync a folder says EINVAL and is taken as it is.
        if (error == 0 && ::fsync(trash.info.get()) != 0 && errno != EINVAL)
            error = errno;
        if (error != 0) {
            ::unlinkat(trash.info.get(), recordName.constData(), 0);
            return fail(recordFailure(error), "writing its record in", error, infoPath);
        }

        const int moveError =
            moveWithoutReplacing(folderDescriptor.get(), name.constData(), trash.files.get(),
                                 trashName.constData(), S_ISDIR(item.st_mode));
        if (moveError == 0)
            return Result{true, filesPath + '/' + trashName, TrashFailure::None, QString()};
        // The record was made by this call a moment ago and describes nothing now.
        if (::unlinkat(trash.info.get(), recordName.constData(), 0) != 0)
            qCWarning(platformLog).noquote()
                << "could not take back the record"
                << QFile::decodeName(infoPath + '/' + recordName) << ":" << systemText(errno);
        if (moveError == EEXIST)
            continue;
        return fail(moveFailure(moveError), "moving it into", moveError, filesPath);
    }
    return fail(TrashFailure::TooManyNames, "every name is taken in", 0, filesPath);
}

QString FreedesktopTrash::sentence(TrashFailure failure, const QString &itemName,
                                   const QString &trashFolder)
{
    switch (failure) {
    case TrashFailure::None:
        return QString();
    case TrashFailure::Missing:
        return QCoreApplication::translate("FreedesktopTrash", "“%1” does not exist.")
            .arg(itemName);
    case TrashFailure::NotMovable:
        return QCoreApplication::translate(
                   "FreedesktopTrash",
                   "“%1” is the top folder of a drive and cannot be moved to the Trash.")
            .arg(itemName);
    case TrashFailure::AlreadyInTrash:
        return QCoreApplication::translate("FreedesktopTrash", "“%1” is already in the Trash.")
            .arg(itemName);
    case TrashFailure::HoldsTheTrash:
        return QCoreApplication::translate(
                   "FreedesktopTrash", "“%1” holds the Trash, which cannot be moved into itself.")
            .arg(itemName);
    case TrashFailure::NoTrashOnDrive:
        return QCoreApplication::translate("FreedesktopTrash",
                                           "There is no Trash on the drive that holds “%1”.")
            .arg(itemName);
    case TrashFailure::TrashFolderNotAFolder:
        return QCoreApplication::translate("FreedesktopTrash",
                                           "The Trash cannot take “%1”: “%2” is not a folder.")
            .arg(itemName, trashFolder);
    case TrashFailure::TrashFolderNotWritable:
        return QCoreApplication::translate(
                   "FreedesktopTrash",
                   "The Trash cannot take “%1”: its folder “%2” cannot be written to.")
            .arg(itemName, trashFolder);
    case TrashFailure::DiskFull:
        return QCoreApplication::translate(
                   "FreedesktopTrash", "There is no room in the Trash for “%1”: the disk is full.")
            .arg(itemName);
    case TrashFailure::ReadOnly:
        return QCoreApplication::translate("FreedesktopTrash",
                                           "“%1” is on a drive that is read-only.")
            .arg(itemName);
    case TrashFailure::PermissionDenied:
        return QCoreApplication::translate("FreedesktopTrash",
                                           "You do not have permission to move “%1” to the Trash.")
            .arg(itemName);
    case TrashFailure::TooManyNames:
        return QCoreApplication::translate("FreedesktopTrash",
                                           "The Trash already holds too many items named “%1”.")
            .arg(itemName);
    case TrashFailure::Unexpected:
        break;
    }
    return QCoreApplication::translate(
               "FreedesktopTrash",
               "“%1” could not be moved to the Trash because of an unexpected error.")
        .arg(itemName);
}
