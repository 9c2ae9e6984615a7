#pragma once

#include <QString>

// What the outer duplicate screen offers to the screens inside it and to the main view.
class BRDuplicateFilesMainViewDelegate
{
public:
    virtual ~BRDuplicateFilesMainViewDelegate() = default;

    virtual void updateMainTabViewStatus(bool scanRuns) = 0;
    virtual void selectDuplicateTabViewAtIndex(int index) = 0;
    // True: the user chose to stop a running scan and leave for Rename.
    virtual void updateDuplicateScanStatus(bool stopScan) = 0;

    // The way between the screens inside. The main view, which speaks to this side through
    // the same protocol, has none to take, so these do nothing unless overridden.
    // The status screen, saying that nothing was found in the folder `folderName`.
    virtual void showScanStatusScreen(const QString &folderName) { Q_UNUSED(folderName); }
    // The start screen, fading in.
    virtual void showScanStartScreen() {}
};
