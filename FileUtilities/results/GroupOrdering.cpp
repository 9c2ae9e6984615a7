#include "GroupOrdering.h"

#include "NameSortKeys.h"

#include <QHash>

#include <algorithm>
#include <vector>

QStringList GroupOrdering::sortedKeys(SortOrder order, const QStringList &keysOfAll,
                                      const GroupMap &groups)
{
    NameSortKeys names;
    return sortedKeys(
        order, keysOfAll, [&groups](const QString &key) { return groups.find(key); }, names);
}

QStringList GroupOrdering::sortedKeys(SortOrder order, const QStringList &keysOfAll,
                                      const GroupLookup &find, NameSortKeys &names,
                                      std::vector<const GroupRecord *> *records)
{
    struct Entry
    {
        const QString *key;
        const GroupRecord *group;
        int rank = 0;
    };
    std::vector<Entry> entries;
    entries.reserve(static_cast<size_t>(keysOfAll.size()));
    for (const QString &key : keysOfAll) {
        if (const GroupRecord *group = find(key))
            entries.push_back({&key, group});
    }

    switch (order) {
    case SortOrder::All:
        break;
    case SortOrder::Name: {
        QStringList fileNames;
        fileNames.reserve(static_cast<qsizetype>(entries.size()));
        for (const Entry &entry : entries)
            fileNames.append(entry.group->fileName);
        const std::vector<int> ranks = names.ranksOf(fileNames);
        for (size_t i = 0; i < entries.size(); ++i)
            entries[i].rank = ranks[i];
        std::stable_sort(entries.begin(), entries.end(),
                         [](const Entry &a, const Entry &b) { return a.rank < b.rank; });
        break;
    }
    case SortOrder::Size:
        std::stable_sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
            return a.group->totalSize > b.group->totalSize;
        });
        break;
    case SortOrder::Type: {
        // A list holds few type texts: order those, then sort the groups by their rank.
        QHash<QString, int> ranks;
        for (const Entry &entry : entries)
            ranks.insert(entry.group->fileType, 0);
        QStringList types = ranks.keys();
        std::sort(types.begin(), types.end()); // code point order, case and all
        for (int rank = 0; rank < types.size(); ++rank)
            ranks[types.at(rank)] = rank;
        for (Entry &entry : entries)
            entry.rank = ranks.value(entry.group->fileType);
        std::stable_sort(entries.begin(), entries.end(),
                         [](const Entry &a, const Entry &b) { return a.rank < b.rank; });
        break;
    }
    }

    QStringList keys;
    keys.reserve(static_cast<qsizetype>(entries.size()));
    for (const Entry &entry : entries)
        keys.append(*entry.key);
    if (records) {
        records->clear();
        records->reserve(entries.size());
        for (const Entry &entry : entries)
            records->push_back(entry.group);
    }
    return keys;
}

QStringList GroupOrdering::searchHits(const QString &query, const QStringList &keys,
                                      const GroupMap &groups)
{
    std::vector<const GroupRecord *> records;
    std::vector<NamePrefix> prefixes;
    records.reserve(static_cast<size_t>(keys.size()));
    prefixes.reserve(static_cast<size_t>(keys.size()));
    for (const QString &key : keys) {
        const GroupRecord *group = groups.find(key);
        records.push_back(group);
        prefixes.push_back(group ? NamePrefix::of(group->fileName) : NamePrefix());
    }
    QStringList hits;
    for (const size_t position : searchHits(query, records, prefixes))
        hits.append(keys.at(static_cast<qsizetype>(position)));
    return hits;
}

std::vector<size_t> GroupOrdering::searchHits(const QString &query,
                                              const std::vector<const GroupRecord *> &records,
                                              const std::vector<NamePrefix> &prefixes)
{
    const QString lowered = query.toLower();
    std::vector<size_t> hits;
    for (size_t position = 0; position < records.size(); ++position) {
        const GroupRecord *group = records[position];
        if (group && prefixes[position].matches(lowered, *group))
            hits.push_back(position);
    }
    return hits;
}
