#include "ImmutableFlag.h"
#include "RenameList.h"
#include "TestDir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QList<QUrl> urls(const TestDir &dir, const char *names)
{
    QList<QUrl> list;
    for (const QString &name : QString::fromUtf8(names).split(u' ', Qt::SkipEmptyParts))
        list.append(QUrl::fromLocalFile(dir.filePath(name)));
    return list;
}

void create(TestDir &dir, const char *names)
{
    for (const QString &name : QString::fromUtf8(names).split(u' ', Qt::SkipEmptyParts))
        dir.createFile(name, name.toUtf8());
}

QString listing(const TestDir &dir)
{
    return QDir(dir.path())
        .entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)
        .join(u' ');
}

// Keeps every thread of Qt's pool busy while it lives, so that a run started meanwhile
// waits in the queue: a quick run could otherwise be over before the test acts.
class PoolHold
{
public:
    PoolHold()
    {
        for (int i = 0; i < m_threads; ++i)
            QThreadPool::globalInstance()->start([gate = m_gate] { gate->acquire(); });
    }
    ~PoolHold() { m_gate->release(m_threads); }
    PoolHold(const PoolHold &) = delete;
    PoolHold &operator=(const PoolHold &) = delete;

private:
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
    int m_threads = QThreadPool::globalInstance()->maxThreadCount();
};

// A list and the troubles it told of, in order: "already listed", "missing", "failed".
struct Listed
{
    RenameList list;
    QStringList troubles;
    QStringList renamed;
    bool emptied = false;
    int resets = 0; // times the views were told to read the rows afresh

    Listed()
    {
        QObject::connect(&list, &RenameList::rowsReset, [this] { ++resets; });
        QObject::connect(&list, &RenameList::namesAlreadyListed,
                         [this] { troubles.append(u"already listed"_s); });
        QObject::connect(&list, &RenameList::filesMissing,
                         [this] { troubles.append(u"missing"_s); });
        QObject::connect(&list, &RenameList::lastRowRemoved, [this] { emptied = true; });
        QObject::connect(&list, &RenameList::renameEnded,
                         [this](const QStringList &names, int failed) {
                             renamed = names;
                             if (failed > 0)
                                 troubles.append(u"failed"_s);
                         });
    }

    QString names() const
    {
        QStringList names;
        for (const QString &key : list.keys()) {
            const RenameRecord &row = list.records()[key];
            names.append(row.destinationURL ? *row.destinationURL : u"-"_s);
        }
        return names.join(u' ');
    }
    void waitForRules() { QTRY_VERIFY(!list.ruleRunPending()); }
    void renameAndWait()
    {
        QSignalSpy ended(&list, &RenameList::renameEnded);
        list.renameWithRule();
        QTRY_COMPARE(ended.size(), 1);
    }
    // Undoes the last rename; gives how many went back, and each failure as "name: check/error".
    std::pair<qsizetype, QStringList> undoAndWait()
    {
        bool ended = false;
        std::pair<qsizetype, QStringList> outcome;
        const auto connection = QObject::connect(
            &list, &RenameList::undoEnded,
            [&](qsizetype restored, const QList<UndoFailure> &failures) {
                ended = true;
                outcome.first = restored;
                for (const UndoFailure &failure : failures)
                    outcome.second.append(QFileInfo(failure.file.fromPath).fileName() + u": "_s +
                                          QString::number(int(failure.check)) + u"/"_s +
                                          QString::number(failure.error));
            });
        list.undoLastRename();
        [&] {
            QTRY_VERIFY(ended);
        }();
        QObject::disconnect(connection);
        return outcome;
    }
};

// Lists a.jpg b.jpg c.jpg, names them n1 to n3 and renames with b.jpg held fast, so that it
// alone fails. Empty when it ran; otherwise why b.jpg could not be held.
QString renameWithTheMiddleOneStuck(TestDir &dir, Listed &l)
{
    create(dir, "a.jpg b.jpg c.jpg");
    l.list.add(urls(dir, "a.jpg b.jpg c.jpg"));
    l.list.setFullNameRule(u"n"_s, u"1"_s, NamePlacement::AfterName);
    l.waitForRules();
    const ImmutableFlag stuck(dir.filePath(u"b.jpg"_s));
    if (!stuck.isSet())
        return stuck.error();
    l.renameAndWait();
    return {};
}

} // namespace

// The rename list, its rules and its runs, on real files in temporary folders.
class tst_RenameList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addingSortsAndRefusesNamesAlreadyListed()
    {
        TestDir one, two;
        create(one, "img2.png IMG10.png Img1.png x.txt");
        create(two, "x.txt");
        Listed l;
        QSignalSpy counts(&l.list, &RenameList::rowCountChanged);
        l.list.add(urls(one, "img2.png IMG10.png"));
        QVERIFY(l.troubles.isEmpty());
        l.list.add(urls(one, "Img1.png x.txt") + urls(two, "x.txt") + urls(one, "img2.png"));
        QCOMPARE(l.list.keys().join(u' '), u"Img1.png img2.png IMG10.png x.txt");
        QCOMPARE(l.troubles, QStringList{u"already listed"_s});
        // The first x.txt stays, from the first folder.
        QCOMPARE(l.list.records()[u"x.txt"_s].sourceURL.toLocalFile(), one.filePath(u"x.txt"_s));
        QCOMPARE(l.list.insertionIndex(), 4);
        QCOMPARE(counts.size(), 2);
        QCOMPARE(counts.last().first().toInt(), 4);
    }

    void rulesLandTheLastTextTypedAndSpareHandEdits()
    {
        TestDir dir;
        create(dir, "a.jpg b.jpg c.png");
        Listed l;
        l.list.add(urls(dir, "a.jpg b.jpg c.png"));
        const NamePlacement after = NamePlacement::AfterName;
        // Keystrokes faster than the runs: only the last text may land.
        for (const QString &text : {u"T"_s, u"Tr"_s, u"Tri"_s, u"Trip"_s})
            l.list.setFullNameRule(text, u"1"_s, after);
        l.waitForRules();
        QCOMPARE(l.names(), u"Trip1 Trip2 Trip3");
        QVERIFY(l.list.renameActive());

        l.list.setHandName(1, u"Bee"_s);
        l.list.setFullNameRule(u"Trip"_s, u"99999"_s, after);
        l.waitForRules();
        QCOMPARE(l.names(), u"Trip99999 Bee Trip100001");
        // Withdrawn alone, the row's own number falls back to its position.
        l.list.setHandName(1, QString());
        QCOMPARE(l.names(), u"Trip99999 Trip2 Trip100001");
        QCOMPARE(l.list.records()[u"b.jpg"_s].nameSource, NameSource::Rule);

        // Typing the name a row already has does not mark it.
        l.list.setHandName(1, u"Trip2"_s);
        QCOMPARE(l.list.records()[u"b.jpg"_s].nameSource, NameSource::Rule);

        // Emptying the rule text clears the rule names, also of a run still under way,
        // and leaves an edited name alone.
        l.list.setHandName(1, u"Bee"_s);
        l.list.setAddTextRule(u"-x"_s, NamePlacement::BeforeName);
        l.list.setAddTextRule(QString(), NamePlacement::BeforeName);
        l.waitForRules();
        QCOMPARE(l.names(), u"- Bee -");
        QVERIFY(!l.list.renameActive());
        QVERIFY(!l.list.rule());
    }

    // A hand edit made while a run works is kept when the run's names land.
    void aHandEditDuringARunIsKept()
    {
        TestDir dir;
        create(dir, "a.jpg b.jpg");
        Listed l;
        l.list.add(urls(dir, "a.jpg b.jpg"));
        l.list.setAddTextRule(u"-x"_s, NamePlacement::AfterName);
        l.waitForRules();
        const int resetsBefore = l.resets;
        {
            PoolHold hold;
            l.list.setAddTextRule(u"-y"_s, NamePlacement::AfterName);
            l.list.setHandName(0, u"Bee"_s);
            QVERIFY(l.list.ruleRunPending());
        }
        l.waitForRules();
        QCOMPARE(l.names(), u"Bee b-y");
        // The same rows: names repainted, no row rebuilt.
        QCOMPARE(l.resets, resetsBefore);
    }

    void aSecondPressWhileFilesMoveDoesNothing()
    {
        TestDir dir;
        create(dir, "a.jpg b.jpg");
        Listed l;
        l.list.add(urls(dir, "a.jpg b.jpg"));
        // Without a rule the button does nothing.
        l.list.renameWithRule();
        QVERIFY(!l.list.renameRunning());
        l.list.setFullNameRule(u"n"_s, QString(), NamePlacement::AfterName);
        l.waitForRules();
        QSignalSpy started(&l.list, &RenameList::renameStarted);
        QSignalSpy ended(&l.list, &RenameList::renameEnded);
        l.list.renameWithRule();
        l.list.renameWithRule();
        QCOMPARE(started.size(), 1);
        QTRY_COMPARE(ended.size(), 1);
        QTest::qWait(50);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(listing(dir), u"n1.jpg n2.jpg");
        QVERIFY(l.troubles.isEmpty());
    }

    void runsEndAsTheirOutcomesSay_data()
    {
        QTest::addColumn<QString>("onDisk");  // before the run
        QTest::addColumn<QString>("taken");   // created after listing
        QTest::addColumn<QString>("deleted"); // removed after listing
        QTest::addColumn<QStringList>("troubles");
        QTest::addColumn<QString>("ending"); // renamed: the list is done; emptied; kept
        QTest::addColumn<QString>("rows");   // the list afterwards
        QTest::addColumn<QString>("disk");   // after the run

        const QString failed = u"failed"_s;
        const QString missing = u"missing"_s;
        QTest::newRow("all moved") << u"a.jpg b.jpg"_s << QString() << QString() << QStringList()
                                   << u"renamed"_s << QString() << u"n1.jpg n2.jpg"_s;
        QTest::newRow("some failed")
            << u"a.jpg b.jpg"_s << u"n1.jpg"_s << QString() << QStringList{failed} << u"renamed"_s
            << QString() << u"a.jpg n1.jpg n2.jpg"_s;
        QTest::newRow("none moved")
            << u"a.jpg b.jpg"_s << u"n1.jpg n2.jpg"_s << QString() << QStringList{failed}
            << u"kept"_s << u"a.jpg b.jpg"_s << u"a.jpg b.jpg n1.jpg n2.jpg"_s;
        QTest::newRow("missing, rest moved")
            << u"a.jpg b.jpg"_s << QString() << u"a.jpg"_s << QStringList{missing} << u"renamed"_s
            << QString() << u"n2.jpg"_s;
        QTest::newRow("missing, failed, none moved")
            << u"a.jpg b.jpg"_s << u"n2.jpg"_s << u"a.jpg"_s << QStringList{missing, failed}
            << u"kept"_s << u"b.jpg"_s << u"b.jpg n2.jpg"_s;
        QTest::newRow("all missing")
            << u"a.jpg b.jpg"_s << QString() << u"a.jpg b.jpg"_s << QStringList{missing}
            << u"emptied"_s << QString() << QString();
    }
    void runsEndAsTheirOutcomesSay()
    {
        QFETCH(QString, onDisk);
        QFETCH(QString, taken);
        QFETCH(QString, deleted);
        QFETCH(QStringList, troubles);
        QFETCH(QString, ending);
        QFETCH(QString, rows);
        QFETCH(QString, disk);

        TestDir dir;
        create(dir, onDisk.toUtf8().constData());
        Listed l;
        l.list.add(urls(dir, onDisk.toUtf8().constData()));
        l.list.setFullNameRule(u"n"_s, u"1"_s, NamePlacement::AfterName);
        l.waitForRules();
        create(dir, taken.toUtf8().constData());
        for (const QString &name : deleted.split(u' ', Qt::SkipEmptyParts))
            dir.removeFile(name);
        const QStringList keysBefore = l.list.keys();
        const int resetsBefore = l.resets;
        l.renameAndWait();

        QCOMPARE(l.troubles, troubles);
        QCOMPARE(l.list.keys().join(u' '), rows);
        // Rows that left the list leave the screen too, whatever else the run did.
        if (l.list.keys() != keysBefore)
            QVERIFY(l.resets > resetsBefore);
        QCOMPARE(listing(dir), disk);
        const QString ended = !l.renamed.isEmpty() ? u"renamed"_s
                              : l.emptied          ? u"emptied"_s
                                                   : u"kept"_s;
        QCOMPARE(ended, ending);
        // Taken names keep their own contents: nothing was overwritten.
        for (const QString &name : taken.split(u' ', Qt::SkipEmptyParts)) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), name.toUtf8());
        }
        if (ending == u"kept")
            QVERIFY(l.list.renameActive()); // the rule stays, so the user can try again
    }

    // A failed row is held after a run that moved the others, with its name and the system's
    // reason; brought back, it is ready for another try without a rule, and the next press
    // renames it.
    void failedRowsComeBackForAnotherTry()
    {
        TestDir dir;
        Listed l;
        if (const QString error = renameWithTheMiddleOneStuck(dir, l); !error.isEmpty())
            QSKIP(qPrintable(error));
        QCOMPARE(l.renamed, (QStringList{u"n1"_s, u"n3"_s}));
        QCOMPARE(l.troubles, QStringList{u"failed"_s});
        QVERIFY(l.list.keys().isEmpty());
        QCOMPARE(l.list.failedRowsHeld(), 1);

        l.list.restoreFailedRows();
        QCOMPARE(l.list.keys(), QStringList{u"b.jpg"_s});
        const RenameRecord &row = l.list.records()[u"b.jpg"_s];
        QCOMPARE(row.outcome, RenameOutcome::Failed);
        QCOMPARE(row.failureError, EPERM);
        QCOMPARE(row.destinationURL, u"n2"_s);
        QCOMPARE(row.nameSource, NameSource::EarlierRun);
        QVERIFY(!l.list.rule());
        QVERIFY(l.list.renameActive());
        l.waitForRules();
        QCOMPARE(l.list.renameCount(), 1);
        QCOMPARE(l.list.failedRowsHeld(), 0);

        // A rule typed now names new rows, not the one kept for another try.
        l.list.setAddTextRule(u"-x"_s, NamePlacement::AfterName);
        l.waitForRules();
        QCOMPARE(l.names(), u"n2");
        l.list.clearRule();
        QCOMPARE(l.names(), u"n2");
        QVERIFY(l.list.renameActive());

        l.troubles.clear();
        l.renameAndWait();
        QCOMPARE(l.renamed, QStringList{u"n2"_s});
        QVERIFY(l.troubles.isEmpty());
        QCOMPARE(listing(dir), u"n1.jpg n2.jpg n3.jpg");
        // The undo record is the last rename's alone.
        QCOMPARE(l.list.undoRecord().size(), 1);
    }

    // A rename undone: every file its old name again, a renumbered set included (its chain is
    // undone from its end), never replacing.
    void undoGivesEveryFileItsOldName_data()
    {
        QTest::addColumn<QString>("files");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("renamed");
        QTest::newRow("plain") << u"a.jpg b.jpg c.png"_s << u"1"_s << u"n1.jpg n2.jpg n3.png"_s;
        QTest::newRow("a chain") << u"n4.txt n5.txt n6.txt"_s << u"5"_s
                                 << u"n5.txt n6.txt n7.txt"_s;
        QTest::newRow("a ring, through a passing name")
            << u"n1.txt n2.txt n3.txt"_s << u"2"_s << u"n2.txt n3.txt n4.txt"_s;
    }
    void undoGivesEveryFileItsOldName()
    {
        QFETCH(QString, files);
        QFETCH(QString, start);
        QFETCH(QString, renamed);
        TestDir dir;
        create(dir, files.toUtf8().constData());
        Listed l;
        l.list.add(urls(dir, files.toUtf8().constData()));
        l.list.setFullNameRule(u"n"_s, start, NamePlacement::AfterName);
        l.waitForRules();
        l.renameAndWait();
        QCOMPARE(listing(dir), renamed);
        QVERIFY(l.list.canUndo());
        const auto [restored, failures] = l.undoAndWait();
        QCOMPARE(failures, QStringList());
        QCOMPARE(restored, qsizetype(3));
        QCOMPARE(listing(dir), files);
        // Each file holds its own content again.
        for (const QString &name : files.split(u' ')) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), name.toUtf8());
        }
        QVERIFY(!l.list.canUndo());
    }

    // What happened to the files since the rename: one moved to another folder is found by
    // its bookmark and named back there; one whose old name was taken meanwhile stays, and
    // so does one deleted; the others go back. What could not go back stays on record.
    void undoFindsMovedFilesAndReportsTheRest()
    {
        TestDir dir;
        create(dir, "a.jpg b.jpg c.jpg d.jpg");
        dir.createDir(u"Elsewhere"_s);
        Listed l;
        l.list.add(urls(dir, "a.jpg b.jpg c.jpg d.jpg"));
        l.list.setFullNameRule(u"n"_s, u"1"_s, NamePlacement::AfterName);
        l.waitForRules();
        l.renameAndWait();
        QVERIFY(QFile::rename(dir.filePath(u"n1.jpg"_s), dir.filePath(u"Elsewhere/n1.jpg"_s)));
        dir.createFile(u"b.jpg"_s, "someone else's");
        dir.removeFile(u"n3.jpg"_s);

        const auto [restored, failures] = l.undoAndWait();
        QCOMPARE(restored, qsizetype(2));
        QCOMPARE(failures, (QStringList{u"c.jpg: 0/%1"_s.arg(ENOENT),
                                        u"b.jpg: %1/0"_s.arg(int(NameCheck::TakenInFolder))}));
        QCOMPARE(listing(dir), u"Elsewhere b.jpg d.jpg n2.jpg"_s);
        QVERIFY(QFile::exists(dir.filePath(u"Elsewhere/a.jpg"_s)));
        QFile taken(dir.filePath(u"b.jpg"_s));
        QVERIFY(taken.open(QIODevice::ReadOnly));
        QCOMPARE(taken.readAll(), QByteArray("someone else's"));
        QCOMPARE(l.list.undoRecord().size(), 2);

        // Once the name is free, another undo brings the file back.
        dir.removeFile(u"b.jpg"_s);
        const auto again = l.undoAndWait();
        QCOMPARE(again.first, qsizetype(1));
        QCOMPARE(listing(dir), u"Elsewhere b.jpg d.jpg"_s);
    }

    // After a partial failure only the files that moved are on record; the failed one keeps
    // its name through the undo.
    void undoAfterAPartialFailureTouchesOnlyWhatMoved()
    {
        TestDir dir;
        Listed l;
        if (const QString error = renameWithTheMiddleOneStuck(dir, l); !error.isEmpty())
            QSKIP(qPrintable(error));
        QCOMPARE(listing(dir), u"b.jpg n1.jpg n3.jpg"_s);
        QCOMPARE(l.list.undoRecord().size(), 2);
        const auto [restored, failures] = l.undoAndWait();
        QCOMPARE(restored, qsizetype(2));
        QVERIFY(failures.isEmpty());
        QCOMPARE(listing(dir), u"a.jpg b.jpg c.jpg"_s);
    }

    // A file that cannot be moved back (its folder refuses changes) is reported with the
    // system's reason and stays under its new name.
    void undoReportsAFolderThatRefuses()
    {
        TestDir dir;
        create(dir, "Locked/a.jpg b.jpg");
        Listed l;
        l.list.add(urls(dir, "Locked/a.jpg b.jpg"));
        l.list.setFullNameRule(u"n"_s, u"1"_s, NamePlacement::AfterName);
        l.waitForRules();
        l.renameAndWait();
        QCOMPARE(l.renamed.size(), 2);
        const ImmutableFlag locked(dir.filePath(u"Locked"_s));
        if (!locked.isSet())
            QSKIP(qPrintable(locked.error()));
        const auto [restored, failures] = l.undoAndWait();
        QCOMPARE(restored, qsizetype(1));
        QCOMPARE(failures, QStringList{u"a.jpg: %1/%2"_s.arg(int(NameCheck::Free)).arg(EPERM)});
        QVERIFY(QFile::exists(dir.filePath(u"Locked/n1.jpg"_s)));
        QVERIFY(QFile::exists(dir.filePath(u"b.jpg"_s)));
    }

    void theLastRowGoingForgetsTheRule()
    {
        TestDir dir;
        create(dir, "a.jpg");
        Listed l;
        QSignalSpy cleared(&l.list, &RenameList::cleared);
        l.list.add(urls(dir, "a.jpg"));
        l.list.setFullNameRule(u"x"_s, u"7"_s, NamePlacement::AfterName);
        l.waitForRules();
        l.list.remove(u"a.jpg"_s);
        QVERIFY(l.emptied);
        QCOMPARE(cleared.size(), 1);
        QVERIFY(!l.list.rule());
        QVERIFY(!l.list.renameActive());
        QCOMPARE(l.list.insertionIndex(), 0);
    }

    void dropsTakeOnlyFiles()
    {
        TestDir dir;
        create(dir, "a.jpg");
        Listed l;
        QVERIFY(!l.list.addDropped({QUrl(u"https://example.org/a.jpg"_s)}));
        QVERIFY(
            !l.list.addDropped(urls(dir, "a.jpg") + QList<QUrl>{QUrl(u"https://example.org/"_s)}));
        QVERIFY(l.list.keys().isEmpty());
        QVERIFY(l.list.addDropped(urls(dir, "a.jpg")));
        QCOMPARE(l.list.keys(), QStringList{u"a.jpg"_s});
    }

    // A file manager names a dropped folder with a trailing slash; it is listed, and
    // renamed, as the folder.
    void aFolderGivenWithATrailingSlashIsListedAsItself()
    {
        TestDir dir;
        const QString album = dir.createDir(u"Album"_s);
        Listed l;
        QVERIFY(l.list.addDropped({QUrl::fromLocalFile(album + u"//"_s)}));
        QCOMPARE(l.list.keys(), QStringList{u"Album"_s});
        QCOMPARE(l.list.records()[u"Album"_s].sourceURL, QUrl::fromLocalFile(album));
        l.list.setFullNameRule(u"Trip"_s, u"1"_s, NamePlacement::AfterName);
        l.waitForRules();
        l.renameAndWait();
        QCOMPARE(l.renamed, QStringList{u"Trip1"_s});
        QVERIFY(QFileInfo(dir.filePath(u"Trip1"_s)).isDir());
    }
};

QTEST_GUILESS_MAIN(tst_RenameList)
#include "tst_renamelist.moc"
