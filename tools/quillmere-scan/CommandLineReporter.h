#pragma once

#include "ScanReportSink.h"

#include <QSet>
#include <QStringList>

#include <cstdio>

// Receives the scan's reports for the command-line tool: in JSON mode it writes each one
// as it comes, and it keeps the final groups, their first-report order and the totals
// for the readable listing.
class CommandLineReporter final : public ScanReportSink
{
public:
    CommandLineReporter(std::FILE *output, bool json);

    void receive(const ScanReport &report) override;

    bool finished() const { return m_finished; }
    const GroupMap &groups() const { return m_groups; }
    // Keys in the order their groups were first reported, then any others.
    QStringList keysInDiscoveryOrder() const;
    qint64 totalDuplicates() const { return m_totalDuplicates; }
    qint64 totalDupesSize() const { return m_totalDupesSize; }

private:
    void writeLine(const QByteArray &line);

    std::FILE *m_output;
    bool m_json;
    bool m_finished = false;
    GroupMap m_groups;
    QStringList m_reportedKeys;
    QSet<QString> m_reportedKeySet;
    qint64 m_totalDuplicates = 0;
    qint64 m_totalDupesSize = 0;
};
