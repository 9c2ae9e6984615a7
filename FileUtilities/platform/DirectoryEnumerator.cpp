#include "DirectoryEnumerator.h"

#include "PlatformLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

QString errorText(int error)
{
    char buffer[256] = {};
    return QString::fromLocal8Bit(::strerror_r(error, buffer, sizeof buffer));
}

} // namespace

QString DirectoryEnumerator::absoluteFolderPath(const QString &path)
{
    QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (absolute.size() > 1 && absolute.endsWith(QLatin1Char('/')))
        absolute.chop(1);
    return absolute;
}

std::optional<DirectoryEnumerator> DirectoryEnumerator::open(const QString &rootPath,
                                                             const WalkTuning &tuning)
{
    if (rootPath.isEmpty())
        return std::nullopt;
    DirectoryEnumerator enumerator;
    enumerator.m_rootPath = absoluteFolderPath(rootPath);
    enumerator.m_beforeRead = tuning.beforeRead;
    if (enumerator.m_beforeRead)
        enumerator.m_beforeRead();
    // The root is what the user chose, so a link to a folder is followed there, and only there.
    const QByteArray nativeRoot = QFile::encodeName(enumerator.m_rootPath);
    const int descriptor = ::open(nativeRoot.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        qCWarning(platformLog).noquote() << "cannot open the folder" << enumerator.m_rootPath
                                         << "to walk it:" << errorText(errno);
    auto root = FolderListing::read(descriptor, nativeRoot, enumerator.m_rootPath);
    if (!root)
        return std::nullopt;
    if (tuning.listingWorkers > 0)
        enumerator.m_prefetcher = std::make_unique<FolderPrefetcher>(
            tuning.listingWorkers, tuning.foldersAhead, tuning.beforeRead);
    enumerator.pushFolder(std::move(*root), {}, true);
    return enumerator;
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
        held += open.listing.descriptor() >= 0 ? 1 : 0;
    for (OpenFolder &open : m_openFolders) {
        if (held <= heldDescriptorBound())
            break;
        if (open.listing.descriptor() >= 0) {
            open.listing.closeDescriptor();
            --held;
        }
    }
}

void DirectoryEnumerator::reopen(size_t level)
{
    size_t from = level;
    while (from > 0 && m_openFolders[from - 1].listing.descriptor() < 0)
        --from;
    // `from` is the first closed level; the one above it is open, or there is none.
    if (from == 0) {
        const int fd = ::open(m_openFolders[0].listing.nativePath().constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (fd < 0)
            return;
        m_openFolders[0].listing.setDescriptor(fd);
        from = 1;
    }
    for (size_t at = from; at <= level; ++at) {
        const QByteArray &path = m_openFolders[at].listing.nativePath();
        const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
        const int opened =
            ::openat(m_openFolders[at - 1].listing.descriptor(), name.constData(), folderFlags);
        // Only the folder asked for keeps its descriptor; the ones on the way close again.
        if (at - 1 >= from && at - 1 != level)
            m_openFolders[at - 1].listing.closeDescriptor();
        if (opened < 0) {
            qCDebug(platformLog).noquote() << "cannot open" << m_openFolders[at].listing.path()
                                           << "again:" << errorText(errno);
            return;
        }
        m_openFolders[at].listing.setDescriptor(opened);
    }
    limitHeldDescriptors();
}

void DirectoryEnumerator::pushFolder(FolderListing listing, FolderPrefetcher::Place place,
                                     bool offer)
{
    if (offer && m_prefetcher)
        m_prefetcher->offerSubfolders(listing, place);
    m_openFolders.push_back(OpenFolder{std::move(listing), std::move(place), 0});
    limitHeldDescriptors();
}

void DirectoryEnumerator::enter(FolderToEnter target)
{
    if (m_prefetcher) {
        if (auto listed = m_prefetcher->take(target.place)) {
            pushFolder(std::move(*listed), std::move(target.place), false);
            return;
        }
    }
    if (m_beforeRead)
        m_beforeRead();
    const int parentFd = m_openFolders.back().listing.descriptor();
    int fd = parentFd >= 0 ? ::openat(parentFd, target.nativeName.constData(), folderFlags) : -1;
    if (fd < 0 && (parentFd < 0 || errno == EMFILE || errno == ENFILE)) {
        // Out of descriptors in a very deep tree: reading ahead stops and gives back what it
        // holds, the parents give theirs up, and the rest of the walk opens folders by their
        // full paths.
        m_prefetcher.reset();
        for (OpenFolder &open : m_openFolders)
            open.listing.closeDescriptor();
        fd = ::open(target.nativePath.constData(), folderFlags);
    }
    // A folder that cannot be read was still yielded; it simply has no contents here.
    if (fd < 0)
        qCDebug(platformLog).noquote()
            << "passed over the contents of" << target.path << ":" << errorText(errno);
    if (auto folder = FolderListing::read(fd, target.nativePath, target.path))
        pushFolder(std::move(*folder), std::move(target.place), true);
}

std::optional<DirectoryEntry> DirectoryEnumerator::nextEntry()
{
    // The root was listed when the walk was opened, before a handler could be set.
    if (!m_rootAnnounced) {
        m_rootAnnounced = true;
        if (m_folderEntered && !m_openFolders.empty())
            m_folderEntered(m_openFolders.front().listing);
    }
    if (m_folderToEnter) {
        FolderToEnter target = std::move(*m_folderToEnter);
        m_folderToEnter.reset();
        const size_t depth = m_openFolders.size();
        enter(std::move(target));
        if (m_folderEntered && m_openFolders.size() > depth)
            m_folderEntered(m_openFolders.back().listing);
    }

    while (!m_openFolders.empty()) {
        OpenFolder &folder = m_openFolders.back();
        const std::vector<FolderListing::Entry> &entries = folder.listing.entries();
        if (folder.next == entries.size()) {
            m_openFolders.pop_back();
            continue;
        }
        if (folder.listing.descriptor() < 0)
            reopen(m_openFolders.size() - 1);
        const size_t index = folder.next++;
        const FolderListing::Entry &listed = entries[index];
        DirectoryEntry entry;
        entry.nativeName =
            QByteArray::fromRawData(folder.listing.rawName(listed), listed.nameLength);
        entry.path = folder.listing.childPath(listed);
        entry.folderPath = folder.listing.path();
        entry.kind = listed.kind;
        entry.size = listed.stamp.size;
        entry.stamp = listed.stamp;
        entry.folderDescriptor = folder.listing.descriptor();
        if (entry.isDirectory()) {
            FolderPrefetcher::Place place = folder.place;
            place.push_back(static_cast<quint32>(index));
            m_folderToEnter =
                FolderToEnter{QByteArray(entry.nativeName.constData(), listed.nameLength),
                              folder.listing.childNativePath(listed), entry.path, std::move(place)};
        }
        return entry;
    }
    return std::nullopt;
}
