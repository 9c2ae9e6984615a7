#pragma once

#include "BRObjectClass.h"
#include "BucketRecord.h"
#include "DirectoryEntry.h"
#include "DirectoryEnumerator.h"
#include "FileTypeDatabase.h"
#include "FingerprintReadAhead.h"
#include "FolderRecord.h"
#include "GroupMap.h"
#include "OSHashAlgorithm.h"
#include "ScanReportSink.h"
#include "Stack.h"
#include "StackEntry.h"
#include "WalkTuning.h"

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>

class ThumbnailCache;

// Finds equal files and equal folders in one pass over a folder tree.
//
// Files above 64 KiB are sorted into buckets of equal size and type text; each newcomer
// to a bucket is fingerprinted against the bucket's first file, and a match joins (or
// forms) the bucket's one group. Folders are summed up when they close by total size,
// entry count and the fingerprints of their first and last files, and equal sums group.
// Every change of a group is reported at once, and the scan ends with one final report.
//
// A finder serves one scan: built, walking, then finished or cancelled. The scan runs on
// the calling thread; cancelling and the results screen's edits come from another one.
class BRDuplicateFinderClass
{
public:
    explicit BRDuplicateFinderClass(ScanReportSink *sink);

    // Walks `path` and reports as it goes; returns when the walk ends or is cancelled.
    void findDuplicatesInFolder(const QString &path);
    // How much reading is done ahead of the walk; without a call, what suits the device.
    // The reports do not depend on it.
    void setWalkTuning(const WalkTuning &tuning) { m_tuning = tuning; }

    // Any thread. The walk stops at the head of its next entry, clears its tables and
    // makes no further report.
    void setCancelActive(bool value);
    bool cancelActive() const { return m_cancelActive.load(std::memory_order_acquire); }

    void clearScanData();
    void addSizeToCurrentFolder(qint64 size);

    // Writes a bucket record, replacing any earlier one. The results screen calls this
    // after it removed a copy, so that the scan goes on from what the user left.
    void updateDict(qint64 fileSize, const QString &fileType, const QString &fileName,
                    const QStringList &filePaths, const QString &key);

    // The results screen keeps the finder level with its deletions while a scan runs.
    // These may be called from another thread than the scan's; they wait for the scan to
    // finish the file or folder it is matching.
    GroupMap dictOfDupeFiles() const;
    void setDictOfDupeFiles(const GroupMap &groups);
    // Counted, as applyDeletion is: each report says how many it had taken in.
    void removeGroup(const QString &key);
    // The three writes of a deletion, made at once so that the scan never matches against
    // a half-updated group: the totals, the groups, then the group's bucket.
    void applyDeletion(qint64 totalDupesSize, const GroupMap &groups, qint64 fileSize,
                       const QString &fileType, const QString &fileName,
                       const QStringList &filePaths, const QString &bucketKey);
    qint64 totalDupes() const;
    qint64 totalDupesSize() const;
    void setTotalDupesSize(qint64 size);

    // How far the walk has come, for a progress display; any thread, never waits long.
    struct Progress
    {
        qint64 entriesScanned = 0;
        QString currentFolder;
    };
    Progress progress() const;

    // The scan's own tables, for inspection.
    QHash<QString, BucketRecord> dict() const;
    QHash<QString, FolderRecord> fileDict() const;
    Stack<StackEntry> stackOfArray() const;

private:
    void checkForDuplicateFile(const DirectoryEntry &entry, qint64 fileSize,
                               const QString &filePath);
    void closeFolders(const QString &parentPath, const QString &lastFilePath);
    void checkForDuplicateFolder(const StackEntry &folder, const QString &lastFilePath);
    // Both writers expect the tables lock to be held.
    void storeBucket(qint64 fileSize, const QString &fileType, const QString &fileName,
                     const QStringList &filePaths, const QString &key, const PathStamps &stamps);
    // A bucket rewritten from outside keeps the stamps the walk took.
    PathStamps stampsOfBucket(const QString &key) const;
    void updateDictOfDupeFiles(const QString &key, qint64 fileSize, const QString &fileType,
                               const QString &fileName, const QStringList &filePaths,
                               const QString &oldKey, const Thumbnail &thumbNail,
                               const QString &fileUTI, qint64 totalSize, const PathStamps &stamps);
    void recordFileInFolder(const QString &parent, const DirectoryEntry &file);
    VideoHash fingerprintOf(const DirectoryEntry &file);
    // A file the walk has passed, by its path: read now, or remembered when its path is too
    // long to be opened whole.
    VideoHash fingerprintOfPath(const QString &path);
    void rememberFingerprintOfLongPath(const DirectoryEntry &file);
    void takeFirstHash(FolderRecord &record);
    // Asks for the fingerprints the walk will want in a folder it has just entered: files
    // whose size an earlier file had, and a large enough folder's first and last files.
    void readAheadIn(const FolderListing &folder);
    // Reports outside the lock, so that a receiver may call back into the finder.
    void report(QMutexLocker<QMutex> &locker, bool completeStatus, const QString &key);

    bool pathHasApplicationMarker(const DirectoryEntry &entry);
    static bool pathContains(const QString &path, const QString &text);
    static QString deletingLastPathComponent(const QString &path);

    // Guards dict, dictOfDupeFiles and the totals against the results screen's edits.
    mutable QMutex m_tablesMutex;

    GroupMap m_dictOfDupeFiles;
    QHash<QString, BucketRecord> m_dict;
    QHash<QString, FolderRecord> m_fileDict;
    std::atomic<bool> m_cancelActive{false};
    std::atomic<qint64> m_entriesScanned{0};
    mutable QMutex m_progressMutex; // guards m_currentFolder only
    QString m_currentFolder;
    qint64 m_totalDupes = 0;
    qint64 m_totalDupesSize = 0;
    quint64 m_deletionsSeen = 0; // applyDeletion and removeGroup calls, for the reports
    Stack<StackEntry> m_stackOfArray;
    BRObjectClass m_methodClass;
    OSHashAlgorithm m_oshash;
    ScanReportSink *m_sink;

    FileTypeDatabase m_types;
    QString m_markerCheckedFolder; // the folder path whose ".app" test is remembered
    bool m_folderHasMarker = false;
    std::shared_ptr<ThumbnailCache> m_thumbnails;
    QHash<QString, VideoHash> m_longPathFingerprints;
    std::optional<WalkTuning> m_tuning;
    std::unique_ptr<FingerprintReadAhead> m_readAhead;
    struct FirstOfSize
    {
        QString path;
        bool asked = false;
    };
    QHash<qint64, FirstOfSize> m_firstOfSize; // for read-ahead only; decides nothing
};
