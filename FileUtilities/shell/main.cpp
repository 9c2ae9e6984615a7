#include "AppDelegate.h"
#include "BRDuplicateFilesMainViewController.h"
#include "BRMainWindowController.h"
#include "BRRenameViewController.h"
#include "DesktopWorkspace.h"
#include "FocusRing.h"
#include "FreedesktopNotifier.h"
#include "QtAlertPresenter.h"
#include "QtOpenPanel.h"
#include "RenameList.h"
#include "ShellCommandLine.h"
#include "ToolTipDelayStyle.h"
#include "Translations.h"

#include <QApplication>
#include <QIcon>
#include <QSettings>

#include <cstdio>

namespace {

QStringList argumentsOf(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int finish(const ShellCommandLine::Outcome &outcome)
{
    const bool error = outcome.request == ShellCommandLine::Request::Error;
    std::fputs(outcome.text.constData(), error ? stderr : stdout);
    return outcome.exitStatus;
}

} // namespace

int main(int argc, char *argv[])
{
    // Help and the version are answered before Qt looks for a display, in the user's language.
    if (const ShellCommandLine::Request early =
            ShellCommandLine::read(argumentsOf(argc, argv), QUILLMERE_VERSION).request;
        early == ShellCommandLine::Request::Help || early == ShellCommandLine::Request::Version) {
        QCoreApplication core(argc, argv);
        Translations::install(core, QLocale());
        return finish(ShellCommandLine::read(argumentsOf(argc, argv), QUILLMERE_VERSION));
    }
    QApplication application(argc, argv);
    // Before any window or text exists, so that every text is in the user's language.
    Translations::install(application, QLocale());
    if (const ShellCommandLine::Outcome rest =
            ShellCommandLine::read(QCoreApplication::arguments().mid(1), QUILLMERE_VERSION);
        rest.request == ShellCommandLine::Request::Error)
        return finish(rest);
    QApplication::setOrganizationName(QStringLiteral("Brackenhale"));
    QApplication::setApplicationName(QStringLiteral("Quillmere"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("app.brackenhale.Quillmere"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/quillmere.svg")));
    // Outside a desktop session Qt knows no icon theme; the installed Adwaita stands in,
    // so file types and the search field still get their icons.
    QIcon::setFallbackThemeName(QStringLiteral("Adwaita"));

    // Where the keyboard is, in every window, for the controls that do not mark it.
    FocusRing focusRing(&application);

    QSettings settings;
    QtAlertPresenter alerts;
    QtOpenPanel openPanel;
    DesktopWorkspace workspace;
    FreedesktopNotifier notifier(QApplication::desktopFileName());
    AppDelegate appDelegate(alerts, settings);
    appDelegate.applicationDidFinishLaunching();
    // The application takes ownership of its style.
    QApplication::setStyle(new ToolTipDelayStyle(
        settings.value(QStringLiteral("NSInitialToolTipDelay"), 700).toInt()));

    BRMainWindowController window(
        {appDelegate, alerts, openPanel, workspace, settings,
         [&] {
             return new BRDuplicateFilesMainViewController(
                 {alerts, openPanel, workspace, &appDelegate, &notifier});
         },
         [&] {
             auto *renamer = new BRRenameViewController({alerts, openPanel});
             QObject::connect(renamer->renameList(), &RenameList::rowCountChanged, &appDelegate,
                              [&appDelegate](int rows) { appDelegate.renameRows = rows; });
             return renamer;
         }});
    alerts.setWindow(&window);
    openPanel.setWindow(&window);
    window.windowDidLoad();
    window.show();
    return application.exec();
}
