#pragma once

#include <QString>

// What the results screen asks of the sort and sub-type bar.
class BRDuplicateSortViewDelegate
{
public:
    virtual ~BRDuplicateSortViewDelegate() = default;
    // Shows `subTypeKey` ("All", "photo", ...) as the selected sub-type, all others
    // unselected, and puts the "Sort By" placeholder back on the sort menu.
    virtual void enableSortType(const QString &subTypeKey) = 0;
};
