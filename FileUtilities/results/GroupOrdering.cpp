#include "GroupOrdering.h"

#include "NameCollator.h"

#include <algorithm>
#include <vector>

QStringList GroupOrdering::sortedKeys(const QString &sortType, const QStringList &keysOfAll,
                                      const GroupMap &groups)
{
    struct Entry
    {
        QString key;
        const GroupRecord *group;
    };
    std::vector<Entry> entries;
    entries.reserve(static_cast<size_t>(keysOfAll.size()));
    for (const QString &key : keysOfAll) {
        if (const GroupRecord *group = groups.find(key))
            entries.push_back({key, group});
    }

    if (sortType == u"Name") {
        const NameCollator collator;
        std::stable_sort(entries.begin(), entries.end(),
                         [&collator](const Entry &a, const Entry &b) {
                             return collator(a.group->fileName, b.group->fileName);
                         });
    } else if (sortType == u"Size") {
        std::stable_sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
            return a.group->totalSize > b.group->totalSize;
        });
    } else if (sortType == u"Type") {
        std::stable_sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
            return a.group->fileType < b.group->fileType; // code point order, case and all
        });
    }

    QStringList keys;
    keys.reserve(static_cast<qsizetype>(entries.size()));
    for (const Entry &entry : entries)
        keys.append(entry.key);
    return keys;
}

QStringList GroupOrdering::searchHits(const QString &query, const QStringList &keys,
                                      const GroupMap &groups)
{
    const QString lowered = query.toLower();
    QStringList hits;
    for (const QString &key : keys) {
        const GroupRecord *group = groups.find(key);
        if (group && group->fileName.toLower().startsWith(lowered))
            hits.append(key);
    }
    return hits;
}
