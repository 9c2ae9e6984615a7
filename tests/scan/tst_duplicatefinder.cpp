#include "BRDuplicateFinderClass.h"
#include "FileTypeDatabase.h"
#include "HardLinks.h"
#include "ScanReportSink.h"
#include "TestDir.h"

#include <QFile>
#include <QImage>
#include <QLoggingCategory>
#include <QProcess>
#include <QTest>

#include <cstring>
#include <functional>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class RecordingSink final : public ScanReportSink
{
public:
    std::function<void(const ScanReport &)> onReport;
    QList<ScanReport> reports;
    std::unique_ptr<BRDuplicateFinderClass> finder; // set by scan(), for inspection

    void receive(const ScanReport &report) override
    {
        reports.append(report);
        if (onReport)
            onReport(reports.constLast());
    }
    const ScanReport &last() const { return reports.constLast(); }
    QStringList liveKeys() const
    {
        QStringList keys;
        for (const ScanReport &report : reports) {
            if (!report.completeStatus)
                keys.append(report.key);
        }
        return keys;
    }
};

// Runs `body` in a child process that has dropped root's privileges, so that permission
// bits are obeyed; gives the child's exit status. Without root the body runs directly.
int runWithoutPrivileges(const QString &treeRoot, const std::function<int()> &body)
{
    if (::geteuid() != 0)
        return body();
    ::chmod(QFile::encodeName(treeRoot).constData(), 0755);
    const pid_t child = ::fork();
    if (child == 0) {
        if (::setgid(65534) != 0 || ::setuid(65534) != 0)
            ::_exit(100);
        ::_exit(body());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 101;
}

constexpr qint64 kBig = 100000;

} // namespace

class TestDuplicateFinder : public QObject
{
    Q_OBJECT

private:
    static std::unique_ptr<RecordingSink> scan(const QString &path)
    {
        auto sink = std::make_unique<RecordingSink>();
        sink->finder = std::make_unique<BRDuplicateFinderClass>(sink.get());
        sink->finder->findDuplicatesInFolder(path);
        return sink;
    }

    // Builds a tree from "path:size:seed" lines: equal sizes and seeds make equal files.
    static void build(TestDir &dir, const QStringList &layout)
    {
        for (const QString &line : layout) {
            const QStringList parts = line.split(u':');
            dir.createPatternFile(parts[0], parts[1].toLongLong(), parts[2].toUInt());
        }
    }

private Q_SLOTS:
    void whatMatches_data()
    {
        QTest::addColumn<QStringList>("layout");
        QTest::addColumn<int>("groups");
        QTest::addColumn<QStringList>("firstGroup"); // paths of the first group reported
        const auto strings = [](std::initializer_list<const char *> texts) {
            QStringList list;
            for (const char *text : texts)
                list.append(QString::fromLatin1(text));
            return list;
        };
        const auto rows = [&strings](const char *name, std::initializer_list<const char *> layout,
                                     int groups, std::initializer_list<const char *> first = {}) {
            QTest::newRow(name) << strings(layout) << groups << strings(first);
        };
        rows("files of 65536 bytes are too small", {"a.bin:65536:1", "b.bin:65536:1"}, 0);
        rows("files of 65537 bytes are compared", {"a.bin:65537:1", "b.bin:65537:1"}, 1);
        rows("equal bytes of different types", {"a.png:100000:7", "b.jpg:100000:7"}, 0);
        // Each newcomer is compared with the first file of its size and type only.
        rows("b equals c but not a", {"a.dat:100000:1", "b.dat:100000:2", "c.dat:100000:2"}, 0);
        rows("a equals c, b differs", {"a.dat:100000:1", "b.dat:100000:2", "c.dat:100000:1"}, 1,
             {"a.dat", "c.dat"});
        rows("folders of 65535 bytes are too small", {"A/f.dat:65535:9", "B/f.dat:65535:9"}, 0);
        rows("folders of 65536 bytes are compared", {"A/f.dat:65536:9", "B/f.dat:65536:9"}, 1,
             {"A", "B"});
        rows("folders of one equal file each", {"A/x.dat:100000:3", "B/y.dat:100000:3"}, 2);
        rows("files in the root only", {"a.dat:100000:5", "b.dat:100000:5"}, 1, {"a.dat", "b.dat"});
        // Hidden entries and every path holding ".app" are never seen.
        rows("skipped entries",
             {"keep/a.dat:100000:4", "keep/.hidden.dat:100000:4", ".hidden/b.dat:100000:4",
              "keep/x.app.bak:100000:4", "keep/y.app.bak:100000:4",
              "My.app/Contents/c.dat:100000:4", "notes.apple/d.dat:100000:4"},
             0);
    }
    void whatMatches()
    {
        QFETCH(QStringList, layout);
        QFETCH(int, groups);
        QFETCH(QStringList, firstGroup);
        TestDir dir;
        build(dir, layout);
        const auto result = scan(dir.path());
        QVERIFY(result->last().completeStatus);
        QCOMPARE(result->last().groups.size(), groups);
        if (firstGroup.isEmpty())
            return;
        QStringList expected;
        for (const QString &path : firstGroup)
            expected.append(dir.filePath(path));
        QCOMPARE(result->last().groups.find(result->liveKeys().first())->filePath, expected);
    }

    void scanWithoutGroupsEndsWithOneReport_data()
    {
        QTest::addColumn<bool>("readable");
        QTest::newRow("nothing to match") << true;
        QTest::newRow("folder that cannot be read") << false;
    }
    void scanWithoutGroupsEndsWithOneReport()
    {
        QFETCH(bool, readable);
        TestDir dir;
        dir.createFile(QStringLiteral("small.txt"), "hello");
        const QString path = readable ? dir.path() : dir.filePath(QStringLiteral("none"));
        // The user sees an empty result; the log, once turned on, says why.
        QLoggingCategory::setFilterRules(QStringLiteral("quillmere.scan.warning=true"));
        if (!readable)
            QTest::ignoreMessage(QtWarningMsg,
                                 qPrintable(QStringLiteral("cannot walk ") + path +
                                            QStringLiteral(" - the scan finds nothing")));
        const auto result = scan(path);
        QLoggingCategory::setFilterRules(QString());
        QCOMPARE(result->reports.size(), 1);
        QVERIFY(result->last().completeStatus);
        QCOMPARE(result->last().key, QString());
        QVERIFY(result->last().groups.isEmpty());
        QCOMPARE(result->last().totalDuplicates, 0);
        QCOMPARE(result->last().totalDupesSize, 0);
    }

    void threeCopiesReportTwiceWithTotals()
    {
        TestDir dir;
        dir.createPatternFile(QStringLiteral("1-first.mp3"), kBig, 5);
        dir.createPatternFile(QStringLiteral("2-second.mp3"), kBig, 5);
        dir.createPatternFile(QStringLiteral("3-third.mp3"), kBig, 5);
        const auto result = scan(dir.path());

        QCOMPARE(result->reports.size(), 3);
        const QStringList keys = result->liveKeys();
        QCOMPARE(keys.size(), 2);
        QCOMPARE(keys[0], keys[1]);
        QCOMPARE(result->reports[0].groups.find(keys[0])->filePath.size(), 2);
        // The first report's map is a snapshot: the later copy does not show in it.
        QCOMPARE(result->reports[1].groups.find(keys[0])->filePath.size(), 3);

        const GroupRecord group = *result->last().groups.find(keys[0]);
        QCOMPARE(group.fileName, QStringLiteral("2-second.mp3"));
        QCOMPARE(group.fileSize, kBig);
        QCOMPARE(group.totalSize, 3 * kBig);
        QCOMPARE(group.fileUTI, QStringLiteral("audio/mpeg"));
        QVERIFY(keys[0].startsWith(QString::number(kBig) + group.fileType));
        QCOMPARE(group.oldKey, QString::number(kBig) + group.fileType);
        QVERIFY(!group.thumbNail.isNull());
        QCOMPARE(group.thumbNail.path(), dir.filePath(QStringLiteral("2-second.mp3")));
        QCOMPARE(result->last().totalDuplicates, 3);
        QCOMPARE(result->last().totalDupesSize, 2 * kBig);
    }

    // The scan only keeps a handle; the picture is decoded when someone looks at it.
    void thumbnailIsAPictureOfTheFormingCopy()
    {
        QImage picture(300, 150, QImage::Format_RGB32);
        const QByteArray noise = TestDir::pattern(300 * 150 * 4, 111);
        std::memcpy(picture.bits(), noise.constData(), static_cast<size_t>(noise.size()));
        TestDir dir;
        QVERIFY(picture.save(dir.filePath(QStringLiteral("a.png"))));
        QVERIFY(QFile::copy(dir.filePath(QStringLiteral("a.png")),
                            dir.filePath(QStringLiteral("b.png"))));
        const auto result = scan(dir.path());
        const GroupRecord group = *result->last().groups.find(result->liveKeys().first());
        QCOMPARE(group.thumbNail.path(), dir.filePath(QStringLiteral("b.png")));
        QCOMPARE(group.thumbNail.image().size(), QSize(70, 35));
    }

    void equalFoldersFormAGroupAfterTheirFiles()
    {
        TestDir dir;
        for (const QString &folder : {QStringLiteral("A"), QStringLiteral("B")}) {
            // Different types, so that the two files do not share one bucket.
            dir.createPatternFile(folder + QStringLiteral("/one.dat"), kBig, 11);
            dir.createPatternFile(folder + QStringLiteral("/two.jpg"), kBig, 12);
        }
        const auto result = scan(dir.path());
        const GroupMap groups = result->last().groups;
        QCOMPARE(groups.size(), 3);

        const QString folderKey = result->liveKeys().last();
        const GroupRecord folder = *groups.find(folderKey);
        QCOMPARE(folder.filePath, (QStringList{dir.filePath(QStringLiteral("A")),
                                               dir.filePath(QStringLiteral("B"))}));
        QCOMPARE(folder.fileSize, 2 * kBig);
        QCOMPARE(folder.totalSize, 4 * kBig);
        QCOMPARE(folder.fileType, QStringLiteral("Folder"));
        QCOMPARE(folder.fileUTI, QStringLiteral("Folder"));
        QCOMPARE(folder.oldKey, folderKey);
        QCOMPARE(folder.fileName, QStringLiteral("B"));
        // Files in the duplicate folders count in their own groups and in the folder's.
        QCOMPARE(result->last().totalDuplicates, 6);
        QCOMPARE(result->last().totalDupesSize, 4 * kBig);
    }

    void folderOfOnlyASubfolderCountsItsEntries()
    {
        TestDir dir;
        for (const QString &top : {QStringLiteral("P"), QStringLiteral("R")}) {
            dir.createPatternFile(top + QStringLiteral("/Q/one.dat"), kBig, 21);
            dir.createPatternFile(top + QStringLiteral("/Q/two.jpg"), kBig, 22);
        }
        const auto result = scan(dir.path());
        const auto &finder = result->finder;
        const FolderRecord outer = finder->fileDict().value(dir.filePath(QStringLiteral("P")));
        QCOMPARE(outer.fileCount, 3);
        QCOMPARE(outer.firstHash, QString());
        QCOMPARE(outer.fileSize, 2 * kBig);
        // Two file groups, the Q pair and the P/R pair.
        QCOMPARE(result->last().groups.size(), 4);
        QVERIFY(finder->stackOfArray().items.isEmpty());
    }

    // /r/AB contains the text /r/A, so the walk takes it for a subfolder of /r/A and its
    // size lands in /r/A's total when both close.
    void siblingWhosePathExtendsAnother()
    {
        TestDir dir;
        dir.createPatternFile(QStringLiteral("A/f.dat"), 70000, 31);
        dir.createPatternFile(QStringLiteral("AB/g.dat"), 70000, 32);
        const auto result = scan(dir.path());
        const auto &finder = result->finder;
        QCOMPARE(finder->fileDict().value(dir.filePath(QStringLiteral("AB"))).fileSize, 70000);
        QCOMPARE(finder->fileDict().value(dir.filePath(QStringLiteral("A"))).fileSize, 140000);
    }

    // Every copy carries the stamp the walk took, which a removal later checks the copy
    // against; a second name of one file is told apart, and a bucket rewritten by the
    // results keeps its stamps.
    void copiesAreStampedAsTheWalkSawThem()
    {
        TestDir dir;
        build(dir, {u"a.dat:100000:1"_s, u"b.dat:100000:1"_s, u"A/x.dat:120000:3"_s,
                    u"B/x.dat:120000:3"_s});
        QVERIFY(::link(QFile::encodeName(dir.filePath(u"a.dat"_s)),
                       QFile::encodeName(dir.filePath(u"c.dat"_s))) == 0);
        const auto result = scan(dir.path());
        const GroupMap groups = result->last().groups;
        int files = 0, folders = 0;
        groups.forEach([&](const QString &, const GroupRecord &group) {
            for (const QString &path : group.filePath) {
                const auto stamp = stampOf(group.fileStamps, path);
                QVERIFY2(stamp, qPrintable(path));
                QCOMPARE(*stamp, *FileStamp::ofNativePath(QFile::encodeName(path)));
            }
            if (group.fileStamps.constFirst().stamp.isFolder) {
                ++folders;
                QCOMPARE(HardLinks::sameFileAs(group), (QList<int>{-1, -1}));
                return;
            }
            ++files;
            if (group.filePath.size() == 3) {
                QCOMPARE(HardLinks::sameFileAs(group), (QList<int>{-1, -1, 0}));
                QCOMPARE(HardLinks::reclaimableBytes(group), 100000);
            }
        });
        QCOMPARE(folders, 1);
        QCOMPARE(files, 2);
        // The engine's own totals count the link, as its reports always have.
        QCOMPARE(result->last().totalDupesSize, 2 * 100000 + 2 * 120000);

        BRDuplicateFinderClass &finder = *result->finder;
        const QString key = finder.dict().constBegin().key();
        const BucketRecord before = finder.dict().value(key);
        finder.updateDict(before.fileSize, before.fileType, before.fileName, before.filePath.mid(1),
                          key);
        QCOMPARE(finder.dict().value(key).stamps.size(), before.stamps.size());
    }

    void cancelBetweenEntriesClearsEverything()
    {
        TestDir dir;
        for (int i = 0; i < 4; ++i)
            dir.createPatternFile(QStringLiteral("d%1/f.dat").arg(i), kBig, 61);
        RecordingSink sink;
        BRDuplicateFinderClass finder(&sink);
        sink.onReport = [&finder](const ScanReport &) {
            finder.setCancelActive(true);
        };
        finder.findDuplicatesInFolder(dir.path());
        QCOMPARE(sink.reports.size(), 1);
        QVERIFY(!sink.last().completeStatus);
        QVERIFY(finder.dictOfDupeFiles().isEmpty());
        QVERIFY(finder.dict().isEmpty());
        QVERIFY(finder.fileDict().isEmpty());
        QCOMPARE(finder.stackOfArray().count(), 0);
    }

    void badInputIsPassedOver()
    {
        TestDir dir;
        dir.createPatternFile(QStringLiteral("a/one.dat"), kBig, 81);
        dir.createPatternFile(QStringLiteral("b/one.dat"), kBig, 81);
        QVERIFY(::mkfifo(QFile::encodeName(dir.filePath(QStringLiteral("a/pipe"))).constData(),
                         0600) == 0);
        QVERIFY(
            QFile::link(dir.filePath(QStringLiteral("b")), dir.filePath(QStringLiteral("b/loop"))));
        dir.createDir(QStringLiteral("c"));
        QVERIFY(QFile::link(dir.filePath(QStringLiteral("a/one.dat")),
                            dir.filePath(QStringLiteral("c/zlink.dat"))));
        // A name that is not UTF-8 cannot be shown or trashed under its own name.
        const QByteArray badName = QFile::encodeName(dir.path()) + "/c/bad\xff\xfe.dat";
        const QByteArray data = TestDir::pattern(kBig, 81);
        const int fd = ::open(badName.constData(), O_WRONLY | O_CREAT, 0644);
        QVERIFY(fd >= 0);
        QCOMPARE(::write(fd, data.constData(), static_cast<size_t>(data.size())),
                 static_cast<ssize_t>(data.size()));
        ::close(fd);

        const auto result = scan(dir.path());
        ::unlink(badName.constData()); // QTemporaryDir cannot name it to remove it
        QVERIFY(result->last().completeStatus);
        QCOMPARE(result->last().groups.size(), 1);
        const GroupRecord group = *result->last().groups.find(result->liveKeys().first());
        QCOMPARE(group.filePath, (QStringList{dir.filePath(QStringLiteral("a/one.dat")),
                                              dir.filePath(QStringLiteral("b/one.dat"))}));
    }

    // Opening a device can have effects of its own; the scan opens regular files only,
    // also where a special file is a folder's first or last entry.
    void opensNothingButRegularFiles()
    {
        TestDir dir;
        QStringList pipes;
        for (const QString &folder : {QStringLiteral("A"), QStringLiteral("B")}) {
            dir.createPatternFile(folder + QStringLiteral("/m.dat"), kBig, 121);
            for (const QString &name : {QStringLiteral("0pipe"), QStringLiteral("zpipe")}) {
                pipes.append(dir.filePath(folder + u'/' + name));
                QVERIFY(::mkfifo(QFile::encodeName(pipes.last()).constData(), 0600) == 0);
            }
        }
        const int watcher = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
        QVERIFY(watcher >= 0);
        for (const QString &pipe : pipes)
            QVERIFY(::inotify_add_watch(watcher, QFile::encodeName(pipe).constData(), IN_OPEN) >=
                    0);
        const auto result = scan(dir.path());
        char events[4096];
        const ssize_t read = ::read(watcher, events, sizeof events);
        ::close(watcher);
        QCOMPARE(read, ssize_t(-1)); // no event: nothing was opened
        // m.dat, and the two folders: both end on a pipe, whose empty fingerprint is in
        // both keys.
        QCOMPARE(result->last().groups.size(), 2);
    }

    void fileVanishingBeforeItsFingerprint()
    {
        TestDir dir;
        for (const char *name : {"a.dat", "b.dat", "c.dat"})
            dir.createPatternFile(QString::fromLatin1(name), kBig, 91);
        RecordingSink sink;
        sink.onReport = [&dir](const ScanReport &report) {
            if (!report.completeStatus)
                dir.removeFile(QStringLiteral("c.dat"));
        };
        BRDuplicateFinderClass finder(&sink);
        // Read ahead, c.dat could be fingerprinted before the first report removes it.
        finder.setWalkTuning(WalkTuning::oneThread());
        finder.findDuplicatesInFolder(dir.path());
        QVERIFY(sink.last().completeStatus);
        QCOMPARE(sink.last().groups.find(sink.liveKeys().first())->filePath.size(), 2);
        QCOMPARE(sink.last().totalDuplicates, 2);
    }

    // Unreadable files match nothing; a folder's sum takes an empty fingerprint for an
    // unreadable first or last file, and the key alone decides: "a" and "b" (two unreadable
    // files each, of equal sizes) form the one group.
    void unreadableFilesMatchNothingAndFoldersGoByTheirKey()
    {
        TestDir dir;
        dir.createPatternFile(QStringLiteral("a/x.dat"), kBig, 101);
        dir.createPatternFile(QStringLiteral("a/y.dat"), kBig, 101);
        dir.createPatternFile(QStringLiteral("b/x.dat"), kBig, 102);
        dir.createPatternFile(QStringLiteral("b/y.dat"), kBig, 103);
        dir.createPatternFile(QStringLiteral("c/shut.dat"), kBig, 104);
        dir.createPatternFile(QStringLiteral("d/open.dat"), kBig, 104);
        for (const char *path : {"a/x.dat", "a/y.dat", "b/x.dat", "b/y.dat"})
            QFile::setPermissions(dir.filePath(QString::fromLatin1(path)), QFileDevice::WriteOwner);
        QFile::setPermissions(dir.filePath(QStringLiteral("c")), QFileDevice::WriteOwner);
        const QString root = dir.path();
        // Exit status: the number of groups, or 200 when the scan did not finish.
        const int groups = runWithoutPrivileges(root, [root] {
            RecordingSink sink;
            BRDuplicateFinderClass finder(&sink);
            finder.findDuplicatesInFolder(root);
            return sink.reports.isEmpty() || !sink.last().completeStatus
                       ? 200
                       : static_cast<int>(sink.last().groups.size());
        });
        QFile::setPermissions(dir.filePath(QStringLiteral("c")), QFileDevice::ReadOwner |
                                                                     QFileDevice::WriteOwner |
                                                                     QFileDevice::ExeOwner);
        QCOMPARE(groups, 1);
    }

    // Two copies of a folder made by "cp -a" whose last entry is a link: the link gives no
    // fingerprint, and the empty one in both keys makes them equal.
    void foldersEndingInALinkMatch()
    {
        TestDir dir;
        for (const QString &copy : {u"one"_s, u"two"_s}) {
            dir.createPatternFile(copy + u"/photo.jpg"_s, kBig, 7);
            QVERIFY(::symlink("photo.jpg", QFile::encodeName(dir.filePath(copy + u"/zz-link"_s))) ==
                    0);
        }
        const auto result = scan(dir.path());
        QStringList folderGroups;
        result->last().groups.forEach([&](const QString &, const GroupRecord &group) {
            if (group.fileType == FileTypeDatabase::folderDescription())
                folderGroups.append(group.filePath.join(u'|'));
        });
        QCOMPARE(folderGroups, QStringList{dir.filePath(u"one"_s) + u'|' + dir.filePath(u"two"_s)});
    }

    // Paths longer than the system opens whole, and trees deeper than the descriptors a
    // process may hold: the copies at the bottom are still found.
    void deepAndLongPathsAreFound_data()
    {
        QTest::addColumn<int>("levels");
        QTest::addColumn<int>("nameLength");
        QTest::addColumn<int>("descriptorLimit"); // 0: as the process has it
        QTest::newRow("a path of about 5,000 bytes") << 40 << 120 << 0;
        QTest::newRow("1,100 levels") << 1100 << 1 << 0;
        QTest::newRow("200 levels, 64 descriptors") << 200 << 1 << 64;
        // Nearly every descriptor held by the walk when the first type is asked for.
        QTest::newRow("60 levels, 64 descriptors") << 60 << 1 << 64;
    }
    void deepAndLongPathsAreFound()
    {
        QFETCH(int, levels);
        QFETCH(int, nameLength);
        QFETCH(int, descriptorLimit);
        TestDir dir;
        // Built with openat, one level at a time, as no whole path may be given to the system.
        int fd = ::open(QFile::encodeName(dir.path()).constData(), O_RDONLY | O_DIRECTORY);
        QVERIFY(fd >= 0);
        const QByteArray name(nameLength, 'd');
        QString path = dir.path();
        for (int level = 0; level < levels; ++level) {
            QVERIFY(::mkdirat(fd, name.constData(), 0755) == 0);
            const int child = ::openat(fd, name.constData(), O_RDONLY | O_DIRECTORY);
            ::close(fd);
            fd = child;
            QVERIFY(fd >= 0);
            path += u'/' + QString::fromLatin1(name);
        }
        const QByteArray bytes = TestDir::pattern(kBig, 11);
        for (const char *file : {"a.dat", "b.dat"}) {
            const int out = ::openat(fd, file, O_WRONLY | O_CREAT | O_EXCL, 0644);
            QVERIFY(out >= 0);
            QCOMPARE(::write(out, bytes.constData(), bytes.size()), bytes.size());
            ::close(out);
        }
        ::close(fd);

        rlimit before = {};
        ::getrlimit(RLIMIT_NOFILE, &before);
        if (descriptorLimit > 0) {
            rlimit lowered = before;
            lowered.rlim_cur = static_cast<rlim_t>(descriptorLimit);
            QVERIFY(::setrlimit(RLIMIT_NOFILE, &lowered) == 0);
        }
        const auto result = scan(dir.path());
        ::setrlimit(RLIMIT_NOFILE, &before);
        const GroupMap groups = result->last().groups;
        QStringList found;
        groups.forEach([&](const QString &, const GroupRecord &group) {
            if (group.filePath.constFirst().endsWith(u"a.dat"))
                found = group.filePath;
        });
        QCOMPARE(found, (QStringList{path + u"/a.dat"_s, path + u"/b.dat"_s}));
        // Removing the tree needs the same care: rm -rf copes with any depth.
        QProcess::execute(u"rm"_s, {u"-rf"_s, dir.path()});
    }
};

QTEST_GUILESS_MAIN(TestDuplicateFinder)
#include "tst_duplicatefinder.moc"
