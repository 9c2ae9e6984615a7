#include "BRDuplicateFinderClass.h"

#include "ScanLog.h"
#include "ThumbnailCache.h"

#include <QFile>
#include <QMutexLocker>

#include <climits>

#include <fcntl.h>

namespace {

// Files must be larger than this to be compared; folders must reach one byte less.
constexpr qint64 smallestComparedFileSize = 65537;
constexpr qint64 smallestComparedFolderSize = 65536;
constexpr double thumbnailSide = 70.0;
// A folder remembers at most this many files before it takes its first fingerprint, so a
// folder of a million files (or the scanned root, which never closes) holds few paths.
constexpr qsizetype mostUnhashedFiles = 256;

const QString applicationMarker = QStringLiteral(".app");

} // namespace

BRDuplicateFinderClass::BRDuplicateFinderClass(ScanReportSink *sink)
    : m_sink(sink), m_thumbnails(std::make_shared<ThumbnailCache>())
{}

void BRDuplicateFinderClass::setCancelActive(bool value)
{
    m_cancelActive.store(value, std::memory_order_release);
}

void BRDuplicateFinderClass::clearScanData()
{
    QMutexLocker locker(&m_tablesMutex);
    m_dictOfDupeFiles = GroupMap();
    m_dict.clear();
    m_fileDict.clear();
    m_stackOfArray.items.clear();
    m_longPathFingerprints.clear();
    m_firstOfSize.clear();
}

// ".app" holds no slash, so it lies within the folder path or within the name.
bool BRDuplicateFinderClass::pathHasApplicationMarker(const DirectoryEntry &entry)
{
    if (!entry.folderPath.isSharedWith(m_markerCheckedFolder)) {
        m_markerCheckedFolder = entry.folderPath;
        m_folderHasMarker = entry.folderPath.contains(applicationMarker);
    }
    return m_folderHasMarker || entry.nameView().contains(applicationMarker);
}

// A substring test; the walk mostly asks about paths that begin with the text.
bool BRDuplicateFinderClass::pathContains(const QString &path, const QString &text)
{
    return path.startsWith(text) || path.contains(text);
}

QString BRDuplicateFinderClass::deletingLastPathComponent(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash < 0)
        return QString();
    return slash == 0 ? QStringLiteral("/") : path.left(slash);
}

void BRDuplicateFinderClass::findDuplicatesInFolder(const QString &path)
{
    // The type database reads its files on first use. Used first deep inside a tree, it
    // would compete with the walk for descriptors, and a failed load names no type at all.
    m_types.typeForFileName(QStringLiteral("load.txt"));
    const WalkTuning tuning = m_tuning.value_or(WalkTuning::forFolder(path));
    auto enumerator = DirectoryEnumerator::open(path, tuning);
    if (!enumerator) {
        qCWarning(scanLog).noquote() << "cannot walk" << path << "- the scan finds nothing";
        // The screen waits for a final report; an unreadable folder simply found nothing.
        QMutexLocker locker(&m_tablesMutex);
        if (!cancelActive())
            report(locker, true, QString());
        return;
    }

    if (tuning.fingerprintWorkers > 0) {
        m_readAhead = std::make_unique<FingerprintReadAhead>(
            tuning.fingerprintWorkers, tuning.fingerprintsAhead, tuning.beforeRead);
        enumerator->setFolderEntered([this](const FolderListing &folder) { readAheadIn(folder); });
    }

    std::optional<QString> previousFolderPath;
    QString lastFilePath;
    while (auto entry = enumerator->nextEntry()) {
        if (cancelActive()) {
            clearScanData();
            break;
        }
        const QString &entryPath = entry->path;
        m_entriesScanned.fetch_add(1, std::memory_order_relaxed);
        // Application bundles are skipped entry by entry, by a plain substring test.
        if (pathHasApplicationMarker(*entry) || entryPath.isEmpty())
            continue;

        const QString &parent = entry->folderPath;
        if (entry->isDirectory()) {
            {
                QMutexLocker progressLocker(&m_progressMutex);
                m_currentFolder = entryPath;
            }
            const QString name = entry->name();
            const QString folderType = FileTypeDatabase::folderDescription();
            if (!m_fileDict.contains(parent))
                m_fileDict.insert(parent, FolderRecord{});
            StackEntry folderEntry{name, entryPath, 0, folderType, entry->stamp};
            // A path that does not contain the previous folder's path has left it: close
            // what is open above this folder's parent first.
            if (previousFolderPath && !pathContains(entryPath, *previousFolderPath)) {
                closeFolders(parent, lastFilePath);
                lastFilePath.clear();
            }
            m_stackOfArray.push(std::move(folderEntry));
            previousFolderPath = entryPath;
            continue;
        }

        const qint64 size = entry->size;
        rememberFingerprintOfLongPath(*entry);
        recordFileInFolder(parent, *entry);
        if (previousFolderPath) {
            if (pathContains(entryPath, *previousFolderPath)) {
                addSizeToCurrentFolder(size);
                lastFilePath = entryPath;
            } else {
                closeFolders(parent, lastFilePath);
                lastFilePath = entryPath;
                addSizeToCurrentFolder(size);
            }
        }
        checkForDuplicateFile(*entry, size, entryPath);
    }

    if (m_stackOfArray.count() > 0)
        closeFolders(QString(), lastFilePath);
    m_readAhead.reset();
    m_firstOfSize.clear();
    QMutexLocker locker(&m_tablesMutex);
    if (!cancelActive())
        report(locker, true, QString());
}

// Takes the folder's first fingerprint from the first of its remembered files that can
// be read, as the walk would have had it file by file.
void BRDuplicateFinderClass::takeFirstHash(FolderRecord &record)
{
    for (const QString &path : std::as_const(record.unhashedFiles)) {
        const QString hash = fingerprintOfPath(path).fileHash;
        if (!hash.isEmpty()) {
            record.firstHash = hash;
            record.lastHash = hash;
            break;
        }
    }
    record.unhashedFiles = {}; // its memory too: a million folders would keep it all
}

VideoHash BRDuplicateFinderClass::fingerprintOf(const DirectoryEntry &file)
{
    // Opening a device can have effects of its own (a tape rewinds), so only regular
    // files are opened at all; anything else fingerprints as unreadable.
    if (!file.isRegularFile())
        return VideoHash{};
    std::optional<VideoHash> ahead = m_readAhead ? m_readAhead->take(file.path) : std::nullopt;
    VideoHash hash =
        ahead ? std::move(*ahead)
              : m_oshash.hashForFileInFolder(file.folderDescriptor, file.nativeName, file.path);
    if (hash.fileHash.isEmpty())
        qCDebug(scanLog).noquote() << "no fingerprint of" << file.path << ": it cannot be read";
    return hash;
}

VideoHash BRDuplicateFinderClass::fingerprintOfPath(const QString &path)
{
    if (const auto kept = m_longPathFingerprints.constFind(path);
        kept != m_longPathFingerprints.constEnd())
        return *kept;
    if (m_readAhead) {
        if (std::optional<VideoHash> ahead = m_readAhead->take(path))
            return *ahead;
    }
    return m_oshash.hashForFileAtPath(path);
}

void BRDuplicateFinderClass::readAheadIn(const FolderListing &folder)
{
    std::vector<FingerprintReadAhead::Request> wanted;
    std::shared_ptr<const FileDescriptor> shared;
    const auto ask = [&folder, &shared, &wanted](const FolderListing::Entry &entry) {
        // The walk may close its descriptor before a worker comes to the file.
        if (!shared && folder.descriptor() >= 0)
            shared = std::make_shared<const FileDescriptor>(
                ::fcntl(folder.descriptor(), F_DUPFD_CLOEXEC, 0));
        wanted.push_back(
            {folder.childPath(entry), shared, QByteArray(folder.rawName(entry), entry.nameLength)});
    };

    qint64 filesBytes = 0;
    bool hasSubfolders = false;
    const FolderListing::Entry *first = nullptr;
    for (const FolderListing::Entry &entry : folder.entries()) {
        hasSubfolders = hasSubfolders || entry.kind == DirectoryEntry::Kind::Folder;
        if (entry.kind != DirectoryEntry::Kind::File)
            continue;
        const qint64 size = entry.stamp.size;
        filesBytes += size;
        if (!first)
            first = &entry;
        if (size < smallestComparedFileSize)
            continue;
        const auto seen = m_firstOfSize.find(size);
        if (seen == m_firstOfSize.end()) {
            m_firstOfSize.insert(size, FirstOfSize{folder.childPath(entry)});
            continue;
        }
        if (!seen->asked) {
            seen->asked = true;
            if (QFile::encodeName(seen->path).size() < PATH_MAX)
                wanted.push_back({seen->path, nullptr});
        }
        ask(entry);
    }
    // A folder of this much in files alone will be compared when it closes, and so may one
    // whose subfolders bring it that far.
    if (first && (filesBytes >= smallestComparedFolderSize || hasSubfolders)) {
        ask(*first);
        const FolderListing::Entry &last = folder.entries().back();
        if (&last != first && last.kind == DirectoryEntry::Kind::File)
            ask(last);
    }
    if (!wanted.empty())
        m_readAhead->request(std::move(wanted));
}

// A path too long for the system to open whole can still be opened inside its folder, but
// only while the walk is there; its fingerprint is taken then, for whoever asks later.
void BRDuplicateFinderClass::rememberFingerprintOfLongPath(const DirectoryEntry &file)
{
    // UTF-8 takes at most three bytes for one UTF-16 unit: shorter paths always fit.
    if (!file.isRegularFile() || file.path.size() * 3 < PATH_MAX)
        return;
    if (QFile::encodeName(file.path).size() < PATH_MAX)
        return;
    m_longPathFingerprints.insert(file.path, fingerprintOf(file));
}

// Counts a file in its folder's record. The folder's first fingerprint is that of its
// first readable file; until it is needed, the file is only remembered.
void BRDuplicateFinderClass::recordFileInFolder(const QString &parent, const DirectoryEntry &file)
{
    auto record = m_fileDict.find(parent);
    if (record == m_fileDict.end())
        record = m_fileDict.insert(parent, FolderRecord{});
    // Anything but a regular file fingerprints as unreadable, so it could never be first.
    if ((record->firstHash.isEmpty() || record->lastHash.isEmpty()) && file.isRegularFile()) {
        // Room for a typical folder at once, rather than a reallocation every few files.
        if (record->unhashedFiles.isEmpty())
            record->unhashedFiles.reserve(32);
        record->unhashedFiles.append(file.path);
        if (record->unhashedFiles.size() >= mostUnhashedFiles)
            takeFirstHash(*record);
    }
    record->fileCount += 1;
    record->fileSize = 0;
}

void BRDuplicateFinderClass::addSizeToCurrentFolder(qint64 size)
{
    if (size <= 0 || m_stackOfArray.count() == 0)
        return;
    m_stackOfArray.items.last().size += size;
}

void BRDuplicateFinderClass::checkForDuplicateFile(const DirectoryEntry &entry, qint64 fileSize,
                                                   const QString &filePath)
{
    if (fileSize < smallestComparedFileSize)
        return;
    const QString fileName = entry.name();
    const FileTypeDatabase::FileType type = m_types.typeForFileName(fileName);
    if (type.description.isEmpty())
        return;

    QMutexLocker locker(&m_tablesMutex);
    const QString bucketKey = QString::number(fileSize) + type.description;
    const auto bucket = m_dict.constFind(bucketKey);
    if (bucket == m_dict.constEnd()) {
        storeBucket(fileSize, type.description, fileName, {filePath}, bucketKey,
                    {PathStamp{filePath, entry.stamp}});
        return;
    }
    // A copy: the map may change below, and the record must not change with it.
    const BucketRecord current = *bucket;
    QStringList paths = current.filePath;
    if (paths.isEmpty())
        return;

    // Each newcomer is compared with the bucket's first file only. That file's fingerprint
    // is read once and remembered in the bucket; the newcomer's is taken now.
    QString reference = current.referenceHash;
    if (current.referencePath != paths.first()) {
        reference = fingerprintOfPath(paths.first()).fileHash;
        BucketRecord &kept = m_dict[bucketKey];
        kept.referencePath = paths.first();
        kept.referenceHash = reference;
    }
    const VideoHash candidate = fingerprintOf(entry);
    // Two files that could not be read are not known to be equal.
    if (candidate.fileHash.isEmpty() || reference != candidate.fileHash)
        return;

    paths.append(filePath);
    PathStamps stamps = current.stamps;
    stamps.append(PathStamp{filePath, entry.stamp});
    m_totalDupesSize += fileSize;
    storeBucket(fileSize, type.description, fileName, paths, bucketKey, stamps);

    const QString groupKey = bucketKey + candidate.fileHash;
    if (const GroupRecord *group = m_dictOfDupeFiles.find(groupKey)) {
        const GroupRecord joined = *group;
        updateDictOfDupeFiles(groupKey, fileSize, type.description, joined.fileName, paths,
                              bucketKey, joined.thumbNail, joined.fileUTI,
                              joined.totalSize + fileSize, stamps);
        m_totalDupes += 1;
    } else {
        if (type.identifier.isEmpty())
            return;
        const qint64 total = paths.size() * fileSize;
        const Thumbnail thumbnail = m_methodClass.deferredThumbnailForPath(
            filePath, thumbnailSide, thumbnailSide, m_thumbnails);
        m_totalDupes += paths.size();
        updateDictOfDupeFiles(groupKey, fileSize, type.description, fileName, paths, bucketKey,
                              thumbnail, type.identifier, total, stamps);
    }
    if (!cancelActive())
        report(locker, false, groupKey);
}

void BRDuplicateFinderClass::closeFolders(const QString &parentPath, const QString &lastFilePath)
{
    const qsizetype count = m_stackOfArray.count();
    if (count == 0)
        return;
    const qsizetype top = count - 1;
    qint64 runningTotal = 0;
    for (qsizetype i = top; i >= 0; --i) {
        StackEntry entry = m_stackOfArray.items.at(i);
        const QString &path = entry.path;
        if (path == parentPath)
            break;

        // A closed subfolder counts as one entry of its parent, with all its own entries.
        if (const auto closed = m_fileDict.constFind(path); closed != m_fileDict.constEnd()) {
            const qint64 childCount = closed->fileCount;
            auto parent = m_fileDict.find(deletingLastPathComponent(path));
            if (parent != m_fileDict.end())
                parent->fileCount += childCount + 1;
        }

        runningTotal += entry.size;
        m_stackOfArray.items.removeAt(i);
        // A folder below the top holds everything closed above it in this call.
        if (i < top)
            entry.size = runningTotal;
        checkForDuplicateFolder(entry, lastFilePath);
    }
    addSizeToCurrentFolder(runningTotal);
}

void BRDuplicateFinderClass::checkForDuplicateFolder(const StackEntry &folder,
                                                     const QString &lastFilePath)
{
    const QString &folderName = folder.name;
    const QString &folderType = folder.type;
    const QString &folderPath = folder.path;
    const qint64 folderSize = folder.size;
    const auto found = m_fileDict.find(folderPath);
    if (found == m_fileDict.end())
        return;
    if (folderSize < smallestComparedFolderSize) {
        found->unhashedFiles = {};
        return;
    }
    takeFirstHash(*found);

    FolderRecord record = *found;
    QString key;
    if (record.fileCount == 0) {
        key = QString::number(folderSize) + u'0';
    } else {
        // A last file that gives no fingerprint (a link, a FIFO, a file that cannot be read)
        // puts an empty one into the key: folders are told apart by the key alone, so two
        // copies of a folder that ends in a link still match.
        if (record.fileCount > 1)
            record.lastHash = fingerprintOfPath(lastFilePath).fileHash;
        record.fileSize += folderSize;
        *found = record;
        key = QString::number(folderSize) + QString::number(record.fileCount) + record.firstHash +
              record.lastHash;
    }

    QMutexLocker locker(&m_tablesMutex);
    const auto bucket = m_dict.constFind(key);
    if (bucket == m_dict.constEnd()) {
        storeBucket(folderSize, folderType, folderName, {folderPath}, key,
                    {PathStamp{folderPath, folder.stamp}});
        return;
    }

    // Equal keys make equal folders: nothing further is compared.
    const qint64 storedSize = bucket->fileSize;
    QStringList paths = bucket->filePath;
    paths.append(folderPath);
    PathStamps stamps = bucket->stamps;
    stamps.append(PathStamp{folderPath, folder.stamp});
    m_totalDupesSize += storedSize;
    storeBucket(storedSize, folderType, folderName, paths, key, stamps);
    const qint64 total = paths.size() * storedSize;

    if (const GroupRecord *group = m_dictOfDupeFiles.find(key)) {
        const GroupRecord joined = *group;
        updateDictOfDupeFiles(key, storedSize, folderType, joined.fileName, paths, key,
                              joined.thumbNail, folderType, total, stamps);
        m_totalDupes += 1;
    } else {
        m_totalDupes += paths.size();
        const Thumbnail thumbnail = m_methodClass.deferredThumbnailForPath(
            folderPath, thumbnailSide, thumbnailSide, m_thumbnails);
        updateDictOfDupeFiles(key, storedSize, folderType, folderName, paths, key, thumbnail,
                              folderType, total, stamps);
    }
    if (!cancelActive())
        report(locker, false, key);
}

void BRDuplicateFinderClass::updateDict(qint64 fileSize, const QString &fileType,
                                        const QString &fileName, const QStringList &filePaths,
                                        const QString &key)
{
    QMutexLocker locker(&m_tablesMutex);
    storeBucket(fileSize, fileType, fileName, filePaths, key, stampsOfBucket(key));
}

void BRDuplicateFinderClass::storeBucket(qint64 fileSize, const QString &fileType,
                                         const QString &fileName, const QStringList &filePaths,
                                         const QString &key, const PathStamps &stamps)
{
    BucketRecord record{fileSize, fileType, fileName, filePaths, stamps};
    // The reference copy's fingerprint stays known while it is still the first path.
    if (const auto earlier = m_dict.constFind(key);
        earlier != m_dict.constEnd() && !filePaths.isEmpty() &&
        earlier->referencePath == filePaths.constFirst()) {
        record.referencePath = earlier->referencePath;
        record.referenceHash = earlier->referenceHash;
    }
    m_dict.insert(key, std::move(record));
}

PathStamps BRDuplicateFinderClass::stampsOfBucket(const QString &key) const
{
    const auto bucket = m_dict.constFind(key);
    return bucket == m_dict.constEnd() ? PathStamps() : bucket->stamps;
}

void BRDuplicateFinderClass::updateDictOfDupeFiles(
    const QString &key, qint64 fileSize, const QString &fileType, const QString &fileName,
    const QStringList &filePaths, const QString &oldKey, const Thumbnail &thumbNail,
    const QString &fileUTI, qint64 totalSize, const PathStamps &stamps)
{
    m_dictOfDupeFiles.insert(key, GroupRecord{fileName, fileSize, fileType, filePaths, oldKey,
                                              thumbNail, fileUTI, totalSize, stamps});
}

void BRDuplicateFinderClass::report(QMutexLocker<QMutex> &locker, bool completeStatus,
                                    const QString &key)
{
    const ScanReport snapshot{
        m_dictOfDupeFiles, key, completeStatus, m_totalDupes, m_totalDupesSize, m_deletionsSeen};
    locker.unlock();
    if (m_sink)
        m_sink->receive(snapshot);
}

GroupMap BRDuplicateFinderClass::dictOfDupeFiles() const
{
    QMutexLocker locker(&m_tablesMutex);
    return m_dictOfDupeFiles;
}

void BRDuplicateFinderClass::setDictOfDupeFiles(const GroupMap &groups)
{
    QMutexLocker locker(&m_tablesMutex);
    m_dictOfDupeFiles = groups;
}

void BRDuplicateFinderClass::applyDeletion(qint64 totalDupesSize, const GroupMap &groups,
                                           qint64 fileSize, const QString &fileType,
                                           const QString &fileName, const QStringList &filePaths,
                                           const QString &bucketKey)
{
    QMutexLocker locker(&m_tablesMutex);
    m_totalDupesSize = totalDupesSize;
    m_dictOfDupeFiles = groups;
    ++m_deletionsSeen;
    storeBucket(fileSize, fileType, fileName, filePaths, bucketKey, stampsOfBucket(bucketKey));
}

BRDuplicateFinderClass::Progress BRDuplicateFinderClass::progress() const
{
    QMutexLocker locker(&m_progressMutex);
    return Progress{m_entriesScanned.load(std::memory_order_relaxed), m_currentFolder};
}

void BRDuplicateFinderClass::removeGroup(const QString &key)
{
    QMutexLocker locker(&m_tablesMutex);
    m_dict.remove(key);
    m_dictOfDupeFiles.remove(key);
    ++m_deletionsSeen;
}

qint64 BRDuplicateFinderClass::totalDupes() const
{
    QMutexLocker locker(&m_tablesMutex);
    return m_totalDupes;
}

qint64 BRDuplicateFinderClass::totalDupesSize() const
{
    QMutexLocker locker(&m_tablesMutex);
    return m_totalDupesSize;
}

void BRDuplicateFinderClass::setTotalDupesSize(qint64 size)
{
    QMutexLocker locker(&m_tablesMutex);
    m_totalDupesSize = size;
}

QHash<QString, BucketRecord> BRDuplicateFinderClass::dict() const
{
    QMutexLocker locker(&m_tablesMutex);
    return m_dict;
}

QHash<QString, FolderRecord> BRDuplicateFinderClass::fileDict() const
{
    return m_fileDict;
}

Stack<StackEntry> BRDuplicateFinderClass::stackOfArray() const
{
    return m_stackOfArray;
}
