#pragma once

#include <QString>

// Moves a file or folder to a new path without ever replacing what is already there.
// Where the kernel can, the check and the move are one step (renameat2 with
// RENAME_NOREPLACE), so nothing created at the target in between can be overwritten.
// On a file system without that flag a file is linked under its new name and then unlinked
// under its old one: the link refuses an existing target just the same. A folder cannot
// be linked, so there it fails. A bare rename(2), which replaces, is never used.
class FileMover
{
public:
    struct Result
    {
        bool success = false;
        int error = 0; // errno of the step that failed; 0 on success
        QString errorText;

        explicit operator bool() const { return success; }
    };

    // Both paths absolute. On failure both sides are as they were.
    static Result move(const QString &sourcePath, const QString &targetPath);

    // The fallback on its own: link under the new name, then unlink the old one. Public so
    // that it can be exercised on file systems that have the one-step move.
    static Result moveByLink(const QString &sourcePath, const QString &targetPath);

    // Whether `name` can be one component of a path in `folderPath`: not empty, not "." or
    // "..", no '/' or NUL, exactly representable in the file-name encoding, and no longer
    // in bytes than the folder's file system allows (NAME_MAX when it cannot be asked).
    static bool isValidFileName(const QString &name, const QString &folderPath = QString());

private:
    static Result moveWithoutReplacing(const QString &sourcePath, const QString &targetPath);
};
