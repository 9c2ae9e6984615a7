#pragma once

#include "ReadPace.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

// A few threads that read ahead for a walk, under the lock of the class that owns them.
//
// Each sleeps until it is woken and there is work it may start. Workers are numbered and
// only the first `pace` of them take work, the lowest-numbered idle one woken first: the
// same threads keep the work, with their stacks and caches warm, and the rest sleep until
// the disk falls behind (see ReadPace).
class WorkerCrew
{
public:
    // `ready`, with the lock held: whether there is work a worker may start now.
    // `run`: starts and finishes one piece of it; it is called with the lock held and must
    // return with it held, and may let go of it in between.
    using Ready = std::function<bool()>;
    using Run = std::function<void(std::unique_lock<std::mutex> &)>;

    WorkerCrew(std::mutex &mutex, int workers, Ready ready, Run run);
    // Stops every worker once its current piece of work is done.
    ~WorkerCrew();
    WorkerCrew(const WorkerCrew &) = delete;
    WorkerCrew &operator=(const WorkerCrew &) = delete;

    int size() const { return m_size; }
    // Wakes up to `wanted` idle workers among those the pace lets read. With the lock held.
    void wakeLocked(size_t wanted);
    // Counts a finished read, and wakes one more worker when the pace grows. With the lock held.
    void countReadLocked(bool slept);

private:
    void work(int index);

    std::mutex &m_mutex;
    const int m_size;
    const Ready m_ready;
    const Run m_run;
    ReadPace m_pace;
    std::unique_ptr<std::condition_variable[]> m_wake; // one each, so a wake picks its worker
    std::vector<char> m_idle;
    bool m_stopping = false;
    std::vector<std::thread> m_threads;
};
