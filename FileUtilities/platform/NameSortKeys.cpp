#include "NameSortKeys.h"

#include <algorithm>

bool NameSortKeys::learn(const QStringList &names)
{
    bool learned = false;
    for (const QString &name : names) {
        if (m_entries.find(name) == m_entries.end()) {
            m_entries.emplace(name, Entry{m_collator.sortKey(name)});
            learned = true;
        }
    }
    return learned;
}

void NameSortKeys::rankAll()
{
    std::vector<Entry *> order;
    order.reserve(m_entries.size());
    for (auto &[name, entry] : m_entries)
        order.push_back(&entry);
    std::sort(order.begin(), order.end(),
              [](const Entry *a, const Entry *b) { return a->key.compare(b->key) < 0; });
    m_rankByCharacters.clear();
    m_rankByCharacters.reserve(static_cast<qsizetype>(m_entries.size()));
    for (const auto &[name, entry] : m_entries)
        m_rankByCharacters.insert(name.constData(), 0);
    int rank = -1;
    const Entry *previous = nullptr;
    for (Entry *entry : order) {
        if (!previous || previous->key.compare(entry->key) != 0)
            ++rank;
        entry->rank = rank;
        previous = entry;
    }
    for (const auto &[name, entry] : m_entries)
        m_rankByCharacters[name.constData()] = entry.rank;
}

std::vector<int> NameSortKeys::ranksOf(const QStringList &names)
{
    std::vector<int> ranks;
    ranks.reserve(static_cast<size_t>(names.size()));
    for (const QString &name : names) {
        if (const auto shared = m_rankByCharacters.constFind(name.constData());
            shared != m_rankByCharacters.cend()) {
            ranks.push_back(*shared);
        } else if (const auto known = m_entries.find(name); known != m_entries.end()) {
            ranks.push_back(known->second.rank);
        } else {
            // A name never seen: rank it among all the others, then look everything up
            // again, since the ranks after it have moved.
            learn(names);
            rankAll();
            return ranksOf(names);
        }
    }
    return ranks;
}

NameSortKeys NameSortKeys::madeFor(const QStringList &names)
{
    NameSortKeys keys;
    keys.m_entries.reserve(static_cast<size_t>(names.size()));
    keys.ranksOf(names);
    return keys;
}
