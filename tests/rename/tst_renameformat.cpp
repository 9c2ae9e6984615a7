#include "BRRenameFormat.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList threeKeys{u"a.jpg"_s, u"b.jpg"_s, u"c.png"_s};

// The list a.jpg, b.jpg, c.png, each row holding the name "old-<key>" from an earlier run.
RenameFileDetails threeRows()
{
    RenameFileDetails details;
    for (const QString &key : threeKeys)
        details.insert(
            key, RenameRecord{QUrl::fromLocalFile(u"/photos/"_s + key), u"old-"_s + key, {}, {}});
    return details;
}

QStringList namesOf(const RenameFileDetails &details, const QStringList &keys)
{
    QStringList names;
    for (const QString &key : keys)
        names.append(details.value(key).destinationURL.value_or(u"<absent>"_s));
    return names;
}

} // namespace

class tst_RenameFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // An empty `expected` means the run stops and every row keeps its earlier name.
    void fullNameRule_data()
    {
        QTest::addColumn<QString>("numberText");
        QTest::addColumn<NamePlacement>("where");
        QTest::addColumn<QStringList>("expected");
        const NamePlacement after = NamePlacement::AfterName;
        QTest::newRow("after") << u"1"_s << after
                               << QStringList{u"Trip1"_s, u"Trip2"_s, u"Trip3"_s};
        QTest::newRow("before") << u"1"_s << NamePlacement::BeforeName
                                << QStringList{u"1Trip"_s, u"2Trip"_s, u"3Trip"_s};
        QTest::newRow("empty number counts from 1")
            << QString() << after << QStringList{u"Trip1"_s, u"Trip2"_s, u"Trip3"_s};
        QTest::newRow("leading zeros")
            << u"007"_s << after << QStringList{u"Trip7"_s, u"Trip8"_s, u"Trip9"_s};
        QTest::newRow("plus sign")
            << u"+5"_s << after << QStringList{u"Trip5"_s, u"Trip6"_s, u"Trip7"_s};
        QTest::newRow("negative counts up")
            << u"-2"_s << after << QStringList{u"Trip-2"_s, u"Trip-1"_s, u"Trip0"_s};
        QTest::newRow("the limit, then past it while running")
            << u"99999"_s << after << QStringList{u"Trip99999"_s, u"Trip100000"_s, u"Trip100001"_s};
        QTest::newRow("start past the limit")
            << u"100000"_s << after << QStringList{u"Trip1"_s, u"Trip2"_s, u"Trip3"_s};
        QTest::newRow("largest 64-bit start")
            << u"9223372036854775807"_s << after << QStringList{u"Trip1"_s, u"Trip2"_s, u"Trip3"_s};
        QTest::newRow("smallest 64-bit start")
            << u"-9223372036854775808"_s << after
            << QStringList{u"Trip-9223372036854775808"_s, u"Trip-9223372036854775807"_s,
                           u"Trip-9223372036854775806"_s};
        QTest::newRow("beyond 64 bits") << u"9223372036854775808"_s << after << QStringList();
        QTest::newRow("below 64 bits") << u"-9223372036854775809"_s << after << QStringList();
        QTest::newRow("letters") << u"abc"_s << after << QStringList();
        QTest::newRow("digits then letters") << u"12a"_s << after << QStringList();
        QTest::newRow("space before") << u" 5"_s << after << QStringList();
        QTest::newRow("sign alone") << u"-"_s << after << QStringList();
        QTest::newRow("non-ASCII digit") << u"\u0663"_s << after << QStringList();
    }
    void fullNameRule()
    {
        QFETCH(QString, numberText);
        QFETCH(NamePlacement, where);
        QFETCH(QStringList, expected);
        RenameFileDetails details = threeRows();
        const auto report =
            BRRenameFormat().changeFullFileNames(numberText, u"Trip"_s, details, threeKeys, where);
        QCOMPARE(report.has_value(), !expected.isEmpty());
        if (expected.isEmpty())
            expected = QStringList{u"old-a.jpg"_s, u"old-b.jpg"_s, u"old-c.png"_s};
        else
            QCOMPARE(report->missingKeys, QStringList());
        QCOMPARE(namesOf(details, threeKeys), expected);
    }

    void noNewNameLeavesTheRows()
    {
        RenameFileDetails details = threeRows();
        QCOMPARE(BRRenameFormat().changeFullFileNames(u"1"_s, std::nullopt, details, threeKeys,
                                                      NamePlacement::AfterName),
                 std::nullopt);
        QCOMPARE(BRRenameFormat().addTextToFileNames(QString(), details, threeKeys,
                                                     NamePlacement::AfterName),
                 std::nullopt);
        QCOMPARE(namesOf(details, threeKeys),
                 (QStringList{u"old-a.jpg"_s, u"old-b.jpg"_s, u"old-c.png"_s}));
    }

    // b.jpg was typed by hand; gone.jpg has no record; lost.jpg has no path; left.jpg has a
    // record but is no longer listed.
    void rowsOutsideTheRule()
    {
        RenameFileDetails details = threeRows();
        details[u"b.jpg"_s].destinationURL = u"Bee"_s;
        details[u"b.jpg"_s].nameSource = NameSource::HandEdit;
        details.insert(u"lost.jpg"_s, RenameRecord{QUrl(), u"old-lost"_s, {}, {}});
        details.insert(u"web.jpg"_s,
                       RenameRecord{QUrl(u"https://example.org/web.jpg"_s), u"old-web"_s, {}, {}});
        details.insert(u"left.jpg"_s,
                       RenameRecord{QUrl::fromLocalFile(u"/left.jpg"_s), u"old-left"_s, {}, {}});
        const QStringList keys{u"a.jpg"_s, u"gone.jpg"_s, u"lost.jpg"_s,
                               u"b.jpg"_s, u"web.jpg"_s,  u"c.png"_s};
        const QStringList untouched{u"lost.jpg"_s, u"web.jpg"_s, u"left.jpg"_s};
        const QStringList untouchedNames{u"old-lost"_s, u"old-web"_s, u"old-left"_s};

        auto report = BRRenameFormat().changeFullFileNames(u"1"_s, u"Trip"_s, details, keys,
                                                           NamePlacement::AfterName);
        QCOMPARE(report->missingKeys, (QStringList{u"lost.jpg"_s, u"web.jpg"_s}));
        QCOMPARE(namesOf(details, threeKeys), (QStringList{u"Trip1"_s, u"Bee"_s, u"Trip3"_s}));
        QCOMPARE(namesOf(details, untouched), untouchedNames);
        QVERIFY(!details.contains(u"gone.jpg"_s));

        report =
            BRRenameFormat().addTextToFileNames(u"-x"_s, details, keys, NamePlacement::BeforeName);
        QCOMPARE(report->missingKeys, (QStringList{u"lost.jpg"_s, u"web.jpg"_s}));
        QCOMPARE(namesOf(details, threeKeys), (QStringList{u"-xa"_s, u"Bee"_s, u"-xc"_s}));
        QCOMPARE(namesOf(details, untouched), untouchedNames);
    }

    // An empty `expected` means no name.
    void withdrawnEditTakesTheRowsOwnNumber_data()
    {
        QTest::addColumn<std::optional<QString>>("newName");
        QTest::addColumn<std::optional<QString>>("numberText");
        QTest::addColumn<NamePlacement>("where");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("expected");
        const std::optional<QString> trip = u"Trip"_s;
        const NamePlacement after = NamePlacement::AfterName;
        QTest::newRow("as in a run") << trip << std::optional(u"1"_s) << after << 1 << u"Trip2"_s;
        QTest::newRow("before") << trip << std::optional(u"7"_s) << NamePlacement::BeforeName << 0
                                << u"7Trip"_s;
        QTest::newRow("empty number")
            << trip << std::optional(QString()) << after << 2 << u"Trip3"_s;
        QTest::newRow("start at the limit")
            << trip << std::optional(u"99999"_s) << after << 0 << u"Trip99999"_s;
        QTest::newRow("the row's sum past the limit")
            << trip << std::optional(u"99999"_s) << after << 2 << u"Trip3"_s;
        QTest::newRow("the row's sum at the limit")
            << trip << std::optional(u"99990"_s) << after << 9 << u"Trip99999"_s;
        QTest::newRow("largest start")
            << trip << std::optional(u"9223372036854775807"_s) << after << 1 << u"Trip2"_s;
        QTest::newRow("negative") << trip << std::optional(u"-3"_s) << after << 2 << u"Trip-1"_s;
        QTest::newRow("number does not parse")
            << trip << std::optional(u"abc"_s) << after << 0 << QString();
        QTest::newRow("no number") << trip << std::optional<QString>() << after << 0 << QString();
        QTest::newRow("empty new name")
            << std::optional(QString()) << std::optional(u"1"_s) << after << 0 << QString();
        QTest::newRow("no new name")
            << std::optional<QString>() << std::optional(u"1"_s) << after << 0 << QString();
    }
    void withdrawnEditTakesTheRowsOwnNumber()
    {
        QFETCH(std::optional<QString>, newName);
        QFETCH(std::optional<QString>, numberText);
        QFETCH(NamePlacement, where);
        QFETCH(int, row);
        QFETCH(QString, expected);
        const auto name = BRRenameFormat::fullFileNameForRow(newName, numberText, where, row);
        QCOMPARE(name, expected.isEmpty() ? std::nullopt : std::optional(expected));
    }

    void addTextRule_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<NamePlacement>("where");
        QTest::addColumn<QString>("expected");
        const NamePlacement after = NamePlacement::AfterName;
        const NamePlacement before = NamePlacement::BeforeName;
        QTest::newRow("one dot") << u"report.pdf"_s << after << u"report-x"_s;
        QTest::newRow("middle pieces dropped")
            << u"holiday.2019.final.jpg"_s << after << u"holiday-x"_s;
        QTest::newRow("before, two dots") << u"archive.tar.gz"_s << before << u"-xarchive"_s;
        QTest::newRow("no dot") << u"README"_s << after << u"README-x"_s;
        QTest::newRow("hidden, after") << u".profile"_s << after << u"-x"_s;
        QTest::newRow("hidden, before") << u".profile"_s << before << u"-x"_s;
        QTest::newRow("spaces kept") << u" my file .txt"_s << after << u" my file -x"_s;
        QTest::newRow("percent and hash") << u"100% #1.txt"_s << before << u"-x100% #1"_s;
    }
    void addTextRule()
    {
        QFETCH(QString, fileName);
        QFETCH(NamePlacement, where);
        QFETCH(QString, expected);
        const QUrl url = QUrl::fromLocalFile(u"/home/user/"_s + fileName);
        QCOMPARE(BRRenameFormat::addedTextName(url, u"-x"_s, where), expected);
        RenameFileDetails details{{fileName, RenameRecord{url, QString(), {}, {}}}};
        QVERIFY(BRRenameFormat().addTextToFileNames(u"-x"_s, details, {fileName}, where));
        QCOMPARE(details.value(fileName).destinationURL, expected);
    }

    // The whole name a file takes: what the rule or the user gave, then the extension the
    // file keeps, the text after the last dot of its own name.
    void wholeNewName_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("newName");
        QTest::addColumn<QString>("expected");
        QTest::newRow("typed with a dot")
            << u"/p/photo.png"_s << u"notes.txt"_s << u"notes.txt.png"_s;
        QTest::newRow("last piece only") << u"/p/archive.tar.gz"_s << u"x"_s << u"x.gz"_s;
        QTest::newRow("none") << u"/p/README"_s << u"Read me"_s << u"Read me"_s;
        QTest::newRow("hidden") << u"/p/.profile"_s << u"p"_s << u"p.profile"_s;
        QTest::newRow("dot at the end") << u"/p/draft."_s << u"final"_s << u"final"_s;
        QTest::newRow("folder given with a slash")
            << u"/p/photos.2019/"_s << u"Trip1"_s << u"Trip1.2019"_s;
        QTest::newRow("dot in the folder only") << u"/p.d/notes"_s << u"n"_s << u"n"_s;
    }
    void wholeNewName()
    {
        QFETCH(QString, path);
        QFETCH(QString, newName);
        QFETCH(QString, expected);
        QCOMPARE(BRRenameFormat::targetFileName(QUrl::fromLocalFile(path), newName), expected);
    }
};

QTEST_GUILESS_MAIN(tst_RenameFormat)
#include "tst_renameformat.moc"
