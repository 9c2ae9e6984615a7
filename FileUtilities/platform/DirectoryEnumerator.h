#pragma once

#include "DirectoryEntry.h"
#include "FolderListing.h"
#include "FolderPrefetcher.h"
#include "WalkTuning.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
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
// time down from the nearest folder still open, when it comes back to it. Folders listed
// ahead by other threads hold theirs until the walk takes them, a few dozen at most.
class DirectoryEnumerator
{
public:
    // Fails when the path is not a folder that can be read. With listing workers in
    // `tuning`, folders are listed ahead of the walk; the entries come the same either way.
    static std::optional<DirectoryEnumerator> open(const QString &rootPath,
                                                   const WalkTuning &tuning = {});

    // The next entry, or nothing when the walk is over.
    std::optional<DirectoryEntry> nextEntry();

    // Called on the walking thread with each folder's listing as the walk enters it, the
    // root's included, before any of its entries is yielded.
    void setFolderEntered(std::function<void(const FolderListing &)> handler)
    {
        m_folderEntered = std::move(handler);
    }

    QString rootPath() const { return m_rootPath; }

    // The absolute form of a path the user gave: cleaned, with no trailing slash.
    static QString absoluteFolderPath(const QString &path);

private:
    struct OpenFolder
    {
        FolderListing listing;
        FolderPrefetcher::Place place;
        size_t next = 0;
    };
    struct FolderToEnter
    {
        QByteArray nativeName;
        QByteArray nativePath;
        QString path;
        FolderPrefetcher::Place place;
    };

    DirectoryEnumerator() = default;
    void enter(FolderToEnter target);
    void pushFolder(FolderListing listing, FolderPrefetcher::Place place, bool offer);
    // Closes the outermost descriptors beyond the bound.
    void limitHeldDescriptors();
    // Gives the folder at `level` its descriptor again, opened name by name from the
    // nearest open folder above it (or from the root).
    void reopen(size_t level);
    static int heldDescriptorBound();

    QString m_rootPath;
    std::vector<OpenFolder> m_openFolders;
    std::optional<FolderToEnter> m_folderToEnter;
    bool m_rootAnnounced = false;
    std::function<void()> m_beforeRead;
    std::function<void(const FolderListing &)> m_folderEntered;
    std::unique_ptr<FolderPrefetcher> m_prefetcher;
};
