#include "DirectoryEnumerator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray joinNative(const QByteArray &folder, const QByteArray &name)
{
    return folder == "/" ? QByteArray("/") + name : folder + '/' + name;
}

QString joinPath(const QString &folder, const QString &name)
{
    return folder == QLatin1String("/") ? QLatin1Char('/') + name : folder + QLatin1Char('/') + name;
}

bool isPlainAscii(const char *name, size_t length)
{
    return std::all_of(name, name + length,
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// A name that does not decode to UTF-8 and back unchanged cannot be named again exactly.
std::optional<QString> decodedName(const char *name, size_t length)
{
    const QByteArray native(name, static_cast<qsizetype>(length));
    QString decoded = QFile::decodeName(native);
    if (!isPlainAscii(name, length) && QFile::encodeName(decoded) != native)
        return std::nullopt;
    return decoded;
}

} // namespace

QString DirectoryEnumerator::absoluteFolderPath(const QString &path)
{
    QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (absolute.size() > 1 && absolute.endsWith(QLatin1Char('/')))
        absolute.chop(1);
    return absolute;
}

DirectoryEnumerator::OpenFolder::OpenFolder(OpenFolder &&other) noexcept
    : descriptor(std::exchange(other.descriptor, -1)), nativePath(std::move(other.nativePath)),
      path(std::move(other.path)), entries(std::move(other.entries)), next(other.next)
{
}

DirectoryEnumerator::OpenFolder &
DirectoryEnumerator::OpenFolder::operator=(OpenFolder &&other) noexcept
{
    if (this != &other) {
        if (descriptor >= 0)
            ::close(descriptor);
        descriptor = std::exchange(other.descriptor, -1);
        nativePath = std::move(other.nativePath);
        path = std::move(other.path);
        entries = std::move(other.entries);
        next = other.next;
    }
    return *this;
}

DirectoryEnumerator::OpenFolder::~OpenFolder()
{
    if (descriptor >= 0)
        ::close(descriptor);
}

std::optional<DirectoryEnumerator> DirectoryEnumerator::open(const QString &rootPath)
{
    if (rootPath.isEmpty())
        return std::nullopt;
    DirectoryEnumerator enumerator;
    enumerator.m_rootPath = absoluteFolderPath(rootPath);
    // The root is what the user chose, so a link to a folder is followed there, and only there.
    const QByteArray nativeRoot = QFile::encodeName(enumerator.m_rootPath);
    const int descriptor = ::open(nativeRoot.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    auto root = readFolder(descriptor, nativeRoot, enumerator.m_rootPath);
    if (!root)
        return std::nullopt;
    enumerator.m_openFolders.push_back(std::move(*root));
    return enumerator;
}

// Lists the folder open on `fd`, taking ownership of the descriptor.
std::optional<DirectoryEnumerator::OpenFolder>
DirectoryEnumerator::readFolder(int fd, const QByteArray &nativePath, const QString &path)
{
    if (fd < 0)
        return std::nullopt;

    OpenFolder folder;
    folder.descriptor = fd;
    folder.nativePath = nativePath;
    folder.path = path;
    // getdents64 straight on the descriptor: opendir's extra checks cost three system
    // calls a folder, which shows on trees of many small folders.
    alignas(dirent64) char buffer[32768];
    for (;;) {
        const ssize_t filled = ::getdents64(fd, buffer, sizeof buffer);
        if (filled <= 0)
            break; // the end, or the folder can no longer be read: keep what was listed
        for (ssize_t offset = 0; offset < filled;) {
            const auto *raw = reinterpret_cast<const dirent64 *>(buffer + offset);
            offset += raw->d_reclen;
            const char *name = raw->d_name;
            if (name[0] == '.')
                continue; // hidden, and "." and ".."
            const size_t length = std::strlen(name);
            auto decoded = decodedName(name, length);
            if (!decoded)
                continue;
            struct stat info {};
            if (::fstatat(fd, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
                continue; // vanished since it was listed
            const auto kind =
                S_ISDIR(info.st_mode) ? DirectoryEntry::Kind::Folder : DirectoryEntry::Kind::File;
            folder.entries.push_back({QByteArray(name, static_cast<qsizetype>(length)),
                                      std::move(*decoded), kind, static_cast<qint64>(info.st_size)});
        }
    }

    std::sort(folder.entries.begin(), folder.entries.end(),
              [](const ListedEntry &a, const ListedEntry &b) { return a.nativeName < b.nativeName; });
    return folder;
}

std::optional<DirectoryEntry> DirectoryEnumerator::nextEntry()
{
    if (m_folderToEnter) {
        FolderToEnter target = std::move(*m_folderToEnter);
        m_folderToEnter.reset();
        constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
        const int parentFd = m_openFolders.back().descriptor;
        int fd = parentFd >= 0 ? ::openat(parentFd, target.nativeName.constData(), flags) : -1;
        if (fd < 0 && (parentFd < 0 || errno == EMFILE || errno == ENFILE)) {
            // Out of descriptors in a very deep tree: the parents give theirs up, and the
            // rest of the walk opens folders by their full paths.
            for (OpenFolder &open : m_openFolders) {
                if (open.descriptor >= 0)
                    ::close(std::exchange(open.descriptor, -1));
            }
            fd = ::open(target.nativePath.constData(), flags);
        }
        // A folder that cannot be read was still yielded; it simply has no contents here.
        if (auto folder = readFolder(fd, target.nativePath, target.path))
            m_openFolders.push_back(std::move(*folder));
    }

    while (!m_openFolders.empty()) {
        OpenFolder &folder = m_openFolders.back();
        if (folder.next == folder.entries.size()) {
            m_openFolders.pop_back();
            continue;
        }
        ListedEntry &listed = folder.entries[folder.next++];
        DirectoryEntry entry{joinPath(folder.path, listed.name), std::move(listed.name),
                             listed.kind, listed.size, listed.nativeName, folder.descriptor};
        if (entry.isDirectory())
            m_folderToEnter = FolderToEnter{listed.nativeName,
                                            joinNative(folder.nativePath, listed.nativeName),
                                            entry.path};
        return entry;
    }
    return std::nullopt;
}
