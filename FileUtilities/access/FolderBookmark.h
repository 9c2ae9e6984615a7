#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// A lasting reference to a folder: its path and its identity on disk (device and inode).
// Resolving gives the path while it still names the same folder; when the folder was
// moved, it is looked for by its identity near where it was; when it is gone, nothing.
class FolderBookmark
{
public:
    struct Resolved
    {
        QString path;
        bool stale = false; // found again somewhere else than where it was saved
    };

    // Nothing when the path names nothing that can be examined.
    static std::optional<FolderBookmark> forPath(const QString &path);
    // Nothing when the bytes are not a bookmark of this program.
    static std::optional<FolderBookmark> fromData(const QByteArray &data);

    QByteArray toData() const;
    std::optional<Resolved> resolve() const;

    QString path() const { return m_path; }

private:
    FolderBookmark(QString path, quint64 device, quint64 inode);
    bool isSameItem(const QString &path) const;
    std::optional<QString> searchNear() const;

    QString m_path;
    quint64 m_device = 0;
    quint64 m_inode = 0;
};
