#include "KeepOnePlan.h"

#include <QVarLengthArray>

#include <limits>

namespace {

bool liesIn(const QString &path, const QString &folder)
{
    const QString inside = folder.endsWith(u'/') ? folder : folder + u'/';
    return path.startsWith(inside);
}

} // namespace

KeepOnePlan KeepOnePlan::make(const GroupMap &groups, const QStringList &keys, Rule rule,
                              const QString &folder)
{
    KeepOnePlan plan;
    for (const QString &key : keys) {
        const GroupRecord *record = groups.find(key);
        if (!record || record->filePath.size() < 2)
            continue;
        const QStringList &paths = record->filePath;
        qsizetype chosen = -1;
        qint64 best = 0;
        for (qsizetype at = 0; at < paths.size(); ++at) {
            const QString &path = paths.at(at);
            const std::optional<FileStamp> stamp = stampOf(record->fileStamps, path);
            qint64 score = 0; // lower wins
            switch (rule) {
            case Rule::Oldest:
                score = stamp ? stamp->modifiedNs : std::numeric_limits<qint64>::max();
                break;
            case Rule::Newest:
                score = stamp ? -stamp->modifiedNs : std::numeric_limits<qint64>::max();
                break;
            case Rule::ShortestPath:
                score = path.size();
                break;
            case Rule::InFolder:
                if (!liesIn(path, folder))
                    continue;
                score = path.size();
                break;
            }
            if (chosen < 0 || score < best) {
                chosen = at;
                best = score;
            }
        }
        if (chosen < 0) {
            ++plan.m_groupsWithoutAChoice;
            continue;
        }
        Group group{key, paths.at(chosen), {}, {}};
        // Files counted already, by device and inode: the kept one, whose other names free
        // nothing, and each one removed, whose further names free nothing more.
        QVarLengthArray<std::pair<quint64, quint64>, 8> counted;
        if (const auto kept = stampOf(record->fileStamps, group.kept))
            counted.append({kept->device, kept->inode});
        for (qsizetype at = 0; at < paths.size(); ++at) {
            if (at == chosen)
                continue;
            group.removed.append(paths.at(at));
            const auto stamp = stampOf(record->fileStamps, paths.at(at));
            const bool file = stamp && !stamp->isFolder;
            const bool fresh = !file || !counted.contains({stamp->device, stamp->inode});
            if (file)
                counted.append({stamp->device, stamp->inode});
            group.freedBytes.append(fresh ? record->fileSize : 0);
            plan.m_bytesFreed += group.freedBytes.constLast();
        }
        plan.m_filesToRemove += group.removed.size();
        plan.m_groups.append(std::move(group));
    }
    return plan;
}
