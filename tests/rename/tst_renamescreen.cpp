#include "ApplicationStatus.h"
#include "BRChangeFileNameViewController.h"
#include "BRDragAndDropView.h"
#include "BRRenameCompleteView.h"
#include "BRRenameTabViewController.h"
#include "BRRenameViewController.h"
#include "QuitGuard.h"
#include "RenameList.h"
#include "RenameNotificationCenter.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "TestDir.h"

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
