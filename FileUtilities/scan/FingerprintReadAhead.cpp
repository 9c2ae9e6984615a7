#include "FingerprintReadAhead.h"

#include "OSHashAlgorithm.h"

#include <algorithm>

FingerprintReadAhead::FingerprintReadAhead(int workers, int ahead, std::function<void()> beforeRead)
    : m_ahead(std::max(1, ahead)), m_beforeRead(std::move(beforeRead))
{
    for (int i = 0; i < workers; ++i)
        m_workers.emplace_back([this] { work(); });
}

FingerprintReadAhead::~FingerprintReadAhead()
{
    {
        std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_all();
    for (std::thread &worker : m_workers)
        worker.join();
}

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

void FingerprintReadAhead::request(const QString &path,
                                   std::shared_ptr<const FileDescriptor> folder,
                                   const QByteArray &nativeName)
{
    {
        std::lock_guard lock(m_mutex);
        if (m_jobs.contains(path) || !makeRoomLocked())
            return;
        const quint64 order = m_nextOrder++;
        m_jobs.insert(path, Job{order, State::Waiting, std::move(folder), nativeName, {}});
        m_waiting.emplace_back(order, path);
    }
    m_changed.notify_one();
}

std::optional<VideoHash> FingerprintReadAhead::take(const QString &path)
{
    std::unique_lock lock(m_mutex);
    auto job = m_jobs.find(path);
    if (job == m_jobs.end())
        return std::nullopt;
    if (job->state == State::Waiting) {
        m_jobs.erase(job); // its queue entry is skipped when a worker reaches it
        return std::nullopt;
    }
    const quint64 order = job->order;
    m_changed.wait(lock, [this, &path, &job, order] {
        job = m_jobs.find(path);
        return job == m_jobs.end() || job->order != order || job->state == State::Ready;
    });
    if (job == m_jobs.end() || job->order != order)
        return std::nullopt;
    VideoHash hash = std::move(job->hash);
    m_unclaimed.erase(order);
    m_jobs.erase(job);
    return hash;
}

void FingerprintReadAhead::work()
{
    OSHashAlgorithm fingerprint;
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_stopping || !m_waiting.empty(); });
        if (m_stopping)
            return;
        const auto [order, path] = std::move(m_waiting.front());
        m_waiting.pop_front();
        auto job = m_jobs.find(path);
        if (job == m_jobs.end() || job->order != order)
            continue; // withdrawn
        job->state = State::Reading;
        const std::shared_ptr<const FileDescriptor> folder = job->folder;
        const QByteArray nativeName = job->nativeName;
        lock.unlock();
        if (m_beforeRead)
            m_beforeRead();
        VideoHash hash =
            fingerprint.hashForFileInFolder(folder ? folder->get() : -1, nativeName, path);
        lock.lock();
        job = m_jobs.find(path);
        if (job != m_jobs.end() && job->order == order) {
            job->state = State::Ready;
            job->hash = std::move(hash);
            job->folder.reset();
            m_unclaimed.emplace(order, path);
        }
        m_changed.notify_all();
    }
}
