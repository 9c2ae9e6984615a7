#pragma once

#include "BRDuplicateFinderClass.h"
#include "ScanReportReceiver.h"

#include <functional>
#include <memory>

// One scan on a thread of its own: the finder and the hand-over of its reports.
//
// The session lives as long as whoever holds it and the thread that walks; the screen
// may drop it while the walk winds down after a cancel. Reports go to `handler` on the
// scan thread, which passes them on to the main thread.
class ScanSession final : public ScanReportReceiver
{
public:
    using ReportHandler =
        std::function<void(const GroupMap &groups, bool completeStatus, const QString &key,
                           qint64 totalDuplicates, qint64 totalDupesSize)>;

    explicit ScanSession(ReportHandler handler);

    // Starts walking `path` on the application's thread pool.
    static std::shared_ptr<ScanSession> start(const QString &path, ReportHandler handler);

    BRDuplicateFinderClass &finder() { return m_finder; }

    void updateDuplicateFiles(const GroupMap &dictOfDupeFiles, bool completeStatus,
                              const QString &key, qint64 totalDuplicates,
                              qint64 totalDupesSize) override;

private:
    ReportHandler m_handler;
    BRDuplicateFinderClass m_finder;
};
