#include "CommandLineReporter.h"

#include "JsonReportFormat.h"

CommandLineReporter::CommandLineReporter(std::FILE *output, bool json)
    : m_output(output), m_json(json)
{}

void CommandLineReporter::receive(const ScanReport &report)
{
    m_groups = report.groups;
    m_totalDuplicates = report.totalDuplicates;
    m_totalDupesSize = report.totalDupesSize;
    if (report.completeStatus) {
        m_finished = true;
        if (m_json)
            writeLine(JsonReportFormat::finalReport(m_groups, keysInDiscoveryOrder(),
                                                    m_totalDuplicates, m_totalDupesSize));
        return;
    }
    const QString &key = report.key;
    const GroupRecord *group = m_groups.find(key);
    if (!group)
        return;
    if (!m_reportedKeySet.contains(key)) {
        m_reportedKeySet.insert(key);
        m_reportedKeys.append(key);
    }
    if (m_json)
        writeLine(JsonReportFormat::liveReport(key, m_totalDuplicates, m_totalDupesSize, *group));
}

QStringList CommandLineReporter::keysInDiscoveryOrder() const
{
    QStringList ordered;
    for (const QString &key : m_reportedKeys) {
        if (m_groups.contains(key))
            ordered.append(key);
    }
    QStringList rest;
    for (const QString &key : m_groups.keys()) {
        if (!m_reportedKeySet.contains(key))
            rest.append(key);
    }
    rest.sort();
    return ordered + rest;
}

void CommandLineReporter::writeLine(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), m_output);
    std::fputc('\n', m_output);
}
