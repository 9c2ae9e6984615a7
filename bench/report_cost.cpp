// Measures what one report costs as the number of groups grows: the finder writes a
// group, hands "all groups so far" to the receiver, and the receiver keeps that as its
// own copy and reads the changed group, exactly as the results screen does. The shared
// map travels in the engine's own report, through its sink.
//
// Two representations side by side: the structurally shared GroupMap the engine uses,
// and a plain QHash, whose copy-on-write makes the finder's next write copy every group.
// Usage: report_cost [GROUPS] [PLAIN_GROUPS]

#include "GroupMap.h"
#include "ScanReportSink.h"

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

// Keeps every report's groups whole and reads the changed one, as the results screen does.
class KeepingSink final : public ScanReportSink
{
public:
    void receive(const ScanReport &report) override
    {
        m_groups = report.groups;
        checksum += m_groups.find(report.key)->totalSize;
    }
    qint64 checksum = 0;

private:
    GroupMap m_groups;
};

QString keyFor(qint64 index)
{
    return QString::number(65537 + index) + QStringLiteral("JPEG image") +
           QString::number(0x9e3779b97f4a7c15ULL * static_cast<quint64>(index + 1), 16);
}

// `handOver` gives the finder's map to the receiver and gives back what it read.
template <typename Map, typename Insert, typename HandOver>
void run(const char *name, qint64 groups, qint64 window, Insert insert, HandOver handOver)
{
    Map finderMap;
    QElapsedTimer timer;
    qint64 checksum = 0;
    std::printf("%-8s %10s %16s\n", name, "groups", "us per report");
    timer.start();
    for (qint64 i = 0; i < groups; ++i) {
        const QString key = keyFor(i);
        insert(finderMap, key, recordFor(i));
        checksum += handOver(finderMap, key, i);
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

    KeepingSink sink;
    ScanReportSink &receiver = sink; // called as the finder calls it, through the interface
    run<GroupMap>(
        "shared", groups, groups / 10,
        [](GroupMap &map, const QString &key, GroupRecord record) {
            map.insert(key, std::move(record));
        },
        [&sink, &receiver](const GroupMap &map, const QString &key, qint64 index) {
            const qint64 before = sink.checksum;
            receiver.receive(ScanReport{map, key, false, 2 * (index + 1), index + 1});
            return sink.checksum - before;
        });

    QHash<QString, GroupRecord> receiverMap;
    run<QHash<QString, GroupRecord>>(
        "plain", plainGroups, plainGroups / 10,
        [](QHash<QString, GroupRecord> &map, const QString &key, GroupRecord record) {
            map.insert(key, std::move(record));
        },
        [&receiverMap](const QHash<QString, GroupRecord> &map, const QString &key, qint64) {
            const QHash<QString, GroupRecord> snapshot = map; // the hand-over
            receiverMap = snapshot;                           // the receiver keeps it whole
            return receiverMap.constFind(key)->totalSize;
        });
    return 0;
}
