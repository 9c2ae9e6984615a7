#pragma once

// Swaps the duplicate side's screens: 0 the start screen, 1 the results, 2 the status
// screen of a scan without results.
class BRDuplicateTabViewDelegate
{
public:
    virtual ~BRDuplicateTabViewDelegate() = default;
    virtual void selectTabViewAtIndex(int index) = 0;
};
