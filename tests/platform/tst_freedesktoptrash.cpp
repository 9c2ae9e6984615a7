#include "FreedesktopTrash.h"
#include "RunWithin.h"
#include "ScratchMount.h"
#include "TestDir.h"
#include "TrashInfo.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTest>

#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(TrashFailure)

namespace {

QByteArray contentOf(const QByteArray &nativePath)
{
    QByteArray content;
    const int descriptor = ::open(nativePath.constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return content;
    char buffer[4096];
    for (ssize_t got; (got = ::read(descriptor, buffer, sizeof buffer)) > 0;)
        content.append(buffer, got);
    ::close(descriptor);
    return content;
}

bool writeFile(const QByteArray &nativePath, const QByteArray &content)
{
    const int descriptor =
        ::open(nativePath.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (descriptor < 0)
        return false;
    const bool written = ::write(descriptor, content.constData(),
                                 static_cast<size_t>(content.size())) == content.size();
    ::close(descriptor);
    return written;
}

bool exists(const QByteArray &nativePath)
{
    struct stat info = {};
    return ::lstat(nativePath.constData(), &info) == 0;
}

QByteArray recordPathFor(const QByteArray &pathInTrash)
{
    const qsizetype slash = pathInTrash.lastIndexOf('/');
    const QByteArray trash = pathInTrash.left(pathInTrash.lastIndexOf('/', slash - 1));
    return trash + "/info/" + pathInTrash.mid(slash + 1) + ".trashinfo";
}

std::optional<TrashInfo> recordFor(const QByteArray &pathInTrash)
{
    return TrashInfo::fromBytes(contentOf(recordPathFor(pathInTrash)));
}

qsizetype countOf(const QString &folder)
{
    return QDir(folder)
        .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System)
        .size();
}

} // namespace

// The Trash itself, on native paths: names that are not UTF-8, the bound on names, items
// the Trash cannot take by their nature, and many callers at once.
class tst_FreedesktopTrash : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestDir> m_data;

    QString trashFolder() const { return m_data->filePath(u"share/Trash"_s); }

    static std::optional<FreedesktopTrash::Result> trash(const QByteArray &path)
    {
        return runWithin<FreedesktopTrash::Result>(std::chrono::seconds(10), [path]() {
            return FreedesktopTrash().moveNativeToTrash(path);
        });
    }

private Q_SLOTS:
    void init()
    {
        m_data = std::make_unique<TestDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_data->filePath(u"share"_s)));
    }
    void cleanup()
    {
        // QTemporaryDir cannot remove names that are not UTF-8.
        ::nftw(
            QFile::encodeName(m_data->path()).constData(),
            [](const char *path, const struct stat *, int, struct FTW *) { return ::remove(path); },
            16, FTW_DEPTH | FTW_PHYS);
        m_data.reset();
    }

    void theHomeTrashFollowsXdgDataHome()
    {
        QCOMPARE(FreedesktopTrash().homeTrashPath(), QFile::encodeName(trashFolder()));
    }

    // Linux names are bytes: the Trash keeps them as they are, in its file and its record.
    void namesThatAreNotUtf8_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("not UTF-8 at all") << QByteArray("\xff\xfe.bin");
        QTest::newRow("Latin-1") << QByteArray("caf\xe9.txt");
        QTest::newRow("lone continuation byte") << QByteArray("\x80start");
        QTest::newRow("mixed with UTF-8 and escapes") << QByteArray("\xc3\xa9 %41 \xe9\n.txt");
    }
    void namesThatAreNotUtf8()
    {
        QFETCH(QByteArray, name);
        const QByteArray path = QFile::encodeName(m_data->createDir(u"items"_s)) + '/' + name;
        QVERIFY(writeFile(path, name));
        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer");
        QVERIFY2(result->trashed, qPrintable(result->error));
        QCOMPARE(result->pathInTrash, QFile::encodeName(trashFolder()) + "/files/" + name);
        QCOMPARE(contentOf(result->pathInTrash), name);
        QVERIFY(!exists(path));
        const std::optional<TrashInfo> record = recordFor(result->pathInTrash);
        QVERIFY(record);
        QCOMPARE(record->path, path);
    }

    // A name too long for "NAME.trashinfo" is shortened for the Trash's files, between two
    // characters and with its extension; the record keeps the whole path.
    void namesTooLongForTheRecord_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("nameInTrash");
        const QByteArray e = "\xc3\xa9";
        QTest::newRow("cut between characters") << "a" + e.repeated(120) + ".txt"
                                                << "a" + e.repeated(117) + ".txt";
        QTest::newRow("long extension dropped") << QByteArray(230, 'n') + "." + QByteArray(20, 'x')
                                                << QByteArray(230, 'n') + "." + QByteArray(9, 'x');
        QTest::newRow("just short enough") << QByteArray(240, 'n') << QByteArray(240, 'n');
    }
    void namesTooLongForTheRecord()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, nameInTrash);
        TestDir dir;
        const QByteArray path = QFile::encodeName(dir.path()) + '/' + name;
        QVERIFY(writeFile(path, "long"));
        const auto result = trash(path);
        QVERIFY2(result && result->trashed, result ? qPrintable(result->error) : "hung");
        QCOMPARE(result->pathInTrash, QFile::encodeName(trashFolder()) + "/files/" + nameInTrash);
        QCOMPARE(contentOf(result->pathInTrash), QByteArray("long"));
        QCOMPARE(recordFor(result->pathInTrash)->path, path);
    }

    // Each item gets one of a bounded number of names; when all are taken the Trash says so
    // at once, and the item stays.
    void aBoundOnNames_data()
    {
        QTest::addColumn<int>("taken");
        QTest::newRow("all but the last taken") << FreedesktopTrash::maxNamesPerItem - 1;
        QTest::newRow("all taken") << FreedesktopTrash::maxNamesPerItem;
    }
    void aBoundOnNames()
    {
        QFETCH(int, taken);
        QVERIFY(QDir().mkpath(trashFolder() + u"/files"_s));
        QVERIFY(QDir().mkpath(trashFolder() + u"/info"_s));
        const QByteArray info = QFile::encodeName(trashFolder()) + "/info/";
        QVERIFY(writeFile(info + "same.txt.trashinfo", "taken"));
        for (int i = 2; i <= taken; ++i)
            QVERIFY(writeFile(info + "same.txt." + QByteArray::number(i) + ".trashinfo", "taken"));
        TestDir dir;
        const QByteArray path = QFile::encodeName(dir.createFile(u"same.txt"_s, "mine"));

        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer");
        if (taken < FreedesktopTrash::maxNamesPerItem) {
            QVERIFY2(result->trashed, qPrintable(result->error));
            QVERIFY(result->pathInTrash.endsWith(
                "/files/same.txt." + QByteArray::number(FreedesktopTrash::maxNamesPerItem)));
            return;
        }
        QVERIFY(!result->trashed);
        QCOMPARE(result->failure, TrashFailure::TooManyNames);
        QCOMPARE(result->error, u"The Trash already holds too many items named “same.txt”."_s);
        QCOMPARE(contentOf(path), QByteArray("mine"));
        QCOMPARE(countOf(trashFolder() + u"/info"_s), taken);
        QCOMPARE(countOf(trashFolder() + u"/files"_s), 0);
    }

    // Items the Trash cannot take by what they are; nothing moves and no record stays.
    void itemsTheTrashCannotTake_data()
    {
        QTest::addColumn<QString>("item"); // relative to the data folder
        QTest::addColumn<TrashFailure>("failure");
        QTest::addColumn<QString>("error");
        QTest::newRow("already in the Trash")
            << u"share/Trash/files/old.txt"_s << TrashFailure::AlreadyInTrash
            << u"“old.txt” is already in the Trash."_s;
        QTest::newRow("the Trash's records")
            << u"share/Trash/info"_s << TrashFailure::AlreadyInTrash
            << u"“info” is already in the Trash."_s;
        QTest::newRow("the Trash itself")
            << u"share/Trash"_s << TrashFailure::HoldsTheTrash
            << u"“Trash” holds the Trash, which cannot be moved into itself."_s;
        QTest::newRow("a folder holding the Trash")
            << u"share"_s << TrashFailure::HoldsTheTrash
            << u"“share” holds the Trash, which cannot be moved into itself."_s;
        QTest::newRow("the top of the file system")
            << u"/"_s << TrashFailure::NotMovable
            << u"“/” is the top folder of a drive and cannot be moved to the Trash."_s;
    }
    void itemsTheTrashCannotTake()
    {
        QFETCH(QString, item);
        QFETCH(TrashFailure, failure);
        QFETCH(QString, error);
        const QString old = m_data->createFile(u"share/Trash/files/old.txt"_s, "old");
        m_data->createFile(u"share/Trash/info/old.txt.trashinfo"_s,
                           "[Trash Info]\nPath=/old.txt\n");
        const QString path = item.startsWith(u'/') ? item : m_data->filePath(item);

        const auto result = trash(QFile::encodeName(path));
        QVERIFY2(result, "the Trash did not answer");
        QVERIFY(!result->trashed);
        QCOMPARE(result->failure, failure);
        QCOMPARE(result->error, error);
        QVERIFY(QFileInfo::exists(path));
        QCOMPARE(contentOf(QFile::encodeName(old)), QByteArray("old"));
        QCOMPARE(countOf(trashFolder() + u"/files"_s), 1);
        QCOMPARE(countOf(trashFolder() + u"/info"_s), 1);
    }

    void aMountPointStays()
    {
        TestDir dir;
        ScratchMount drive(dir.createDir(u"drive"_s));
        if (!drive.mountTmpfs("size=64k,mode=0700"))
            QSKIP(qPrintable(drive.error()));
        const auto result = trash(QFile::encodeName(drive.path()));
        QVERIFY(result && !result->trashed);
        QCOMPARE(result->failure, TrashFailure::NotMovable);
        QCOMPARE(result->error,
                 u"“drive” is the top folder of a drive and cannot be moved to the Trash."_s);
        QVERIFY(QFileInfo(drive.path()).isDir());
    }

    // Paths as a user may type them; the record holds the absolute path without links.
    void pathsAsTyped_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::newRow("relative") << QByteArray("sub/folder");
        QTest::newRow("trailing slashes") << QByteArray("sub/folder//");
        QTest::newRow("dot at the end") << QByteArray("sub/folder/.");
        QTest::newRow("through a link") << QByteArray("link/folder");
    }
    void pathsAsTyped()
    {
        QFETCH(QByteArray, typed);
        TestDir dir;
        const QString folder = dir.createDir(u"sub/folder"_s);
        dir.createFile(u"sub/folder/inside.txt"_s, "inside");
        QVERIFY(QFile::link(u"sub"_s, dir.filePath(u"link"_s)));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(dir.path()));
        const FreedesktopTrash::Result result = FreedesktopTrash().moveNativeToTrash(typed);
        QVERIFY(QDir::setCurrent(before));
        QVERIFY2(result.trashed, qPrintable(result.error));
        QVERIFY(!QFileInfo::exists(folder));
        QVERIFY(result.pathInTrash.endsWith("/files/folder"));
        QCOMPARE(contentOf(result.pathInTrash + "/inside.txt"), QByteArray("inside"));
        QCOMPARE(recordFor(result.pathInTrash)->path, QFile::encodeName(folder));
        QVERIFY(QFileInfo(dir.filePath(u"link"_s)).isSymLink());
    }

    // Callers on several threads trash items of one name at once: each gets a name of its
    // own and a record that names it, none waits on another, and nothing is lost.
    void manyThreadsAtOnce()
    {
        constexpr int threads = 4;
        constexpr int itemsEach = 8;
        TestDir dir;
        std::vector<QByteArray> paths;
        for (int i = 0; i < threads * itemsEach; ++i)
            paths.push_back(QFile::encodeName(
                dir.createFile(QString::number(i) + u"/same.txt"_s, QByteArray::number(i))));
        std::vector<FreedesktopTrash::Result> results(paths.size());
        std::vector<std::thread> workers;
        const FreedesktopTrash shared;
        for (int t = 0; t < threads; ++t)
            workers.emplace_back([&, t]() {
                for (int i = t; i < threads * itemsEach; i += threads)
                    results[static_cast<size_t>(i)] =
                        shared.moveNativeToTrash(paths[static_cast<size_t>(i)]);
            });
        for (std::thread &worker : workers)
            worker.join();

        QSet<QByteArray> names;
        for (size_t i = 0; i < paths.size(); ++i) {
            const FreedesktopTrash::Result &result = results[i];
            QVERIFY2(result.trashed, qPrintable(result.error));
            names.insert(result.pathInTrash);
            QCOMPARE(contentOf(result.pathInTrash), QByteArray::number(static_cast<int>(i)));
            QCOMPARE(recordFor(result.pathInTrash)->path, paths[i]);
        }
        QCOMPARE(names.size(), static_cast<qsizetype>(paths.size()));
        QCOMPARE(countOf(trashFolder() + u"/info"_s), static_cast<qsizetype>(paths.size()));
    }

    // A home Trash that cannot be made: the sentence names the folder that is in the way.
    void aHomeTrashThatCannotBeMade()
    {
        const QString blocker = m_data->createFile(u"blocker"_s, "a file, not a folder");
        qputenv("XDG_DATA_HOME", QFile::encodeName(blocker + u"/share"_s));
        TestDir dir;
        const QString path = dir.createFile(u"item.txt"_s, "keep me");
        const auto result = trash(QFile::encodeName(path));
        QVERIFY(result && !result->trashed);
        QCOMPARE(result->error, u"The Trash cannot take “item.txt”: “%1” is not a folder."_s.arg(
                                    blocker + u"/share"_s));
        QCOMPARE(contentOf(QFile::encodeName(path)), QByteArray("keep me"));
    }

    // Every sentence names the item and ends as a sentence; the folder at fault, where one
    // is named, is filled in and never mistaken for the item.
    void sentencesNameTheItem_data()
    {
        QTest::addColumn<TrashFailure>("failure");
        for (const TrashFailure failure :
             {TrashFailure::Missing, TrashFailure::NotMovable, TrashFailure::AlreadyInTrash,
              TrashFailure::HoldsTheTrash, TrashFailure::NoTrashOnDrive,
              TrashFailure::TrashFolderNotAFolder, TrashFailure::TrashFolderNotWritable,
              TrashFailure::DiskFull, TrashFailure::ReadOnly, TrashFailure::PermissionDenied,
              TrashFailure::TooManyNames, TrashFailure::Unexpected})
            QTest::addRow("%d", static_cast<int>(failure)) << failure;
    }
    void sentencesNameTheItem()
    {
        QFETCH(TrashFailure, failure);
        const QString text = FreedesktopTrash::sentence(failure, u"50%2 off.txt"_s, u"/t/info"_s);
        QVERIFY2(text.contains(u"“50%2 off.txt”"), qPrintable(text));
        QVERIFY2(text.endsWith(u'.'), qPrintable(text));
        QVERIFY2(text.at(0).isUpper() || text.startsWith(u'“'), qPrintable(text));
        const bool namesTheFolder = failure == TrashFailure::TrashFolderNotAFolder ||
                                    failure == TrashFailure::TrashFolderNotWritable;
        QCOMPARE(text.count(u"/t/info"), namesTheFolder ? 1 : 0);
    }
};

QTEST_GUILESS_MAIN(tst_FreedesktopTrash)
#include "tst_freedesktoptrash.moc"
