#pragma once

#include "SubType.h"

// What the results screen asks of the sort and sub-type bar.
class BRDuplicateSortViewDelegate
{
public:
    virtual ~BRDuplicateSortViewDelegate() = default;
    // Shows `subType` as the selected one, all others unselected, and puts the "Sort By"
    // placeholder back on the sort menu.
    virtual void enableSortType(SubType subType) = 0;
};
