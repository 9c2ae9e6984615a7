#include "ScanAttention.h"
#include "ScanProgressEstimate.h"
#include "ScriptedDesktopNotifier.h"
#include "TestDir.h"

#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

// The desktop hears of a scan outside the window: progress while it runs, a notification
// when a long one ends unseen. Driven by hand, with a clock of the test's own.
class tst_ScanAttention : public QObject
{
    Q_OBJECT

    ScriptedDesktopNotifier notifier;
    qint64 now = 0;
    ScanAttention attention{notifier, [this] {
                                return now;
                            }};

    void scan(qint64 tookMs, bool windowActive, qint64 found = 12)
    {
        attention.scanStarted(u"/home/anna/Pictures/"_s);
        now += tookMs;
        attention.scanEnded();
        attention.scanFinished(found, windowActive, [this] { ++activations; });
    }

    int activations = 0;

private Q_SLOTS:
    void init()
    {
        notifier = {};
        activations = 0;
    }

    void whenToNotify_data()
    {
        QTest::addColumn<qint64>("tookMs");
        QTest::addColumn<bool>("windowActive");
        QTest::addColumn<bool>("notified");
        QTest::newRow("short, window elsewhere") << qint64(9999) << false << false;
        QTest::newRow("exactly ten seconds") << qint64(10000) << false << false;
        QTest::newRow("just longer") << qint64(10001) << false << true;
        QTest::newRow("long, window looked at") << qint64(600000) << true << false;
        QTest::newRow("long, window elsewhere") << qint64(600000) << false << true;
    }
    void whenToNotify()
    {
        QFETCH(qint64, tookMs);
        QFETCH(bool, windowActive);
        QFETCH(bool, notified);
        scan(tookMs, windowActive);
        QCOMPARE(notifier.notices.size(), notified ? 1 : 0);
        if (notified) {
            QCOMPARE(notifier.notices[0].summary, u"Duplicate files scan complete."_s);
            QCOMPARE(notifier.notices[0].body, u"12 duplicate files found in Pictures."_s);
            notifier.click();
            QCOMPARE(activations, 1);
        }
    }

    // The time that counts ends when the scan ends, not when its results were shown.
    void theScanEndsTheTimeNotTheAnnouncement()
    {
        attention.scanStarted(u"/data"_s);
        now += 4000;
        attention.scanEnded();
        now += 60000; // an alert, a busy main thread
        attention.scanFinished(3, false, [] {});
        QVERIFY(notifier.notices.isEmpty());
    }

    // A stopped scan hears no finish, and its time does not carry over to the next scan;
    // each scan's end is said at most once, and nothing without a scan.
    void stoppedAndRepeatedEnds()
    {
        attention.scanFinished(5, false, [] {});
        QVERIFY(notifier.notices.isEmpty());
        attention.scanStarted(u"/data"_s);
        now += 30000;
        attention.scanEnded(); // stopped by the user
        scan(1000, false);
        QVERIFY(notifier.notices.isEmpty());
        scan(30000, false);
        attention.scanFinished(12, false, [] {});
        QCOMPARE(notifier.notices.size(), 1);
    }

    void bodies_data()
    {
        QTest::addColumn<qint64>("found");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("body");
        QTest::newRow("none") << qint64(0) << u"Music"_s << u"No duplicate files found in Music."_s;
        QTest::newRow("one") << qint64(1) << u"Music"_s << u"1 duplicate file found in Music."_s;
        QTest::newRow("many") << qint64(2048) << u"Music"_s
                              << u"2048 duplicate files found in Music."_s;
        QTest::newRow("the root") << qint64(2) << QString() << u"2 duplicate files found."_s;
    }
    void bodies()
    {
        QFETCH(qint64, found);
        QFETCH(QString, folder);
        QFETCH(QString, body);
        QCOMPARE(ScanAttention::body(found, folder), body);
    }

    // The launcher shows 0 at the start, only growing steps of a hundredth or more, and
    // nothing once the scan has ended.
    void launcherProgress()
    {
        TestDir tree;
        for (const char *name : {"a", "b", "c", "d"})
            tree.createDir(QString::fromLatin1(name));
        attention.scanStarted(tree.path());
        attention.scanProgressed(tree.filePath(u"b"_s));
        attention.scanProgressed(tree.filePath(u"b/deeper/still"_s)); // no move
        attention.scanProgressed(tree.filePath(u"a"_s));              // never back
        attention.scanProgressed(tree.filePath(u"d"_s));
        attention.scanEnded();
        attention.scanProgressed(tree.filePath(u"c"_s)); // a late poll
        QCOMPARE(notifier.progress, (QList<std::optional<double>>{0.0, 0.25, 0.75, std::nullopt}));
        attention.scanEnded();
        QCOMPARE(notifier.progress.size(), 4);
    }

    void estimate_data()
    {
        QTest::addColumn<QStringList>("visited");
        QTest::addColumn<double>("fraction");
        // Four folders in byte order: "B", "a", "b", "é"; "b" holds "x" and "y".
        QTest::newRow("the root's own files") << QStringList{u""_s} << 0.0;
        QTest::newRow("upper case first") << QStringList{u"B"_s} << 0.0;
        QTest::newRow("second") << QStringList{u"a"_s} << 0.25;
        QTest::newRow("half of the third") << QStringList{u"b/y"_s} << 0.625;
        QTest::newRow("deeper counts as its second level") << QStringList{u"b/y/z/w"_s} << 0.625;
        QTest::newRow("beyond ASCII last") << QStringList{u"é"_s} << 0.75;
        QTest::newRow("never back") << QStringList{u"é"_s, u"a"_s} << 0.75;
        QTest::newRow("unknown folders leave it, a known first level counts")
            << QStringList{u"a"_s, u"gone"_s, u"../elsewhere"_s, u"b/gone"_s} << 0.5;
        QTest::newRow("hidden and linked folders are not walked")
            << QStringList{u".cache"_s, u"link"_s} << 0.0;
    }
    void estimate()
    {
        QFETCH(QStringList, visited);
        QFETCH(double, fraction);
        TestDir tree;
        for (const QString &name : {u"a"_s, u"B"_s, u"b/x"_s, u"b/y/z/w"_s, u"é"_s, u".cache"_s})
            tree.createDir(name);
        QVERIFY(::symlink(QFile::encodeName(tree.filePath(u"a"_s)).constData(),
                          QFile::encodeName(tree.filePath(u"link"_s)).constData()) == 0);
        ScanProgressEstimate estimate(tree.path() + u'/');
        double last = -1;
        for (const QString &folder : visited)
            last = estimate.fractionAt(folder.isEmpty() ? tree.path() : tree.filePath(folder));
        QCOMPARE(last, fraction);
    }
};

QTEST_GUILESS_MAIN(tst_ScanAttention)
#include "tst_scanattention.moc"
