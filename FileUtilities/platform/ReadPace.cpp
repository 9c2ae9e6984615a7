#include "ReadPace.h"

#include <algorithm>

#include <sys/resource.h>

ReadPace::ReadPace(int workers) : m_workers(std::max(1, workers)) {}

bool ReadPace::countRead(bool slept)
{
    if (slept) {
        m_awakeInARow = 0;
        if (m_pace >= m_workers)
            return false;
        ++m_pace;
        return true;
    }
    if (++m_awakeInARow >= slowDownAfter) {
        m_awakeInARow = 0;
        m_pace = std::max(1, m_pace - 1);
    }
    return false;
}

long ReadPace::sleepsOfThisThread()
{
    struct rusage usage = {};
    if (::getrusage(RUSAGE_THREAD, &usage) != 0)
        return 0;
    return usage.ru_nvcsw;
}
