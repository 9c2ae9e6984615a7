#include "DirectoryEnumerator.h"

#include "PlatformLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isPlainAscii(const char *name, qsizetype length)
{
    return std::all_of(name, name + length,
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// A leading U+FEFF is part of a file name, not a byte-order mark to drop as
// QFile::decodeName does.
QString decodeName(const QByteArray &native)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(native);
}

// A name that does not decode from UTF-8 and back unchanged cannot be named again exactly.
bool survivesDecoding(const char *name, qsizetype length)
{
    if (isPlainAscii(name, length))
        return true;
    const QByteArray native = QByteArray::fromRawData(name, length);
    return QFile::encodeName(decodeName(native)) == native;
}

QString errorText(int error)
{
    char buffer[256] = {};
    return QString::fromLocal8Bit(::strerror_r(error, buffer, sizeof buffer));
}

// The folder's path and a name, joined with one slash (the root already ends in one).
template <typename Name> void appendChildPath(const QString &folder, const Name &name, QString &out)
{
    out.reserve(folder.size() + 1 + name.size());
    out += folder;
    if (folder.size() != 1)
        out += QLatin1Char('/');
    out += name;
}

void appendChildPath(const QByteArray &folder, const QByteArray &name, QByteArray &out)
{
    out.reserve(folder.size() + 1 + name.size());
    out += folder;
    if (folder.size() != 1)
        out += '/';
    out += name;
}

} // namespace

DirectoryEnumerator::OpenFolder::OpenFolder(OpenFolder &&other) noexcept
    : descriptor(std::exchange(other.descriptor, -1)), nativePath(std::move(other.nativePath)),
      path(std::move(other.path)), names(std::move(other.names)), entries(std::move(other.entries)),
      next(other.next)
{}

DirectoryEnumerator::OpenFolder &
DirectoryEnumerator::OpenFolder::operator=(OpenFolder &&other) noexcept
{
    if (this != &other) {
        if (descriptor >= 0)
            ::close(descriptor);
        descriptor = std::exchange(other.descriptor, -1);
        nativePath = std::move(other.nativePath);
        path = std::move(other.path);
        names = std::move(other.names);
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
    const QByteArray nativeRoot = QFile::encodeName(enumerator.m_rootPath);
    const int descriptor = ::open(nativeRoot.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        qCWarning(platformLog).noquote() << "cannot open the folder" << enumerator.m_rootPath
                                         << "to walk it:" << errorText(errno);
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
            const auto length = static_cast<qsizetype>(std::strlen(name));
            if (!survivesDecoding(name, length)) {
                qCDebug(platformLog).noquote()
                    << "passed over a name that is not UTF-8 in" << path << ":"
                    << QByteArray(name, length).toPercentEncoding("/", "%");
                continue;
            }
            struct stat info = {};
            if (::fstatat(fd, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
                continue; // vanished since it was listed
            const auto kind = S_ISDIR(info.st_mode)   ? DirectoryEntry::Kind::Folder
                              : S_ISREG(info.st_mode) ? DirectoryEntry::Kind::File
                                                      : DirectoryEntry::Kind::OtherFile;
            folder.entries.push_back(
                {folder.names.size(), length, kind, FileStamp::fromStatus(info)});
            folder.names.append(name, length + 1); // with its NUL, for openat
        }
    }

    const char *names = folder.names.constData();
    const auto nameOf = [names](const ListedEntry &entry) {
        return std::string_view(names + entry.nameOffset, static_cast<size_t>(entry.nameLength));
    };
    std::sort(
        folder.entries.begin(), folder.entries.end(),
        [&nameOf](const ListedEntry &a, const ListedEntry &b) { return nameOf(a) < nameOf(b); });
    return folder;
}

int DirectoryEnumerator::heldDescriptorBound()
{
    // A quarter of what the process may open, within sane limits.
    static const int bound = [] {
        struct rlimit limit = {};
        if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
            return 256;
        return static_cast<int>(std::clamp<rlim_t>(limit.rlim_cur / 4, 4, 256));
    }();
    return bound;
}

void DirectoryEnumerator::limitHeldDescriptors()
{
    int held = 0;
    for (const OpenFolder &open : m_openFolders)
        held += open.descriptor >= 0 ? 1 : 0;
    for (OpenFolder &open : m_openFolders) {
        if (held <= heldDescriptorBound())
            break;
        if (open.descriptor >= 0) {
            ::close(std::exchange(open.descriptor, -1));
            --held;
        }
    }
}

void DirectoryEnumerator::reopen(size_t level)
{
    size_t from = level;
    while (from > 0 && m_openFolders[from - 1].descriptor < 0)
        --from;
    // `from` is the first closed level; the one above it is open, or there is none.
    int fd = -1;
    if (from == 0) {
        fd = ::open(m_openFolders[0].nativePath.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (fd < 0)
            return;
        m_openFolders[0].descriptor = fd;
        from = 1;
    }
    for (size_t at = from; at <= level; ++at) {
        const QByteArray &path = m_openFolders[at].nativePath;
        const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
        const int parent = m_openFolders[at - 1].descriptor;
        const int opened =
            ::openat(parent, name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        // Only the folder asked for keeps its descriptor; the ones on the way close again.
        if (at - 1 >= from && at - 1 != level)
            ::close(std::exchange(m_openFolders[at - 1].descriptor, -1));
        if (opened < 0) {
            qCDebug(platformLog).noquote()
                << "cannot open" << m_openFolders[at].path << "again:" << errorText(errno);
            return;
        }
        m_openFolders[at].descriptor = opened;
    }
    limitHeldDescriptors();
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
        if (fd < 0)
            qCDebug(platformLog).noquote()
                << "passed over the contents of" << target.path << ":" << errorText(errno);
        if (auto folder = readFolder(fd, target.nativePath, target.path)) {
            m_openFolders.push_back(std::move(*folder));
            limitHeldDescriptors();
        }
    }

    while (!m_openFolders.empty()) {
        OpenFolder &folder = m_openFolders.back();
        if (folder.next == folder.entries.size()) {
            m_openFolders.pop_back();
            continue;
        }
        if (folder.descriptor < 0 && !m_openFolders.empty())
            reopen(m_openFolders.size() - 1);
        const ListedEntry &listed = folder.entries[folder.next++];
        const char *rawName = folder.names.constData() + listed.nameOffset;
        DirectoryEntry entry;
        entry.nativeName = QByteArray::fromRawData(rawName, listed.nameLength);
        if (isPlainAscii(rawName, listed.nameLength))
            appendChildPath(folder.path, QLatin1StringView(rawName, listed.nameLength), entry.path);
        else
            appendChildPath(folder.path, decodeName(entry.nativeName), entry.path);
        entry.folderPath = folder.path;
        entry.kind = listed.kind;
        entry.size = listed.stamp.size;
        entry.stamp = listed.stamp;
        entry.folderDescriptor = folder.descriptor;
        if (entry.isDirectory()) {
            QByteArray nativePath;
            appendChildPath(folder.nativePath, entry.nativeName, nativePath);
            m_folderToEnter = FolderToEnter{QByteArray(rawName, listed.nameLength),
                                            std::move(nativePath), entry.path};
        }
        return entry;
    }
    return std::nullopt;
}
