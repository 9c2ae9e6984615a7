#pragma once

// Swaps the bar under the results list: 0 the sort and sub-type bar, 1 the progress view.
class BRDuplicateSortAndCancelDelegate
{
public:
    virtual ~BRDuplicateSortAndCancelDelegate() = default;
    virtual void selectTabAtIndex(int index) = 0;
};
