#include "WorkerCrew.h"

#include <algorithm>

WorkerCrew::WorkerCrew(std::mutex &mutex, int workers, Ready ready, Run run)
    : m_mutex(mutex), m_size(std::max(0, workers)), m_ready(std::move(ready)),
      m_run(std::move(run)), m_pace(m_size),
      m_wake(std::make_unique<std::condition_variable[]>(static_cast<size_t>(m_size))),
      m_idle(static_cast<size_t>(m_size), 0)
{
    for (int index = 0; index < m_size; ++index)
        m_threads.emplace_back([this, index] { work(index); });
}

WorkerCrew::~WorkerCrew()
{
    {
        std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    for (int index = 0; index < m_size; ++index)
        m_wake[index].notify_one();
    for (std::thread &thread : m_threads)
        thread.join();
}

void WorkerCrew::wakeLocked(size_t wanted)
{
    // A worker that is awake looks for more work before it sleeps; only idle ones need a wake.
    const int allowed = std::min(m_pace.pace(), m_size);
    for (int index = 0; index < allowed && wanted > 0; ++index) {
        if (m_idle[index]) {
            m_idle[index] = 0; // woken already: the next wake goes to another
            m_wake[index].notify_one();
            --wanted;
        }
    }
}

void WorkerCrew::countReadLocked(bool slept)
{
    if (m_pace.countRead(slept))
        wakeLocked(1);
}

void WorkerCrew::work(int index)
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        // A worker with work at hand goes on without sleeping, so it is never taken for idle.
        while (!m_stopping && !(index < m_pace.pace() && m_ready())) {
            m_idle[index] = 1;
            m_wake[index].wait(lock);
        }
        m_idle[index] = 0;
        if (m_stopping)
            return;
        m_run(lock);
    }
}
