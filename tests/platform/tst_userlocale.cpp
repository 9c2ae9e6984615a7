#include "ByteCountFormatter.h"
#include "UserLocale.h"

#include <QTest>

// Sizes and dates read as the user's other programs write them: a German desktop gets a
// decimal comma and German months, a bare C locale the English forms, never C's bare digits.
class tst_UserLocale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void sizesAndDates_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("binary");
        QTest::addColumn<QString>("wholeBytes");
        QTest::addColumn<QString>("date");
        QTest::newRow("C stands in as English")
            << QLocale::c() << u"1.5 KiB"_qs << u"1,234,567 bytes"_qs << u"07 Mar 2018"_qs;
        QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom)
                                 << u"1.5 KiB"_qs << u"1,234,567 bytes"_qs << u"07 Mar 2018"_qs;
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << u"1,5 KiB"_qs
                                << u"1.234.567 bytes"_qs << u"07 März 2018"_qs;
        QTest::newRow("French") << QLocale(QLocale::French, QLocale::France) << u"1,5 Kio"_qs
                                << u"1\u202F234\u202F567 bytes"_qs << u"07 mars 2018"_qs;
    }
    void sizesAndDates()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, binary);
        QFETCH(QString, wholeBytes);
        QFETCH(QString, date);
        QLocale::setDefault(locale);
        QCOMPARE(ByteCountFormatter::binary(1536), binary);
        QCOMPARE(ByteCountFormatter::wholeBytes(1234567), wholeBytes);
        QCOMPARE(UserLocale::shortDate(QDateTime(QDate(2018, 3, 7), QTime(12, 0))), date);
    }

    void oneByteIsSingular()
    {
        QCOMPARE(ByteCountFormatter::wholeBytes(1), u"1 byte"_qs);
        QCOMPARE(ByteCountFormatter::wholeBytes(0), u"0 bytes"_qs);
    }
};

QTEST_GUILESS_MAIN(tst_UserLocale)
#include "tst_userlocale.moc"
