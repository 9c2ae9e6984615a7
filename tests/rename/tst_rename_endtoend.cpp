#include "BRDragAndDropView.h"
#include "BRRenameCompleteView.h"
#include "BRRenameTableView.h"
#include "BRRenameViewController.h"
#include "RenameList.h"
#include "RowAnchoredPopover.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "TestDir.h"

#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

// A user's whole errand on the real screens: files dropped from a file manager, a rule
// typed, one name changed in the popover, the rename, and the folder on disk afterwards.
class tst_RenameEndToEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dropRuleEditRename()
    {
        TestDir dir;
        for (const char *name : {"b.jpg", "a.jpg", "c.png"})
            dir.createFile(QString::fromLatin1(name), name);

        ScriptedAlertPresenter alerts;
        ScriptedOpenPanel openPanel;
        BRRenameViewController screen({alerts, openPanel});
        screen.setFadeDuration(0);
        screen.resize(1000, 720);
        screen.show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        QVERIFY(screen.dragAndDropView()->isVisible());

        // A drop as a file manager makes it: a list of file URLs.
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(dir.filePath(u"b.jpg"_s)),
                      QUrl::fromLocalFile(dir.filePath(u"a.jpg"_s)),
                      QUrl::fromLocalFile(dir.filePath(u"c.png"_s))});
        QWidget *target = screen.dragAndDropView();
        const QPoint at = target->rect().center();
        QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        QVERIFY(enter.isAccepted());
        QDragMoveEvent move(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &move);
        QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &drop);
        QTRY_VERIFY(screen.renameTableView()->isVisible());
        QCOMPARE(screen.renameList()->keys().join(u' '), u"a.jpg b.jpg c.png");
        auto *renameButton = screen.findChild<QPushButton *>(u"renameButton"_s);
        QCOMPARE(renameButton->text(), u"Rename 3 files"_s);

        // The rule, typed.
        auto *newName = screen.findChild<QLineEdit *>(u"newNameTextField"_s);
        QVERIFY(newName && newName->isVisible());
        QTest::keyClicks(newName, u"Trip"_s);
        QTRY_VERIFY(!screen.renameList()->ruleRunPending());
        QTRY_COMPARE(screen.renameList()->records()[u"c.png"_s].destinationURL.value_or(QString()),
                     u"Trip3"_s);

        // One name changed in the popover of the second row.
        BRRenameTableView *table = screen.renameTableView();
        const QRect row = table->rectForRow(1);
        QVERIFY(!row.isEmpty());
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, row.center());
        QTRY_VERIFY(screen.popover() && screen.popover()->isVisible());
        auto *field = screen.popover()->findChild<QLineEdit *>(u"renameFileNewNameTextField"_s);
        QVERIFY(field);
        QCOMPARE(field->text(), u"Trip2"_s);
        QVERIFY(!field->isReadOnly());
        field->selectAll();
        QTest::keyClicks(field, u"Bee"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(screen.renameList()->records()[u"b.jpg"_s].nameSource, NameSource::HandEdit);
        screen.closePopOver();

        // The rename, and what it leaves.
        QSignalSpy ended(screen.renameList(), &RenameList::renameEnded);
        QTest::mouseClick(renameButton, Qt::LeftButton);
        QTRY_COMPARE(ended.size(), 1);
        QTRY_VERIFY(screen.renameCompleteStatusView()->isVisible());
        auto *label =
            screen.renameCompleteStatusView()->findChild<QLabel *>(u"renameStatusLabel"_s);
        QCOMPARE(label->text(), u"3 files renamed"_s);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files, QDir::Name).join(u' '),
                 u"Bee.jpg Trip1.jpg Trip3.png");
        QFile bee(dir.filePath(u"Bee.jpg"_s));
        QVERIFY(bee.open(QIODevice::ReadOnly));
        QCOMPARE(bee.readAll(), QByteArray("b.jpg"));
        QVERIFY(alerts.shown.isEmpty());

        // Done leads back to the drop target, with empty panels.
        QTest::mouseClick(
            screen.renameCompleteStatusView()->findChild<QPushButton *>(u"doneButton"_s),
            Qt::LeftButton);
        QTRY_VERIFY(screen.dragAndDropView()->isVisible());
        QCOMPARE(newName->text(), QString());
        QCOMPARE(renameButton->text(), u"Rename 0 files"_s);
    }
};

QTEST_MAIN(tst_RenameEndToEnd)
#include "tst_rename_endtoend.moc"
