#pragma once

#include <QString>

// What the results screen asks of the progress view under a running scan.
class BRDuplicateCancelViewDelegate
{
public:
    virtual ~BRDuplicateCancelViewDelegate() = default;
    virtual void startAnimateProgress() = 0;
    virtual void stopAnimateProgress() = 0;
    // How far the walk has come: entries seen so far and the folder it is in. Called a
    // few times a second while a scan runs.
    virtual void updateScanProgress(qint64 entriesScanned, const QString &currentFolder) = 0;
};
