#include "BRDuplicateFinderClass.h"
#include "CommandLineReporter.h"
#include "TestDir.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(WalkTuning)

namespace {

// A tree with everything the scan decides on: copies above and below the size limit, files
// of one size and different bytes, copied folders (one ending in a link, one in a FIFO),
// empty folders, deep chains and a wide folder. Equal seeds give equal trees.
void buildTree(TestDir &dir, quint32 seed)
{
    QRandomGenerator random(seed);
    const auto pick = [&random](int bound) {
        return static_cast<int>(random.bounded(bound));
    };
    const QStringList kinds{u".jpg"_s, u".txt"_s, u".mp3"_s, u".pdf"_s};
    QStringList folders{QString()};
    for (int i = 0; i < 60; ++i) {
        const QString parent = folders.at(pick(static_cast<int>(folders.size())));
        folders.append(parent + QStringLiteral("f%1/").arg(i));
        dir.createDir(folders.constLast());
    }
    for (int i = 0; i < 240; ++i) {
        const QString folder = folders.at(pick(static_cast<int>(folders.size())));
        // Few sizes and few contents, so that buckets fill and many files are compared.
        const qint64 size = pick(3) == 0 ? 100 + pick(5000) : 65537 + 4096 * pick(6);
        dir.createPatternFile(folder + QStringLiteral("file%1").arg(i) + kinds.at(pick(4)), size,
                              static_cast<quint32>(pick(4)));
    }
    for (int copy = 0; copy < 3; ++copy) {
        const QString base = QStringLiteral("album%1/").arg(copy);
        for (int i = 0; i < 5; ++i)
            dir.createPatternFile(base + QStringLiteral("p%1.jpg").arg(i), 70000 + i, 900 + i);
        QFile::link(u"p0.jpg"_s, dir.filePath(base + u"zz-link"_s));
        const QString piped = QStringLiteral("piped%1/").arg(copy);
        dir.createPatternFile(piped + u"a.bin"_s, 80000, 77);
        ::mkfifo(QFile::encodeName(dir.filePath(piped + u"zz-fifo"_s)).constData(), 0644);
    }
    QString deep;
    for (int level = 0; level < 40; ++level)
        deep += QStringLiteral("d%1/").arg(level);
    dir.createPatternFile(deep + u"bottom.mp3"_s, 70000, 5);
    dir.createPatternFile(u"top.mp3"_s, 70000, 5);
    for (int i = 0; i < 300; ++i)
        dir.createDir(QStringLiteral("wide/w%1").arg(i));
}

// Every report of a scan as quillmere-scan --json writes it.
QByteArray reportsOf(const QString &root, const WalkTuning &tuning)
{
    char *buffer = nullptr;
    size_t length = 0;
    std::FILE *output = ::open_memstream(&buffer, &length);
    {
        CommandLineReporter reporter(output, true);
        BRDuplicateFinderClass finder(&reporter);
        finder.setWalkTuning(tuning);
        finder.findDuplicatesInFolder(root);
    }
    std::fclose(output);
    QByteArray text(buffer, static_cast<qsizetype>(length));
    std::free(buffer);
    return text;
}

// Sleeps a random while before some reads, so that the workers finish in shuffled order.
std::function<void()> shuffledDelays(int everyNth)
{
    return [everyNth] {
        QRandomGenerator *random = QRandomGenerator::global();
        if (random->bounded(everyNth) == 0)
            std::this_thread::sleep_for(std::chrono::microseconds(random->bounded(3000)));
    };
}

WalkTuning tuned(int listingWorkers, int foldersAhead, int fingerprintWorkers, int ahead)
{
    WalkTuning tuning;
    tuning.listingWorkers = listingWorkers;
    tuning.foldersAhead = foldersAhead;
    tuning.fingerprintWorkers = fingerprintWorkers;
    tuning.fingerprintsAhead = ahead;
    tuning.beforeRead = shuffledDelays(3);
    return tuning;
}

} // namespace

class tst_ReadAhead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsDoNotDependOnReadingAhead_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::addColumn<WalkTuning>("tuning");
        for (const quint32 seed : {1U, 2U, 3U}) {
            const QByteArray name = QByteArray::number(seed);
            QTest::newRow(name + " one worker, one ahead") << seed << tuned(1, 1, 1, 1);
            QTest::newRow(name + " many workers, short queues") << seed << tuned(6, 2, 6, 3);
            QTest::newRow(name + " many workers, long queues") << seed << tuned(4, 64, 4, 128);
            QTest::newRow(name + " fingerprints only") << seed << tuned(0, 0, 3, 8);
        }
    }
    void reportsDoNotDependOnReadingAhead()
    {
        QFETCH(quint32, seed);
        QFETCH(WalkTuning, tuning);
        TestDir dir;
        buildTree(dir, seed);
        const QByteArray alone = reportsOf(dir.path(), WalkTuning::oneThread());
        QVERIFY(alone.count('\n') > 20); // the tree forms groups as it goes
        for (int run = 0; run < 3; ++run)
            QCOMPARE(reportsOf(dir.path(), tuning), alone);
    }

    // A scan cancelled while reads are in flight stops, and its workers with it.
    void cancelWhileReadingAhead()
    {
        TestDir dir;
        buildTree(dir, 9);
        CommandLineReporter reporter(::fopen("/dev/null", "w"), true);
        BRDuplicateFinderClass finder(&reporter);
        WalkTuning tuning = tuned(4, 8, 4, 16);
        std::atomic<int> reads = 0;
        tuning.beforeRead = [&finder, &reads] {
            if (++reads == 40)
                finder.setCancelActive(true);
        };
        finder.setWalkTuning(tuning);
        finder.findDuplicatesInFolder(dir.path());
        QVERIFY(!reporter.finished());
        QVERIFY(finder.dict().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_ReadAhead)
#include "tst_readahead.moc"
