#include "TrashLocator.h"

#include "PlatformLog.h"

#include <QFile>
#include <QList>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray parentOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash <= 0 ? QByteArray("/") : path.left(slash);
}

QByteArray joined(const QByteArray &folder, const QByteArray &name)
{
    return folder.endsWith('/') ? folder + name : folder + '/' + name;
}

QString systemText(int error)
{
    char buffer[256] = {};
    return QString::fromLocal8Bit(::strerror_r(error, buffer, sizeof buffer));
}

TrashLocator::Result failed(TrashFailure failure, const QByteArray &path, int error)
{
    return TrashLocator::Result{std::nullopt, failure, path, error};
}

// What a Trash folder's own failure means to the user.
TrashFailure folderFailure(int error)
{
    switch (error) {
    case ENOTDIR:
    case ELOOP:
        return TrashFailure::TrashFolderNotAFolder;
    case EACCES:
    case EPERM:
    case EROFS:
        return TrashFailure::TrashFolderNotWritable;
    case ENOSPC:
    case EDQUOT:
        return TrashFailure::DiskFull;
    default:
        return TrashFailure::Unexpected;
    }
}

// Opens `name` in `parent` as a folder, never through a link, making it (mode 0700) when it
// is not there. Gives -1 with errno set when it cannot.
int openOrMakeFolder(int parent, const char *name)
{
    const int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    int descriptor = ::openat(parent, name, flags);
    if (descriptor >= 0 || errno != ENOENT)
        return descriptor;
    if (::mkdirat(parent, name, 0700) != 0 && errno != EEXIST)
        return -1;
    return ::openat(parent, name, flags);
}

// A Trash folder that is ours alone: a real folder (no link), owned by us, and where
// `exactMode` asks, with no permission for anyone else.
bool isOurs(int descriptor, const QByteArray &path, bool exactMode)
{
    struct stat info = {};
    if (::fstat(descriptor, &info) != 0)
        return false;
    const bool ours = S_ISDIR(info.st_mode) && info.st_uid == ::getuid() &&
                      (!exactMode || (info.st_mode & 07777) == 0700);
    if (!ours)
        qCWarning(platformLog).noquote()
            << "not using" << QFile::decodeName(path) << "as a Trash: owner" << info.st_uid
            << "mode" << QString::number(info.st_mode & 07777, 8) << "; it must be a folder of"
            << ::getuid() << (exactMode ? "with mode 700" : "");
    return ours;
}

// "files" and "info" of a Trash folder that is already open and checked.
TrashLocator::Result withSubfolders(FileDescriptor folder, TrashLocator::Location location)
{
    const std::pair<const char *, FileDescriptor *> subfolders[] = {{"files", &location.files},
                                                                    {"info", &location.info}};
    for (const auto &[name, target] : subfolders) {
        FileDescriptor subfolder(openOrMakeFolder(folder.get(), name));
        if (!subfolder.isValid()) {
            const int error = errno;
            const QByteArray path = joined(location.folderPath, name);
            qCWarning(platformLog).noquote()
                << "cannot use" << QFile::decodeName(path) << "in the Trash:" << systemText(error);
            return failed(folderFailure(error), path, error);
        }
        *target = std::move(subfolder);
    }
    return TrashLocator::Result{std::move(location), TrashFailure::None, QByteArray(), 0};
}

TrashLocator::Result homeTrashFailed(const QByteArray &path, int error)
{
    qCWarning(platformLog).noquote() << "cannot make or open the home Trash at"
                                     << QFile::decodeName(path) << ":" << systemText(error);
    return failed(folderFailure(error), path, error);
}

} // namespace

TrashLocator::TrashLocator(const QByteArray &homeTrashPath) : m_homeTrash(homeTrashPath) {}

TrashLocator::Result TrashLocator::locate(const QByteArray &folder,
                                          const FileSystemPlace &place) const
{
    if (isOnHomeTrashsPlace(place))
        return homeTrash();
    // The drive's top folder is the last one up from the item that is still on its mount.
    QByteArray top = folder;
    while (top != "/") {
        const QByteArray up = parentOf(top);
        const std::optional<FileSystemPlace> upPlace =
            FileSystemPlace::of(AT_FDCWD, up.constData(), false);
        if (!upPlace || !(*upPlace == place))
            break;
        top = up;
    }
    return driveTrash(top);
}

// The home Trash may not exist yet: then the nearest folder above it that does tells where
// it would be made.
bool TrashLocator::isOnHomeTrashsPlace(const FileSystemPlace &place) const
{
    if (!m_homeTrash.startsWith('/'))
        return false;
    for (QByteArray path = m_homeTrash;; path = parentOf(path)) {
        const std::optional<FileSystemPlace> homePlace =
            FileSystemPlace::of(AT_FDCWD, path.constData(), true);
        if (homePlace)
            return *homePlace == place;
        if ((errno != ENOENT && errno != ENOTDIR) || path == "/")
            return false;
    }
}

TrashLocator::Result TrashLocator::homeTrash() const
{
    // Made from the first missing folder down, each for its owner alone, as a data folder
    // of the user's would be.
    QList<QByteArray> missing;
    for (QByteArray path = m_homeTrash; path != "/"; path = parentOf(path)) {
        struct stat info = {};
        if (::stat(path.constData(), &info) == 0)
            break;
        missing.prepend(path);
    }
    for (const QByteArray &path : std::as_const(missing)) {
        if (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST)
            return homeTrashFailed(path, errno);
    }
    // The home Trash itself may be a link the user made; its place was checked through it.
    FileDescriptor folder(::open(m_homeTrash.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isValid())
        return homeTrashFailed(m_homeTrash, errno);
    const std::unique_ptr<char, decltype(&std::free)> canonical(
        ::realpath(m_homeTrash.constData(), nullptr), &std::free);
    if (!canonical)
        return homeTrashFailed(m_homeTrash, errno);
    Location location;
    location.folderPath = m_homeTrash;
    location.canonicalPath = QByteArray(canonical.get());
    return withSubfolders(std::move(folder), std::move(location));
}

TrashLocator::Result TrashLocator::driveTrash(const QByteArray &topFolder) const
{
    const QByteArray uid = QByteArray::number(::getuid());
    const FileDescriptor top(::open(topFolder.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!top.isValid())
        return failed(TrashFailure::NoTrashOnDrive, topFolder, errno);

    // First choice: the drive's shared ".Trash", prepared by its administrator.
    const QByteArray sharedPath = joined(topFolder, ".Trash");
    struct stat shared = {};
    if (::fstatat(top.get(), ".Trash", &shared, AT_SYMLINK_NOFOLLOW) == 0) {
        if (S_ISDIR(shared.st_mode) && (shared.st_mode & S_ISVTX)) {
            const FileDescriptor sharedFolder(
                ::openat(top.get(), ".Trash", O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
            const QByteArray path = joined(sharedPath, uid);
            FileDescriptor ours(sharedFolder.isValid()
                                    ? openOrMakeFolder(sharedFolder.get(), uid.constData())
                                    : -1);
            if (ours.isValid() && isOurs(ours.get(), path, false)) {
                Location location;
                location.folderPath = path;
                location.canonicalPath = path;
                location.topFolder = topFolder;
                return withSubfolders(std::move(ours), std::move(location));
            }
            if (!ours.isValid())
                qCWarning(platformLog).noquote() << "cannot use" << QFile::decodeName(path)
                                                 << "as a Trash:" << systemText(errno);
        } else {
            // Anyone could have made it: an administrator should know it is not used.
            qCWarning(platformLog).noquote() << "not using" << QFile::decodeName(sharedPath)
                                             << "as a Trash: it is a link or lacks the sticky bit";
        }
    }

    // Else a Trash of our own at the top of the drive.
    const QByteArray ownName = ".Trash-" + uid;
    const QByteArray ownPath = joined(topFolder, ownName);
    FileDescriptor own(openOrMakeFolder(top.get(), ownName.constData()));
    if (!own.isValid()) {
        const int error = errno;
        qCWarning(platformLog).noquote()
            << "cannot use" << QFile::decodeName(ownPath) << "as a Trash:" << systemText(error);
        switch (error) {
        case EROFS:
            return failed(TrashFailure::ReadOnly, ownPath, error);
        case ENOSPC:
        case EDQUOT:
            return failed(TrashFailure::DiskFull, ownPath, error);
        default:
            return failed(TrashFailure::NoTrashOnDrive, ownPath, error);
        }
    }
    if (!isOurs(own.get(), ownPath, true))
        return failed(TrashFailure::NoTrashOnDrive, ownPath, EPERM);
    Location location;
    location.folderPath = ownPath;
    location.canonicalPath = ownPath;
    location.topFolder = topFolder;
    return withSubfolders(std::move(own), std::move(location));
}
