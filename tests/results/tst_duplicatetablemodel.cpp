#include "BRNoSearchResultCell.h"
#include "DuplicateResults.h"
#include "DuplicateTableModel.h"
#include "ResultsFixtures.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QSize>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The list's model over results fed by hand, checked by Qt's model tester throughout.
struct List
{
    DuplicateResults results;
    DuplicateTableModel model{results};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
    GroupMap groups;
    qint64 duplicates = 0;

    List() { results.prepareScan(); }
    // Posts the group's report; it is applied when the event loop next runs.
    void post(const QString &name, const QString &uti = u"image/jpeg"_s)
    {
        GroupRecord record{
            name, 10, u"JPEG image"_s, {u"/a/"_s + name, u"/b/"_s + name}, name, {}, uti, 20, {}};
        groups.insert(name, record);
        duplicates += 2;
        results.postReport({groups, name, false, duplicates, duplicates / 2 * 10});
    }
    void finish()
    {
        results.postReport({groups, QString(), true, duplicates, duplicates / 2 * 10});
        settle();
    }
    QVariant data(int row, int role) const { return model.data(model.index(row), role); }
};

} // namespace

class tst_DuplicateTableModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Reports arriving in one pass become one insertion at the end: the view keeps its
    // place, and never sees a count that was not announced.
    void streamingReportsAreInsertedOncePerPass()
    {
        List list;
        QSignalSpy inserted(&list.model, &QAbstractItemModel::rowsInserted);
        QSignalSpy reset(&list.model, &QAbstractItemModel::modelReset);
        for (const char *name : {"a.jpg", "b.jpg", "c.jpg"})
            list.post(QString::fromLatin1(name));
        QCOMPARE(list.model.rowCount(), 0);
        settle();
        QCOMPARE(list.model.rowCount(), 3);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(inserted.first().at(1).toInt(), 0);
        QCOMPARE(inserted.first().at(2).toInt(), 2);
        QCOMPARE(reset.count(), 0);
        QCOMPARE(list.data(2, Qt::DisplayRole).toString(), u"c.jpg"_s);
        QCOMPARE(list.data(2, DuplicateTableModel::KeyRole).toString(), u"c.jpg"_s);
        QCOMPARE(list.data(2, Qt::SizeHintRole).toSize().height(), 105);
        QCOMPARE(list.model.keyAt(3), QString());
        QCOMPARE(list.model.recordAt(3), nullptr);
    }

    void aFurtherCopyRepaintsTheRowsInPlace()
    {
        List list;
        list.post(u"a.jpg"_s);
        list.post(u"b.jpg"_s);
        settle();
        QSignalSpy changed(&list.model, &QAbstractItemModel::dataChanged);
        QSignalSpy inserted(&list.model, &QAbstractItemModel::rowsInserted);
        GroupRecord grown = *list.groups.find(u"a.jpg"_s);
        grown.filePath.append(u"/c/a.jpg"_s);
        list.groups.insert(u"a.jpg"_s, grown);
        list.results.postReport({list.groups, u"a.jpg"_s, false, 5, 30});
        settle();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().at(0).toModelIndex().row(), 0);
        QCOMPARE(changed.first().at(1).toModelIndex().row(), 1);
        QCOMPARE(inserted.count(), 0);
        QCOMPARE(list.model.recordAt(0)->filePath.size(), 3);
    }

    void sortingAndClearingResetTheList()
    {
        List list;
        for (const char *name : {"c.jpg", "a.jpg", "b.jpg"})
            list.post(QString::fromLatin1(name));
        list.finish();
        QSignalSpy reset(&list.model, &QAbstractItemModel::modelReset);
        QSignalSpy scrolled(&list.results, &DuplicateResults::aboutToSort);
        list.results.sortMainType(SortOrder::Name, false);
        list.results.sortMainType(SortOrder::Size, false); // joined with the one before
        settle();
        QCOMPARE(reset.count(), 1);
        QCOMPARE(scrolled.count(), 2);
        QCOMPARE(list.data(0, Qt::DisplayRole).toString(), u"c.jpg"_s); // equal sizes
        list.results.sortMainType(SortOrder::Name, false);
        settle();
        QCOMPARE(list.data(0, Qt::DisplayRole).toString(), u"a.jpg"_s);

        list.results.clear();
        list.results.reloadData();
        settle();
        QCOMPARE(list.model.rowCount(), 0);
    }

    // A search or a sub-type without a group shows one row saying so, lower than a group's.
    void placeholderRows_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<bool>("folders"); // the Folder sub-type is chosen
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::newRow("no search hit")
            << u"zebra"_s << false << int(DuplicateTableModel::RowKind::NoSearchResult)
            << BRNoSearchResultCell::text();
        QTest::newRow("no folder")
            << QString() << true << int(DuplicateTableModel::RowKind::NoSubTypeFound)
            << u"No duplicate Folder"_s;
    }
    void placeholderRows()
    {
        QFETCH(QString, search);
        QFETCH(bool, folders);
        List list;
        list.post(u"a.jpg"_s);
        list.finish();
        if (folders)
            list.results.sortSubType(SubType::Folder, SortOrder::All);
        if (!search.isEmpty())
            list.results.search(search);
        settle();
        QCOMPARE(list.model.rowCount(), 1);
        QTEST(list.data(0, DuplicateTableModel::RowKindRole).toInt(), "kind");
        QTEST(list.data(0, Qt::DisplayRole).toString(), "text");
        QCOMPARE(list.data(0, Qt::SizeHintRole).toSize().height(), 30);
        QCOMPARE(list.data(0, DuplicateTableModel::KeyRole).toString(), QString());
        QCOMPARE(list.model.recordAt(0), nullptr);
    }

    void groupRowsSayWhatTheyPaint_data()
    {
        QTest::addColumn<GroupRecord>("record");
        QTest::addColumn<QString>("description");
        QTest::newRow("three photos")
            << GroupRecord{u"beach.jpg"_s, 2'200'000, u"JPEG image"_s, {u"/a"_s, u"/b"_s, u"/c"_s},
                           u"k"_s,         {},        u"image/jpeg"_s, 6'600'000}
            << u"3 copies, JPEG image, 2.1 MiB each, 6.3 MiB in all, "
               "4.2 MiB reclaimable"_s;
        QTest::newRow("one copy left frees nothing")
            << GroupRecord{u"x"_s, 512, u"Folder"_s, {u"/a"_s}, u"k"_s, {}, u"Folder"_s, 512}
            << u"1 copy, Folder, 512 bytes each, 512 bytes in all, 0 bytes reclaimable"_s;
        QTest::newRow("no type text, empty files")
            << GroupRecord{u"x"_s, 0, QString(), {u"/a"_s, u"/b"_s}, u"k"_s, {}, QString(), 0}
            << u"2 copies, 0 bytes each, 0 bytes in all, 0 bytes reclaimable"_s;
    }
    void groupRowsSayWhatTheyPaint()
    {
        QFETCH(GroupRecord, record);
        QTEST(DuplicateTableModel::accessibleDescription(record), "description");

        List list;
        list.groups.insert(record.oldKey, record);
        list.results.postReport({list.groups, record.oldKey, false, 3, 0});
        list.finish();
        QCOMPARE(list.data(0, Qt::AccessibleTextRole).toString(), record.fileName);
        QTEST(list.data(0, Qt::AccessibleDescriptionRole).toString(), "description");
    }
};

QTEST_MAIN(tst_DuplicateTableModel)
#include "tst_duplicatetablemodel.moc"
