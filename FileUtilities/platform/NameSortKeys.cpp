#include "NameSortKeys.h"

const QCollatorSortKey &NameSortKeys::keyFor(const QString &name)
{
    auto found = m_keys.find(name);
    if (found == m_keys.end())
        found = m_keys.insert(name, m_collator.sortKey(name));
    return *found;
}

NameSortKeys NameSortKeys::madeFor(const QStringList &names)
{
    NameSortKeys keys;
    keys.m_keys.reserve(names.size());
    for (const QString &name : names)
        keys.keyFor(name);
    return keys;
}
