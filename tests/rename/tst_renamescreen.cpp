#include "ApplicationStatus.h"
#include "BRChangeFileNameViewController.h"
#include "BRDragAndDropView.h"
#include "BRRenameCompleteView.h"
#include "BRRenameTabViewController.h"
#include "BRRenameTableView.h"
#include "BRRenameViewController.h"
#include "ImmutableFlag.h"
#include "QuitGuard.h"
#include "RenameList.h"
#include "RenameNotificationCenter.h"
#include "RenameTableModel.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "TestDir.h"
#include "Translations.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

// The rename screen as the user meets what its list reports: the rename button, the
// alerts, the view shown after a run, and the guard on closing. The list's own logic is
// tried in tst_renamelist.
class tst_RenameScreen : public QObject
{
    Q_OBJECT

private:
    struct Screen
    {
        ScriptedAlertPresenter alerts;
        ScriptedOpenPanel openPanel;
        ApplicationStatus status;
        BRRenameViewController view{{alerts, openPanel}};
        RenameList &list = *view.renameList();
        Screen() { view.setFadeDuration(0); }

        // The window's close button with this screen shown last.
        bool closes() { return QuitGuard(alerts, status).confirmClose(view); }

        // Adds files as a drop on the list does, with the list showing.
        void add(const QList<QUrl> &files)
        {
            view.setViewsHiddenState(false, true, false, true);
            list.add(files);
        }

        QStringList titles() const
        {
            QStringList titles;
            for (const AlertRequest &alert : alerts.shown)
                titles.append(alert.title);
            return titles;
        }
        QString renameButtonText() const
        {
            return view.findChild<QPushButton *>(u"renameButton"_s)->text();
        }
        void waitForRules()
        {
            QTRY_VERIFY(!list.ruleRunPending());
            QCoreApplication::processEvents();
        }
        void renameAndWait()
        {
            QSignalSpy ended(&list, &RenameList::renameEnded);
            view.renameAction();
            QTRY_COMPARE(ended.size(), 1);
            QTest::qWait(1); // the fades and the alerts follow from the event loop
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

private Q_SLOTS:
    // English with its plural forms, as the program starts.
    void initTestCase() { Translations::install(*qApp, QLocale(QLocale::English)); }

    void theButtonCountsTheRowsAndRefusedFilesAreToldAfterwards()
    {
        TestDir one, two;
        create(one, "img2.png IMG10.png Img1.png x.txt");
        create(two, "x.txt");
        Screen screen;
        QCOMPARE(screen.renameButtonText(), u"Rename 0 files"_s);
        screen.list.add(urls(one, "img2.png IMG10.png"));
        QCOMPARE(screen.renameButtonText(), u"Rename 2 files"_s);
        screen.list.add(urls(one, "Img1.png x.txt") + urls(two, "x.txt") + urls(one, "img2.png"));
        QCOMPARE(screen.renameButtonText(), u"Rename 4 files"_s);
        // The alert waits for the event in hand to end.
        QVERIFY(screen.alerts.shown.isEmpty());
        QTRY_COMPARE(screen.titles(), QStringList{u"Some files already exist"_s});

        screen.view.clear();
        QCOMPARE(screen.renameButtonText(), u"Rename 0 files"_s);
    }

    void runsEndOnTheViewTheyLeave_data()
    {
        QTest::addColumn<QString>("taken");   // created after listing
        QTest::addColumn<QString>("deleted"); // removed after listing
        QTest::addColumn<QStringList>("alerts");
        QTest::addColumn<QString>("screen"); // which view shows afterwards

        const QString couldNot = u"Could not rename some files"_s;
        const QString missing = u"Missing files"_s;
        QTest::newRow("all moved") << QString() << QString() << QStringList() << u"complete"_s;
        QTest::newRow("some failed")
            << u"n1.jpg"_s << QString() << QStringList{couldNot} << u"complete"_s;
        QTest::newRow("missing, failed, none moved")
            << u"n2.jpg"_s << u"a.jpg"_s << QStringList{missing, couldNot} << u"list"_s;
        QTest::newRow("all missing")
            << QString() << u"a.jpg b.jpg"_s << QStringList{missing} << u"drop"_s;
    }
    void runsEndOnTheViewTheyLeave()
    {
        QFETCH(QString, taken);
        QFETCH(QString, deleted);
        QFETCH(QStringList, alerts);
        QFETCH(QString, screen);

        TestDir dir;
        create(dir, "a.jpg b.jpg");
        Screen s;
        QSignalSpy completed(s.view.notificationCenter(),
                             &RenameNotificationCenter::renameComplete);
        s.add(urls(dir, "a.jpg b.jpg"));
        s.view.renameUsingOption(u"n"_s, u"1"_s, NamePlacement::AfterName);
        s.waitForRules();
        create(dir, taken.toUtf8().constData());
        for (const QString &name : deleted.split(u' ', Qt::SkipEmptyParts))
            dir.removeFile(name);
        s.renameAndWait();

        QTRY_COMPARE(s.titles(), alerts);
        const QString shown = s.view.renameCompleteStatusView()->isVisibleTo(&s.view)
                                  ? u"complete"_s
                              : s.view.dragAndDropView()->isVisibleTo(&s.view) ? u"drop"_s
                                                                               : u"list"_s;
        QCOMPARE(shown, screen);
        QCOMPARE(completed.size(), screen == u"complete" ? 1 : 0);
    }

    // Ten files named n1 to n10 where n3.jpg and n7.jpg are taken: those two rows are marked
    // with why, the button counts the other eight, and the press renames only those.
    void conflictsShowBeforeThePressAndAreLeftOut()
    {
        TestDir dir;
        create(dir,
               "f01.jpg f02.jpg f03.jpg f04.jpg f05.jpg f06.jpg f07.jpg f08.jpg f09.jpg f10.jpg");
        dir.createFile(u"n3.jpg"_s, "taken");
        dir.createFile(u"n7.jpg"_s, "taken");
        Screen s;
        s.add(urls(dir, "f01.jpg f02.jpg f03.jpg f04.jpg f05.jpg f06.jpg f07.jpg f08.jpg f09.jpg "
                        "f10.jpg"));
        QCOMPARE(s.renameButtonText(), u"Rename 10 files"_s);
        s.view.renameUsingOption(u"n"_s, u"1"_s, NamePlacement::AfterName);
        s.waitForRules();
        QCOMPARE(s.renameButtonText(), u"Rename 8 files"_s);
        const QAbstractItemModel *model = s.view.renameTableView()->model();
        const auto mark = [model](int row) {
            return static_cast<RowMark>(
                model->index(row, 0).data(RenameTableModel::MarkRole).toInt());
        };
        QCOMPARE(mark(2), RowMark::Conflict);
        QCOMPARE(mark(3), RowMark::None);
        QCOMPARE(model->index(2, 0).data(RenameTableModel::MarkTextRole).toString(),
                 u"f03.jpg will not be renamed. A file named \u201cn3.jpg\u201d is already in "
                 "this folder."_s);
        QVERIFY(model->index(6, 0)
                    .data(Qt::AccessibleDescriptionRole)
                    .toString()
                    .startsWith(u"New name: n7.jpg. f07.jpg will not be renamed."_s));

        // A name typed by hand is checked too: two rows after n2 are both marked, and
        // withdrawing the edit clears both.
        s.list.setHandName(0, u"n2"_s);
        s.waitForRules();
        QCOMPARE(mark(0), RowMark::Conflict);
        QCOMPARE(mark(1), RowMark::Conflict);
        QCOMPARE(s.renameButtonText(), u"Rename 6 files"_s);
        s.list.setHandName(0, QString());
        s.waitForRules();
        QCOMPARE(mark(0), RowMark::None);
        QCOMPARE(s.renameButtonText(), u"Rename 8 files"_s);

        s.renameAndWait();
        // Left out knowingly: no alert, nothing failed.
        QTRY_VERIFY(s.view.renameCompleteStatusView()->isVisibleTo(&s.view));
        QCOMPARE(s.titles(), QStringList());
        QCOMPARE(s.view.renameCompleteStatusView()->renameStatusLabel()->text(),
                 u"8 files renamed"_s);
        for (const char *kept : {"f03.jpg", "f07.jpg"})
            QVERIFY(QFile::exists(dir.filePath(QString::fromLatin1(kept))));
        for (const char *taken : {"n3.jpg", "n7.jpg"}) {
            QFile file(dir.filePath(QString::fromLatin1(taken)));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), QByteArray("taken"));
        }
        QVERIFY(QFile::exists(dir.filePath(u"n10.jpg"_s)));
    }

    // A file that has its new name already is left as it is: not counted, not failed.
    void aRowNamedAsItIsIsLeftAsItIs()
    {
        TestDir dir;
        create(dir, "n1.jpg z.jpg");
        Screen s;
        s.add(urls(dir, "n1.jpg z.jpg"));
        s.view.renameUsingOption(u"n"_s, u"1"_s, NamePlacement::AfterName);
        s.waitForRules();
        QCOMPARE(s.renameButtonText(), u"Rename 1 file"_s);
        s.renameAndWait();
        QTRY_VERIFY(s.view.renameCompleteStatusView()->isVisibleTo(&s.view));
        QCOMPARE(s.titles(), QStringList());
        QCOMPARE(s.view.renameCompleteStatusView()->renameStatusLabel()->text(),
                 u"1 file renamed"_s);
        QVERIFY(QFile::exists(dir.filePath(u"n1.jpg"_s)));
        QVERIFY(QFile::exists(dir.filePath(u"n2.jpg"_s)));
    }

    // A partial failure: the alert as it stands, the completion view with both counts, and
    // Show failed files bringing back the failed row marked with the system's reason, ready
    // for another press. Then Undo Rename on that second batch.
    void aPartialFailureCanBeTriedAgainAndUndone()
    {
        TestDir dir;
        create(dir, "a.jpg b.jpg c.jpg");
        Screen s;
        s.view.show();
        s.add(urls(dir, "a.jpg b.jpg c.jpg"));
        s.view.renameUsingOption(u"n"_s, u"1"_s, NamePlacement::AfterName);
        s.waitForRules();
        BRRenameCompleteView *complete = s.view.renameCompleteStatusView();
        {
            const ImmutableFlag stuck(dir.filePath(u"b.jpg"_s));
            if (!stuck.isSet())
                QSKIP(qPrintable(stuck.error()));
            s.renameAndWait();
        }
        QTRY_VERIFY(complete->isVisible());
        QTRY_COMPARE(s.titles(), QStringList{u"Could not rename some files"_s});
        QCOMPARE(complete->renameStatusLabel()->text(), u"2 files renamed, 1 failed"_s);
        QVERIFY(complete->showFailedButton()->isVisible());
        QVERIFY(complete->undoButton()->isVisible());

        complete->showFailedButton()->click();
        QTRY_VERIFY(s.view.renameTableView()->isVisible());
        QCOMPARE(s.list.keys(), QStringList{u"b.jpg"_s});
        const QModelIndex row = s.view.renameTableView()->model()->index(0, 0);
        QCOMPARE(static_cast<RowMark>(row.data(RenameTableModel::MarkRole).toInt()),
                 RowMark::Failed);
        QCOMPARE(row.data(RenameTableModel::MarkTextRole).toString(),
                 u"b.jpg could not be renamed. Permission denied: the file or its folder is "
                 "locked, or you may not change it."_s);
        s.waitForRules();
        QCOMPARE(s.renameButtonText(), u"Rename 1 file"_s);

        s.renameAndWait();
        QTRY_VERIFY(complete->isVisible());
        QCOMPARE(complete->renameStatusLabel()->text(), u"1 file renamed"_s);
        QVERIFY(!complete->showFailedButton()->isVisible());
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files),
                 (QStringList{u"n1.jpg"_s, u"n2.jpg"_s, u"n3.jpg"_s}));

        // Undo takes back the last rename only: the file tried again.
        complete->undoButton()->click();
        QTRY_COMPARE(complete->headlineLabel()->text(), u"Rename undone"_s);
        QCOMPARE(complete->renameStatusLabel()->text(), u"1 file has its old name again"_s);
        QVERIFY(!complete->undoButton()->isVisible());
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files),
                 (QStringList{u"b.jpg"_s, u"n1.jpg"_s, u"n3.jpg"_s}));
        QCOMPARE(s.alerts.shown.size(), 1);
    }

    // Files that cannot go back are named in one alert, each with its cause; the rest go back.
    void anUndoThatMeetsTakenNamesSaysWhichAndWhy()
    {
        TestDir dir;
        create(dir, "a.jpg b.jpg");
        Screen s;
        s.add(urls(dir, "a.jpg b.jpg"));
        s.view.renameUsingOption(u"n"_s, u"1"_s, NamePlacement::AfterName);
        s.waitForRules();
        s.renameAndWait();
        BRRenameCompleteView *complete = s.view.renameCompleteStatusView();
        QTRY_VERIFY(complete->isVisibleTo(&s.view));
        dir.createFile(u"a.jpg"_s, "new");
        complete->undoButton()->click();
        QTRY_COMPARE(s.titles(), QStringList{u"Some files keep their new names"_s});
        QCOMPARE(s.alerts.shown.last().text,
                 u"n1.jpg could not be named a.jpg again. A file named \u201ca.jpg\u201d is "
                 "already in this folder."_s);
        QCOMPARE(complete->renameStatusLabel()->text(),
                 u"1 file has its old name again, 1 could not go back"_s);
        // What could not go back can be tried again.
        QVERIFY(complete->undoButton()->isVisibleTo(complete));
        QVERIFY(complete->undoButton()->isEnabled());
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
        screen.list.remove(u"a.jpg"_s);
        QTRY_VERIFY(screen.view.dragAndDropView()->isVisible());
        QCOMPARE(number->text(), u"1"_s);
    }

    void closingAsksWhatWouldBeLost()
    {
        TestDir dir;
        create(dir, "a.jpg");
        Screen screen;
        screen.list.add(urls(dir, "a.jpg"));
        screen.alerts.answers = {AlertPresenter::secondButton};
        QVERIFY(!screen.closes());
        QCOMPARE(
            screen.alerts.shown.last().text,
            u"There are files selected for rename. Are you sure you want to quit Quillmere?"_s);
        QCOMPARE(screen.view.rowCount(), 1);

        screen.view.clear();
        QCOMPARE(screen.view.rowCount(), 0);
        QVERIFY(screen.closes()); // nothing to lose
        screen.status.duplicateFilesCount = 12;
        screen.alerts.answers = {AlertPresenter::firstButton};
        QVERIFY(screen.closes());
        QVERIFY(screen.alerts.shown.last().text.startsWith(u"The current list of the duplicate"));
        QCOMPARE(screen.status.duplicateFilesCount, 0);
        QCOMPARE(screen.alerts.shown.size(), 2);
    }
};

QTEST_MAIN(tst_RenameScreen)
#include "tst_renamescreen.moc"
