// What the proof before removal costs: how fast two large equal files are compared,
// side by side with cmp on the same files, and how long the main thread is ever busy while
// the results screen checks and trashes a copy of such a file.
//
// Usage: copy_removal [MEBIBYTES] [FOLDER]
// FOLDER must be on a real disk (not tmpfs) with room for two files of MEBIBYTES; the
// default is 1024 MiB in a new folder under /var/tmp. Run as root to have the page cache
// dropped before the cold runs.

#include "ApplicationStatus.h"
#include "BRDuplicateFilesViewController.h"
#include "BenchSupport.h"
#include "CopyProof.h"
#include "DesktopWorkspace.h"
#include "DuplicateResults.h"
#include "FileStamp.h"
#include "ScriptedAlertPresenter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

#include <unistd.h>

namespace {

bool writeFile(const QString &path, qint64 mebibytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray block(1 << 20, Qt::Uninitialized);
    for (qint64 i = 0; i < mebibytes; ++i) {
        for (qsizetype at = 0; at < block.size(); at += 8)
            *reinterpret_cast<quint64 *>(block.data() + at) =
                (static_cast<quint64>(i) << 32) ^ static_cast<quint64>(at) * 0x9E3779B97F4A7C15ULL;
        if (file.write(block) != block.size())
            return false;
    }
    return file.flush() && ::fsync(file.handle()) == 0;
}

bool dropCaches()
{
    ::sync();
    QFile drop(QStringLiteral("/proc/sys/vm/drop_caches"));
    return drop.open(QIODevice::WriteOnly) && drop.write("3\n") == 2;
}

double secondsOf(const std::function<bool()> &step, bool &ok)
{
    QElapsedTimer timer;
    timer.start();
    ok = step();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const qint64 mebibytes = argc > 1 ? std::atoll(argv[1]) : 1024;
    QTemporaryDir scratch(argc > 2
                              ? QString::fromLocal8Bit(argv[2]) + QStringLiteral("/bench-XXXXXX")
                              : QStringLiteral("/var/tmp/quillmere-bench-XXXXXX"));
    if (!scratch.isValid())
        return 2;
    qputenv("XDG_DATA_HOME", QFile::encodeName(scratch.filePath(QStringLiteral("data"))));
    const QString a = scratch.filePath(QStringLiteral("a.bin"));
    const QString b = scratch.filePath(QStringLiteral("b.bin"));
    if (!writeFile(a, mebibytes) || !writeFile(b, mebibytes)) {
        std::fprintf(stderr, "cannot write the test files\n");
        return 2;
    }
    const double megabytes = static_cast<double>(mebibytes) * 1.048576;
    const bool canDrop = dropCaches();
    std::printf("two equal files of %lld MiB; page cache %s\n", static_cast<long long>(mebibytes),
                canDrop ? "dropped before cold runs" : "cannot be dropped (not root)");

    const std::atomic<bool> stop{false};
    const auto prove = [&] {
        return CopyProof::prove(a, FileStamp::ofNativePath(QFile::encodeName(a)), {b}, stop)
                   .outcome == CopyProof::Outcome::Proven;
    };
    const auto cmp = [&] {
        return QProcess::execute(QStringLiteral("cmp"), {QStringLiteral("-s"), a, b}) == 0;
    };
    for (const bool cold : {true, false}) {
        if (cold && !canDrop)
            continue;
        for (int run = 1; run <= 3; ++run) {
            bool provedOk = false, cmpOk = false;
            if (cold)
                dropCaches();
            const double proof = secondsOf(prove, provedOk);
            if (cold)
                dropCaches();
            const double plain = secondsOf(cmp, cmpOk);
            std::printf("%s run %d: proof %.2f s (%.0f MB/s)%s, cmp %.2f s (%.0f MB/s)%s, "
                        "ratio %.2f\n",
                        cold ? "cold" : "warm", run, proof, megabytes / proof,
                        provedOk ? "" : " FAILED", plain, megabytes / plain, cmpOk ? "" : " FAILED",
                        proof / plain);
        }
    }

    // The screen: one group of the two files; the copy goes through the check and the Trash
    // while a 1 ms timer records how late the main thread gets to it.
    ScriptedAlertPresenter alerts;
    DesktopWorkspace workspace;
    ApplicationStatus status;
    BRDuplicateFilesViewController view(alerts, workspace, &status);
    view.resize(1100, 760);
    view.show();
    view.startScanProcess(QUrl());
    GroupRecord record;
    record.fileName = QStringLiteral("b.bin");
    record.fileSize = mebibytes << 20;
    record.fileType = QStringLiteral("Binary");
    record.filePath = {a, b};
    record.oldKey = QStringLiteral("group");
    record.fileUTI = QStringLiteral("application/octet-stream");
    record.totalSize = 2 * record.fileSize;
    for (const QString &path : record.filePath)
        record.fileStamps.append({path, *FileStamp::ofNativePath(QFile::encodeName(path))});
    GroupMap groups;
    groups.insert(record.oldKey, record);
    view.updateDuplicateFiles({groups, record.oldKey, false, 2, record.fileSize});
    view.updateDuplicateFiles({groups, QString(), true, 2, record.fileSize});
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    view.showPopOverView(0);
    if (canDrop)
        dropCaches();

    BenchSupport::LongestFrame frames;
    frames.restart();
    view.updateAfterDelete(1, record.oldKey);
    while (view.isRemovingCopies())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    const double seconds = frames.secondsSinceStart();
    const bool gone = !QFile::exists(b);
    std::printf("screen (%s cache): copy %s after %.2f s, longest main-thread frame %.1f ms, "
                "alerts %lld\n",
                canDrop ? "cold" : "warm", gone ? "in the Trash" : "STILL THERE", seconds,
                frames.longestMs(), static_cast<long long>(alerts.shown.size()));
    return gone ? 0 : 1;
}
