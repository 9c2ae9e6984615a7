#pragma once

#include "TrashFailure.h"

#include <QByteArray>
#include <QString>

// Moves items to the Trash the way freedesktop.org's Trash 1.0 lays out, so that any
// file manager on the desktop lists them and can put them back.
//
// For each item the record ("NAME.trashinfo" in the Trash's "info" folder) is made first,
// under a name nobody else can take at the same moment, and written to the disk; then the
// item is renamed into "files" under the same name, never replacing anything there. An item
// is never copied, and a step that fails undoes the ones before it, so the item is either in
// the Trash with its record or where it was, and the caller gets a sentence saying why.
//
// Holds no state but the home Trash's path: one instance may serve any thread.
class FreedesktopTrash
{
public:
    struct Result
    {
        bool trashed = false;
        QByteArray pathInTrash; // native path of the item in the Trash's "files"
        TrashFailure failure = TrashFailure::None;
        QString error; // for the user, when not trashed
    };

    // Names the Trash's file for an item gets before a bare count is given up on.
    static constexpr int maxNamesPerItem = 1000;

    // The home Trash in $XDG_DATA_HOME (by default ~/.local/share).
    FreedesktopTrash();

    QByteArray homeTrashPath() const { return m_homeTrash; }

    // `path` absolute, or relative to the working folder.
    Result moveToTrash(const QString &path) const;
    // The same for a native path, whose name need not be UTF-8.
    Result moveNativeToTrash(const QByteArray &path) const;

    // What the user reads when `failure` kept the item named `itemName` out of the Trash;
    // `trashFolder` names the Trash folder at fault where there is one.
    static QString sentence(TrashFailure failure, const QString &itemName,
                            const QString &trashFolder = QString());

private:
    QByteArray m_homeTrash;
};
