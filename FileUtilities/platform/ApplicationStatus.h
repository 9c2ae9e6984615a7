#pragma once

// The two facts about the duplicate side on which quitting turns. The application keeps
// them; the results screen writes them as scans start, end and are cleared.
struct ApplicationStatus
{
    // True while a duplicate scan runs.
    bool duplicateScanStatus = false;
    // The groups a finished scan holds; 0 means quitting loses nothing on that side.
    int duplicateFilesCount = 0;
};
