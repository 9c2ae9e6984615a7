#include "BRDuplicateFilePreviewTableViewCell.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesViewDelegate.h"
#include "BRDuplicatePopOverTableView.h"
#include "FilePreviewView.h"
#include "LookColors.h"
#include "TestDir.h"

#include <QEnterEvent>
#include <QLabel>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>
#include <QtMath>

#include <functional>

// The results screen as the popover sees it: it notes the two requests and, if told to,
// answers a deletion the way the real one does when the Trash took the file.
class ResultsScreenStandIn final : public BRDuplicateFilesViewDelegate
{
public:
    QStringList calls;
    std::function<void(int)> answerDeletion;

    void updateAfterDelete(int index, const QString &key) override
    {
        calls.append(QStringLiteral("updateAfterDelete(%1,%2)").arg(index).arg(key));
        if (answerDeletion)
            answerDeletion(index);
    }
    void openURLData(int index, const QString &key) override
    {
        calls.append(QStringLiteral("openURLData(%1,%2)").arg(index).arg(key));
    }
    void updateDuplicateFiles(const ScanReport &) override {}
    void showPopOverView(int) override {}
    void showPopOverForView(QObject *) override {}
    void closePopOver() override {}
    void startScanProcess(const std::optional<QUrl> &) override {}
    void startNewScanProcess() override {}
    void sortMainType(SortOrder, bool) override {}
    void sortSubType(SubType, SortOrder) override {}
    void cancelScanProcess() override {}
    void updateScanStatus(bool) override {}
};

class tst_DetailPopover : public QObject
{
    Q_OBJECT

    TestDir m_dir;
    ResultsScreenStandIn m_results;

    // Filled as the results screen fills it.
    void open(BRDuplicateFilePreviewViewController &popover, const QStringList &paths,
              qint64 size = 10, bool withKey = true)
    {
        popover.setDelegate(&m_results);
        if (withKey)
            popover.setKey(QStringLiteral("group"));
        popover.setScanStatus(true);
        popover.setFilePaths(paths);
        popover.setFileInfo(QStringLiteral("group"),
                            {QStringLiteral("x.jpg"), QStringLiteral("JPEG image"), size});
        popover.showPreview(QUrl::fromLocalFile(paths.value(0)));
        popover.setFileNameAndReloadData(QStringLiteral("x.jpg"));
    }

    QString copy(const QString &name)
    {
        const QString path = m_dir.createFile(name, QByteArray(10, 'x'));
        QFile file(path);
        file.open(QIODevice::ReadWrite);
        file.setFileTime(QDateTime(QDate(2018, 3, 7), QTime(12, 0)),
                         QFileDevice::FileModificationTime);
        return path;
    }

private Q_SLOTS:
    void init() { m_results = ResultsScreenStandIn(); }

    void rows_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<qint64>("size");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("serial");
        QTest::addColumn<QString>("path"); // null: not checked
        QTest::addColumn<QString>("byteSize");
        QTest::addColumn<QString>("date");
        QTest::addColumn<bool>("deletable");
        const QStringList copies{copy(QStringLiteral("a/x.jpg")), copy(QStringLiteral("b/x.jpg"))};
        const QString vanished = QStringLiteral("/home/anna/x.jpg");
        QTest::newRow("present copy")
            << copies << qint64(10) << 1 << QStringLiteral("2.") << QString()
            << QStringLiteral("10 bytes") << QStringLiteral("Modified:07 Mar 2018") << true;
        QTest::newRow("size 0 is a size")
            << copies << qint64(0) << 0 << QStringLiteral("1.") << QString()
            << QStringLiteral("0 bytes") << QStringLiteral("Modified:07 Mar 2018") << true;
        QTest::newRow("vanished copy")
            << QStringList{vanished, copies.at(0)} << qint64(10) << 0 << QStringLiteral("1.")
            << QStringLiteral("home > anna > x.jpg") << QStringLiteral("Not Available") << QString()
            << true;
        QTest::newRow("no leading slash, last copy")
            << QStringList{QStringLiteral("relative/a.jpg")} << qint64(10) << 0
            << QStringLiteral("1.") << QStringLiteral("elative > a.jpg")
            << QStringLiteral("Not Available") << QString() << false;
    }
    void rows()
    {
        QFETCH(QStringList, paths);
        QFETCH(qint64, size);
        QFETCH(int, row);
        BRDuplicateFilePreviewViewController popover;
        open(popover, paths, size);

        QCOMPARE(popover.dupePreviewTableView()->numberOfRows(), int(paths.size()));
        BRDuplicateFilePreviewTableViewCell *cell = popover.cellAt(row);
        QVERIFY(cell);
        QTEST(cell->serialLabel()->text(), "serial");
        QFETCH(QString, path);
        if (!path.isNull())
            QCOMPARE(cell->pathText(), path);
        QTEST(cell->byteSizeLabel()->text(), "byteSize");
        QTEST(cell->modifiedDateLabel()->text(), "date");
        QTEST(!cell->deleteButton()->isHidden(), "deletable");
        QCOMPARE(cell->deleteButton()->accessibleName(), QStringLiteral("Move to Trash"));
        // Every separator is lighter than the names around it.
        QTextDocument *document = cell->pathLabel()->document();
        for (QTextBlock::iterator it = document->begin().begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const bool separator = fragment.text() == QStringLiteral(">");
            QCOMPARE(fragment.charFormat().foreground().color() ==
                         Look::color(Look::Color::PathSeparator),
                     separator);
            QVERIFY(!fragment.text().contains(QLatin1Char('>')) || separator);
        }
    }

    void longPathsWrapInTheirRow()
    {
        const QString longName = QStringLiteral("/") + QString(120, QLatin1Char('n'));
        BRDuplicateFilePreviewViewController popover;
        open(popover, {QStringLiteral("/a/b.jpg"), longName});
        const BRDuplicateFilePreviewTableViewCell *shortRow = popover.cellAt(0);
        const BRDuplicateFilePreviewTableViewCell *longRow = popover.cellAt(1);
        QCOMPARE(
            longRow->height(),
            qCeil(BRDuplicateFilePreviewViewController::calculateHeightForLabel(longName.mid(1))) +
                52);
        QVERIFY(longRow->height() > shortRow->height());
        // A name with nowhere to break at a word still breaks inside the label's width.
        QVERIFY(longRow->pathLabel()->document()->idealWidth() <= 231);
        QVERIFY(longRow->pathLabel()->height() >=
                longRow->pathLabel()->document()->size().height());
    }

    void deletion_data()
    {
        QTest::addColumn<bool>("trashTakesIt");
        QTest::addColumn<int>("rowsLeft");
        QTest::newRow("trash refuses: the row stays, greyed") << false << 2;
        QTest::newRow("trash takes it: the last copy cannot go") << true << 1;
    }
    void deletion()
    {
        QFETCH(bool, trashTakesIt);
        BRDuplicateFilePreviewViewController popover;
        if (trashTakesIt)
            m_results.answerDeletion = [&popover](int row) {
                popover.removeDataAtIndex(row);
            };
        open(popover, {copy(QStringLiteral("a/x.jpg")), copy(QStringLiteral("b/x.jpg"))});
        popover.show();

        // The answer rebuilds the list while the pressed button is still in its click.
        QTest::mouseClick(popover.cellAt(1)->deleteButton(), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        QCOMPARE(m_results.calls, QStringList{QStringLiteral("updateAfterDelete(1,group)")});
        QTEST(popover.dupePreviewTableView()->numberOfRows(), "rowsLeft");
        if (trashTakesIt) {
            QVERIFY(popover.cellAt(0)->deleteButton()->isHidden());
            QVERIFY(popover.cellAt(0)->pathLabel()->palette().color(QPalette::Text) !=
                    Look::color(Look::Color::DisabledText));
        } else {
            const BRDuplicateFilePreviewTableViewCell *cell = popover.cellAt(1);
            QVERIFY(cell->deleteButton()->isHidden());
            QCOMPARE(cell->pathLabel()->palette().color(QPalette::Text),
                     Look::color(Look::Color::DisabledText));
            QCOMPARE(cell->serialLabel()->palette().color(QPalette::WindowText),
                     Look::color(Look::Color::DisabledText));
            // A row on its way to the Trash stays grey under the pointer.
            QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
            QCoreApplication::sendEvent(popover.cellAt(1), &enter);
            QCOMPARE(cell->pathLabel()->palette().color(QPalette::Text),
                     Look::color(Look::Color::DisabledText));
        }
    }

    void cellHoverAndAMissingDelegate()
    {
        BRDuplicateFilePreviewTableViewCell cell;
        const auto pathColor = [&cell] {
            return cell.pathLabel()->palette().color(QPalette::Text);
        };
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(&cell, &enter);
        QCOMPARE(pathColor(), Look::color(Look::Color::PrimaryText));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&cell, &leave);
        QCOMPARE(pathColor(), Look::color(Look::Color::SecondaryText));
        cell.deleteAction();
        QVERIFY(!cell.deleteButton()->isHidden());
        QCOMPARE(pathColor(), Look::color(Look::Color::SecondaryText));
    }

    void removeDataAtIndexDropsEveryEqualPath()
    {
        const QString a = QStringLiteral("/a/x.jpg");
        const QString b = QStringLiteral("/b/x.jpg");
        BRDuplicateFilePreviewViewController popover;
        open(popover, {a, b, a});
        popover.removeDataAtIndex(-1);
        popover.removeDataAtIndex(3);
        QCOMPARE(popover.filePaths().size(), 3);
        popover.removeDataAtIndex(2);
        QCOMPARE(popover.filePaths(), QStringList{b});
        QCOMPARE(popover.dupePreviewTableView()->numberOfRows(), 1);
    }

    void rowClick_data()
    {
        QTest::addColumn<bool>("withKey");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("with key") << true << QStringList{QStringLiteral("openURLData(1,group)")};
        QTest::newRow("without key") << false << QStringList();
    }
    void rowClick()
    {
        QFETCH(bool, withKey);
        BRDuplicateFilePreviewViewController popover;
        open(popover, {QStringLiteral("/a/x.jpg"), QStringLiteral("/b/x.jpg")}, 10, withKey);
        popover.show();
        QVERIFY(QTest::qWaitForWindowExposed(&popover));
        BRDuplicateFilePreviewTableViewCell *cell = popover.cellAt(1);
        // On the path, which belongs to the row, and then on the delete button, which does not.
        QTest::mouseClick(cell, Qt::LeftButton, {}, cell->pathLabel()->geometry().center());
        QTest::mouseClick(cell->deleteButton(), Qt::LeftButton);
        QTEST(m_results.calls.filter(QStringLiteral("openURLData")), "calls");
    }

    void previewWaitsForAUrl()
    {
        BRDuplicateFilePreviewViewController popover;
        popover.showPreview(std::nullopt);
        QVERIFY(popover.prevView()->isHidden());
        popover.showPreview(QUrl::fromLocalFile(QStringLiteral("/a/x.jpg")));
        QVERIFY(!popover.prevView()->isHidden());
        QCOMPARE(popover.prevView()->parentWidget(), popover.previewView());
    }
};

QTEST_MAIN(tst_DetailPopover)
#include "tst_detailpopover.moc"
