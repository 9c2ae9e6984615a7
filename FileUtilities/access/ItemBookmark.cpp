#include "ItemBookmark.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>

#include <algorithm>
#include <memory>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace {

constexpr quint32 bookmarkMagic = 0x514d424b; // "QMBK"
// Version 1 held path, device and inode; version 2 adds the kind and the birth time;
// version 3 the size and the modification time.
constexpr quint16 firstVersion = 1;
constexpr quint16 birthTimeVersion = 2;
constexpr quint16 currentVersion = 3;
// How many folder levels the search for a moved item reads below each place it starts
// from, and how many entries it looks at in all: enough for a rename or a move nearby,
// without letting a resolve walk a whole disk.
constexpr int searchDepth = 4;
constexpr int searchBudget = 20000;

struct DirCloser
{
    void operator()(DIR *dir) const { ::closedir(dir); }
};
using DirHandle = std::unique_ptr<DIR, DirCloser>;

QByteArray parentOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash <= 0)
        return QByteArrayLiteral("/");
    return path.left(slash);
}

QByteArray childOf(const QByteArray &folder, const char *name)
{
    QByteArray path = folder;
    if (!path.endsWith('/'))
        path += '/';
    return path + name;
}

bool isFolder(const QByteArray &path)
{
    struct stat info = {};
    return ::stat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode);
}

} // namespace

ItemBookmark::ItemBookmark(QString path, const Identity &identity)
    : m_path(std::move(path)), m_identity(identity)
{}

std::optional<ItemBookmark::Identity> ItemBookmark::identityAt(int folder, const char *name)
{
    struct statx info = {};
    constexpr unsigned wanted = STATX_TYPE | STATX_INO | STATX_BTIME | STATX_SIZE | STATX_MTIME;
    if (::statx(folder, name, AT_SYMLINK_NOFOLLOW, wanted, &info) != 0)
        return std::nullopt;
    Identity identity;
    identity.device = makedev(info.stx_dev_major, info.stx_dev_minor);
    identity.inode = info.stx_ino;
    identity.type = info.stx_mode & S_IFMT;
    if (info.stx_mask & STATX_BTIME) {
        identity.birthSeconds = info.stx_btime.tv_sec;
        identity.birthNanoseconds = info.stx_btime.tv_nsec;
    }
    identity.size = static_cast<qint64>(info.stx_size);
    identity.modifiedSeconds = info.stx_mtime.tv_sec;
    identity.modifiedNanoseconds = info.stx_mtime.tv_nsec;
    return identity;
}

bool ItemBookmark::matches(const Identity &other) const
{
    if (other.device != m_identity.device || other.inode != m_identity.inode)
        return false;
    if (m_identity.type != 0 && other.type != m_identity.type)
        return false;
    if (m_identity.birthSeconds >= 0 && other.birthSeconds >= 0)
        return other.birthSeconds == m_identity.birthSeconds &&
               other.birthNanoseconds == m_identity.birthNanoseconds;
    // No birth time to tell a recycled inode from the item: a file must still hold what it
    // held. A folder's size and time change with every entry made or renamed in it, the
    // renames of its own files among them, so for a folder they prove nothing.
    if (m_identity.size < 0 || m_identity.type == S_IFDIR)
        return true;
    return other.size == m_identity.size && other.modifiedSeconds == m_identity.modifiedSeconds &&
           other.modifiedNanoseconds == m_identity.modifiedNanoseconds;
}

std::optional<ItemBookmark> ItemBookmark::forPath(const QString &path)
{
    if (path.isEmpty())
        return std::nullopt;
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const auto identity = identityAt(AT_FDCWD, QFile::encodeName(absolute).constData());
    if (!identity)
        return std::nullopt;
    return ItemBookmark(absolute, *identity);
}

QByteArray ItemBookmark::toData() const
{
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_6_4);
    out << bookmarkMagic << currentVersion << m_path << m_identity.device << m_identity.inode
        << m_identity.type << m_identity.birthSeconds << m_identity.birthNanoseconds
        << m_identity.size << m_identity.modifiedSeconds << m_identity.modifiedNanoseconds;
    return data;
}

std::optional<ItemBookmark> ItemBookmark::fromData(const QByteArray &data)
{
    QDataStream in(data);
    in.setVersion(QDataStream::Qt_6_4);
    quint32 magic = 0;
    quint16 version = 0;
    QString path;
    Identity identity;
    in >> magic >> version >> path >> identity.device >> identity.inode;
    if (version >= birthTimeVersion)
        in >> identity.type >> identity.birthSeconds >> identity.birthNanoseconds;
    if (version >= currentVersion)
        in >> identity.size >> identity.modifiedSeconds >> identity.modifiedNanoseconds;
    if (in.status() != QDataStream::Ok || magic != bookmarkMagic || version < firstVersion ||
        version > currentVersion || path.isEmpty() || !in.atEnd())
        return std::nullopt;
    return ItemBookmark(path, identity);
}

std::optional<ItemBookmark::Resolved> ItemBookmark::resolve(SearchCache *cache) const
{
    if (auto here = confirmedAt(QFile::encodeName(m_path)))
        return Resolved{*here, false};
    if (auto found = searchNear(cache))
        return Resolved{*found, true};
    return std::nullopt;
}

std::optional<QString> ItemBookmark::confirmedAt(const QByteArray &path) const
{
    const auto identity = identityAt(AT_FDCWD, path.constData());
    if (!identity || !matches(*identity))
        return std::nullopt;
    // A name that is not valid UTF-8 cannot be given back exactly.
    QString decoded = QFile::decodeName(path);
    if (QFile::encodeName(decoded) != path)
        return std::nullopt;
    return decoded;
}

std::optional<QString> ItemBookmark::searchNear(SearchCache *cache) const
{
    QByteArray folder = parentOf(QFile::encodeName(m_path));
    while (folder != "/" && !isFolder(folder))
        folder = parentOf(folder);

    std::optional<QByteArray> found;
    const auto stopAtMatch = [&](const QByteArray &path, const Identity &identity) {
        if (!matches(identity))
            return false;
        found = path;
        return true;
    };
    if (!cache) {
        walkArea(folder, stopAtMatch);
        return found ? confirmedAt(*found) : std::nullopt;
    }

    const std::pair areaKey{folder, m_identity.device};
    auto area = cache->m_areas.find(areaKey);
    if (area == cache->m_areas.end()) {
        SearchCache::Area entries;
        walkArea(folder, [&entries](const QByteArray &path, const Identity &identity) {
            const std::pair key{identity.device, identity.inode};
            if (!entries.contains(key))
                entries.insert(key, path);
            return false;
        });
        area = cache->m_areas.insert(areaKey, std::move(entries));
    }
    const auto entry = area->constFind(std::pair{m_identity.device, m_identity.inode});
    if (entry == area->constEnd())
        return std::nullopt;
    if (auto confirmed = confirmedAt(*entry))
        return confirmed;
    // The area changed since it was read: read it again, and search it as if uncached.
    cache->m_areas.erase(area);
    walkArea(folder, stopAtMatch);
    return found ? confirmedAt(*found) : std::nullopt;
}

// First below the item's own folder (or, if that is gone too, its nearest surviving
// ancestor), which finds a rename in place and a move into a folder inside; then below
// that folder's parent, which finds a move into a folder beside it. One budget for both.
bool ItemBookmark::walkArea(const QByteArray &folder, const Visit &visit) const
{
    int budget = searchBudget;
    if (walkBelow(folder, QByteArray(), budget, visit))
        return true;
    if (folder == "/" || budget <= 0)
        return false;
    return walkBelow(parentOf(folder), folder, budget, visit);
}

// Breadth-first, each folder's entries in byte order of their names, so that the nearest
// match comes first and two searches of one tree agree. Files and folders are looked at
// alike: an inode names one item on its device, so a folder's bookmark can match no file.
// Only folders on the item's own device are entered; `skip` is a subtree already walked.
bool ItemBookmark::walkBelow(const QByteArray &root, const QByteArray &skip, int &budget,
                             const Visit &visit) const
{
    std::vector<QByteArray> level{root};
    for (int depth = 0; depth < searchDepth && !level.empty(); ++depth) {
        std::vector<QByteArray> next;
        for (const QByteArray &folder : level) {
            const DirHandle dir(::opendir(folder.constData()));
            if (!dir)
                continue;
            std::vector<QByteArray> names;
            while (const dirent *entry = ::readdir(dir.get())) {
                const QByteArray name(entry->d_name);
                if (name != "." && name != "..")
                    names.push_back(name);
            }
            std::sort(names.begin(), names.end());
            const int descriptor = ::dirfd(dir.get());
            for (const QByteArray &name : names) {
                if (--budget < 0)
                    return false;
                const auto identity = identityAt(descriptor, name.constData());
                if (!identity)
                    continue;
                const QByteArray path = childOf(folder, name.constData());
                if (visit(path, *identity))
                    return true;
                if (identity->type == S_IFDIR && identity->device == m_identity.device &&
                    path != skip)
                    next.push_back(path);
            }
        }
        level = std::move(next);
    }
    return false;
}
