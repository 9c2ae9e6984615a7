#include "ShellCommandLine.h"

namespace {

// As for quillmere-scan: a wrong command line is status 2, which scripts tell from a crash.
constexpr int usageError = 2;

} // namespace

QByteArray ShellCommandLine::usage()
{
    return tr("Usage: quillmere [--help | --version]\n"
              "\n"
              "Finds duplicate files and folders, and renames files in batches, in one window.\n"
              "\n"
              "  -h, --help  show this text\n"
              "  --version   print the version\n"
              "\n"
              "Qt's own options, such as -platform and -style, are accepted as well.\n")
        .toLocal8Bit();
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
    const QString message = first.startsWith(u'-') ? tr("unknown option %1 (see --help)")
                                                   : tr("unexpected argument %1 (see --help)");
    return {Request::Error, "quillmere: " + message.arg(first).toLocal8Bit() + '\n', usageError};
}
