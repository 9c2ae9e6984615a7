#pragma once

#include "GroupMap.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// One report of the scan as one line of JSON. Members are written in a fixed order (the
// order a reader of the stream expects), which QJsonObject's sorted keys would not keep.
class JsonReportFormat
{
public:
    static QByteArray liveReport(const QString &key, qint64 totalDuplicates, qint64 totalDupesSize,
                                 const GroupRecord &group);
    static QByteArray finalReport(const GroupMap &groups, const QStringList &keyOrder,
                                  qint64 totalDuplicates, qint64 totalDupesSize);

    static QByteArray record(const GroupRecord &group);
    static QByteArray string(const QString &text);
};
