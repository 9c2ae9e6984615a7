#include "BRObjectClass.h"
#include "BRRealHomeDirectory.h"
#include "TestDir.h"

#include <QDir>
#include <QSettings>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

class tst_Bookmarks : public QObject
{
    Q_OBJECT

private:
    // Each test keeps the bookmark in a settings file of its own, never the user's.
    struct Fixture
    {
        TestDir dir;
        QSettings settings{dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
        BRObjectClass objects{&settings};

        QUrl folder(const QString &name) { return QUrl::fromLocalFile(dir.createDir(name)); }
        QByteArray stored()
        {
            return settings.value(BRObjectClass::bookmarkedDataKey()).toByteArray();
        }
    };

private Q_SLOTS:
    void resolvesTheSameFolder()
    {
        Fixture f;
        const QUrl home = f.folder(QStringLiteral("home"));
        f.objects.saveBookmark(home);
        QCOMPARE(f.objects.resolveBookmarkForPath(home.toLocalFile()), home);
        // A later start of the program has only the stored data.
        QCOMPARE(BRObjectClass(&f.settings).resolveBookmarkData(f.stored()), home);
        QCOMPARE(BRObjectClass(&f.settings).resolveBookmarkForPath(home.toLocalFile()),
                 std::nullopt);
    }

    void findsAMovedFolderAndKeepsTheStoredData_data()
    {
        QTest::addColumn<QString>("movedTo");
        QTest::newRow("renamed in place") << QStringLiteral("Documents-old");
        QTest::newRow("moved into a sibling") << QStringLiteral("Archive/2026/Documents");
    }
    void findsAMovedFolderAndKeepsTheStoredData()
    {
        QFETCH(QString, movedTo);
        Fixture f;
        const QUrl documents = f.folder(QStringLiteral("Documents"));
        f.dir.createDir(QStringLiteral("Archive/2026"));
        f.objects.saveBookmark(documents);
        const QByteArray saved = f.stored();
        QVERIFY(QDir().rename(documents.toLocalFile(), f.dir.filePath(movedTo)));

        const auto resolved = BRObjectClass(&f.settings).resolveBookmarkData(saved);
        QCOMPARE(resolved, QUrl::fromLocalFile(f.dir.filePath(movedTo)));
        QCOMPARE(f.stored(), saved);
    }

    void nothingForAGoneFolderOrForeignData_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("not a bookmark") << QByteArray("bookmark of another program");
    }
    void nothingForAGoneFolderOrForeignData()
    {
        QFETCH(QByteArray, data);
        Fixture f;
        QCOMPARE(f.objects.resolveBookmarkData(data), std::nullopt);

        const QUrl gone = f.folder(QStringLiteral("gone"));
        f.objects.saveBookmark(gone);
        const QByteArray saved = f.stored();
        QVERIFY(QDir(gone.toLocalFile()).removeRecursively());
        QCOMPARE(f.objects.resolveBookmarkData(saved), std::nullopt);
        QCOMPARE(f.objects.resolveBookmarkData(saved.left(saved.size() - 1)), std::nullopt);
    }

    void aNewChoiceReplacesTheStoredOne()
    {
        Fixture f;
        f.objects.saveBookmark(f.folder(QStringLiteral("first")));
        const QByteArray first = f.stored();
        f.objects.saveBookmark(QUrl());
        f.objects.saveBookmark(QUrl::fromLocalFile(f.dir.filePath(QStringLiteral("missing"))));
        QCOMPARE(f.stored(), first);

        const QUrl second = f.folder(QStringLiteral("second"));
        f.objects.saveBookmark(second);
        QVERIFY(f.stored() != first);
        QCOMPARE(f.objects.resolveBookmarkData(f.stored()), second);
    }

    void realHomeDirectoryComesFromThePasswordDatabase()
    {
        qputenv("HOME", "/nonexistent/elsewhere");
        const passwd *entry = ::getpwuid(::getuid());
        QVERIFY(entry);
        QCOMPARE(BRRealHomeDirectory::RealHomeDirectory(), QString::fromUtf8(entry->pw_dir));
    }
};

QTEST_GUILESS_MAIN(tst_Bookmarks)
#include "tst_bookmarks.moc"
