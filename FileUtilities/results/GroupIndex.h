#pragma once

#include "GroupLookup.h"
#include "GroupMap.h"

#include <QCollatorSortKey>
#include <QHash>
#include <QString>

#include <memory>
#include <unordered_map>

class NameCollator;

// A flat index of one GroupMap snapshot, for the screen's passes over every group.
//
// The shared map is built for cheap copies, not for lookups: a key walks a few levels of
// nodes, each a cache miss away. Sorting, filtering and counting a hundred thousand
// groups look every key up several times, so the screen builds this hash once per
// snapshot and keeps it level with its own edits.
class GroupIndex
{
public:
    // Indexes `groups`; the index keeps the snapshot alive, so its pointers stay valid.
    void rebuild(const GroupMap &groups);
    bool isBuiltFor(const GroupMap &groups) const;
    void clear();

    const GroupRecord *find(const QString &key) const;
    GroupLookup lookup() const;

    // Follows one edit of the indexed map: `groups` is the map after it.
    void replace(const QString &key, const GroupMap &groups);
    void remove(const QString &key, const GroupMap &groups);

private:
    GroupMap m_snapshot;
    QHash<QString, const GroupRecord *> m_records;
    bool m_built = false;
};
