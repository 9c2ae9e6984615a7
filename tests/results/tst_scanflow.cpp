#include "ApplicationStatus.h"
#include "BRDuplicateCancelViewController.h"
#include "BRDuplicateFilesMainViewController.h"
#include "BRDuplicateFilesViewController.h"
#include "BRDuplicateScanStartViewController.h"
#include "BRDuplicateScanStatusViewController.h"
#include "BRDuplicateStartScanButton.h"
#include "BRDuplicateStatusViewNewScanButton.h"
#include "BRDuplicateTabViewController.h"
#include "BRRealHomeDirectory.h"
#include "RecordingFilesView.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "ScriptedWorkspace.h"
#include "TestDir.h"
#include "ViewFader.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QThreadPool>

namespace {

// The duplicate side's tabs with a recording stand-in for the results screen.
struct Flow
{
    ScriptedOpenPanel panel;
    BRDuplicateScanStartViewController *start = new BRDuplicateScanStartViewController(panel);
    RecordingFilesView *results = new RecordingFilesView;
    BRDuplicateScanStatusViewController *status = new BRDuplicateScanStatusViewController;
    BRDuplicateTabViewController tabs{start, results, status};

    Flow()
    {
        start->setFadeDuration(0);
        status->setFadeDuration(0);
    }
};

} // namespace

class tst_ScanFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshStartScreenScansTheHomeFolder()
    {
        Flow flow;
        const QString home = BRRealHomeDirectory::RealHomeDirectory().value_or(QDir::homePath());
        QCOMPARE(flow.start->selectedFolderNameLabel()->text(), QFileInfo(home).fileName());
        QCOMPARE(flow.start->startScanButton()->text(), QStringLiteral("Start Scan"));
        QTRY_VERIFY(!flow.start->dirImageView()->pixmap().isNull());

        flow.start->startScanButton()->click();
        flow.start->startScanButton()->click(); // during the fade: no second scan
        QTRY_COMPARE(flow.results->calls.size(), 1);
        QCOMPARE(flow.results->calls.first(),
                 QStringLiteral("startScanProcess(%1)").arg(QUrl::fromLocalFile(home).toString()));
        QCOMPARE(ViewFader::alpha(flow.start), 0.0);
        QCOMPARE(flow.start->duplicateFileViewDelegate(), flow.results);
    }

    void browsing_data()
    {
        QTest::addColumn<bool>("choose");
        QTest::newRow("a folder is chosen") << true;
        QTest::newRow("the panel is cancelled") << false;
    }
    void browsing()
    {
        QFETCH(bool, choose);
        TestDir dir;
        Flow flow;
        const QUrl before = QUrl::fromLocalFile(dir.createDir(QStringLiteral("Earlier")));
        const QUrl chosen = QUrl::fromLocalFile(dir.createDir(QStringLiteral("Holiday 2019")));
        flow.start->setSelectedUrl(before);
        if (choose)
            flow.panel.choices = {{chosen}};

        flow.start->browseButton()->click();

        const QUrl expected = choose ? chosen : before;
        QCOMPARE(flow.start->selectedUrl(), std::optional<QUrl>(expected));
        QCOMPARE(flow.start->selectedFolderNameLabel()->text(),
                 choose ? QStringLiteral("Holiday 2019") : QStringLiteral("Earlier"));
        const OpenPanelRequest &request = flow.panel.shown.value(0);
        QCOMPARE(request.message, QStringLiteral("Choose a folder to scan"));
        QVERIFY(request.canChooseDirectories && !request.canChooseFiles);
        QVERIFY(!request.canCreateDirectories && !request.allowsMultipleSelection);
        flow.start->startScanButton()->click();
        QTRY_COMPARE(flow.results->calls,
                     QStringList{QStringLiteral("startScanProcess(%1)").arg(expected.toString())});
    }

    void startScanStopsWithoutFolderOrResultsScreen()
    {
        Flow flow;
        flow.start->setSelectedUrl(QUrl());
        flow.start->startScanButton()->click();

        ScriptedOpenPanel panel;
        BRDuplicateScanStartViewController alone(panel);
        alone.startScanButton()->click();
        BRDuplicateScanStartViewController *wrongOrder =
            new BRDuplicateScanStartViewController(panel);
        BRDuplicateTabViewController tabs(wrongOrder, new QWidget, new QWidget);
        wrongOrder->setFadeDuration(0);
        wrongOrder->startScanButton()->click();

        QCoreApplication::processEvents(); // where a fade of no length would end
        QCOMPARE(flow.results->calls, QStringList());
        QVERIFY(flow.start->selectedFolderNameLabel()->text().isEmpty());
        QCOMPARE(ViewFader::alpha(flow.start), 1.0);
        QCOMPARE(ViewFader::alpha(&alone), 1.0);
        QCOMPARE(ViewFader::alpha(wrongOrder), 1.0);
    }

    void aPreviewAfterTheScreenIsGoneIsDropped()
    {
        ScriptedOpenPanel panel;
        auto *start = new BRDuplicateScanStartViewController(panel);
        start->createPreviewForURL(QUrl::fromLocalFile(QDir::tempPath()));
        delete start;
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }

    void newScanFromStatusScreenReturnsToStart()
    {
        Flow flow;
        ViewFader::setAlpha(flow.start, 0.0); // as a scan leaves it
        flow.tabs.selectTabViewAtIndex(BRDuplicateTabViewController::statusIndex);
        QCOMPARE(flow.status->newScanButton()->text(), QStringLiteral("New Scan"));

        flow.status->newScanButton()->click();

        QTRY_COMPARE(flow.tabs.currentIndex(), BRDuplicateTabViewController::startIndex);
        QTRY_COMPARE(ViewFader::alpha(flow.start), 1.0);
        QCOMPARE(ViewFader::alpha(flow.status), 0.0);
        QCOMPARE(flow.results->calls, QStringList());
    }

    void stopButtonOnlyAsks()
    {
        RecordingFilesView results;
        BRDuplicateCancelViewController cancel;
        cancel.cancelButton()->click(); // without a results screen: nothing
        cancel.setDuplicateFileViewDelegate(&results);
        cancel.startAnimateProgress();
        cancel.cancelButton()->click();
        QCOMPARE(results.calls, QStringList{QStringLiteral("cancelScanProcess")});
        QCOMPARE(cancel.cancelButton()->text(), QStringLiteral("Stop"));
        QVERIFY(cancel.isAnimating()); // stopping is the results screen's decision
    }

    void everyAppearanceRestartsTheBar()
    {
        BRDuplicateCancelViewController cancel;
        QVERIFY(!cancel.isAnimating());
        for (int appearance = 0; appearance < 2; ++appearance) {
            cancel.updateScanProgress(42, QStringLiteral("/home/al/Pictures"));
            cancel.show();
            QVERIFY(cancel.isAnimating());
            QVERIFY(cancel.scannedCountLabel()->text().isEmpty()); // the last scan's figures
            cancel.stopAnimateProgress();
            QVERIFY(!cancel.isAnimating());
            cancel.hide();
        }
    }

    void progressTexts_data()
    {
        QTest::addColumn<qint64>("entries");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << qint64(0) << QStringLiteral("0 items scanned");
        QTest::newRow("one") << qint64(1) << QStringLiteral("1 item scanned");
        QTest::newRow("grouped") << qint64(12345) << QStringLiteral("12,345 items scanned");
    }
    void progressTexts()
    {
        QFETCH(qint64, entries);
        QFETCH(QString, text);
        BRDuplicateCancelViewController cancel;
        cancel.resize(400, cancel.sizeHint().height());
        cancel.show();
        const QString folder =
            QStringLiteral("/home/al/") + QString(300, u'x') + QStringLiteral("/Holiday");
        cancel.updateScanProgress(entries, folder);
        QCOMPARE(cancel.scannedCountLabel()->text(), text);
        const QString shown = cancel.currentFolderLabel()->text();
        QVERIFY2(shown.startsWith(u"/home") && shown.endsWith(u"Holiday") &&
                     shown.contains(QChar(0x2026)),
                 qPrintable(shown));
        QCOMPARE(cancel.currentFolderLabel()->toolTip(), folder);
    }

    void mainScreenEmbedsAndForwards()
    {
        ScriptedAlertPresenter alerts;
        ScriptedOpenPanel panel;
        ScriptedWorkspace workspace;
        ApplicationStatus status;
        BRDuplicateFilesMainViewController main({alerts, panel, workspace, &status});
        main.setFadeDuration(0);
        BRDuplicateTabViewController *tabs = main.duplicateTabViewController();
        QCOMPARE(tabs->count(), 3);
        QCOMPARE(tabs->widget(0), main.scanStartViewController());
        QCOMPARE(tabs->widget(1), main.duplicateFilesViewController());
        QCOMPARE(tabs->widget(2), main.scanStatusViewController());
        QCOMPARE(main.scanStartViewController()->duplicateMainViewDelegate(), &main);

        main.updateMainTabViewStatus(true); // no main view yet: nothing
        QList<bool> tabStatus;
        main.setMainViewDelegate([&tabStatus](bool scanRuns) { tabStatus.append(scanRuns); });
        main.updateMainTabViewStatus(true);
        main.updateMainTabViewStatus(false);
        QCOMPARE(tabStatus, (QList<bool>{true, false}));

        main.selectDuplicateTabViewAtIndex(2);
        QCOMPARE(tabs->currentIndex(), 2);

        // Stopping a scan for Rename reaches the results screen, which goes back to the
        // start screen through this controller.
        main.selectDuplicateTabViewAtIndex(1);
        main.updateDuplicateScanStatus(false);
        QCOMPARE(tabs->currentIndex(), 1);
        main.updateDuplicateScanStatus(true);
        QTRY_COMPARE(tabs->currentIndex(), 0);

        main.selectDuplicateTabViewAtIndex(2);
        main.scanStatusViewController()->newScanButton()->click();
        QTRY_COMPARE(tabs->currentIndex(), 0);
        QCOMPARE(alerts.shown.size(), 0);
    }
};

QTEST_MAIN(tst_ScanFlow)
#include "tst_scanflow.moc"
