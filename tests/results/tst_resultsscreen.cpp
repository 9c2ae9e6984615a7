#include "ApplicationStatus.h"
#include "BRDuplicateFilePreviewTableViewCell.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesMainViewController.h"
#include "BRDuplicateFilesViewController.h"
#include "BRDuplicateScanStatusViewController.h"
#include "BRDuplicateTabViewController.h"
#include "BRDuplicateTableViewCell.h"
#include "BRNoSubTypeFoundCell.h"
#include "DuplicateResults.h"
#include "QuitGuard.h"
#include "ResultsFixtures.h"
#include "ScanThreads.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedDesktopNotifier.h"
#include "ScriptedOpenPanel.h"
#include "ScriptedWorkspace.h"
#include "TestDir.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QSemaphore>
#include <QTest>
#include <QToolButton>

#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// The duplicate side with scripted alerts and Trash, animations cut to nothing, and the
// results screen fed by hand or by a real scan.
struct Screen
{
    ScriptedAlertPresenter alerts;
    ScriptedOpenPanel panel;
    ScriptedWorkspace workspace;
    ApplicationStatus status;
    BRDuplicateFilesMainViewController main{{alerts, panel, workspace, &status}};
    BRDuplicateFilesViewController &view = *main.duplicateFilesViewController();
    QList<bool> tabStatus; // what the main view heard about scans
    GroupMap groups;

    Screen()
    {
        main.setTimings({0, 0, 1000});
        main.setMainViewDelegate([this](bool scanRuns) { tabStatus.append(scanRuns); });
    }
    int tab() const { return main.duplicateTabViewController()->currentIndex(); }
    QString label(const char *name) const
    {
        return view.findChild<QLabel *>(QString::fromLatin1(name))->text();
    }
    // A scan in progress, fed by hand.
    void startScan() { view.startScanProcess(QUrl()); }
    void report(const GroupRecord &record, qint64 count, bool complete = false)
    {
        groups.insert(record.oldKey, record);
        view.updateDuplicateFiles({groups, record.oldKey, complete, count, 0});
        settle();
    }
    void finish(qint64 count)
    {
        view.updateDuplicateFiles({groups, QString(), true, count, 0});
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
};

} // namespace

class tst_ResultsScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aScanStartTellsTheApplicationAndTheMainView()
    {
        Screen screen;
        QVERIFY(!screen.view.isScanRunning());
        screen.startScan();
        QVERIFY(screen.status.duplicateScanStatus);
        QCOMPARE(screen.tabStatus, QList<bool>{true});
        QCOMPARE(screen.tab(), BRDuplicateTabViewController::resultsIndex);
        QVERIFY(screen.view.isScanRunning());
    }

    void finishingReportSortsRecountsAndAnnounces()
    {
        Screen screen;
        screen.finishedScan();
        GroupMap later = screen.groups; // a finishing report's groups are not taken over
        later.insert(QStringLiteral("late"),
                     group(QStringLiteral("late"), 1, QString(), {u"/1"_s, u"/2"_s}));
        QCOMPARE(screen.view.results().groups().size(), 4);
        QVERIFY(screen.view.results().scanStatus());
        QVERIFY(!screen.status.duplicateScanStatus);
        QCOMPARE(screen.status.duplicateFilesCount, 4);
        QCOMPARE(screen.tabStatus.last(), false);
        QCOMPARE(screen.alerts.shown.size(), 1);
        QCOMPARE(screen.alerts.shown[0].title, QStringLiteral("Duplicate files scan complete."));
        QCOMPARE(screen.alerts.shown[0].text, QStringLiteral("8 duplicate files found."));
        QCOMPARE(screen.label("totalFilesCountLabel"), QStringLiteral("8"));
        QCOMPARE(screen.label("totalDupesSizeLabel"), QStringLiteral("650 bytes"));
        QCOMPARE(screen.view.results().duplicateFinder(), nullptr);
    }

    void aScanThatFindsNothingEndsOnTheStatusScreen()
    {
        TestDir empty;
        QVERIFY(QDir().mkpath(empty.filePath(u"Holiday"_s)));
        Screen screen;
        screen.view.startScanProcess(QUrl::fromLocalFile(empty.filePath(u"Holiday"_s)));
        QTRY_COMPARE(screen.tab(), BRDuplicateTabViewController::statusIndex);
        QCOMPARE(screen.main.scanStatusViewController()->directoryLabel()->text(),
                 u"in \"Holiday\""_s);
        QVERIFY(screen.alerts.shown.isEmpty());
        QCOMPARE(screen.status.duplicateFilesCount, 0);
        QVERIFY(screen.view.results().scanStatus());
    }

    void stoppingOrStartingAnewAsksFirst_data()
    {
        QTest::addColumn<bool>("stop");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("cleared");
        QTest::newRow("Stop") << true << AlertPresenter::firstButton << true;
        QTest::newRow("Cancel stopping") << true << AlertPresenter::secondButton << false;
        QTest::newRow("New scan") << false << AlertPresenter::firstButton << true;
        QTest::newRow("Cancel a new scan") << false << AlertPresenter::secondButton << false;
    }
    void stoppingOrStartingAnewAsksFirst()
    {
        QFETCH(bool, stop);
        QFETCH(int, answer);
        QFETCH(bool, cleared);
        Screen screen;
        if (stop) {
            screen.startScan();
            screen.report(group(QStringLiteral("a"), 1, QString(), {u"/a"_s, u"/b"_s}), 2);
        } else {
            screen.finishedScan();
            screen.alerts.shown.clear();
        }
        screen.alerts.answers = {answer};
        stop ? screen.view.cancelScanProcess() : screen.view.startNewScanProcess();
        settle();
        QCOMPARE(screen.alerts.shown[0].title, stop ? QStringLiteral("Stop duplicate files scan?")
                                                    : QStringLiteral("Start a new scan?"));
        QCOMPARE(screen.view.results().allData().isEmpty(), cleared);
        QCOMPARE(screen.view.results().groups().isEmpty(), cleared);
        QCOMPARE(screen.tab() == BRDuplicateTabViewController::startIndex, cleared);
        if (cleared) {
            QVERIFY(!screen.status.duplicateScanStatus);
            QCOMPARE(screen.label("totalFilesCountLabel"), QStringLiteral("0"));
            // A report still under way from the stopped scan lands nowhere.
            screen.view.clearAll();
            screen.report(group(QStringLiteral("late"), 1, QString(), {u"/a"_s, u"/b"_s}), 2);
        }
    }

    void removingACopy_data()
    {
        QTest::addColumn<QString>("trashError");
        QTest::addColumn<bool>("vanished");
        QTest::addColumn<bool>("scanRunning");
        QTest::addColumn<QString>("alert");
        QTest::addColumn<int>("copiesLeft");
        QTest::addColumn<QString>("countLabel");
        QTest::addColumn<QString>("sizeLabel");
        QTest::newRow("to the Trash")
            << u""_s << false << false << u""_s << 2 << u"2"_s << u"10 bytes"_s;
        QTest::newRow("during a scan")
            << u""_s << false << true << u""_s << 2 << u"3"_s << u"10 bytes"_s;
        QTest::newRow("refused") << u"Permission denied"_s << false << false
                                 << u"Could not remove some files|Permission denied"_s << 3
                                 << u"3"_s << u"20 bytes"_s;
        QTest::newRow("vanished") << u""_s << true << false
                                  << u"File does not exist|song.mp3 does not exist"_s << 2 << u"2"_s
                                  << u"10 bytes"_s;
    }
    void removingACopy()
    {
        QFETCH(QString, trashError);
        QFETCH(bool, vanished);
        QFETCH(bool, scanRunning);
        QFETCH(QString, alert);
        QFETCH(int, copiesLeft);
        QFETCH(QString, countLabel);
        QFETCH(QString, sizeLabel);
        TestDir dir;
        QStringList paths;
        for (const char *name : {"one.mp3", "two.mp3", "three.mp3"})
            paths.append(dir.createFile(QString::fromLatin1(name), "0123456789"));
        if (vanished)
            dir.removeFile(QStringLiteral("two.mp3"));
        Screen screen;
        screen.startScan();
        screen.groups.insert(u"song"_s,
                             group(QStringLiteral("song.mp3"), 10, u"audio/mpeg"_s, paths));
        screen.view.updateDuplicateFiles({screen.groups, u"song"_s, false, 3, 20});
        settle();
        if (!scanRunning)
            screen.finish(3);
        screen.alerts.shown.clear();
        screen.workspace.trashError = trashError;

        screen.view.updateAfterDelete(1, QStringLiteral("song"));
        QTRY_VERIFY(!screen.view.isRemovingCopies());
        settle();
        const GroupRecord *after = screen.view.results().groups().find(u"song"_s);
        QCOMPARE(after->filePath.size(), copiesLeft);
        QCOMPARE(after->totalSize, 10 * copiesLeft);
        QCOMPARE(after->fileName, QStringLiteral("song.mp3"));
        QCOMPARE(screen.workspace.trashedPaths,
                 trashError.isEmpty() && !vanished ? QStringList{paths[1]} : QStringList{});
        QCOMPARE(screen.alerts.shown.isEmpty(), alert.isEmpty());
        if (!alert.isEmpty()) {
            QCOMPARE(screen.alerts.shown[0].title, alert.section(u'|', 0, 0));
            QCOMPARE(screen.alerts.shown[0].text, alert.section(u'|', 1, 1));
        }
        QCOMPARE(screen.label("totalFilesCountLabel"), countLabel);
        QCOMPARE(screen.label("totalDupesSizeLabel"), sizeLabel);
    }

    // A copy that is not provably a copy stays where it is, with the group and the totals,
    // and the alert says why. Moving it away unchecked would lose the only copy of data.
    void copiesNotProvenStay_data()
    {
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QString>("text");
        QTest::newRow("written since the scan")
            << u"rewrite"_s << u"\u201Ctwo.bin\u201D has changed since the scan, so it was kept."_s;
        QTest::newRow("the last real copy")
            << u"remove others"_s
            << u"\u201Ctwo.bin\u201D is the last copy left in this group, so it was kept."_s;
        QTest::newRow("differs in the middle only")
            << u"middle"_s
            << u"\u201Ctwo.bin\u201D is not an exact copy of the other files in this group, so it "
               u"was kept."_s;
        QTest::newRow("a folder copy with one more hidden file")
            << u"folders"_s
            << u"\u201Ctwo.bin\u201D is not an exact copy of the other files in this group, so it "
               u"was kept."_s;
    }
    void copiesNotProvenStay()
    {
        QFETCH(QString, setup);
        QFETCH(QString, text);
        TestDir dir;
        const qint64 size = 300000;
        QByteArray bytes = TestDir::pattern(size, 5);
        QStringList paths;
        for (const char *name : {"one.bin", "two.bin", "three.bin"}) {
            if (setup == u"folders") {
                paths.append(dir.createDir(QString::fromLatin1(name)));
                dir.createFile(QString::fromLatin1(name) + u"/data"_s, bytes);
            } else {
                paths.append(dir.createFile(QString::fromLatin1(name), bytes));
            }
        }
        if (setup == u"middle") {
            bytes[size / 2] = static_cast<char>(bytes[size / 2] + 1);
            dir.createFile(u"one.bin"_s, bytes);
            dir.createFile(u"three.bin"_s, bytes);
        } else if (setup == u"folders") {
            // Hidden files are never walked, so the scan took these folders as equal.
            dir.createFile(u"two.bin/.notes"_s, "mine alone");
        }
        Screen screen;
        screen.startScan();
        screen.report(group(u"two.bin"_s, size, u"application/octet-stream"_s, paths), 3);
        screen.finish(3);
        screen.alerts.shown.clear();
        if (setup == u"rewrite") {
            dir.createFile(u"two.bin"_s, bytes);
            struct stat status = {};
            QVERIFY(::stat(QFile::encodeName(paths[1]).constData(), &status) == 0);
            timespec times[2] = {status.st_atim, status.st_mtim};
            times[1].tv_sec += 10; // a write after the scan
            QVERIFY(::utimensat(AT_FDCWD, QFile::encodeName(paths[1]).constData(), times, 0) == 0);
        } else if (setup == u"remove others") {
            QVERIFY(QFile::remove(paths[0]) && QFile::remove(paths[2]));
        }

        screen.view.updateAfterDelete(1, u"two.bin"_s);
        QTRY_VERIFY(!screen.view.isRemovingCopies());
        settle();
        QVERIFY(screen.workspace.trashedPaths.isEmpty());
        QVERIFY(QFileInfo::exists(paths[1]));
        QCOMPARE(screen.view.results().groups().find(u"two.bin"_s)->filePath, paths);
        QCOMPARE(screen.label("totalFilesCountLabel"), u"3"_s);
        QCOMPARE(screen.alerts.shown.size(), 1);
        QCOMPARE(screen.alerts.shown[0].title, u"Could not remove some files"_s);
        QCOMPARE(screen.alerts.shown[0].text, text);
    }

    // While a copy is compared its row says so and offers no second press; when it has
    // gone the row leaves, and closing the popover gives up a check still running.
    void theDetailShowsACopyBeingChecked()
    {
        TestDir dir;
        QStringList paths;
        for (const char *name : {"a.bin", "b.bin"})
            paths.append(dir.createPatternFile(QString::fromLatin1(name), 100000, 1));
        Screen screen;
        QSemaphore entered, gate;
        screen.workspace.beforeTrash = [&](const QString &) {
            entered.release();
            gate.acquire();
        };
        screen.startScan();
        screen.report(group(u"a.bin"_s, 100000, u"application/octet-stream"_s, paths), 2);
        screen.finish(2);
        screen.view.showPopOverView(0);
        BRDuplicateFilePreviewViewController *detail = screen.view.previewDelegate();
        QVERIFY(detail);

        QTest::mouseClick(detail->cellAt(1)->deleteButton(), Qt::LeftButton);
        QVERIFY(entered.tryAcquire(1, 5000));
        BRDuplicateFilePreviewTableViewCell *cell = detail->cellAt(1);
        QVERIFY(cell->isChecking());
        QVERIFY(cell->checkingLabel()->isVisibleTo(detail));
        QCOMPARE(cell->checkingLabel()->text(), u"Checking\u2026"_s);
        QVERIFY(!cell->deleteButton()->isVisibleTo(detail));
        screen.view.updateAfterDelete(1, u"a.bin"_s); // a second press
        gate.release();
        QTRY_VERIFY(!screen.view.isRemovingCopies());
        QCOMPARE(screen.workspace.trashedPaths, QStringList{paths[1]});
        QTRY_COMPARE(detail->numberOfRowsInTableView(), 1);
    }

    // Two names of one file are one file: the popover says so, and the totals do not
    // count it as space to win.
    void hardLinksAreMarkedAndNotCountedTwice()
    {
        TestDir dir;
        const QString a = dir.createPatternFile(u"a.bin"_s, 100000, 1);
        const QString b = dir.createPatternFile(u"b.bin"_s, 100000, 1);
        const QString c = dir.filePath(u"c.bin"_s);
        QVERIFY(::link(QFile::encodeName(a).constData(), QFile::encodeName(c).constData()) == 0);
        Screen screen;
        screen.startScan();
        screen.view.updateDuplicateFiles(
            {{}, u"a.bin"_s, false, 0, 0}); // nothing yet: the label starts from a report
        GroupRecord record = group(u"a.bin"_s, 100000, u"application/octet-stream"_s, {a, b, c});
        screen.groups.insert(record.oldKey, record);
        screen.view.updateDuplicateFiles({screen.groups, record.oldKey, false, 10, 200000});
        settle();
        // During the scan the engine's figure, less the second name.
        QCOMPARE(screen.view.results().reclaimableBytes(), 100000);
        screen.finish(3);
        QCOMPARE(screen.label("totalDupesSizeLabel"), u"97.7 KiB"_s);
        screen.view.showPopOverView(0);
        BRDuplicateFilePreviewViewController *detail = screen.view.previewDelegate();
        QVERIFY(!detail->cellAt(0)->sameFileLabel()->isVisibleTo(detail));
        QVERIFY(!detail->cellAt(1)->sameFileLabel()->isVisibleTo(detail));
        QVERIFY(detail->cellAt(2)->sameFileLabel()->isVisibleTo(detail));
        QCOMPARE(detail->cellAt(2)->sameFileLabel()->text(), u"Same file as 1."_s);
        // The first name goes (the other name keeps the file): the third row renumbers.
        detail->cellAt(0)->deleteAction();
        QTRY_VERIFY(!screen.view.isRemovingCopies());
        QTRY_COMPARE(detail->numberOfRowsInTableView(), 2);
        QVERIFY(!detail->cellAt(1)->sameFileLabel()->isVisibleTo(detail));
        QCOMPARE(screen.label("totalDupesSizeLabel"), u"97.7 KiB"_s);
    }

    void longScansEndingUnseen_data()
    {
        QTest::addColumn<bool>("windowActive");
        QTest::addColumn<bool>("copies");
        QTest::newRow("copies, window elsewhere") << false << true;
        QTest::newRow("nothing found, window elsewhere") << false << false;
        QTest::newRow("copies, window looked at") << true << true;
    }
    // A real scan through the screen, its clock moved past the long mark: the launcher's
    // progress comes and goes, and the notification, when due, comes before the alert and
    // brings the window back.
    void longScansEndingUnseen()
    {
        QFETCH(bool, windowActive);
        QFETCH(bool, copies);
        TestDir dir;
        dir.createPatternFile(u"tree/clip.mov"_s, 70000, 1);
        dir.createPatternFile(u"tree/clip copy.mov"_s, 70000, copies ? 1 : 2);
        Screen screen;
        ScriptedDesktopNotifier notifier;
        qint64 now = 0;
        screen.view.setDesktopNotifier(&notifier, [&now] { return now; });
        if (windowActive) {
            screen.main.show();
            QApplication::setActiveWindow(&screen.main);
            QVERIFY(QTest::qWaitForWindowActive(&screen.main));
        }
        screen.view.startScanProcess(QUrl::fromLocalFile(dir.filePath(u"tree"_s)));
        now = ScanAttention::longScanMs + 1;
        QTRY_VERIFY(screen.view.results().scanStatus());
        settle();
        QCOMPARE(notifier.progress.first(), std::optional<double>(0.0));
        QCOMPARE(notifier.progress.last(), std::optional<double>());
        if (windowActive) {
            QVERIFY(notifier.notices.isEmpty());
            return;
        }
        QCOMPARE(notifier.notices.size(), 1);
        QCOMPARE(notifier.notices[0].body, copies ? u"2 duplicate files found in tree."_s
                                                  : u"No duplicate files found in tree."_s);
        QVERIFY(!screen.main.isVisible());
        notifier.click();
        QVERIFY(screen.main.isVisible());
    }

    void vanishedCopiesLeaveTheGroupAndTheLastLeadsToTheStatusScreen()
    {
        TestDir dir;
        dir.createPatternFile(u"tree/clip.mov"_s, 70000, 1);
        dir.createPatternFile(u"tree/clip copy.mov"_s, 70000, 1);
        Screen screen;
        const DuplicateResults &results = screen.view.results();
        screen.view.startScanProcess(QUrl::fromLocalFile(dir.filePath(u"tree"_s)));
        QTRY_VERIFY(results.scanStatus());
        QCOMPARE(results.allData().size(), 1);
        const QString key = results.allData().constFirst();
        dir.removeFile(u"tree/clip.mov"_s);
        dir.removeFile(u"tree/clip copy.mov"_s);
        screen.view.openURLData(0, key); // revealing a vanished copy removes it
        settle();
        QCOMPARE(results.groups().find(key)->filePath.size(), 1);
        QCOMPARE(screen.alerts.shown.last().title, u"File does not exist"_s);
        QCOMPARE(screen.alerts.shown.last().text,
                 results.groups().find(key)->fileName + u" does not exist"_s);
        screen.view.updateAfterDelete(0, key);
        settle();
        QVERIFY(results.groups().isEmpty());
        QVERIFY(results.keysOfAll().isEmpty());
        QTRY_COMPARE(screen.tab(), BRDuplicateTabViewController::statusIndex);
        QCOMPARE(screen.main.scanStatusViewController()->directoryLabel()->text(),
                 u"in \"tree\""_s);
        QVERIFY(screen.workspace.selectedFiles.isEmpty());
        QVERIFY(screen.workspace.trashedPaths.isEmpty());
    }

    void revealingAnExistingCopyShowsItInTheFileManager()
    {
        TestDir dir;
        const QString a = dir.createFile(u"a.txt"_s, "x"), b = dir.createFile(u"b.txt"_s, "x");
        Screen screen;
        screen.startScan();
        screen.report(group(QStringLiteral("a.txt"), 1, QString(), {a, b}), 2);
        screen.view.openURLData(1, QStringLiteral("a.txt"));
        QCOMPARE(screen.workspace.selectedFiles, QStringList{b});
    }

    void closingTheWindowAsksWhatWouldBeLost_data()
    {
        QTest::addColumn<int>("state"); // 0 nothing held, 1 scanning, 2 results
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<QString>("message");
        const QString scanning = QStringLiteral("Duplicate files scan is in progress. Are you sure "
                                                "you want to quit Quillmere?");
        const QString results = QStringLiteral("The current list of the duplicate search results "
                                               "will be lost. Are you sure you want to quit "
                                               "Quillmere?");
        QTest::newRow("nothing held") << 0 << 0 << true << QString();
        QTest::newRow("scanning, Quit") << 1 << AlertPresenter::firstButton << true << scanning;
        QTest::newRow("scanning, Cancel") << 1 << AlertPresenter::secondButton << false << scanning;
        QTest::newRow("results, Quit") << 2 << AlertPresenter::firstButton << true << results;
        QTest::newRow("results, Cancel") << 2 << AlertPresenter::secondButton << false << results;
    }
    void closingTheWindowAsksWhatWouldBeLost()
    {
        QFETCH(int, state);
        QFETCH(int, answer);
        QFETCH(bool, closes);
        QFETCH(QString, message);
        Screen screen;
        if (state == 0)
            screen.view.clearAll();
        if (state == 1)
            screen.startScan();
        if (state == 2)
            screen.finishedScan();
        // What a quit policy can read before it decides.
        QCOMPARE(screen.view.isScanRunning(), state == 1);
        QCOMPARE(screen.view.groupCount(), state == 2 ? 4 : 0);
        screen.alerts.shown.clear();
        screen.alerts.answers = {answer};
        QCOMPARE(QuitGuard(screen.alerts, screen.status).confirmClose(screen.view), closes);
        QCOMPARE(screen.alerts.shown.isEmpty(), message.isEmpty());
        if (!message.isEmpty())
            QCOMPARE(screen.alerts.shown[0].text, message);
        if (state != 0 && closes) {
            QCOMPARE(screen.status.duplicateFilesCount, 0);
            QVERIFY(!screen.view.isScanRunning());
            QCOMPARE(screen.view.groupCount(), 0);
        }
    }

    // Closing the window mid-scan must neither wait for the walk nor leave its thread.
    void aScreenDestroyedMidScanLetsTheWalkWindDown()
    {
        TestDir dir;
        for (int folder = 0; folder < 40; ++folder)
            for (int file = 0; file < 50; ++file)
                dir.createFile(QStringLiteral("f%1/%2.txt").arg(folder).arg(file), "x");
        auto screen = std::make_unique<Screen>();
        screen->view.startScanProcess(QUrl::fromLocalFile(dir.path()));
        QVERIFY(screen->view.isScanRunning());
        QElapsedTimer timer;
        timer.start();
        screen.reset();
        QVERIFY(timer.elapsed() < 500);
        QTRY_COMPARE(ScanThreads::count(), 0);
    }

    void cellsNameTheirKind_data()
    {
        QTest::addColumn<QString>("uti");
        QTest::addColumn<QString>("bullet");
        QTest::newRow("song") << u"audio/mpeg"_s << u"circle_pink"_s;
        QTest::newRow("film") << u"video/mp4"_s << u"circle_green"_s;
        QTest::newRow("photo") << u"image/jpeg"_s << u"circle_blue"_s;
        QTest::newRow("folder") << u"Folder"_s << u"circle_turquoise"_s;
        QTest::newRow("text") << u"text/plain"_s << u"circle_yellow"_s;
        QTest::newRow("unknown") << u"application/x-zz-unknown"_s << u"circle_yellow"_s;
    }
    void cellsNameTheirKind()
    {
        QFETCH(QString, uti);
        QFETCH(QString, bullet);
        const TypeConformance types;
        const auto texts = BRDuplicateTableViewCell::textsFor(
            group(QStringLiteral("x"), 1536, uti, {u"/a"_s, u"/b"_s, u"/c"_s}), types);
        QCOMPARE(texts.bulletImage, bullet);
        QCOMPARE(texts.fileCount, QStringLiteral("3"));
        QCOMPARE(texts.fileSize, QStringLiteral("1.5 KiB"));
        QCOMPARE(texts.totalSize, QStringLiteral("4.5 KiB"));
    }

    void placeholdersAndHeaderTexts()
    {
        QCOMPARE(BRNoSubTypeFoundCell::text(SubType::Music),
                 QStringLiteral("No duplicate Music & Videos"));
        QCOMPARE(BRNoSubTypeFoundCell::text(SubType::Photo), QStringLiteral("No duplicate Photo"));
        Screen screen;
        screen.view.startScanProcess(QUrl::fromLocalFile(QStringLiteral("/nowhere/anna/Pictures")));
        QCOMPARE(screen.label("selecteFolderNameLabel"), QStringLiteral("Pictures"));
        QCOMPARE(screen.label("selectedFolderPathLabel"),
                 QStringLiteral("nowhere / anna / Pictures"));
    }
};

QTEST_MAIN(tst_ResultsScreen)
#include "tst_resultsscreen.moc"
