#pragma once

#include "GroupMap.h"

#include <QString>
#include <QUrl>

#include <optional>

class QObject;

// What the results screen offers to the scan, the table cells, the scan flow screens and
// the detail popover. The finder calls only updateDuplicateFiles.
class BRDuplicateFilesViewDelegate
{
public:
    virtual ~BRDuplicateFilesViewDelegate() = default;

    // Called on the scan thread after every change of a group, and once at the end with
    // `completeStatus` true and an empty key. `dictOfDupeFiles` holds all groups so far;
    // copying it is cheap, and the copy does not change as the scan goes on. The receiver
    // must not touch its screen on this thread: it hands the work to the main thread and
    // returns at once, so that reports never hold up the walk.
    virtual void updateDuplicateFiles(const GroupMap &dictOfDupeFiles, bool completeStatus,
                                      const QString &key, qint64 totalDuplicates,
                                      qint64 totalDupesSize) = 0;
    virtual void updateAfterDelete(int index, const QString &key) = 0;
    virtual void openURLData(int index, const QString &key) = 0;
    virtual void showPopOverView(int row) = 0;
    virtual void showPopOverForView(QObject *sender) = 0;
    virtual void closePopOver() = 0;
    virtual void startScanProcess(const std::optional<QUrl> &folderUrl) = 0;
    virtual void startNewScanProcess() = 0;
    virtual void sortMainType(const QString &sortType, bool subTypeStatus) = 0;
    virtual void sortSubType(const QString &subType, const QString &mainType) = 0;
    virtual void cancelScanProcess() = 0;
    virtual void updateScanStatus(bool status) = 0;
};
