#include "RenameList.h"
#include "RenameTableModel.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QUrl file(const QString &path)
{
    return QUrl::fromLocalFile(path);
}

} // namespace

// The rename list's model over a RenameList: what each row says, when views hear of a
// change, and where files may be dropped.
class tst_RenameTableModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsSayWhatTheListHolds()
    {
        RenameList list;
        list.add({file(u"/tmp/Holiday"_s), file(u"/tmp/a.txt"_s)});
        RenameTableModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 0);
        model.setList(&list);
        QCOMPARE(model.rowCount(), 2);

        const QModelIndex plain = model.index(0, 0);
        const QModelIndex folder = model.index(1, 0);
        QCOMPARE(folder.data(Qt::DisplayRole).toString(), u"Holiday"_s);
        QCOMPARE(folder.data(RenameTableModel::KeyRole).toString(), u"Holiday"_s);
        QCOMPARE(plain.data(RenameTableModel::SourcePathRole).toString(), u"/tmp/a.txt"_s);
        QCOMPARE(plain.data(Qt::ToolTipRole).toString(), u"/tmp/a.txt"_s);
        QVERIFY(plain.data(RenameTableModel::DestinationRole).isValid());
        QCOMPARE(plain.data(RenameTableModel::DestinationRole).toString(), QString());
        QVERIFY(!plain.data(RenameTableModel::EditedRole).toBool());
        QCOMPARE(plain.data(Qt::DecorationRole), QVariant());
        QCOMPARE(plain.data(RenameTableModel::SuffixRole).toString(), u".txt"_s);
        QCOMPARE(folder.data(RenameTableModel::SuffixRole).toString(), QString());
        // A folder named with a trailing slash is named by its last component.
        QCOMPARE(RenameTableModel::lastPathComponent(QUrl(u"file:///tmp/Holiday/"_s)),
                 u"Holiday"_s);

        // A typed name stays when the rule is cleared; the rule's names go.
        list.setFullNameRule(u"Trip"_s, u"1"_s, NamePlacement::AfterName);
        QTRY_VERIFY(!list.ruleRunPending());
        list.setHandName(1, u"Bee"_s);
        list.clearRule();
        QVERIFY(!plain.data(RenameTableModel::DestinationRole).isValid());
        QVERIFY(folder.data(RenameTableModel::EditedRole).toBool());
        QCOMPARE(folder.data(RenameTableModel::DestinationRole).toString(), u"Bee"_s);
    }

    void rowsSayTheirNamesToAssistiveTools()
    {
        RenameList list;
        list.add({file(u"/tmp/a.txt"_s), file(u"/tmp/b.txt"_s), file(u"/tmp/c.txt"_s)});
        RenameTableModel model;
        model.setList(&list);
        const auto spoken = [&model](int row) {
            const QModelIndex index = model.index(row, 0);
            return index.data(Qt::AccessibleTextRole).toString() + u" | "_s +
                   index.data(Qt::AccessibleDescriptionRole).toString();
        };
        QCOMPARE(spoken(0), u"a.txt | No new name"_s);
        list.setFullNameRule(u"Trip"_s, u"1"_s, NamePlacement::AfterName);
        QTRY_VERIFY(!list.ruleRunPending());
        list.setHandName(1, u"Bee"_s);
        // The whole name the file will have, its extension included.
        QCOMPARE(spoken(0), u"a.txt | New name: Trip1.txt"_s);
        QCOMPARE(spoken(1), u"b.txt | New name, typed: Bee.txt"_s);
        list.clearRule();
        QCOMPARE(spoken(2), u"c.txt | No new name"_s);
    }

    void viewsStartOverOnlyWhenRowsComeOrGo()
    {
        RenameList list;
        list.add({file(u"/tmp/a.txt"_s), file(u"/tmp/c.txt"_s)});
        RenameTableModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setList(&list);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

        list.add({file(u"/tmp/b.txt"_s)});
        QCOMPARE(resets.size(), 1);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.rowOfKey(u"b.txt"_s), 1);

        // A new name repaints every row and rebuilds none.
        QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        list.setAddTextRule(u"-x"_s, NamePlacement::AfterName);
        QTRY_COMPARE(changes.size(), 1);
        QCOMPARE(resets.size(), 1);
        QCOMPARE(changes.first().at(0).toModelIndex(), model.index(0, 0));
        QCOMPARE(changes.first().at(1).toModelIndex(), model.index(2, 0));
        QCOMPARE(model.index(2, 0).data(RenameTableModel::DestinationRole).toString(), u"c-x"_s);

        list.remove(u"a.txt"_s);
        QCOMPARE(resets.size(), 2);
        QCOMPARE(model.rowOfKey(u"a.txt"_s), -1);
        QCOMPARE(model.keyAt(0), u"b.txt"_s);
        list.clear();
        QCOMPARE(resets.size(), 3);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.keyAt(1), QString());
        QCOMPARE(model.index(0, 0).data(Qt::DisplayRole), QVariant());
    }

    void dropsGoBetweenRowsNeverOntoOne()
    {
        RenameList list;
        list.add({file(u"/tmp/a.txt"_s), file(u"/tmp/b.txt"_s)});
        RenameTableModel model;
        model.setList(&list);
        QMimeData files;
        files.setUrls({file(u"/tmp/x.jpg"_s)});
        QMimeData text;
        text.setText(u"x.jpg"_s);
        QVERIFY(!model.canDropMimeData(&files, Qt::CopyAction, -1, -1, model.index(0, 0)));
        QVERIFY(model.canDropMimeData(&files, Qt::CopyAction, 1, 0, QModelIndex()));
        QVERIFY(model.canDropMimeData(&files, Qt::MoveAction, -1, -1, QModelIndex()));
        QVERIFY(!model.canDropMimeData(&text, Qt::CopyAction, 1, 0, QModelIndex()));
        QCOMPARE(model.mimeTypes(), QStringList{u"text/uri-list"_s});

        // No handler: refused. Then the handler has the say, and gets the URLs.
        QVERIFY(!model.dropMimeData(&files, Qt::CopyAction, 1, 0, QModelIndex()));
        QList<QUrl> handed;
        bool answer = false;
        model.setAcceptDrop([&](const QList<QUrl> &urls) {
            handed = urls;
            return answer;
        });
        QVERIFY(!model.dropMimeData(&files, Qt::CopyAction, 1, 0, QModelIndex()));
        QCOMPARE(handed, files.urls());
        answer = true;
        QVERIFY(model.dropMimeData(&files, Qt::CopyAction, 1, 0, QModelIndex()));
        handed.clear();
        QVERIFY(!model.dropMimeData(&files, Qt::CopyAction, -1, -1, model.index(0, 0)));
        QVERIFY(handed.isEmpty());
    }

    void aListThatGoesTakesItsRowsAlong()
    {
        RenameTableModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        {
            RenameList list;
            list.add({file(u"/tmp/a.txt"_s)});
            model.setList(&list);
            QCOMPARE(model.rowCount(), 1);
        }
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.keyAt(0), QString());
    }
};

QTEST_GUILESS_MAIN(tst_RenameTableModel)
#include "tst_renametablemodel.moc"
