#include "BRRenameFormat.h"
#include "FileMover.h"
#include "ImmutableFlag.h"
#include "TestDir.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTest>

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

// Every entry below the folder, with each file's content: what a failed step must not change.
QStringList treeOf(const QString &root)
{
    QStringList tree;
    const QDir dir(root);
    const auto entries = dir.entryInfoList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &entry : entries) {
        tree.append(entry.fileName() + u'=' + QString::fromUtf8(contentOf(entry.filePath())));
        if (entry.isDir() && !entry.isSymLink())
            tree.append(treeOf(entry.filePath())
                            .replaceInStrings(QRegularExpression(u"^"_s), entry.fileName() + u'/'));
    }
    return tree;
}

// A folder of listed files, as the rename screen holds them: each file's content is its
// own name, so a file that took another's place would show.
struct Listing
{
    TestDir dir;
    BRRenameFormat format;
    RenameFileDetails details;
    RenameBookmarks bookmarks;
    QStringList keys;

    void list(const QString &relativePath, const std::optional<QString> &newName = QString())
    {
        const QString path = dir.filePath(relativePath);
        if (!QFileInfo::exists(path))
            dir.createFile(relativePath, relativePath.toUtf8());
        const QUrl url = QUrl::fromLocalFile(path);
        const QString key = url.fileName();
        format.saveBookmark(url, bookmarks);
        details.insert(key, RenameRecord{url, newName, {}, {}});
        keys.append(key);
    }
    ExecutionReport run() { return format.renameFiles(keys, details, bookmarks); }
    QList<RenameOutcome> states() const
    {
        QList<RenameOutcome> states;
        for (const QString &key : keys)
            states.append(details.value(key).outcome);
        return states;
    }
    QList<NameCheck> checks() const
    {
        QList<NameCheck> checks;
        for (const QString &key : keys)
            checks.append(details.value(key).check);
        return checks;
    }
    QString content(const QString &relativePath) const
    {
        return QString::fromUtf8(contentOf(dir.filePath(relativePath)));
    }
};

QStringList g_logged;

void collectLog(QtMsgType, const QMessageLogContext &context, const QString &message)
{
    if (qstrcmp(context.category, "quillmere.rename") == 0)
        g_logged.append(message);
}

} // namespace

class tst_RenameExecution : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void movesEveryFileUnderItsRuleName()
    {
        Listing l;
        for (const QString &name : {u"a.jpg"_s, u"b.jpg"_s, u"c.png"_s})
            l.list(name);
        QVERIFY(l.format.changeFullFileNames(u"1"_s, u"Trip"_s, l.details, l.keys,
                                             NamePlacement::AfterName));
        QCOMPARE(l.run().missingKeys, QStringList());
        QCOMPARE(l.states(), QList<RenameOutcome>(3, RenameOutcome::Succeeded));
        QCOMPARE(treeOf(l.dir.path()),
                 (QStringList{u"Trip1.jpg=a.jpg"_s, u"Trip2.jpg=b.jpg"_s, u"Trip3.png=c.png"_s}));
        // The rows still name where the files were; the screen drops them after a success.
        QCOMPARE(l.details.value(u"a.jpg"_s).sourceURL.fileName(), u"a.jpg"_s);
    }

    // Nothing is replaced, and a row in conflict is not even attempted: a name taken in the
    // folder, one that two rows of the batch would take (neither gets it), the name a file
    // has already. The others go on.
    void rowsInConflictAreNotAttempted_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QList<RenameOutcome>>("states");
        QTest::addColumn<QList<NameCheck>>("checks");
        QTest::addColumn<QStringList>("tree");
        const RenameOutcome ok = RenameOutcome::Succeeded;
        const RenameOutcome no = RenameOutcome::NotTried;
        const NameCheck free = NameCheck::Free;
        const NameCheck taken = NameCheck::TakenInFolder;
        QTest::newRow("one name taken")
            << QStringList{u"a.jpg"_s, u"b.jpg"_s} << QStringList{u"a1"_s, u"a2"_s}
            << QStringList{u"a1.jpg"_s} << QList<RenameOutcome>{no, ok}
            << QList<NameCheck>{taken, free}
            << QStringList{u"a.jpg=a.jpg"_s, u"a1.jpg=present"_s, u"a2.jpg=b.jpg"_s};
        QTest::newRow("every name taken")
            << QStringList{u"a.jpg"_s, u"b.jpg"_s} << QStringList{u"x"_s, u"y"_s}
            << QStringList{u"x.jpg"_s, u"y.jpg"_s} << QList<RenameOutcome>{no, no}
            << QList<NameCheck>{taken, taken}
            << QStringList{u"a.jpg=a.jpg"_s, u"b.jpg=b.jpg"_s, u"x.jpg=present"_s,
                           u"y.jpg=present"_s};
        QTest::newRow("two rows, one name")
            << QStringList{u"a.1.txt"_s, u"a.2.txt"_s, u"c.txt"_s}
            << QStringList{u"a-x"_s, u"a-x"_s, u"c-x"_s} << QStringList()
            << QList<RenameOutcome>{no, no, ok}
            << QList<NameCheck>{NameCheck::SameAsAnotherRow, NameCheck::SameAsAnotherRow, free}
            << QStringList{u"a.1.txt=a.1.txt"_s, u"a.2.txt=a.2.txt"_s, u"c-x.txt=c.txt"_s};
        // A file that has its new name already is neither renamed nor failed.
        QTest::newRow("the name it has")
            << QStringList{u"a.jpg"_s} << QStringList{u"a"_s} << QStringList()
            << QList<RenameOutcome>{no} << QList<NameCheck>{NameCheck::Unchanged}
            << QStringList{u"a.jpg=a.jpg"_s};
        QTest::newRow("a folder of that name")
            << QStringList{u"a.jpg"_s} << QStringList{u"Trip"_s} << QStringList{u"Trip.jpg/"_s}
            << QList<RenameOutcome>{no} << QList<NameCheck>{taken}
            << QStringList{u"a.jpg=a.jpg"_s, u"Trip.jpg=<none>"_s};
        // b.jpg keeps its name, so a.jpg cannot have it; c.jpg waits on a.jpg's name, which
        // a.jpg now keeps.
        QTest::newRow("a chain that ends on a file that stays")
            << QStringList{u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s}
            << QStringList{u"b"_s, u"b"_s, u"a"_s} << QStringList()
            << QList<RenameOutcome>{no, no, no}
            << QList<NameCheck>{taken, NameCheck::Unchanged, taken}
            << QStringList{u"a.jpg=a.jpg"_s, u"b.jpg=b.jpg"_s, u"c.jpg=c.jpg"_s};
    }
    void rowsInConflictAreNotAttempted()
    {
        QFETCH(QStringList, files);
        QFETCH(QStringList, names);
        QFETCH(QStringList, present);
        QFETCH(QList<RenameOutcome>, states);
        QFETCH(QList<NameCheck>, checks);
        QFETCH(QStringList, tree);
        Listing l;
        for (qsizetype i = 0; i < files.size(); ++i)
            l.list(files.at(i), names.at(i));
        for (const QString &taken : present) {
            if (taken.endsWith(u'/'))
                l.dir.createDir(taken);
            else
                l.dir.createFile(taken, "present");
        }
        const ExecutionReport report = l.run();
        QCOMPARE(report.missingKeys, QStringList());
        QCOMPARE(l.states(), states);
        QCOMPARE(l.checks(), checks);
        QCOMPARE(treeOf(l.dir.path()), sorted(tree));
        QCOMPARE(report.renamed.size(), states.count(RenameOutcome::Succeeded));
    }

    // The user is told that some files could not be renamed; the log says which, and why,
    // in the system's words, once its category is turned on.
    // Renumbering a numbered set: each file takes a name another file of the batch leaves.
    // A chain succeeds from its end, a cycle through a passing name; every file keeps its
    // content under its new name and nothing is left behind.
    void chainsAndCyclesOfNames_data()
    {
        QTest::addColumn<QStringList>("names");    // the files, in list order
        QTest::addColumn<QStringList>("newNames"); // their new base names
        QTest::newRow("file4-6 from 5")
            << QStringList{u"file4.txt"_s, u"file5.txt"_s, u"file6.txt"_s}
            << QStringList{u"file5"_s, u"file6"_s, u"file7"_s};
        QTest::newRow("Trip1-2 from 2")
            << QStringList{u"Trip1.jpg"_s, u"Trip2.jpg"_s} << QStringList{u"Trip2"_s, u"Trip3"_s};
        QTest::newRow("a swap") << QStringList{u"a.txt"_s, u"b.txt"_s}
                                << QStringList{u"b"_s, u"a"_s};
        QTest::newRow("a ring of three") << QStringList{u"a.txt"_s, u"b.txt"_s, u"c.txt"_s}
                                         << QStringList{u"b"_s, u"c"_s, u"a"_s};
        QStringList many, shifted, ring;
        for (int i = 0; i < 1000; ++i) {
            many.append(u"n%1.dat"_s.arg(i));
            shifted.append(u"n%1"_s.arg(i + 1));
            ring.append(u"n%1"_s.arg((i + 1) % 1000));
        }
        QTest::newRow("a chain of 1,000") << many << shifted;
        QTest::newRow("a ring of 1,000") << many << ring;
    }
    void chainsAndCyclesOfNames()
    {
        QFETCH(QStringList, names);
        QFETCH(QStringList, newNames);
        Listing l;
        for (qsizetype at = 0; at < names.size(); ++at)
            l.list(names.at(at), newNames.at(at));
        QCOMPARE(l.run().missingKeys, QStringList());
        QCOMPARE(l.states(), QList<RenameOutcome>(names.size(), RenameOutcome::Succeeded));
        QDir folder(l.dir.path());
        QStringList expected;
        for (qsizetype at = 0; at < names.size(); ++at) {
            const QString extension = QFileInfo(names.at(at)).suffix();
            const QString target = newNames.at(at) + u'.' + extension;
            expected.append(target);
            QCOMPARE(l.content(target), names.at(at)); // each file holds its own name
        }
        expected.sort();
        QStringList present = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
        present.sort();
        QCOMPARE(present, expected); // no passing name is left
    }

    // A ring whose middle file cannot move: nothing is lost and every file has a name. The
    // file that stepped aside for the ring cannot go back (its old name was taken by then),
    // and its row says where it is.
    void aRingBrokenInTheMiddleLosesNothing()
    {
        Listing l;
        l.list(u"a.txt"_s, u"b"_s);
        l.list(u"b.txt"_s, u"c"_s);
        l.list(u"c.txt"_s, u"a"_s);
        const ImmutableFlag stuck(l.dir.filePath(u"b.txt"_s));
        if (!stuck.isSet())
            QSKIP(qPrintable(stuck.error()));
        QCOMPARE(l.run().missingKeys, QStringList());
        QCOMPARE(l.states(), (QList<RenameOutcome>{RenameOutcome::Failed, RenameOutcome::Failed,
                                                   RenameOutcome::Succeeded}));
        // The system's reason stays with the row that met it.
        QCOMPARE(l.details.value(u"b.txt"_s).failureError, EPERM);
        QCOMPARE(l.content(u"b.txt"_s), u"b.txt"_s);
        QCOMPARE(l.content(u"a.txt"_s), u"c.txt"_s);
        const QString aside = l.details.value(u"a.txt"_s).sourceURL.toLocalFile();
        QVERIFY(aside != l.dir.filePath(u"a.txt"_s));
        QCOMPARE(QString::fromUtf8(contentOf(aside)), u"a.txt"_s);
        QCOMPARE(QDir(l.dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 3);
    }

    void failuresAreLoggedWithTheirCause()
    {
        Listing l;
        l.list(u"a.jpg"_s, u"x"_s);
        l.list(u"b.jpg"_s, u"../y"_s);
        l.list(u"c.jpg"_s, u"z"_s);
        l.dir.createFile(u"x.jpg"_s, "present");
        l.dir.removeFile(u"c.jpg"_s);
        QLoggingCategory::setFilterRules(u"quillmere.rename=true"_s);
        g_logged.clear();
        const QtMessageHandler previous = qInstallMessageHandler(collectLog);
        const ExecutionReport report = l.run();
        qInstallMessageHandler(previous);
        QLoggingCategory::setFilterRules(QString());

        QCOMPARE(report.missingKeys, QStringList{u"c.jpg"_s});
        // Places are found for every row, then the names checked, before any file moves.
        QCOMPARE(g_logged.size(), 3);
        QVERIFY2(g_logged[0].contains(l.dir.filePath(u"c.jpg"_s)), qPrintable(g_logged[0]));
        QVERIFY2(g_logged[1].contains(l.dir.filePath(u"a.jpg"_s)) &&
                     g_logged[1].contains(u"x.jpg there: a file that stays has that name"_s),
                 qPrintable(g_logged[1]));
        QVERIFY2(g_logged[2].contains(u"cannot be named ../y.jpg there: it holds a slash"_s),
                 qPrintable(g_logged[2]));
    }

    // Names the file system could not hold as one name in the folder are refused before
    // any move; the nearest names that it can hold are taken as they stand.
    void targetNames_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("newName");
        QTest::addColumn<QString>("moved"); // "" when the name is refused
        QTest::addColumn<NameCheck>("check");
        const QString e = u"\u00e9"_s; // two bytes in UTF-8
        const NameCheck ok = NameCheck::Free;
        QTest::newRow("slash") << u"notes"_s << u"sub/x"_s << QString() << NameCheck::Slash;
        QTest::newRow("dot") << u"notes"_s << u"."_s << QString() << NameCheck::DotOrDotDot;
        QTest::newRow("dot dot") << u"notes"_s << u".."_s << QString() << NameCheck::DotOrDotDot;
        QTest::newRow("NUL") << u"notes"_s << u"a"_s + QChar(u'\0') + u"b"_s << QString()
                             << NameCheck::Nul;
        QTest::newRow("lone surrogate")
            << u"notes"_s << QString(QChar(0xd800)) << QString() << NameCheck::NotEncodable;
        QTest::newRow("256 bytes")
            << u"a.jpg"_s << QString(252, u'n') << QString() << NameCheck::TooLong;
        QTest::newRow("256 bytes, two a letter")
            << u"notes"_s << e.repeated(128) << QString() << NameCheck::TooLong;
        QTest::newRow("255 bytes")
            << u"a.jpg"_s << QString(251, u'n') << QString(251, u'n') + u".jpg"_s << ok;
        QTest::newRow("255 bytes, two a letter")
            << u"notes"_s << e.repeated(127) + u"n"_s << e.repeated(127) + u"n"_s << ok;
        QTest::newRow("no extension, a dot typed") << u"notes"_s << u"v1.2"_s << u"v1.2"_s << ok;
        QTest::newRow("a dot on a file with an extension")
            << u"a.jpg"_s << u"."_s << u"..jpg"_s << ok;
        QTest::newRow("hidden source keeps its suffix")
            << u".profile"_s << u"p"_s << u"p.profile"_s << ok;
        QTest::newRow("dot at the end") << u"draft."_s << u"final"_s << u"final"_s << ok;
        // Characters that mean something to URLs, shells or format strings are plain names.
        QTest::newRow("newline in both") << u"a\nb.jpg"_s << u"c\nd"_s << u"c\nd.jpg"_s << ok;
        QTest::newRow("percent signs")
            << u"100%25 done.txt"_s << u"%1 %2F%s"_s << u"%1 %2F%s.txt"_s << ok;
        QTest::newRow("hash and question mark") << u"#1?.png"_s << u"?#"_s << u"?#.png"_s << ok;
    }
    void targetNames()
    {
        QFETCH(QString, file);
        QFETCH(QString, newName);
        QFETCH(QString, moved);
        QFETCH(NameCheck, check);
        Listing l;
        l.dir.createDir(u"sub"_s);
        l.list(file, newName);
        const QStringList before = treeOf(l.dir.path());
        QCOMPARE(l.run().missingKeys, QStringList());
        QCOMPARE(l.checks(), QList<NameCheck>{check});
        if (moved.isEmpty()) {
            QCOMPARE(l.states(), QList<RenameOutcome>{RenameOutcome::NotTried});
            QCOMPARE(treeOf(l.dir.path()), before);
        } else {
            QCOMPARE(l.states(), QList<RenameOutcome>{RenameOutcome::Succeeded});
            QCOMPARE(treeOf(l.dir.path()), sorted({moved + u'=' + file, u"sub=<none>"_s}));
        }
    }

    // Rows with no name are not attempted, nor reported, even when their file is gone.
    void rowsWithoutANameAreLeftAlone()
    {
        Listing l;
        l.list(u"a.jpg"_s, QString());
        l.list(u"b.jpg"_s, std::nullopt);
        l.list(u"c.jpg"_s, QString());
        l.dir.removeFile(u"c.jpg"_s);
        QCOMPARE(l.run().missingKeys, QStringList());
        QCOMPARE(l.states(), QList<RenameOutcome>(3, RenameOutcome::NotTried));
        QCOMPARE(treeOf(l.dir.path()), (QStringList{u"a.jpg=a.jpg"_s, u"b.jpg=b.jpg"_s}));
    }

    void aFolderIsRenamedWithItsSuffix()
    {
        Listing l;
        l.dir.createFile(u"photos.2019/in.jpg"_s, "in");
        l.dir.createFile(u"Album/in.jpg"_s, "in");
        l.list(u"photos.2019"_s, u"Trip1"_s);
        l.list(u"Album"_s, u"Trip2"_s);
        l.run();
        QCOMPARE(l.states(), QList<RenameOutcome>(2, RenameOutcome::Succeeded));
        QCOMPARE(treeOf(l.dir.path()),
                 (QStringList{u"Trip1.2019=<none>"_s, u"Trip1.2019/in.jpg=in"_s, u"Trip2=<none>"_s,
                              u"Trip2/in.jpg=in"_s}));
    }

    // A file deleted after listing is reported and its row left as it was; the file that
    // then takes its inode is not mistaken for it.
    void aDeletedFileIsReportedAndTheRunGoesOn()
    {
        Listing l;
        for (const QString &name : {u"a.jpg"_s, u"b.jpg"_s, u"c.png"_s})
            l.list(name, u"new-"_s + name.left(1));
        l.dir.removeFile(u"b.jpg"_s);
        l.dir.createFile(u"newcomer.jpg"_s, "newcomer");
        QCOMPARE(l.run().missingKeys, QStringList{u"b.jpg"_s});
        QCOMPARE(l.states(),
                 (QList<RenameOutcome>{RenameOutcome::Succeeded, RenameOutcome::NotTried,
                                       RenameOutcome::Succeeded}));
        QCOMPARE(treeOf(l.dir.path()), (QStringList{u"new-a.jpg=a.jpg"_s, u"new-c.png=c.png"_s,
                                                    u"newcomer.jpg=newcomer"_s}));
    }

    void aMovedFileIsRenamedWhereItIsNow_data()
    {
        QTest::addColumn<QString>("movedTo");
        QTest::newRow("renamed in place") << u"Pictures/z.jpg"_s;
        QTest::newRow("into a folder beside it") << u"Pictures/Trip/a.jpg"_s;
        QTest::newRow("into a folder below that") << u"Pictures/Trip/Day 1/a.jpg"_s;
        QTest::newRow("into a folder beside its folder") << u"Archive/a.jpg"_s;
    }
    void aMovedFileIsRenamedWhereItIsNow()
    {
        QFETCH(QString, movedTo);
        Listing l;
        l.dir.createDir(u"Pictures/Trip/Day 1"_s);
        l.dir.createDir(u"Archive"_s);
        l.list(u"Pictures/a.jpg"_s, u"Trip1"_s);
        QVERIFY(QDir().rename(l.dir.filePath(u"Pictures/a.jpg"_s), l.dir.filePath(movedTo)));
        QCOMPARE(l.run().missingKeys, QStringList());
        QCOMPARE(l.states(), QList<RenameOutcome>{RenameOutcome::Succeeded});
        const QString folder = QFileInfo(l.dir.filePath(movedTo)).path();
        QCOMPARE(contentOf(folder + u"/Trip1.jpg"_s), QByteArray("Pictures/a.jpg"));
        QCOMPARE(l.details.value(u"a.jpg"_s).sourceURL,
                 QUrl::fromLocalFile(l.dir.filePath(movedTo)));
        QVERIFY(l.bookmarks.contains(l.dir.filePath(movedTo)));
    }

    void aFolderMovedAwayIsFollowed()
    {
        Listing l;
        for (const QString &name : {u"a.jpg"_s, u"b.jpg"_s, u"c.png"_s})
            l.list(u"Pictures/"_s + name, u"new-"_s + name.left(1));
        QVERIFY(QDir().rename(l.dir.filePath(u"Pictures"_s), l.dir.filePath(u"Old"_s)));
        QCOMPARE(l.run().missingKeys, QStringList());
        QCOMPARE(l.states(), QList<RenameOutcome>(3, RenameOutcome::Succeeded));
        QCOMPARE(
            treeOf(l.dir.path()),
            (QStringList{u"Old=<none>"_s, u"Old/new-a.jpg=Pictures/a.jpg"_s,
                         u"Old/new-b.jpg=Pictures/b.jpg"_s, u"Old/new-c.png=Pictures/c.png"_s}));
    }

    // Whatever the source, an existing target stays, and so does the source.
    void fileMoverNeverReplaces_data()
    {
        QTest::addColumn<bool>("byLink");
        QTest::addColumn<bool>("sourceIsFolder");
        QTest::addColumn<QString>("target");
        for (const bool byLink : {false, true}) {
            const char *way = byLink ? "by link" : "in one step";
            for (const bool folder : {false, true}) {
                const char *what = folder ? "folder" : "file";
                QTest::addRow("%s, %s onto a file", way, what) << byLink << folder << u"file"_s;
                QTest::addRow("%s, %s onto an empty folder", way, what)
                    << byLink << folder << u"empty/"_s;
                QTest::addRow("%s, %s onto a dangling link", way, what)
                    << byLink << folder << u"link"_s;
            }
        }
    }
    void fileMoverNeverReplaces()
    {
        QFETCH(bool, byLink);
        QFETCH(bool, sourceIsFolder);
        QFETCH(QString, target);
        TestDir dir;
        const QString source =
            sourceIsFolder ? dir.createDir(u"source"_s) : dir.createFile(u"source"_s, "source");
        dir.createFile(u"file"_s, "file");
        dir.createDir(u"empty"_s);
        QVERIFY(QFile::link(dir.filePath(u"nowhere"_s), dir.filePath(u"link"_s)));
        const QStringList before = treeOf(dir.path());
        const QString targetPath = dir.filePath(target);
        const auto result = byLink ? FileMover::moveByLink(source, targetPath)
                                   : FileMover::move(source, targetPath);
        QVERIFY(!result);
        QVERIFY(result.error != 0);
        QVERIFY(!result.errorText.isEmpty());
        QCOMPARE(treeOf(dir.path()), before);
    }

    void fileMoverMovesByLink()
    {
        TestDir dir;
        const QString source = dir.createFile(u"a.jpg"_s, "a");
        QVERIFY(FileMover::moveByLink(source, dir.filePath(u"b.jpg"_s)));
        QCOMPARE(treeOf(dir.path()), QStringList{u"b.jpg=a"_s});
    }
};

QTEST_GUILESS_MAIN(tst_RenameExecution)
#include "tst_renameexecution.moc"
