#include "OSHashAlgorithm.h"

#include "TestDir.h"

#include <QFile>
#include <QScopeGuard>
#include <QTest>
#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// OSHash over bytes in memory, written plainly so that it shares nothing with the code tested.
QString referenceHash(const QByteArray &data)
{
    const qsizetype size = data.size(), chunk = qMin<qsizetype>(size, 65536);
    quint64 hash = quint64(size);
    for (const qsizetype from : {qsizetype(0), size - chunk})
        for (qsizetype at = from; at + 8 <= from + chunk; at += 8)
            hash += qFromLittleEndian<quint64>(data.constData() + at);
    return QString::number(hash, 16);
}

VideoHash hashOf(const QByteArray &data)
{
    TestDir dir;
    return OSHashAlgorithm().hashForFileAtPath(dir.createFile(QStringLiteral("f"), data));
}

} // namespace

class tst_OSHashAlgorithm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fingerprint_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("expected");
        QTest::newRow("empty") << QByteArray() << QStringLiteral("0");
        QTest::newRow("5 bytes, no whole word") << QByteArray("abcde") << QStringLiteral("5");
        // The word 0x0807060504030201 in head and tail, plus the size; a ninth byte is no word.
        const QByteArray word("\1\2\3\4\5\6\7\10");
        QTest::newRow("word") << word << QStringLiteral("100e0c0a0806040a");
        QTest::newRow("9 bytes") << word + '\xff' << QStringLiteral("100e0c0a0806040b");
        // 200000 + 2 * 8192 * (2^64 - 1), modulo 2^64.
        QTest::newRow("200000 x 0xff") << QByteArray(200000, '\xff') << QStringLiteral("2cd40");
        const QByteArray exact = TestDir::pattern(65536, 1), over = TestDir::pattern(65537, 2);
        QTest::newRow("64 KiB") << exact << referenceHash(exact);
        QTest::newRow("64 KiB + 1, tail unaligned") << over << referenceHash(over);
    }
    void fingerprint()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, expected);
        QCOMPARE(referenceHash(data), expected); // keeps the reference honest
        const VideoHash hash = hashOf(data);
        QCOMPARE(hash.fileHash, expected);
        QCOMPARE(hash.fileSize, quint64(data.size()));
    }

    void coveredBytes_data()
    {
        QTest::addColumn<int>("changedAt"); // in 200000 bytes
        QTest::addColumn<bool>("counts");
        QTest::newRow("middle") << 100000 << false;
        QTest::newRow("first byte") << 0 << true;
        QTest::newRow("end of head") << 65535 << true;
        QTest::newRow("start of tail") << 134464 << true;
        QTest::newRow("last byte") << 199999 << true;
    }
    void coveredBytes()
    {
        QFETCH(int, changedAt);
        QFETCH(bool, counts);
        QByteArray data = TestDir::pattern(200000, 5);
        const QString original = hashOf(data).fileHash;
        QCOMPARE(original, referenceHash(data)); // also catches a head or tail read too long
        data[changedAt] = char(data.at(changedAt) ^ 0x5a);
        QCOMPARE(hashOf(data).fileHash != original, counts);
    }

    // Mixed sizes, by path and in a folder in turn, each followed by an entry that cannot be
    // read: state left over from an earlier file would show.
    void instanceReusedAcrossFiles()
    {
        const QList<qint64> sizes = {200000, 3, 65537, 0, 9, 131072, 8, 65544, 70000, 1};
        const char *const unreadable[] = {"missing", "folder", "fifo", "link"};
        TestDir dir;
        dir.createDir(QStringLiteral("folder"));
        const QByteArray root = QFile::encodeName(dir.path());
        QCOMPARE(::mkfifo(root + "/fifo", 0644), 0); // with no writer, reading it would block
        QCOMPARE(::symlink("0", root + "/link"), 0); // to the first file, once written
        const int folder = ::open(root.constData(), O_RDONLY | O_DIRECTORY);
        QVERIFY(folder >= 0);
        const auto closeFolder = qScopeGuard([folder] { ::close(folder); });
        OSHashAlgorithm hasher;
        const auto hash = [&](qsizetype i, const QString &name) {
            return i % 2 ? hasher.hashForFileInFolder(folder, QFile::encodeName(name), {})
                         : hasher.hashForFileAtPath(dir.filePath(name));
        };
        for (qsizetype i = 0; i < sizes.size(); ++i) {
            const QByteArray data = TestDir::pattern(sizes.at(i), quint32(i));
            dir.createFile(QString::number(i), data);
            const VideoHash good = hash(i, QString::number(i));
            QCOMPARE(good.fileHash, referenceHash(data));
            QCOMPARE(good.fileSize, quint64(data.size()));
            const char *name = unreadable[i / 2 % 4];
            QVERIFY2(hash(i, QString::fromLatin1(name)) == VideoHash(), name);
        }
    }
};

QTEST_GUILESS_MAIN(tst_OSHashAlgorithm)
#include "tst_oshashalgorithm.moc"
