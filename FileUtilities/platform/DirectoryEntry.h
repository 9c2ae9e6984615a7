#pragma once

#include <QByteArray>
#include <QString>

// One entry of a folder walk, with what the scan needs already read by a single lstat.
struct DirectoryEntry
{
    enum class Kind { Folder, File };

    QString path; // absolute, no trailing slash
    QString name; // last path component
    Kind kind = Kind::File;
    qint64 size = 0; // lstat size: a symbolic link counts as the link itself

    // The name as the file system spells it, and a descriptor of the folder holding the
    // entry, valid until the walk moves on (-1 when the walk has none): opening the entry
    // relative to it spares the kernel a lookup of the whole path.
    QByteArray nativeName;
    int folderDescriptor = -1;

    bool isDirectory() const { return kind == Kind::Folder; }
};
