#include "FileTypeDatabase.h"

#include <QMimeDatabase>
#include <QTest>

// The database answers for names with a shared ending from memory; it must answer exactly
// what the MIME database would, also for names that only look like their neighbours.
class tst_FileTypeDatabase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameAnswersAsTheMimeDatabase()
    {
        // Pairs in an order that warms the remembered answer for an ending first, then asks
        // a name with that ending whose type differs.
        const QStringList names{QStringLiteral("notes.txt"),   QStringLiteral("CMakeLists.txt"),
                                QStringLiteral("README.txt"),  QStringLiteral("a.xml"),
                                QStringLiteral("pom.xml"),     QStringLiteral("data.am"),
                                QStringLiteral("Makefile.am"), QStringLiteral("a.gz"),
                                QStringLiteral("a.tar.gz"),    QStringLiteral("b.tar.gz"),
                                QStringLiteral("libz.so.1"),   QStringLiteral("page.1"),
                                QStringLiteral("photo.JPG"),   QStringLiteral("photo.jpg"),
                                QStringLiteral("main.c"),      QStringLiteral("main.C"),
                                QStringLiteral("123.vdr"),     QStringLiteral("abc.vdr"),
                                QStringLiteral("backup.txt~"), QStringLiteral("Makefile"),
                                QStringLiteral("no-ending"),   QStringLiteral("trailing."),
                                QStringLiteral(".hidden.png"), QStringLiteral("x.unknownending")};
        FileTypeDatabase types;
        const QMimeDatabase mime;
        for (int round = 0; round < 2; ++round) {
            for (const QString &name : names) {
                const QMimeType expected =
                    mime.mimeTypeForFile(name, QMimeDatabase::MatchExtension);
                const FileTypeDatabase::FileType type = types.typeForFileName(name);
                QVERIFY2(type.identifier == expected.name(), qPrintable(name));
                QCOMPARE(type.description, expected.comment());
            }
        }
        QCOMPARE(FileTypeDatabase::folderDescription(), QStringLiteral("Folder"));
    }
};

QTEST_GUILESS_MAIN(tst_FileTypeDatabase)
#include "tst_filetypedatabase.moc"
