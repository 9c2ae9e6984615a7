#pragma once

#include "GroupRecord.h"

#include <QList>

// Copies of a group that are one file under several names (hard links). Removing one of
// them frees nothing while another name stays, so they are told apart from real copies.
namespace HardLinks {

// For each path of the group, the position of the first path before it that names the same
// file, or -1 when it is a copy of its own (or the walk took no stamp of it).
QList<int> sameFileAs(const GroupRecord &record);

// The paths that repeat a file named earlier in the group.
int repeatedCount(const GroupRecord &record);

// What removing all but one copy of the group frees: one copy less than all its distinct
// files, never below nothing.
qint64 reclaimableBytes(const GroupRecord &record);

} // namespace HardLinks
