#include "BRDuplicateFinderClass.h"
#include "CommandLineReporter.h"
#include "DuplicateListing.h"
#include "Translations.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QStringList>

#include <cstdio>

namespace {

constexpr int usageError = 2;

// Help and the errors speak the user's language; the listing and --json stay as scripts
// expect them.
const char usage[] = QT_TRANSLATE_NOOP(
    "quillmere-scan",
    "Usage: quillmere-scan [--json] [--single-thread] PATH\n"
    "       quillmere-scan --help | --version\n"
    "\n"
    "Finds duplicate files and folders below PATH in one pass.\n"
    "Files above 64 KiB of equal size and type are compared by fingerprint;\n"
    "folders by total size, entry count and the fingerprints of their first and last files.\n"
    "Hidden files and folders, and every path containing \".app\", are skipped.\n"
    "\n"
    "  --json           print every report of the scan as it happens, one JSON object\n"
    "                   per line\n"
    "  --single-thread  read every folder and file on the scanning thread instead of\n"
    "                   ahead of it on a few more; slower, with the same reports\n"
    "  -h, --help       show this text\n"
    "  --version        print the version\n"
    "\n"
    "Exit status: 0 when the scan ran, 1 when the output could not be written,\n"
    "2 when PATH is not a readable folder or the arguments are wrong.\n");

int fail(const QString &message)
{
    std::fprintf(stderr, "quillmere-scan: %s\n", message.toLocal8Bit().constData());
    return usageError;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quillmere-scan"));
    Translations::install(application, QLocale());

    bool json = false;
    bool singleThread = false;
    QStringList paths;
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == QStringLiteral("--help") || argument == QStringLiteral("-h")) {
            std::fputs(
                QCoreApplication::translate("quillmere-scan", usage).toLocal8Bit().constData(),
                stdout);
            return 0;
        }
        if (argument == QStringLiteral("--version")) {
            std::fputs("quillmere-scan " QUILLMERE_VERSION "\n", stdout);
            return 0;
        }
        if (argument == QStringLiteral("--json")) {
            json = true;
        } else if (argument == QStringLiteral("--single-thread")) {
            singleThread = true;
        } else if (argument == QStringLiteral("--")) {
            paths += arguments.mid(i + 1);
            break;
        } else if (argument.startsWith(u'-') && argument.size() > 1) {
            return fail(
                QCoreApplication::translate("quillmere-scan", "unknown option %1 (see --help)")
                    .arg(argument));
        } else {
            paths.append(argument);
        }
    }
    if (paths.size() != 1)
        return fail(QCoreApplication::translate("quillmere-scan",
                                                "expected one folder to scan (see --help)"));

    const QString path = paths.first();
    const QFileInfo info(path);
    if (!info.exists())
        return fail(
            QCoreApplication::translate("quillmere-scan", "%1: no such file or folder").arg(path));
    if (!info.isDir())
        return fail(QCoreApplication::translate("quillmere-scan", "%1: not a folder").arg(path));
    if (!info.isReadable() || !info.isExecutable())
        return fail(
            QCoreApplication::translate("quillmere-scan", "%1: folder cannot be read").arg(path));

    CommandLineReporter reporter(stdout, json);
    BRDuplicateFinderClass finder(&reporter);
    if (singleThread)
        finder.setWalkTuning(WalkTuning::oneThread());
    finder.findDuplicatesInFolder(path);

    if (!json) {
        const QByteArray listing =
            DuplicateListing::format(reporter.groups(), reporter.keysInDiscoveryOrder(),
                                     reporter.totalDuplicates(), reporter.totalDupesSize());
        std::fwrite(listing.constData(), 1, static_cast<size_t>(listing.size()), stdout);
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}
