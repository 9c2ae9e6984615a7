#pragma once

#include "NameCollator.h"

#include <QCollatorSortKey>
#include <QHash>
#include <QString>
#include <QStringList>

#include <unordered_map>
#include <vector>

// The order of names, worked out once and kept. Comparing two names through the
// collator costs far more than comparing two numbers, and a list is sorted by name again
// and again while its names stay the same: so every known name carries its rank among
// all known names, and a sort compares ranks.
//
// One instance belongs to one thread at a time.
class NameSortKeys
{
public:
    // The rank of each name: equal names (to the collator) share one, and a smaller rank
    // comes first. Names met for the first time are ranked now, which costs a sort of
    // all known names; when they were ranked ahead (madeFor), it costs a lookup each.
    std::vector<int> ranksOf(const QStringList &names);
    // Ranks `names`; meant for a worker thread, ahead of the first sort.
    static NameSortKeys madeFor(const QStringList &names);
    qsizetype size() const { return static_cast<qsizetype>(m_entries.size()); }

private:
    struct Entry
    {
        QCollatorSortKey key;
        int rank = -1; // -1 until the next ranking
    };

    // Adds the names not known yet; true when there were any.
    bool learn(const QStringList &names);
    void rankAll();

    NameCollator m_collator;
    std::unordered_map<QString, Entry> m_entries;
    // The same ranks under the address of each name's characters. A list's names share
    // their characters with the names kept here, so most lookups hash a pointer instead
    // of a whole name; the names kept here hold those characters alive, so an address
    // found here always belongs to the name it was stored for.
    QHash<const QChar *, int> m_rankByCharacters;
};
