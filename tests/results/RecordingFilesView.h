#pragma once

#include "BRDuplicateFilesViewDelegate.h"

#include <QStringList>
#include <QWidget>

// Stands in for the results screen: writes each request down as "name(arguments)".
class RecordingFilesView final : public QWidget, public BRDuplicateFilesViewDelegate
{
public:
    QStringList calls;

    void updateDuplicateFiles(const ScanReport &) override
    {
        calls.append(QStringLiteral("updateDuplicateFiles"));
    }
    void updateAfterDelete(int, const QString &) override
    {
        calls.append(QStringLiteral("updateAfterDelete"));
    }
    void openURLData(int, const QString &) override { calls.append(QStringLiteral("openURLData")); }
    void showPopOverView(int) override { calls.append(QStringLiteral("showPopOverView")); }
    void showPopOverForView(QObject *) override
    {
        calls.append(QStringLiteral("showPopOverForView"));
    }
    void closePopOver() override { calls.append(QStringLiteral("closePopOver")); }
    void startScanProcess(const std::optional<QUrl> &folderUrl) override
    {
        calls.append(QStringLiteral("startScanProcess(%1)")
                         .arg(folderUrl ? folderUrl->toString() : QStringLiteral("none")));
    }
    void startNewScanProcess() override { calls.append(QStringLiteral("startNewScanProcess")); }
    void sortMainType(SortOrder sortType, bool subTypeStatus) override
    {
        calls.append(QStringLiteral("sortMainType(%1,%2)")
                         .arg(sortOrderTitle(sortType),
                              subTypeStatus ? QStringLiteral("true") : QStringLiteral("false")));
    }
    void sortSubType(SubType subType, SortOrder mainType) override
    {
        calls.append(QStringLiteral("sortSubType(%1,%2)")
                         .arg(subTypeName(subType), sortOrderTitle(mainType)));
    }
    void cancelScanProcess() override { calls.append(QStringLiteral("cancelScanProcess")); }
    void updateScanStatus(bool status) override
    {
        calls.append(QStringLiteral("updateScanStatus(%1)")
                         .arg(status ? QStringLiteral("true") : QStringLiteral("false")));
    }
};
