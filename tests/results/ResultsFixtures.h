#pragma once

#include "FileStamp.h"
#include "GroupRecord.h"

#include <QCoreApplication>
#include <QFile>
#include <QString>
#include <QStringList>

// A group as the finder would report it: its name doubles as its key and type text, and
// each path that exists on disk is stamped as the walk would have seen it now.
inline GroupRecord group(const QString &name, qint64 size, const QString &uti,
                         const QStringList &paths)
{
    PathStamps stamps;
    for (const QString &path : paths) {
        if (const auto stamp = FileStamp::ofNativePath(QFile::encodeName(path)))
            stamps.append(PathStamp{path, *stamp});
    }
    return GroupRecord{
        name,  size, QStringLiteral("Kind of ") + name, paths, name, {}, uti, size * paths.size(),
        stamps};
}

// Lets reports posted to the main thread land, with the redraw they ask for.
inline void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}
