#pragma once

#include "FileDescriptor.h"
#include "VideoHash.h"
#include "WorkerCrew.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

// Takes fingerprints of files the scan will soon ask about, on a few threads of its own,
// so that their bytes are read while the scan works on other entries.
//
// The scan asks for a folder's files as soon as it knows it will need them and takes each
// fingerprint when it gets there. One not ready yet is withdrawn and the scan reads the
// file itself: the scan never waits on a worker, and a read still running has brought at
// least part of the bytes into the page cache, so the scan's own read waits on the disk no
// longer than the worker would have. At most `ahead` requests are held; the oldest
// unclaimed fingerprint gives way to a new request, and when all are still being read the
// rest of a folder's requests are dropped.
class FingerprintReadAhead
{
public:
    FingerprintReadAhead(int workers, int ahead, std::function<void()> beforeRead);
    ~FingerprintReadAhead();
    FingerprintReadAhead(const FingerprintReadAhead &) = delete;
    FingerprintReadAhead &operator=(const FingerprintReadAhead &) = delete;

    struct Request
    {
        QString path;
        std::shared_ptr<const FileDescriptor> folder; // none: opened by its path
        QByteArray nativeName = {};                   // the name within `folder`
    };
    // Files asked for already are not asked for again.
    void request(std::vector<Request> requests);
    // The fingerprint of `path` when a worker has taken it; nothing otherwise.
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

    // Takes the oldest waiting request's fingerprint; called by a worker with the lock held.
    void readNext(std::unique_lock<std::mutex> &lock);
    // Makes room for one more request; false when every held request is still running.
    bool makeRoomLocked();

    const int m_ahead;
    const std::function<void()> m_beforeRead;
    std::mutex m_mutex;
    QHash<QString, Job> m_jobs;
    std::deque<std::pair<quint64, QString>> m_waiting; // oldest first; withdrawn ones stay
    std::map<quint64, QString> m_unclaimed;            // ready fingerprints, oldest first
    quint64 m_nextOrder = 0;
    WorkerCrew m_crew; // last, so that it stops before anything it uses goes
};
