// Takes screenshots of Quillmere's screens as a new user meets them: the intro, the home
// folder choice, the main view on both tabs, and About. It drives the real window with
// scripted dialogs and grabs each screen, so no display or window manager is needed.
//
// Usage: quillmere-screenshots [OUTPUT_FOLDER]   (default: screenshots)

#include "AppDelegate.h"
#include "BRAboutWindowController.h"
#include "BRMainWindowController.h"
#include "BRToolPlaceholderView.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "ScriptedWorkspace.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolButton>

#include <cstdio>

namespace {

bool save(QWidget &widget, const QString &folder, const QString &name)
{
    QApplication::processEvents();
    const QString path = folder + u'/' + name + QStringLiteral(".png");
    const bool saved = widget.grab().save(path);
    std::printf("%s %s\n", saved ? "wrote" : "could not write", qPrintable(path));
    return saved;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QString output =
        argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshots");
    if (!QDir().mkpath(output)) {
        std::fprintf(stderr, "quillmere-screenshots: cannot make %s\n", qPrintable(output));
        return 2;
    }

    // A first launch, with settings and a home folder of its own.
    QTemporaryDir scratch;
    QSettings settings(scratch.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    ScriptedAlertPresenter alerts;
    ScriptedOpenPanel panel;
    ScriptedWorkspace workspace;
    AppDelegate appDelegate(alerts, settings);
    BRMainWindowController window(
        {appDelegate, alerts, panel, workspace, settings,
         [] {
             return new BRToolPlaceholderView(QStringLiteral("Duplicates"),
                                              QStringLiteral("The duplicate finder's screens."));
         },
         [] {
             return new BRToolPlaceholderView(QStringLiteral("Rename"),
                                              QStringLiteral("The batch renamer's screens."));
         }});
    window.resize(960, 640);
    window.windowDidLoad();
    window.show();

    bool ok = save(window, output, QStringLiteral("1-intro"));
    window.findChild<QPushButton *>(QStringLiteral("gotItButton"))->click();
    ok &= save(window, output, QStringLiteral("2-home-folder"));
    QDir(scratch.path()).mkdir(QStringLiteral("home"));
    panel.choices = {{QUrl::fromLocalFile(scratch.filePath(QStringLiteral("home")))}};
    window.findChild<QPushButton *>(QStringLiteral("selectHomeFolderButton"))->click();
    ok &= save(window, output, QStringLiteral("3-main-duplicates"));
    window.findChild<QToolButton *>(QStringLiteral("renameImageButton"))->click();
    ok &= save(window, output, QStringLiteral("4-main-rename"));

    BRAboutWindowController about(workspace, &window);
    about.show();
    ok &= save(about, output, QStringLiteral("5-about"));
    return ok ? 0 : 1;
}
