#pragma once

#include "NameCollator.h"

#include <QCollatorSortKey>
#include <QString>
#include <QStringList>

#include <unordered_map>

// The collation keys of names, made once and kept. Comparing two names through the
// collator costs far more than comparing their keys, and a list is sorted by name again
// and again while its names stay the same.
//
// One instance belongs to one thread at a time.
class NameSortKeys
{
public:
    // The key of `name`, made now if it was not made before. The reference stays valid
    // as long as this object lives.
    const QCollatorSortKey &keyFor(const QString &name);
    // Makes the keys of all `names`; meant for a worker thread, ahead of the first sort.
    static NameSortKeys madeFor(const QStringList &names);
    qsizetype size() const { return static_cast<qsizetype>(m_keys.size()); }

private:
    NameCollator m_collator;
    std::unordered_map<QString, QCollatorSortKey> m_keys; // nodes never move
};
