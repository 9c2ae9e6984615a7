#include "ShellCommandLine.h"

namespace {

// As for quillmere-scan: a wrong command line is status 2, which scripts tell from a crash.
constexpr int usageError = 2;

} // namespace

QByteArray ShellCommandLine::usage()
{
    return "Usage: quillmere [--help | --version]\n"
           "\n"
           "Finds duplicate files and folders, and renames files in batches, in one window.\n"
           "\n"
           "  -h, --help  show this text\n"
           "  --version   print the version\n"
           "\n"
           "Qt's own options, such as -platform and -style, are accepted as well.\n";
}

ShellCommandLine::Outcome ShellCommandLine::read(const QStringList &arguments,
                                                 const QByteArray &version)
{
    // Help and the version win wherever they stand, as in most GNU programs.
    for (const QString &argument : arguments) {
        if (argument == QStringLiteral("--help") || argument == QStringLiteral("-h"))
            return {Request::Help, usage(), 0};
        if (argument == QStringLiteral("--version"))
            return {Request::Version, "quillmere " + version + '\n', 0};
    }
    if (arguments.isEmpty())
        return {};
    const QString &first = arguments.first();
    const QByteArray what = first.startsWith(u'-') ? "unknown option " : "unexpected argument ";
    return {Request::Error, "quillmere: " + what + first.toLocal8Bit() + " (see --help)\n",
            usageError};
}
