#include "AppDelegate.h"
#include "BRIntroViewController.h"
#include "BRMainViewController.h"
#include "BRMainWindowController.h"
#include "BRSelectHomeFolderViewController.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "ScriptedWorkspace.h"
#include "TestDir.h"

#include <QDir>
#include <QPushButton>
#include <QSettings>
#include <QTest>

// Launches of the program, one after another, sharing one private settings file.
class tst_Startup : public QObject
{
    Q_OBJECT

private:
    struct Launch
    {
        ScriptedAlertPresenter alerts;
        ScriptedOpenPanel panel;
        ScriptedWorkspace workspace;
        AppDelegate appDelegate;
        BRMainWindowController window;

        explicit Launch(QSettings &settings)
            : appDelegate(alerts, settings),
              window({appDelegate, alerts, panel, workspace, settings, [] { return new QWidget; },
                      [] {
                          return new QWidget;
                      }})
        {
            window.windowDidLoad();
        }
        QString screen() const { return window.centralWidget()->objectName(); }
    };

private Q_SLOTS:
    void firstLaunchThenLaterLaunches()
    {
        TestDir dir;
        QSettings settings(dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        const QUrl home = QUrl::fromLocalFile(dir.createDir(QStringLiteral("home")));
        {
            Launch first(settings);
            QCOMPARE(first.screen(), QStringLiteral("BRIntroViewController"));
            // Marked before the intro is even answered.
            QVERIFY(settings.contains(QStringLiteral("hasAppBeenLaunchedBefore")));
            first.window.findChild<QPushButton *>(QStringLiteral("gotItButton"))->click();
            QCOMPARE(first.screen(), QStringLiteral("BRSelectHomeFolderViewController"));
            first.panel.choices = {{home}};
            first.window.findChild<QPushButton *>(QStringLiteral("selectHomeFolderButton"))
                ->click();
            QCOMPARE(first.screen(), QStringLiteral("BRMainViewController"));
        }
        {
            Launch second(settings);
            QCOMPARE(second.screen(), QStringLiteral("BRMainViewController"));
            QVERIFY(second.panel.shown.isEmpty());
        }
        QVERIFY(QDir(home.toLocalFile()).removeRecursively());
        {
            Launch third(settings);
            QCOMPARE(third.screen(), QStringLiteral("BRSelectHomeFolderViewController"));
        }
    }

    void quittingBeforeChoosingAsksForTheFolderNextTime()
    {
        TestDir dir;
        QSettings settings(dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        {
            Launch first(settings);
            QCOMPARE(first.screen(), QStringLiteral("BRIntroViewController"));
        }
        Launch second(settings);
        QCOMPARE(second.screen(), QStringLiteral("BRSelectHomeFolderViewController"));
    }
};

QTEST_MAIN(tst_Startup)
#include "tst_startup.moc"
