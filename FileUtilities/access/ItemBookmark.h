#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// A lasting reference to a file or folder: its path and its identity on disk (device,
// inode, kind and, where the file system keeps one, birth time). Resolving gives the path
// while it still names the same item; when the item was moved, it is looked for by its
// identity near where it was; when it is gone, nothing.
//
// The birth time guards against a recycled inode: a file deleted after it was bookmarked
// frees its number for the next file made on that disk, and that unrelated file must
// not be taken for it.
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

    QByteArray toData() const;
    std::optional<Resolved> resolve() const;

    QString path() const { return m_path; }

private:
    struct Identity
    {
        quint64 device = 0;
        quint64 inode = 0;
        quint32 type = 0;         // the S_IFMT bits; 0 in bookmarks made before they were kept
        qint64 birthSeconds = -1; // -1 when the file system gives no birth time
        quint32 birthNanoseconds = 0;
    };

    ItemBookmark(QString path, const Identity &identity);
    // statx of `name` relative to the folder descriptor (AT_FDCWD: a path), links not followed.
    static std::optional<Identity> identityAt(int folder, const char *name);
    bool matches(const Identity &other) const;
    std::optional<QString> searchNear() const;
    std::optional<QString> searchBelow(const QByteArray &root, const QByteArray &skip,
                                       int &budget) const;

    QString m_path;
    Identity m_identity;
};
