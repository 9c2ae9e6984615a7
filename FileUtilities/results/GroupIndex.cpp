#include "GroupIndex.h"

void GroupIndex::rebuild(const GroupMap &groups)
{
    m_snapshot = groups;
    m_records.clear();
    m_records.reserve(groups.size());
    groups.forEach(
        [this](const QString &key, const GroupRecord &record) { m_records.insert(key, &record); });
    m_built = true;
}

bool GroupIndex::isBuiltFor(const GroupMap &groups) const
{
    return m_built && m_snapshot.sharesRootWith(groups);
}

void GroupIndex::clear()
{
    m_snapshot = GroupMap();
    m_records.clear();
    m_built = false;
}

const GroupRecord *GroupIndex::find(const QString &key) const
{
    return m_records.value(key, nullptr);
}

GroupLookup GroupIndex::lookup() const
{
    return [this](const QString &key) {
        return find(key);
    };
}

void GroupIndex::replace(const QString &key, const GroupMap &groups)
{
    m_snapshot = groups;
    if (const GroupRecord *record = groups.find(key))
        m_records.insert(key, record);
    else
        m_records.remove(key);
}

void GroupIndex::remove(const QString &key, const GroupMap &groups)
{
    m_snapshot = groups;
    m_records.remove(key);
}
