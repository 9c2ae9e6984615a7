#include "FingerprintReadAhead.h"

#include "OSHashAlgorithm.h"

#include <algorithm>

FingerprintReadAhead::FingerprintReadAhead(int workers, int ahead, std::function<void()> beforeRead)
    : m_ahead(std::max(1, ahead)), m_beforeRead(std::move(beforeRead)),
      m_crew(
          m_mutex, workers, [this] { return !m_waiting.empty(); },
          [this](std::unique_lock<std::mutex> &lock) { readNext(lock); })
{}

FingerprintReadAhead::~FingerprintReadAhead() = default;

bool FingerprintReadAhead::makeRoomLocked()
{
    if (m_jobs.size() < m_ahead)
        return true;
    if (!m_unclaimed.empty()) {
        m_jobs.remove(m_unclaimed.begin()->second);
        m_unclaimed.erase(m_unclaimed.begin());
        return true;
    }
    return false;
}

void FingerprintReadAhead::request(std::vector<Request> requests)
{
    size_t added = 0;
    std::lock_guard lock(m_mutex);
    for (Request &wanted : requests) {
        if (m_jobs.contains(wanted.path))
            continue;
        if (!makeRoomLocked())
            break;
        const quint64 order = m_nextOrder++;
        m_jobs.insert(
            wanted.path,
            Job{order, State::Waiting, std::move(wanted.folder), std::move(wanted.nativeName), {}});
        m_waiting.emplace_back(order, std::move(wanted.path));
        ++added;
    }
    m_crew.wakeLocked(added);
}

std::optional<VideoHash> FingerprintReadAhead::take(const QString &path)
{
    std::lock_guard lock(m_mutex);
    const auto job = m_jobs.find(path);
    if (job == m_jobs.end())
        return std::nullopt;
    std::optional<VideoHash> hash;
    if (job->state == State::Ready) {
        hash = std::move(job->hash);
        m_unclaimed.erase(job->order);
    }
    m_jobs.erase(job); // a queued request is skipped, a running one's result dropped
    return hash;
}

void FingerprintReadAhead::readNext(std::unique_lock<std::mutex> &lock)
{
    const auto [order, path] = std::move(m_waiting.front());
    m_waiting.pop_front();
    auto job = m_jobs.find(path);
    if (job == m_jobs.end() || job->order != order)
        return; // withdrawn
    job->state = State::Reading;
    const std::shared_ptr<const FileDescriptor> folder = job->folder;
    const QByteArray nativeName = job->nativeName;
    lock.unlock();
    const ReadPace::SleepWatch watch;
    if (m_beforeRead)
        m_beforeRead();
    // One each: it keeps its buffers from one file to the next.
    thread_local OSHashAlgorithm fingerprint;
    VideoHash hash = fingerprint.hashForFileInFolder(folder ? folder->get() : -1, nativeName, path);
    const bool slept = watch.slept();
    lock.lock();
    m_crew.countReadLocked(slept);
    job = m_jobs.find(path);
    if (job != m_jobs.end() && job->order == order) {
        job->state = State::Ready;
        job->hash = std::move(hash);
        job->folder.reset();
        m_unclaimed.emplace(order, path);
    }
}
