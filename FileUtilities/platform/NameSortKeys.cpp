#include "NameSortKeys.h"

const QCollatorSortKey &NameSortKeys::keyFor(const QString &name)
{
    auto found = m_keys.find(name);
    if (found == m_keys.end())
        found = m_keys.emplace(name, m_collator.sortKey(name)).first;
    return found->second;
}

NameSortKeys NameSortKeys::madeFor(const QStringList &names)
{
    NameSortKeys keys;
    keys.m_keys.reserve(static_cast<size_t>(names.size()));
    for (const QString &name : names)
        keys.keyFor(name);
    return keys;
}
