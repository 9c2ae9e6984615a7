#include "ContentComparison.h"

#include "FileDescriptor.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Verdict = ContentComparison::Verdict;
using Result = ContentComparison::Result;

Result verdict(Verdict value, const QString &detail = QString())
{
    return Result{value, detail, 0};
}

QString shown(const QByteArray &path)
{
    return QFile::decodeName(path);
}

QString systemText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

// Reads up to `length` bytes at `offset`, going on after short reads; -1 on an error.
qint64 readFully(int fd, char *buffer, qint64 length, qint64 offset)
{
    qint64 done = 0;
    while (done < length) {
        const ssize_t got = ::pread(fd, buffer + done, static_cast<size_t>(length - done),
                                    static_cast<off_t>(offset + done));
        if (got < 0) {
            if (errno == EINTR)
                continue;
            return -1;
        }
        if (got == 0)
            break;
        done += got;
    }
    return done;
}

// Two open regular files of `size` bytes each, block by block.
Result compareOpenFiles(int first, int second, qint64 size, const QString &name,
                        const std::atomic<bool> &stop)
{
    ::posix_fadvise(first, 0, 0, POSIX_FADV_SEQUENTIAL);
    ::posix_fadvise(second, 0, 0, POSIX_FADV_SEQUENTIAL);
    const qint64 block = ContentComparison::blockSize;
    auto buffers = std::make_unique<char[]>(static_cast<size_t>(block) * 2);
    char *left = buffers.get();
    char *right = buffers.get() + block;
    Result result{Verdict::Equal, QString(), 0};
    for (qint64 offset = 0;; offset += block) {
        if (stop.load(std::memory_order_relaxed))
            return verdict(Verdict::Cancelled);
        const qint64 leftRead = readFully(first, left, block, offset);
        const qint64 rightRead = readFully(second, right, block, offset);
        if (leftRead < 0 || rightRead < 0)
            return verdict(Verdict::Unreadable, name + QStringLiteral(": ") + systemText(errno));
        result.bytesRead += leftRead + rightRead;
        // A file that grew or shrank while it was read is not the file that was measured.
        if (leftRead != rightRead || std::memcmp(left, right, static_cast<size_t>(leftRead)) != 0)
            return Result{Verdict::Different,
                          name + QStringLiteral(": differs from byte ") + QString::number(offset),
                          result.bytesRead};
        if (leftRead < block) {
            if (offset + leftRead < size)
                return Result{Verdict::Different, name + QStringLiteral(": shorter than measured"),
                              result.bytesRead};
            return result;
        }
    }
}

constexpr int readFlags = O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

// Opens `name` in the folder `folder` (or a path, with AT_FDCWD) and checks that it is
// still the regular file `expected` said.
FileDescriptor openRegular(int folder, const char *name, const struct stat &expected)
{
    FileDescriptor fd(::openat(folder, name, readFlags));
    if (!fd.isValid())
        return fd;
    struct stat opened = {};
    if (::fstat(fd.get(), &opened) != 0 || !S_ISREG(opened.st_mode) ||
        opened.st_ino != expected.st_ino || opened.st_dev != expected.st_dev) {
        errno = ESTALE;
        return FileDescriptor();
    }
    return fd;
}

Result compareFileEntries(int firstFolder, const char *firstName, const struct stat &firstStatus,
                          int secondFolder, const char *secondName, const struct stat &secondStatus,
                          const QString &name, const std::atomic<bool> &stop)
{
    if (firstStatus.st_size != secondStatus.st_size)
        return verdict(Verdict::Different, name + QStringLiteral(": sizes differ"));
    const FileDescriptor first = openRegular(firstFolder, firstName, firstStatus);
    if (!first.isValid())
        return verdict(Verdict::Unreadable, name + QStringLiteral(": ") + systemText(errno));
    const FileDescriptor second = openRegular(secondFolder, secondName, secondStatus);
    if (!second.isValid())
        return verdict(Verdict::Unreadable, name + QStringLiteral(": ") + systemText(errno));
    return compareOpenFiles(first.get(), second.get(), firstStatus.st_size, name, stop);
}

// The names in an open folder, hidden ones included, in byte order; false when the folder
// cannot be read to its end.
bool listNames(int folder, std::vector<std::string> &names)
{
    const int copy = ::dup(folder);
    if (copy < 0)
        return false;
    DIR *listing = ::fdopendir(copy);
    if (!listing) {
        ::close(copy);
        return false;
    }
    errno = 0;
    while (const dirent *entry = ::readdir(listing)) {
        const char *name = entry->d_name;
        if (std::strcmp(name, ".") != 0 && std::strcmp(name, "..") != 0)
            names.emplace_back(name);
    }
    const bool complete = errno == 0;
    ::closedir(listing);
    std::sort(names.begin(), names.end());
    return complete;
}

} // namespace

Result ContentComparison::compareFiles(const QByteArray &first, const QByteArray &second,
                                       const std::atomic<bool> &stop)
{
    struct stat firstStatus = {};
    struct stat secondStatus = {};
    if (::lstat(first.constData(), &firstStatus) != 0)
        return verdict(Verdict::Unreadable,
                       shown(first) + QStringLiteral(": ") + systemText(errno));
    if (::lstat(second.constData(), &secondStatus) != 0)
        return verdict(Verdict::Unreadable,
                       shown(second) + QStringLiteral(": ") + systemText(errno));
    if (!S_ISREG(firstStatus.st_mode) || !S_ISREG(secondStatus.st_mode))
        return verdict(Verdict::Different, QStringLiteral("not both regular files"));
    if (firstStatus.st_dev == secondStatus.st_dev && firstStatus.st_ino == secondStatus.st_ino) {
        // Two names of one file keep its content while either stays; one name seen twice
        // (a file bind-mounted over itself) is no second copy.
        if (firstStatus.st_nlink > 1)
            return verdict(Verdict::Equal);
        return verdict(Verdict::Different, QStringLiteral("one file under two paths"));
    }
    return compareFileEntries(AT_FDCWD, first.constData(), firstStatus, AT_FDCWD,
                              second.constData(), secondStatus, shown(second), stop);
}

Result ContentComparison::compareFolders(const QByteArray &first, const QByteArray &second,
                                         const std::atomic<bool> &stop)
{
    struct Level
    {
        FileDescriptor first;
        FileDescriptor second;
        std::vector<std::string> names;
        size_t next = 0;
        QString path; // relative to the compared folders, for the log
    };

    FileDescriptor firstRoot(::open(first.constData(), folderFlags));
    if (!firstRoot.isValid())
        return verdict(Verdict::Unreadable,
                       shown(first) + QStringLiteral(": ") + systemText(errno));
    FileDescriptor secondRoot(::open(second.constData(), folderFlags));
    if (!secondRoot.isValid())
        return verdict(Verdict::Unreadable,
                       shown(second) + QStringLiteral(": ") + systemText(errno));
    struct stat firstStatus = {};
    struct stat secondStatus = {};
    if (::fstat(firstRoot.get(), &firstStatus) != 0 ||
        ::fstat(secondRoot.get(), &secondStatus) != 0)
        return verdict(Verdict::Unreadable, QStringLiteral("folder status: ") + systemText(errno));
    if (firstStatus.st_dev == secondStatus.st_dev && firstStatus.st_ino == secondStatus.st_ino)
        return verdict(Verdict::Different, QStringLiteral("one folder under two paths"));

    Result total{Verdict::Equal, QString(), 0};
    std::vector<Level> levels;
    const auto enter = [&levels](FileDescriptor a, FileDescriptor b, const QString &path) {
        Level level{std::move(a), std::move(b), {}, 0, path};
        std::vector<std::string> otherNames;
        if (!listNames(level.first.get(), level.names) ||
            !listNames(level.second.get(), otherNames))
            return verdict(Verdict::Unreadable, path + QStringLiteral(": cannot be listed"));
        if (level.names != otherNames)
            return verdict(Verdict::Different, path + QStringLiteral(": other entries"));
        levels.push_back(std::move(level));
        return verdict(Verdict::Equal);
    };
    if (Result entered = enter(std::move(firstRoot), std::move(secondRoot), QStringLiteral("."));
        entered.verdict != Verdict::Equal)
        return entered;

    while (!levels.empty()) {
        if (stop.load(std::memory_order_relaxed))
            return verdict(Verdict::Cancelled);
        Level &level = levels.back();
        if (level.next == level.names.size()) {
            levels.pop_back();
            continue;
        }
        const std::string &rawName = level.names[level.next++];
        const char *name = rawName.c_str();
        const QString path = level.path + u'/' + QFile::decodeName(QByteArray(name));
        struct stat a = {};
        struct stat b = {};
        if (::fstatat(level.first.get(), name, &a, AT_SYMLINK_NOFOLLOW) != 0 ||
            ::fstatat(level.second.get(), name, &b, AT_SYMLINK_NOFOLLOW) != 0)
            return verdict(Verdict::Unreadable, path + QStringLiteral(": ") + systemText(errno));
        if ((a.st_mode & S_IFMT) != (b.st_mode & S_IFMT))
            return verdict(Verdict::Different, path + QStringLiteral(": other kinds"));

        if (S_ISREG(a.st_mode)) {
            if (a.st_dev == b.st_dev && a.st_ino == b.st_ino)
                continue; // one file linked into both trees
            Result files = compareFileEntries(level.first.get(), name, a, level.second.get(), name,
                                              b, path, stop);
            total.bytesRead += files.bytesRead;
            if (files.verdict != Verdict::Equal) {
                files.bytesRead = total.bytesRead;
                return files;
            }
        } else if (S_ISLNK(a.st_mode)) {
            std::string targets[2];
            const int folders[2] = {level.first.get(), level.second.get()};
            for (int side = 0; side < 2; ++side) {
                std::string &target = targets[side];
                target.resize(static_cast<size_t>(std::max<qint64>(a.st_size, b.st_size)) + 2);
                const ssize_t length =
                    ::readlinkat(folders[side], name, target.data(), target.size());
                if (length < 0)
                    return verdict(Verdict::Unreadable,
                                   path + QStringLiteral(": ") + systemText(errno));
                target.resize(static_cast<size_t>(length));
            }
            if (targets[0] != targets[1])
                return verdict(Verdict::Different, path + QStringLiteral(": other link targets"));
        } else if (S_ISDIR(a.st_mode)) {
            FileDescriptor firstChild(::openat(level.first.get(), name, folderFlags));
            FileDescriptor secondChild(::openat(level.second.get(), name, folderFlags));
            if (!firstChild.isValid() || !secondChild.isValid())
                return verdict(Verdict::Unreadable,
                               path + QStringLiteral(": ") + systemText(errno));
            // `level` may move when the stack grows; nothing below uses it.
            if (Result entered = enter(std::move(firstChild), std::move(secondChild), path);
                entered.verdict != Verdict::Equal)
                return entered;
        } else if ((S_ISCHR(a.st_mode) || S_ISBLK(a.st_mode)) && a.st_rdev != b.st_rdev) {
            return verdict(Verdict::Different, path + QStringLiteral(": other devices"));
        }
    }
    return total;
}
