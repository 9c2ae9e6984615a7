#include "TestDir.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <QTest>
#include <unistd.h>

#include <algorithm>

namespace {

struct Run
{
    int exitCode = -1;
    QByteArray out, err;
};

Run scan(const QStringList &arguments, const QString &workingFolder = {})
{
    QProcess process;
    process.setWorkingDirectory(workingFolder);
    process.start(QStringLiteral(QUILLMERE_SCAN_PATH), arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class tst_QuillmereScan : public QObject
{
    Q_OBJECT

    static QByteArray keysOf(const QJsonObject &o) { return o.keys().join(u'|').toUtf8(); }

    TestDir dir; // two groups, the smaller found first, so that the listing has to reorder them
    const QString oddName = QStringLiteral("a2 \"q\\\" \t\x01.png"); // for the JSON escaping

private Q_SLOTS:
    void initTestCase()
    {
        dir.createPatternFile(QStringLiteral("a1.png"), 120000, 1);
        dir.createPatternFile(oddName, 120000, 1);
        for (const char *name : {"b1.png", "b2.png", "b3.png"})
            dir.createPatternFile(QString::fromLatin1(name), 100000, 2);
        dir.createPatternFile(QStringLiteral("d.png"), 100000, 3); // same bucket, other content
    }

    void commandLine_data()
    {
        QTest::addColumn<QString>("line"); // "@" stands for the test folder's path
        QTest::addColumn<int>("exitCode");
        QTest::newRow("--help") << QStringLiteral("--help") << 0;
        QTest::newRow("no argument") << QString() << 2;
        QTest::newRow("only --json") << QStringLiteral("--json") << 2;
        QTest::newRow("two paths") << QStringLiteral("@ @") << 2;
        QTest::newRow("unknown option") << QStringLiteral("--fast @") << 2;
        QTest::newRow("missing path") << QStringLiteral("@/missing") << 2;
        QTest::newRow("regular file") << QStringLiteral("@/a1.png") << 2;
    }
    // Help goes to stdout; a usage error is one line on stderr and nothing on stdout.
    void commandLine()
    {
        QFETCH(QString, line);
        QFETCH(int, exitCode);
        const Run run = scan(line.replace(u'@', dir.path()).split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY(exitCode ? run.out.isEmpty() : run.out.startsWith("Usage: quillmere-scan"));
        QVERIFY(exitCode ? run.err.count('\n') == 1 && run.err.endsWith('\n') : run.err.isEmpty());
    }

    void reportsOfTwoGroups()
    {
        const Run run = scan({QStringLiteral("--json"), dir.path()});
        QVERIFY(run.exitCode == 0 && run.err.isEmpty() && run.out.endsWith('\n'));
        // JSON has no raw control characters; the odd name holds a tab and a U+0001.
        QVERIFY(std::none_of(run.out.cbegin(), run.out.cend() - 1,
                             [](char c) { return quint8(c) < 0x20 && c != '\n'; }));
        const QList<QByteArray> lines = run.out.chopped(1).split('\n');
        QJsonObject lastLive, lastRecords;
        for (const QByteArray &line : lines.first(lines.size() - 1)) {
            const QJsonObject report = QJsonDocument::fromJson(line).object();
            QCOMPARE(keysOf(report), "completeStatus|group|key|totalDupesSize|totalDuplicates");
            QCOMPARE(report[u"completeStatus"], QJsonValue(false));
            const QJsonObject group = report[u"group"].toObject();
            QCOMPARE(keysOf(group), "fileName|filePath|fileSize|fileType|fileUTI|oldKey|totalSize");
            lastRecords.insert(report[u"key"].toString(), group);
            lastLive = report;
        }
        const QJsonObject final = QJsonDocument::fromJson(lines.last()).object();
        QCOMPARE(keysOf(final), "completeStatus|groups|key|totalDupesSize|totalDuplicates");
        QCOMPARE(final[u"completeStatus"], QJsonValue(true));
        QCOMPARE(final[u"key"], QJsonValue(QString()));
        QCOMPARE(final[u"groups"].toObject(), lastRecords);
        for (const char16_t *total : {u"totalDuplicates", u"totalDupesSize"})
            QCOMPARE(final[total], lastLive.value(total));
        // The first group formed is the odd name's; its name must survive escaping.
        QCOMPARE(QJsonDocument::fromJson(lines.first())[u"group"][u"fileName"].toString(), oddName);
        // Again, and with the folder named relatively: the same bytes.
        QCOMPARE(scan({QStringLiteral("--json"), QStringLiteral("./")}, dir.path()).out, run.out);
        // "@" stands for the folder and "#" for the odd name.
        QCOMPARE(QString::fromUtf8(scan({dir.path()}).out),
                 QStringLiteral("b2.png (PNG image): 3 copies of 97.7 KiB, 293.0 KiB in all\n"
                                "  @/b1.png\n  @/b2.png\n  @/b3.png\n\n"
                                "# (PNG image): 2 copies of 117.2 KiB, 234.4 KiB in all\n"
                                "  @/a1.png\n  @/#\n\n"
                                "5 duplicate files, 312.5 KiB reclaimable\n")
                     .replace(u'#', QStringLiteral("a2 \"q\\\\\" \\t\\x01.png"))
                     .replace(u'@', dir.path()));
        // An empty folder gives only the complete line, or the total.
        TestDir empty;
        QCOMPARE(scan({QStringLiteral("--json"), empty.path()}).out,
                 "{\"completeStatus\": true, \"key\": \"\", \"totalDuplicates\": 0, "
                 "\"totalDupesSize\": 0, \"groups\": {}}\n");
        QCOMPARE(scan({empty.path()}).out, "0 duplicate files, 0 bytes reclaimable\n");
    }

    // A second name of a file is listed as such and frees nothing; the JSON reports stay
    // the engine's, which counts every path.
    void hardLinksInTheListing()
    {
        TestDir links;
        const QString a = links.createPatternFile(QStringLiteral("a.png"), 100000, 1);
        links.createPatternFile(QStringLiteral("b.png"), 100000, 1);
        QVERIFY(::link(QFile::encodeName(a).constData(),
                       QFile::encodeName(links.filePath(QStringLiteral("c.png"))).constData()) ==
                0);
        QCOMPARE(QString::fromUtf8(scan({links.path()}).out),
                 QStringLiteral("b.png (PNG image): 3 copies of 97.7 KiB, 293.0 KiB in all\n"
                                "  @/a.png\n  @/b.png\n  @/c.png (same file as 1)\n\n"
                                "3 duplicate files, 97.7 KiB reclaimable\n")
                     .replace(u'@', links.path()));
        QVERIFY(scan({QStringLiteral("--json"), links.path()})
                    .out.contains("\"totalDuplicates\": 3, \"totalDupesSize\": 200000"));
    }
};

QTEST_GUILESS_MAIN(tst_QuillmereScan)
#include "tst_quillmere_scan.moc"
