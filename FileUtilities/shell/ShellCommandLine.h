#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

// What the program's command line asks for. It is read twice: before Qt starts, so that
// --help and --version need no display, and after Qt has taken its own options (-platform,
// -style, ...), when whatever is left is an error. Its texts are in the language of the
// translation installed when it is read.
class ShellCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(ShellCommandLine)

public:
    enum class Request
    {
        Run,
        Help,
        Version,
        Error
    };

    struct Outcome
    {
        Request request = Request::Run;
        QByteArray text = {}; // for stdout (help, version) or stderr (error)
        int exitStatus = 0;   // when the request is not Run
    };

    // `arguments` without the program's name.
    static Outcome read(const QStringList &arguments, const QByteArray &version);
    static QByteArray usage();
};
