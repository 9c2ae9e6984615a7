#pragma once

#include "DirectoryEntry.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

// Walks a folder tree depth-first in pre-order: a folder comes right before its contents,
// and each folder's entries come in byte order of their names, so two walks of one tree
// yield the same sequence. Hidden entries (names starting with ".") are skipped with all
// they hold, symbolic links are never followed, and an entry whose name is not valid
// UTF-8 is passed over, since it could not be named again exactly from a QString.
//
// Each folder is read whole when the walk enters it and closed at once, so the walk
// holds no file descriptor between calls and any depth of tree can be walked.
class DirectoryEnumerator
{
public:
    // Fails when the path is not a folder that can be read.
    static std::optional<DirectoryEnumerator> open(const QString &rootPath);

    // The next entry, or nothing when the walk is over.
    std::optional<DirectoryEntry> nextEntry();

    QString rootPath() const { return m_rootPath; }

    // The absolute form of a path the user gave: cleaned, with no trailing slash.
    static QString absoluteFolderPath(const QString &path);

private:
    struct ListedEntry
    {
        QByteArray nativeName;
        QString name;
        DirectoryEntry::Kind kind;
        qint64 size;
    };
    struct OpenFolder
    {
        QByteArray nativePath;
        QString path;
        std::vector<ListedEntry> entries;
        size_t next = 0;
    };

    DirectoryEnumerator() = default;
    static std::optional<OpenFolder> readFolder(const QByteArray &nativePath, const QString &path,
                                                bool followLink);

    QString m_rootPath;
    std::vector<OpenFolder> m_openFolders;
    std::optional<std::pair<QByteArray, QString>> m_folderToEnter;
};
