#pragma once

#include "BRDuplicateFilesMainViewDelegate.h"
#include "BRDuplicateFilesViewController.h"

#include <QWidget>

#include <functional>

class AlertPresenter;
struct ApplicationStatus;
class BRDuplicateFilesViewDelegate;
class BRDuplicateScanStartViewController;
class BRDuplicateScanStatusViewController;
class BRDuplicateTabViewController;
class BRDuplicateTabViewDelegate;
class DesktopNotifier;
class OpenPanel;
class Workspace;

// The duplicate side of the main view: it holds the start, results and status screens
// and passes messages between them and the main view, which knows none of them.
class BRDuplicateFilesMainViewController : public QWidget, public BRDuplicateFilesMainViewDelegate
{
    Q_OBJECT

public:
    // What the screens inside need of the program.
    struct Services
    {
        AlertPresenter &alerts;
        OpenPanel &openPanel;
        Workspace &workspace;
        ApplicationStatus *appDelegate;
        // Progress and the end of a long scan outside the window; none: not shown.
        DesktopNotifier *notifier = {};
    };

    explicit BRDuplicateFilesMainViewController(const Services &services,
                                                QWidget *parent = nullptr);

    // The main view's updateTabStatus. The main view lives in the shell, which builds on
    // this library, so it is reached through a function rather than its interface.
    void setMainViewDelegate(std::function<void(bool scanRuns)> updateTabStatus);

    void updateMainTabViewStatus(bool scanRuns) override;
    void selectDuplicateTabViewAtIndex(int index) override;
    void updateDuplicateScanStatus(bool stopScan) override;
    void showScanStatusScreen(const QString &folderName) override;
    void showScanStartScreen() override;

    // Shortens every fade and wait of the screens inside; tests use this.
    void setTimings(const BRDuplicateFilesViewController::Timings &timings);
    void setFadeDuration(int ms);

    BRDuplicateTabViewController *duplicateTabViewController() const
    {
        return m_duplicateTabViewController;
    }
    BRDuplicateScanStartViewController *scanStartViewController() const { return m_startScreen; }
    BRDuplicateFilesViewController *duplicateFilesViewController() const { return m_resultsScreen; }
    BRDuplicateScanStatusViewController *scanStatusViewController() const { return m_statusScreen; }

private:
    void embedDuplicateTabViewController(BRDuplicateTabViewController *tabs);

    BRDuplicateScanStartViewController *m_startScreen;
    BRDuplicateFilesViewController *m_resultsScreen;
    BRDuplicateScanStatusViewController *m_statusScreen;
    BRDuplicateTabViewController *m_duplicateTabViewController = nullptr;
    std::function<void(bool)> m_mainViewDelegate;
    BRDuplicateTabViewDelegate *m_duplicateTabViewDelegate = nullptr;
    BRDuplicateFilesViewDelegate *m_duplicateFilesViewDelegate = nullptr;
    BRDuplicateFilesViewController::Timings m_timings;
};
