#include "FileMover.h"
#include "TestDir.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTest>

namespace {

QStringList g_messages;

void collect(QtMsgType, const QMessageLogContext &context, const QString &message)
{
    g_messages.append(QString::fromLatin1(context.category) + QLatin1Char(' ') + message);
}

} // namespace

// The log says what went wrong where the user only sees a sentence, and says nothing unless
// asked to.
class tst_PlatformLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { g_messages.clear(); }
    void cleanup() { QLoggingCategory::setFilterRules(QString()); }

    void silentByDefault()
    {
        TestDir dir;
        const QtMessageHandler previous = qInstallMessageHandler(collect);
        const FileMover::Result result =
            FileMover::move(dir.filePath(QStringLiteral("missing")), dir.filePath(u"b"_qs));
        qInstallMessageHandler(previous);
        QVERIFY(!result);
        QVERIFY2(g_messages.isEmpty(), qPrintable(g_messages.join(u'\n')));
    }

    void failedMoveNamesPathsAndSystemError()
    {
        TestDir dir;
        dir.createFile(QStringLiteral("taken"), "1");
        dir.createFile(QStringLiteral("source"), "2");
        QLoggingCategory::setFilterRules(QStringLiteral("quillmere.*=true"));
        const QtMessageHandler previous = qInstallMessageHandler(collect);
        const FileMover::Result result =
            FileMover::move(dir.filePath(u"source"_qs), dir.filePath(u"taken"_qs));
        qInstallMessageHandler(previous);
        QVERIFY(!result);
        QCOMPARE(g_messages.size(), 1);
        const QString message = g_messages.constFirst();
        QVERIFY2(message.startsWith(u"quillmere.platform could not move"), qPrintable(message));
        QVERIFY(message.contains(dir.filePath(u"source"_qs)));
        QVERIFY(message.contains(dir.filePath(u"taken"_qs)));
        QVERIFY2(message.endsWith(result.errorText), qPrintable(message));
        QVERIFY(!result.errorText.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_PlatformLog)
#include "tst_platformlog.moc"
