#include "AppDelegate.h"
#include "ScriptedAlertPresenter.h"
#include "TestDir.h"
#include "ToolTipDelayStyle.h"

#include <QSettings>
#include <QTest>

class tst_AppDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quitting_data()
    {
        QTest::addColumn<bool>("scanRuns");
        QTest::addColumn<int>("groupsHeld");
        QTest::addColumn<int>("renameRows");
        QTest::addColumn<int>("answer"); // 0: no alert is expected
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("terminates");
        const QString scan = QStringLiteral(
            "Duplicate files scan is in progress. Are you sure you want to quit Quillmere?");
        const QString lost =
            QStringLiteral("The current list of the duplicate search results will be lost. Are "
                           "you sure you want to quit Quillmere?");
        const QString rename = QStringLiteral(
            "There are files selected for rename. Are you sure you want to quit Quillmere?");
        QTest::newRow("nothing held") << false << 0 << 0 << 0 << QString() << true;
        QTest::newRow("scan, Quit")
            << true << 0 << 0 << AlertPresenter::firstButton << scan << true;
        QTest::newRow("scan, Cancel")
            << true << 3 << 0 << AlertPresenter::secondButton << scan << false;
        QTest::newRow("results, Quit")
            << false << 5 << 0 << AlertPresenter::firstButton << lost << true;
        QTest::newRow("results, Cancel")
            << false << 5 << 0 << AlertPresenter::secondButton << lost << false;
        // Beyond the close button's rules of old: Quit asks about a filled rename list too.
        QTest::newRow("rename list, Quit")
            << false << 0 << 4 << AlertPresenter::firstButton << rename << true;
        QTest::newRow("rename list, Cancel")
            << false << 0 << 4 << AlertPresenter::secondButton << rename << false;
    }
    void quitting()
    {
        QFETCH(bool, scanRuns);
        QFETCH(int, groupsHeld);
        QFETCH(int, renameRows);
        QFETCH(int, answer);
        QFETCH(QString, message);
        QFETCH(bool, terminates);
        TestDir dir;
        QSettings settings(dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        ScriptedAlertPresenter alerts;
        alerts.answers = {answer};
        AppDelegate app(alerts, settings);
        app.duplicateScanStatus = scanRuns;
        app.duplicateFilesCount = groupsHeld;
        app.renameRows = renameRows;

        const auto reply = app.applicationShouldTerminate();
        QCOMPARE(reply == AppDelegate::TerminateReply::TerminateNow, terminates);
        QCOMPARE(alerts.shown.size(), answer ? 1 : 0);
        if (answer) {
            QCOMPARE(alerts.shown[0].title, QStringLiteral("Quit Quillmere?"));
            QCOMPARE(alerts.shown[0].text, message);
            QCOMPARE(alerts.shown[0].buttons,
                     (QStringList{QStringLiteral("Quit"), QStringLiteral("Cancel")}));
        }
        // "Quit" resets both facts first; "Cancel" leaves the scan and results as they were.
        QCOMPARE(app.duplicateScanStatus, terminates ? false : scanRuns);
        QCOMPARE(app.duplicateFilesCount, terminates ? 0 : groupsHeld);
    }

    void lastWindowClosed_data()
    {
        QTest::addColumn<bool>("scanRuns");
        QTest::addColumn<int>("groupsHeld");
        QTest::addColumn<bool>("terminates");
        QTest::newRow("nothing held") << false << 0 << true;
        QTest::newRow("scan runs") << true << 0 << false;
        QTest::newRow("results held") << false << 2 << false;
    }
    void lastWindowClosed()
    {
        QFETCH(bool, scanRuns);
        QFETCH(int, groupsHeld);
        QFETCH(bool, terminates);
        TestDir dir;
        QSettings settings(dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        ScriptedAlertPresenter alerts;
        AppDelegate app(alerts, settings);
        app.duplicateScanStatus = scanRuns;
        app.duplicateFilesCount = groupsHeld;
        QCOMPARE(app.applicationShouldTerminateAfterLastWindowClosed(), terminates);
        app.applicationDidFinishLaunching();
        const int delay = settings.value(QStringLiteral("NSInitialToolTipDelay")).toInt();
        QCOMPARE(delay, 1);
        ToolTipDelayStyle style(delay);
        QCOMPARE(style.styleHint(QStyle::SH_ToolTip_WakeUpDelay), 1);
    }
};

QTEST_MAIN(tst_AppDelegate)
#include "tst_appdelegate.moc"
