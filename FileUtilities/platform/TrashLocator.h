#pragma once

#include "FileDescriptor.h"
#include "FileSystemPlace.h"
#include "TrashFailure.h"

#include <QByteArray>

#include <optional>

// Finds the Trash that may take items from one folder, and makes its folders where they are
// missing, as freedesktop.org's Trash 1.0 lays out:
// - on the file system of the home Trash ($XDG_DATA_HOME/Trash), the home Trash;
// - on any other drive, "$top/.Trash/$uid" when "$top/.Trash" is a real folder with the
//   sticky bit, else "$top/.Trash-$uid", which must be a real folder of ours with mode 0700.
// A Trash another user could have prepared is never used: anything they put there could
// read or take what we trash. There is no fallback to a Trash on another drive, since an item
// would have to be copied there.
class TrashLocator
{
public:
    struct Location
    {
        QByteArray folderPath;    // the Trash folder, as the user would name it
        QByteArray canonicalPath; // the same without links, to compare with items' paths
        QByteArray topFolder;     // the drive's top folder; empty for the home Trash
        FileDescriptor files;
        FileDescriptor info;
    };
    struct Result
    {
        std::optional<Location> location;
        TrashFailure failure = TrashFailure::None;
        QByteArray failedPath; // the Trash folder at fault, for the sentence and the log
        int error = 0;         // errno of the step that failed
    };

    // `homeTrashPath` absolute, or empty where there is no home folder.
    explicit TrashLocator(const QByteArray &homeTrashPath);

    // The Trash for items in `folder`, a path without links, which lies on `place`.
    Result locate(const QByteArray &folder, const FileSystemPlace &place) const;

private:
    bool isOnHomeTrashsPlace(const FileSystemPlace &place) const;
    Result homeTrash() const;
    Result driveTrash(const QByteArray &topFolder) const;

    QByteArray m_homeTrash;
};
