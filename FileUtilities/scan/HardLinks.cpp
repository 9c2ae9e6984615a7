#include "HardLinks.h"

#include <QVarLengthArray>

#include <algorithm>

namespace HardLinks {

namespace {

// Calls `found(row, earlier)` for each row that names the file of an earlier row. Called
// for every group when the totals are counted, so it allocates nothing for small groups.
template <typename Found> void forEachRepeat(const GroupRecord &record, Found found)
{
    if (record.fileStamps.size() < 2)
        return;
    QVarLengthArray<std::optional<FileStamp>, 8> stamps;
    for (const QString &path : record.filePath)
        stamps.append(stampOf(record.fileStamps, path));
    for (qsizetype row = 1; row < stamps.size(); ++row) {
        if (!stamps[row] || stamps[row]->isFolder)
            continue;
        for (qsizetype earlier = 0; earlier < row; ++earlier) {
            if (stamps[earlier] && stamps[earlier]->sameItemAs(*stamps[row])) {
                found(row, earlier);
                break;
            }
        }
    }
}

} // namespace

QList<int> sameFileAs(const GroupRecord &record)
{
    QList<int> first(record.filePath.size(), -1);
    forEachRepeat(record, [&first](qsizetype row, qsizetype earlier) {
        first[row] = static_cast<int>(earlier);
    });
    return first;
}

int repeatedCount(const GroupRecord &record)
{
    int count = 0;
    forEachRepeat(record, [&count](qsizetype, qsizetype) { ++count; });
    return count;
}

qint64 reclaimableBytes(const GroupRecord &record)
{
    const qint64 all = record.totalSize - record.fileSize;
    return std::max<qint64>(0, all - repeatedCount(record) * record.fileSize);
}

} // namespace HardLinks
