#pragma once

#include "SubType.h"

#include <QString>

#include <optional>

// The one row the results list shows when the chosen sub-type has no group.
class BRNoSubTypeFoundCell
{
public:
    // "No duplicate Photo", "No duplicate Music & Videos", ...
    static QString text(std::optional<SubType> selectedSubType);
};
