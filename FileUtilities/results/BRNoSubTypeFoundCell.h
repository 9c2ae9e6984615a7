#pragma once

#include <QString>

// The one row the results list shows when the chosen sub-type has no group.
class BRNoSubTypeFoundCell
{
public:
    // "No duplicate Photo", "No duplicate Music & Videos", ...
    static QString text(const QString &selectedSubType);
};
