#pragma once

// How many workers should read at once: as many as the device keeps busy, and no more.
//
// A read that put its thread to sleep waited on the device, and another worker reading
// beside it would have kept the device's queue fuller, so the pace grows by one. A long run
// of reads that never slept came from the page cache, where every worker beyond the first
// only takes turns with the walk on the same cores, so the pace comes down by one. It starts
// at one: a warm tree never wakes a second worker, a cold one has all of them reading after
// its first few folders.
class ReadPace
{
public:
    explicit ReadPace(int workers);

    int pace() const { return m_pace; }
    // Counts one finished read; true when the pace grew.
    bool countRead(bool slept);

    // Made before a read on the thread that reads: whether the thread has slept since, on
    // the device, a lock or a condition.
    class SleepWatch
    {
    public:
        bool slept() const { return sleepsOfThisThread() != m_before; }

    private:
        long m_before = sleepsOfThisThread();
    };

private:
    // The times the calling thread has gone to sleep of its own accord: waiting on the
    // device, a lock or a condition.
    static long sleepsOfThisThread();

    // Reads this long in a row without sleeping mean the tree is in the page cache.
    static constexpr int slowDownAfter = 32;

    int m_workers;
    int m_pace = 1;
    int m_awakeInARow = 0;
};
