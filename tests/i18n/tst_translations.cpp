#include "Translations.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

// The embedded translations load for German and French, and English gets its plural forms.
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        // Each case starts in English again.
        for (QTranslator *translator : qApp->findChildren<QTranslator *>()) {
            QCoreApplication::removeTranslator(translator);
            delete translator;
        }
    }

    // English keeps its source texts and takes their plural forms, as does the C locale
    // of scripts and any language without a translation.
    void englishHasItsPluralForms_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<bool>("ownLanguage");
        QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom) << true;
        QTest::newRow("C") << QLocale::c() << false;
        QTest::newRow("Spanish, untranslated")
            << QLocale(QLocale::Spanish, QLocale::Spain) << false;
    }
    void englishHasItsPluralForms()
    {
        QFETCH(QLocale, locale);
        QFETCH(bool, ownLanguage);
        QCOMPARE(Translations::install(*qApp, locale), ownLanguage);
        QCOMPARE(QCoreApplication::translate("QuitPolicy", "Quit Quillmere?"),
                 QStringLiteral("Quit Quillmere?"));
        QCOMPARE(
            QCoreApplication::translate("BRRenameViewController", "Rename %n files", nullptr, 1),
            QStringLiteral("Rename 1 file"));
        QCOMPARE(
            QCoreApplication::translate("BRRenameViewController", "Rename %n files", nullptr, 0),
            QStringLiteral("Rename 0 files"));
        QCOMPARE(
            QCoreApplication::translate("BRRenameCompleteView", "%n files renamed", nullptr, 1),
            QStringLiteral("1 file renamed"));
    }

    void germanAndFrench_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("quit");
        QTest::addColumn<QString>("renameOne");
        QTest::addColumn<QString>("renameMany");
        QTest::addColumn<QString>("trash");
        QTest::newRow("de") << QLocale(QLocale::German, QLocale::Germany)
                            << QStringLiteral("Quillmere beenden?")
                            << QStringLiteral("1 Datei umbenennen")
                            << QStringLiteral("5 Dateien umbenennen")
                            << QStringLiteral("„a.txt“ ist bereits im Papierkorb.");
        QTest::newRow("fr") << QLocale(QLocale::French, QLocale::France)
                            << QStringLiteral("Quitter Quillmere\u00a0?")
                            << QStringLiteral("Renommer 1 fichier")
                            << QStringLiteral("Renommer 5 fichiers")
                            << QStringLiteral("«\u00a0a.txt\u00a0» est déjà dans la corbeille.");
    }

    void germanAndFrench()
    {
        QFETCH(QLocale, locale);
        QVERIFY(Translations::install(*qApp, locale));
        QTEST(QCoreApplication::translate("QuitPolicy", "Quit Quillmere?"), "quit");
        QTEST(QCoreApplication::translate("BRRenameViewController", "Rename %n files", nullptr, 1),
              "renameOne");
        QTEST(QCoreApplication::translate("BRRenameViewController", "Rename %n files", nullptr, 5),
              "renameMany");
        QTEST(QCoreApplication::translate("FreedesktopTrash", "“%1” is already in the Trash.")
                  .arg(QStringLiteral("a.txt")),
              "trash");
    }

    void aRegionalLocaleFindsItsLanguage()
    {
        QVERIFY(Translations::install(*qApp, QLocale(QLocale::German, QLocale::Switzerland)));
        QCOMPARE(QCoreApplication::translate("QuitPolicy", "Cancel"), QStringLiteral("Abbrechen"));
    }

    void pluralCountStaysWithinInt()
    {
        QCOMPARE(pluralCount(7), 7);
        QCOMPARE(pluralCount(qint64(1) << 40), std::numeric_limits<int>::max());
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
