#pragma once

#include "GroupRecord.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// A group as the finder would report it: its name doubles as its key and type text.
inline GroupRecord group(const QString &name, qint64 size, const QString &uti,
                         const QStringList &paths)
{
    return GroupRecord{
        name, size, QStringLiteral("Kind of ") + name, paths, name, {}, uti, size * paths.size()};
}

// Lets reports posted to the main thread land, with the redraw they ask for.
inline void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}
