#include "ApplicationStatus.h"
#include "BRDuplicateFilePreviewTableViewCell.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesMainViewController.h"
#include "BRDuplicateFilesViewController.h"
#include "BRDuplicatePopOverTableView.h"
#include "BRDuplicateScanStartViewController.h"
#include "BRDuplicateStartScanButton.h"
#include "DesktopWorkspace.h"
#include "DuplicateResults.h"
#include "RowAnchoredPopover.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "TestDir.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

// The duplicate side as the application builds it, with the real scan and the real Trash,
// from choosing a folder to moving one copy of a group away.
class tst_DuplicatesEndToEnd : public QObject
{
    Q_OBJECT

    TestDir m_data;
    TestDir m_workingFolder;
    TestDir m_tree;

    // Not there yet: the Trash must be made on the way, never fall back to ./files.
    QString trash() const { return m_data.filePath(u"new/share/Trash"_s); }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_data.filePath(u"new/share"_s)));
        QVERIFY(QDir::setCurrent(m_workingFolder.path()));
    }

    void scanListAndTrashOneCopy()
    {
        // One group of three. Each folder holds a different amount, so no two folders
        // are equal; beach.jpg shares the group's size and type but not its bytes.
        constexpr qint64 big = 100000;
        m_tree.createPatternFile(u"photos/a.jpg"_s, big, 7);
        m_tree.createPatternFile(u"photos/beach.jpg"_s, big, 8);
        m_tree.createPatternFile(u"backup/a.jpg"_s, big, 7);
        m_tree.createFile(u"backup/notes.txt"_s, "notes");
        m_tree.createPatternFile(u"old/a copy.jpg"_s, big, 7);
        m_tree.createPatternFile(u"song.mp3"_s, 70000, 3);
        const QStringList copies{m_tree.filePath(u"backup/a.jpg"_s),
                                 m_tree.filePath(u"old/a copy.jpg"_s),
                                 m_tree.filePath(u"photos/a.jpg"_s)};

        ScriptedAlertPresenter alerts;
        ScriptedOpenPanel panel;
        DesktopWorkspace workspace;
        ApplicationStatus status;
        BRDuplicateFilesMainViewController main({alerts, panel, workspace, &status});
        main.setTimings({0, 0, 50});
        main.resize(780, 560); // within the test screen of 800 x 600
        main.show();
        QVERIFY(QTest::qWaitForWindowExposed(&main));

        main.scanStartViewController()->setSelectedUrl(QUrl::fromLocalFile(m_tree.path()));
        QTest::mouseClick(main.scanStartViewController()->startScanButton(), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!alerts.shown.isEmpty(), 20000);
        QCOMPARE(alerts.shown.first().title, u"Duplicate files scan complete."_s);
        QCOMPARE(alerts.shown.first().text, u"3 duplicate files found."_s);

        BRDuplicateFilesViewController *results = main.duplicateFilesViewController();
        QVERIFY(results->results().scanStatus());
        QVERIFY(!status.duplicateScanStatus);
        QCOMPARE(status.duplicateFilesCount, 1);
        QCOMPARE(results->results().allData().size(), 1);
        const QString key = results->results().allData().first();
        QCOMPARE(results->results().groups().find(key)->filePath, copies);
        const auto label = [results](const QString &name) {
            return results->findChild<QLabel *>(name)->text();
        };
        QCOMPARE(label(u"totalFilesCountLabel"_s), u"3"_s);
        QCOMPARE(label(u"totalDupesSizeLabel"_s), u"195.3 KiB"_s); // two spare copies

        auto *table = results->findChild<QListView *>(u"duplicateTableView"_s);
        QTRY_COMPARE(table->model()->rowCount(), 1);
        const QRect row = table->visualRect(table->model()->index(0, 0));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, row.center());
        QTRY_VERIFY(results->popover() && results->popover()->isVisible());
        // No room at either end of a row as wide as the list: it opens below, not over it.
        // Both in the window, where the popover stands.
        const QRect rowOnScreen(table->viewport()->mapTo(table->window(), row.topLeft()),
                                row.size());
        QVERIFY(!results->popover()->geometry().intersects(rowOnScreen));
        BRDuplicateFilePreviewViewController *detail = results->previewDelegate();
        QCOMPARE(detail->dupePreviewTableView()->numberOfRows(), 3);

        QTest::mouseClick(detail->cellAt(1)->deleteButton(), Qt::LeftButton);

        // The copy is compared with the others on a worker first; then its record in the
        // Trash names where it came from, escaped as in a URL.
        const QString gone = copies.at(1);
        QTRY_VERIFY(!QFileInfo::exists(gone));
        QVERIFY(QFileInfo::exists(trash() + u"/files/a copy.jpg"_s));
        QFile info(trash() + u"/info/a copy.jpg.trashinfo"_s);
        QVERIFY(info.open(QIODevice::ReadOnly));
        const QByteArray record = info.readAll();
        QVERIFY2(record.contains("\nPath=" + QFile::encodeName(gone) + '\n') ||
                     record.contains("\nPath=" + QUrl::toPercentEncoding(gone, "/") + '\n'),
                 record.constData());
        QVERIFY(!QFileInfo::exists(m_workingFolder.filePath(u"files"_s)));
        QVERIFY(QFileInfo::exists(copies.at(0)) && QFileInfo::exists(copies.at(2)));

        QVERIFY(results->popover()->isVisible());
        QTRY_COMPARE(detail->dupePreviewTableView()->numberOfRows(), 2);
        QCOMPARE(detail->cellAt(1)->serialLabel()->text(), u"2."_s);
        QCOMPARE(results->results().groups().find(key)->filePath,
                 (QStringList{copies.at(0), copies.at(2)}));
        QCOMPARE(table->model()->rowCount(), 1);
        QCOMPARE(label(u"totalFilesCountLabel"_s), u"2"_s);
        QCOMPARE(label(u"totalDupesSizeLabel"_s), u"97.7 KiB"_s);
        QCOMPARE(alerts.shown.size(), 1); // the Trash took it without a word
    }
};

QTEST_MAIN(tst_DuplicatesEndToEnd)
#include "tst_duplicates_endtoend.moc"
