#include "ApplicationStatus.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesViewController.h"
#include "DuplicateResults.h"
#include "KeepOnePlan.h"
#include "ResultsFixtures.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "ScriptedWorkspace.h"
#include "TestDir.h"

#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QSemaphore>
#include <QTest>
#include <QToolButton>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Rule = KeepOnePlan::Rule;

Q_DECLARE_METATYPE(KeepOnePlan::Rule)

namespace {

// Sets the file's modification time to `seconds` after the epoch.
void setModified(const QString &path, qint64 seconds)
{
    const timespec times[2] = {{0, UTIME_OMIT}, {static_cast<time_t>(seconds), 0}};
    QVERIFY(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) == 0);
}

// Three groups of real files: "song" in Music, Backup and Old/Music (of different ages),
// "clip" in Music and Backup, "note" in Backup and Other.
struct Archive
{
    TestDir dir;
    QMap<QString, QStringList> paths;

    Archive()
    {
        const auto add = [this](const QString &name, std::initializer_list<const char *> folders,
                                quint32 seed) {
            qint64 age = 1000;
            for (const char *folder : folders) {
                const QString path =
                    dir.createPatternFile(QString::fromLatin1(folder) + u'/' + name, 70000, seed);
                setModified(path, age += 1000);
                paths[name].append(path);
            }
        };
        add(u"song.mp3"_s, {"Music", "Backup", "Old/Music"}, 1);
        add(u"clip.mov"_s, {"Backup", "Music"}, 2);
        add(u"note.txt"_s, {"Backup", "Other"}, 3);
    }
    GroupMap groups() const
    {
        GroupMap map;
        for (auto it = paths.cbegin(); it != paths.cend(); ++it)
            map.insert(it.key(), group(it.key(), 70000, u"application/octet-stream"_s, it.value()));
        return map;
    }
};

// The results screen after a scan of the archive, with scripted alerts, panel and Trash.
struct Screen
{
    ScriptedAlertPresenter alerts;
    ScriptedOpenPanel panel;
    ScriptedWorkspace workspace;
    ApplicationStatus status;
    BRDuplicateFilesViewController view{alerts, workspace, &status, &panel};

    explicit Screen(const GroupMap &groups)
    {
        view.startScanProcess(QUrl());
        qint64 copies = 0;
        groups.forEach([&](const QString &key, const GroupRecord &record) {
            copies += record.filePath.size();
            view.updateDuplicateFiles({groups, key, false, copies, 0});
        });
        view.updateDuplicateFiles({groups, QString(), true, copies, 0});
        settle();
        alerts.shown.clear();
    }
    QStringList pathsOf(const QString &key) const
    {
        return view.results().groups().find(key)->filePath;
    }
};

} // namespace

class tst_KeepOne : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whichCopyStays_data()
    {
        QTest::addColumn<Rule>("rule");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QStringList>("kept"); // per group: song, clip, note; "" left whole
        QTest::newRow("oldest") << Rule::Oldest << u""_s
                                << QStringList{u"Music"_s, u"Backup"_s, u"Backup"_s};
        QTest::newRow("newest") << Rule::Newest << u""_s
                                << QStringList{u"Old/Music"_s, u"Music"_s, u"Other"_s};
        QTest::newRow("shortest path, ties to the first found")
            << Rule::ShortestPath << u""_s << QStringList{u"Music"_s, u"Music"_s, u"Other"_s};
        QTest::newRow("in a folder")
            << Rule::InFolder << u"Music"_s << QStringList{u"Music"_s, u"Music"_s, u""_s};
        QTest::newRow("in a folder deeper down")
            << Rule::InFolder << u"Old"_s << QStringList{u"Old/Music"_s, u""_s, u""_s};
    }
    void whichCopyStays()
    {
        QFETCH(Rule, rule);
        QFETCH(QString, folder);
        QFETCH(QStringList, kept);
        Archive archive;
        const GroupMap groups = archive.groups();
        const QStringList keys{u"song.mp3"_s, u"clip.mov"_s, u"note.txt"_s};
        const KeepOnePlan plan = KeepOnePlan::make(
            groups, keys, rule, folder.isEmpty() ? QString() : archive.dir.filePath(folder));
        QStringList actual;
        for (const QString &key : keys) {
            const auto group =
                std::find_if(plan.groups().cbegin(), plan.groups().cend(),
                             [&key](const KeepOnePlan::Group &g) { return g.key == key; });
            actual.append(
                group == plan.groups().cend()
                    ? QString()
                    : group->kept.section(u'/', 0, -2).mid(archive.dir.path().size() + 1));
        }
        QCOMPARE(actual, kept);
        const int whole = static_cast<int>(kept.count(QString()));
        QCOMPARE(plan.groupsWithoutAChoice(), whole);
        qsizetype files = 0;
        for (const KeepOnePlan::Group &group : plan.groups())
            files += group.removed.size();
        QCOMPARE(plan.filesToRemove(), files);
        QCOMPARE(plan.bytesFreed(), files * 70000);
    }

    void aSecondNameOfTheKeptFileFreesNothing()
    {
        TestDir dir;
        const QString a = dir.createPatternFile(u"a.bin"_s, 70000, 1);
        const QString b = dir.filePath(u"b.bin"_s);
        const QString c = dir.createPatternFile(u"zzz/c.bin"_s, 70000, 1);
        const QString d = dir.filePath(u"zzz/d.bin"_s);
        QVERIFY(::link(QFile::encodeName(a).constData(), QFile::encodeName(b).constData()) == 0);
        QVERIFY(::link(QFile::encodeName(c).constData(), QFile::encodeName(d).constData()) == 0);
        GroupMap groups;
        groups.insert(u"g"_s, group(u"g"_s, 70000, QString(), {a, b, c, d}));
        const KeepOnePlan plan = KeepOnePlan::make(groups, {u"g"_s}, Rule::ShortestPath);
        QCOMPARE(plan.groups().constFirst().kept, a);
        QCOMPARE(plan.filesToRemove(), 3);
        // b is a's other name; c and d are one file, freed once.
        QCOMPARE(plan.bytesFreed(), 70000);
    }

    void keepOneOnScreenAsksThenSumsUp()
    {
        Archive archive;
        Screen screen(archive.groups());
        // One copy was written after the scan: it is kept, and the summary says why.
        const QString changed = archive.paths[u"song.mp3"_s].at(2);
        setModified(changed, 99999);
        screen.alerts.answers = {AlertPresenter::firstButton};

        screen.view.keepOneCopyOfGroupsOnScreen(Rule::Oldest);
        QCOMPARE(screen.alerts.shown.size(), 1);
        QCOMPARE(screen.alerts.shown[0].title, u"Move 4 files to the Trash?"_s);
        QCOMPARE(screen.alerts.shown[0].text,
                 u"One copy of each of 3 groups stays: the oldest. 4 files go to the Trash and "
                 u"free 273.4 KiB. Each is compared with the copy that stays before it goes."_s);
        QCOMPARE(screen.alerts.shown[0].buttons, (QStringList{u"Move to Trash"_s, u"Cancel"_s}));
        QVERIFY(screen.view.isKeepingOne());
        QTRY_VERIFY(!screen.view.isKeepingOne());
        QTRY_COMPARE(screen.alerts.shown.size(), 2);
        QCOMPARE(screen.alerts.shown[1].title, u"3 files were moved to the Trash"_s);
        QCOMPARE(screen.alerts.shown[1].text,
                 u"They free 205.1 KiB. 1 file was kept: it had changed since the scan."_s);
        QCOMPARE(screen.workspace.trashedPaths.size(), 3);
        QVERIFY(!screen.workspace.trashedPaths.contains(changed));
        QCOMPARE(screen.pathsOf(u"song.mp3"_s),
                 (QStringList{archive.paths[u"song.mp3"_s].at(0), changed}));
        QCOMPARE(screen.pathsOf(u"clip.mov"_s), QStringList{archive.paths[u"clip.mov"_s].at(0)});
        QCOMPARE(screen.view.findChild<QLabel *>(u"totalFilesCountLabel"_s)->text(), u"4"_s);
    }

    void keepOneWaitsForTheScanToEnd()
    {
        ScriptedAlertPresenter alerts;
        ScriptedOpenPanel panel;
        ScriptedWorkspace workspace;
        ApplicationStatus status;
        BRDuplicateFilesViewController view{alerts, workspace, &status, &panel};
        auto *button = view.findChild<QToolButton *>(u"keepOneButton"_s);
        view.startScanProcess(QUrl());
        QVERIFY(!button->isEnabled());
        view.updateDuplicateFiles({{}, QString(), true, 0, 0});
        settle();
        QVERIFY(button->isEnabled());
    }

    void keepOneAppliesToWhatTheListShowsAndCanBeDeclined()
    {
        Archive archive;
        Screen screen(archive.groups());
        screen.view.results().search(u"no"_s);
        screen.alerts.answers = {AlertPresenter::secondButton};
        screen.view.keepOneCopyOfGroupsOnScreen(Rule::Newest);
        QCOMPARE(screen.alerts.shown[0].title, u"Move 1 file to the Trash?"_s);
        QVERIFY(!screen.view.isKeepingOne());
        QCOMPARE(screen.pathsOf(u"note.txt"_s).size(), 2);

        // The folder rule asks for the folder first; a group without a copy there is left.
        screen.alerts.shown.clear();
        screen.view.results().search(QString());
        screen.panel.choices = {{QUrl::fromLocalFile(archive.dir.filePath(u"Music"_s))}};
        screen.alerts.answers = {AlertPresenter::firstButton};
        screen.view.keepOneCopyOfGroupsOnScreen(Rule::InFolder);
        QVERIFY(screen.alerts.shown[0].text.endsWith(
            u"1 group has no copy in \u201CMusic\u201D and is left whole."_s));
        QTRY_VERIFY(!screen.view.isKeepingOne());
        QTRY_COMPARE(screen.alerts.shown.size(), 2);
        QCOMPARE(screen.pathsOf(u"note.txt"_s).size(), 2);
        QCOMPARE(screen.pathsOf(u"song.mp3"_s), QStringList{archive.paths[u"song.mp3"_s].at(0)});
    }

    void theDetailKeepsOneOfItsGroup()
    {
        Archive archive;
        Screen screen(archive.groups());
        const int row = static_cast<int>(screen.view.results().rowOnScreen(u"song.mp3"_s));
        screen.view.showPopOverView(row);
        BRDuplicateFilePreviewViewController *detail = screen.view.previewDelegate();
        QVERIFY(detail && detail->keepOneButton()->isVisibleTo(detail));
        screen.alerts.answers = {AlertPresenter::firstButton};
        detail->keepOneButton()->menu()->actions().at(1)->trigger(); // the newest
        QCOMPARE(screen.alerts.shown[0].title, u"Move 2 files to the Trash?"_s);
        QTRY_COMPARE(screen.alerts.shown.size(), 2);
        QCOMPARE(screen.pathsOf(u"song.mp3"_s), QStringList{archive.paths[u"song.mp3"_s].at(2)});
        QCOMPARE(screen.pathsOf(u"clip.mov"_s).size(), 2);
    }

    void aRunCanBeStopped()
    {
        Archive archive;
        Screen screen(archive.groups());
        QSemaphore entered, gate;
        screen.workspace.beforeTrash = [&](const QString &) {
            entered.release();
            gate.acquire();
        };
        screen.alerts.answers = {AlertPresenter::firstButton};
        screen.view.keepOneCopyOfGroupsOnScreen(Rule::Oldest);
        QVERIFY(entered.tryAcquire(1, 5000));
        screen.view.cancelScanProcess(); // the bar's Stop
        gate.release(10);
        QTRY_VERIFY(!screen.view.isKeepingOne());
        QTRY_COMPARE(screen.alerts.shown.size(), 2);
        QCOMPARE(screen.alerts.shown[1].title, u"1 file was moved to the Trash"_s);
        QVERIFY2(screen.alerts.shown[1].text.endsWith(
                     u"Stopped: 3 files were not checked and stayed."_s),
                 qPrintable(screen.alerts.shown[1].text));
        QCOMPARE(screen.workspace.trashedPaths.size(), 1);
    }
};

QTEST_MAIN(tst_KeepOne)
#include "tst_keepone.moc"
