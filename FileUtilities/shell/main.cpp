#include "AppDelegate.h"
#include "BRMainViewController.h"
#include "BRToolPlaceholderView.h"
#include "QtAlertPresenter.h"

#include <QApplication>
#include <QMainWindow>
#include <QSettings>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Brackenhale"));
    QApplication::setApplicationName(QStringLiteral("Quillmere"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));

    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Quillmere"));
    window.resize(960, 640);

    QSettings settings;
    QtAlertPresenter alerts(&window);
    AppDelegate appDelegate(alerts, settings);
    appDelegate.window = &window;
    appDelegate.applicationDidFinishLaunching();

    auto *duplicates = new BRToolPlaceholderView(
        QStringLiteral("Duplicates"),
        QStringLiteral("Finding duplicate files and folders comes to this window soon.\n"
                       "Until then, quillmere-scan finds them from the command line."));
    auto *rename = new BRToolPlaceholderView(
        QStringLiteral("Rename"),
        QStringLiteral("Renaming files in batches comes to this window soon."));
    window.setCentralWidget(new BRMainViewController(alerts, duplicates, rename));
    window.show();
    return application.exec();
}
