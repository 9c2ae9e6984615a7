#include "DesktopWorkspace.h"
#include "TestDir.h"

#include <QDir>
#include <QFile>
#include <QTest>

// Moving to the Trash through a data folder of the test's own, which does not exist yet:
// that is where Qt 6.4 once reported success and left items in the working folder.
class tst_Trash : public QObject
{
    Q_OBJECT

private:
    TestDir m_data;
    TestDir m_workingFolder;

    QString dataHome() const { return m_data.filePath(QStringLiteral("new/share")); }
    QString trashFolder() const { return dataHome() + QStringLiteral("/Trash"); }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(dataHome()));
        QVERIFY(QDir::setCurrent(m_workingFolder.path()));
    }

    void movesItemsIntoTheTrash_data()
    {
        QTest::addColumn<QString>("item");
        QTest::newRow("file") << QStringLiteral("report.pdf");
        QTest::newRow("folder with contents") << QStringLiteral("Holiday");
        QTest::newRow("same name again") << QStringLiteral("report.pdf");
    }
    void movesItemsIntoTheTrash()
    {
        QFETCH(QString, item);
        TestDir dir;
        const QString path =
            item.contains(u'.')
                ? dir.createFile(item, "content")
                : QFileInfo(dir.createFile(item + QStringLiteral("/a.jpg"), "jpg")).absolutePath();
        const TrashResult result = DesktopWorkspace().moveToTrash(path);
        QVERIFY2(result.trashed, qPrintable(result.error));
        QVERIFY(!QFileInfo::exists(path));
        QVERIFY(QFileInfo::exists(result.pathInTrash));
        QCOMPARE(QFileInfo(result.pathInTrash).absolutePath(),
                 trashFolder() + QStringLiteral("/files"));
        QFile info(trashFolder() + QStringLiteral("/info/") +
                   QFileInfo(result.pathInTrash).fileName() + QStringLiteral(".trashinfo"));
        QVERIFY(info.open(QIODevice::ReadOnly));
        QVERIFY(info.readAll().contains(QFile::encodeName(path)));
        QVERIFY(!QFileInfo::exists(m_workingFolder.filePath(QStringLiteral("files"))));
    }

    void aMissingItemIsReportedAndNothingMoves()
    {
        TestDir dir;
        const qsizetype before = QDir(trashFolder() + QStringLiteral("/files")).count();
        const TrashResult result =
            DesktopWorkspace().moveToTrash(dir.filePath(QStringLiteral("gone.txt")));
        QVERIFY(!result.trashed);
        QVERIFY(result.error.contains(QStringLiteral("gone.txt")));
        QCOMPARE(QDir(trashFolder() + QStringLiteral("/files")).count(), before);
    }
};

QTEST_GUILESS_MAIN(tst_Trash)
#include "tst_trash.moc"
