#pragma once

#include "GroupLookup.h"
#include "GroupMap.h"
#include "NamePrefix.h"
#include "SortOrder.h"

#include <QString>
#include <QStringList>

#include <vector>

class NameSortKeys;

// The order and the search of the results list, apart from any screen.
class GroupOrdering
{
public:
    // The keys in the given order (see SortOrder). Equal groups keep their arrival order;
    // keys whose group is gone are left out.
    static QStringList sortedKeys(SortOrder order, const QStringList &keysOfAll,
                                  const GroupMap &groups);
    // The same through a lookup; `names` keeps the collation keys of names between sorts,
    // and `records`, when given, receives each sorted key's record.
    static QStringList sortedKeys(SortOrder order, const QStringList &keysOfAll,
                                  const GroupLookup &find, NameSortKeys &names,
                                  std::vector<const GroupRecord *> *records = nullptr);

    // The keys, in their order, whose group name begins with the query, case aside. Only
    // the start of the name counts, and only the name, not the paths.
    static QStringList searchHits(const QString &query, const QStringList &keys,
                                  const GroupMap &groups);
    // The same search over a list already looked up: `records` holds its groups (null for
    // one that is gone) and `prefixes` the stored starts of their names, position by
    // position. Gives the positions of the hits, in order.
    static std::vector<size_t> searchHits(const QString &query,
                                          const std::vector<const GroupRecord *> &records,
                                          const std::vector<NamePrefix> &prefixes);
};
