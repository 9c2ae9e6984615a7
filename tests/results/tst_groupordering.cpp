#include "GroupOrdering.h"
#include "NamePrefix.h"
#include "NameSortKeys.h"

#include <QTest>

// Groups k1..k5 in arrival order; k0 arrived too but has since gone from the map.
class tst_GroupOrdering : public QObject
{
    Q_OBJECT

private:
    GroupMap m_groups;
    const QStringList m_keysOfAll{QStringLiteral("k1"), QStringLiteral("k0"), QStringLiteral("k2"),
                                  QStringLiteral("k3"), QStringLiteral("k4"), QStringLiteral("k5")};

    void add(const char *key, const char *name, qint64 totalSize, const char *type)
    {
        GroupRecord record;
        record.fileName = QString::fromUtf8(name);
        record.totalSize = totalSize;
        record.fileType = QString::fromUtf8(type);
        m_groups.insert(QString::fromLatin1(key), record);
    }

private Q_SLOTS:
    void initTestCase()
    {
        add("k1", "img10.jpg", 300, "JPEG image");
        add("k2", "IMG2.jpg", 900, "JPEG image");
        add("k3", "holiday.mov", 300, "QuickTime video");
        add("k4", "My holiday.mov", 100, "audio");
        add("k5", "img11.jpg", 500, "Folder");
    }

    void sorting_data()
    {
        QTest::addColumn<QString>("sortType");
        QTest::addColumn<QString>("order");
        QTest::newRow("All: arrival, gone groups left out")
            << QStringLiteral("All") << QStringLiteral("k1 k2 k3 k4 k5");
        // Digits as numbers, case aside: IMG2 before img10 before img11.
        QTest::newRow("Name") << QStringLiteral("Name") << QStringLiteral("k3 k2 k1 k5 k4");
        // Largest first; k1 and k3 are equal and keep their arrival order.
        QTest::newRow("Size") << QStringLiteral("Size") << QStringLiteral("k2 k5 k1 k3 k4");
        // Code points: capitals before small letters.
        QTest::newRow("Type") << QStringLiteral("Type") << QStringLiteral("k5 k1 k2 k3 k4");
    }
    void sorting()
    {
        QFETCH(QString, sortType);
        QFETCH(QString, order);
        const std::optional<SortOrder> sortOrder = sortOrderFromTitle(sortType);
        QVERIFY(sortOrder);
        QCOMPARE(sortOrderTitle(*sortOrder), sortType);
        QCOMPARE(GroupOrdering::sortedKeys(*sortOrder, m_keysOfAll, m_groups).join(u' '), order);
    }

    // The menu's placeholder is a label: it names no order, so it cannot sort.
    void sortByNamesNoOrder()
    {
        QCOMPARE(sortOrderFromTitle(QStringLiteral("Sort By")), std::nullopt);
        QCOMPARE(sortOrderFromTitle(QStringLiteral("size")), std::nullopt);
    }

    // Ranks made ahead must stay right when names arrive later, and a name whose
    // characters are not shared with the kept ones must still find its rank.
    void keptRanksFollowNewNames()
    {
        const auto list = [](const char *names) {
            return QString::fromUtf8(names).split(u' ');
        };
        NameSortKeys keys = NameSortKeys::madeFor(list("b10 b2 c"));
        QCOMPARE(keys.ranksOf(list("c b2 b10")), (std::vector<int>{2, 0, 1}));
        // "a" and "b3" fall before and between the known names: every rank moves.
        QCOMPARE(keys.ranksOf(list("c a b3 b2 b10")), (std::vector<int>{4, 0, 2, 1, 3}));
        // Built anew, so not sharing characters; capitals rank with small letters.
        QString upper = QStringLiteral("B2");
        upper.detach();
        QCOMPARE(keys.ranksOf({upper, QStringLiteral("b2")}), (std::vector<int>{1, 1}));
        QCOMPARE(keys.size(), 6);
    }

    void search_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("hits");
        QTest::newRow("prefix, case aside") << QStringLiteral("HOL") << QStringLiteral("k3");
        QTest::newRow("a later word is not a prefix")
            << QStringLiteral("holiday") << QStringLiteral("k3");
        QTest::newRow("several, in list order")
            << QStringLiteral("img1") << QStringLiteral("k1 k5");
        QTest::newRow("nothing") << QStringLiteral("zebra") << QString();
    }
    void search()
    {
        QFETCH(QString, query);
        QFETCH(QString, hits);
        QCOMPARE(GroupOrdering::searchHits(query, m_keysOfAll, m_groups).join(u' '), hits);
    }

    // The stored start of a name must answer as the whole lower-cased name would, at the
    // edge of what it stores and beyond it.
    void namePrefixMatchesAsTheWholeName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("query");
        const QString fifteen = QStringLiteral("ABCDEFGHIJKLMNO");
        QTest::newRow("short") << QStringLiteral("IMG_2041.jpg") << QStringLiteral("img_2");
        QTest::newRow("exactly the stored length") << fifteen << QStringLiteral("abcdefghijklmno");
        QTest::newRow("query longer than a short name")
            << fifteen << QStringLiteral("abcdefghijklmnop");
        QTest::newRow("long name, long query") << QStringLiteral("Quarterly Report 2024 final.pdf")
                                               << QStringLiteral("quarterly report 2024 f");
        QTest::newRow("long name, wrong tail") << QStringLiteral("Quarterly Report 2024 final.pdf")
                                               << QStringLiteral("quarterly report 2024 x");
        QTest::newRow("accented") << QStringLiteral("Écoute.mp3") << QStringLiteral("éc");
        QTest::newRow("Greek") << QStringLiteral("ΑΘΗΝΑ 2019.jpg") << QStringLiteral("αθη");
        QTest::newRow("empty query") << QStringLiteral("a.txt") << QString();
    }
    void namePrefixMatchesAsTheWholeName()
    {
        QFETCH(QString, name);
        QFETCH(QString, query);
        GroupRecord record;
        record.fileName = name;
        const bool expected = name.toLower().startsWith(query.toLower());
        QCOMPARE(NamePrefix::of(name).matches(query.toLower(), record), expected);
    }
};

QTEST_GUILESS_MAIN(tst_GroupOrdering)
#include "tst_groupordering.moc"
