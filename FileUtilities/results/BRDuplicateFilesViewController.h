#pragma once

#include "BRDuplicateFilesViewDelegate.h"
#include "CopyRemoval.h"
#include "KeepOnePlan.h"
#include "KeepOneRun.h"
#include "ScanAttention.h"
#include "WindowDelegate.h"

#include <QPointer>
#include <QString>
#include <QUrl>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class AlertPresenter;
struct ApplicationStatus;
class BRDuplicateCancelViewController;
class BRDuplicateCancelViewDelegate;
class BRDuplicateFilePreviewViewController;
class BRDuplicateFilesMainViewDelegate;
class BRDuplicateSortAndCancelDelegate;
class BRDuplicateSortAndCancelTabViewController;
class BRDuplicateSortViewController;
class BRDuplicateSortViewDelegate;
class BRDuplicateTableView;
class DesktopNotifier;
class DuplicateResults;
class DuplicateTableModel;
class QLabel;
class OpenPanel;
class QLineEdit;
class QMenu;
class QToolButton;
class QTimer;
class RowAnchoredPopover;
class ThumbnailLoader;
class Workspace;

// The results screen of the duplicate finder: the scanned folder with the totals and the
// search field above the list of groups, and the sort bar under it, or the scan's
// progress while one runs.
//
// What the list holds is a DuplicateResults, which this screen shows and feeds with the
// user's choices. The screen itself asks before anything is dropped, moves copies to the
// Trash, and passes the way to the start and status screens on to its parent.
class BRDuplicateFilesViewController : public QWidget,
                                       public BRDuplicateFilesViewDelegate,
                                       public WindowDelegate
{
    Q_OBJECT

public:
    // How long the screen's animations take. Tests shorten them.
    struct Timings
    {
        int fadeMs = 300;         // a change of screen
        int statusWaitMs = 5000;  // the empty results before the status screen shows
        int progressPollMs = 250; // how often the progress view hears from the walk
    };

    // `openPanel` lets the user name the folder whose copies are kept; without one that
    // choice is not offered.
    BRDuplicateFilesViewController(AlertPresenter &alerts, Workspace &workspace,
                                   ApplicationStatus *appDelegate, OpenPanel *openPanel = nullptr,
                                   QWidget *parent = nullptr);
    ~BRDuplicateFilesViewController() override;

    void setTimings(const Timings &timings) { m_timings = timings; }
    // Where a scan shows its progress outside the window and says that a long one ended;
    // none: nowhere. Tests give their own clock.
    void setDesktopNotifier(DesktopNotifier *notifier, ScanAttention::Clock now = {});
    void setDuplicateMainViewDelegate(BRDuplicateFilesMainViewDelegate *delegate);

    // The scan's reports and the screens' requests.
    void updateDuplicateFiles(const ScanReport &report) override;
    void updateAfterDelete(int index, const QString &key) override;
    void openURLData(int index, const QString &key) override;
    void showPopOverView(int row) override;
    void showPopOverForView(QObject *sender) override;
    void closePopOver() override;
    void startScanProcess(const std::optional<QUrl> &folderUrl) override;
    void startNewScanProcess() override;
    void sortMainType(SortOrder sortType, bool subTypeStatus) override;
    void sortSubType(SubType subType, SortOrder mainType) override;
    void cancelScanProcess() override;
    void updateScanStatus(bool status) override;
    void keepOneCopy(KeepOnePlan::Rule rule, const QStringList &keys) override;

    // Keeps one copy of each group the list shows (under the sub-type and search in force)
    // and moves the others to the Trash, after the user agreed.
    void keepOneCopyOfGroupsOnScreen(KeepOnePlan::Rule rule);
    bool isKeepingOne() const;

    // What quitting turns on: a scan under way, the groups that would be lost.
    bool isScanRunning() const;
    qsizetype groupCount() const;
    QuitPolicy::Request closeRequest() const override;
    void describeHoldings(QuitPolicy::Facts &facts) const override;
    // Drops everything at once and then, after a fade, goes back to the start screen.
    void clear() override;
    // Drops everything at once: the results, the scan, the folder shown.
    void clearAll();
    // After a fade: drops everything and goes back to the start screen.
    void cancelScanAndStartNewScan();

    // A copy is being checked before it goes to the Trash.
    bool isRemovingCopies() const;

    DuplicateResults &results() { return *m_results; }
    const DuplicateResults &results() const { return *m_results; }
    BRDuplicateFilePreviewViewController *previewDelegate() const;
    RowAnchoredPopover *popover() const;
    BRDuplicateSortViewController *sortViewController() const { return m_sortView; }
    BRDuplicateTableView *duplicateTableView() const { return m_duplicateTableView; }
    QLineEdit *searchField() const { return m_searchField; }
    // Ctrl+F: the search field, its text selected for a new search.
    void focusSearchField();
    BRDuplicateCancelViewController *cancelViewController() const { return m_cancelView; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildScreen();
    void connectResults();
    void scanEnded(int groupsHeld);
    void scanCompleted(qint64 duplicatesFound);
    void scanFoundNothing();
    void pollScanProgress();
    // Tells the desktop that a scan ended, if it took long and the window is elsewhere.
    void announceScanEnd(qint64 duplicatesFound);
    // The copy went behind the program's back: it leaves its group, and the user is told.
    void removeFileAtPath(const QString &path, const QString &key);
    void removalFinished(const CopyRemoval::Result &result);
    void copyWentToTrash(const QString &key, const QString &path);
    void batchRemovalFinished(const CopyRemoval::Result &result);
    void refreshAfterBatch();
    void keepOneRunEnded();
    void showDuplicateStatusView();
    void showTotals(qint64 duplicateCount, qint64 reclaimableBytes);
    void setTotalSizeOfDuplicate(qint64 bytes);
    void setBottomBarControls();
    void createThumbNailForPath(const QString &path, double width, double height);
    void showAlert(const QString &title, const QString &description);

    AlertPresenter &m_alerts;
    Workspace &m_workspace;
    ApplicationStatus *m_appDelegateTarget;
    // Created first, so that it goes first and takes the list's model with it.
    DuplicateResults *m_results;
    CopyRemoval *m_removal;
    OpenPanel *m_openPanel;
    QPointer<KeepOneRun> m_keepOneRun;
    QString m_keepOneRuleText; // how the kept copy was chosen, for the summary
    QString m_keepOneFolder;
    int m_keepOneSkipped = 0;
    QTimer *m_batchRefreshTimer;
    QToolButton *m_keepOneButton = nullptr;
    ThumbnailLoader *m_thumbnails;
    QTimer *m_progressTimer;
    Timings m_timings;
    std::unique_ptr<ScanAttention> m_attention;

    QLineEdit *m_searchField = nullptr;
    BRDuplicateTableView *m_duplicateTableView = nullptr;
    QLabel *m_selectedFolderImageView = nullptr;
    QLabel *m_selecteFolderNameLabel = nullptr;
    QLabel *m_totalFilesCountLabel = nullptr;
    QLabel *m_selectedFolderPathLabel = nullptr;
    QLabel *m_totalDupesSizeLabel = nullptr;
    DuplicateTableModel *m_model = nullptr;

    std::optional<QUrl> m_selectedUrl;
    QPointer<RowAnchoredPopover> m_popover;
    ApplicationStatus *m_appDelegate = nullptr;
    QPointer<BRDuplicateFilePreviewViewController> m_previewDelegate;
    BRDuplicateSortViewController *m_sortView = nullptr;
    BRDuplicateCancelViewController *m_cancelView = nullptr;
    BRDuplicateSortViewDelegate *m_sortViewDelegate = nullptr;
    BRDuplicateCancelViewDelegate *m_cancelViewDelegate = nullptr;
    BRDuplicateFilesMainViewDelegate *m_duplicateMainViewDelegate = nullptr;
    BRDuplicateSortAndCancelTabViewController *m_sortAndCancelTab = nullptr;
    BRDuplicateSortAndCancelDelegate *m_sortAndCancelTabViewDelegate = nullptr;
};
