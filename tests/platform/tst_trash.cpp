#include "DesktopWorkspace.h"
#include "ImmutableFlag.h"
#include "RunWithin.h"
#include "ScratchMount.h"
#include "TestDir.h"
#include "TrashInfo.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden |
                                  QDir::System);
}

// Permission bits and owner, or nothing when the path does not exist.
std::optional<struct stat> statOf(const QString &path)
{
    struct stat info = {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return std::nullopt;
    return info;
}

// The record that goes with an item in the Trash's "files" folder.
QString recordPathFor(const QString &pathInTrash)
{
    const QFileInfo item(pathInTrash);
    return QDir::cleanPath(item.absolutePath() + u"/../info/"_s + item.fileName() +
                           u".trashinfo"_s);
}

std::optional<TrashInfo> recordFor(const QString &pathInTrash)
{
    return TrashInfo::fromBytes(contentOf(recordPathFor(pathInTrash)));
}

bool isRoot()
{
    return ::geteuid() == 0;
}

} // namespace

// Moving to the Trash through the desktop's workspace, with a data folder of each test's own
// that does not exist yet. Every item is a real file in a temporary folder; where a fault
// needs a small or read-only file system, the test mounts one (as root) or skips.
class tst_Trash : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestDir> m_data;
    TestDir m_workingFolder;

    QString dataHome() const { return m_data->filePath(u"new/share"_s); }
    QString trashFolder() const { return dataHome() + u"/Trash"_s; }

    // The call on a worker thread, as the program makes it, with a limit: a Trash that
    // retries without end fails the test instead of stopping the run.
    static std::optional<TrashResult> trash(const QString &path)
    {
        return runWithin<TrashResult>(std::chrono::seconds(10),
                                      [path]() { return DesktopWorkspace().moveToTrash(path); });
    }

    // The item is where it was, with what it held, and the Trash took nothing.
    void verifyNothingMoved(const QString &path, const QByteArray &content,
                            const QString &trash) const
    {
        QVERIFY2(QFileInfo::exists(path), qPrintable(path));
        QCOMPARE(contentOf(path), content);
        if (QFileInfo(trash + u"/files"_s).isDir())
            QCOMPARE(entriesOf(trash + u"/files"_s), QStringList());
        if (QFileInfo(trash + u"/info"_s).isDir())
            QCOMPARE(entriesOf(trash + u"/info"_s), QStringList());
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_workingFolder.path())); }

    void init()
    {
        m_data = std::make_unique<TestDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(dataHome()));
    }

    void cleanup()
    {
        // Wherever a test went, the working folder never becomes a Trash of its own.
        QCOMPARE(entriesOf(m_workingFolder.path()), QStringList());
        m_data.reset();
    }

    void movesItemsIntoTheTrash_data()
    {
        QTest::addColumn<QString>("item");
        QTest::newRow("file") << u"report.pdf"_s;
        QTest::newRow("folder with contents") << u"Holiday"_s;
        QTest::newRow("link to nowhere") << u"dangling"_s;
    }
    void movesItemsIntoTheTrash()
    {
        QFETCH(QString, item);
        TestDir dir;
        QString path = dir.filePath(item);
        if (item == u"Holiday")
            dir.createFile(item + u"/a.jpg"_s, "jpg");
        else if (item == u"dangling")
            QVERIFY(QFile::link(dir.filePath(u"nowhere"_s), path));
        else
            dir.createFile(item, "content");
        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer");
        QVERIFY2(result->trashed, qPrintable(result->error));
        QVERIFY(!statOf(path));
        QVERIFY(statOf(result->pathInTrash));
        QCOMPARE(QFileInfo(result->pathInTrash).absolutePath(), trashFolder() + u"/files"_s);
        if (item == u"Holiday")
            QCOMPARE(contentOf(result->pathInTrash + u"/a.jpg"_s), QByteArray("jpg"));
        if (item == u"dangling")
            QCOMPARE(QFileInfo(result->pathInTrash).symLinkTarget(), dir.filePath(u"nowhere"_s));
        const std::optional<TrashInfo> record = recordFor(result->pathInTrash);
        QVERIFY(record);
        QCOMPARE(record->path, QFile::encodeName(path));
    }

    void aMissingItemIsReportedAndNothingMoves()
    {
        TestDir dir;
        const auto result = trash(dir.filePath(u"gone.txt"_s));
        QVERIFY(result);
        QVERIFY(!result->trashed);
        QCOMPARE(result->error, u"“gone.txt” does not exist."_s);
        QCOMPARE(entriesOf(trashFolder() + u"/files"_s), QStringList());
        QCOMPARE(entriesOf(trashFolder() + u"/info"_s), QStringList());
    }

    // The home Trash is made on first use, readable by its owner alone; the record too.
    void theTrashIsMadePrivate()
    {
        TestDir dir;
        const auto result = trash(dir.createFile(u"private.txt"_s, "secret"));
        QVERIFY(result && result->trashed);
        for (const QString &folder :
             {trashFolder(), trashFolder() + u"/files"_s, trashFolder() + u"/info"_s}) {
            const auto info = statOf(folder);
            QVERIFY2(info && S_ISDIR(info->st_mode), qPrintable(folder));
            QCOMPARE(info->st_mode & 07777, 0700u);
        }
        const auto record = statOf(recordPathFor(result->pathInTrash));
        QVERIFY(record && S_ISREG(record->st_mode));
        QCOMPARE(record->st_mode & 07777, 0600u);
    }

    void theRecordIsComplete()
    {
        TestDir dir;
        const QString path = dir.createFile(u"notes.txt"_s, "notes");
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        const auto result = trash(path);
        const QDateTime after = QDateTime::currentDateTime().addSecs(1);
        QVERIFY(result && result->trashed);
        const QByteArray content = contentOf(recordPathFor(result->pathInTrash));
        QVERIFY2(content.startsWith("[Trash Info]\n"), content.constData());
        QVERIFY2(content.endsWith('\n'), content.constData());
        QCOMPARE(content.count('\n'), 3);
        const std::optional<TrashInfo> record = TrashInfo::fromBytes(content);
        QVERIFY(record);
        QCOMPARE(record->path, QFile::encodeName(path));
        QVERIFY2(record->deletionDate.isValid(), content.constData());
        QVERIFY(record->deletionDate >= before && record->deletionDate <= after);
    }

    // Names that the record must escape: each reads back exactly from the record.
    void namesReadBackFromTheRecord_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("percent sign") << u"100% done.txt"_s;
        QTest::newRow("looks escaped") << u"%41%20.txt"_s;
        QTest::newRow("newline") << u"two\nlines.txt"_s;
        QTest::newRow("spaces at the ends") << u" padded .txt"_s;
        QTest::newRow("URL punctuation") << u"a#b?c;d&e=f+g.txt"_s;
        QTest::newRow("not ASCII") << u"Café Ünïcødé €.txt"_s;
    }
    void namesReadBackFromTheRecord()
    {
        QFETCH(QString, name);
        TestDir dir;
        const QString path = dir.createFile(name, name.toUtf8());
        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer");
        QVERIFY2(result->trashed, qPrintable(result->error));
        QCOMPARE(contentOf(result->pathInTrash), name.toUtf8());
        const std::optional<TrashInfo> record = recordFor(result->pathInTrash);
        QVERIFY2(record, contentOf(recordPathFor(result->pathInTrash)).constData());
        QCOMPARE(record->path, QFile::encodeName(path));
    }

    // A second item of a name the Trash already holds, or holds half of, gets a name of its
    // own; nothing already in the Trash is touched.
    void namesTakenInTheTrash_data()
    {
        QTest::addColumn<QString>("taken"); // what the Trash holds under the item's name
        QTest::newRow("an item and its record") << u"both"_s;
        QTest::newRow("a record without its item") << u"record"_s;
        QTest::newRow("an item without its record") << u"item"_s;
    }
    void namesTakenInTheTrash()
    {
        QFETCH(QString, taken);
        TestDir first;
        TestDir second;
        const QString firstPath = first.createFile(u"report.pdf"_s, "first");
        const QString secondPath = second.createFile(u"report.pdf"_s, "second");
        QString held;
        if (taken == u"both") {
            const auto result = trash(firstPath);
            QVERIFY(result && result->trashed);
            held = result->pathInTrash;
        } else {
            QDir().mkpath(trashFolder() + u"/files"_s);
            QDir().mkpath(trashFolder() + u"/info"_s);
            held = trashFolder() + u"/files/report.pdf"_s;
            const QString file =
                taken == u"record" ? recordPathFor(held) : trashFolder() + u"/files/report.pdf"_s;
            QFile stale(file);
            QVERIFY(stale.open(QIODevice::WriteOnly));
            stale.write("first");
        }
        const QStringList recordsBefore = entriesOf(trashFolder() + u"/info"_s);

        const auto result = trash(secondPath);
        QVERIFY2(result && result->trashed, result ? qPrintable(result->error) : "hung");
        QVERIFY(result->pathInTrash != held);
        QCOMPARE(contentOf(result->pathInTrash), QByteArray("second"));
        const std::optional<TrashInfo> record = recordFor(result->pathInTrash);
        QVERIFY(record);
        QCOMPARE(record->path, QFile::encodeName(secondPath));
        // What was there before is as it was.
        if (taken == u"both") {
            QCOMPARE(contentOf(held), QByteArray("first"));
            QCOMPARE(recordFor(held)->path, QFile::encodeName(firstPath));
        } else {
            QCOMPARE(contentOf(taken == u"record" ? recordPathFor(held) : held),
                     QByteArray("first"));
        }
        QCOMPARE(entriesOf(trashFolder() + u"/info"_s).size(), recordsBefore.size() + 1);
    }

    // "NAME.trashinfo" is ten bytes longer than the name, which may then be too long for the
    // file system: the record takes a shorter name and still holds the whole path.
    void aNameNearTheLengthLimit()
    {
        TestDir dir;
        const QString name = QString(250, u'n') + u".txt"_s;
        const QString path = dir.createFile(name, "long");
        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer");
        QVERIFY2(result->trashed, qPrintable(result->error));
        QCOMPARE(contentOf(result->pathInTrash), QByteArray("long"));
        const std::optional<TrashInfo> record = recordFor(result->pathInTrash);
        QVERIFY(record);
        QCOMPARE(record->path, QFile::encodeName(path));
    }

    // An "info" folder that takes no file: the call comes back at once with a sentence.
    void anInfoFolderThatTakesNothing_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("error");
        QTest::newRow("a file in its place")
            << u"file"_s << u"The Trash cannot take “item.txt”: “%1” is not a folder."_s;
        QTest::newRow("read-only mount")
            << u"read-only"_s
            << u"The Trash cannot take “item.txt”: its folder “%1” cannot be written to."_s;
        QTest::newRow("refuses new entries")
            << u"refuses"_s
            << u"The Trash cannot take “item.txt”: its folder “%1” cannot be written to."_s;
    }
    void anInfoFolderThatTakesNothing()
    {
        QFETCH(QString, fault);
        QFETCH(QString, error);
        TestDir dir;
        const QString path = dir.createFile(u"item.txt"_s, "keep me");
        const QString info = trashFolder() + u"/info"_s;
        QVERIFY(QDir().mkpath(trashFolder() + u"/files"_s));
        std::unique_ptr<ScratchMount> mount;
        std::unique_ptr<ImmutableFlag> immutable;
        if (fault == u"file") {
            QFile file(info);
            QVERIFY(file.open(QIODevice::WriteOnly));
        } else if (fault == u"read-only") {
            QVERIFY(QDir().mkpath(info));
            mount = std::make_unique<ScratchMount>(info);
            if (!mount->bindReadOnly())
                QSKIP(qPrintable(mount->error()));
        } else if (isRoot()) {
            // Root passes over permission bits; the immutable flag stops it.
            QVERIFY(QDir().mkpath(info));
            immutable = std::make_unique<ImmutableFlag>(info);
            if (!immutable->isSet())
                QSKIP(qPrintable(immutable->error()));
        } else {
            QVERIFY(QDir().mkpath(info));
            QVERIFY(QFile::setPermissions(info, QFile::ReadOwner | QFile::ExeOwner));
        }

        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer within 10 s");
        QVERIFY(!result->trashed);
        QCOMPARE(result->error, error.arg(info));
        verifyNothingMoved(path, "keep me", trashFolder());
        QFile::setPermissions(info, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    // The home Trash on a tmpfs of a few pages that takes nothing: full of bytes, full of
    // files, or mounted read-only.
    void aDiskThatTakesNothing_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("error");
        const QString full = u"There is no room in the Trash for “item.txt”: the disk is full."_s;
        QTest::newRow("no space left") << u"bytes"_s << full;
        QTest::newRow("no inodes left") << u"files"_s << full;
        QTest::newRow("read-only")
            << u"read-only"_s << u"“item.txt” is on a drive that is read-only."_s;
    }
    void aDiskThatTakesNothing()
    {
        QFETCH(QString, fault);
        QFETCH(QString, error);
        TestDir dir;
        ScratchMount disk(dir.createDir(u"disk"_s));
        if (!disk.mountTmpfs("size=64k,nr_inodes=32,mode=0700"))
            QSKIP(qPrintable(disk.error()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(disk.path() + u"/share"_s));
        const QString diskTrash = disk.path() + u"/share/Trash"_s;
        QVERIFY(QDir().mkpath(diskTrash + u"/files"_s));
        QVERIFY(QDir().mkpath(diskTrash + u"/info"_s));
        const QString path = disk.path() + u"/item.txt"_s;
        {
            QFile item(path);
            QVERIFY(item.open(QIODevice::WriteOnly));
            item.write("keep me");
        }
        if (fault == u"bytes") {
            QFile filler(disk.path() + u"/filler"_s);
            QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            const QByteArray page(4096, 'f');
            while (filler.write(page) == page.size()) {
            }
            while (filler.write("f", 1) == 1) {
            }
        } else if (fault == u"files") {
            for (int i = 0;; ++i) {
                QFile filler(disk.path() + u"/filler"_s + QString::number(i));
                if (!filler.open(QIODevice::WriteOnly))
                    break;
                QVERIFY(i < 100);
            }
        } else {
            QVERIFY(disk.remountReadOnly());
        }

        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer within 10 s");
        QVERIFY2(!result->trashed, "the item went into the Trash, its record empty or missing");
        QCOMPARE(result->error, error);
        verifyNothingMoved(path, "keep me", diskTrash);
    }

    // The rename into the Trash fails after the record is written: the record goes again.
    void aFailedMoveLeavesNoRecord()
    {
        TestDir dir;
        const QString folder = dir.createDir(u"locked"_s);
        const QString path = dir.createFile(u"locked/item.txt"_s, "keep me");
        std::unique_ptr<ImmutableFlag> immutable;
        if (isRoot()) {
            immutable = std::make_unique<ImmutableFlag>(folder);
            if (!immutable->isSet())
                QSKIP(qPrintable(immutable->error()));
        } else {
            QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        }
        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer within 10 s");
        QVERIFY(!result->trashed);
        QCOMPARE(result->error, u"You do not have permission to move “item.txt” to the Trash."_s);
        verifyNothingMoved(path, "keep me", trashFolder());
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    // An item on another drive goes to that drive's own Trash, never across drives, and
    // only into a Trash folder that is ours alone.
    void theTrashOfAnotherDrive_data()
    {
        const QString uid = QString::number(::getuid());
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QString>("driveTrash"); // where the item goes; empty when it stays
        QTest::addColumn<QString>("error");
        const QString noTrash = u"There is no Trash on the drive that holds “item name.txt”."_s;
        QTest::newRow("none yet: .Trash-UID is made") << u""_s << u".Trash-"_s + uid << u""_s;
        QTest::newRow("our .Trash-UID") << u"own"_s << u".Trash-"_s + uid << u""_s;
        QTest::newRow(".Trash-UID of another user") << u"other's"_s << u""_s << noTrash;
        QTest::newRow(".Trash-UID open to others") << u"0755"_s << u""_s << noTrash;
        QTest::newRow(".Trash-UID a link to our folder") << u"link"_s << u""_s << noTrash;
        QTest::newRow(".Trash-UID a file") << u"file"_s << u""_s << noTrash;
        QTest::newRow("shared .Trash, sticky") << u"sticky"_s << u".Trash/"_s + uid << u""_s;
        QTest::newRow("shared .Trash, not sticky")
            << u"not sticky"_s << u".Trash-"_s + uid << u""_s;
        QTest::newRow("shared .Trash, a link to a sticky folder")
            << u"sticky link"_s << u".Trash-"_s + uid << u""_s;
        QTest::newRow("shared .Trash, UID folder of another user")
            << u"sticky, other's"_s << u".Trash-"_s + uid << u""_s;
        QTest::newRow("read-only drive")
            << u"read-only"_s << u""_s << u"“item name.txt” is on a drive that is read-only."_s;
    }
    void theTrashOfAnotherDrive()
    {
        QFETCH(QString, setup);
        QFETCH(QString, driveTrash);
        QFETCH(QString, error);
        TestDir dir;
        ScratchMount drive(dir.createDir(u"drive"_s));
        if (!drive.mountTmpfs("size=1M,nr_inodes=64,mode=0755"))
            QSKIP(qPrintable(drive.error()));
        const QString top = drive.path();
        const QString uid = QString::number(::getuid());
        const QString own = top + u"/.Trash-"_s + uid;
        const QString shared = top + u"/.Trash"_s;
        QVERIFY(QDir().mkpath(top + u"/sub"_s));
        const QString path = top + u"/sub/item name.txt"_s;
        {
            QFile item(path);
            QVERIFY(item.open(QIODevice::WriteOnly));
            item.write("on the drive");
        }
        const QByteArray nativeOwn = QFile::encodeName(own);
        const QByteArray nativeShared = QFile::encodeName(shared);
        if (setup == u"own") {
            QCOMPARE(::mkdir(nativeOwn.constData(), 0700), 0);
        } else if (setup == u"other's") {
            if (!isRoot())
                QSKIP("giving a folder to another user needs root");
            QCOMPARE(::mkdir(nativeOwn.constData(), 0700), 0);
            QCOMPARE(::chown(nativeOwn.constData(), 65534, 65534), 0);
        } else if (setup == u"0755") {
            QCOMPARE(::mkdir(nativeOwn.constData(), 0700), 0);
            QCOMPARE(::chmod(nativeOwn.constData(), 0755), 0);
        } else if (setup == u"link") {
            QVERIFY(QDir().mkpath(top + u"/elsewhere"_s));
            QCOMPARE(::chmod(QFile::encodeName(top + u"/elsewhere"_s).constData(), 0700), 0);
            QVERIFY(QFile::link(u"elsewhere"_s, own));
        } else if (setup == u"file") {
            QFile file(own);
            QVERIFY(file.open(QIODevice::WriteOnly));
        } else if (setup.startsWith(u"sticky") || setup == u"not sticky") {
            const QString real = setup == u"sticky link" ? top + u"/real"_s : shared;
            const QByteArray nativeReal = QFile::encodeName(real);
            QCOMPARE(::mkdir(nativeReal.constData(), 0777), 0);
            QCOMPARE(::chmod(nativeReal.constData(), setup == u"not sticky" ? 0777 : 01777), 0);
            if (setup == u"sticky link")
                QVERIFY(QFile::link(u"real"_s, shared));
            if (setup == u"sticky, other's") {
                if (!isRoot())
                    QSKIP("giving a folder to another user needs root");
                const QByteArray theirs = QFile::encodeName(shared + u"/"_s + uid);
                QCOMPARE(::mkdir(theirs.constData(), 0700), 0);
                QCOMPARE(::chown(theirs.constData(), 65534, 65534), 0);
            }
        } else if (setup == u"read-only") {
            QVERIFY(drive.remountReadOnly());
        }
        const QStringList topBefore = entriesOf(top);
        const QStringList ownBefore = entriesOf(own);

        const auto result = trash(path);
        QVERIFY2(result, "the Trash did not answer within 10 s");
        QVERIFY(!QFileInfo::exists(trashFolder()) ||
                entriesOf(trashFolder() + u"/files"_s).isEmpty());
        if (driveTrash.isEmpty()) {
            QVERIFY2(!result->trashed, qPrintable(result->pathInTrash));
            QCOMPARE(result->error, error);
            QCOMPARE(contentOf(path), QByteArray("on the drive"));
            QCOMPARE(entriesOf(top), topBefore);
            QCOMPARE(entriesOf(own), ownBefore);
            return;
        }
        QVERIFY2(result->trashed, qPrintable(result->error));
        QCOMPARE(result->pathInTrash, top + u"/"_s + driveTrash + u"/files/item name.txt"_s);
        QCOMPARE(contentOf(result->pathInTrash), QByteArray("on the drive"));
        QVERIFY(!QFileInfo::exists(path));
        for (const QString &folder :
             {top + u"/"_s + driveTrash, top + u"/"_s + driveTrash + u"/files"_s,
              top + u"/"_s + driveTrash + u"/info"_s}) {
            const auto info = statOf(folder);
            QVERIFY2(info && S_ISDIR(info->st_mode), qPrintable(folder));
            QCOMPARE(info->st_uid, ::getuid());
        }
        // A drive may be mounted elsewhere next time: its records name items from its top.
        const std::optional<TrashInfo> record = recordFor(result->pathInTrash);
        QVERIFY(record);
        QCOMPARE(record->path, QByteArray("sub/item name.txt"));
    }
};

QTEST_GUILESS_MAIN(tst_Trash)
#include "tst_trash.moc"
