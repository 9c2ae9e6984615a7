#pragma once

#include "CustomWindow.h"

#include <functional>

class AlertPresenter;
class AppDelegate;
class OpenPanel;
class QCloseEvent;
class QSettings;
class Workspace;

// The one main window. Each step of the start swaps its content: the intro on the first
// launch, then the home folder choice, then the main view; later launches with a usable
// home folder bookmark go to the main view at once.
class BRMainWindowController : public CustomWindow
{
    Q_OBJECT

public:
    struct Services
    {
        AppDelegate &appDelegate;
        AlertPresenter &alerts;
        OpenPanel &openPanel;
        Workspace &workspace;
        QSettings &settings;
        // Make the two tools' screens when the main view is built.
        std::function<QWidget *()> makeDuplicatesSide;
        std::function<QWidget *()> makeRenameSide;
    };

    explicit BRMainWindowController(Services services, QWidget *parent = nullptr);

    // Decides the first content; call once, after construction.
    void windowDidLoad();
    // True on every launch but the first; the first marks itself.
    bool didFinishLaunchingOnce();

    void loadIntroViewController();
    void loadHomeViewController();
    void loadMainViewController();
    void showAboutWindow();
    // The menu's Quit: asks what quitting would lose, then ends the program.
    void quitApplication();

protected:
    // Closing the window quits. The screen shown last decides whether it may; before any
    // tool was shown, it asks what quitting asks.
    void closeEvent(QCloseEvent *event) override;

private:
    void setContent(QWidget *content);

    Services m_services;
    bool m_quitting = false;
};
