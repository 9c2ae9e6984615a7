#pragma once

#include "GroupLookup.h"
#include "GroupMap.h"

#include <QString>
#include <QStringList>

#include <vector>

class NameSortKeys;

// The order and the search of the results list, apart from any screen.
class GroupOrdering
{
public:
    // The keys in the order of a sort type: "All" is arrival order, "Name" by name as
    // people read it, "Size" by the size of all copies together, largest first, and
    // "Type" by type text in code point order. Equal groups keep their arrival order.
    // Keys whose group is gone are left out; an unknown sort type gives arrival order.
    static QStringList sortedKeys(const QString &sortType, const QStringList &keysOfAll,
                                  const GroupMap &groups);
    // The same through a lookup; `names` keeps the collation keys of names between sorts,
    // and `records`, when given, receives each sorted key's record.
    static QStringList sortedKeys(const QString &sortType, const QStringList &keysOfAll,
                                  const GroupLookup &find, NameSortKeys &names,
                                  std::vector<const GroupRecord *> *records = nullptr);

    // The keys, in their order, whose group name begins with the query, case aside. Only
    // the start of the name counts, and only the name, not the paths.
    static QStringList searchHits(const QString &query, const QStringList &keys,
                                  const GroupMap &groups);
};
