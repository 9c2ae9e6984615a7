#include "GroupMap.h"

#include <QMap>
#include <QTest>

#include <algorithm>
#include <numeric>
#include <random>

namespace {

// Shaped like real group keys: size and type text, then a fingerprint.
QString keyFor(int i)
{
    return QStringLiteral("123456PNG image") + QString::number(quint64(i) * 0x9e3779b97f4a7c15, 16);
}

GroupRecord makeRecord(int seed, int copies = 2)
{
    GroupRecord r;
    r.fileSize = 70000 + seed;
    r.filePath = QStringList(copies, QString::number(seed));
    return r;
}

QMap<QString, QStringList> contents(const GroupMap &map)
{
    QMap<QString, QStringList> result;
    map.forEach([&](const QString &key, const GroupRecord &r) { result[key] = r.filePath; });
    return result;
}

GroupMap mapOf(int count)
{
    GroupMap map;
    for (int i = 0; i < count; ++i)
        map.insert(keyFor(i), makeRecord(i));
    return map;
}

} // namespace

class tst_GroupMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editsLeaveCopiesAlone_data()
    {
        QTest::addColumn<bool>("insert");
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("insert new") << true << QStringList{QStringLiteral("new")};
        QTest::newRow("replace keeps size") << true << QStringList{keyFor(5)};
        QTest::newRow("remove") << false << QStringList{keyFor(5)};
        QTest::newRow("remove missing") << false << QStringList{keyFor(300)};
        QTest::newRow("remove every key") << false << mapOf(300).keys(); // down to an empty trie
    }
    // Edited beside a QMap model; a copy taken before, and its record pointers, stay unchanged.
    void editsLeaveCopiesAlone()
    {
        QFETCH(bool, insert);
        QFETCH(QStringList, keys);
        GroupMap map = mapOf(300);
        const GroupMap copy = map;
        const QMap<QString, QStringList> before = contents(copy);
        const GroupRecord *seen = copy.find(keyFor(5));
        QMap<QString, QStringList> model = before;
        for (const QString &key : keys) {
            if (insert) {
                map.insert(key, makeRecord(999, 3));
                model[key] = makeRecord(999, 3).filePath;
            } else {
                QCOMPARE(map.remove(key), model.remove(key) == 1);
            }
        }
        QCOMPARE(contents(map), model);
        QCOMPARE(map.size(), model.size());
        map = GroupMap(); // lets go of every node it held
        QCOMPARE(contents(copy), before);
        QCOMPARE(copy.find(keyFor(5)), seen);
        QCOMPARE(seen ? seen->filePath : QStringList(), before.value(keyFor(5)));
    }

    // Iteration order must depend on the keys alone, not on how the map came to hold them.
    void thousandsOfKeys()
    {
        constexpr int count = 20000;
        QList<int> order(count);
        std::iota(order.begin(), order.end(), 0);
        std::shuffle(order.begin(), order.end(), std::mt19937(42));
        GroupMap map, odd;
        for (const int i : order)
            map.insert(keyFor(i), makeRecord(i));
        for (int i = 1; i < count; i += 2)
            odd.insert(keyFor(i), makeRecord(i));
        const GroupMap full = map;
        QCOMPARE(map.keys(), mapOf(count).keys());
        for (int i = 0; i < count; i += 2)
            QVERIFY(map.remove(keyFor(i)));
        QCOMPARE(map.size(), qsizetype(count / 2));
        QCOMPARE(map.keys(), odd.keys());
        for (int i = 0; i < count; ++i) {
            QCOMPARE(map.contains(keyFor(i)), i % 2 == 1);
            QCOMPARE(full.value(keyFor(i)).value_or(GroupRecord()).fileSize, qint64(70000 + i));
        }
    }
};

QTEST_GUILESS_MAIN(tst_GroupMap)
#include "tst_groupmap.moc"
