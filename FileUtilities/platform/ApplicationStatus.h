#pragma once

// The facts on which quitting turns. The application keeps them; the results screen writes
// the duplicate side's as scans start, end and are cleared, and the rename list its count.
struct ApplicationStatus
{
    // True while a duplicate scan runs.
    bool duplicateScanStatus = false;
    // The groups a finished scan holds; 0 means quitting loses nothing on that side.
    int duplicateFilesCount = 0;
    // The files in the rename list, which the window's close button asks about.
    int renameRows = 0;
};
