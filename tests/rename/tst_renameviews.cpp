// The rename screen's views: the drop target and its browse button, the completion view,
// the list with its painted rows and live cell, and the per-file popover.

#include "BRDragAndDropImageView.h"
#include "BRDragAndDropView.h"
#include "BRFilePreviewPopoverViewController.h"
#include "BRRenameCompleteView.h"
#include "BRRenameCompleteViewDoneButton.h"
#include "BRRenameTableView.h"
#include "BRRenameTableViewCell.h"
#include "ExtensionSuffixLabel.h"
#include "LookColors.h"
#include "RecordingRenameDelegate.h"
#include "RenameList.h"
#include "RenameNotificationCenter.h"
#include "RenameTableModel.h"
#include "ScriptedOpenPanel.h"
#include "Translations.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

QUrl file(const QString &path)
{
    return QUrl::fromLocalFile(path);
}

std::unique_ptr<QMimeData> uriList(const QList<QUrl> &urls)
{
    auto data = std::make_unique<QMimeData>();
    data->setUrls(urls);
    return data;
}

// Sends a drag over `target` at `pos`, then, when asked, the drop; true when accepted.
bool drag(QWidget *target, const QMimeData &data, QPoint pos, bool drop)
{
    QDragEnterEvent enter(pos, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    QDragMoveEvent move(pos, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    if (!drop)
        return move.isAccepted();
    QDropEvent dropEvent(QPointF(pos), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                         Qt::NoModifier);
    QApplication::sendEvent(target, &dropEvent);
    return dropEvent.isAccepted();
}

// A list of four rows, shown: a rule name, a typed name, no name, and an emptied name.
struct List
{
    RenameList list;
    RecordingRenameDelegate delegate;
    BRRenameTableView table;

    List()
    {
        list.add({file(u"/nowhere/a.txt"_s), file(u"/nowhere/b.txt"_s), file(u"/nowhere/c.txt"_s)});
        list.setFullNameRule(u"Trip"_s, u"1"_s, NamePlacement::AfterName);
        // A run that never lands shows in names(), which a test compares.
        Q_UNUSED(QTest::qWaitFor([this] { return !list.ruleRunPending(); }));
        list.setHandName(1, u"Bee"_s);
        // A number that cannot be read: rule runs land nothing now, and the withdrawn
        // name of c.txt has no rule name to fall back to.
        list.setFullNameRule(u"Trip"_s, u"x"_s, NamePlacement::AfterName);
        list.setHandName(2, QString());
        // Added after all that, d.txt keeps the empty name every file starts with.
        list.add({file(u"/nowhere/d.txt"_s)});
        table.setRenameDelegate(&delegate);
        table.renameModel()->setList(&list);
        table.resize(800, 600);
        table.show();
    }
    // The rows as the fixture promises them.
    QString names() const
    {
        QStringList names;
        for (const QString &key : list.keys()) {
            const RenameRecord &row = list.records()[key];
            names.append(key + u'=' + (row.destinationURL ? *row.destinationURL : u"-"_s) +
                         (row.nameSource == NameSource::HandEdit ? u"*"_s : QString()));
        }
        return names.join(u' ');
    }

    QPoint centreOf(int row) const
    {
        return table.viewport()->mapFrom(&table, table.rectForRow(row).center());
    }
    void moveMouse(QPoint pos)
    {
        QMouseEvent move(QEvent::MouseMove, QPointF(pos),
                         QPointF(table.viewport()->mapToGlobal(pos)), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(table.viewport(), &move);
    }
    BRRenameTableViewCell *hover(int row)
    {
        moveMouse(centreOf(row));
        return table.cellForRow(row);
    }
    bool activate()
    {
        table.activateWindow();
        return QTest::qWaitForWindowActive(&table);
    }
};

} // namespace

class TestRenameViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // English with its plural forms, as the program starts.
    void initTestCase() { Translations::install(*qApp, QLocale(QLocale::English)); }

    void dropTargetTakesOnlyFiles_data();
    void dropTargetTakesOnlyFiles();
    void dropTargetLightsUpWhileFilesAreOver();
    void browseChoosesFilesInAnOpenPanel();
    void completionCountsTheRenamedFiles();

    void dropsGoBetweenRowsNeverOntoOne();

    void liveCellFollowsTheMouse();
    void liveCellFieldShowsTheNameByItsKind();
    void theExtensionFollowsTheNameAsItIsTyped();
    void liveCellControlsReportTheirRow();
    void liveCellFollowsItsKeyThroughReloads();
    void clickOpensPopoverAndWheelClosesIt();

    void popoverCommitsOnlyAnEditableName();
};

void TestRenameViews::dropTargetTakesOnlyFiles_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("web link") << QList<QUrl>{QUrl(u"https://example.com/a.jpg"_s)} << false;
    QTest::newRow("file with a web link")
        << QList<QUrl>{file(u"/tmp/a.jpg"_s), QUrl(u"https://example.com/b.jpg"_s)} << false;
    QTest::newRow("nothing") << QList<QUrl>{} << false;
    QTest::newRow("files and a folder")
        << QList<QUrl>{file(u"/tmp/a.jpg"_s), file(u"/tmp/Holiday"_s)} << true;
}

void TestRenameViews::dropTargetTakesOnlyFiles()
{
    QFETCH(QList<QUrl>, urls);
    QFETCH(bool, accepted);
    RenameNotificationCenter center;
    ScriptedOpenPanel panel;
    BRDragAndDropView view(&center, panel);
    view.resize(800, 600);
    QSignalSpy announced(&center, &RenameNotificationCenter::dragAndDropComplete);
    const auto data = uriList(urls);

    // The view and the picture in it each take the drop, and each announces it once.
    QCOMPARE(drag(&view, *data, QPoint(5, 5), true), accepted);
    QCOMPARE(announced.size(), accepted ? 1 : 0);
    QCOMPARE(view.fileUrls(), accepted ? urls : QList<QUrl>{});
    QCOMPARE(drag(view.imageView(), *data, QPoint(5, 5), true), accepted);
    QCOMPARE(announced.size(), accepted ? 2 : 0);
    QCOMPARE(view.imageView()->fileUrls(), accepted ? urls : QList<QUrl>{});
    if (accepted)
        QCOMPARE(announced.last().first().value<QList<QUrl>>(), urls);
}

void TestRenameViews::dropTargetLightsUpWhileFilesAreOver()
{
    RenameNotificationCenter center;
    ScriptedOpenPanel panel;
    BRDragAndDropView view(&center, panel);
    const auto files = uriList({file(u"/tmp/a.jpg"_s)});
    QVERIFY(drag(&view, *files, QPoint(5, 5), false));
    QVERIFY(view.imageView()->isHighlighted());
    QDragLeaveEvent leave;
    QApplication::sendEvent(&view, &leave);
    QVERIFY(!view.imageView()->isHighlighted());

    const auto link = uriList({QUrl(u"https://example.com/"_s)});
    QVERIFY(!drag(&view, *link, QPoint(5, 5), false));
    QVERIFY(!view.imageView()->isHighlighted());
    // A drop ends the dragging.
    QVERIFY(drag(view.imageView(), *files, QPoint(5, 5), true));
    QVERIFY(!view.imageView()->isHighlighted());
}

void TestRenameViews::browseChoosesFilesInAnOpenPanel()
{
    RenameNotificationCenter center;
    ScriptedOpenPanel panel;
    const QList<QUrl> chosen{file(u"/tmp/a.jpg"_s), file(u"/tmp/Holiday"_s)};
    panel.choices = {chosen};
    BRDragAndDropView view(&center, panel);
    view.show();
    QSignalSpy announced(&center, &RenameNotificationCenter::dragAndDropComplete);
    QCOMPARE(view.browseButton()->objectName(), u"browseButton"_s);

    QTest::mouseClick(view.browseButton(), Qt::LeftButton);
    QCOMPARE(announced.size(), 1);
    QCOMPARE(announced.first().first().value<QList<QUrl>>(), chosen);
    QCOMPARE(view.fileUrls(), chosen);
    QCOMPARE(panel.shown.size(), 1);
    const OpenPanelRequest &request = panel.shown.first();
    QCOMPARE(request.message, u"Choose files to rename"_s);
    QVERIFY(request.canChooseFiles && request.canChooseDirectories);
    QVERIFY(request.canCreateDirectories && request.allowsMultipleSelection);
    QVERIFY(!request.showsHiddenFiles);

    // Cancelled: nothing is announced and the earlier choice stands.
    QTest::mouseClick(view.browseButton(), Qt::LeftButton);
    QCOMPARE(panel.shown.size(), 2);
    QCOMPARE(announced.size(), 1);
    QCOMPARE(view.fileUrls(), chosen);
}

void TestRenameViews::completionCountsTheRenamedFiles()
{
    RenameNotificationCenter center;
    BRRenameCompleteView view(&center);
    view.show();
    QSignalSpy done(&center, &RenameNotificationCenter::renameDone);

    Q_EMIT center.renameComplete({u"Trip1"_s});
    QCOMPARE(view.renameStatusLabel()->text(), u"1 file renamed"_s);
    QCOMPARE(view.renameStatusLabel()->alignment() & Qt::AlignHCenter, Qt::AlignHCenter);
    Q_EMIT center.renameComplete({});
    QCOMPARE(view.renameStatusLabel()->text(), u"1 file renamed"_s);

    QCOMPARE(view.doneButton()->text(), u"Done"_s);
    QTest::mouseClick(view.doneButton(), Qt::LeftButton);
    QCOMPARE(done.size(), 1);
}

void TestRenameViews::dropsGoBetweenRowsNeverOntoOne()
{
    List list;
    QCOMPARE(list.names(), u"a.txt=Trip1 b.txt=Bee* c.txt=- d.txt="_s);
    RenameTableModel *model = list.table.renameModel();
    const auto files = uriList({file(u"/tmp/x.jpg"_s)});
    QList<QUrl> handed;
    model->setAcceptDrop([&](const QList<QUrl> &urls) {
        handed = urls;
        return true;
    });

    // The middle of a row refuses, its edge and the empty area below the rows take the
    // files.
    QWidget *viewport = list.table.viewport();
    const QRect first = list.table.visualRect(model->index(0, 0));
    QVERIFY(!drag(viewport, *files, first.center(), false));
    QVERIFY(drag(viewport, *files, QPoint(first.center().x(), first.bottom() - 2), false));
    QVERIFY(drag(viewport, *files, QPoint(10, viewport->height() - 5), true));
    QCOMPARE(handed, files->urls());
}

void TestRenameViews::liveCellFollowsTheMouse()
{
    BRRenameTableViewCell alone;
    alone.show();
    QVERIFY(!alone.removeButton()->isVisible());
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QApplication::sendEvent(&alone, &enter);
    QVERIFY(alone.removeButton()->isVisible());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&alone, &leave);
    QVERIFY(!alone.removeButton()->isVisible());

    List list;
    QVERIFY(!list.table.cellForRow(1));
    BRRenameTableViewCell *cell = list.hover(1);
    QVERIFY(cell);
    QVERIFY(cell->isVisible());
    QCOMPARE(cell->geometry(), list.table.visualRect(list.table.renameModel()->index(1, 0)));
    QVERIFY(cell->removeButton()->isVisible());
    QCOMPARE(cell->removeButton()->accessibleName(), u"Remove"_s);
    QVERIFY(cell->removeButton()->icon().isNull() == false);
    QVERIFY(cell->removeButton()->text().isEmpty());
    QCOMPARE(cell->popoverButton()->accessibleName(), u"Preview"_s);
    QCOMPARE(cell->sourceFileNamesLabel()->text(), u"b.txt"_s);

    // One row at a time; leaving the list leaves every row painted.
    QCOMPARE(list.hover(2), cell);
    QVERIFY(!list.table.cellForRow(1));
    QEvent out(QEvent::Leave);
    QApplication::sendEvent(list.table.viewport(), &out);
    QVERIFY(!list.table.cellForRow(2));
    QVERIFY(!cell->isVisible());
}

void TestRenameViews::liveCellFieldShowsTheNameByItsKind()
{
    List list;
    QLineEdit *rule = list.hover(0)->destFileNameLabel();
    QCOMPARE(rule->text(), u"Trip1"_s);
    QVERIFY(!rule->isReadOnly());
    QCOMPARE(rule->palette().color(QPalette::Text), Look::color(Look::Color::RuleName));

    QLineEdit *edited = list.hover(1)->destFileNameLabel();
    QCOMPARE(edited->text(), u"Bee"_s);
    QCOMPARE(edited->palette().color(QPalette::Text), Look::color(Look::Color::HandEditedName));

    // No name and an emptied name alike: the placeholder, and nothing to edit.
    for (int row : {2, 3}) {
        QLineEdit *none = list.hover(row)->destFileNameLabel();
        QCOMPARE(none->text(), QString());
        QVERIFY(none->isReadOnly());
        QCOMPARE(none->placeholderText(), u"New Name"_s);
        QCOMPARE(none->palette().color(QPalette::PlaceholderText),
                 Look::color(Look::Color::NewNamePlaceholder));
        QVERIFY(none->testAttribute(Qt::WA_TransparentForMouseEvents));
    }
    // The same cell moving back to a named row can be edited again.
    QVERIFY(!list.hover(0)->destFileNameLabel()->isReadOnly());
}

// The whole name the file will have: the typed base, then the kept extension in a lighter
// tone right after it, never under the text, and nothing after a row without a name.
void TestRenameViews::theExtensionFollowsTheNameAsItIsTyped()
{
    List list;
    BRRenameTableViewCell *cell = list.hover(0);
    QLineEdit *field = cell->destFileNameLabel();
    ExtensionSuffixLabel *suffix = cell->extensionSuffix();
    QCOMPARE(suffix->suffix(), u".txt"_s);
    QVERIFY(suffix->isVisible());
    const int start = suffix->x();
    field->setText(u"Trip1 and more"_s);
    const int grown = field->fontMetrics().horizontalAdvance(u"Trip1 and more"_s) -
                      field->fontMetrics().horizontalAdvance(u"Trip1"_s);
    QCOMPARE(suffix->x(), start + grown);
    // A name longer than the field scrolls under its text margin; the suffix stays whole.
    field->setText(QString(400, u'n'));
    QVERIFY(suffix->geometry().right() < field->width());
    QVERIFY(field->textMargins().right() >= suffix->width());

    // A row without a name shows the placeholder alone.
    BRRenameTableViewCell *unnamed = list.hover(2);
    QVERIFY(!unnamed->extensionSuffix()->isVisible());
    QCOMPARE(unnamed->destFileNameLabel()->textMargins().right(), 0);

    // The painted row says the same as the live one.
    const QModelIndex first = list.table.model()->index(0, 0);
    QCOMPARE(first.data(RenameTableModel::SuffixRole).toString(), u".txt"_s);
}

void TestRenameViews::liveCellControlsReportTheirRow()
{
    List list;
    QVERIFY(list.activate());
    BRRenameTableViewCell *cell = list.hover(1);

    QTest::mouseClick(cell->removeButton(), Qt::LeftButton);
    QCOMPARE(list.delegate.calls, QStringList{u"removeRowFromTableView"_s});
    QCOMPARE(list.delegate.lastSender, cell->removeButton());
    QCOMPARE(list.table.rowForView(list.delegate.lastSender), 1);

    list.delegate.calls.clear();
    QTest::mouseClick(cell->popoverButton(), Qt::LeftButton);
    QCOMPARE(list.delegate.calls, QStringList{u"showPopOverForView"_s});
    QCOMPARE(list.table.rowForView(list.delegate.lastSender), 1);

    // Return closes any popover before the name is committed.
    list.delegate.calls.clear();
    QLineEdit *field = cell->destFileNameLabel();
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
    field->selectAll();
    QTest::keyClicks(field, u"Bees"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(list.delegate.calls, (QStringList{u"closePopOver"_s, u"updateNewFileName(none)"_s}));
    QCOMPARE(list.delegate.lastTextField, field);
    QCOMPARE(list.delegate.lastFieldText, u"Bees"_s);
    QCOMPARE(list.table.rowForView(field), 1);
    // Already committed: leaving the field sends nothing more.
    list.table.setFocus();
    QTRY_VERIFY(!field->hasFocus());
    QCOMPARE(list.delegate.calls.size(), 2);
    // Typed and left without Return: leaving commits it all the same.
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
    QTest::keyClicks(field, u"!"_s);
    list.table.setFocus();
    QTRY_COMPARE(list.delegate.calls.size(), 4);
    QCOMPARE(list.delegate.calls.last(), u"updateNewFileName(none)"_s);
    QCOMPARE(list.delegate.lastFieldText, u"Bees!"_s);

    // A widget of no row has no row.
    QCOMPARE(list.table.rowForView(list.table.viewport()), -1);
    QCOMPARE(list.table.rowForView(nullptr), -1);
}

void TestRenameViews::liveCellFollowsItsKeyThroughReloads()
{
    List list;
    QVERIFY(list.activate());
    RenameTableModel *model = list.table.renameModel();

    // The row under the mouse leaves: the cell takes the row that comes under it.
    QVERIFY(list.hover(0));
    list.list.remove(u"a.txt"_s);
    BRRenameTableViewCell *cell = list.table.cellForRow(0);
    QVERIFY(cell);
    QCOMPARE(cell->sourceFileNamesLabel()->text(), u"b.txt"_s);
    QCOMPARE(cell->destFileNameLabel()->text(), u"Bee"_s);

    // A name being typed survives another name landing for its row, and moves with its
    // file when a row comes before it.
    QLineEdit *field = cell->destFileNameLabel();
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
    field->selectAll();
    QTest::keyClicks(field, u"Be"_s);
    list.list.setHandName(0, u"Trip2"_s);
    QCOMPARE(field->text(), u"Be"_s);
    list.list.add({file(u"/nowhere/a.txt"_s)});
    QCOMPARE(list.table.rowForView(field), 1);
    QCOMPARE(list.table.cellForRow(1), cell);
    QCOMPARE(field->text(), u"Be"_s);
    QCOMPARE(cell->geometry(), list.table.visualRect(model->index(1, 0)));
    // The mouse, still over the first row, has a cell of its own there.
    QVERIFY(list.table.cellForRow(0));
    QVERIFY(list.table.cellForRow(0) != cell);
    QCOMPARE(list.table.cellForRow(0)->sourceFileNamesLabel()->text(), u"a.txt"_s);

    // The file being named leaves the list: its cell goes, nothing is committed for it.
    list.delegate.calls.clear();
    list.list.remove(u"b.txt"_s);
    QCOMPARE(list.table.rowForView(field), -1);
    QVERIFY(!field->hasFocus());
    QVERIFY(list.delegate.calls.isEmpty());
}

void TestRenameViews::clickOpensPopoverAndWheelClosesIt()
{
    List list;
    const QPoint onRow = list.centreOf(2);
    QTest::mouseClick(list.table.viewport(), Qt::LeftButton, {}, onRow);
    QVERIFY(list.delegate.calls.contains(u"showPopOver(2)"_s));

    // Below the last row there is no row to show.
    list.delegate.calls.clear();
    QTest::mouseClick(list.table.viewport(), Qt::LeftButton, {},
                      QPoint(10, list.table.viewport()->height() - 5));
    QVERIFY(list.delegate.calls.isEmpty());

    QWheelEvent wheel(QPointF(onRow), QPointF(list.table.viewport()->mapToGlobal(onRow)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(list.table.viewport(), &wheel);
    QCOMPARE(list.delegate.calls, QStringList{u"closePopOver"_s});
}

void TestRenameViews::popoverCommitsOnlyAnEditableName()
{
    RecordingRenameDelegate delegate;
    BRFilePreviewPopoverViewController popover;
    popover.setDelegate(&delegate);
    popover.setIndex(3);
    popover.setCurrentName(u"IMG_2041.jpg"_s);
    popover.show();
    QCOMPARE(popover.renameFileImageView()->size(), QSize(260, 260));
    QCOMPARE(popover.renameFileCurrentLabel()->text(), u"IMG_2041.jpg"_s);

    QLineEdit *field = popover.renameFileNewNameTextField();
    QVERIFY(field->isReadOnly());
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(delegate.calls.isEmpty());

    // A name typed with a dot of its own still gets the file's extension after it.
    popover.setEditableName(u"Trip4"_s, u".jpg"_s);
    QVERIFY(!field->isReadOnly());
    QCOMPARE(field->text(), u"Trip4"_s);
    QCOMPARE(popover.extensionSuffix()->suffix(), u".jpg"_s);
    QVERIFY(popover.extensionSuffix()->isVisible());
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClicks(field, u"b"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(delegate.calls, QStringList{u"updateNewFileName(3)"_s});
    QCOMPARE(delegate.lastTextField, field);
    QCOMPARE(delegate.lastFieldText, u"Trip4b"_s);
    QVERIFY(popover.isVisible());

    // Without a row there is nothing to commit to.
    popover.setIndex(std::nullopt);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(delegate.calls.size(), 1);

    // A large picture is fitted into the square.
    QImage wide(1000, 500, QImage::Format_RGB32);
    wide.fill(Qt::blue);
    popover.setImage(wide);
    const QPixmap shown = popover.renameFileImageView()->pixmap();
    QCOMPARE(shown.deviceIndependentSize(), QSizeF(260, 260));
}

QTEST_MAIN(TestRenameViews)
#include "tst_renameviews.moc"
