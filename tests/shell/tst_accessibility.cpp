// What a screen reader finds in the main screens, and what the keyboard alone can do there.
#include "ApplicationStatus.h"
#include "BRAboutViewController.h"
#include "BRDuplicateFilePreviewTableViewCell.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesMainViewController.h"
#include "BRDuplicateFilesViewController.h"
#include "BRDuplicateSortViewController.h"
#include "BRDuplicateTabViewController.h"
#include "BRDuplicateTableView.h"
#include "BRIntroViewController.h"
#include "BRMainViewController.h"
#include "BRRenameCompleteView.h"
#include "BRRenameTableView.h"
#include "BRRenameViewController.h"
#include "BRSelectHomeFolderViewController.h"
#include "BRTabViewController.h"
#include "DuplicateResults.h"
#include "RenameList.h"
#include "RenameNotificationCenter.h"
#include "RowAnchoredPopover.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "ScriptedWorkspace.h"
#include "TestDir.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

// The roles a user acts on or reads a value from; each needs a name to be found by it.
bool needsName(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::ProgressBar:
    case QAccessible::Dialog:
    case QAccessible::PageTab:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::Graphic:
        return true;
    default:
        return false;
    }
}

QString describe(QAccessibleInterface *node)
{
    const QObject *object = node->object();
    return u"%1 %2 \"%3\""_s.arg(QString::number(node->role(), 16),
                                 object ? QString::fromLatin1(object->metaObject()->className())
                                        : u"(item)"_s,
                                 object ? object->objectName() : QString());
}

struct Walk
{
    QStringList unnamed;
    QList<QAccessibleInterface *> visited;
};

// Every node under `node` that is on screen, as assistive tools go through them.
void walk(QAccessibleInterface *node, Walk &into, int depth = 0)
{
    if (!node || !node->isValid() || depth > 40)
        return;
    if (node->state().invisible)
        return;
    into.visited.append(node);
    // Read-only text that takes no focus is read like a label, by its text.
    const bool staticText = node->role() == QAccessible::EditableText && node->state().readOnly &&
                            !node->state().focusable;
    if (needsName(node->role()) && !staticText && node->text(QAccessible::Name).trimmed().isEmpty())
        into.unnamed.append(describe(node));
    for (int i = 0; i < node->childCount(); ++i)
        walk(node->child(i), into, depth + 1);
}

Walk walkWindow(QWidget *window)
{
    Walk result;
    walk(QAccessible::queryAccessibleInterface(window), result);
    return result;
}

QAccessibleInterface *interfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

GroupRecord groupOf(const QString &name, qint64 size, const QString &type, const QString &uti,
                    const QStringList &paths)
{
    return GroupRecord{name, size, type, paths, name, {}, uti, size * paths.size(), {}};
}

void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

    // The whole main view, both tools, with scripted services and no fades.
    struct Window
    {
        ScriptedAlertPresenter alerts;
        ScriptedOpenPanel panel;
        ScriptedWorkspace workspace;
        ApplicationStatus status;
        BRDuplicateFilesMainViewController *duplicates =
            new BRDuplicateFilesMainViewController({alerts, panel, workspace, &status});
        BRRenameViewController *rename = new BRRenameViewController({alerts, panel});
        BRMainViewController main{alerts, duplicates, rename};
        GroupMap groups;

        Window()
        {
            duplicates->setTimings({0, 0, 1000});
            rename->setFadeDuration(0);
            main.resize(900, 700);
            main.show();
        }
        BRDuplicateFilesViewController *results() const
        {
            return duplicates->duplicateFilesViewController();
        }
        // A finished scan with three groups.
        void showResults()
        {
            results()->startScanProcess(QUrl());
            const QList<GroupRecord> found{
                groupOf(u"beach.jpg"_s, 2'200'000, u"JPEG image"_s, u"image/jpeg"_s,
                        {u"/p/a/beach.jpg"_s, u"/p/b/beach.jpg"_s, u"/p/c/beach.jpg"_s}),
                groupOf(u"song.mp3"_s, 4'000'000, u"MP3 audio"_s, u"audio/mpeg"_s,
                        {u"/m/song.mp3"_s, u"/n/song.mp3"_s}),
                groupOf(u"notes.txt"_s, 70'000, u"plain text document"_s, u"text/plain"_s,
                        {u"/d/notes.txt"_s, u"/e/notes.txt"_s})};
            qint64 count = 0;
            for (const GroupRecord &record : found) {
                groups.insert(record.oldKey, record);
                count += record.filePath.size();
                results()->updateDuplicateFiles({groups, record.oldKey, false, count, 0});
                settle();
            }
            results()->updateDuplicateFiles({groups, QString(), true, count, 0});
            settle();
        }
        // Three real files in the rename list.
        void showRenameRows(TestDir &dir)
        {
            main.renameImageButton()->click();
            QList<QUrl> urls;
            for (const QString &name : {u"a.jpg"_s, u"b.jpg"_s, u"c.png"_s})
                urls.append(QUrl::fromLocalFile(dir.createFile(name, "x")));
            Q_EMIT rename->notificationCenter()->dragAndDropComplete(urls);
            QTRY_VERIFY(rename->renameTableView()->isVisible());
            QTRY_COMPARE(rename->renameTableView()->model()->rowCount(), 3);
        }
        bool activate()
        {
            QApplication::setActiveWindow(&main);
            return QTest::qWaitForWindowActive(&main);
        }
    };

    TestDir m_dir;

private Q_SLOTS:
    void initTestCase()
    {
        // Qt builds the accessible tree only while something listens; the test does.
        QAccessible::setActive(true);
    }

    void everyControlIsNamed_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::newRow("duplicates, start") << u"start"_s;
        QTest::newRow("duplicates, scanning") << u"scanning"_s;
        QTest::newRow("duplicates, nothing found") << u"status"_s;
        QTest::newRow("duplicates, results with groups") << u"results"_s;
        QTest::newRow("duplicates, detail popover open") << u"detail"_s;
        QTest::newRow("rename, drop target") << u"drop"_s;
        QTest::newRow("rename, list with rows") << u"list"_s;
        QTest::newRow("rename, per-file popover open") << u"editor"_s;
        QTest::newRow("rename, completion") << u"complete"_s;
    }
    void everyControlIsNamed()
    {
        QFETCH(QString, screen);
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.main));
        RowAnchoredPopover *popover = nullptr;
        QString popoverName;
        if (screen == u"scanning"_s)
            window.results()->startScanProcess(QUrl());
        if (screen == u"status"_s)
            window.duplicates->showScanStatusScreen(u"Photos"_s);
        if (screen == u"results"_s || screen == u"detail"_s)
            window.showResults();
        if (screen == u"detail"_s) {
            window.results()->showPopOverView(0);
            popover = window.results()->popover();
            popoverName = u"beach.jpg"_s;
        }
        if (screen == u"drop"_s)
            window.main.renameImageButton()->click();
        if (screen == u"list"_s || screen == u"editor"_s)
            window.showRenameRows(m_dir);
        if (screen == u"complete"_s) {
            window.main.renameImageButton()->click();
            window.rename->setViewsHiddenState(true, true, true, false);
            // After a partial failure: Show failed files and Undo Rename are up too.
            window.rename->renameCompleteStatusView()->setFailedCount(1);
            window.rename->renameCompleteStatusView()->setUndoAvailable(true);
            Q_EMIT window.rename->notificationCenter()->renameComplete({u"a.jpg"_s});
        }
        if (screen == u"editor"_s) {
            window.rename->showPopOver(1);
            popover = window.rename->popover();
            popoverName = u"b.jpg"_s;
        }
        settle();

        const Walk walk = walkWindow(&window.main);
        QVERIFY2(walk.unnamed.isEmpty(), qPrintable(walk.unnamed.join(u"\n"_s)));
        QVERIFY(walk.visited.size() > 10);
        if (popover) {
            // The popover is in the window's tree, as a named dialog a reader announces.
            QVERIFY(popover->isVisible());
            QAccessibleInterface *node = interfaceOf(popover);
            QVERIFY(walk.visited.contains(node));
            QCOMPARE(node->role(), QAccessible::Dialog);
            QCOMPARE(node->text(QAccessible::Name), popoverName);
        }
    }

    void firstLaunchAndAboutAreNamed()
    {
        ScriptedWorkspace workspace;
        ScriptedOpenPanel panel;
        QSettings settings(m_dir.filePath(u"settings.ini"_s), QSettings::IniFormat);
        BRIntroViewController intro;
        BRSelectHomeFolderViewController home(panel, &settings);
        BRAboutViewController about(workspace);
        for (QWidget *screen : {static_cast<QWidget *>(&intro), static_cast<QWidget *>(&home),
                                static_cast<QWidget *>(&about)}) {
            screen->show();
            QVERIFY(QTest::qWaitForWindowExposed(screen));
            const Walk walk = walkWindow(screen);
            QVERIFY2(walk.unnamed.isEmpty(), qPrintable(walk.unnamed.join(u"\n"_s)));
            QVERIFY(walk.visited.size() > 2);
        }
    }

    void rowsSayWhatTheyPaint()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.main));
        window.showResults();
        BRDuplicateTableView *list = window.results()->duplicateTableView();
        QAccessibleInterface *listNode = interfaceOf(list);
        QVERIFY(listNode);
        QCOMPARE(listNode->text(QAccessible::Name), u"Duplicates"_s);
        QStringList names;
        QString beach;
        for (int i = 0; i < listNode->childCount(); ++i) {
            QAccessibleInterface *row = listNode->child(i);
            if (row->role() != QAccessible::ListItem)
                continue;
            names.append(row->text(QAccessible::Name));
            if (row->text(QAccessible::Name) == u"beach.jpg"_s)
                beach = row->text(QAccessible::Description);
        }
        names.sort();
        QCOMPARE(names, (QStringList{u"beach.jpg"_s, u"notes.txt"_s, u"song.mp3"_s}));
        QCOMPARE(beach,
                 u"3 copies, JPEG image, 2.1 MiB each, 6.3 MiB in all, 4.2 MiB reclaimable"_s);

        // The totals carry their captions.
        const auto *count = window.results()->findChild<QWidget *>(u"totalFilesCountLabel"_s);
        QCOMPARE(interfaceOf(const_cast<QWidget *>(count))->text(QAccessible::Name),
                 u"Duplicate files: 7"_s);
    }

    void choicesReportTheirState()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.main));
        const auto checked = [](QAbstractButton *button) {
            const QAccessible::State state = interfaceOf(button)->state();
            return state.checkable ? (state.checked ? 1 : 0) : -1;
        };
        BRMainViewController &main = window.main;
        QCOMPARE(checked(main.duplicateButton()), 1);
        QCOMPARE(checked(main.duplicateImageButton()), 1);
        QCOMPARE(checked(main.renameButton()), 0);
        QCOMPARE(checked(main.renameImageButton()), 0);
        // A reader's user acts through the interface: the tool switches as on a click.
        QAccessibleInterface *renameNode = interfaceOf(main.renameImageButton());
        QCOMPARE(renameNode->role(), QAccessible::RadioButton);
        QCOMPARE(renameNode->text(QAccessible::Name), u"Rename"_s);
        renameNode->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(main.tabViewController()->currentIndex(), BRTabViewController::renameIndex);
        QCOMPARE(checked(main.duplicateButton()), 0);
        QCOMPARE(checked(main.renameImageButton()), 1);
        // A second press on the tool shown leaves it checked.
        main.renameButton()->click();
        QCOMPARE(checked(main.renameButton()), 1);

        // A scan runs and the user keeps it: Rename stays unchecked.
        main.duplicateButton()->click();
        main.updateTabStatus(true);
        window.alerts.answers = {AlertPresenter::secondButton};
        main.renameImageButton()->click();
        QCOMPARE(main.tabViewController()->currentIndex(), BRTabViewController::duplicatesIndex);
        QCOMPARE(checked(main.renameImageButton()), 0);
        QCOMPARE(checked(main.duplicateImageButton()), 1);
        main.updateTabStatus(false);

        window.showResults();
        BRDuplicateSortViewController *bar = window.results()->sortViewController();
        const QList<QAbstractButton *> subTypes{bar->allButton(), bar->photoButton(),
                                                bar->musicButton(), bar->documentButton(),
                                                bar->folderButton()};
        const auto states = [&] {
            QList<int> result;
            for (QAbstractButton *button : subTypes)
                result.append(checked(button));
            return result;
        };
        QCOMPARE(states(), (QList<int>{1, 0, 0, 0, 0}));
        interfaceOf(bar->musicButton())
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(states(), (QList<int>{0, 0, 1, 0, 0}));
        QCOMPARE(window.results()->results().selectedSubType(), SubType::Music);
        // Pressing the chosen one again keeps it chosen.
        bar->musicButton()->click();
        QCOMPARE(states(), (QList<int>{0, 0, 1, 0, 0}));
        bar->allButton()->click();
        QCOMPARE(states(), (QList<int>{1, 0, 0, 0, 0}));
    }

    void resultsByKeyboard()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.main));
        QVERIFY(window.activate());
        window.showResults();
        BRDuplicateTableView *list = window.results()->duplicateTableView();
        list->setFocus(Qt::TabFocusReason);
        QVERIFY(list->hasFocus());
        QCOMPARE(list->currentIndex().row(), 0);
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(list->currentIndex().row(), 1);
        const QString second = window.results()->results().checkSearchActiveAndGetData().at(1);

        QTest::keyClick(list, Qt::Key_Return);
        QPointer<RowAnchoredPopover> popover = window.results()->popover();
        QVERIFY(popover && popover->isVisible());
        QCOMPARE(window.results()->previewDelegate()->key().value_or(QString()), second);
        QVERIFY(popover->isAncestorOf(QApplication::focusWidget()) ||
                QApplication::focusWidget() == popover);

        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!popover || !popover->isVisible());
        QCOMPARE(QApplication::focusWidget(), list);
        QCOMPARE(list->currentIndex().row(), 1);

        // Space opens too; a click elsewhere in the window closes it.
        QTest::keyClick(list, Qt::Key_Space);
        popover = window.results()->popover();
        QVERIFY(popover && popover->isVisible());
        QTest::mouseClick(window.results()->searchField(), Qt::LeftButton);
        QVERIFY(!popover || !popover->isVisible());

        list->setFocus(Qt::TabFocusReason);
        QTest::keyClick(list, Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), window.results()->searchField());
    }

    // Inside the detail: the first copy has the keyboard, arrows move between copies,
    // Delete removes the focused one and Ctrl+Enter shows it (both find these copies gone
    // from disk, which is said), and each row tells a screen reader which copy it is.
    void theDetailByKeyboard()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.main));
        QVERIFY(window.activate());
        window.showResults();
        BRDuplicateTableView *list = window.results()->duplicateTableView();
        list->setFocus(Qt::TabFocusReason);
        QTest::keyClick(list, Qt::Key_Return);
        BRDuplicateFilePreviewViewController *detail = window.results()->previewDelegate();
        QVERIFY(detail);
        const QString key = *detail->key();
        QCOMPARE(QApplication::focusWidget(), detail->cellAt(0));
        QCOMPARE(detail->cellAt(0)->accessibleName(),
                 u"Copy 1: "_s + window.groups.find(key)->filePath.at(0));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), detail->cellAt(1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        QCOMPARE(QApplication::focusWidget(), detail->cellAt(0));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);

        window.alerts.shown.clear();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        settle();
        QCOMPARE(window.results()->results().groups().find(key)->filePath.size(),
                 window.groups.find(key)->filePath.size() - 1);
        QCOMPARE(window.alerts.shown.size(), 1);
        QCOMPARE(window.alerts.shown[0].title, u"File does not exist"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return, Qt::ControlModifier);
        settle();
        QCOMPARE(window.alerts.shown.size(), 2);
    }

    void renameByKeyboard()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.main));
        QVERIFY(window.activate());
        window.showRenameRows(m_dir);
        BRRenameTableView *list = window.rename->renameTableView();
        QAccessibleInterface *listNode = interfaceOf(list);
        QCOMPARE(listNode->child(0)->text(QAccessible::Name), u"a.jpg"_s);
        QCOMPARE(listNode->child(0)->text(QAccessible::Description), u"No new name"_s);
        QVERIFY(listNode->child(0)->state().focusable);

        list->setFocus(Qt::TabFocusReason);
        QCOMPARE(list->currentIndex().row(), 0);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QPointer<RowAnchoredPopover> popover = window.rename->popover();
        QVERIFY(popover && popover->isVisible());
        // The editor's field has the keyboard at once.
        auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(field);
        QCOMPARE(field->objectName(), u"renameFileNewNameTextField"_s);
        QVERIFY(popover->isAncestorOf(field));
        // Beside the row: the popover covers none of the new names of the rows around it.
        for (int row = 0; row < 3; ++row) {
            QRect newName = list->popoverAnchorForRow(row);
            newName.moveTopLeft(list->mapTo(&window.main, newName.topLeft()));
            QVERIFY2(!popover->geometry().intersects(newName), qPrintable(QString::number(row)));
        }

        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(!popover || !popover->isVisible());
        QCOMPARE(QApplication::focusWidget(), list);

        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(window.rename->renameList()->keys(), (QStringList{u"a.jpg"_s, u"c.png"_s}));
    }
};

QTEST_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"
