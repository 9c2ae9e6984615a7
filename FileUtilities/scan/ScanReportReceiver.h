#pragma once

#include "BRDuplicateFilesViewDelegate.h"

// A receiver of scan reports without a screen (the command-line tool, tests, benchmarks):
// the screen's own requirements do nothing, and only updateDuplicateFiles remains to write.
class ScanReportReceiver : public BRDuplicateFilesViewDelegate
{
public:
    void updateAfterDelete(int, const QString &) override {}
    void openURLData(int, const QString &) override {}
    void showPopOverView(int) override {}
    void showPopOverForView(QObject *) override {}
    void closePopOver() override {}
    void startScanProcess(const std::optional<QUrl> &) override {}
    void startNewScanProcess() override {}
    void sortMainType(const QString &, bool) override {}
    void sortSubType(const QString &, const QString &) override {}
    void cancelScanProcess() override {}
    void updateScanStatus(bool) override {}
};
