#include "NamePrefix.h"

#include <algorithm>

NamePrefix NamePrefix::of(const QString &name)
{
    // Most names begin in ASCII, where lower case is one unit for one and needs no copy.
    const qsizetype head = std::min<qsizetype>(name.size(), capacity + 1);
    const auto *units = reinterpret_cast<const char16_t *>(name.constData());
    if (std::all_of(units, units + head, [](char16_t unit) { return unit < 0x80; })) {
        NamePrefix prefix;
        prefix.length = static_cast<quint8>(std::min<qsizetype>(head, capacity));
        for (int i = 0; i < prefix.length; ++i)
            prefix.units[static_cast<size_t>(i)] =
                (units[i] >= u'A' && units[i] <= u'Z') ? char16_t(units[i] + 32) : units[i];
        prefix.complete = name.size() <= capacity;
        return prefix;
    }
    const QString lowered = name.left(capacity + 1).toLower();
    NamePrefix prefix;
    prefix.length = static_cast<quint8>(std::min<qsizetype>(lowered.size(), capacity));
    std::copy_n(lowered.utf16(), prefix.length, prefix.units.begin());
    prefix.complete = name.size() <= capacity && lowered.size() <= capacity;
    return prefix;
}

bool NamePrefix::matches(const QString &loweredQuery, const GroupRecord &record) const
{
    const qsizetype common = std::min<qsizetype>(loweredQuery.size(), length);
    if (!std::equal(units.begin(), units.begin() + common, loweredQuery.utf16()))
        return false;
    if (loweredQuery.size() <= length)
        return true;
    // A query longer than what is stored: only a name longer than that can match.
    return !complete && record.fileName.toLower().startsWith(loweredQuery);
}
