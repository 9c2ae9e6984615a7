#include "BRRenameFormat.h"
#include "RenameProblemText.h"
#include "TestDir.h"

#include <QFile>
#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;

// The check a rule run makes before anything moves: each row's whole new name against the
// other rows and against its folder on disk, on real files in a temporary folder.
class tst_RenameConflicts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Rows are "file=new name" ("file=" for none); "sub/" in a file puts it in a folder of
    // that name. Files named in `present` exist but are not listed; a trailing "/" makes a
    // folder, a leading "@" a link to nowhere.
    void eachNameMeetsTheOthersAndTheFolder_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QList<NameCheck>>("checks");
        const NameCheck free = NameCheck::Free;
        const NameCheck taken = NameCheck::TakenInFolder;
        const NameCheck twice = NameCheck::SameAsAnotherRow;

        QTest::newRow("all free") << QStringList{u"a.jpg=x1"_s, u"b.jpg=x2"_s} << QStringList()
                                  << QList<NameCheck>{free, free};
        QTest::newRow("two rows, one name: both marked")
            << QStringList{u"a.jpg=x"_s, u"b.jpg=x"_s, u"c.jpg=y"_s} << QStringList()
            << QList<NameCheck>{twice, twice, free};
        QTest::newRow("one base, two extensions") << QStringList{u"a.jpg=x"_s, u"b.png=x"_s}
                                                  << QStringList() << QList<NameCheck>{free, free};
        QTest::newRow("one name in two folders") << QStringList{u"one/a.jpg=x"_s, u"two/a2.jpg=x"_s}
                                                 << QStringList() << QList<NameCheck>{free, free};
        QTest::newRow("taken on disk") << QStringList{u"a.jpg=x"_s, u"b.jpg=y"_s}
                                       << QStringList{u"x.jpg"_s} << QList<NameCheck>{taken, free};
        QTest::newRow("taken by a folder")
            << QStringList{u"a.jpg=x"_s} << QStringList{u"x.jpg/"_s} << QList<NameCheck>{taken};
        QTest::newRow("taken by a link to nowhere")
            << QStringList{u"a.jpg=x"_s} << QStringList{u"@x.jpg"_s} << QList<NameCheck>{taken};
        QTest::newRow("the name it has")
            << QStringList{u"a.jpg=a"_s} << QStringList() << QList<NameCheck>{NameCheck::Unchanged};
        QTest::newRow("no name") << QStringList{u"a.jpg="_s} << QStringList()
                                 << QList<NameCheck>{NameCheck::NoName};

        // Names held by listed files: free when the holder moves away, taken when it stays.
        QTest::newRow("a chain") << QStringList{u"f4.txt=f5"_s, u"f5.txt=f6"_s, u"f6.txt=f7"_s}
                                 << QStringList() << QList<NameCheck>{free, free, free};
        QTest::newRow("a ring") << QStringList{u"a.txt=b"_s, u"b.txt=c"_s, u"c.txt=a"_s}
                                << QStringList() << QList<NameCheck>{free, free, free};
        QTest::newRow("held by a row without a name")
            << QStringList{u"a.txt=b"_s, u"b.txt="_s} << QStringList()
            << QList<NameCheck>{taken, NameCheck::NoName};
        QTest::newRow("held by a row that keeps its name")
            << QStringList{u"a.txt=b"_s, u"b.txt=b"_s} << QStringList()
            << QList<NameCheck>{taken, NameCheck::Unchanged};
        QTest::newRow("a chain whose end is taken on disk")
            << QStringList{u"a.txt=b"_s, u"b.txt=c"_s, u"c.txt=d"_s} << QStringList{u"d.txt"_s}
            << QList<NameCheck>{taken, taken, taken};
        QTest::newRow("held by a row in conflict")
            << QStringList{u"a.txt=b"_s, u"b.txt=z"_s, u"c.txt=z"_s} << QStringList()
            << QList<NameCheck>{taken, twice, twice};
        QTest::newRow("held by a row with a name that cannot be")
            << QStringList{u"a.txt=b"_s, u"b.txt=x/y"_s} << QStringList()
            << QList<NameCheck>{taken, NameCheck::Slash};

        // Texts that cannot be one file name.
        QTest::newRow("slash") << QStringList{u"a.jpg=x/y"_s} << QStringList()
                               << QList<NameCheck>{NameCheck::Slash};
        QTest::newRow("dot dot, no extension") << QStringList{u"notes=.."_s} << QStringList()
                                               << QList<NameCheck>{NameCheck::DotOrDotDot};
        QTest::newRow("too long") << QStringList{u"a.jpg="_s + QString(252, u'n')} << QStringList()
                                  << QList<NameCheck>{NameCheck::TooLong};
        QTest::newRow("NUL") << QStringList{u"a.jpg=x"_s + QChar(u'\0')} << QStringList()
                             << QList<NameCheck>{NameCheck::Nul};
        QTest::newRow("not UTF-8") << QStringList{u"a.jpg="_s + QChar(0xdc80)} << QStringList()
                                   << QList<NameCheck>{NameCheck::NotEncodable};
    }
    void eachNameMeetsTheOthersAndTheFolder()
    {
        QFETCH(QStringList, rows);
        QFETCH(QStringList, present);
        QFETCH(QList<NameCheck>, checks);
        TestDir dir;
        for (const QString &name : present) {
            if (name.endsWith(u'/'))
                dir.createDir(name);
            else if (name.startsWith(u'@'))
                QVERIFY(QFile::link(dir.filePath(u"nowhere"_s), dir.filePath(name.mid(1))));
            else
                dir.createFile(name, "present");
        }
        RenameFileDetails details;
        QStringList keys;
        for (const QString &row : rows) {
            const qsizetype equals = row.indexOf(u'=');
            const QString file = row.left(equals);
            const QString path = dir.createFile(file, file.toUtf8());
            const QString key = file.section(u'/', -1);
            details.insert(key,
                           RenameRecord{QUrl::fromLocalFile(path), row.mid(equals + 1), {}, {}});
            keys.append(key);
        }
        const qsizetype free = BRRenameFormat::checkNames(keys, details);
        QList<NameCheck> found;
        for (const QString &key : std::as_const(keys))
            found.append(details.value(key).check);
        QCOMPARE(found, checks);
        QCOMPARE(free, checks.count(NameCheck::Free));
    }

    // A batch large against its folder has the folder read once instead of each name looked
    // up: it finds the same names taken, links to nowhere among them.
    void aLargeBatchFindsTakenNamesByReadingTheFolder()
    {
        TestDir dir;
        RenameFileDetails details;
        QStringList keys;
        for (int i = 0; i < 40; ++i) {
            const QString key = u"f%1.txt"_s.arg(i, 2, 10, QLatin1Char('0'));
            const QString path = dir.createFile(key, key.toUtf8());
            details.insert(key, RenameRecord{QUrl::fromLocalFile(path),
                                             u"g%1"_s.arg(i, 2, 10, QLatin1Char('0')),
                                             {},
                                             {}});
            keys.append(key);
        }
        dir.createFile(u"g07.txt"_s, "present");
        dir.createDir(u"g23.txt"_s);
        QVERIFY(QFile::link(dir.filePath(u"nowhere"_s), dir.filePath(u"g30.txt"_s)));
        QCOMPARE(BRRenameFormat::checkNames(keys, details), 37);
        QStringList taken;
        for (const QString &key : std::as_const(keys))
            if (details.value(key).check == NameCheck::TakenInFolder)
                taken.append(key);
        QCOMPARE(taken, (QStringList{u"f07.txt"_s, u"f23.txt"_s, u"f30.txt"_s}));
    }

    // The check's word is the rename's: a row found free is renamed, the others not.
    void whatTheCheckSaysIsWhatTheRenameDoes()
    {
        TestDir dir;
        RenameFileDetails details;
        RenameBookmarks bookmarks;
        QStringList keys;
        const BRRenameFormat format;
        const QStringList rows{u"a.txt=b"_s, u"b.txt=c"_s, u"c.txt=a"_s,
                               u"d.txt=z"_s, u"e.txt=z"_s, u"f.txt=taken"_s};
        dir.createFile(u"taken.txt"_s, "present");
        for (const QString &row : rows) {
            const QString file = row.section(u'=', 0, 0);
            const QUrl url = QUrl::fromLocalFile(dir.createFile(file, file.toUtf8()));
            format.saveBookmark(url, bookmarks);
            details.insert(file, RenameRecord{url, row.section(u'=', 1), {}, {}});
            keys.append(file);
        }
        RenameFileDetails checked = details;
        QCOMPARE(BRRenameFormat::checkNames(keys, checked), 3);
        const ExecutionReport report = format.renameFiles(keys, details, bookmarks);
        for (const QString &key : std::as_const(keys)) {
            QCOMPARE(details.value(key).check, checked.value(key).check);
            QCOMPARE(details.value(key).outcome == RenameOutcome::Succeeded,
                     checked.value(key).check == NameCheck::Free);
        }
        QCOMPARE(report.renamed.size(), 3);
    }

    // What the user reads: the file, and the cause in words.
    void problemsAreSentencesThatNameTheFile_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("taken") << RenameProblemText::conflict(u"photo.png"_s, u"x.png"_s,
                                                              NameCheck::TakenInFolder)
                               << u"photo.png will not be renamed. A file named \u201cx.png\u201d "
                                  "is already in this folder."_s;
        QTest::newRow("twice") << RenameProblemText::conflict(u"a.jpg"_s, u"x.jpg"_s,
                                                              NameCheck::SameAsAnotherRow)
                               << u"a.jpg will not be renamed. Another file in the list would "
                                  "also be named \u201cx.jpg\u201d in this folder."_s;
        QTest::newRow("permission") << RenameProblemText::failure(u"a.jpg"_s, EACCES)
                                    << u"a.jpg could not be renamed. Permission denied: the file "
                                       "or its folder is locked, or you may not change it."_s;
        QTest::newRow("exists") << RenameProblemText::failure(u"a.jpg"_s, EEXIST)
                                << u"a.jpg could not be renamed. A file with that name already "
                                   "exists."_s;
        QTest::newRow("gone") << RenameProblemText::failure(u"a.jpg"_s, ENOENT)
                              << u"a.jpg could not be renamed. The file was not found."_s;
        QTest::newRow("undo") << RenameProblemText::undoFailure(u"Trip1.jpg"_s, u"a.jpg"_s,
                                                                NameCheck::Free, EEXIST)
                              << u"Trip1.jpg could not be named a.jpg again. A file with that "
                                 "name already exists."_s;
    }
    void problemsAreSentencesThatNameTheFile()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(text, expected);
    }
};

QTEST_GUILESS_MAIN(tst_RenameConflicts)
#include "tst_renameconflicts.moc"
