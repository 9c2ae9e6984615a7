#pragma once

#include "BRDuplicateFinderClass.h"
#include "ScanReportSink.h"

#include <functional>
#include <memory>

// One scan on a thread of its own: the finder and the hand-over of its reports.
//
// The session lives as long as whoever holds it and the thread that walks; the screen
// may drop it while the walk winds down after a cancel. Reports go to `handler` on the
// scan thread, which passes them on to the main thread.
class ScanSession final : public ScanReportSink
{
public:
    using ReportHandler = std::function<void(const ScanReport &report)>;

    explicit ScanSession(ReportHandler handler);

    // Starts walking `path` on a thread of its own; main thread only.
    static std::shared_ptr<ScanSession> start(const QString &path, ReportHandler handler);

    BRDuplicateFinderClass &finder() { return m_finder; }

    void receive(const ScanReport &report) override;

private:
    ReportHandler m_handler;
    BRDuplicateFinderClass m_finder;
};
