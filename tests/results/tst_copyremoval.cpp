#include "CopyProof.h"
#include "CopyRemoval.h"
#include "DesktopWorkspace.h"
#include "ScriptedWorkspace.h"
#include "TestDir.h"

#include <QFile>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Outcome = CopyProof::Outcome;

Q_DECLARE_METATYPE(CopyProof::Outcome)
Q_DECLARE_METATYPE(CopyRemoval::Outcome)

namespace {

QByteArray native(const QString &path)
{
    return QFile::encodeName(path);
}

std::optional<FileStamp> stampNow(const QString &path)
{
    return FileStamp::ofNativePath(native(path));
}

// Moves the file's modification time by `seconds`, as a later write would.
void touchLater(const QString &path, int seconds)
{
    struct stat status = {};
    QVERIFY(::lstat(native(path).constData(), &status) == 0);
    timespec times[2] = {status.st_atim, status.st_mtim};
    times[1].tv_sec += seconds;
    QVERIFY(::utimensat(AT_FDCWD, native(path).constData(), times, AT_SYMLINK_NOFOLLOW) == 0);
}

// Holds every trashing until the test lets it go.
class GatedWorkspace final : public Workspace
{
public:
    QSemaphore entered;
    QSemaphore gate;
    ScriptedWorkspace inner;
    bool openURL(const QUrl &) override { return false; }
    bool selectFile(const QString &) override { return false; }
    TrashResult moveToTrash(const QString &path) override
    {
        entered.release();
        gate.acquire();
        return inner.moveToTrash(path);
    }
};

const qint64 fileSize = 200000;

} // namespace

class tst_CopyRemoval : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<CopyRemoval::Result>();
        QVERIFY(m_data.isValid());
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_data.path()));
    }

    // Each case builds "copy" and "other" (files or folders), takes the scan's stamp of
    // "copy", then does what happened behind the program's back.
    void proof_data()
    {
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QString>("afterScan");
        QTest::addColumn<Outcome>("expected");
        QTest::newRow("an equal copy") << u"equal files"_s << u""_s << Outcome::Proven;
        QTest::newRow("written since the scan")
            << u"equal files"_s << u"rewrite copy"_s << Outcome::Changed;
        QTest::newRow("replaced by an equal file")
            << u"equal files"_s << u"replace copy"_s << Outcome::Changed;
        QTest::newRow("its only other copy went")
            << u"equal files"_s << u"remove other"_s << Outcome::LastCopy;
        QTest::newRow("the other differs in the middle only")
            << u"middle differs"_s << u""_s << Outcome::NotACopy;
        QTest::newRow("the other is a hard link") << u"hard link"_s << u""_s << Outcome::Proven;
        QTest::newRow("gone before the check")
            << u"equal files"_s << u"remove copy"_s << Outcome::Vanished;
        QTest::newRow("never stamped") << u"equal files"_s << u"forget stamp"_s << Outcome::Changed;
        QTest::newRow("equal folders") << u"equal folders"_s << u""_s << Outcome::Proven;
        QTest::newRow("a folder with one more hidden file")
            << u"equal folders"_s << u"hide in copy"_s << Outcome::NotACopy;
        QTest::newRow("the only other copy lies inside it")
            << u"nested folders"_s << u""_s << Outcome::LastCopy;
    }
    void proof()
    {
        QFETCH(QString, setup);
        QFETCH(QString, afterScan);
        QFETCH(Outcome, expected);
        TestDir dir;
        const QString copy = dir.filePath(u"copy"_s);
        QString other = dir.filePath(u"other"_s);
        if (setup == u"equal files") {
            dir.createPatternFile(u"copy"_s, fileSize, 1);
            dir.createPatternFile(u"other"_s, fileSize, 1);
        } else if (setup == u"middle differs") {
            QByteArray bytes = TestDir::pattern(fileSize, 1);
            dir.createFile(u"copy"_s, bytes);
            bytes[fileSize / 2] = 'X';
            dir.createFile(u"other"_s, bytes);
        } else if (setup == u"hard link") {
            dir.createPatternFile(u"copy"_s, fileSize, 1);
            QVERIFY(::link(native(copy), native(other)) == 0);
        } else if (setup == u"equal folders") {
            for (const QString &root : {u"copy"_s, u"other"_s}) {
                dir.createPatternFile(root + u"/a.bin"_s, fileSize, 2);
                dir.createFile(root + u"/sub/b.txt"_s, "b");
            }
        } else if (setup == u"nested folders") {
            dir.createPatternFile(u"copy/a.bin"_s, fileSize, 2);
            other = dir.filePath(u"copy/inner"_s);
            dir.createPatternFile(u"copy/inner/a.bin"_s, fileSize, 2);
        }
        std::optional<FileStamp> scanned = stampNow(copy);
        QVERIFY(scanned);

        if (afterScan == u"rewrite copy") {
            dir.createPatternFile(u"copy"_s, fileSize, 1);
            touchLater(copy, 5);
        } else if (afterScan == u"replace copy") {
            const qint64 mtime = scanned->modifiedNs;
            dir.createPatternFile(u"fresh"_s, fileSize, 1);
            QVERIFY(::rename(native(dir.filePath(u"fresh"_s)), native(copy)) == 0);
            const timespec times[2] = {{0, UTIME_OMIT}, {mtime / 1000000000, mtime % 1000000000}};
            QVERIFY(::utimensat(AT_FDCWD, native(copy).constData(), times, 0) == 0);
        } else if (afterScan == u"remove other") {
            QVERIFY(QFile::remove(other));
        } else if (afterScan == u"remove copy") {
            QVERIFY(QFile::remove(copy));
        } else if (afterScan == u"forget stamp") {
            scanned.reset();
        } else if (afterScan == u"hide in copy") {
            // Made before the scan's stamp would be taken: the folder looks unchanged.
            dir.createFile(u"copy/.thumbs.db"_s, "x");
            scanned = stampNow(copy);
        }

        const std::atomic<bool> stop{false};
        const CopyProof::Result result = CopyProof::prove(copy, scanned, {other}, stop);
        QVERIFY2(result.outcome == expected, qPrintable(result.detail));
        QCOMPARE(result.equalCopy, expected == Outcome::Proven ? other : QString());
        QVERIFY(QFile::exists(other) || afterScan == u"remove other");
    }

    void provenCopiesGoToTheTrashAndTheRestStay_data()
    {
        QTest::addColumn<bool>("equal");
        QTest::addColumn<QString>("trashError");
        QTest::addColumn<CopyRemoval::Outcome>("outcome");
        QTest::addColumn<QString>("message");
        QTest::newRow("proven") << true << u""_s << CopyRemoval::Outcome::Trashed << u""_s;
        QTest::newRow("proven, but the Trash refuses")
            << true << u"The Trash is full: the disk has no free space."_s
            << CopyRemoval::Outcome::TrashRefused
            << u"The Trash is full: the disk has no free space."_s;
        QTest::newRow("not a copy")
            << false << u""_s << CopyRemoval::Outcome::NotACopy
            << u"\u201Ccopy.bin\u201D is not an exact copy of the other files in this group, so "
               u"it was kept."_s;
    }
    void provenCopiesGoToTheTrashAndTheRestStay()
    {
        QFETCH(bool, equal);
        QFETCH(QString, trashError);
        QFETCH(CopyRemoval::Outcome, outcome);
        QFETCH(QString, message);
        TestDir dir;
        const QString copy = dir.createPatternFile(u"copy.bin"_s, fileSize, 1);
        const QString other = dir.createPatternFile(u"other.bin"_s, fileSize, equal ? 1 : 2);
        ScriptedWorkspace workspace;
        workspace.trashError = trashError;
        CopyRemoval removal(workspace);
        QSignalSpy finished(&removal, &CopyRemoval::finished);
        QVERIFY(removal.start({u"g"_s, copy, {other}, stampNow(copy)}));
        QVERIFY(removal.isPending(copy));
        QVERIFY(!removal.start({u"g"_s, copy, {other}, stampNow(copy)})); // a second press
        QTRY_COMPARE(finished.size(), 1);
        const auto result = finished.at(0).at(0).value<CopyRemoval::Result>();
        QCOMPARE(result.outcome, outcome);
        QCOMPARE(result.message, message);
        QCOMPARE(workspace.trashedPaths,
                 outcome == CopyRemoval::Outcome::Trashed ? QStringList{copy} : QStringList{});
        QVERIFY(!removal.isBusy());
    }

    void bothCopiesOfAPairAskedAtOnceLeaveOne()
    {
        TestDir dir;
        const QString a = dir.createPatternFile(u"a.bin"_s, fileSize, 1);
        const QString b = dir.createPatternFile(u"b.bin"_s, fileSize, 1);
        DesktopWorkspace workspace; // a Trash of the test's own, in XDG_DATA_HOME
        CopyRemoval removal(workspace);
        QSignalSpy finished(&removal, &CopyRemoval::finished);
        QVERIFY(removal.start({u"g"_s, a, {b}, stampNow(a)}));
        QVERIFY(removal.start({u"g"_s, b, {a}, stampNow(b)}));
        QTRY_COMPARE(finished.size(), 2);
        QCOMPARE(finished.at(0).at(0).value<CopyRemoval::Result>().outcome,
                 CopyRemoval::Outcome::Trashed);
        QCOMPARE(finished.at(1).at(0).value<CopyRemoval::Result>().outcome,
                 CopyRemoval::Outcome::LastCopy);
        QVERIFY(!QFile::exists(a));
        QVERIFY(QFile::exists(b));
        QVERIFY(QFile::exists(m_data.filePath(u"Trash/files/a.bin"_s)));
    }

    void abandonedWorkReportsNothingAndMovesNothingMore()
    {
        TestDir dir;
        const QString a = dir.createPatternFile(u"a.bin"_s, fileSize, 1);
        const QString b = dir.createPatternFile(u"b.bin"_s, fileSize, 1);
        const QString c = dir.createPatternFile(u"c.bin"_s, fileSize, 1);
        GatedWorkspace workspace;
        {
            CopyRemoval removal(workspace);
            QSignalSpy finished(&removal, &CopyRemoval::finished);
            QVERIFY(removal.start({u"g"_s, a, {c}, stampNow(a)}));
            QVERIFY(removal.start({u"g"_s, b, {c}, stampNow(b)}));
            QVERIFY(workspace.entered.tryAcquire(1, 5000)); // a is proven and on its way
            removal.abandon();
            QVERIFY(!removal.isBusy());
            workspace.gate.release(2);
            QTest::qWait(100);
            QCOMPARE(finished.size(), 0);
        }
        // What was proven went; what was still waiting was never looked at.
        QCOMPARE(workspace.inner.trashedPaths, QStringList{a});
    }

    void sentencesNameTheFileAndTheReason_data()
    {
        QTest::addColumn<CopyRemoval::Outcome>("outcome");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("changed") << CopyRemoval::Outcome::Changed
                                 << u"\u201C100% done\nx.txt\u201D has changed since the scan, so "
                                    u"it was kept."_s;
        QTest::newRow("last copy") << CopyRemoval::Outcome::LastCopy
                                   << u"\u201C100% done\nx.txt\u201D is the last copy left in this "
                                      u"group, so it was kept."_s;
        QTest::newRow("unreadable")
            << CopyRemoval::Outcome::Unreadable
            << u"\u201C100% done\nx.txt\u201D could not be compared with the other files in this "
               u"group, so it was kept."_s;
    }
    void sentencesNameTheFileAndTheReason()
    {
        QFETCH(CopyRemoval::Outcome, outcome);
        QFETCH(QString, sentence);
        QCOMPARE(CopyRemoval::sentence(outcome, u"100% done\nx.txt"_s), sentence);
    }

private:
    QTemporaryDir m_data;
};

QTEST_GUILESS_MAIN(tst_CopyRemoval)
#include "tst_copyremoval.moc"
