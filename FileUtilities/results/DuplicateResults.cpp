#include "DuplicateResults.h"

#include "FileTypeDatabase.h"
#include "GroupOrdering.h"
#include "HardLinks.h"
#include "ResultsLog.h"
#include "ScanSession.h"
#include "WorkerTask.h"

#include <QCoreApplication>

namespace {

constexpr int liveRefreshMs = 300;

} // namespace

DuplicateResults::DuplicateResults(QObject *parent) : QObject(parent)
{
    m_liveRefreshTimer.setSingleShot(true);
    m_liveRefreshTimer.setInterval(liveRefreshMs);
    connect(&m_liveRefreshTimer, &QTimer::timeout, this, &DuplicateResults::refreshLiveList);
    m_reloadTimer.setSingleShot(true);
    m_reloadTimer.setInterval(0);
    connect(&m_reloadTimer, &QTimer::timeout, this, [this] {
        const bool appendedOnly = m_reloadAppendsOnly;
        m_reloadAppendsOnly = true;
        if (appendedOnly)
            Q_EMIT rowsAppended();
        else
            Q_EMIT listReset();
    });
}

DuplicateResults::~DuplicateResults()
{
    // A walk that outlives its store stops at its next entry; its reports find no one.
    ++m_scanGeneration;
    if (m_session)
        m_session->finder().setCancelActive(true);
}

// ---------------------------------------------------------------------------------------
// Scans and their reports

void DuplicateResults::prepareScan()
{
    m_deletions.clear();
    m_scanStatus = false;
    m_selectedSortType = SortOrder::All;
}

void DuplicateResults::startScan(const QString &path)
{
    m_walkRunning = true;
    const quint64 generation = ++m_scanGeneration;
    QPointer<DuplicateResults> self(this);
    m_session = ScanSession::start(path, [self, generation](const ScanReport &report) {
        // On the scan thread: the store is the main thread's alone.
        postReport(self, generation, report);
    });
}

void DuplicateResults::postReport(const ScanReport &report)
{
    postReport(this, m_scanGeneration, report);
}

void DuplicateResults::postReport(QPointer<DuplicateResults> self, quint64 generation,
                                  const ScanReport &report)
{
    // Any thread. The application object outlives the store, which may be gone by then.
    QMetaObject::invokeMethod(
        qApp,
        [self, generation, report] {
            if (self)
                self->applyReport(generation, report);
        },
        Qt::QueuedConnection);
}

void DuplicateResults::applyReport(quint64 generation, const ScanReport &report)
{
    if (generation != m_scanGeneration) {
        qCDebug(resultsLog) << "dropped a report of a scan that was stopped or cleared since";
        return;
    }
    m_totalDupesSize = report.totalDupesSize;

    if (report.completeStatus && !report.groups.isEmpty()) {
        m_liveRefreshTimer.stop();
        m_walkRunning = false;
        stopScan();
        m_scanStatus = true;
        Q_EMIT scanEnded(static_cast<int>(m_dictOfDupeFiles.size()));
        if (m_searchActive)
            filterData();
        if (m_selectedSortType)
            disableSubTypeAndSortData(*m_selectedSortType);
        prepareNameKeys();
        Q_EMIT scanCompleted(report.totalDuplicates);
        return;
    }

    if (report.groups.isEmpty()) {
        m_walkRunning = false;
        m_scanStatus = true;
        Q_EMIT scanEnded(0);
        Q_EMIT scanFoundNothing();
        return;
    }

    if (report.completeStatus)
        return;
    const QString &key = report.key;
    const qint64 totalDuplicates = report.totalDuplicates;
    if (report.deletionsSeen < static_cast<quint64>(m_deletions.size())) {
        // Sent before a deletion arrived at the finder: what the user removed since must
        // not come back.
        GroupMap groups = report.groups;
        repairStaleReport(report, groups, m_totalDupesSize);
        m_dictOfDupeFiles = groups;
    } else {
        m_dictOfDupeFiles = report.groups;
    }
    noteLinkedCopies(key);
    if (!m_dictOfDupeFiles.find(key)) {
        m_allDataRecords.valid = false;
        return; // the group of this report is gone already
    }
    bool listShown = true;
    bool countShown = false;
    m_allDataRecords.valid = false;
    if (!m_allDataKeysValid) {
        m_allDataKeys = QSet<QString>(m_allData.cbegin(), m_allData.cend());
        m_allDataKeysValid = true;
    }
    if (m_allDataKeys.contains(key)) {
        reloadRowForKey(key); // a further copy of a group already listed
    } else {
        const qsizetype at = qBound<qsizetype>(0, m_index, m_allData.size());
        m_allData.insert(at, key);
        m_allDataKeys.insert(key);
        m_keysOfAll.insert(qBound<qsizetype>(0, m_index, m_keysOfAll.size()), key);
        ++m_index;
        // The list grows at every report, but is redrawn for each of the first ten
        // duplicates and then once per ten, so a large scan never floods the screen.
        if (totalDuplicates < 10) {
            reloadData(at == m_allData.size() - 1);
            updateFileCountAndSize(totalDuplicates);
            countShown = true;
        } else if (totalDuplicates % 10 == 0) {
            reloadData(at == m_allData.size() - 1);
        } else {
            listShown = false;
            m_liveRefreshAppendsOnly = m_liveRefreshAppendsOnly && at == m_allData.size() - 1;
        }
    }
    if (!m_searchActive && totalDuplicates % 10 == 0) {
        updateFileCountAndSize(totalDuplicates);
        countShown = true;
    }
    // The throttle above stays; what it holds back is shown within a moment all the same.
    if (!listShown || (!countShown && !m_searchActive)) {
        m_liveRefreshList = m_liveRefreshList || !listShown;
        m_liveRefreshCount = totalDuplicates;
        if (!m_liveRefreshTimer.isActive())
            m_liveRefreshTimer.start();
    }
}

void DuplicateResults::refreshLiveList()
{
    if (m_scanStatus)
        return;
    if (m_liveRefreshList)
        reloadData(m_liveRefreshAppendsOnly);
    if (!m_searchActive)
        updateFileCountAndSize(m_liveRefreshCount);
    m_liveRefreshList = false;
    m_liveRefreshAppendsOnly = true;
}

void DuplicateResults::repairStaleReport(const ScanReport &report, GroupMap &groups,
                                         qint64 &totalDupesSize) const
{
    totalDupesSize = report.totalDupesSize;
    for (auto deletion = m_deletions.cbegin() + static_cast<qsizetype>(report.deletionsSeen);
         deletion != m_deletions.cend(); ++deletion) {
        const GroupRecord *found = groups.find(deletion->key);
        if (!found)
            continue;
        if (deletion->paths.isEmpty()) {
            totalDupesSize -= found->totalSize - found->fileSize;
            groups.remove(deletion->key);
            continue;
        }
        GroupRecord record = *found;
        for (const QString &path : deletion->paths) {
            if (record.filePath.removeAll(path) > 0) {
                record.totalSize -= record.fileSize;
                totalDupesSize -= record.fileSize;
            }
        }
        groups.insert(deletion->key, std::move(record));
    }
}

void DuplicateResults::stopScan()
{
    if (m_session)
        m_session->finder().setCancelActive(true);
    m_session.reset();
}

void DuplicateResults::clear()
{
    m_scanStatus = true;
    m_walkRunning = false;
    m_liveRefreshTimer.stop();
    m_liveRefreshList = false;
    m_liveRefreshAppendsOnly = true;
    m_deletions.clear();
    ++m_scanGeneration;
    if (m_session)
        m_session->finder().setCancelActive(true);
    Q_EMIT scanEnded(0);
    removeAllFromDataSource();
    disableSubTypes();
    m_index = 0;
    m_totaldupes = 0;
    m_totalDupesSize = 0;
    m_linkedBytes.clear();
    m_linkedBytesTotal = 0;
    m_reclaimableBytes = 0;
    m_session.reset();
    m_selectedSortType.reset();
    m_nameKeys = NameSortKeys();
    Q_EMIT totalsChanged(0, 0);
}

std::optional<BRDuplicateFinderClass::Progress> DuplicateResults::scanProgress() const
{
    if (!m_session)
        return std::nullopt;
    return m_session->finder().progress();
}

BRDuplicateFinderClass *DuplicateResults::duplicateFinder() const
{
    return m_session ? &m_session->finder() : nullptr;
}

GroupLookup DuplicateResults::records()
{
    if (!m_records.isBuiltFor(m_dictOfDupeFiles))
        m_records.rebuild(m_dictOfDupeFiles);
    return m_records.lookup();
}

void DuplicateResults::prepareNameKeys()
{
    // The first sort by name would spend most of its time making collation keys; they
    // are made here, while the user reads the results, and kept.
    const GroupMap groups = m_dictOfDupeFiles;
    const quint64 generation = m_scanGeneration;
    runOnWorker(
        this,
        [groups] {
            QStringList names;
            names.reserve(groups.size());
            groups.forEach([&names](const QString &, const GroupRecord &record) {
                names.append(record.fileName);
            });
            // Handed over by pointer: copying a hundred thousand keys would cost the main
            // thread what making them on a worker saved.
            return std::make_shared<NameSortKeys>(NameSortKeys::madeFor(names));
        },
        [this, generation](const std::shared_ptr<NameSortKeys> &keys) {
            if (generation == m_scanGeneration && keys->size() > m_nameKeys.size())
                m_nameKeys = std::move(*keys);
        });
}

void DuplicateResults::reloadRowForKey(const QString &key)
{
    if (m_searchActive || m_subTypeActive) {
        const qsizetype row = rowOnScreen(key);
        if (row >= 0)
            Q_EMIT rowChanged(static_cast<int>(row));
        return;
    }
    // During a scan the list is long and the row is near its end; a redraw of what is
    // visible costs less than finding it.
    Q_EMIT allRowsChanged();
}

void DuplicateResults::updateFileCountAndSize(qint64 count)
{
    m_reclaimableBytes = m_totalDupesSize - m_linkedBytesTotal;
    Q_EMIT totalsChanged(count, m_reclaimableBytes);
}

void DuplicateResults::noteLinkedCopies(const QString &key)
{
    const GroupRecord *record = m_dictOfDupeFiles.find(key);
    const qint64 linked =
        record ? record->totalSize - record->fileSize - HardLinks::reclaimableBytes(*record) : 0;
    const qint64 before = m_linkedBytes.value(key, 0);
    if (linked == before)
        return;
    m_linkedBytesTotal += linked - before;
    if (linked == 0)
        m_linkedBytes.remove(key);
    else
        m_linkedBytes.insert(key, linked);
}

void DuplicateResults::checkSearchActiveAndReloadTableView()
{
    if (m_searchActive)
        filterData();
    else
        countTotals();
    reloadData();
}

void DuplicateResults::removeAllFromDataSource()
{
    m_allData.clear();
    m_allDataKeys.clear();
    m_allDataKeysValid = true;
    m_allDataRecords = ListRecords();
    m_filteredRecords = ListRecords();
    m_keysOfAll.clear();
    m_filteredData.clear();
    m_dictOfDupeFiles = GroupMap();
    m_records.clear();
}

// ---------------------------------------------------------------------------------------
// Sub-types, sort and search

void DuplicateResults::sortSubTypes(SubType subType)
{
    m_index = 0;
    m_subTypeActive = true;
    m_selectedSubType = subType;
    ListRecords *all = listRecordsFor(m_allData);
    m_keysOfSubType.clear();
    m_subTypeRecords = ListRecords();
    if (SubTypeFilter::targetFor(subType)) {
        for (qsizetype position = 0; position < m_allData.size(); ++position) {
            const GroupRecord *record = all->records[static_cast<size_t>(position)];
            if (!record || !m_subTypes.belongs(subType, record->fileUTI))
                continue;
            m_keysOfSubType.insert(m_index++, m_allData.at(position));
            m_subTypeRecords.records.push_back(record);
        }
    }
    m_subTypeRecords.valid = true;
    preparePrefixes(m_subTypeRecords);
    m_index = m_keysOfSubType.size();
    // The totals then count the subset: the list on screen is the subset, and its records
    // are those of the store.
    checkSearchActiveAndReloadTableView();
}

void DuplicateResults::disableSubTypes()
{
    m_selectedSubType.reset();
    m_subTypeActive = false;
    m_keysOfSubType.clear();
    m_subTypeRecords = ListRecords();
}

void DuplicateResults::disableSubTypeAndSortData(SortOrder sortType)
{
    if (sortType == SortOrder::All)
        disableSubTypes();
    sortData(sortType);
}

void DuplicateResults::sortMainType(std::optional<SortOrder> sortType, bool subTypeStatus)
{
    m_subTypeActive = subTypeStatus;
    m_selectedSortType = sortType;
    if (!sortType) {
        reloadData();
        return;
    }
    // "All" from the sort menu is the order of arrival, not a sub-type: a chosen sub-type
    // stays chosen, as its button still shows.
    if (subTypeStatus) {
        sortData(*sortType);
        return;
    }
    disableSubTypeAndSortData(*sortType);
}

void DuplicateResults::sortSubType(SubType subType, SortOrder mainType)
{
    m_subTypeActive = true;
    m_selectedSubType = subType;
    m_selectedSortType = mainType;
    sortData(mainType);
}

void DuplicateResults::sortData(SortOrder sortType)
{
    m_index = 0;
    m_allData.clear();
    // Membership is asked only while reports stream in; it is rebuilt if that happens.
    m_allDataKeys.clear();
    m_allDataKeysValid = false;
    m_allDataRecords = ListRecords();
    Q_EMIT aboutToSort();
    m_selectedSortType = sortType;
    m_allData = GroupOrdering::sortedKeys(sortType, m_keysOfAll, records(), m_nameKeys,
                                          &m_allDataRecords.records);
    m_allDataRecords.valid = true;
    preparePrefixes(m_allDataRecords);
    m_index = m_allData.size();
    if (m_subTypeActive && m_selectedSubType)
        sortSubTypes(*m_selectedSubType);
    checkSearchActiveAndReloadTableView();
}

DuplicateResults::ListRecords *DuplicateResults::listRecordsFor(const QStringList &list)
{
    ListRecords *target = &list == &m_allData         ? &m_allDataRecords
                          : &list == &m_keysOfSubType ? &m_subTypeRecords
                          : &list == &m_filteredData  ? &m_filteredRecords
                                                      : nullptr;
    if (target && !target->valid)
        fillListRecords(list, *target);
    return target;
}

void DuplicateResults::fillListRecords(const QStringList &list, ListRecords &target)
{
    const GroupLookup find = records();
    target = ListRecords();
    target.records.reserve(static_cast<size_t>(list.size()));
    for (const QString &key : list)
        target.records.push_back(find(key));
    target.valid = true;
}

void DuplicateResults::preparePrefixes(ListRecords &target)
{
    target.version = ++m_listVersions;
    // The snapshot keeps every record alive while the worker reads it.
    const GroupMap snapshot = m_dictOfDupeFiles;
    const std::vector<const GroupRecord *> records = target.records;
    const quint64 version = target.version;
    ListRecords *where = &target;
    runOnWorker(
        this,
        [snapshot, records] {
            std::vector<NamePrefix> prefixes;
            prefixes.reserve(records.size());
            for (const GroupRecord *record : records)
                prefixes.push_back(record ? NamePrefix::of(record->fileName) : NamePrefix());
            return prefixes;
        },
        [where, version](const std::vector<NamePrefix> &prefixes) {
            if (where->valid && where->version == version && where->prefixes.empty())
                where->prefixes = prefixes;
        });
}

void DuplicateResults::patchRecord(const QString &key, const GroupRecord *record)
{
    for (auto [list, target] :
         {std::pair{&m_allData, &m_allDataRecords}, std::pair{&m_keysOfSubType, &m_subTypeRecords},
          std::pair{&m_filteredData, &m_filteredRecords}}) {
        if (!target->valid)
            continue;
        const qsizetype position = list->indexOf(key);
        if (position >= 0)
            target->records[static_cast<size_t>(position)] = record;
    }
}

void DuplicateResults::checkSortTypeAndSortData()
{
    if (m_selectedSubType)
        sortSubTypes(*m_selectedSubType);
    else if (m_selectedSortType)
        disableSubTypeAndSortData(*m_selectedSortType);
}

const QStringList &DuplicateResults::checkSearchActiveAndGetData() const
{
    if (m_searchActive)
        return m_filteredData;
    if (m_subTypeActive)
        return m_keysOfSubType;
    return m_allData;
}

void DuplicateResults::filterData()
{
    applyFilterWithSearchQuery(m_searchQuery);
}

void DuplicateResults::applyFilterWithSearchQuery(const QString &query)
{
    // The first keystroke in a sub-type searches it; the kept sub-type name brings it back
    // when the search is emptied.
    const QStringList &source = m_subTypeActive ? m_keysOfSubType : m_allData;
    ListRecords &sourceRecords = *listRecordsFor(source);
    m_subTypeActive = false;
    if (sourceRecords.prefixes.size() != sourceRecords.records.size()) {
        sourceRecords.prefixes.clear();
        sourceRecords.prefixes.reserve(sourceRecords.records.size());
        for (const GroupRecord *record : sourceRecords.records)
            sourceRecords.prefixes.push_back(record ? NamePrefix::of(record->fileName)
                                                    : NamePrefix());
    }
    m_filteredData.clear();
    m_filteredRecords = ListRecords();
    m_filteredRecords.valid = true;
    for (const size_t position :
         GroupOrdering::searchHits(query, sourceRecords.records, sourceRecords.prefixes)) {
        m_filteredData.append(source.at(static_cast<qsizetype>(position)));
        m_filteredRecords.records.push_back(sourceRecords.records[position]);
    }
    m_index = m_filteredData.size();
    countTotals();
}

void DuplicateResults::search(const QString &query)
{
    m_searchQuery = query;
    if (query.isEmpty()) {
        m_searchActive = false;
        checkSortTypeAndSortData();
        reloadData(); // the placeholder of an empty search must go even with nothing sorted
        return;
    }
    m_searchActive = true;
    applyFilterWithSearchQuery(query);
    reloadData();
}

// ---------------------------------------------------------------------------------------
// Removal

qsizetype DuplicateResults::removeCopy(const QString &key, const QString &path)
{
    if (!m_dictOfDupeFiles.find(key))
        return -1;
    forgetCopy(key, path);
    return rowOnScreen(key);
}

void DuplicateResults::forgetCopy(const QString &key, const QString &path)
{
    const GroupRecord *record = m_dictOfDupeFiles.find(key);
    if (!record)
        return;
    const std::optional<FileStamp> stamp = stampOf(record->fileStamps, path);
    const bool folder =
        stamp ? stamp->isFolder : record->fileType == FileTypeDatabase::folderDescription();
    QStringList remaining = record->filePath;
    remaining.removeAll(path);
    updateDictionaryDataForKey(key, remaining, record->totalSize - record->fileSize);
    if (folder)
        dropPathsUnder(path);
}

void DuplicateResults::dropPathsUnder(const QString &folder)
{
    const QString inside = folder.endsWith(u'/') ? folder : folder + u'/';
    QList<std::pair<QString, QStringList>> changed;
    m_dictOfDupeFiles.forEach([&](const QString &key, const GroupRecord &record) {
        if (std::none_of(record.filePath.cbegin(), record.filePath.cend(),
                         [&inside](const QString &path) { return path.startsWith(inside); }))
            return;
        QStringList remaining;
        for (const QString &path : record.filePath) {
            if (!path.startsWith(inside))
                remaining.append(path);
        }
        changed.append({key, remaining});
    });
    if (changed.isEmpty())
        return;
    for (const auto &[key, remaining] : std::as_const(changed)) {
        const GroupRecord *record = m_dictOfDupeFiles.find(key);
        if (!record)
            continue;
        const qint64 gone = record->filePath.size() - remaining.size();
        if (remaining.isEmpty())
            removeValuesForKeyFromDataSource(key);
        else
            updateDictionaryDataForKey(key, remaining, record->totalSize - gone * record->fileSize);
    }
    qCDebug(resultsLog).noquote() << changed.size() << "groups lost copies inside" << folder;
    checkSortTypeAndSortData();
}

void DuplicateResults::recountAfterRemoval()
{
    if (m_scanStatus) {
        countTotals();
    } else {
        m_reclaimableBytes = m_totalDupesSize - m_linkedBytesTotal;
        Q_EMIT reclaimableBytesChanged(m_reclaimableBytes);
    }
}

void DuplicateResults::dropVanishedCopy(const QString &key, const QString &path)
{
    const GroupRecord *record = m_dictOfDupeFiles.find(key);
    if (!record)
        return;
    QStringList remaining = record->filePath;
    remaining.removeAll(path);
    if (remaining.isEmpty())
        removeValuesForKeyFromDataSource(key);
    else
        updateDictionaryDataForKey(key, remaining, record->totalSize - record->fileSize);
    checkSortTypeAndSortData();
}

void DuplicateResults::announceRowChange(int row)
{
    Q_EMIT rowChanged(row);
}

qsizetype DuplicateResults::rowOnScreen(const QString &key) const
{
    return checkSearchActiveAndGetData().indexOf(key);
}

void DuplicateResults::updateDictionaryDataForKey(const QString &key, const QStringList &filePaths,
                                                  qint64 totalSize)
{
    const GroupRecord *found = m_dictOfDupeFiles.find(key);
    if (!found)
        return;
    GroupRecord record = *found;
    QStringList removed;
    for (const QString &path : record.filePath) {
        if (!filePaths.contains(path))
            removed.append(path);
    }
    record.filePath = filePaths;
    record.totalSize = totalSize;
    const qint64 fileSize = record.fileSize;
    const QString fileType = record.fileType;
    const QString fileName = record.fileName;
    const QString oldKey = record.oldKey;
    const bool indexed = m_records.isBuiltFor(m_dictOfDupeFiles);
    m_dictOfDupeFiles.insert(key, std::move(record));
    if (indexed)
        m_records.replace(key, m_dictOfDupeFiles);
    patchRecord(key, m_dictOfDupeFiles.find(key));
    noteLinkedCopies(key);
    m_totalDupesSize -= fileSize * std::max<qsizetype>(1, removed.size());
    // A running scan goes on from what the user left: a later copy joins the smaller group.
    if (!m_scanStatus)
        m_deletions.append({key, removed});
    if (m_session) {
        m_session->finder().applyDeletion(m_totalDupesSize, m_dictOfDupeFiles, fileSize, fileType,
                                          fileName, filePaths, oldKey);
    }
}

void DuplicateResults::removeValuesForKeyFromDataSource(const QString &key)
{
    if (!m_scanStatus)
        m_deletions.append({key, {}});
    if (m_session)
        m_session->finder().removeGroup(key);
    const bool indexed = m_records.isBuiltFor(m_dictOfDupeFiles);
    patchRecord(key, nullptr);
    m_dictOfDupeFiles.remove(key);
    noteLinkedCopies(key);
    if (indexed)
        m_records.remove(key, m_dictOfDupeFiles);
    m_keysOfAll.removeAll(key);
    if (const qsizetype position = m_keysOfSubType.indexOf(key); position >= 0) {
        m_keysOfSubType.removeAt(position);
        if (m_subTypeRecords.valid) {
            m_subTypeRecords.records.erase(m_subTypeRecords.records.begin() + position);
            if (m_subTypeRecords.prefixes.size() > static_cast<size_t>(position))
                m_subTypeRecords.prefixes.erase(m_subTypeRecords.prefixes.begin() + position);
        }
    }
}

// ---------------------------------------------------------------------------------------
// What the list shows

DuplicateResults::ListContent DuplicateResults::listContent() const
{
    if (m_searchActive && m_filteredData.isEmpty())
        return ListContent::NoSearchHits;
    if (m_subTypeActive && m_keysOfSubType.isEmpty())
        return ListContent::NoGroupsOfSubType;
    return ListContent::Groups;
}

int DuplicateResults::numberOfRows() const
{
    if (listContent() != ListContent::Groups)
        return 1;
    return static_cast<int>(checkSearchActiveAndGetData().size());
}

void DuplicateResults::countTotals()
{
    m_totaldupes = 0;
    m_totalDupesSize = 0;
    m_reclaimableBytes = 0;
    // The list's records, in one pass without lookups.
    for (const GroupRecord *record : listRecordsFor(checkSearchActiveAndGetData())->records) {
        if (!record)
            continue;
        m_totaldupes += record->filePath.size();
        // Deleting all but one copy of each group frees this much; a second name of one
        // file frees nothing.
        m_totalDupesSize += record->totalSize - record->fileSize;
        m_reclaimableBytes += HardLinks::reclaimableBytes(*record);
    }
    Q_EMIT totalsChanged(m_totaldupes, m_reclaimableBytes);
}

void DuplicateResults::reloadData(bool appendedOnly)
{
    ++m_reloadCount;
    m_reloadAppendsOnly = m_reloadAppendsOnly && appendedOnly;
    // Many reports can arrive between two frames; one reload serves them all.
    if (!m_reloadTimer.isActive())
        m_reloadTimer.start();
}
