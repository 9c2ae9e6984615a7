#pragma once

#include "GroupRecord.h"

#include <QString>

#include <functional>

// Finds the record of a group key, or null when the group is gone. Lists of keys are
// read through one of these, so a caller can put a flat index in front of its map.
using GroupLookup = std::function<const GroupRecord *(const QString &key)>;
