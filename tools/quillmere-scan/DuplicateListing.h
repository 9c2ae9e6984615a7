#pragma once

#include "GroupMap.h"

#include <QByteArray>
#include <QStringList>

// The readable result of a scan: groups by combined size, largest first, each with its
// name, size and one path per line, then the totals.
class DuplicateListing
{
public:
    static QByteArray format(const GroupMap &groups, const QStringList &keys,
                             qint64 totalDuplicates, qint64 totalDupesSize);
    // Binary units: "512 bytes", "1.5 KiB", "3.2 GiB".
    static QString sizeText(qint64 bytes);
    // A name or path as one line can hold it: control characters and the backslash are
    // written as escapes ("\n", "\t", "\\", "\x01"), so a name with a newline cannot
    // pass for two lines.
    static QString lineSafe(const QString &text);
};
