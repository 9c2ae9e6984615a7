#include "ApplicationStatus.h"
#include "BRChangeFileNameViewController.h"
#include "BRDragAndDropView.h"
#include "BRRenameCompleteView.h"
#include "BRRenameTabViewController.h"
#include "BRRenameViewController.h"
#include "RenameNotificationCenter.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "TestDir.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

// The rename screen as its list, rules and runs see it, on real files in temporary folders.
class tst_RenameScreen : public QObject
{
    Q_OBJECT

private:
    struct Screen
    {
        ScriptedAlertPresenter alerts;
        ScriptedOpenPanel openPanel;
        ApplicationStatus status;
        BRRenameViewController view{{alerts, openPanel, &status}};
        Screen() { view.setFadeDuration(0); }

        // Adds files as a drop on the list does, with the list showing.
        void add(const QList<QUrl> &files)
        {
            view.setViewsHiddenState(false, true, false, true);
            view.saveSourceUrls(files);
        }

        QStringList titles() const
        {
            QStringList list;
            for (const AlertRequest &alert : alerts.shown)
                list.append(alert.title);
            return list;
        }
        QString names() const
        {
            QStringList list;
            for (const QString &key : view.renameFileDetailsKey()) {
                const RenameRecord &row = view.renameFileDetails()[key];
                list.append(row.destinationURL ? *row.destinationURL : u"-"_s);
            }
            return list.join(u' ');
        }
        void waitForRules()
        {
            QTRY_VERIFY(!view.ruleRunPending());
            QCoreApplication::processEvents();
        }
        void renameAndWait()
        {
            QSignalSpy ended(&view, &BRRenameViewController::renameRunEnded);
            view.renameAction();
            QTRY_COMPARE(ended.size(), 1);
            QTest::qWait(1); // the fades finish from the event loop
        }
    };

    static QList<QUrl> urls(const TestDir &dir, const char *names)
    {
        QList<QUrl> list;
        for (const QString &name : QString::fromUtf8(names).split(u' ', Qt::SkipEmptyParts))
            list.append(QUrl::fromLocalFile(dir.filePath(name)));
        return list;
    }
    static void create(TestDir &dir, const char *names)
    {
        for (const QString &name : QString::fromUtf8(names).split(u' ', Qt::SkipEmptyParts))
            dir.createFile(name, name.toUtf8());
    }
    static QString listing(const TestDir &dir)
    {
        return QDir(dir.path())
            .entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)
            .join(u' ');
    }

private Q_SLOTS:
    void addingSortsAndRefusesNamesAlreadyListed()
    {
        TestDir one, two;
        create(one, "img2.png IMG10.png Img1.png x.txt");
        create(two, "x.txt");
        Screen screen;
        screen.view.saveSourceUrls(urls(one, "img2.png IMG10.png"));
        QVERIFY(screen.alerts.shown.isEmpty());
        screen.view.saveSourceUrls(urls(one, "Img1.png x.txt") + urls(two, "x.txt") +
                                   urls(one, "img2.png"));
        QCOMPARE(screen.view.renameFileDetailsKey().join(u' '),
                 u"Img1.png img2.png IMG10.png x.txt");
        QCOMPARE(screen.titles(), QStringList{u"Some files already exist"_s});
        // The first x.txt stays, from the first folder.
        QCOMPARE(screen.view.renameFileDetails()[u"x.txt"_s].sourceURL.toLocalFile(),
                 one.filePath(u"x.txt"_s));
        QCOMPARE(screen.view.index(), 4);
        QCOMPARE(screen.view.findChild<QPushButton *>(u"renameButton"_s)->text(),
                 u"Rename 4 files"_s);
    }

    void rulesLandTheLastTextTypedAndSpareHandEdits()
    {
        TestDir dir;
        create(dir, "a.jpg b.jpg c.png");
        Screen screen;
        screen.view.saveSourceUrls(urls(dir, "a.jpg b.jpg c.png"));
        const NamePlacement after = NamePlacement::AfterName;
        // Keystrokes faster than the runs: only the last text may land.
        for (const QString &text : {u"T"_s, u"Tr"_s, u"Tri"_s, u"Trip"_s})
            screen.view.renameUsingOption(text, u"1"_s, after);
        screen.waitForRules();
        QCOMPARE(screen.names(), u"Trip1 Trip2 Trip3");
        QVERIFY(screen.view.renameActive());

        QLineEdit field;
        field.setText(u"Bee"_s);
        screen.view.updateNewFileName(&field, 1);
        screen.view.renameUsingOption(u"Trip"_s, u"99999"_s, after);
        screen.waitForRules();
        QCOMPARE(screen.names(), u"Trip99999 Bee Trip100001");
        // Withdrawn alone, the row's own number falls back to its position.
        field.clear();
        screen.view.updateNewFileName(&field, 1);
        QCOMPARE(screen.names(), u"Trip99999 Trip2 Trip100001");
        QCOMPARE(screen.view.renameFileDetails()[u"b.jpg"_s].nameSource, NameSource::Rule);

        // Typing the name a row already has does not mark it.
        field.setText(u"Trip2"_s);
        screen.view.updateNewFileName(&field, 1);
        QCOMPARE(screen.view.renameFileDetails()[u"b.jpg"_s].nameSource, NameSource::Rule);

        // Emptying the rule text clears the rule names, also of a run still under way,
        // and leaves an edited name alone.
        field.setText(u"Bee"_s);
        screen.view.updateNewFileName(&field, 1);
        screen.view.renameUsingAddTextOption(u"-x"_s, NamePlacement::BeforeName);
        screen.view.renameUsingAddTextOption(QString(), NamePlacement::BeforeName);
        screen.waitForRules();
        QCOMPARE(screen.names(), u"- Bee -");
        QVERIFY(!screen.view.renameActive());
        QVERIFY(!screen.view.formatOption());
    }

    void aSecondPressWhileFilesMoveDoesNothing()
    {
        TestDir dir;
        create(dir, "a.jpg b.jpg");
        Screen screen;
        screen.view.saveSourceUrls(urls(dir, "a.jpg b.jpg"));
        // Without a rule the button does nothing.
        screen.view.renameAction();
        QVERIFY(!screen.view.renameRunning());
        screen.view.renameUsingOption(u"n"_s, QString(), NamePlacement::AfterName);
        screen.waitForRules();
        QSignalSpy ended(&screen.view, &BRRenameViewController::renameRunEnded);
        screen.view.renameAction();
        screen.view.renameAction();
        QTRY_COMPARE(ended.size(), 1);
        QTest::qWait(50);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(listing(dir), u"n1.jpg n2.jpg");
        QVERIFY(screen.alerts.shown.isEmpty());
    }

    void runsEndAsTheirOutcomesSay_data()
    {
        QTest::addColumn<QString>("onDisk");  // before the run
        QTest::addColumn<QString>("taken");   // created after listing
        QTest::addColumn<QString>("deleted"); // removed after listing
        QTest::addColumn<QStringList>("alerts");
        QTest::addColumn<QString>("screen"); // which view shows afterwards
        QTest::addColumn<QString>("rows");   // the list afterwards
        QTest::addColumn<QString>("disk");   // after the run

        const QString couldNot = u"Could not rename some files"_s;
        const QString missing = u"Missing files"_s;
        QTest::newRow("all moved") << u"a.jpg b.jpg"_s << QString() << QString() << QStringList()
                                   << u"complete"_s << QString() << u"n1.jpg n2.jpg"_s;
        QTest::newRow("some failed")
            << u"a.jpg b.jpg"_s << u"n1.jpg"_s << QString() << QStringList{couldNot}
            << u"complete"_s << QString() << u"a.jpg n1.jpg n2.jpg"_s;
        QTest::newRow("none moved")
            << u"a.jpg b.jpg"_s << u"n1.jpg n2.jpg"_s << QString() << QStringList{couldNot}
            << u"list"_s << u"a.jpg b.jpg"_s << u"a.jpg b.jpg n1.jpg n2.jpg"_s;
        QTest::newRow("missing, rest moved")
            << u"a.jpg b.jpg"_s << QString() << u"a.jpg"_s << QStringList{missing} << u"complete"_s
            << QString() << u"n2.jpg"_s;
        QTest::newRow("missing, failed, none moved")
            << u"a.jpg b.jpg"_s << u"n2.jpg"_s << u"a.jpg"_s << QStringList{missing, couldNot}
            << u"list"_s << u"b.jpg"_s << u"b.jpg n2.jpg"_s;
        QTest::newRow("all missing") << u"a.jpg b.jpg"_s << QString() << u"a.jpg b.jpg"_s
                                     << QStringList{missing} << u"drop"_s << QString() << QString();
    }
    void runsEndAsTheirOutcomesSay()
    {
        QFETCH(QString, onDisk);
        QFETCH(QString, taken);
        QFETCH(QString, deleted);
        QFETCH(QStringList, alerts);
        QFETCH(QString, screen);
        QFETCH(QString, rows);
        QFETCH(QString, disk);

        TestDir dir;
        create(dir, onDisk.toUtf8().constData());
        Screen s;
        QSignalSpy completed(s.view.notificationCenter(),
                             &RenameNotificationCenter::renameComplete);
        s.add(urls(dir, onDisk.toUtf8().constData()));
        s.view.renameUsingOption(u"n"_s, u"1"_s, NamePlacement::AfterName);
        s.waitForRules();
        create(dir, taken.toUtf8().constData());
        for (const QString &name : deleted.split(u' ', Qt::SkipEmptyParts))
            dir.removeFile(name);
        s.renameAndWait();

        QCOMPARE(s.titles(), alerts);
        QCOMPARE(s.view.renameFileDetailsKey().join(u' '), rows);
        QCOMPARE(listing(dir), disk);
        const QString shown = s.view.renameCompleteStatusView()->isVisibleTo(&s.view)
                                  ? u"complete"_s
                              : s.view.dragAndDropView()->isVisibleTo(&s.view) ? u"drop"_s
                                                                               : u"list"_s;
        QCOMPARE(shown, screen);
        QCOMPARE(completed.size(), screen == u"complete" ? 1 : 0);
        // Taken names keep their own contents: nothing was overwritten.
        for (const QString &name : taken.split(u' ', Qt::SkipEmptyParts)) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), name.toUtf8());
        }
        if (screen == u"list")
            QVERIFY(s.view.renameActive()); // the rule stays, so the user can try again
    }

    void theLastRowGoingEmptiesThePanelsAndShowsTheDropTarget()
    {
        TestDir dir;
        create(dir, "a.jpg");
        Screen screen;
        screen.view.show();
        screen.add(urls(dir, "a.jpg"));
        auto *panel = screen.view.renameTabViewController()->changeFileNameViewController();
        auto *number = panel->findChild<QLineEdit *>(u"numberTextField"_s);
        number->setText(u"7"_s);
        screen.view.renameUsingOption(u"x"_s, u"7"_s, NamePlacement::AfterName);
        screen.waitForRules();
        screen.view.delete_(u"a.jpg"_s);
        QTRY_VERIFY(screen.view.dragAndDropView()->isVisible());
        QCOMPARE(number->text(), u"1"_s);
        QVERIFY(!screen.view.formatOption());
        QCOMPARE(screen.view.index(), 0);
    }

    void closingAsksWhatWouldBeLost()
    {
        TestDir dir;
        create(dir, "a.jpg");
        Screen screen;
        screen.view.saveSourceUrls(urls(dir, "a.jpg"));
        screen.alerts.answers = {AlertPresenter::secondButton};
        QVERIFY(!screen.view.windowShouldClose());
        QCOMPARE(
            screen.alerts.shown.last().text,
            u"There are files selected for rename. Are you sure you want to quit Quillmere?"_s);
        QCOMPARE(screen.view.renameFileDetailsKey().size(), 1);

        screen.view.clearAction();
        QVERIFY(screen.view.windowShouldClose()); // nothing to lose
        screen.status.duplicateFilesCount = 12;
        screen.alerts.answers = {AlertPresenter::firstButton};
        QVERIFY(screen.view.windowShouldClose());
        QVERIFY(screen.alerts.shown.last().text.startsWith(u"The current list of the duplicate"));
        QCOMPARE(screen.status.duplicateFilesCount, 0);
        QCOMPARE(screen.alerts.shown.size(), 2);
    }

    void dropsTakeOnlyFiles()
    {
        TestDir dir;
        create(dir, "a.jpg");
        Screen screen;
        QVERIFY(!screen.view.tableViewAcceptDrop({QUrl(u"https://example.org/a.jpg"_s)}));
        QVERIFY(!screen.view.tableViewAcceptDrop(urls(dir, "a.jpg") +
                                                 QList<QUrl>{QUrl(u"https://example.org/"_s)}));
        QVERIFY(screen.view.renameFileDetailsKey().isEmpty());
        QVERIFY(screen.view.tableViewAcceptDrop(urls(dir, "a.jpg")));
        QCOMPARE(screen.view.renameFileDetailsKey(), QStringList{u"a.jpg"_s});
    }
};

QTEST_MAIN(tst_RenameScreen)
#include "tst_renamescreen.moc"
