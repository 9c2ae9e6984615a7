#pragma once

#include "FileStamp.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

// One entry of a folder walk, with what the scan needs already read by a single lstat.
struct DirectoryEntry
{
    // Everything that is not a folder is a file entry; only a regular file holds content
    // that may be read (a device, FIFO or socket is never opened).
    enum class Kind
    {
        Folder,
        File,
        OtherFile
    };

    QString path;       // absolute, no trailing slash
    QString folderPath; // the path without its last component, shared by a folder's entries
    Kind kind = Kind::File;
    qint64 size = 0; // lstat size: a symbolic link counts as the link itself
    FileStamp stamp; // the entry as the walk saw it, to tell later whether it changed

    // The name as the file system spells it, and a descriptor of the folder holding the
    // entry, both valid until the walk moves on (-1 when the walk has none): opening the
    // entry relative to the folder spares the kernel a lookup of the whole path.
    QByteArray nativeName;
    int folderDescriptor = -1;

    bool isDirectory() const { return kind == Kind::Folder; }
    bool isRegularFile() const { return kind == Kind::File; }
    // The last path component, taken from the path so that the walk need not keep it apart.
    QStringView nameView() const;
    QString name() const { return nameView().toString(); }
};

inline QStringView DirectoryEntry::nameView() const
{
    const qsizetype start = folderPath.size() == 1 ? 1 : folderPath.size() + 1;
    return QStringView(path).mid(start);
}
