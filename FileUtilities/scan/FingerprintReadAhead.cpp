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
    m_workToDo.notify_all();
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

void FingerprintReadAhead::request(std::vector<Request> requests)
{
    size_t added = 0;
    {
        std::lock_guard lock(m_mutex);
        for (Request &wanted : requests) {
            if (m_jobs.contains(wanted.path))
                continue;
            if (!makeRoomLocked())
                break;
            const quint64 order = m_nextOrder++;
            m_jobs.insert(wanted.path, Job{order,
                                           State::Waiting,
                                           std::move(wanted.folder),
                                           std::move(wanted.nativeName),
                                           {}});
            m_waiting.emplace_back(order, std::move(wanted.path));
            ++added;
        }
    }
    if (added == 1)
        m_workToDo.notify_one();
    else if (added > 1)
        m_workToDo.notify_all();
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

void FingerprintReadAhead::work()
{
    OSHashAlgorithm fingerprint;
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_workToDo.wait(lock, [this] { return m_stopping || !m_waiting.empty(); });
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
    }
}
