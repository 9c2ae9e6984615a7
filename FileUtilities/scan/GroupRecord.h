#pragma once

#include "PathStamp.h"
#include "Thumbnail.h"

#include <QString>
#include <QStringList>

// One group of equal files or folders, as the results show it.
struct GroupRecord
{
    QString fileName;     // the entry that formed the group (the second one found)
    qint64 fileSize = 0;  // one copy
    QString fileType;     // the type text
    QStringList filePath; // every copy, in discovery order; at least two when formed
    QString oldKey;       // the group's bucket key; equal to the group key for folders
    Thumbnail thumbNail;  // picture of the entry that formed the group, made when first shown
    QString fileUTI;      // type identifier of a file; the type text for a folder
    qint64 totalSize = 0; // all copies together, the first included
    // How the walk saw each copy; a path may outlive its copy here, which costs nothing.
    PathStamps fileStamps = {};
};
