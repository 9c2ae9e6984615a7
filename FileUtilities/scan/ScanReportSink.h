#pragma once

#include "ScanReport.h"

// Where a scan sends its reports.
class ScanReportSink
{
public:
    virtual ~ScanReportSink() = default;

    // Called on the scan thread. The walk waits while this runs, so a receiver with a
    // screen must not touch it here: it hands the report to the main thread and returns.
    virtual void receive(const ScanReport &report) = 0;
};
