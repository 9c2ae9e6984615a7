#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <algorithm>

// What the screen benchmarks measure alike.
namespace BenchSupport {

// The most memory this process has held, in KiB (VmHWM), or -1.
inline long peakResidentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    return -1;
}

// The main thread's longest busy stretch since `restart`: a timer that should fire every
// millisecond records how late each tick comes.
class LongestFrame
{
public:
    LongestFrame()
    {
        m_clock.start();
        QObject::connect(&m_ticker, &QTimer::timeout, [this] {
            const qint64 now = m_clock.nsecsElapsed();
            m_longest = std::max(m_longest, now - m_lastTick);
            m_lastTick = now;
        });
        m_ticker.start(1);
    }
    void restart()
    {
        m_lastTick = m_clock.nsecsElapsed();
        m_longest = 0;
    }
    double longestMs() const { return static_cast<double>(m_longest) / 1e6; }
    double secondsSinceStart() const { return static_cast<double>(m_clock.nsecsElapsed()) / 1e9; }

private:
    QElapsedTimer m_clock;
    QTimer m_ticker;
    qint64 m_lastTick = 0;
    qint64 m_longest = 0;
};

} // namespace BenchSupport
