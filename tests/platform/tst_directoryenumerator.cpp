#include "DirectoryEnumerator.h"

#include "TestDir.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

ino_t inode(int folder, const QByteArray &name)
{
    struct stat info = {};
    return ::fstatat(folder, name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0 ? info.st_ino : 0;
}

int openDescriptors()
{
    return static_cast<int>(QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size());
}

// Listings read ahead by four threads, which finish in shuffled order.
WalkTuning listingAhead(int foldersAhead)
{
    WalkTuning tuning;
    tuning.listingWorkers = 4;
    tuning.foldersAhead = foldersAhead;
    tuning.beforeRead = [] {
        QRandomGenerator *random = QRandomGenerator::global();
        std::this_thread::sleep_for(std::chrono::microseconds(random->bounded(400)));
    };
    return tuning;
}

// The walk as "relative/path size" for files and "relative/path/" for folders, with any
// fault of an entry's path, name or folder descriptor written into its line.
QStringList walk(const QString &root, const WalkTuning &tuning = {}, int *mostOpen = nullptr)
{
    auto enumerator = DirectoryEnumerator::open(root, tuning);
    if (!enumerator)
        return {QStringLiteral("<cannot open>")};
    QStringList lines;
    const QString prefix = enumerator->rootPath() + u'/';
    while (const auto entry = enumerator->nextEntry()) {
        if (mostOpen)
            *mostOpen = std::max(*mostOpen, openDescriptors());
        const QString &path = entry->path;
        const QByteArray native = QFile::encodeName(path);
        QString line = path.startsWith(prefix) ? path.mid(prefix.size()) : QStringLiteral("<out>");
        if (path != QDir::cleanPath(path) || entry->folderPath + u'/' + entry->name() != path ||
            !native.endsWith('/' + entry->nativeName))
            line += QStringLiteral(" <unclean>");
        if (entry->folderDescriptor >= 0 &&
            inode(entry->folderDescriptor, entry->nativeName) != inode(AT_FDCWD, native))
            line += QStringLiteral(" <descriptor>");
        lines.append(line + (entry->isDirectory() ? QStringLiteral("/")
                                                  : u' ' + QString::number(entry->size)));
    }
    if (enumerator->nextEntry()) // a finished walk stays finished
        lines.append(QStringLiteral("<after the end>"));
    return lines;
}

} // namespace

class tst_DirectoryEnumerator : public QObject
{
    Q_OBJECT

    static QStringList list(const char *items) { return QString::fromUtf8(items).split(u'|'); }

private Q_SLOTS:
    void preOrderInByteOrder()
    {
        TestDir dir;
        // Byte order, where UTF-16 would put U+1F600 (a surrogate pair) before U+FF21; hidden
        // entries skipped with all they hold; a leading U+FEFF kept, which decodeName drops.
        for (const QString &file :
             list("b|B|a-b|A|AB|A_|a/y/z|a/x|\u00e9|\U0001F600|\uFF21|\uFEFFx|.x|.h/in|a/.y/w"))
            dir.createFile(file, "1");
        const QByteArray root = QFile::encodeName(dir.path());
        // A link to a folder is a file, its size the target's length, and is not descended.
        QCOMPARE(::symlink("a", root + "/c"), 0);
        // Names that are not UTF-8 are passed over; QTemporaryDir could not delete them.
        const auto cleanup = qScopeGuard([&root] { std::filesystem::remove_all(root.data()); });
        QCOMPARE(::mkdir(root + "/dir\xff\xfe", 0755), 0);
        for (const char *file : {"/bad\xff\xfe", "/a/\xc3", "/dir\xff\xfe/in"})
            QCOMPARE(::mknod(root + file, S_IFREG | 0644, 0), 0);
        // "a-b" comes after the folder "a" and all it holds, though "a-b" < "a/x" as paths.
        QCOMPARE(walk(dir.path()), list("A 1|AB 1|A_ 1|B 1|a/|a/x 1|a/y/|a/y/z 1|a-b 1|b 1|c 1|"
                                        "\u00e9 1|\uFEFFx 1|\uFF21 1|\U0001F600 1"));
    }

    // Only this reaches the fallback of opening a subfolder by its full path.
    void deepTreeWithFewDescriptors()
    {
        // Each level holds the next, "n", and "z/f", which the walk meets while climbing back.
        TestDir dir;
        for (QString prefix = QStringLiteral("n/"); prefix.size() <= 80; prefix += u"n/")
            dir.createFile(prefix + QStringLiteral("z/f"), "1");
        const QStringList expected = walk(dir.path());
        QCOMPARE(expected.size(), 3 * 40);
        rlimit saved{};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &saved), 0);
        const auto restore = qScopeGuard([saved] { ::setrlimit(RLIMIT_NOFILE, &saved); });
        const int lowestFree = ::dup(0);
        ::close(lowestFree);
        const rlimit scarce = {rlim_t(lowestFree + 4), saved.rlim_max}; // far below the depth
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &scarce), 0);
        QCOMPARE(walk(dir.path()), expected);
        // Threads listing ahead find no descriptor either; the walk does without them.
        QCOMPARE(walk(dir.path(), listingAhead(8)), expected);
    }

    // Folders listed ahead come in the walk's own order, and however many subfolders wait,
    // only a few listings (each with its descriptor) are held ahead of the walk.
    void listingAheadKeepsTheWalkAndItsBounds()
    {
        TestDir dir;
        for (int i = 0; i < 400; ++i)
            dir.createFile(QStringLiteral("wide/w%1/f").arg(i, 3, 10, QLatin1Char('0')), "1");
        for (QString prefix = QStringLiteral("d/"); prefix.size() <= 20; prefix += u"d/")
            dir.createFile(prefix + QStringLiteral("x/f"), "22");
        dir.createFile(QStringLiteral("z"), "333");
        const QStringList alone = walk(dir.path());
        QCOMPARE(alone.size(), 1 + 2 * 400 + 3 * 10 + 1);
        const int before = openDescriptors();
        for (const int ahead : {1, 6, 64}) {
            int mostOpen = 0;
            QCOMPARE(walk(dir.path(), listingAhead(ahead), &mostOpen), alone);
            // The walk's own folders (at most 12 deep), those held ahead, and the listing
            // being read by each thread.
            QVERIFY2(mostOpen <= before + 12 + ahead + 4, qPrintable(QString::number(mostOpen)));
        }
        QCOMPARE(openDescriptors(), before);
    }

    // Reading ahead holds descriptors beside the walk's; a low limit shrinks it, and one too
    // low for any turns it off rather than starving the walk.
    void tuningStaysWithinTheDescriptorLimit_data()
    {
        QTest::addColumn<int>("limit");
        QTest::newRow("plenty") << 4096;
        QTest::newRow("scarce") << 64;
        QTest::newRow("too few") << 7;
    }
    void tuningStaysWithinTheDescriptorLimit()
    {
        QFETCH(int, limit);
        rlimit saved{};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &saved), 0);
        limit = static_cast<int>(std::min<rlim_t>(rlim_t(limit), saved.rlim_max));
        const auto restore = qScopeGuard([saved] { ::setrlimit(RLIMIT_NOFILE, &saved); });
        const rlimit lowered = {rlim_t(limit), saved.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &lowered), 0);
        const WalkTuning tuning = WalkTuning::forFolder(QDir::tempPath());
        QVERIFY(tuning.foldersAhead + tuning.fingerprintsAhead <= limit / 4);
        QCOMPARE(tuning.listingWorkers > 0, tuning.foldersAhead > 0);
        QCOMPARE(tuning.fingerprintWorkers > 0, tuning.fingerprintsAhead > 0);
        QCOMPARE(tuning.listingWorkers > 0, limit >= 8);
    }

    void open_data()
    {
        // Working folder | path given ("@": the test folder) | root path expected ("": none)
        QTest::addColumn<QStringList>("paths");
        QTest::newRow("trailing slash") << list("|@/root/|root");
        QTest::newRow("relative") << list("|root|root");
        QTest::newRow("dot") << list("root|.|root");
        QTest::newRow("dot dot") << list("root/sub|..|root");
        QTest::newRow("missing") << list("|@/missing|");
        QTest::newRow("regular file") << list("|@/root/sub/y|");
        QTest::newRow("fifo") << list("|@/fifo|"); // must not wait for a writer
    }
    void open()
    {
        QFETCH(QStringList, paths);
        TestDir dir;
        dir.createFile(QStringLiteral("root/sub/y"), "22");
        QCOMPARE(::mkfifo(QFile::encodeName(dir.filePath(QStringLiteral("fifo"))), 0644), 0);
        const auto restore =
            qScopeGuard([saved = QDir::currentPath()] { QDir::setCurrent(saved); });
        QVERIFY(QDir::setCurrent(dir.filePath(paths[0])));
        const QString given = paths[1].replace(u'@', dir.path());
        const auto enumerator = DirectoryEnumerator::open(given);
        if (enumerator)
            QCOMPARE(enumerator->rootPath(), dir.filePath(paths[2]));
        QCOMPARE(walk(given), paths[2].isEmpty() ? list("<cannot open>") : list("sub/|sub/y 2"));
    }
};

QTEST_GUILESS_MAIN(tst_DirectoryEnumerator)
#include "tst_directoryenumerator.moc"
