#include "FileTypeDatabase.h"
#include "SubTypeFilter.h"

#include <QTest>

// Which of the views beside All a group shows up in, by the type its file name gives.
class tst_SubTypeFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void views_data()
    {
        QTest::addColumn<QString>("fileName"); // "" stands for a folder group
        QTest::addColumn<QStringList>("views");
        const auto row = [](const char *name, const char *fileName,
                            std::initializer_list<const char *> views) {
            QStringList list;
            for (const char *view : views)
                list.append(QString::fromLatin1(view));
            QTest::newRow(name) << QString::fromLatin1(fileName) << list;
        };
        row("JPEG", "holiday.jpg", {"Photo"});
        row("HEIF", "IMG_0001.heic", {"Photo"});
        row("MP3", "song.mp3", {"Music"});
        row("MP4 passes every first gate, stays in Music", "clip.mp4", {"Music"});
        row("plain text", "notes.txt", {"Document"});
        row("PDF", "paper.pdf", {"Document"});
        row("Word", "letter.doc", {"Document"});
        row("Word, Open XML", "report.docx", {"Document"});
        row("Numbers", "budget.numbers", {"Document"});
        row("OpenDocument text", "letter.odt", {"Document"});
        row("OpenDocument spreadsheet", "budget.ods", {"Document"});
        row("OpenDocument presentation", "talk.odp", {"Document"});
        row("Markdown is text", "README.md", {"Document"});
        row("C++ source is text but held back", "main.cpp", {});
        row("Python source", "tool.py", {});
        row("shell script", "build.sh", {});
        row("unknown extension", "data.qzx", {});
        row("folder", "", {"Folder"});
    }
    void views()
    {
        QFETCH(QString, fileName);
        QFETCH(QStringList, views);
        const QString fileUTI = fileName.isEmpty()
                                    ? FileTypeDatabase::folderDescription()
                                    : FileTypeDatabase().typeForFileName(fileName).identifier;
        const SubTypeFilter filter;
        QStringList found;
        for (const SubType view : allSubTypes) {
            if (filter.belongs(view, fileUTI))
                found.append(subTypeName(view));
        }
        QCOMPARE(found, views);
        QVERIFY(!filter.belongs(SubType::All, fileUTI));
    }

    void subsetKeepsTheListOrderAndSkipsGoneGroups()
    {
        GroupMap groups;
        const auto add = [&groups](const char *key, const char *uti) {
            GroupRecord record;
            record.fileUTI = QString::fromLatin1(uti);
            groups.insert(QString::fromLatin1(key), record);
        };
        add("b", "image/png");
        add("a", "audio/mpeg");
        add("c", "image/jpeg");
        const QStringList allData{QStringLiteral("c"), QStringLiteral("gone"), QStringLiteral("a"),
                                  QStringLiteral("b")};
        const SubTypeFilter filter;
        QCOMPARE(filter.keysOfSubType(SubType::Photo, allData, groups),
                 (QStringList{QStringLiteral("c"), QStringLiteral("b")}));
        QCOMPARE(filter.keysOfSubType(SubType::Folder, allData, groups), QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_SubTypeFilter)
#include "tst_subtypefilter.moc"
