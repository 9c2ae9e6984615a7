#include "DuplicateResults.h"
#include "ResultsFixtures.h"
#include "ScanThreads.h"
#include "TestDir.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The results without a screen, fed by hand as a scan would feed them. `shownCount` is
// what a count label following the results would read.
struct Store
{
    DuplicateResults results;
    GroupMap groups;
    QString shownCount = QStringLiteral("0");

    Store()
    {
        QObject::connect(&results, &DuplicateResults::totalsChanged,
                         [this](qint64 count, qint64) { shownCount = QString::number(count); });
    }
    void startScan() { results.prepareScan(); }
    void report(const GroupRecord &record, qint64 count, qint64 bytes = 0)
    {
        groups.insert(record.oldKey, record);
        results.postReport({groups, record.oldKey, false, count, bytes});
        settle();
    }
    void finish(qint64 count)
    {
        results.postReport({groups, QString(), true, count, 0});
        settle();
    }
    // Four finished groups: two photos, a song, a text.
    void finishedScan()
    {
        startScan();
        report(
            group(QStringLiteral("b10.jpg"), 100, QStringLiteral("image/jpeg"), {u"/a"_s, u"/b"_s}),
            2);
        report(
            group(QStringLiteral("B2.jpg"), 300, QStringLiteral("image/jpeg"), {u"/c"_s, u"/d"_s}),
            4);
        report(group(QStringLiteral("song.mp3"), 200, QStringLiteral("audio/mpeg"),
                     {u"/e"_s, u"/f"_s}),
               6);
        report(group(QStringLiteral("notes.txt"), 50, QStringLiteral("text/plain"),
                     {u"/g"_s, u"/h"_s}),
               8);
        finish(8);
    }
    QStringList namesOnScreen() const
    {
        QStringList names;
        for (const QString &key : results.checkSearchActiveAndGetData())
            names.append(results.groups().find(key)->fileName);
        return names;
    }
};

} // namespace

class tst_DuplicateStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void liveReportsGrowTheListOnceAGroup()
    {
        Store store;
        store.startScan();
        QVERIFY(!store.results.scanStatus());
        const GroupRecord photo = group(QStringLiteral("a.jpg"), 10, QString(), {u"/x"_s, u"/y"_s});
        store.report(photo, 2);
        GroupRecord grown = photo;
        grown.filePath.append(QStringLiteral("/z"));
        store.report(grown, 3); // a further copy: no list or cursor moves
        QCOMPARE(store.results.allData(), QStringList{u"a.jpg"_s});
        QCOMPARE(store.results.keysOfAll(), QStringList{u"a.jpg"_s});
        QCOMPARE(store.results.index(), 1);
        QCOMPARE(store.results.groups().find(u"a.jpg"_s)->filePath.size(), 3);
    }

    void tableAndCountAreThrottled_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("searching");
        QTest::addColumn<int>("reloads");
        QTest::addColumn<QString>("label");
        QTest::newRow("9") << 9 << false << 1 << u"9"_s;
        QTest::newRow("10") << 10 << false << 1 << u"10"_s;
        QTest::newRow("11") << 11 << false << 0 << u"0"_s;
        QTest::newRow("9 under a search") << 9 << true << 1 << u"9"_s;
        QTest::newRow("20 under a search") << 20 << true << 1 << u"0"_s;
    }
    void tableAndCountAreThrottled()
    {
        QFETCH(int, count);
        QFETCH(bool, searching);
        QFETCH(int, reloads);
        QFETCH(QString, label);
        Store store;
        store.startScan();
        if (searching)
            store.results.search(QStringLiteral("zzz"));
        store.shownCount = QStringLiteral("0");
        const int before = store.results.reloadCount();
        store.report(group(QStringLiteral("a"), 1, QString(), {u"/a"_s, u"/b"_s}), count);
        QCOMPARE(store.results.reloadCount() - before, reloads);
        QCOMPARE(store.shownCount, label);
    }

    void finishingReportEndsTheScanAndCountsTheList()
    {
        Store store;
        QSignalSpy ended(&store.results, &DuplicateResults::scanEnded);
        QSignalSpy completed(&store.results, &DuplicateResults::scanCompleted);
        QSignalSpy totals(&store.results, &DuplicateResults::totalsChanged);
        store.finishedScan();
        QVERIFY(store.results.scanStatus());
        QCOMPARE(store.results.groups().size(), 4);
        QCOMPARE(ended.count(), 1);
        QCOMPARE(ended.first().first().toInt(), 4);
        QCOMPARE(completed.count(), 1);
        QCOMPARE(completed.first().first().toLongLong(), 8);
        // Counted over the list, not taken from the report: all but one copy of each.
        QCOMPARE(totals.last(), (QList<QVariant>{qint64(8), qint64(650)}));
        QCOMPARE(store.results.duplicateFinder(), nullptr);
    }

    void aLateReportIsDropped()
    {
        Store store;
        store.startScan();
        store.groups.insert(u"a"_s, group(u"a"_s, 1, QString(), {u"/a"_s, u"/b"_s}));
        store.results.postReport({store.groups, u"a"_s, false, 2, 1});
        store.results.clear(); // before the report reached the main thread
        settle();
        QVERIFY(store.results.allData().isEmpty());
        QVERIFY(store.results.groups().isEmpty());
    }

    void layersComposeAndRebuild()
    {
        Store store;
        store.finishedScan();
        DuplicateResults &results = store.results;
        results.sortSubType(SubType::Photo, SortOrder::Size);
        QCOMPARE(store.namesOnScreen(), (QStringList{u"B2.jpg"_s, u"b10.jpg"_s}));
        QCOMPARE(store.shownCount, QStringLiteral("4"));
        results.sortMainType(SortOrder::Name, true); // the sub-type stays
        QCOMPARE(store.namesOnScreen(), (QStringList{u"B2.jpg"_s, u"b10.jpg"_s}));
        // The sort menu's "All" is the order of arrival; the sub-type stays with it too.
        results.sortMainType(SortOrder::All, true);
        QCOMPARE(store.namesOnScreen(), (QStringList{u"b10.jpg"_s, u"B2.jpg"_s}));
        QCOMPARE(results.selectedSubType(), SubType::Photo);
        results.sortMainType(SortOrder::Name, true);
        results.sortMainType(std::nullopt, true); // "Sort By" changes no list
        QCOMPARE(store.namesOnScreen(), (QStringList{u"B2.jpg"_s, u"b10.jpg"_s}));
        // All under a named sort shows everything but keeps the sub-type for later.
        results.sortMainType(SortOrder::Name, false);
        QCOMPARE(store.namesOnScreen(),
                 (QStringList{u"B2.jpg"_s, u"b10.jpg"_s, u"notes.txt"_s, u"song.mp3"_s}));
        QCOMPARE(results.selectedSubType(), SubType::Photo);
        results.checkSortTypeAndSortData();
        QVERIFY(results.subTypeActive());
        QCOMPARE(store.namesOnScreen().size(), 2);

        // The first keystroke searches the sub-type, later ones everything.
        results.search(QStringLiteral("b"));
        QCOMPARE(store.namesOnScreen(), (QStringList{u"B2.jpg"_s, u"b10.jpg"_s}));
        QCOMPARE(store.shownCount, QStringLiteral("4"));
        results.search(QStringLiteral("s"));
        QCOMPARE(store.namesOnScreen(), QStringList{u"song.mp3"_s});
        results.search(QStringLiteral("mp3")); // a prefix of the name, nothing else
        QCOMPARE(results.numberOfRows(), 1);
        QCOMPARE(results.listContent(), DuplicateResults::ListContent::NoSearchHits);
        QCOMPARE(store.shownCount, QStringLiteral("0"));
        results.search(QString()); // the kept sub-type returns
        QVERIFY(!results.searchActive());
        QCOMPARE(store.namesOnScreen(), (QStringList{u"B2.jpg"_s, u"b10.jpg"_s}));

        results.sortSubType(SubType::Folder, SortOrder::All);
        QCOMPARE(results.numberOfRows(), 1);
        QCOMPARE(results.listContent(), DuplicateResults::ListContent::NoGroupsOfSubType);
        results.sortMainType(SortOrder::All, false);
        QCOMPARE(results.selectedSubType(), std::nullopt);
        QCOMPARE(results.numberOfRows(), 4);
        QCOMPARE(results.listContent(), DuplicateResults::ListContent::Groups);
    }

    // A copy leaves its group: after the scan the list is counted anew, during one only
    // the size changes, as the count waits for the scan's next report.
    void removingACopy_data()
    {
        QTest::addColumn<bool>("scanRunning");
        QTest::addColumn<QString>("countShown");
        QTest::addColumn<qint64>("bytesShown");
        QTest::newRow("after the scan") << false << u"2"_s << qint64(10);
        QTest::newRow("during a scan") << true << u"3"_s << qint64(10);
    }
    void removingACopy()
    {
        QFETCH(bool, scanRunning);
        Store store;
        store.startScan();
        store.report(group(u"song.mp3"_s, 10, u"audio/mpeg"_s, {u"/1"_s, u"/2"_s, u"/3"_s}), 3, 20);
        if (!scanRunning)
            store.finish(3);
        qint64 bytesShown = -1;
        QObject::connect(&store.results, &DuplicateResults::reclaimableBytesChanged,
                         [&bytesShown](qint64 bytes) { bytesShown = bytes; });
        QObject::connect(&store.results, &DuplicateResults::totalsChanged,
                         [&bytesShown](qint64, qint64 bytes) { bytesShown = bytes; });

        QCOMPARE(store.results.removeCopy(u"song.mp3"_s, u"/2"_s), 0);
        store.results.recountAfterRemoval();
        const GroupRecord *after = store.results.groups().find(u"song.mp3"_s);
        QCOMPARE(after->filePath, (QStringList{u"/1"_s, u"/3"_s}));
        QCOMPARE(after->totalSize, 20);
        QTEST(store.shownCount, "countShown");
        QTEST(bytesShown, "bytesShown");
        QCOMPARE(store.results.removeCopy(u"gone"_s, u"/1"_s), -1);
    }

    // One group of three copies and 49 pairs: the throttle shows the list at 9 and at
    // multiples of ten only, so without more the last groups and counts would wait for the
    // end of the scan.
    void aListThatGrowsSteadily()
    {
        Store store;
        store.startScan();
        int rowsAnnounced = 0;
        const auto announced = [&] {
            rowsAnnounced = store.results.numberOfRows();
        };
        QObject::connect(&store.results, &DuplicateResults::rowsAppended, announced);
        QObject::connect(&store.results, &DuplicateResults::listReset, announced);
        store.report(group(u"g0"_s, 1, QString(), {u"/0/a"_s, u"/0/b"_s, u"/0/c"_s}), 3);
        for (int i = 1; i < 50; ++i) {
            const QString name = u"g"_s + QString::number(i);
            store.report(group(name, 1, QString(), {u"/a/"_s + name, u"/b/"_s + name}), 3 + 2 * i);
        }
        QCOMPARE(store.results.allData().size(), 50);
        QVERIFY(rowsAnnounced < 50);
        QTRY_COMPARE(rowsAnnounced, 50);
        QTRY_COMPARE(store.shownCount, u"101"_s);
    }

    // A report the finder made before it heard of a deletion arrives after it: the copy
    // removed must not come back, and reports made since are taken as they are.
    void aDeletionIsNeverUndoneByAnOlderReport()
    {
        Store store;
        store.startScan();
        const GroupRecord song = group(u"song"_s, 10, QString(), {u"/1"_s, u"/2"_s, u"/3"_s});
        store.report(song, 3, 20);
        store.results.removeCopy(u"song"_s, u"/2"_s);
        const GroupMap before = store.groups; // still holds "/2"
        store.report(group(u"late"_s, 5, QString(), {u"/x"_s, u"/y"_s}), 5, 25);
        QCOMPARE(store.results.groups().find(u"song"_s)->filePath, (QStringList{u"/1"_s, u"/3"_s}));
        QCOMPARE(store.results.groups().find(u"song"_s)->totalSize, 20);
        QCOMPARE(store.results.totalDupesSize(), 15);

        GroupMap after = before;
        after.insert(u"song"_s, group(u"song"_s, 10, QString(), {u"/1"_s, u"/3"_s, u"/4"_s}));
        store.results.postReport({after, u"song"_s, false, 6, 30, 1});
        settle();
        QCOMPARE(store.results.groups().find(u"song"_s)->filePath,
                 (QStringList{u"/1"_s, u"/3"_s, u"/4"_s}));
        QCOMPARE(store.results.totalDupesSize(), 30);
    }

    // A folder that goes to the Trash takes its contents with it: no group may go on naming
    // a path inside it, or the last copy outside could be removed as a spare.
    void aTrashedFolderTakesItsContentsOutOfEveryGroup()
    {
        Store store;
        store.startScan();
        GroupRecord folders = group(u"Holiday"_s, 300, QString(), {u"/A"_s, u"/B"_s});
        folders.fileType = u"Folder"_s;
        store.report(folders, 2, 300);
        store.report(
            group(u"x.jpg"_s, 100, QString(), {u"/A/x.jpg"_s, u"/B/x.jpg"_s, u"/C/x.jpg"_s}), 5,
            500);
        store.report(group(u"y.jpg"_s, 200, QString(), {u"/A/y.jpg"_s, u"/B/y.jpg"_s}), 7, 700);
        store.report(group(u"z.jpg"_s, 50, QString(), {u"/AB/z.jpg"_s, u"/C/z.jpg"_s}), 9, 750);
        store.finish(9);

        store.results.removeCopy(u"Holiday"_s, u"/A"_s);
        store.results.recountAfterRemoval();
        QCOMPARE(store.results.groups().find(u"x.jpg"_s)->filePath,
                 (QStringList{u"/B/x.jpg"_s, u"/C/x.jpg"_s}));
        QCOMPARE(store.results.groups().find(u"x.jpg"_s)->totalSize, 200);
        QCOMPARE(store.results.groups().find(u"y.jpg"_s)->filePath, QStringList{u"/B/y.jpg"_s});
        QCOMPARE(store.results.groups().find(u"z.jpg"_s)->filePath.size(), 2); // not inside /A
        QCOMPARE(store.shownCount, u"6"_s);
        QCOMPARE(store.results.reclaimableBytes(), 100 + 50);

        store.results.removeCopy(u"Holiday"_s, u"/B"_s);
        QVERIFY(!store.results.groups().contains(u"y.jpg"_s));
        QCOMPARE(store.results.groups().find(u"x.jpg"_s)->filePath, QStringList{u"/C/x.jpg"_s});
        QVERIFY(!store.results.keysOfAll().contains(u"y.jpg"_s));
    }

    void vanishedCopiesLeaveTheGroupAndTheLastTakesItAway()
    {
        Store store;
        store.finishedScan();
        store.results.search(QStringLiteral("b"));
        store.results.dropVanishedCopy(u"B2.jpg"_s, u"/c"_s);
        QCOMPARE(store.results.groups().find(u"B2.jpg"_s)->filePath, QStringList{u"/d"_s});
        QCOMPARE(store.namesOnScreen(), (QStringList{u"b10.jpg"_s, u"B2.jpg"_s}));
        store.results.dropVanishedCopy(u"B2.jpg"_s, u"/d"_s);
        QVERIFY(!store.results.groups().contains(u"B2.jpg"_s));
        QCOMPARE(store.results.keysOfAll().size(), 3);
        QCOMPARE(store.namesOnScreen(), QStringList{u"b10.jpg"_s});
        QCOMPARE(store.shownCount, QStringLiteral("2"));
    }

    void aWalkReportsIntoTheStoreAndItsThreadIsJoined()
    {
        TestDir dir;
        dir.createPatternFile(u"tree/clip.mov"_s, 70000, 1);
        dir.createPatternFile(u"tree/clip copy.mov"_s, 70000, 1);
        Store store;
        QSignalSpy completed(&store.results, &DuplicateResults::scanCompleted);
        store.results.prepareScan();
        store.results.startScan(dir.filePath(u"tree"_s));
        QVERIFY(store.results.walkRunning());
        QTRY_COMPARE(completed.count(), 1);
        QVERIFY(!store.results.walkRunning());
        QCOMPARE(store.results.allData().size(), 1);
        QCOMPARE(store.shownCount, QStringLiteral("2"));
        QTRY_COMPARE(ScanThreads::count(), 0);
    }

    // The store may go while its walk is deep in a tree: it must neither wait for the walk
    // nor leave its thread behind.
    void aStoreDroppedMidScanLetsItsWalkWindDown()
    {
        TestDir dir;
        for (int folder = 0; folder < 40; ++folder)
            for (int file = 0; file < 50; ++file)
                dir.createFile(QStringLiteral("f%1/%2.txt").arg(folder).arg(file), "x");
        auto store = std::make_unique<DuplicateResults>();
        store->prepareScan();
        store->startScan(dir.path());
        QCOMPARE(ScanThreads::count(), 1);
        QElapsedTimer timer;
        timer.start();
        store.reset();
        QVERIFY(timer.elapsed() < 500);
        QTRY_COMPARE(ScanThreads::count(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_DuplicateStore)
#include "tst_duplicatestore.moc"
