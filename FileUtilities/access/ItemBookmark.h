#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

// A lasting reference to a file or folder: its path and its identity on disk (device,
// inode, kind and, where the file system keeps one, birth time). Resolving gives the path
// while it still names the same item; when the item was moved, it is looked for by its
// identity near where it was; when it is gone, nothing.
//
// The birth time guards against a recycled inode: a file deleted after it was bookmarked
// frees its number for the next file made on that disk, and that unrelated file must
// not be taken for it. Where the file system keeps no birth time, a file must also keep
// its size and modification time to be taken for the same.
class ItemBookmark
{
public:
    struct Resolved
    {
        QString path;
        bool stale = false; // found again somewhere else than where it was saved
    };

    // Nothing when the path names nothing that can be examined.
    static std::optional<ItemBookmark> forPath(const QString &path);
    // Nothing when the bytes are not a bookmark of this program.
    static std::optional<ItemBookmark> fromData(const QByteArray &data);

    // What the searches of one batch of resolves have read: every entry of the area around
    // a starting folder, read once, so that many bookmarks of one folder (all the files of
    // a folder that was moved away, say) cost one walk and not one each. A place it gives is
    // checked on disk before it is used; one that no longer holds the item makes that area
    // be searched afresh. Meant for one batch: an item moved into the area after it was
    // read is not seen.
    class SearchCache
    {
    private:
        friend class ItemBookmark;
        // (device, inode) -> the first path in search order, per starting folder and device.
        using Area = QHash<std::pair<quint64, quint64>, QByteArray>;
        QHash<std::pair<QByteArray, quint64>, Area> m_areas;
    };

    QByteArray toData() const;
    std::optional<Resolved> resolve(SearchCache *cache = nullptr) const;

    QString path() const { return m_path; }

private:
    struct Identity
    {
        quint64 device = 0;
        quint64 inode = 0;
        quint32 type = 0;         // the S_IFMT bits; 0 in bookmarks made before they were kept
        qint64 birthSeconds = -1; // -1 when the file system gives no birth time
        quint32 birthNanoseconds = 0;
        qint64 size = -1; // -1 in bookmarks made before it was kept
        qint64 modifiedSeconds = 0;
        quint32 modifiedNanoseconds = 0;
    };

    ItemBookmark(QString path, const Identity &identity);
    // statx of `name` relative to the folder descriptor (AT_FDCWD: a path), links not followed.
    static std::optional<Identity> identityAt(int folder, const char *name);
    bool matches(const Identity &other) const;
    // The path of the item if `path` names it and can be given back exactly as a QString.
    std::optional<QString> confirmedAt(const QByteArray &path) const;
    std::optional<QString> searchNear(SearchCache *cache) const;
    // Calls `visit` for each entry of the area around `folder` in search order, until it
    // gives true or the budget runs out; gives whether `visit` stopped the walk.
    using Visit = std::function<bool(const QByteArray &path, const Identity &identity)>;
    bool walkArea(const QByteArray &folder, const Visit &visit) const;
    bool walkBelow(const QByteArray &root, const QByteArray &skip, int &budget,
                   const Visit &visit) const;

    QString m_path;
    Identity m_identity;
};
