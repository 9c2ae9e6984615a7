#pragma once

#include "GroupMap.h"

#include <QString>

// One report of a running scan: every group found so far and what just changed.
//
// A report is made after every change of a group, and once at the end with
// `completeStatus` true and an empty key. Copying `groups` is cheap, and the copy does not
// change as the scan goes on.
struct ScanReport
{
    GroupMap groups;
    QString key; // the group that changed; empty in the final report
    bool completeStatus = false;
    qint64 totalDuplicates = 0; // every copy in every group
    qint64 totalDupesSize = 0;  // what deleting all but one copy of each group frees
    // How many of the results' deletions the finder had taken in when it made this report:
    // a report made before a deletion still holds what the deletion took away.
    quint64 deletionsSeen = 0;
};
