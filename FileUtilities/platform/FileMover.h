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

    // Why a text cannot be one component of a path, if it cannot.
    enum class NameProblem
    {
        None,
        Empty,
        DotOrDotDot,  // "." and ".." name the folder itself and its parent
        Slash,        // it would point into another folder
        Nul,          // the system's calls end a name at NUL
        NotEncodable, // no exact bytes in the file-name encoding (UTF-8): a lone surrogate
        TooLong,      // more bytes than the folder's file system takes
    };

    // Whether `name` can be one component of a path in `folderPath`: not empty, not "." or
    // "..", no '/' or NUL, exactly representable in the file-name encoding, and no longer
    // in bytes than the folder's file system allows (NAME_MAX when it cannot be asked).
    static bool isValidFileName(const QString &name, const QString &folderPath = QString());
    // The same check with the longest name in bytes given, for many names in one folder.
    static NameProblem problemWithName(const QString &name, long nameMax);
    // The longest name in bytes the folder's file system takes; NAME_MAX when it cannot be
    // asked (or for "").
    static long nameMaxIn(const QString &folderPath);

private:
    static Result moveWithoutReplacing(const QString &sourcePath, const QString &targetPath);
};
