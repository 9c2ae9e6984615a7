#pragma once

// What the outer duplicate screen offers to the screens inside it and to the main view.
class BRDuplicateFilesMainViewDelegate
{
public:
    virtual ~BRDuplicateFilesMainViewDelegate() = default;

    virtual void updateMainTabViewStatus(bool scanRuns) = 0;
    virtual void selectDuplicateTabViewAtIndex(int index) = 0;
    // True: the user chose to stop a running scan and leave for Rename.
    virtual void updateDuplicateScanStatus(bool stopScan) = 0;
};
