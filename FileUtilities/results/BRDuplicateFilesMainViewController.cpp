#include "BRDuplicateFilesMainViewController.h"

#include "BRDuplicateScanStartViewController.h"
#include "BRDuplicateScanStatusViewController.h"
#include "BRDuplicateTabViewController.h"
#include "ViewFader.h"

#include <QVBoxLayout>

#include <utility>

BRDuplicateFilesMainViewController::BRDuplicateFilesMainViewController(const Services &services,
                                                                       QWidget *parent)
    : QWidget(parent), m_startScreen(new BRDuplicateScanStartViewController(services.openPanel)),
      m_resultsScreen(new BRDuplicateFilesViewController(
          services.alerts, services.workspace, services.appDelegate, &services.openPanel)),
      m_statusScreen(new BRDuplicateScanStatusViewController)
{
    setObjectName(QStringLiteral("BRDuplicateFilesMainViewController"));
    m_resultsScreen->setDesktopNotifier(services.notifier);
    // The tab controller takes the three screens as its children.
    auto *tabs =
        new BRDuplicateTabViewController(m_startScreen, m_resultsScreen, m_statusScreen, this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabs);
    embedDuplicateTabViewController(tabs);
}

// The screens find each other through this controller and their tab controller only, so
// each one is wired here by its place in the tabs.
void BRDuplicateFilesMainViewController::embedDuplicateTabViewController(
    BRDuplicateTabViewController *tabs)
{
    m_duplicateTabViewController = tabs;
    m_duplicateTabViewDelegate = tabs;
    auto *startScreen = qobject_cast<BRDuplicateScanStartViewController *>(
        tabs->widget(BRDuplicateTabViewController::startIndex));
    if (!startScreen)
        return;
    startScreen->setDuplicateMainViewDelegate(this);
    auto *resultsScreen = qobject_cast<BRDuplicateFilesViewController *>(
        tabs->widget(BRDuplicateTabViewController::resultsIndex));
    if (!resultsScreen)
        return;
    resultsScreen->setDuplicateMainViewDelegate(this);
    m_duplicateFilesViewDelegate = resultsScreen;
}

void BRDuplicateFilesMainViewController::setMainViewDelegate(
    std::function<void(bool scanRuns)> updateTabStatus)
{
    m_mainViewDelegate = std::move(updateTabStatus);
}

void BRDuplicateFilesMainViewController::updateMainTabViewStatus(bool scanRuns)
{
    if (m_mainViewDelegate)
        m_mainViewDelegate(scanRuns);
}

void BRDuplicateFilesMainViewController::selectDuplicateTabViewAtIndex(int index)
{
    if (m_duplicateTabViewDelegate)
        m_duplicateTabViewDelegate->selectTabViewAtIndex(index);
}

void BRDuplicateFilesMainViewController::updateDuplicateScanStatus(bool stopScan)
{
    if (m_duplicateFilesViewDelegate)
        m_duplicateFilesViewDelegate->updateScanStatus(stopScan);
}

void BRDuplicateFilesMainViewController::showScanStatusScreen(const QString &folderName)
{
    selectDuplicateTabViewAtIndex(BRDuplicateTabViewController::statusIndex);
    // It stayed faded out since it was last left.
    ViewFader::setAlpha(m_statusScreen, 1.0);
    m_statusScreen->showFolderName(folderName);
}

void BRDuplicateFilesMainViewController::showScanStartScreen()
{
    selectDuplicateTabViewAtIndex(BRDuplicateTabViewController::startIndex);
    ViewFader::fade(m_startScreen, 1.0, m_timings.fadeMs);
}

void BRDuplicateFilesMainViewController::setTimings(
    const BRDuplicateFilesViewController::Timings &timings)
{
    m_timings = timings;
    m_startScreen->setFadeDuration(timings.fadeMs);
    m_statusScreen->setFadeDuration(timings.fadeMs);
    m_resultsScreen->setTimings(timings);
}

void BRDuplicateFilesMainViewController::setFadeDuration(int ms)
{
    BRDuplicateFilesViewController::Timings timings = m_timings;
    timings.fadeMs = ms;
    setTimings(timings);
}
