#include "BRObjectClass.h"
#include "BRRealHomeDirectory.h"
#include "ItemBookmark.h"
#include "TestDir.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

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

    // A file bookmarked in Pictures and moved; "" where it is too far to be looked for.
    void findsAMovedFile_data()
    {
        QTest::addColumn<QString>("movedTo");
        QTest::addColumn<QString>("expected");
        QTest::newRow("renamed in place") << u"Pictures/b.jpg"_s << u"Pictures/b.jpg"_s;
        QTest::newRow("hidden in place") << u"Pictures/.a.jpg"_s << u"Pictures/.a.jpg"_s;
        QTest::newRow("into a folder beside it")
            << u"Pictures/Trip/a.jpg"_s << u"Pictures/Trip/a.jpg"_s;
        QTest::newRow("into a folder below that")
            << u"Pictures/Trip/Day 1/x.jpg"_s << u"Pictures/Trip/Day 1/x.jpg"_s;
        QTest::newRow("into a folder beside its folder")
            << u"Archive/a.jpg"_s << u"Archive/a.jpg"_s;
        QTest::newRow("below a folder beside its folder")
            << u"Archive/2026/11/a.jpg"_s << u"Archive/2026/11/a.jpg"_s;
        QTest::newRow("deeper than the search reaches") << u"Pictures/1/2/3/4/a.jpg"_s << QString();
    }
    void findsAMovedFile()
    {
        QFETCH(QString, movedTo);
        QFETCH(QString, expected);
        TestDir dir;
        // Neighbours of every kind that the search passes over.
        dir.createFile(u"Pictures/b-other.jpg"_s, "b");
        dir.createFile(u"Archive/2026/notes.txt"_s, "n");
        dir.createDir(u"Pictures/Trip/Day 1"_s);
        dir.createDir(u"Archive/2026/11"_s);
        const QString original = dir.createFile(u"Pictures/a.jpg"_s, "photo");
        const auto bookmark = ItemBookmark::forPath(original);
        QVERIFY(bookmark);
        QCOMPARE(bookmark->resolve()->path, original);
        QCOMPARE(bookmark->resolve()->stale, false);

        QDir().mkpath(QFileInfo(dir.filePath(movedTo)).absolutePath());
        QVERIFY(QDir().rename(original, dir.filePath(movedTo)));
        const auto resolved = ItemBookmark::fromData(bookmark->toData())->resolve();
        if (expected.isEmpty()) {
            QCOMPARE(resolved.has_value(), false);
            return;
        }
        QVERIFY(resolved);
        QCOMPARE(resolved->path, dir.filePath(expected));
        QCOMPARE(resolved->stale, true);
    }

    // Resolves of one batch share what they read; a place read earlier that no longer holds
    // the item makes the search run again.
    void aSharedSearchFollowsLaterMoves()
    {
        TestDir dir;
        const QString a = dir.createFile(u"Pictures/a.jpg"_s, "a");
        const QString b = dir.createFile(u"Pictures/b.jpg"_s, "b");
        const auto bookmarkA = ItemBookmark::forPath(a);
        const auto bookmarkB = ItemBookmark::forPath(b);
        QVERIFY(QDir().rename(dir.filePath(u"Pictures"_s), dir.filePath(u"Trip"_s)));

        ItemBookmark::SearchCache cache;
        QCOMPARE(bookmarkA->resolve(&cache)->path, dir.filePath(u"Trip/a.jpg"_s));
        QVERIFY(QDir().rename(dir.filePath(u"Trip/b.jpg"_s), dir.filePath(u"Trip/c.jpg"_s)));
        QCOMPARE(bookmarkB->resolve(&cache)->path, dir.filePath(u"Trip/c.jpg"_s));
        QVERIFY(QFile::remove(dir.filePath(u"Trip/c.jpg"_s)));
        QCOMPARE(bookmarkB->resolve(&cache).has_value(), false);
    }

    // The freed inode goes to the next file made nearby; that file is someone else's.
    void nothingForADeletedFileEvenWhenItsInodeIsReused()
    {
        TestDir dir;
        dir.createFile(u"Pictures/before.jpg"_s, "b");
        const QString original = dir.createFile(u"Pictures/a.jpg"_s, "photo");
        const auto bookmark = ItemBookmark::forPath(original);
        QVERIFY(bookmark);
        struct stat before = {};
        QCOMPARE(::lstat(QFile::encodeName(original).constData(), &before), 0);
        QVERIFY(QFile::remove(original));
        QCOMPARE(bookmark->resolve().has_value(), false);

        bool reused = false;
        for (int i = 0; i < 20 && !reused; ++i) {
            const QString newcomer = dir.createFile(u"Pictures/new-%1.jpg"_s.arg(i), "new");
            struct stat after = {};
            QCOMPARE(::lstat(QFile::encodeName(newcomer).constData(), &after), 0);
            reused = after.st_ino == before.st_ino;
        }
        QCOMPARE(bookmark->resolve().has_value(), false);
        if (!reused)
            QSKIP("this file system did not hand the freed inode out again");
    }

    // Where the file system keeps no birth time, the inode alone could be a newcomer's: a
    // file must also have kept its size and modification time. Folders change both with
    // their entries, so they are taken by their inode.
    void withoutABirthTimeAFileMustKeepItsSizeAndTime_data()
    {
        QTest::addColumn<bool>("folder");
        QTest::addColumn<qint64>("sizeChange");
        QTest::addColumn<qint64>("secondsChange");
        QTest::addColumn<bool>("resolves");
        QTest::newRow("file as it was") << false << qint64(0) << qint64(0) << true;
        QTest::newRow("file of another size") << false << qint64(1) << qint64(0) << false;
        QTest::newRow("file of another time") << false << qint64(0) << qint64(-60) << false;
        QTest::newRow("folder whose entries changed")
            << true << qint64(4096) << qint64(-60) << true;
    }
    void withoutABirthTimeAFileMustKeepItsSizeAndTime()
    {
        QFETCH(bool, folder);
        QFETCH(qint64, sizeChange);
        QFETCH(qint64, secondsChange);
        QFETCH(bool, resolves);
        TestDir dir;
        const QString path =
            folder ? dir.createDir(u"Album"_s) : dir.createFile(u"Album/a.jpg"_s, "photo");
        struct stat info = {};
        QCOMPARE(::lstat(QFile::encodeName(path).constData(), &info), 0);
        // As saved on a file system that gave no birth time, for an item that then held
        // other contents under the same inode.
        QByteArray data;
        QDataStream out(&data, QIODevice::WriteOnly);
        out.setVersion(QDataStream::Qt_6_4);
        out << quint32(0x514d424b) << quint16(3) << path << quint64(info.st_dev)
            << quint64(info.st_ino) << quint32(info.st_mode & S_IFMT) << qint64(-1) << quint32(0)
            << qint64(info.st_size) + sizeChange << qint64(info.st_mtim.tv_sec) + secondsChange
            << quint32(info.st_mtim.tv_nsec);

        const auto bookmark = ItemBookmark::fromData(data);
        QVERIFY(bookmark);
        const auto resolved = bookmark->resolve();
        QCOMPARE(resolved.has_value(), resolves);
        if (resolved)
            QCOMPARE(resolved->path, path);
        // A bookmark made now round-trips with everything it holds.
        QCOMPARE(ItemBookmark::fromData(ItemBookmark::forPath(path)->toData())->resolve()->path,
                 path);
    }

    // Bookmarks stored by earlier versions held the path, device and inode only.
    void resolvesBookmarksOfTheFirstFormat()
    {
        TestDir dir;
        const QString folder = dir.createDir(u"Documents"_s);
        struct stat info = {};
        QCOMPARE(::lstat(QFile::encodeName(folder).constData(), &info), 0);
        QByteArray data;
        QDataStream out(&data, QIODevice::WriteOnly);
        out.setVersion(QDataStream::Qt_6_4);
        out << quint32(0x514d424b) << quint16(1) << folder << quint64(info.st_dev)
            << quint64(info.st_ino);

        QCOMPARE(ItemBookmark::fromData(data)->resolve()->path, folder);
        QVERIFY(QDir().rename(folder, dir.filePath(u"Documents-old"_s)));
        QCOMPARE(ItemBookmark::fromData(data)->resolve()->path, dir.filePath(u"Documents-old"_s));
        data.append('\0');
        QCOMPARE(ItemBookmark::fromData(data).has_value(), false);
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
