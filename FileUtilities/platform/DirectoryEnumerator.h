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
// Each folder is read whole when the walk enters it. Its descriptor stays open while the
// walk is inside it, so that subfolders and files open by name relative to it rather than
// by a full path, which may be longer than the system takes. Only the innermost folders
// keep theirs, a bounded number whatever the depth, so a deep tree never starves the rest
// of the program of descriptors; the walk opens an outer folder again, one name at a
// time down from the nearest folder still open, when it comes back to it.
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
        qsizetype nameOffset; // into the folder's names, where each name ends with a NUL
        qsizetype nameLength;
        DirectoryEntry::Kind kind;
        FileStamp stamp;
    };
    struct OpenFolder
    {
        OpenFolder() = default;
        OpenFolder(OpenFolder &&other) noexcept;
        OpenFolder &operator=(OpenFolder &&other) noexcept;
        ~OpenFolder();

        int descriptor = -1;
        QByteArray nativePath;
        QString path;
        QByteArray names; // all names of the folder in one allocation
        std::vector<ListedEntry> entries;
        size_t next = 0;
    };

    DirectoryEnumerator() = default;
    // Closes the outermost descriptors beyond the bound.
    void limitHeldDescriptors();
    // Gives the folder at `level` its descriptor again, opened name by name from the
    // nearest open folder above it (or from the root).
    void reopen(size_t level);
    static int heldDescriptorBound();
    static std::optional<OpenFolder> readFolder(int descriptor, const QByteArray &nativePath,
                                                const QString &path);

    QString m_rootPath;
    std::vector<OpenFolder> m_openFolders;
    struct FolderToEnter
    {
        QByteArray nativeName;
        QByteArray nativePath;
        QString path;
    };
    std::optional<FolderToEnter> m_folderToEnter;
};
