#include "WalkTuning.h"

#include <QFile>

#include <algorithm>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace {

int descriptorLimit()
{
    struct rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return 1024;
    return static_cast<int>(std::min<rlim_t>(limit.rlim_cur, 1 << 20));
}

} // namespace

bool WalkTuning::isOnRotatingDisk(const QString &path)
{
    struct stat info = {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return false;
    const QString device =
        QStringLiteral("/sys/dev/block/%1:%2/").arg(major(info.st_dev)).arg(minor(info.st_dev));
    // A partition has no queue of its own; its disk is the folder above it.
    for (const char *queue : {"queue/rotational", "../queue/rotational"}) {
        QFile flag(device + QLatin1String(queue));
        if (flag.open(QIODevice::ReadOnly))
            return flag.readAll().trimmed() == "1";
    }
    return false;
}

WalkTuning WalkTuning::forFolder(const QString &path)
{
    const int cores = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    WalkTuning tuning;
    // Listing a folder is many small reads of metadata, which every device serves better
    // with more of them queued (a disk's elevator sorts them by position), so even a
    // spinning disk gets a few workers; flash gets as many as keep its queues full.
    if (isOnRotatingDisk(path)) {
        tuning.listingWorkers = 4;
        tuning.foldersAhead = 32;
        tuning.fingerprintWorkers = 2;
        tuning.fingerprintsAhead = 32;
    } else {
        tuning.listingWorkers = std::clamp(4 * cores, 4, 16);
        tuning.foldersAhead = 64;
        tuning.fingerprintWorkers = std::clamp(2 * cores, 4, 8);
        tuning.fingerprintsAhead = 64;
    }
    // Both hold descriptors (a folder each) beside the walk's own quarter of the limit.
    const int spare = descriptorLimit() / 8;
    tuning.foldersAhead = std::min(tuning.foldersAhead, spare);
    tuning.fingerprintsAhead = std::min(tuning.fingerprintsAhead, spare);
    if (tuning.foldersAhead < 1)
        tuning.listingWorkers = 0;
    if (tuning.fingerprintsAhead < 1)
        tuning.fingerprintWorkers = 0;
    return tuning;
}
