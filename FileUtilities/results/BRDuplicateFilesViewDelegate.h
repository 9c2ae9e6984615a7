#pragma once

#include "KeepOnePlan.h"
#include "ScanReport.h"
#include "SortOrder.h"
#include "SubType.h"

#include <QString>
#include <QUrl>

#include <optional>

class QObject;

// What the results screen offers to the table cells, the scan flow screens, the sort bar
// and the detail popover.
class BRDuplicateFilesViewDelegate
{
public:
    virtual ~BRDuplicateFilesViewDelegate() = default;

    // A scan's report; any thread. The report is applied on the main thread, and only if
    // the scan it belongs to is still the screen's.
    virtual void updateDuplicateFiles(const ScanReport &report) = 0;
    virtual void updateAfterDelete(int index, const QString &key) = 0;
    virtual void openURLData(int index, const QString &key) = 0;
    virtual void showPopOverView(int row) = 0;
    virtual void showPopOverForView(QObject *sender) = 0;
    virtual void closePopOver() = 0;
    virtual void startScanProcess(const std::optional<QUrl> &folderUrl) = 0;
    virtual void startNewScanProcess() = 0;
    virtual void sortMainType(SortOrder sortType, bool subTypeStatus) = 0;
    virtual void sortSubType(SubType subType, SortOrder mainType) = 0;
    virtual void cancelScanProcess() = 0;
    virtual void updateScanStatus(bool status) = 0;
    // Keeps one copy of each of the groups `keys` by `rule` and moves the rest to the Trash.
    virtual void keepOneCopy(KeepOnePlan::Rule rule, const QStringList &keys)
    {
        Q_UNUSED(rule)
        Q_UNUSED(keys)
    }
};
