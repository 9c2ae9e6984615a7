#pragma once

#include "FileStamp.h"

#include <QString>

// A folder that is open on the scan's stack: the walk is still inside it.
struct StackEntry
{
    QString name; // last path component
    QString path;
    qint64 size = 0;      // total size of what the walk has seen inside so far
    QString type;         // the folder's type text
    FileStamp stamp = {}; // the folder as the walk entered it
};
