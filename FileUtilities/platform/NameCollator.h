#pragma once

#include <QCollator>
#include <QString>

// Compares names as people read them: runs of digits as numbers ("img2" before "IMG10")
// and upper and lower case alike. Qt's collator ignores numeric mode in the C locale, which
// terminals and services often run under, so there an English collator stands in.
class NameCollator
{
public:
    NameCollator();

    int compare(const QString &a, const QString &b) const { return m_collator.compare(a, b); }
    bool operator()(const QString &a, const QString &b) const { return compare(a, b) < 0; }
    // A key that compares as the names do, for sorting many names at once.
    QCollatorSortKey sortKey(const QString &name) const { return m_collator.sortKey(name); }

private:
    QCollator m_collator;
};
