#include "DirectoryEnumerator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

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

std::optional<DirectoryEnumerator> DirectoryEnumerator::open(const QString &rootPath)
{
    if (rootPath.isEmpty())
        return std::nullopt;
    DirectoryEnumerator enumerator;
    enumerator.m_rootPath = absoluteFolderPath(rootPath);
    // The root is what the user chose, so a link to a folder is followed there, and only there.
    auto root = readFolder(QFile::encodeName(enumerator.m_rootPath), enumerator.m_rootPath, true);
    if (!root)
        return std::nullopt;
    enumerator.m_openFolders.push_back(std::move(*root));
    return enumerator;
}

std::optional<DirectoryEnumerator::OpenFolder>
DirectoryEnumerator::readFolder(const QByteArray &nativePath, const QString &path, bool followLink)
{
    const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | (followLink ? 0 : O_NOFOLLOW);
    const int fd = ::open(nativePath.constData(), flags);
    if (fd < 0)
        return std::nullopt;
    DIR *dir = ::fdopendir(fd);
    if (!dir) {
        ::close(fd);
        return std::nullopt;
    }

    OpenFolder folder;
    folder.nativePath = nativePath;
    folder.path = path;
    while (const dirent *raw = ::readdir(dir)) {
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
    ::closedir(dir);

    std::sort(folder.entries.begin(), folder.entries.end(),
              [](const ListedEntry &a, const ListedEntry &b) { return a.nativeName < b.nativeName; });
    return folder;
}

std::optional<DirectoryEntry> DirectoryEnumerator::nextEntry()
{
    if (m_folderToEnter) {
        auto [nativePath, path] = std::move(*m_folderToEnter);
        m_folderToEnter.reset();
        // A folder that cannot be read was still yielded; it simply has no contents here.
        if (auto folder = readFolder(nativePath, path, false))
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
                             listed.kind, listed.size};
        if (entry.isDirectory())
            m_folderToEnter.emplace(joinNative(folder.nativePath, listed.nativeName), entry.path);
        return entry;
    }
    return std::nullopt;
}
