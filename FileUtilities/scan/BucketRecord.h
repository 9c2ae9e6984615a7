#pragma once

#include "PathStamp.h"

#include <QString>
#include <QStringList>

// Everything that can still match one size-and-type (or folder) bucket key.
struct BucketRecord
{
    qint64 fileSize = 0;    // one file's size, or a folder's total size
    QString fileType;       // the type text
    QString fileName;       // name of the entry that wrote the record last
    QStringList filePath;   // oldest first; element 0 is the reference copy
    PathStamps stamps = {}; // how the walk saw each of them
    // The fingerprint of the reference copy, once read: every newcomer is compared with it,
    // and the file is read once a scan. Valid while `referencePath` is filePath's first.
    QString referencePath = {};
    QString referenceHash = {};
};
