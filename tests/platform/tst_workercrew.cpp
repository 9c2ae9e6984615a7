#include "ReadPace.h"
#include "WorkerCrew.h"

#include <QTest>

#include <chrono>
#include <deque>
#include <mutex>
#include <set>
#include <thread>

namespace {

// Pieces of work handed to a crew under its lock; each records which thread ran it and
// counts as a read that slept or not.
struct Bench
{
    std::mutex mutex;
    std::deque<bool> pieces; // true: the piece sleeps, as a read from a cold disk does
    std::set<std::thread::id> threads;
    int done = 0;
    int mostAtOnce = 0;
    int running = 0;
};

// Runs every piece through a crew of `workers` and waits until all are done.
void runAll(Bench &bench, int workers)
{
    std::condition_variable finished;
    const int total = static_cast<int>(bench.pieces.size());
    {
        // Held while the crew is made, so that no worker starts before `crew` is set.
        std::unique_lock lock(bench.mutex);
        std::unique_ptr<WorkerCrew> crew;
        crew = std::make_unique<WorkerCrew>(
            bench.mutex, workers, [&bench] { return !bench.pieces.empty(); },
            [&bench, &crew, &finished](std::unique_lock<std::mutex> &held) {
                const bool sleeps = bench.pieces.front();
                bench.pieces.pop_front();
                bench.threads.insert(std::this_thread::get_id());
                bench.mostAtOnce = std::max(bench.mostAtOnce, ++bench.running);
                held.unlock();
                const ReadPace::SleepWatch watch;
                if (sleeps)
                    std::this_thread::sleep_for(std::chrono::milliseconds(2));
                const bool slept = watch.slept();
                held.lock();
                --bench.running;
                ++bench.done;
                crew->countReadLocked(slept);
                finished.notify_all();
            });
        crew->wakeLocked(static_cast<size_t>(workers));
        QVERIFY(finished.wait_for(lock, std::chrono::seconds(20),
                                  [&bench, total] { return bench.done == total; }));
        lock.unlock(); // the crew takes the lock to stop
    }
}

} // namespace

// How many workers read at once follows whether reads wait on the device.
class tst_WorkerCrew : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paceGrowsWithSleepsAndFallsWhenReadsNeverSleep()
    {
        ReadPace pace(3);
        QCOMPARE(pace.pace(), 1);
        QVERIFY(pace.countRead(true));
        QVERIFY(pace.countRead(true));
        QVERIFY(!pace.countRead(true)); // at the number of workers
        QCOMPARE(pace.pace(), 3);
        for (int i = 0; i < 31; ++i)
            pace.countRead(false);
        QCOMPARE(pace.pace(), 3);
        pace.countRead(false);
        QCOMPARE(pace.pace(), 2);
        pace.countRead(true); // a sleep starts the run of awake reads again
        for (int i = 0; i < 31; ++i)
            pace.countRead(false);
        QCOMPARE(pace.pace(), 3);
        for (int i = 0; i < 10 * 32; ++i)
            pace.countRead(false);
        QCOMPARE(pace.pace(), 1);
    }

    void workersJoinAsReadsSleep_data()
    {
        QTest::addColumn<bool>("sleeps");
        QTest::addColumn<int>("pieces");
        QTest::addColumn<int>("workersUsed");
        // From the page cache one thread does everything; others would only take turns.
        QTest::newRow("page cache") << false << 2000 << 1;
        // From a slow device every worker joins in, and no more than there are.
        QTest::newRow("slow device") << true << 200 << 4;
    }
    void workersJoinAsReadsSleep()
    {
        QFETCH(bool, sleeps);
        QFETCH(int, pieces);
        QFETCH(int, workersUsed);
        Bench bench;
        bench.pieces.assign(static_cast<size_t>(pieces), sleeps);
        runAll(bench, 4);
        QCOMPARE(bench.done, pieces);
        QCOMPARE(bench.mostAtOnce, workersUsed);
        QCOMPARE(bench.threads.size(), static_cast<size_t>(workersUsed));
    }

    void noWorkersRunNothing()
    {
        std::mutex mutex;
        bool asked = false;
        WorkerCrew crew(
            mutex, 0, [&asked] { return asked = true; }, [](std::unique_lock<std::mutex> &) {});
        std::lock_guard lock(mutex);
        crew.wakeLocked(5);
        crew.countReadLocked(true);
        QCOMPARE(crew.size(), 0);
        QVERIFY(!asked);
    }
};

QTEST_GUILESS_MAIN(tst_WorkerCrew)
#include "tst_workercrew.moc"
