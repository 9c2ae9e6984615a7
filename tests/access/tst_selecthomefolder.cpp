#include "BRObjectClass.h"
#include "BRRealHomeDirectory.h"
#include "BRSelectHomeFolderViewController.h"
#include "ScriptedOpenPanel.h"
#include "TestDir.h"

#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

class tst_SelectHomeFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyFoldersFromTheHomeOnCanBeChosen_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("the home itself") << QStringLiteral("/home/al") << true;
        QTest::newRow("inside the home") << QStringLiteral("/home/al/Pictures") << true;
        QTest::newRow("a sibling extending the name") << QStringLiteral("/home/al2") << true;
        QTest::newRow("another home") << QStringLiteral("/home/bo") << false;
        QTest::newRow("the parent") << QStringLiteral("/home") << false;
        QTest::newRow("no path") << QString() << false;
    }
    void onlyFoldersFromTheHomeOnCanBeChosen()
    {
        QFETCH(QString, path);
        QFETCH(bool, enabled);
        QCOMPARE(BRSelectHomeFolderViewController::panelShouldEnablePath(
                     path, QStringLiteral("/home/al")),
                 enabled);
    }

    void aChoiceIsKeptAndLeadsOn()
    {
        TestDir dir;
        QSettings settings(dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        ScriptedOpenPanel panel;
        const QUrl first = QUrl::fromLocalFile(dir.createDir(QStringLiteral("first")));
        const QUrl second = QUrl::fromLocalFile(dir.createDir(QStringLiteral("second")));
        panel.choices = {{}, {first}, {second}};
        BRSelectHomeFolderViewController screen(panel, &settings);
        QCOMPARE(screen.objectName(), QStringLiteral("BRSelectHomeFolderViewController"));
        QCOMPARE(screen.selectHomeFolderButton()->objectName(),
                 QStringLiteral("selectHomeFolderButton"));
        QSignalSpy mainSegue(&screen, &BRSelectHomeFolderViewController::mainSegue);
        const auto stored = [&settings] {
            const QByteArray data =
                settings.value(BRObjectClass::bookmarkedDataKey()).toByteArray();
            return BRObjectClass(&settings).resolveBookmarkData(data);
        };

        screen.selectHomeFolderButton()->click(); // cancelled
        QCOMPARE(mainSegue.count(), 0);
        QCOMPARE(stored(), std::nullopt);

        screen.selectHomeFolderButton()->click();
        QCOMPARE(mainSegue.count(), 1);
        QCOMPARE(stored(), first);

        screen.selectHomeFolderButton()->click();
        QCOMPARE(stored(), second);

        const OpenPanelRequest &request = panel.shown.first();
        const QString home = BRRealHomeDirectory::RealHomeDirectory().value();
        QCOMPARE(request.directory, home);
        QCOMPARE(request.message, QStringLiteral("Choose a Home Folder"));
        QVERIFY(request.canChooseDirectories && !request.canChooseFiles);
        QVERIFY(!request.allowsMultipleSelection && !request.canCreateDirectories);
        QVERIFY(request.shouldEnable(home) && !request.shouldEnable(QStringLiteral("/")));
        // The desktop's dialog cannot grey out the rest; what is chosen there is refused.
        QCOMPARE(request.prompt, QStringLiteral("Choose"));
        QCOMPARE(request.refusal.arg(QStringLiteral("/etc")),
                 QStringLiteral("\u201C/etc\u201D is not inside your home folder, ") + home +
                     QStringLiteral(". Choose your home folder or a folder inside it."));
    }
};

QTEST_MAIN(tst_SelectHomeFolder)
#include "tst_selecthomefolder.moc"
