#include "TestDir.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSet>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int exitCode = -1;
    QByteArray out, err;
};

// Runs in the C locale unless told otherwise, so that texts read back are the English ones.
Run run(const QString &program, const QStringList &arguments,
        const QString &locale = QStringLiteral("C.UTF-8"))
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), locale);
    environment.remove(QStringLiteral("LANGUAGE")); // it would outrank LC_ALL for texts
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

// Every option a text names: "-h", "--json", "-platform"; a lone "--" is no option.
QSet<QString> optionsIn(const QString &text)
{
    static const QRegularExpression option(QStringLiteral("(?<![\\w-])--?[a-z][a-z-]*"));
    QSet<QString> options;
    for (const QRegularExpressionMatch &match : option.globalMatch(text))
        options.insert(match.captured());
    return options;
}

// The OPTIONS section of a manual page, with the roff escapes a reader never sees taken out.
QString optionsSection(const QString &manPage)
{
    QFile file(manPage);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(file.readAll());
    text.replace(QStringLiteral("\\-"), QStringLiteral("-"));
    text.remove(QRegularExpression(QStringLiteral("\\\\f[BIRP]")));
    const qsizetype start = text.indexOf(QStringLiteral("\n.SH OPTIONS\n"));
    if (start < 0)
        return {};
    const qsizetype end = text.indexOf(QStringLiteral("\n.SH "), start + 1);
    return text.mid(start, end < 0 ? -1 : end - start);
}

// What bash completion offers for the words typed so far, the last one being completed.
QStringList complete(const QStringList &words, const QString &workingFolder)
{
    QStringList quoted;
    for (const QString &word : words)
        quoted.append(u'\'' + word + u'\'');
    const QString script =
        QStringLiteral("source '%1'; cd '%2'; COMP_WORDS=(%3); COMP_CWORD=%4; "
                       "_quillmere_scan; printf '%s\\n' \"${COMPREPLY[@]}\"")
            .arg(QStringLiteral(QUILLMERE_COMPLETION), workingFolder, quoted.join(u' '))
            .arg(words.size() - 1);
    const Run shell = run(QStringLiteral("bash"), {QStringLiteral("-c"), script});
    QStringList offered = QString::fromUtf8(shell.out).split(u'\n', Qt::SkipEmptyParts);
    offered.sort();
    return offered;
}

} // namespace

// The two programs' command lines as a Unix user meets them: the version, the options that
// help, the manual page and completion name, and the same options in each.
class tst_CommandLine : public QObject
{
    Q_OBJECT

    QTemporaryDir runtimeDir; // Qt warns on stderr without one, which the tests read

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeDir.path())); }

    void programs_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("name");
        QTest::newRow("quillmere-scan")
            << QStringLiteral(QUILLMERE_SCAN_PATH) << QStringLiteral("quillmere-scan");
        QTest::newRow("quillmere") << QStringLiteral(QUILLMERE_PATH) << QStringLiteral("quillmere");
    }

    // The version wins over anything else on the line and needs no display or folder.
    void versionIsTheProjectVersion_data() { programs_data(); }
    void versionIsTheProjectVersion()
    {
        QFETCH(QString, program);
        QFETCH(QString, name);
        const QByteArray expected = name.toUtf8() + ' ' + QUILLMERE_VERSION + '\n';
        for (const QStringList &arguments :
             {QStringList{QStringLiteral("--version")},
              QStringList{QStringLiteral("--json"), QStringLiteral("--version")}}) {
            const Run version = run(program, arguments);
            QCOMPARE(version.exitCode, 0);
            QCOMPARE(version.out, expected);
            QCOMPARE(version.err, QByteArray());
        }
    }

    // Help lists no option the manual leaves out, and the manual none that help forgets.
    void manualNamesTheOptionsHelpLists_data() { programs_data(); }
    void manualNamesTheOptionsHelpLists()
    {
        QFETCH(QString, program);
        QFETCH(QString, name);
        const Run help = run(program, {QStringLiteral("--help")});
        QCOMPARE(help.exitCode, 0);
        const QSet<QString> helpOptions = optionsIn(QString::fromUtf8(help.out));
        QVERIFY(helpOptions.contains(QStringLiteral("--version")));
        const QSet<QString> manualOptions = optionsIn(
            optionsSection(QStringLiteral(QUILLMERE_MAN_DIR "/") + name + QStringLiteral(".1")));
        QCOMPARE(manualOptions, helpOptions);
    }

    void helpAndErrorsInTheUserLanguage_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("usage");
        QTest::addColumn<QByteArray>("refusal");
        const QString scan = QStringLiteral(QUILLMERE_SCAN_PATH);
        const QString shell = QStringLiteral(QUILLMERE_PATH);
        QTest::newRow("quillmere-scan, German")
            << scan << u"de_DE.UTF-8"_s << QByteArray("Aufruf: quillmere-scan")
            << QByteArray("quillmere-scan: unbekannte Option --bogus (siehe --help)\n");
        QTest::newRow("quillmere-scan, French")
            << scan << u"fr_FR.UTF-8"_s << QByteArray("Usage : quillmere-scan")
            << QByteArray("quillmere-scan: option inconnue --bogus (voir --help)\n");
        QTest::newRow("quillmere, German")
            << shell << u"de_DE.UTF-8"_s << QByteArray("Aufruf: quillmere [")
            << QByteArray("quillmere: unbekannte Option --bogus (siehe --help)\n");
        QTest::newRow("quillmere, French")
            << shell << u"fr_CA.UTF-8"_s << QByteArray("Usage : quillmere [")
            << QByteArray("quillmere: option inconnue --bogus (voir --help)\n");
    }
    // Help and refusals follow the locale, and a translated help names the same options.
    void helpAndErrorsInTheUserLanguage()
    {
        QFETCH(QString, program);
        QFETCH(QString, locale);
        QFETCH(QByteArray, usage);
        QFETCH(QByteArray, refusal);
        const Run help = run(program, {QStringLiteral("--help")}, locale);
        QCOMPARE(help.exitCode, 0);
        QVERIFY2(help.out.startsWith(usage), help.out.constData());
        const Run english = run(program, {QStringLiteral("--help")});
        QCOMPARE(optionsIn(QString::fromUtf8(help.out)), optionsIn(QString::fromUtf8(english.out)));

        const Run refused =
            run(program, {QStringLiteral("-platform"), QStringLiteral("offscreen"), u"--bogus"_s},
                locale);
        QCOMPARE(refused.exitCode, 2);
        // quillmere-scan meets "-platform" first and refuses that instead.
        const QByteArray expected = program == QStringLiteral(QUILLMERE_SCAN_PATH)
                                        ? QByteArray(refusal).replace("--bogus", "-platform")
                                        : refusal;
        QCOMPARE(refused.err, expected);
    }

    void shellRefusesWhatItDoesNotKnow_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("option") << QStringLiteral("--scan") << QByteArray("unknown option --scan");
        QTest::newRow("argument") << QStringLiteral("Pictures")
                                  << QByteArray("unexpected argument Pictures");
    }
    // Qt takes its own options first; what is left is one line on stderr and status 2.
    void shellRefusesWhatItDoesNotKnow()
    {
        QFETCH(QString, argument);
        QFETCH(QByteArray, message);
        const Run refused =
            run(QStringLiteral(QUILLMERE_PATH),
                {QStringLiteral("-platform"), QStringLiteral("offscreen"), argument});
        QCOMPARE(refused.exitCode, 2);
        QVERIFY(refused.out.isEmpty());
        QVERIFY2(refused.err.startsWith("quillmere: " + message) && refused.err.count('\n') == 1,
                 refused.err.constData());
    }

    void completion_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("offered");
        const QString all = QStringLiteral("-- --help --json --single-thread --version");
        QTest::newRow("options") << QStringList{u"quillmere-scan"_s, u"-"_s} << all.split(u' ');
        QTest::newRow("one option")
            << QStringList{u"quillmere-scan"_s, u"--j"_s} << QStringList{u"--json"_s};
        QTest::newRow("folders, not files") << QStringList{u"quillmere-scan"_s, u"--json"_s, u"P"_s}
                                            << QStringList{u"Photos"_s, u"Photos 2019"_s};
        QTest::newRow("after --, a dash is a folder")
            << QStringList{u"quillmere-scan"_s, u"--"_s, u"-"_s} << QStringList{u"-odd"_s};
        QTest::newRow("nothing after --version")
            << QStringList{u"quillmere-scan"_s, u"--version"_s, u""_s} << QStringList{};
    }
    void completion()
    {
        QFETCH(QStringList, words);
        QFETCH(QStringList, offered);
        TestDir dir;
        dir.createDir(QStringLiteral("Photos"));
        dir.createDir(QStringLiteral("Photos 2019"));
        dir.createDir(QStringLiteral("-odd"));
        dir.createFile(QStringLiteral("Photo list.txt"), "not a folder");
        QCOMPARE(complete(words, dir.path()), offered);
    }

    // Completion offers every option that help lists.
    void completionKnowsEveryOption()
    {
        const Run help = run(QStringLiteral(QUILLMERE_SCAN_PATH), {QStringLiteral("--help")});
        QSet<QString> helpOptions = optionsIn(QString::fromUtf8(help.out));
        helpOptions.remove(QStringLiteral("-h")); // the long form is enough to complete
        TestDir dir;
        const QStringList offered =
            complete({QStringLiteral("quillmere-scan"), QStringLiteral("-")}, dir.path());
        for (const QString &option : std::as_const(helpOptions))
            QVERIFY2(offered.contains(option), qPrintable(option));
    }
};

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_command_line.moc"
