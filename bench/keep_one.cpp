// Keep one, trash the rest, over many groups: how long the main thread is ever busy while
// every spare copy is proven and moved to the Trash, and how long the whole run takes.
//
// Usage: keep_one [GROUPS] [FOLDER]
// Makes GROUPS groups of two or three equal files of 8 KiB in a new folder under FOLDER
// (default /var/tmp), with a Trash of its own beside them.

#include "ApplicationStatus.h"
#include "BRDuplicateFilesViewController.h"
#include "BenchSupport.h"
#include "DesktopWorkspace.h"
#include "DuplicateResults.h"
#include "FileStamp.h"
#include "ScriptedAlertPresenter.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const int groupCount = argc > 1 ? std::atoi(argv[1]) : 10'000;
    QTemporaryDir scratch(
        (argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral("/var/tmp")) +
        QStringLiteral("/quillmere-keep-one-XXXXXX"));
    if (!scratch.isValid())
        return 2;
    qputenv("XDG_DATA_HOME", QFile::encodeName(scratch.filePath(QStringLiteral("data"))));

    GroupMap groups;
    qint64 copies = 0;
    QElapsedTimer making;
    making.start();
    for (int index = 0; index < groupCount; ++index) {
        GroupRecord record;
        record.fileName = QStringLiteral("file%1.bin").arg(index);
        record.fileSize = 8192;
        record.fileType = QStringLiteral("Binary");
        record.oldKey = QString::number(index);
        record.fileUTI = QStringLiteral("application/octet-stream");
        const QByteArray bytes = QByteArray::number(index).repeated(8192).left(8192);
        const int count = 2 + index % 2;
        for (int copy = 0; copy < count; ++copy) {
            const QString folder =
                scratch.filePath(QStringLiteral("c%1/%2").arg(copy).arg(index % 100));
            QDir().mkpath(folder);
            const QString path = folder + u'/' + record.fileName;
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
                return 2;
            file.close();
            record.filePath.append(path);
            record.fileStamps.append({path, *FileStamp::ofNativePath(QFile::encodeName(path))});
        }
        record.totalSize = record.fileSize * count;
        copies += count;
        groups.insert(record.oldKey, record);
    }
    std::printf("%d groups, %lld files made in %.1f s\n", groupCount,
                static_cast<long long>(copies), static_cast<double>(making.elapsed()) / 1000);

    ScriptedAlertPresenter alerts; // answers "Move to Trash"
    DesktopWorkspace workspace;
    ApplicationStatus status;
    BRDuplicateFilesViewController view(alerts, workspace, &status);
    view.resize(1100, 760);
    view.show();
    view.startScanProcess(QUrl());
    // One report a group, as a scan sends them; then the final one.
    qint64 reported = 0;
    groups.forEach([&](const QString &key, const GroupRecord &record) {
        reported += record.filePath.size();
        view.updateDuplicateFiles({groups, key, false, reported, 0});
    });
    view.updateDuplicateFiles({groups, QString(), true, copies, 0});
    while (view.results().allData().size() < groupCount || !view.results().scanStatus())
        QCoreApplication::processEvents();
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    alerts.shown.clear();

    BenchSupport::LongestFrame frames;
    QElapsedTimer asking;
    asking.start();
    view.keepOneCopyOfGroupsOnScreen(KeepOnePlan::Rule::ShortestPath);
    const double planMs = static_cast<double>(asking.nsecsElapsed()) / 1e6;
    frames.restart();
    const double started = frames.secondsSinceStart();
    while (view.isKeepingOne())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    const double seconds = frames.secondsSinceStart() - started;

    qsizetype left = 0;
    view.results().groups().forEach(
        [&left](const QString &, const GroupRecord &record) { left += record.filePath.size(); });
    std::printf("plan and confirmation: %.1f ms on the main thread\n", planMs);
    std::printf("run: %.1f s for %lld spare copies (%.0f a second), longest main-thread frame "
                "%.1f ms, %lld copies left, peak memory %ld MB\n",
                seconds, static_cast<long long>(copies - groupCount),
                static_cast<double>(copies - groupCount) / seconds, frames.longestMs(),
                static_cast<long long>(left), BenchSupport::peakResidentKiB() / 1024);
    if (!alerts.shown.isEmpty())
        std::printf("summary: %s %s\n", qPrintable(alerts.shown.last().title),
                    qPrintable(alerts.shown.last().text));
    return left == groupCount ? 0 : 1;
}
