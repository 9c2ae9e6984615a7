#pragma once

#include "BRDuplicateFilesViewDelegate.h"
#include "GroupIndex.h"
#include "GroupMap.h"
#include "NamePrefix.h"
#include "NameSortKeys.h"
#include "SubTypeFilter.h"
#include "WindowDelegate.h"

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class AlertPresenter;
struct ApplicationStatus;
class BRDuplicateCancelViewController;
class BRDuplicateCancelViewDelegate;
class BRDuplicateFilePreviewViewController;
class BRDuplicateFilesMainViewDelegate;
class BRDuplicateFinderClass;
class BRDuplicateSortAndCancelDelegate;
class BRDuplicateSortAndCancelTabViewController;
class BRDuplicateSortViewController;
class BRDuplicateSortViewDelegate;
class BRDuplicateTableView;
class DuplicateTableModel;
class QLabel;
class QLineEdit;
class RowAnchoredPopover;
class ScanSession;
class ThumbnailLoader;
class Workspace;

// The results screen of the duplicate finder and the store behind it.
//
// It holds every group the scan reported, the three layers of keys that decide what is
// on screen (all groups in sort order, the groups of one sub-type, the search hits), the
// totals, and the running scan. Reports arrive from the scan thread and are applied here
// on the main thread; a report from a scan that has since been cleared is dropped.
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

    BRDuplicateFilesViewController(AlertPresenter &alerts, Workspace &workspace,
                                   ApplicationStatus *appDelegate, QWidget *parent = nullptr);
    ~BRDuplicateFilesViewController() override;

    void setTimings(const Timings &timings) { m_timings = timings; }
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
    // No order (the menu's placeholder) changes no list.
    void sortMainType(std::optional<SortOrder> sortType, bool subTypeStatus);
    void sortSubType(SubType subType, SortOrder mainType) override;
    void cancelScanProcess() override;
    void updateScanStatus(bool status) override;

    bool windowShouldClose() override;

    // The store.
    void cancelScanAndStartNewScan();
    void clearAll();
    void removeAllFromDataSource();
    void updateFileCountAndSize(qint64 count);
    void insertElementToAllData(const QString &key);
    void checkSearchActiveAndReloadTableView(const GroupMap &groups);
    void showDuplicateStatusView();

    // Sub-types, sort and search.
    void sortSubTypes(SubType subType);
    void disableSubTypes();
    void disableSubTypeAndSortData(SortOrder sortType);
    void sortData(SortOrder sortType, const GroupMap &groups);
    void checkSortTypeAndSortData();
    const QStringList &checkSearchActiveAndGetData() const;
    void filterData();
    void applyFilterWithSearchQuery(const QString &query);
    void searchFieldDidStartSearching();
    void searchFieldDidEndSearching();
    void controlTextDidChange();
    void scrollToFirstRow();

    // Removal.
    bool removeFileAtPath(const QString &path, int row, const QString &key);
    void updateDictionaryDataForKey(const QString &key, const QStringList &filePaths,
                                    qint64 totalSize, const QString &filePath);
    void removeValuesForKeyFromDataSource(const QString &key);

    // Presentation.
    void setTotalDuplicateFilesCountLabel(const GroupMap &groups);
    void setTotalDuplicateFilesCountLabel(const QHash<QString, GroupRecord> &groups);
    void setTotalSizeOfDuplicate(qint64 bytes);
    void setBottomBarControls();
    void createThumbNailForPath(const QString &path, double width, double height);
    bool showQuitAlert(const QString &title, const QString &message);
    void showAlert(const QString &title, const QString &description);
    // Asks for the table to be redrawn; `appendedOnly` when rows were only added at the end.
    void reloadData(bool appendedOnly = false);
    int numberOfRowsInTableView() const;
    double heightOfRow(int row) const;

    // What the store holds, for the table and for inspection.
    bool scanRunning() const { return m_scanRunning; }
    bool scanStatus() const { return m_scanStatus; }
    bool searchActive() const { return m_searchActive; }
    bool subTypeActive() const { return m_subTypeActive; }
    const GroupMap &dictOfDupeFiles() const { return m_dictOfDupeFiles; }
    const QHash<QString, GroupRecord> &filteredDictData() const { return m_filteredDictData; }
    const QStringList &allData() const { return m_allData; }
    const QStringList &keysOfAll() const { return m_keysOfAll; }
    const QStringList &keysOfSubType() const { return m_keysOfSubType; }
    const QStringList &filteredData() const { return m_filteredData; }
    qint64 totaldupes() const { return m_totaldupes; }
    qint64 totalDupesSize() const { return m_totalDupesSize; }
    qsizetype index() const { return m_index; }
    std::optional<SortOrder> selectedSortType() const { return m_selectedSortType; }
    std::optional<SubType> selectedSubType() const { return m_selectedSubType; }
    std::optional<QUrl> selectedUrl() const { return m_selectedUrl; }
    // Requests to redraw the whole table so far; the redraw itself is joined up per frame.
    int reloadCount() const { return m_reloadCount; }
    BRDuplicateFinderClass *duplicateFinder() const;
    BRDuplicateFilePreviewViewController *previewDelegate() const;
    RowAnchoredPopover *popover() const;

    BRDuplicateSortViewController *sortViewController() const { return m_sortView; }
    BRDuplicateCancelViewController *cancelViewController() const { return m_cancelView; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildScreen();
    static void postReport(QPointer<BRDuplicateFilesViewController> self, quint64 generation,
                           const ScanReport &report);
    void applyReport(quint64 generation, const ScanReport &report);
    // What every end of a scan tells the application and the progress view.
    void scanEnded(int groupsHeld);
    void reloadRowForKey(const QString &key);
    void pollScanProgress();
    qsizetype rowOnScreen(const QString &key) const;
    // A list's records, position by position, so that passes over a sorted list need no
    // lookups; and the lower-cased starts of the names, made when a search first needs
    // them. Valid until the list or the store changes other than through patchRecord.
    struct ListRecords
    {
        std::vector<const GroupRecord *> records;
        std::vector<NamePrefix> prefixes;
        bool valid = false;
        quint64 version = 0; // changes whenever the records are made anew
    };
    ListRecords *listRecordsFor(const QStringList &list);
    void fillListRecords(const QStringList &list, ListRecords &target);
    void patchRecord(const QString &key, const GroupRecord *record);
    // Makes the name prefixes of a freshly sorted list on a worker, ahead of a search.
    void preparePrefixes(ListRecords &target);
    // The duplicate side's screen at `index`: 0 the start screen, 2 the status screen.
    QWidget *siblingScreen(int index) const;
    template <typename Groups> void countTotals(const Groups &groups);
    // The flat index of the store's groups, rebuilt when the store was replaced since.
    GroupLookup records();
    void prepareNameKeys();

    AlertPresenter &m_alerts;
    Workspace &m_workspace;
    ApplicationStatus *m_appDelegateTarget;
    ThumbnailLoader *m_thumbnails;
    QTimer *m_progressTimer;
    QTimer m_reloadTimer;
    bool m_reloadAppendsOnly = true;
    Timings m_timings;

    QLineEdit *m_searchField = nullptr;
    BRDuplicateTableView *m_duplicateTableView = nullptr;
    QLabel *m_selectedFolderImageView = nullptr;
    QLabel *m_selecteFolderNameLabel = nullptr;
    QLabel *m_totalFilesCountLabel = nullptr;
    QLabel *m_selectedFolderPathLabel = nullptr;
    QLabel *m_totalDupesSizeLabel = nullptr;
    DuplicateTableModel *m_model = nullptr;

    bool m_scanRunning = false;
    GroupMap m_dictOfDupeFiles;
    QHash<QString, GroupRecord> m_filteredDictData;
    QStringList m_allData;
    QSet<QString> m_allDataKeys; // membership of m_allData during a scan, so a report's
                                 // test is not a walk through the list
    bool m_allDataKeysValid = true;
    ListRecords m_allDataRecords;
    ListRecords m_subTypeRecords;
    ListRecords m_filteredRecords;
    quint64 m_listVersions = 0;
    QStringList m_filteredData;
    QStringList m_keysOfAll;
    QStringList m_keysOfSubType;
    bool m_searchActive = false;
    bool m_subTypeActive = false;
    bool m_scanStatus = false;
    qint64 m_totaldupes = 0;
    qsizetype m_index = 0;
    qint64 m_totalDupesSize = 0;
    std::optional<SortOrder> m_selectedSortType;
    std::optional<SubType> m_selectedSubType;
    std::optional<QUrl> m_selectedUrl;
    QPointer<RowAnchoredPopover> m_popover;
    ApplicationStatus *m_appDelegate = nullptr;
    std::shared_ptr<ScanSession> m_duplicateFinder;
    QPointer<BRDuplicateFilePreviewViewController> m_previewDelegate;
    BRDuplicateSortViewController *m_sortView = nullptr;
    BRDuplicateCancelViewController *m_cancelView = nullptr;
    BRDuplicateSortViewDelegate *m_sortViewDelegate = nullptr;
    BRDuplicateCancelViewDelegate *m_cancelViewDelegate = nullptr;
    BRDuplicateFilesMainViewDelegate *m_duplicateMainViewDelegate = nullptr;
    BRDuplicateSortAndCancelTabViewController *m_sortAndCancelTab = nullptr;
    BRDuplicateSortAndCancelDelegate *m_sortAndCancelTabViewDelegate = nullptr;

    SubTypeFilter m_subTypes;
    GroupIndex m_records;
    NameSortKeys m_nameKeys;
    std::atomic<quint64> m_scanGeneration{0}; // reports of older scans are dropped
    int m_reloadCount = 0;
};
