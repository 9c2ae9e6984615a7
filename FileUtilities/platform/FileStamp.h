#pragma once

#include <QByteArray>

#include <optional>

struct stat;

// What identifies an item on disk at one moment: where it lives (device and inode) and
// what its last change left (size and modification time). Two stamps of one path that
// differ mean the item was replaced or written in between.
struct FileStamp
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modifiedNs = 0; // nanoseconds since the epoch
    bool isFolder = false;

    static FileStamp fromStatus(const struct stat &status);
    // The entry itself, a link not followed; nothing when it cannot be examined.
    static std::optional<FileStamp> ofNativePath(const QByteArray &path);

    // One item on disk, under whatever names.
    bool sameItemAs(const FileStamp &other) const
    {
        return device == other.device && inode == other.inode;
    }
    // The same item, unchanged since `earlier` was taken. A folder's size is that of its
    // listing's blocks, which says nothing of its contents, so only its time counts.
    bool unchangedSince(const FileStamp &earlier) const
    {
        return sameItemAs(earlier) && isFolder == earlier.isFolder &&
               modifiedNs == earlier.modifiedNs && (isFolder || size == earlier.size);
    }

    friend bool operator==(const FileStamp &, const FileStamp &) = default;
};
