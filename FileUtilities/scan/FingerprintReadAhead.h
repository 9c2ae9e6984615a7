#pragma once

#include "FileDescriptor.h"
#include "VideoHash.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

// Takes fingerprints of files the scan will soon ask about, on a few threads of its own,
// so that their bytes are read while the scan works on other entries.
//
// The scan asks for a file as soon as it knows it will need it and takes the fingerprint
// when it gets there: ready, or waited for while a worker reads it. A request no worker has
// started is withdrawn and the scan reads the file itself, so the scan never waits behind
// a queue. At most `ahead` requests are held; the oldest unclaimed fingerprint gives way
// to a new request, and when all are still being read a new request is dropped.
class FingerprintReadAhead
{
public:
    FingerprintReadAhead(int workers, int ahead, std::function<void()> beforeRead);
    ~FingerprintReadAhead();
    FingerprintReadAhead(const FingerprintReadAhead &) = delete;
    FingerprintReadAhead &operator=(const FingerprintReadAhead &) = delete;

    // The file `nativeName` in the folder open on `folder`, or by its path when there is no
    // folder. A file asked for already is not asked for again.
    void request(const QString &path, std::shared_ptr<const FileDescriptor> folder,
                 const QByteArray &nativeName);
    // The fingerprint of `path` when a worker has taken or is taking it; nothing otherwise.
    std::optional<VideoHash> take(const QString &path);

private:
    enum class State
    {
        Waiting,
        Reading,
        Ready
    };
    struct Job
    {
        quint64 order = 0;
        State state = State::Waiting;
        std::shared_ptr<const FileDescriptor> folder;
        QByteArray nativeName;
        VideoHash hash;
    };

    void work();
    // Makes room for one more request; false when every held request is still running.
    bool makeRoomLocked();

    const int m_ahead;
    const std::function<void()> m_beforeRead;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<QString, Job> m_jobs;
    std::deque<std::pair<quint64, QString>> m_waiting; // oldest first; withdrawn ones stay
    std::map<quint64, QString> m_unclaimed;            // ready fingerprints, oldest first
    quint64 m_nextOrder = 0;
    bool m_stopping = false;
    std::vector<std::thread> m_workers;
};
