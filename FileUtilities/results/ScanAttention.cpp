#include "ScanAttention.h"

#include "DesktopNotifier.h"
#include "ResultsLog.h"
#include "Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

namespace {

qint64 steadyNow()
{
    static const QElapsedTimer started = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    return started.elapsed();
}

} // namespace

ScanAttention::ScanAttention(DesktopNotifier &notifier, Clock now)
    : m_notifier(notifier), m_now(now ? std::move(now) : Clock(steadyNow))
{}

void ScanAttention::scanStarted(const QString &folder)
{
    m_folder = folder;
    m_startedAt = m_now();
    m_endedAt.reset();
    m_estimate = ScanProgressEstimate(folder);
    m_shownProgress = 0.0;
    m_notifier.showProgress(m_shownProgress);
}

void ScanAttention::scanProgressed(const QString &currentFolder)
{
    if (!m_startedAt || m_endedAt || !m_shownProgress)
        return;
    const double fraction = m_estimate.fractionAt(currentFolder);
    if (fraction - *m_shownProgress < 0.01)
        return;
    m_shownProgress = fraction;
    m_notifier.showProgress(fraction);
}

void ScanAttention::scanEnded()
{
    if (m_startedAt && !m_endedAt)
        m_endedAt = m_now();
    if (m_shownProgress) {
        m_shownProgress.reset();
        m_notifier.showProgress(std::nullopt);
    }
}

void ScanAttention::scanFinished(qint64 duplicatesFound, bool windowActive,
                                 const std::function<void()> &activate)
{
    scanEnded();
    if (!m_startedAt || !m_endedAt)
        return;
    const qint64 took = *m_endedAt - *m_startedAt;
    // Said once per scan, whatever calls come after.
    m_startedAt.reset();
    qCInfo(resultsLog) << "scan took" << took << "ms; window active:" << windowActive;
    if (took <= longScanMs || windowActive)
        return;
    m_notifier.notify(summary(),
                      body(duplicatesFound, QFileInfo(QDir::cleanPath(m_folder)).fileName()),
                      activate);
}

QString ScanAttention::summary()
{
    return QCoreApplication::translate("ScanAttention", "Duplicate files scan complete.");
}

QString ScanAttention::body(qint64 duplicatesFound, const QString &folderName)
{
    // Whole sentences, so that each language may put the folder where it reads well.
    const int count = pluralCount(duplicatesFound);
    if (folderName.isEmpty()) {
        if (duplicatesFound == 0)
            return QCoreApplication::translate("ScanAttention", "No duplicate files found.");
        return duplicatesFound == 1
                   ? QCoreApplication::translate("ScanAttention", "%n duplicate file found.",
                                                 nullptr, count)
                   : QCoreApplication::translate("ScanAttention", "%n duplicate files found.",
                                                 nullptr, count);
    }
    if (duplicatesFound == 0)
        return QCoreApplication::translate("ScanAttention", "No duplicate files found in %1.")
            .arg(folderName);
    return (duplicatesFound == 1
                ? QCoreApplication::translate("ScanAttention", "%n duplicate file found in %1.",
                                              nullptr, count)
                : QCoreApplication::translate("ScanAttention", "%n duplicate files found in %1.",
                                              nullptr, count))
        .arg(folderName);
}
