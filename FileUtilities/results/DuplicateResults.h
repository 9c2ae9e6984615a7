#pragma once

#include "BRDuplicateFinderClass.h"
#include "GroupIndex.h"
#include "GroupMap.h"
#include "NamePrefix.h"
#include "NameSortKeys.h"
#include "ScanReport.h"
#include "SortOrder.h"
#include "SubType.h"
#include "SubTypeFilter.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class ScanSession;

// The duplicate results, apart from any screen.
//
// It holds every group the scan reported, the three layers of keys that decide what the
// list shows (all groups in sort order, the groups of one sub-type, the search hits), the
// place where the next group goes, the totals and the running scan. Reports arrive from the
// scan thread and are applied on the main thread; a report from a scan that has since been
// cleared is dropped. The signals tell what changed. The list is announced at most once per
// event-loop pass, however many reports came in it.
class DuplicateResults : public QObject
{
    Q_OBJECT

public:
    // What the list shows: its groups, or the one row saying a search or a sub-type has none.
    enum class ListContent
    {
        Groups,
        NoSearchHits,
        NoGroupsOfSubType,
    };

    explicit DuplicateResults(QObject *parent = nullptr);
    ~DuplicateResults() override;

    // A scan begins: reports count as live until the final one, in arrival order.
    void prepareScan();
    // Walks `path` on a thread of its own and applies its reports.
    void startScan(const QString &path);
    // Any thread. Applies the report on the main thread, if the scan it belongs to (the
    // one of this moment) is still this store's then.
    void postReport(const ScanReport &report);
    // Drops every group, the lists and the totals, and stops the running scan, whose
    // reports still under way are then dropped. The search stays as it is.
    void clear();
    // The user stopped the scan: it counts as ended from now on, though its groups stay
    // until they are cleared.
    void markScanStopped() { m_scanStatus = true; }
    // How far the running walk has come; nothing when none runs.
    std::optional<BRDuplicateFinderClass::Progress> scanProgress() const;

    // Sorting with no order (the menu's placeholder) changes no list.
    void sortMainType(std::optional<SortOrder> sortType, bool subTypeStatus);
    void sortSubType(SubType subType, SortOrder mainType);
    // Builds the lists anew from the chosen sub-type or order.
    void checkSortTypeAndSortData();
    // An empty query ends the search. The first query under a sub-type searches it; a
    // later one searches every group, and ending the search brings the sub-type back.
    void search(const QString &query);

    // A copy was moved to the Trash: it leaves its group, and the totals lose its size.
    // A folder takes with it every path inside it, from every group. Gives the group's row
    // on screen, or -1.
    qsizetype removeCopy(const QString &key, const QString &path);
    // The same, without looking for the row: a run of many removals redraws all at once.
    void forgetCopy(const QString &key, const QString &path);
    // Shows the totals after removeCopy. Once the scan has ended they are counted anew;
    // during a scan only the reclaimable size changes, and the count waits for the
    // scan's next report.
    void recountAfterRemoval();
    // A copy went behind the program's back: it leaves its group as if removed here, the
    // group goes when no copy is left, and the lists are built anew.
    void dropVanishedCopy(const QString &key, const QString &path);
    // Tells the list that the group in `row` changed.
    void announceRowChange(int row);

    // Asks for the list to be announced; `appendedOnly` when rows were only added at the end.
    void reloadData(bool appendedOnly = false);

    const GroupMap &groups() const { return m_dictOfDupeFiles; }
    // False from the start of a scan until it ends, is stopped or cleared.
    bool scanStatus() const { return m_scanStatus; }
    // A walk started here has not sent its final report yet.
    bool walkRunning() const { return m_walkRunning; }
    bool searchActive() const { return m_searchActive; }
    bool subTypeActive() const { return m_subTypeActive; }
    const QStringList &allData() const { return m_allData; }
    const QStringList &keysOfAll() const { return m_keysOfAll; }
    const QStringList &keysOfSubType() const { return m_keysOfSubType; }
    const QStringList &filteredData() const { return m_filteredData; }
    // The keys the list shows: the search hits, else the sub-type's groups, else all.
    const QStringList &checkSearchActiveAndGetData() const;
    ListContent listContent() const;
    // The rows of the list; a placeholder is one row.
    int numberOfRows() const;
    // The row of a group on screen, or -1.
    qsizetype rowOnScreen(const QString &key) const;
    qint64 totaldupes() const { return m_totaldupes; }
    qint64 totalDupesSize() const { return m_totalDupesSize; }
    // What the totals show as reclaimable: as totalDupesSize, less the copies that are
    // only further names of a file listed already (hard links), which free nothing.
    qint64 reclaimableBytes() const { return m_reclaimableBytes; }
    qsizetype index() const { return m_index; }
    std::optional<SortOrder> selectedSortType() const { return m_selectedSortType; }
    std::optional<SubType> selectedSubType() const { return m_selectedSubType; }
    // Requests to announce the whole list so far; the announcing is joined up per pass.
    int reloadCount() const { return m_reloadCount; }
    BRDuplicateFinderClass *duplicateFinder() const;

Q_SIGNALS:
    // Since the last announcement the list only grew at its end.
    void rowsAppended();
    // The list changed otherwise: its order, its filter, its length.
    void listReset();
    // The group in `row` changed, not the list.
    void rowChanged(int row);
    // Groups changed somewhere in the list, not the list itself.
    void allRowsChanged();
    // The list is about to be built in a new order; it starts again at its first row.
    void aboutToSort();
    // The figures to show: copies in the groups listed, and what removing all but one
    // copy of each would free.
    void totalsChanged(qint64 duplicateCount, qint64 reclaimableBytes);
    // Only the reclaimable size changed.
    void reclaimableBytesChanged(qint64 reclaimableBytes);
    // A scan ended, was stopped or cleared; `groupsHeld` remain.
    void scanEnded(int groupsHeld);
    // The final report of a scan that found groups has been applied.
    void scanCompleted(qint64 duplicatesFound);
    // The scan ended without a group.
    void scanFoundNothing();

private:
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

    static void postReport(QPointer<DuplicateResults> self, quint64 generation,
                           const ScanReport &report);
    void applyReport(quint64 generation, const ScanReport &report);
    // Takes out of a report's groups what deletions made after it took away.
    void repairStaleReport(const ScanReport &report, GroupMap &groups,
                           qint64 &totalDupesSize) const;
    // The list and the header, when the throttle left reports unshown for a while.
    void refreshLiveList();
    // Every path inside `folder` leaves every group; groups left with none go.
    void dropPathsUnder(const QString &folder);
    void stopScan();
    void reloadRowForKey(const QString &key);
    void updateFileCountAndSize(qint64 count);
    // Keeps the bytes of a group's hard-linked copies up to date after it changed.
    void noteLinkedCopies(const QString &key);
    void checkSearchActiveAndReloadTableView();
    void removeAllFromDataSource();
    void sortSubTypes(SubType subType);
    void disableSubTypes();
    void disableSubTypeAndSortData(SortOrder sortType);
    void sortData(SortOrder sortType);
    void filterData();
    void applyFilterWithSearchQuery(const QString &query);
    void updateDictionaryDataForKey(const QString &key, const QStringList &filePaths,
                                    qint64 totalSize);
    void removeValuesForKeyFromDataSource(const QString &key);
    // Counts the list on screen and shows the figures.
    void countTotals();
    ListRecords *listRecordsFor(const QStringList &list);
    void fillListRecords(const QStringList &list, ListRecords &target);
    void patchRecord(const QString &key, const GroupRecord *record);
    // Makes the name prefixes of a freshly sorted list on a worker, ahead of a search.
    void preparePrefixes(ListRecords &target);
    // The flat index of the store's groups, rebuilt when the store was replaced since.
    GroupLookup records();
    void prepareNameKeys();

    QTimer m_reloadTimer;
    // While reports come in faster than the throttle shows them, the list and the header
    // still move every so often.
    QTimer m_liveRefreshTimer;
    bool m_liveRefreshList = false;
    bool m_liveRefreshAppendsOnly = true;
    qint64 m_liveRefreshCount = 0;
    // The deletions made while the scan runs, in order. Each is written into the finder,
    // which counts them too, and a report tells how many it had seen.
    struct Deletion
    {
        QString key;
        QStringList paths; // none: the whole group went
    };
    QList<Deletion> m_deletions;
    bool m_reloadAppendsOnly = true;
    int m_reloadCount = 0;

    std::shared_ptr<ScanSession> m_session;
    std::atomic<quint64> m_scanGeneration{0}; // reports of older scans are dropped
    bool m_walkRunning = false;
    bool m_scanStatus = true;

    GroupMap m_dictOfDupeFiles;
    QStringList m_allData;
    QSet<QString> m_allDataKeys; // membership of m_allData during a scan, so a report's
                                 // test is not a walk through the list
    bool m_allDataKeysValid = true;
    QStringList m_keysOfAll;
    QStringList m_keysOfSubType;
    QStringList m_filteredData;
    ListRecords m_allDataRecords;
    ListRecords m_subTypeRecords;
    ListRecords m_filteredRecords;
    quint64 m_listVersions = 0;
    QString m_searchQuery;
    bool m_searchActive = false;
    bool m_subTypeActive = false;
    qsizetype m_index = 0;
    qint64 m_totaldupes = 0;
    qint64 m_totalDupesSize = 0;
    qint64 m_reclaimableBytes = 0;
    // Per group, the bytes its hard-linked copies add to totalDupesSize; few groups have any.
    QHash<QString, qint64> m_linkedBytes;
    qint64 m_linkedBytesTotal = 0;
    std::optional<SortOrder> m_selectedSortType;
    std::optional<SubType> m_selectedSubType;

    SubTypeFilter m_subTypes;
    GroupIndex m_records;
    NameSortKeys m_nameKeys;
};
