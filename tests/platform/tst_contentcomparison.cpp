#include "ContentComparison.h"
#include "TestDir.h"

#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;
using Verdict = ContentComparison::Verdict;

Q_DECLARE_METATYPE(ContentComparison::Verdict)

namespace {

QByteArray native(const QString &path)
{
    return QFile::encodeName(path);
}

// Two files of `size` bytes that agree everywhere but at `offset`.
void differAt(TestDir &dir, qint64 size, qint64 offset)
{
    QByteArray bytes = TestDir::pattern(size, 7);
    dir.createFile(u"a"_s, bytes);
    bytes[offset] = static_cast<char>(bytes[offset] ^ 0x5a);
    dir.createFile(u"b"_s, bytes);
}

// Two equal folder trees under "a" and "b", a hidden file and a link among them.
void equalTrees(TestDir &dir)
{
    for (const QString &root : {u"a"_s, u"b"_s}) {
        dir.createPatternFile(root + u"/photo.jpg"_s, 300000, 1);
        dir.createFile(root + u"/.hidden"_s, "secret");
        dir.createFile(root + u"/deep/er/notes.txt"_s, "text");
        dir.createDir(root + u"/empty"_s);
        QVERIFY(::symlink("photo.jpg", native(dir.filePath(root + u"/link"_s))) == 0);
    }
}

} // namespace

class tst_ContentComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_data()
    {
        QTest::addColumn<int>("setup");
        QTest::addColumn<Verdict>("expected");
        // A difference past the sampled first and last 64 KiB is what a fingerprint misses.
        QTest::newRow("equal") << 0 << Verdict::Equal;
        QTest::newRow("differ only in the middle") << 1 << Verdict::Different;
        QTest::newRow("differ in the last byte") << 2 << Verdict::Different;
        QTest::newRow("differ across a block boundary") << 3 << Verdict::Different;
        QTest::newRow("other sizes") << 4 << Verdict::Different;
        QTest::newRow("hard link") << 5 << Verdict::Equal;
        QTest::newRow("a link to an equal file is no copy") << 6 << Verdict::Different;
        QTest::newRow("the other is gone") << 7 << Verdict::Unreadable;
        QTest::newRow("empty files") << 8 << Verdict::Equal;
    }
    void files()
    {
        QFETCH(int, setup);
        QFETCH(Verdict, expected);
        TestDir dir;
        const qint64 size = 3 * ContentComparison::blockSize + 12345;
        switch (setup) {
        case 0:
            dir.createPatternFile(u"a"_s, size, 3);
            dir.createPatternFile(u"b"_s, size, 3);
            break;
        case 1:
            differAt(dir, size, size / 2);
            break;
        case 2:
            differAt(dir, size, size - 1);
            break;
        case 3:
            differAt(dir, size, ContentComparison::blockSize);
            break;
        case 4:
            dir.createPatternFile(u"a"_s, size, 3);
            dir.createPatternFile(u"b"_s, size + 1, 3);
            break;
        case 5:
            dir.createPatternFile(u"a"_s, size, 3);
            QVERIFY(::link(native(dir.filePath(u"a"_s)), native(dir.filePath(u"b"_s))) == 0);
            break;
        case 6:
            dir.createPatternFile(u"a"_s, size, 3);
            dir.createPatternFile(u"twin"_s, size, 3);
            QVERIFY(::symlink("twin", native(dir.filePath(u"b"_s))) == 0);
            break;
        case 7:
            dir.createPatternFile(u"a"_s, size, 3);
            break;
        case 8:
            dir.createFile(u"a"_s, QByteArray());
            dir.createFile(u"b"_s, QByteArray());
            break;
        }
        const std::atomic<bool> stop{false};
        const ContentComparison::Result result = ContentComparison::compareFiles(
            native(dir.filePath(u"a"_s)), native(dir.filePath(u"b"_s)), stop);
        QCOMPARE(result.verdict, expected);
        if (setup == 1) // reading stops at the block that differs
            QVERIFY(result.bytesRead <= size + 2 * ContentComparison::blockSize);
    }

    void aStoppedComparisonSaysSo()
    {
        TestDir dir;
        dir.createPatternFile(u"a"_s, 100000, 1);
        dir.createPatternFile(u"b"_s, 100000, 1);
        const std::atomic<bool> stop{true};
        QCOMPARE(ContentComparison::compareFiles(native(dir.filePath(u"a"_s)),
                                                 native(dir.filePath(u"b"_s)), stop)
                     .verdict,
                 Verdict::Cancelled);
    }

    void folders_data()
    {
        QTest::addColumn<QString>("change"); // what is done to tree "b"
        QTest::addColumn<Verdict>("expected");
        QTest::newRow("equal") << u""_s << Verdict::Equal;
        QTest::newRow("one more hidden file") << u"add .DS_Store"_s << Verdict::Different;
        QTest::newRow("a file named otherwise")
            << u"rename deep/er/notes.txt"_s << Verdict::Different;
        QTest::newRow("a file deep down differs")
            << u"write deep/er/notes.txt"_s << Verdict::Different;
        QTest::newRow("the hidden file differs") << u"write .hidden"_s << Verdict::Different;
        QTest::newRow("a link points elsewhere") << u"relink link"_s << Verdict::Different;
        QTest::newRow("a file where a folder was") << u"file empty"_s << Verdict::Different;
        QTest::newRow("one more empty folder") << u"mkdir deep/new"_s << Verdict::Different;
        QTest::newRow("files linked into both") << u"hardlink photo.jpg"_s << Verdict::Equal;
        QTest::newRow("the same folder twice") << u"same"_s << Verdict::Different;
    }
    void folders()
    {
        QFETCH(QString, change);
        QFETCH(Verdict, expected);
        TestDir dir;
        equalTrees(dir);
        const QString b = dir.filePath(u"b"_s);
        const QString what = change.section(u' ', 0, 0);
        const QString entry = change.section(u' ', 1);
        QString second = b;
        if (what == u"add")
            dir.createFile(u"b/"_s + entry, "x");
        else if (what == u"rename")
            QVERIFY(QFile::rename(b + u'/' + entry, b + u'/' + entry + u"2"_s));
        else if (what == u"write")
            dir.createFile(u"b/"_s + entry, "other");
        else if (what == u"relink") {
            QVERIFY(::unlink(native(b + u'/' + entry)) == 0);
            QVERIFY(::symlink(".hidden", native(b + u'/' + entry)) == 0);
        } else if (what == u"file") {
            QVERIFY(::rmdir(native(b + u'/' + entry)) == 0);
            dir.createFile(u"b/"_s + entry, QByteArray());
        } else if (what == u"mkdir") {
            dir.createDir(u"b/"_s + entry);
        } else if (what == u"hardlink") {
            QVERIFY(::unlink(native(b + u'/' + entry)) == 0);
            QVERIFY(::link(native(dir.filePath(u"a/"_s + entry)), native(b + u'/' + entry)) == 0);
        } else if (what == u"same") {
            second = dir.filePath(u"a/."_s);
        }
        const std::atomic<bool> stop{false};
        const ContentComparison::Result result =
            ContentComparison::compareFolders(native(dir.filePath(u"a"_s)), native(second), stop);
        QVERIFY2(result.verdict == expected, qPrintable(result.detail));
    }
};

QTEST_GUILESS_MAIN(tst_ContentComparison)
#include "tst_contentcomparison.moc"
