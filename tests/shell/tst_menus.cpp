#include "AppDelegate.h"
#include "BRAboutViewController.h"
#include "BRMainWindowController.h"
#include "BRObjectClass.h"
#include "MenuActionsClass.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "ScriptedWorkspace.h"
#include "TestDir.h"

#include <QRegularExpression>
#include <QSettings>
#include <QTest>

class tst_Menus : public QObject
{
    Q_OBJECT

private:
    TestDir m_dir;
    QSettings m_settings{m_dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat};

    static QAction *item(const QMenu &menu, const QString &text)
    {
        for (QAction *action : menu.actions()) {
            if (action->text().remove(u'&') == text)
                return action;
        }
        return nullptr;
    }

private Q_SLOTS:
    void linksOpenTheirPages()
    {
        ScriptedAlertPresenter alerts;
        ScriptedWorkspace workspace;
        AppDelegate app(alerts, m_settings);
        MenuActionsClass menu(app, workspace);
        for (const char *title : {"Contact Support", "More Apps from Brackenhale", "Terms of Use"})
            item(menu, QString::fromLatin1(title))->trigger();
        QCOMPARE(workspace.openedURLs.size(), 3);
        // Mail programs want the blanks of the subject as "%20".
        QCOMPARE(workspace.openedURLs[0].toString(QUrl::FullyEncoded),
                 QStringLiteral("mailto:support@brackenhale.app?subject=I%20have%20a%20query%20"
                                "about%20Quillmere"));
        QCOMPARE(workspace.openedURLs[1].path(), QString());
        QCOMPARE(workspace.openedURLs[2].host(), workspace.openedURLs[1].host());
        QCOMPARE(workspace.openedURLs[2].path(), QStringLiteral("/terms"));
    }

    void feedbackOnlyWhenNothingWouldBeLost_data()
    {
        QTest::addColumn<bool>("scanRuns");
        QTest::addColumn<int>("groupsHeld");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("idle") << false << 0 << true;
        QTest::newRow("scan runs") << true << 0 << false;
        QTest::newRow("results held") << false << 4 << false;
    }
    void feedbackOnlyWhenNothingWouldBeLost()
    {
        QFETCH(bool, scanRuns);
        QFETCH(int, groupsHeld);
        QFETCH(bool, enabled);
        ScriptedAlertPresenter alerts;
        ScriptedWorkspace workspace;
        AppDelegate app(alerts, m_settings);
        app.duplicateScanStatus = scanRuns;
        app.duplicateFilesCount = groupsHeld;
        MenuActionsClass menu(app, workspace);
        QCOMPARE(menu.validateMenuItem(menu.feedbackAction()), enabled);
        QVERIFY(menu.validateMenuItem(item(menu, QStringLiteral("About Quillmere"))));
    }

    void versionText()
    {
        QVERIFY(QRegularExpression(QStringLiteral("^Version \\d+\\.\\d+ \\(\\d+\\)$"))
                    .match(BRAboutViewController::versionText())
                    .hasMatch());
    }

    void closingTheWindowAsksAsQuittingDoes_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::newRow("Quit") << AlertPresenter::firstButton << true;
        QTest::newRow("Cancel") << AlertPresenter::secondButton << false;
    }
    void closingTheWindowAsksAsQuittingDoes()
    {
        QFETCH(int, answer);
        QFETCH(bool, closes);
        ScriptedAlertPresenter alerts;
        alerts.answers = {answer};
        ScriptedOpenPanel panel;
        ScriptedWorkspace workspace;
        AppDelegate app(alerts, m_settings);
        BRMainWindowController window({app, alerts, panel, workspace, m_settings,
                                       [] { return new QWidget; },
                                       [] {
                                           return new QWidget;
                                       }});
        window.show();
        app.duplicateScanStatus = true;
        QCOMPARE(window.close(), closes);
        QCOMPARE(alerts.shown.size(), 1);
        QCOMPARE(alerts.shown[0].text,
                 QStringLiteral("Duplicate files scan is in progress. Are you sure you want to "
                                "quit Quillmere?"));
    }
};

QTEST_MAIN(tst_Menus)
#include "tst_menus.moc"
