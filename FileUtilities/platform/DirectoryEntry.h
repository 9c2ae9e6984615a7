#pragma once

#include <QString>

// One entry of a folder walk, with what the scan needs already read by a single lstat.
struct DirectoryEntry
{
    enum class Kind { Folder, File };

    QString path; // absolute, no trailing slash
    QString name; // last path component
    Kind kind = Kind::File;
    qint64 size = 0; // lstat size: a symbolic link counts as the link itself

    bool isDirectory() const { return kind == Kind::Folder; }
};
