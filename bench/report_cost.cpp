// Measures what one report costs as the number of groups grows: the finder writes a
// group, hands "all groups so far" to the receiver, and the receiver keeps that as its
// own copy and reads the changed group, exactly as the results screen does.
//
// Two representations side by side: the structurally shared GroupMap the engine uses,
// and a plain QHash, whose copy-on-write makes the finder's next write copy every group.
// Usage: report_cost [GROUPS] [PLAIN_GROUPS]

#include "GroupMap.h"

#include <QElapsedTimer>
#include <QHash>
#include <QString>
#include <QTextStream>

#include <cstdio>

namespace {

GroupRecord recordFor(qint64 index)
{
    GroupRecord record;
    record.fileName = QStringLiteral("photo-%1.jpg").arg(index);
    record.fileSize = 65537 + index;
    record.fileType = QStringLiteral("JPEG image");
    record.filePath = {QStringLiteral("/home/user/Pictures/a/photo-%1.jpg").arg(index),
                       QStringLiteral("/home/user/Pictures/b/photo-%1.jpg").arg(index)};
    record.oldKey = QString::number(record.fileSize) + record.fileType;
    record.fileUTI = QStringLiteral("image/jpeg");
    record.totalSize = 2 * record.fileSize;
    return record;
}

QString keyFor(qint64 index)
{
    return QString::number(65537 + index) + QStringLiteral("JPEG image") +
           QString::number(0x9e3779b97f4a7c15ULL * static_cast<quint64>(index + 1), 16);
}

template <typename Map, typename Insert, typename Find>
void run(const char *name, qint64 groups, qint64 window, Insert insert, Find find)
{
    Map finderMap;
    Map receiverMap;
    QElapsedTimer timer;
    qint64 checksum = 0;
    std::printf("%-8s %10s %16s\n", name, "groups", "us per report");
    timer.start();
    for (qint64 i = 0; i < groups; ++i) {
        const QString key = keyFor(i);
        insert(finderMap, key, recordFor(i));
        const Map snapshot = finderMap; // the hand-over
        receiverMap = snapshot;         // the receiver keeps it whole
        checksum += find(receiverMap, key);
        if ((i + 1) % window == 0) {
            const double micros =
                static_cast<double>(timer.nsecsElapsed()) / 1000.0 / static_cast<double>(window);
            std::printf("%-8s %10lld %16.2f\n", name, static_cast<long long>(i + 1), micros);
            timer.restart();
        }
    }
    if (checksum == 42)
        std::printf("\n"); // keeps the reads from being optimised away
}

} // namespace

int main(int argc, char *argv[])
{
    const qint64 groups = argc > 1 ? QString::fromLocal8Bit(argv[1]).toLongLong() : 100000;
    const qint64 plainGroups = argc > 2 ? QString::fromLocal8Bit(argv[2]).toLongLong() : 20000;

    run<GroupMap>(
        "shared", groups, groups / 10,
        [](GroupMap &map, const QString &key, GroupRecord record) {
            map.insert(key, std::move(record));
        },
        [](const GroupMap &map, const QString &key) { return map.find(key)->totalSize; });

    run<QHash<QString, GroupRecord>>(
        "plain", plainGroups, plainGroups / 10,
        [](QHash<QString, GroupRecord> &map, const QString &key, GroupRecord record) {
            map.insert(key, std::move(record));
        },
        [](const QHash<QString, GroupRecord> &map, const QString &key) {
            return map.constFind(key)->totalSize;
        });
    return 0;
}
