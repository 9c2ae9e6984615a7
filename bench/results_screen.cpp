// Drives the real results screen with synthetic groups and measures what a user feels:
// the longest stretch the main thread is busy while reports stream in, how long a sort
// and a search keystroke take, and the memory of the whole program.
//
// Usage: results_screen [GROUPS] [REPORTS_PER_SECOND]
// REPORTS_PER_SECOND 0 sends reports as fast as one thread can (a flood no real scan
// reaches); the default paces them like a fast scan of small groups.

#include "ApplicationStatus.h"
#include "BRDuplicateFilesViewController.h"
#include "BenchSupport.h"
#include "DuplicateResults.h"
#include "GroupOrdering.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedWorkspace.h"
#include "SubTypeFilter.h"

#include <QApplication>
#include <QCollator>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <thread>

namespace {

const char *const words[] = {"holiday", "Invoice", "IMG",    "scan",  "Report", "song",
                             "clip",    "notes",   "Budget", "photo", "draft",  "Track"};
const char *const kinds[][3] = {{"jpg", "JPEG image", "image/jpeg"},
                                {"mp3", "MP3 audio", "audio/mpeg"},
                                {"mp4", "MPEG-4 video", "video/mp4"},
                                {"txt", "plain text document", "text/plain"},
                                {"pdf", "PDF document", "application/pdf"}};

GroupRecord recordFor(int index, QRandomGenerator &random)
{
    const auto &kind = kinds[random.bounded(5)];
    GroupRecord record;
    record.fileName = QString::fromLatin1(words[random.bounded(12)]) +
                      QString::number(random.bounded(100000)) + u'.' + QString::fromLatin1(kind[0]);
    record.fileSize = 65537 + random.bounded(50'000'000);
    // The type database hands out one shared text per type, as here.
    static const QStringList types{
        QString::fromLatin1(kinds[0][1]), QString::fromLatin1(kinds[1][1]),
        QString::fromLatin1(kinds[2][1]), QString::fromLatin1(kinds[3][1]),
        QString::fromLatin1(kinds[4][1])};
    static const QStringList identifiers{
        QString::fromLatin1(kinds[0][2]), QString::fromLatin1(kinds[1][2]),
        QString::fromLatin1(kinds[2][2]), QString::fromLatin1(kinds[3][2]),
        QString::fromLatin1(kinds[4][2])};
    const auto kindIndex = static_cast<qsizetype>(&kind - kinds);
    record.fileType = types.at(kindIndex);
    record.fileUTI = identifiers.at(kindIndex);
    const int copies = 2 + random.bounded(3);
    for (int copy = 0; copy < copies; ++copy)
        record.filePath.append(QStringLiteral("/home/user/archive/%1/%2/%3")
                                   .arg(copy)
                                   .arg(index % 997)
                                   .arg(record.fileName));
    record.oldKey = QString::number(record.fileSize) + record.fileType;
    record.totalSize = record.fileSize * copies;
    return record;
}

template <typename Step> double millisecondsOf(Step step)
{
    QElapsedTimer timer;
    timer.start();
    step();
    QCoreApplication::processEvents(); // the coalesced redraw belongs to the step
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const int groups = argc > 1 ? std::atoi(argv[1]) : 100'000;
    const int perSecond = argc > 2 ? std::atoi(argv[2]) : 20'000;

    ScriptedAlertPresenter alerts;
    ScriptedWorkspace workspace;
    ApplicationStatus status;
    BRDuplicateFilesViewController view(alerts, workspace, &status);
    view.resize(1100, 760);
    view.show();
    view.startScanProcess(QUrl()); // the scanning state, with reports sent from here
    DuplicateResults &results = view.results();

    // The main thread's longest busy stretch: a timer that should fire every millisecond
    // records how late each tick comes.
    std::atomic<bool> liveDone{false};
    std::atomic<int> pendingLive{0};
    qint64 longestLiveFrame = 0;
    QElapsedTimer clock;
    clock.start();
    qint64 lastTick = 0;
    qint64 longestFrame = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        longestFrame = std::max(longestFrame, now - lastTick);
        if (!liveDone)
            longestLiveFrame = longestFrame;
        lastTick = now;
    });
    ticker.start(1);

    std::atomic<bool> sent{false};
    GroupMap all;
    std::thread producer([&] {
        QRandomGenerator random(42);
        GroupMap map;
        QElapsedTimer pace;
        pace.start();
        qint64 duplicates = 0;
        for (int index = 0; index < groups; ++index) {
            GroupRecord record = recordFor(index, random);
            const QString key = record.oldKey + QString::number(index);
            duplicates += record.filePath.size();
            map.insert(key, std::move(record));
            ++pendingLive;
            view.updateDuplicateFiles({map, key, false, duplicates, 0});
            QMetaObject::invokeMethod(
                &view, [&] { --pendingLive; }, Qt::QueuedConnection);
            if (perSecond > 0)
                while (pace.nsecsElapsed() < qint64(index + 1) * 1'000'000'000 / perSecond)
                    QThread::usleep(20);
        }
        while (pendingLive.load() > 0)
            QThread::usleep(200);
        liveDone = true;
        view.updateDuplicateFiles({map, QString(), true, duplicates, 0});
        all = map;
        sent = true;
    });
    while (!sent || results.walkRunning())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    producer.join();
    const double streamSeconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    ticker.stop();
    QCoreApplication::processEvents();

    // The user reads the results for a moment before sorting; work begun at the end of the
    // scan may finish meanwhile.
    QElapsedTimer reading;
    reading.start();
    while (reading.elapsed() < 1500)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);

    std::printf("groups on screen: %lld (of %d sent)\n",
                static_cast<long long>(results.allData().size()), groups);
    std::printf("streaming: %.2f s, longest main-thread frame %.1f ms while reports stream in, "
                "%.1f ms with the final report\n",
                streamSeconds, static_cast<double>(longestLiveFrame) / 1e6,
                static_cast<double>(longestFrame) / 1e6);
    if (qEnvironmentVariableIsSet("QUILLMERE_BENCH_PARTS")) {
        const QStringList &keys = results.keysOfAll();
        const GroupMap &map = results.groups();
        std::printf(
            "  parts: finds %.1f ms, Name keys %.1f ms, Size keys %.1f ms, hits %.1f ms, "
            "photo keys %.1f ms, reload %.1f ms\n",
            millisecondsOf([&] {
                qint64 sum = 0;
                for (const QString &key : keys)
                    sum += map.find(key)->fileSize;
                std::printf("  (%lld)\n", static_cast<long long>(sum % 7));
            }),
            millisecondsOf([&] { GroupOrdering::sortedKeys(SortOrder::Name, keys, map); }),
            millisecondsOf([&] { GroupOrdering::sortedKeys(SortOrder::Size, keys, map); }),
            millisecondsOf([&] { GroupOrdering::searchHits(QStringLiteral("p"), keys, map); }),
            millisecondsOf([&] { SubTypeFilter().keysOfSubType(SubType::Photo, keys, map); }),
            millisecondsOf([&] { results.reloadData(); }));
        QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates));
        collator.setNumericMode(true);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        std::vector<QCollatorSortKey> sortKeys;
        sortKeys.reserve(keys.size());
        std::printf("  sort keys %.1f ms\n", millisecondsOf([&] {
                        for (const QString &key : keys)
                            sortKeys.push_back(collator.sortKey(map.find(key)->fileName));
                    }));
        std::printf("  sort by keys %.1f ms\n", millisecondsOf([&] {
                        std::vector<int> order(sortKeys.size());
                        for (size_t i = 0; i < order.size(); ++i)
                            order[i] = int(i);
                        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
                            return sortKeys[size_t(a)].compare(sortKeys[size_t(b)]) < 0;
                        });
                    }));
    }
    for (const SortOrder sort :
         {SortOrder::Name, SortOrder::Size, SortOrder::Type, SortOrder::All}) {
        const double ms = millisecondsOf([&] { view.sortMainType(sort, false); });
        std::printf("sort %-4s: %7.1f ms\n", qPrintable(sortOrderTitle(sort)), ms);
    }
    for (const SubType subType : {SubType::Photo, SubType::Document}) {
        const double ms = millisecondsOf([&] { view.sortSubType(subType, SortOrder::Size); });
        std::printf("sub-type %s (by size): %.1f ms\n", qPrintable(subTypeName(subType)), ms);
    }
    view.sortMainType(SortOrder::Name, false);
    auto *search = view.findChild<QLineEdit *>(QStringLiteral("searchField"));
    // The user moves to the search field after sorting.
    reading.restart();
    while (reading.elapsed() < 300)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    double longestKey = 0;
    for (const char *text : {"p", "ph", "pho", "phot", "photo", "photo1", "photo", "i", "im", "img",
                             "s", "so", "son", "song"}) {
        const double ms = millisecondsOf([&] { search->setText(QString::fromLatin1(text)); });
        longestKey = std::max(longestKey, ms);
        if (qEnvironmentVariableIsSet("QUILLMERE_BENCH_PARTS"))
            std::printf("  \"%s\" %.1f ms, %lld hits\n", text, ms,
                        static_cast<long long>(results.filteredData().size()));
    }
    std::printf("search keystroke: longest %.1f ms (hits for \"song\": %lld)\n", longestKey,
                static_cast<long long>(results.filteredData().size()));
    const double clearMs = millisecondsOf([&] { search->clear(); });
    std::printf("search cleared: %.1f ms\n", clearMs);
    std::printf("peak resident memory: %.0f MB\n",
                static_cast<double>(BenchSupport::peakResidentKiB()) / 1024.0);
    return 0;
}
