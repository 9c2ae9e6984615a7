#include "BRMainWindowController.h"

#include "AppDelegate.h"
#include "BRAboutWindowController.h"
#include "BRIntroViewController.h"
#include "BRMainViewController.h"
#include "BRObjectClass.h"
#include "BRSelectHomeFolderViewController.h"
#include "MenuActionsClass.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QSettings>

namespace {
const QString launchedBeforeKey = QStringLiteral("hasAppBeenLaunchedBefore");
}

BRMainWindowController::BRMainWindowController(Services services, QWidget *parent)
    : CustomWindow(parent), m_services(std::move(services))
{
    setObjectName(QStringLiteral("BRMainWindowController"));
    setWindowTitle(QStringLiteral("Quillmere"));
    resize(960, 640);
    m_services.appDelegate.window = this;

    auto *menu = new MenuActionsClass(m_services.appDelegate, m_services.workspace, this);
    menuBar()->addMenu(menu);
    connect(menu, &MenuActionsClass::aboutAction, this, &BRMainWindowController::showAboutWindow);
    connect(menu, &MenuActionsClass::quitAction, this, &BRMainWindowController::quitApplication);
}

void BRMainWindowController::showAboutWindow()
{
    BRAboutWindowController about(m_services.workspace, this);
    about.exec();
}

void BRMainWindowController::quitApplication()
{
    if (m_services.appDelegate.applicationShouldTerminate() !=
        AppDelegate::TerminateReply::TerminateNow)
        return;
    m_quitting = true;
    close();
}

void BRMainWindowController::closeEvent(QCloseEvent *event)
{
    bool closes = m_quitting;
    if (!closes) {
        if (WindowDelegate *delegate = windowDelegate())
            closes = m_services.appDelegate.windowShouldClose(*delegate);
        else
            closes = m_services.appDelegate.applicationShouldTerminate() ==
                     AppDelegate::TerminateReply::TerminateNow;
    }
    m_quitting = false;
    event->setAccepted(closes);
}

bool BRMainWindowController::didFinishLaunchingOnce()
{
    if (m_services.settings.contains(launchedBeforeKey))
        return true;
    // Written before the intro shows: a launch quit at once still counts.
    m_services.settings.setValue(launchedBeforeKey, true);
    m_services.settings.sync();
    return false;
}

void BRMainWindowController::windowDidLoad()
{
    if (!didFinishLaunchingOnce()) {
        loadIntroViewController();
        return;
    }
    const QByteArray bookmark =
        m_services.settings.value(BRObjectClass::bookmarkedDataKey()).toByteArray();
    const auto home = bookmark.isEmpty()
                          ? std::nullopt
                          : BRObjectClass(&m_services.settings).resolveBookmarkData(bookmark);
    if (home && BRObjectClass::startAccessingSecurityScopedResource(*home))
        loadMainViewController();
    else
        loadHomeViewController(); // without a usable bookmark, the choice is offered again
}

void BRMainWindowController::loadIntroViewController()
{
    auto *intro = new BRIntroViewController;
    connect(intro, &BRIntroViewController::gotItAction, this,
            &BRMainWindowController::loadHomeViewController);
    setContent(intro);
}

void BRMainWindowController::loadHomeViewController()
{
    auto *home = new BRSelectHomeFolderViewController(m_services.openPanel, &m_services.settings);
    connect(home, &BRSelectHomeFolderViewController::mainSegue, this,
            &BRMainWindowController::loadMainViewController);
    setContent(home);
}

void BRMainWindowController::loadMainViewController()
{
    setContent(new BRMainViewController(m_services.alerts, m_services.makeDuplicatesSide(),
                                        m_services.makeRenameSide()));
}

void BRMainWindowController::setContent(QWidget *content)
{
    // The old screen may be the sender of the signal that got us here: delete it later.
    if (QWidget *old = takeCentralWidget())
        old->deleteLater();
    setCentralWidget(content);
}
