#pragma once

#include "FileStamp.h"

#include <QList>
#include <QString>

#include <optional>

// A copy's path with the stamp the walk took of it: what a removal checks the copy against.
struct PathStamp
{
    QString path;
    FileStamp stamp;
};

using PathStamps = QList<PathStamp>;

// The stamp kept for `path`, if any. Groups are small, so a look along the list is enough.
inline std::optional<FileStamp> stampOf(const PathStamps &stamps, const QString &path)
{
    for (const PathStamp &entry : stamps) {
        if (entry.path == path)
            return entry.stamp;
    }
    return std::nullopt;
}
