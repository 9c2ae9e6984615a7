#include "TrashInfo.h"

#include <QTest>

using namespace Qt::StringLiterals;

// The Trash's record is read by every file manager on the desktop: it must be written in the
// shared layout, and every name Linux allows must read back to the same bytes.
class tst_TrashInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesReadBackExactly_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::newRow("plain") << QByteArray("/home/me/report.pdf");
        QTest::newRow("space") << QByteArray("/home/me/a copy.jpg");
        QTest::newRow("percent sign") << QByteArray("/home/me/100%");
        QTest::newRow("looks escaped") << QByteArray("/home/me/%41%2F");
        QTest::newRow("newline") << QByteArray("/home/me/two\nlines");
        QTest::newRow("carriage return") << QByteArray("/home/me/a\rb");
        QTest::newRow("equals and brackets") << QByteArray("/x/[Trash Info]=Path=");
        QTest::newRow("UTF-8") << QByteArray("/home/m\xc3\xa9/\xe2\x82\xac.txt");
        QTest::newRow("not UTF-8") << QByteArray("/home/me/\xff\xfe.bin");
        QTest::newRow("Latin-1 byte") << QByteArray("/home/me/caf\xe9");
        QTest::newRow("relative, on a drive") << QByteArray("Photos/a b.jpg");
        QTest::newRow("every byte") << []() {
            QByteArray all("/");
            for (int byte = 1; byte < 256; ++byte)
                all.append(static_cast<char>(byte));
            return all;
        }();
    }
    void namesReadBackExactly()
    {
        QFETCH(QByteArray, path);
        const QByteArray encoded = TrashInfo::encodePath(path);
        // One line of plain ASCII, whatever the name: no reader can split or mangle it.
        for (const char byte : encoded)
            QVERIFY2(byte > ' ' && byte < 127, encoded.constData());
        QCOMPARE(TrashInfo::decodePath(encoded), std::optional<QByteArray>(path));

        TrashInfo info{path, QDateTime(QDate(2024, 5, 1), QTime(9, 30))};
        const std::optional<TrashInfo> read = TrashInfo::fromBytes(info.toBytes());
        QVERIFY(read);
        QCOMPARE(read->path, path);
        QCOMPARE(read->deletionDate, info.deletionDate);
    }

    void escapesAsAUrlPath_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("encoded");
        QTest::newRow("kept") << QByteArray("/a-b_c.d!e~f*g'h(i)/J9")
                              << QByteArray("/a-b_c.d!e~f*g'h(i)/J9");
        QTest::newRow("space, percent") << QByteArray("/a b%") << QByteArray("/a%20b%25");
        QTest::newRow("reserved") << QByteArray("/;?:@&=+$,#")
                                  << QByteArray("/%3B%3F%3A%40%26%3D%2B%24%2C%23");
        QTest::newRow("bytes above ASCII, upper-case hex")
            << QByteArray("/\xc3\xbc\xff") << QByteArray("/%C3%BC%FF");
    }
    void escapesAsAUrlPath()
    {
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, encoded);
        QCOMPARE(TrashInfo::encodePath(path), encoded);
    }

    // What other programs may write: escapes in lower case, reserved bytes left as they are.
    void readsWhatOthersWrite_data()
    {
        QTest::addColumn<QByteArray>("encoded");
        QTest::addColumn<std::optional<QByteArray>>("path");
        QTest::newRow("lower-case hex")
            << QByteArray("/m%c3%a9") << std::optional<QByteArray>("/m\xc3\xa9");
        QTest::newRow("reserved unescaped")
            << QByteArray("/a+b=c@d") << std::optional<QByteArray>("/a+b=c@d");
        QTest::newRow("percent at the end") << QByteArray("/a%") << std::optional<QByteArray>();
        QTest::newRow("one digit") << QByteArray("/a%4") << std::optional<QByteArray>();
        QTest::newRow("not hex") << QByteArray("/a%zz") << std::optional<QByteArray>();
        QTest::newRow("NUL") << QByteArray("/a%00b") << std::optional<QByteArray>();
    }
    void readsWhatOthersWrite()
    {
        QFETCH(QByteArray, encoded);
        QFETCH(std::optional<QByteArray>, path);
        QCOMPARE(TrashInfo::decodePath(encoded), path);
    }

    void writesTheSharedLayout()
    {
        const TrashInfo info{"/home/me/a copy.jpg", QDateTime(QDate(2024, 5, 1), QTime(9, 30, 7))};
        QCOMPARE(info.toBytes(), QByteArray("[Trash Info]\n"
                                            "Path=/home/me/a%20copy.jpg\n"
                                            "DeletionDate=2024-05-01T09:30:07\n"));
    }

    void readsRecords_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("path"); // empty: no record
        QTest::addColumn<bool>("hasDate");
        const QByteArray date = "DeletionDate=2024-05-01T09:30:07";
        QTest::newRow("CRLF") << "[Trash Info]\r\nPath=/a%20b\r\n" + date + "\r\n"
                              << QByteArray("/a b") << true;
        QTest::newRow("spaces around =")
            << "[Trash Info]\nPath = /a\n" + date << QByteArray("/a") << true;
        QTest::newRow("comments, blank lines")
            << "# made by hand\n\n[Trash Info]\n\nPath=/a\n" + date << QByteArray("/a") << true;
        QTest::newRow("keys in order")
            << "[Trash Info]\n" + date + "\nPath=/a" << QByteArray("/a") << true;
        QTest::newRow("no date") << QByteArray("[Trash Info]\nPath=/a\n") << QByteArray("/a")
                                 << false;
        QTest::newRow("unreadable date")
            << QByteArray("[Trash Info]\nPath=/a\nDeletionDate=yesterday") << QByteArray("/a")
            << false;
        QTest::newRow("later group ignored")
            << "[Trash Info]\nPath=/a\n" + date + "\n[X]\nPath=/b" << QByteArray("/a") << true;
        QTest::newRow("first Path counts")
            << "[Trash Info]\nPath=/a\nPath=/b\n" + date << QByteArray("/a") << true;
        QTest::newRow("no Path") << "[Trash Info]\n" + date << QByteArray() << false;
        QTest::newRow("empty Path") << "[Trash Info]\nPath=\n" + date << QByteArray() << false;
        QTest::newRow("other group first")
            << "[Desktop Entry]\nPath=/a\n" + date << QByteArray() << false;
        QTest::newRow("key before the group")
            << "Path=/a\n[Trash Info]\n" + date << QByteArray() << false;
        QTest::newRow("broken escape")
            << "[Trash Info]\nPath=/100%\n" + date << QByteArray() << false;
        QTest::newRow("empty file") << QByteArray() << QByteArray() << false;
    }
    void readsRecords()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, path);
        QFETCH(bool, hasDate);
        const std::optional<TrashInfo> info = TrashInfo::fromBytes(content);
        QCOMPARE(info.has_value(), !path.isEmpty());
        if (!info)
            return;
        QCOMPARE(info->path, path);
        QCOMPARE(info->deletionDate.isValid(), hasDate);
        if (hasDate)
            QCOMPARE(info->deletionDate, QDateTime(QDate(2024, 5, 1), QTime(9, 30, 7)));
    }
};

QTEST_GUILESS_MAIN(tst_TrashInfo)
#include "tst_trashinfo.moc"
