#pragma once

#include "ScanProgressEstimate.h"

#include <QString>

#include <functional>
#include <optional>

class DesktopNotifier;

// What the desktop shows of a scan outside the window: progress on the launcher entry while
// it runs, and a notification when a long scan ends while the user looks elsewhere. A
// short scan ends before anyone has turned away; a notification over the window the user
// looks at repeats the alert in it.
class ScanAttention
{
public:
    // Milliseconds on a steady clock; tests give their own.
    using Clock = std::function<qint64()>;

    static constexpr qint64 longScanMs = 10000;

    explicit ScanAttention(DesktopNotifier &notifier, Clock now = {});

    void scanStarted(const QString &folder);
    // The folder the walk is in; the launcher hears only when the guess moves on a
    // hundredth or more.
    void scanProgressed(const QString &currentFolder);
    // Ended, stopped or cleared: the progress goes.
    void scanEnded();
    // The scan came to its end and found `duplicatesFound` copies. `activate` brings the
    // window back when the notification is clicked.
    void scanFinished(qint64 duplicatesFound, bool windowActive,
                      const std::function<void()> &activate);

    static QString summary();
    static QString body(qint64 duplicatesFound, const QString &folderName);

private:
    DesktopNotifier &m_notifier;
    Clock m_now;
    QString m_folder;
    std::optional<qint64> m_startedAt;
    std::optional<qint64> m_endedAt;
    ScanProgressEstimate m_estimate;
    std::optional<double> m_shownProgress;
};
