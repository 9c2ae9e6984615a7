#include "BRDuplicateFilesViewController.h"

#include "AlertPresenter.h"
#include "ApplicationStatus.h"
#include "BRColorHelper.h"
#include "BRDuplicateCancelViewController.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesMainViewDelegate.h"
#include "BRDuplicateSortAndCancelTabViewController.h"
#include "BRDuplicateSortViewController.h"
#include "BRDuplicateTableView.h"
#include "BRDuplicateTableViewCell.h"
#include "BRObjectClass.h"
#include "ByteCountFormatter.h"
#include "DuplicateTableModel.h"
#include "GroupOrdering.h"
#include "RowAnchoredPopover.h"
#include "ScanSession.h"
#include "ThumbnailLoader.h"
#include "ViewFader.h"
#include "Workspace.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QtConcurrent/QtConcurrentRun>

#include <memory>

#include <sys/stat.h>

namespace {

bool fileExistsAtPath(const QString &path)
{
    // The entry itself, not what a link points to: a dangling link still exists.
    struct stat info
    {
    };
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0;
}

QLabel *makeLabel(const QString &objectName, int pixelSize, QFont::Weight weight,
                  const QColor &color, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    QFont font(QStringLiteral("Helvetica Neue"));
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    return label;
}

} // namespace

BRDuplicateFilesViewController::BRDuplicateFilesViewController(AlertPresenter &alerts,
                                                               Workspace &workspace,
                                                               ApplicationStatus *appDelegate,
                                                               QWidget *parent)
    : QWidget(parent), m_alerts(alerts), m_workspace(workspace), m_appDelegateTarget(appDelegate),
      m_thumbnails(new ThumbnailLoader(this)), m_progressTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("BRDuplicateFilesViewController"));
    buildScreen();
    connect(m_progressTimer, &QTimer::timeout, this,
            &BRDuplicateFilesViewController::pollScanProgress);
}

BRDuplicateFilesViewController::~BRDuplicateFilesViewController()
{
    // A walk that outlives its screen stops at its next entry; its reports find no one.
    ++m_scanGeneration;
    if (m_duplicateFinder)
        m_duplicateFinder->finder().setCancelActive(true);
    if (auto *host = dynamic_cast<WindowDelegateHost *>(window());
        host && host->windowDelegate() == this)
        host->setWindowDelegate(nullptr);
}

void BRDuplicateFilesViewController::buildScreen()
{
    // The folder header: picture, name and path of the scanned folder, the totals, search.
    auto *header = new QWidget(this);
    header->setObjectName(QStringLiteral("folderHeader"));
    header->setAutoFillBackground(true);
    QPalette headerPalette = header->palette();
    headerPalette.setColor(QPalette::Window, BRColorHelper::color(246, 247, 249, 1.0));
    header->setPalette(headerPalette);

    m_selectedFolderImageView = new QLabel(header);
    m_selectedFolderImageView->setObjectName(QStringLiteral("selectedFolderImageView"));
    m_selectedFolderImageView->setFixedSize(36, 36);
    m_selectedFolderImageView->setAlignment(Qt::AlignCenter);
    const QColor dark = BRColorHelper::color(38, 44, 56, 1.0);
    const QColor grey = BRColorHelper::color(0, 0, 0, 0.5);
    m_selecteFolderNameLabel =
        makeLabel(QStringLiteral("selecteFolderNameLabel"), 16, QFont::DemiBold, dark, header);
    m_selectedFolderPathLabel =
        makeLabel(QStringLiteral("selectedFolderPathLabel"), 12, QFont::Normal, grey, header);
    m_selectedFolderPathLabel->setMinimumWidth(80);
    m_selectedFolderPathLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_totalFilesCountLabel =
        makeLabel(QStringLiteral("totalFilesCountLabel"), 20, QFont::DemiBold, dark, header);
    m_totalDupesSizeLabel =
        makeLabel(QStringLiteral("totalDupesSizeLabel"), 20, QFont::DemiBold, dark, header);
    m_totalFilesCountLabel->setText(QStringLiteral("0"));
    m_totalDupesSizeLabel->setText(ByteCountFormatter::binary(0));

    auto *folderText = new QVBoxLayout;
    folderText->setSpacing(2);
    folderText->addWidget(m_selecteFolderNameLabel);
    folderText->addWidget(m_selectedFolderPathLabel);
    const auto totalColumn = [&](QLabel *value, const QString &caption) {
        auto *column = new QVBoxLayout;
        column->setSpacing(0);
        column->addWidget(value, 0, Qt::AlignRight);
        auto *captionLabel = makeLabel(QString(), 11, QFont::Normal, grey, header);
        captionLabel->setText(caption);
        column->addWidget(captionLabel, 0, Qt::AlignRight);
        return column;
    };

    m_searchField = new QLineEdit(header);
    m_searchField->setObjectName(QStringLiteral("searchField"));
    m_searchField->setPlaceholderText(QStringLiteral("Search by name"));
    m_searchField->setClearButtonEnabled(true);
    m_searchField->setFixedWidth(220);
    m_searchField->addAction(QIcon::fromTheme(QStringLiteral("edit-find")),
                             QLineEdit::LeadingPosition);
    m_searchField->setStyleSheet(
        QStringLiteral("QLineEdit { border: 1px solid rgba(0,0,0,0.15); border-radius: 14px;"
                       " padding: 4px 8px; background: white; min-height: 20px; }"));
    connect(m_searchField, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (text.isEmpty())
            searchFieldDidEndSearching();
        else if (!m_searchActive)
            searchFieldDidStartSearching();
        controlTextDidChange();
    });

    auto *headerLayout = new QHBoxLayout(header);
    headerLayout->setContentsMargins(24, 14, 24, 14);
    headerLayout->setSpacing(12);
    headerLayout->addWidget(m_selectedFolderImageView);
    headerLayout->addLayout(folderText, 1);
    headerLayout->addLayout(totalColumn(m_totalFilesCountLabel, QStringLiteral("Duplicate files")));
    headerLayout->addSpacing(12);
    headerLayout->addLayout(totalColumn(m_totalDupesSizeLabel, QStringLiteral("Reclaimable")));
    headerLayout->addSpacing(20);
    headerLayout->addWidget(m_searchField);

    m_model = new DuplicateTableModel(*this, this);
    m_duplicateTableView = new BRDuplicateTableView(this);
    m_duplicateTableView->setObjectName(QStringLiteral("duplicateTableView"));
    m_duplicateTableView->setModel(m_model);
    m_duplicateTableView->setItemDelegate(
        new BRDuplicateTableViewCell(*m_thumbnails, m_duplicateTableView));
    m_duplicateTableView->setDuplicateDelegate(this);
    connect(m_thumbnails, &ThumbnailLoader::imageReady, m_duplicateTableView->viewport(),
            qOverload<>(&QWidget::update));

    // The bar under the list, and the progress view in its place while a scan runs.
    m_sortView = new BRDuplicateSortViewController;
    m_cancelView = new BRDuplicateCancelViewController;
    m_sortAndCancelTab =
        new BRDuplicateSortAndCancelTabViewController(m_sortView, m_cancelView, this);
    m_sortAndCancelTabViewDelegate = m_sortAndCancelTab;
    m_sortView->setDuplicateFileViewDelegate(this);
    m_sortViewDelegate = m_sortView;
    m_cancelView->setDuplicateFileViewDelegate(this);
    m_cancelViewDelegate = m_cancelView;

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addWidget(m_duplicateTableView, 1);
    layout->addWidget(m_sortAndCancelTab);

    m_reloadTimer.setSingleShot(true);
    m_reloadTimer.setInterval(0);
    connect(&m_reloadTimer, &QTimer::timeout, this, [this] {
        m_model->reload(m_reloadAppendsOnly);
        m_reloadAppendsOnly = true;
    });
}

void BRDuplicateFilesViewController::setDuplicateMainViewDelegate(
    BRDuplicateFilesMainViewDelegate *delegate)
{
    m_duplicateMainViewDelegate = delegate;
}

BRDuplicateFinderClass *BRDuplicateFilesViewController::duplicateFinder() const
{
    return m_duplicateFinder ? &m_duplicateFinder->finder() : nullptr;
}

BRDuplicateFilePreviewViewController *BRDuplicateFilesViewController::previewDelegate() const
{
    return m_previewDelegate;
}

RowAnchoredPopover *BRDuplicateFilesViewController::popover() const
{
    return m_popover;
}

void BRDuplicateFilesViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_searchField->setFocus();
    // While this screen is up, closing the window asks what it would lose.
    if (auto *host = dynamic_cast<WindowDelegateHost *>(window()))
        host->setWindowDelegate(this);
}

// ---------------------------------------------------------------------------------------
// Scans and their reports

void BRDuplicateFilesViewController::startScanProcess(const std::optional<QUrl> &folderUrl)
{
    if (m_duplicateMainViewDelegate) {
        m_duplicateMainViewDelegate->selectDuplicateTabViewAtIndex(1);
        m_duplicateMainViewDelegate->updateMainTabViewStatus(true);
    }
    m_appDelegate = m_appDelegateTarget;
    if (m_appDelegate)
        m_appDelegate->duplicateScanStatus = true;
    m_scanStatus = false;
    if (m_sortAndCancelTabViewDelegate)
        m_sortAndCancelTabViewDelegate->selectTabAtIndex(1);
    m_selectedSortType = SortOrder::All;
    if (m_sortViewDelegate)
        m_sortViewDelegate->enableSortType(SubType::All);
    m_selectedUrl = folderUrl;
    if (!folderUrl || folderUrl->path().isEmpty())
        return;
    setBottomBarControls();
    m_scanRunning = true;

    const quint64 generation = ++m_scanGeneration;
    QPointer<BRDuplicateFilesViewController> self(this);
    m_duplicateFinder = ScanSession::start(
        folderUrl->toLocalFile().isEmpty() ? folderUrl->path() : folderUrl->toLocalFile(),
        [self, generation](const ScanReport &report) {
            // On the scan thread: the store is the main thread's alone.
            postReport(self, generation, report);
        });
    m_progressTimer->start(m_timings.progressPollMs);
    pollScanProgress();
}

void BRDuplicateFilesViewController::updateDuplicateFiles(const ScanReport &report)
{
    // The same hand-over as a running scan's reports, tied to the scan of this moment.
    postReport(this, m_scanGeneration, report);
}

void BRDuplicateFilesViewController::postReport(QPointer<BRDuplicateFilesViewController> self,
                                                quint64 generation, const ScanReport &report)
{
    // Any thread. The application object outlives the screen, which may be gone by then.
    QMetaObject::invokeMethod(
        qApp,
        [self, generation, report] {
            if (self)
                self->applyReport(generation, report);
        },
        Qt::QueuedConnection);
}

void BRDuplicateFilesViewController::applyReport(quint64 generation, const ScanReport &report)
{
    const GroupMap &groups = report.groups;
    const bool completeStatus = report.completeStatus;
    const QString &key = report.key;
    const qint64 totalDuplicates = report.totalDuplicates;
    const qint64 totalDupesSize = report.totalDupesSize;
    if (generation != m_scanGeneration)
        return; // sent by a scan that was stopped or cleared since
    m_totalDupesSize = totalDupesSize;

    if (completeStatus && !groups.isEmpty()) {
        m_scanRunning = false;
        if (m_duplicateMainViewDelegate)
            m_duplicateMainViewDelegate->updateMainTabViewStatus(false);
        if (m_duplicateFinder)
            m_duplicateFinder->finder().setCancelActive(true);
        m_duplicateFinder.reset();
        m_scanStatus = completeStatus;
        scanEnded(static_cast<int>(m_dictOfDupeFiles.size()));
        if (m_searchActive)
            filterData();
        if (m_selectedSortType)
            disableSubTypeAndSortData(*m_selectedSortType);
        if (m_sortAndCancelTabViewDelegate)
            m_sortAndCancelTabViewDelegate->selectTabAtIndex(0);
        prepareNameKeys();
        showAlert(QStringLiteral("Duplicate files scan complete."),
                  QString::number(totalDuplicates) + QStringLiteral(" duplicate files found."));
        return;
    }

    if (groups.isEmpty()) {
        m_scanRunning = false;
        m_scanStatus = true;
        if (m_duplicateMainViewDelegate)
            m_duplicateMainViewDelegate->updateMainTabViewStatus(false);
        scanEnded(0);
        showDuplicateStatusView();
        return;
    }

    if (completeStatus)
        return;
    m_dictOfDupeFiles = groups;
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
        } else if (totalDuplicates % 10 == 0) {
            reloadData(at == m_allData.size() - 1);
        }
    }
    if (!m_searchActive && totalDuplicates % 10 == 0)
        updateFileCountAndSize(totalDuplicates);
}

GroupLookup BRDuplicateFilesViewController::records()
{
    if (!m_records.isBuiltFor(m_dictOfDupeFiles))
        m_records.rebuild(m_dictOfDupeFiles);
    return m_records.lookup();
}

void BRDuplicateFilesViewController::prepareNameKeys()
{
    // The first sort by name would spend most of its time making collation keys; they
    // are made here, while the user reads the results, and kept.
    const GroupMap groups = m_dictOfDupeFiles;
    const quint64 generation = m_scanGeneration;
    QtConcurrent::run([groups] {
        QStringList names;
        names.reserve(groups.size());
        groups.forEach([&names](const QString &, const GroupRecord &record) {
            names.append(record.fileName);
        });
        // Handed over by pointer: copying a hundred thousand keys would cost the main
        // thread what making them on a worker saved.
        return std::make_shared<NameSortKeys>(NameSortKeys::madeFor(names));
    }).then(this, [this, generation](const std::shared_ptr<NameSortKeys> &keys) {
        if (generation == m_scanGeneration && keys->size() > m_nameKeys.size())
            m_nameKeys = std::move(*keys);
    });
}

void BRDuplicateFilesViewController::scanEnded(int groupsHeld)
{
    if (m_appDelegate) {
        m_appDelegate->duplicateScanStatus = false;
        m_appDelegate->duplicateFilesCount = groupsHeld;
    }
    m_progressTimer->stop();
    if (m_cancelViewDelegate)
        m_cancelViewDelegate->stopAnimateProgress();
}

void BRDuplicateFilesViewController::reloadRowForKey(const QString &key)
{
    if (m_searchActive || m_subTypeActive) {
        const qsizetype row = rowOnScreen(key);
        if (row >= 0)
            m_model->rowsChanged(static_cast<int>(row), static_cast<int>(row));
        return;
    }
    // During a scan the list is long and the row is near its end; a redraw of what is
    // visible costs less than finding it.
    m_model->rowsChanged(0, m_model->rowCount() - 1);
}

void BRDuplicateFilesViewController::pollScanProgress()
{
    if (!m_duplicateFinder || !m_cancelViewDelegate)
        return;
    const BRDuplicateFinderClass::Progress progress = m_duplicateFinder->finder().progress();
    m_cancelViewDelegate->updateScanProgress(progress.entriesScanned, progress.currentFolder);
}

void BRDuplicateFilesViewController::updateFileCountAndSize(qint64 count)
{
    m_totalFilesCountLabel->setText(QString::number(count));
    setTotalSizeOfDuplicate(m_totalDupesSize);
}

void BRDuplicateFilesViewController::insertElementToAllData(const QString &key)
{
    m_allData.insert(qBound<qsizetype>(0, m_index, m_allData.size()), key);
    m_allDataKeys.insert(key);
    m_allDataRecords.valid = false;
    ++m_index;
}

void BRDuplicateFilesViewController::checkSearchActiveAndReloadTableView(const GroupMap &groups)
{
    if (m_searchActive)
        filterData();
    else
        setTotalDuplicateFilesCountLabel(groups);
    reloadData();
}

void BRDuplicateFilesViewController::showDuplicateStatusView()
{
    if (!m_selectedUrl)
        return;
    const QString folderName = QFileInfo(m_selectedUrl->path()).fileName();
    QPointer<BRDuplicateFilesViewController> self(this);
    ViewFader::fade(this, 0.0, m_timings.statusWaitMs, [self, folderName] {
        ViewFader::setAlpha(self, 1.0);
        if (self->m_duplicateMainViewDelegate)
            self->m_duplicateMainViewDelegate->selectDuplicateTabViewAtIndex(2);
        QWidget *statusScreen = self->siblingScreen(2);
        if (!statusScreen)
            return;
        ViewFader::setAlpha(statusScreen, 1.0);
        if (auto *label = statusScreen->findChild<QLabel *>(QStringLiteral("directoryLabel")))
            label->setText(QStringLiteral("in \"") + folderName + u'"');
    });
}

QWidget *BRDuplicateFilesViewController::siblingScreen(int index) const
{
    auto *tabs = qobject_cast<QStackedWidget *>(parentWidget());
    return tabs ? tabs->widget(index) : nullptr;
}

void BRDuplicateFilesViewController::cancelScanProcess()
{
    const int answer = m_alerts.runModal(
        {QStringLiteral("Stop duplicate files scan?"),
         QStringLiteral("Duplicate files scan is in progress. Are you sure you want to stop "
                        "the scan?"),
         {QStringLiteral("Stop"), QStringLiteral("Cancel")}});
    if (answer == AlertPresenter::firstButton) {
        if (m_duplicateMainViewDelegate)
            m_duplicateMainViewDelegate->updateMainTabViewStatus(false);
        m_scanStatus = true;
        cancelScanAndStartNewScan();
    } else if (m_cancelViewDelegate) {
        m_cancelViewDelegate->startAnimateProgress();
    }
}

void BRDuplicateFilesViewController::startNewScanProcess()
{
    const int answer = m_alerts.runModal(
        {QStringLiteral("Start a new scan?"),
         QStringLiteral("The current list of the duplicate search results will be lost. Are "
                        "you sure you want to start a new scan?"),
         {QStringLiteral("New scan"), QStringLiteral("Cancel")}});
    if (answer == AlertPresenter::firstButton)
        cancelScanAndStartNewScan();
}

void BRDuplicateFilesViewController::updateScanStatus(bool status)
{
    if (!status)
        return;
    if (m_cancelViewDelegate)
        m_cancelViewDelegate->stopAnimateProgress();
    cancelScanAndStartNewScan();
}

void BRDuplicateFilesViewController::cancelScanAndStartNewScan()
{
    QPointer<BRDuplicateFilesViewController> self(this);
    ViewFader::fade(this, 0.0, m_timings.fadeMs, [self] {
        self->clearAll();
        self->reloadData();
        {
            const QSignalBlocker quiet(self->m_searchField);
            self->m_searchField->clear();
        }
        self->controlTextDidChange();
        QWidget *startScreen = self->siblingScreen(0);
        if (self->m_duplicateMainViewDelegate)
            self->m_duplicateMainViewDelegate->selectDuplicateTabViewAtIndex(0);
        if (startScreen)
            ViewFader::fade(startScreen, 1.0, self->m_timings.fadeMs);
        ViewFader::setAlpha(self, 1.0);
    });
}

void BRDuplicateFilesViewController::clearAll()
{
    m_scanStatus = true;
    ++m_scanGeneration;
    if (m_duplicateFinder)
        m_duplicateFinder->finder().setCancelActive(true);
    scanEnded(0);
    closePopOver();
    removeAllFromDataSource();
    disableSubTypes();
    m_index = 0;
    m_totaldupes = 0;
    m_totalDupesSize = 0;
    m_appDelegate = nullptr;
    m_duplicateFinder.reset();
    m_selectedSortType.reset();
    m_selectedUrl.reset();
    m_nameKeys = NameSortKeys();
    m_selectedFolderImageView->clear();
    m_selecteFolderNameLabel->clear();
    m_selectedFolderPathLabel->clear();
    m_totalFilesCountLabel->setText(QStringLiteral("0"));
    setTotalSizeOfDuplicate(0);
}

void BRDuplicateFilesViewController::removeAllFromDataSource()
{
    m_allData.clear();
    m_allDataKeys.clear();
    m_allDataKeysValid = true;
    m_allDataRecords = ListRecords();
    m_filteredRecords = ListRecords();
    m_keysOfAll.clear();
    m_filteredData.clear();
    m_dictOfDupeFiles = GroupMap();
    m_filteredDictData.clear();
    m_records.clear();
}

// ---------------------------------------------------------------------------------------
// Sub-types, sort and search

void BRDuplicateFilesViewController::sortSubTypes(SubType subType)
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
    checkSearchActiveAndReloadTableView(m_dictOfDupeFiles);
}

void BRDuplicateFilesViewController::disableSubTypes()
{
    m_selectedSubType.reset();
    m_subTypeActive = false;
    m_keysOfSubType.clear();
    m_subTypeRecords = ListRecords();
}

void BRDuplicateFilesViewController::disableSubTypeAndSortData(SortOrder sortType)
{
    if (sortType == SortOrder::All)
        disableSubTypes();
    sortData(sortType, m_dictOfDupeFiles);
}

void BRDuplicateFilesViewController::sortMainType(SortOrder sortType, bool subTypeStatus)
{
    sortMainType(std::optional<SortOrder>(sortType), subTypeStatus);
}

void BRDuplicateFilesViewController::sortMainType(std::optional<SortOrder> sortType,
                                                  bool subTypeStatus)
{
    m_subTypeActive = subTypeStatus;
    m_selectedSortType = sortType;
    if (!sortType) {
        reloadData();
        return;
    }
    disableSubTypeAndSortData(*sortType);
}

void BRDuplicateFilesViewController::sortSubType(SubType subType, SortOrder mainType)
{
    m_subTypeActive = true;
    m_selectedSubType = subType;
    m_selectedSortType = mainType;
    sortData(mainType, m_dictOfDupeFiles);
}

void BRDuplicateFilesViewController::sortData(SortOrder sortType, const GroupMap &groups)
{
    m_index = 0;
    m_allData.clear();
    // Membership is asked only while reports stream in; it is rebuilt if that happens.
    m_allDataKeys.clear();
    m_allDataKeysValid = false;
    m_allDataRecords = ListRecords();
    scrollToFirstRow();
    m_selectedSortType = sortType;
    if (groups.sharesRootWith(m_dictOfDupeFiles)) {
        m_allData = GroupOrdering::sortedKeys(sortType, m_keysOfAll, records(), m_nameKeys,
                                              &m_allDataRecords.records);
        m_allDataRecords.valid = true;
        preparePrefixes(m_allDataRecords);
    } else {
        m_allData = GroupOrdering::sortedKeys(sortType, m_keysOfAll, groups);
    }
    m_index = m_allData.size();
    if (m_subTypeActive && m_selectedSubType)
        sortSubTypes(*m_selectedSubType);
    checkSearchActiveAndReloadTableView(m_dictOfDupeFiles);
}

BRDuplicateFilesViewController::ListRecords *
BRDuplicateFilesViewController::listRecordsFor(const QStringList &list)
{
    ListRecords *target = &list == &m_allData         ? &m_allDataRecords
                          : &list == &m_keysOfSubType ? &m_subTypeRecords
                          : &list == &m_filteredData  ? &m_filteredRecords
                                                      : nullptr;
    if (target && !target->valid)
        fillListRecords(list, *target);
    return target;
}

void BRDuplicateFilesViewController::fillListRecords(const QStringList &list, ListRecords &target)
{
    const GroupLookup find = records();
    target = ListRecords();
    target.records.reserve(static_cast<size_t>(list.size()));
    for (const QString &key : list)
        target.records.push_back(find(key));
    target.valid = true;
}

void BRDuplicateFilesViewController::preparePrefixes(ListRecords &target)
{
    target.version = ++m_listVersions;
    // The snapshot keeps every record alive while the worker reads it.
    const GroupMap snapshot = m_dictOfDupeFiles;
    const std::vector<const GroupRecord *> records = target.records;
    const quint64 version = target.version;
    ListRecords *where = &target;
    QtConcurrent::run([snapshot, records] {
        std::vector<NamePrefix> prefixes;
        prefixes.reserve(records.size());
        for (const GroupRecord *record : records)
            prefixes.push_back(record ? NamePrefix::of(record->fileName) : NamePrefix());
        return prefixes;
    }).then(this, [where, version](const std::vector<NamePrefix> &prefixes) {
        if (where->valid && where->version == version && where->prefixes.empty())
            where->prefixes = prefixes;
    });
}

void BRDuplicateFilesViewController::patchRecord(const QString &key, const GroupRecord *record)
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

void BRDuplicateFilesViewController::checkSortTypeAndSortData()
{
    if (m_selectedSubType)
        sortSubTypes(*m_selectedSubType);
    else if (m_selectedSortType)
        disableSubTypeAndSortData(*m_selectedSortType);
}

const QStringList &BRDuplicateFilesViewController::checkSearchActiveAndGetData() const
{
    if (m_searchActive)
        return m_filteredData;
    if (m_subTypeActive)
        return m_keysOfSubType;
    return m_allData;
}

void BRDuplicateFilesViewController::filterData()
{
    m_filteredData.clear();
    m_filteredRecords = ListRecords();
    m_filteredDictData.clear();
    applyFilterWithSearchQuery(m_searchField->text());
}

void BRDuplicateFilesViewController::applyFilterWithSearchQuery(const QString &query)
{
    m_index = 0;
    // The first keystroke in a sub-type searches it; the kept sub-type name brings it back
    // when the search is emptied.
    const QStringList source = m_subTypeActive ? m_keysOfSubType : m_allData;
    ListRecords &sourceRecords = *listRecordsFor(m_subTypeActive ? m_keysOfSubType : m_allData);
    m_subTypeActive = false;
    if (sourceRecords.prefixes.size() != sourceRecords.records.size()) {
        sourceRecords.prefixes.clear();
        sourceRecords.prefixes.reserve(sourceRecords.records.size());
        for (const GroupRecord *record : sourceRecords.records)
            sourceRecords.prefixes.push_back(record ? NamePrefix::of(record->fileName)
                                                    : NamePrefix());
    }
    if (!m_filteredRecords.valid)
        fillListRecords(m_filteredData, m_filteredRecords);
    m_filteredRecords.prefixes.clear();
    const QString lowered = query.toLower();
    for (qsizetype position = 0; position < source.size(); ++position) {
        const GroupRecord *record = sourceRecords.records[static_cast<size_t>(position)];
        if (!record ||
            !sourceRecords.prefixes[static_cast<size_t>(position)].matches(lowered, *record))
            continue;
        const QString &key = source.at(position);
        m_filteredRecords.records.insert(
            m_filteredRecords.records.begin() +
                std::min<qsizetype>(m_index,
                                    static_cast<qsizetype>(m_filteredRecords.records.size())),
            record);
        m_filteredData.insert(m_index, key);
        m_filteredDictData.insert(key, *record);
        ++m_index;
    }
    setTotalDuplicateFilesCountLabel(m_filteredDictData);
}

void BRDuplicateFilesViewController::searchFieldDidStartSearching()
{
    m_searchActive = true;
}

void BRDuplicateFilesViewController::searchFieldDidEndSearching()
{
    m_searchActive = false;
}

void BRDuplicateFilesViewController::controlTextDidChange()
{
    const QString text = m_searchField->text();
    if (text.isEmpty()) {
        m_searchActive = false;
        checkSortTypeAndSortData();
        reloadData(); // the placeholder of an empty search must go even with nothing sorted
        return;
    }
    m_filteredData.clear();
    m_filteredRecords = ListRecords();
    m_filteredDictData.clear();
    m_searchActive = true;
    applyFilterWithSearchQuery(text);
    reloadData();
}

void BRDuplicateFilesViewController::scrollToFirstRow()
{
    m_duplicateTableView->scrollToTop();
}

// ---------------------------------------------------------------------------------------
// Removal

void BRDuplicateFilesViewController::updateAfterDelete(int index, const QString &key)
{
    const GroupRecord *record = m_dictOfDupeFiles.find(key);
    if (!record)
        return;
    const qint64 fileSize = record->fileSize;
    const QStringList filePath = record->filePath;
    const qint64 totalSize = record->totalSize;
    if (filePath.isEmpty() || index < 0 || index >= filePath.size())
        return;
    const QString path = filePath.at(index);
    if (!removeFileAtPath(path, index, key))
        return;

    QStringList remaining = filePath;
    remaining.removeAll(path);
    updateDictionaryDataForKey(key, remaining, totalSize - fileSize, path);

    const qsizetype row = rowOnScreen(key);
    if (row < 0)
        return;
    QPointer<BRDuplicateFilesViewController> self(this);
    QTimer::singleShot(0, this, [self, row] {
        if (self->m_selectedSortType == SortOrder::Size) {
            // The group's size changed, and with it maybe its place.
            self->closePopOver();
            self->checkSortTypeAndSortData();
        } else {
            self->m_model->rowsChanged(static_cast<int>(row), static_cast<int>(row));
        }
    });
    if (m_previewDelegate)
        m_previewDelegate->removeDataAtIndex(index);
    if (m_scanStatus)
        setTotalDuplicateFilesCountLabel(m_dictOfDupeFiles);
    else
        setTotalSizeOfDuplicate(m_totalDupesSize); // the count waits for the scan's next report
}

qsizetype BRDuplicateFilesViewController::rowOnScreen(const QString &key) const
{
    return checkSearchActiveAndGetData().indexOf(key);
}

bool BRDuplicateFilesViewController::removeFileAtPath(const QString &path, int, const QString &key)
{
    if (fileExistsAtPath(path)) {
        const TrashResult result = m_workspace.moveToTrash(path);
        if (result.trashed)
            return true;
        showAlert(QStringLiteral("Could not remove some files"), result.error);
        return false;
    }

    // The copy went behind our back: it leaves the group as if it had been removed here.
    const GroupRecord *record = m_dictOfDupeFiles.find(key);
    if (!record)
        return false;
    const QStringList filePath = record->filePath;
    const qint64 totalSize = record->totalSize;
    const QString fileName = record->fileName;
    const qint64 fileSize = record->fileSize;
    showAlert(QStringLiteral("File does not exist"), fileName + QStringLiteral(" does not exist"));
    QStringList remaining = filePath;
    remaining.removeAll(path);
    if (remaining.isEmpty()) {
        removeValuesForKeyFromDataSource(key);
        if (m_dictOfDupeFiles.isEmpty())
            showDuplicateStatusView();
    } else {
        updateDictionaryDataForKey(key, remaining, totalSize - fileSize, path);
    }
    checkSortTypeAndSortData();
    return false;
}

void BRDuplicateFilesViewController::updateDictionaryDataForKey(const QString &key,
                                                                const QStringList &filePaths,
                                                                qint64 totalSize, const QString &)
{
    const GroupRecord *found = m_dictOfDupeFiles.find(key);
    if (!found)
        return;
    GroupRecord record = *found;
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
    m_totalDupesSize -= fileSize;
    // A running scan goes on from what the user left: a later copy joins the smaller group.
    if (m_duplicateFinder)
        m_duplicateFinder->finder().applyDeletion(m_totalDupesSize, m_dictOfDupeFiles, fileSize,
                                                  fileType, fileName, filePaths, oldKey);
}

void BRDuplicateFilesViewController::removeValuesForKeyFromDataSource(const QString &key)
{
    if (m_searchActive)
        m_filteredDictData.remove(key);
    if (m_duplicateFinder)
        m_duplicateFinder->finder().removeGroup(key);
    const bool indexed = m_records.isBuiltFor(m_dictOfDupeFiles);
    patchRecord(key, nullptr);
    m_dictOfDupeFiles.remove(key);
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

void BRDuplicateFilesViewController::openURLData(int index, const QString &key)
{
    const GroupRecord *record = m_dictOfDupeFiles.find(key);
    if (!record || record->filePath.isEmpty() || index < 0 || index >= record->filePath.size())
        return;
    const QString path = record->filePath.at(index);
    if (fileExistsAtPath(path))
        m_workspace.selectFile(path);
    else
        updateAfterDelete(index, key);
}

// ---------------------------------------------------------------------------------------
// Presentation

int BRDuplicateFilesViewController::numberOfRowsInTableView() const
{
    if (m_searchActive && m_filteredData.isEmpty())
        return 1;
    if (m_subTypeActive && m_keysOfSubType.isEmpty())
        return 1;
    return static_cast<int>(checkSearchActiveAndGetData().size());
}

double BRDuplicateFilesViewController::heightOfRow(int) const
{
    const bool placeholder = (m_searchActive && m_filteredData.isEmpty()) ||
                             (m_subTypeActive && m_keysOfSubType.isEmpty());
    return placeholder ? BRDuplicateTableViewCell::placeholderRowHeight
                       : BRDuplicateTableViewCell::groupRowHeight;
}

template <typename Groups> void BRDuplicateFilesViewController::countTotals(const Groups &groups)
{
    m_totaldupes = 0;
    m_totalDupesSize = 0;
    const auto count = [this](const GroupRecord *record) {
        if (!record)
            return;
        m_totaldupes += record->filePath.size();
        // Deleting all but one copy of each group frees this much.
        m_totalDupesSize += record->totalSize - record->fileSize;
    };
    const QStringList &onScreen = checkSearchActiveAndGetData();
    if constexpr (std::is_same_v<Groups, GroupMap>) {
        if (groups.sharesRootWith(m_dictOfDupeFiles)) {
            // The store's own groups: the list's records, in one pass without lookups.
            for (const GroupRecord *record : listRecordsFor(onScreen)->records)
                count(record);
        } else {
            for (const QString &key : onScreen)
                count(groups.find(key));
        }
    } else {
        for (const QString &key : onScreen) {
            const auto found = groups.constFind(key);
            count(found == groups.cend() ? nullptr : &found.value());
        }
    }
    m_totalDupesSizeLabel->setText(ByteCountFormatter::binary(m_totalDupesSize));
    m_totalFilesCountLabel->setText(QString::number(m_totaldupes));
}

void BRDuplicateFilesViewController::setTotalDuplicateFilesCountLabel(const GroupMap &groups)
{
    countTotals(groups);
}

void BRDuplicateFilesViewController::setTotalDuplicateFilesCountLabel(
    const QHash<QString, GroupRecord> &groups)
{
    countTotals(groups);
}

void BRDuplicateFilesViewController::setTotalSizeOfDuplicate(qint64 bytes)
{
    m_totalDupesSizeLabel->setText(ByteCountFormatter::binary(bytes));
}

void BRDuplicateFilesViewController::setBottomBarControls()
{
    if (!m_selectedUrl)
        return;
    const QString path = m_selectedUrl->path();
    createThumbNailForPath(path, 36.0, 36.0);
    m_selecteFolderNameLabel->setText(QFileInfo(path).fileName());
    // "/home/anna/Pictures" reads "home / anna / Pictures".
    m_selectedFolderPathLabel->setText(path.mid(1).replace(u'/', QStringLiteral(" / ")));
    m_totalFilesCountLabel->setText(QString::number(m_totaldupes));
    setTotalSizeOfDuplicate(m_totalDupesSize);
}

void BRDuplicateFilesViewController::createThumbNailForPath(const QString &path, double width,
                                                            double height)
{
    const qreal ratio = devicePixelRatioF();
    auto future = QtConcurrent::run([path, width, height, ratio] {
        return BRObjectClass().thumbnailForPath(path, width * ratio, height * ratio);
    });
    future.then(this, [this](const std::optional<QImage> &image) {
        if (!image || image->isNull())
            return;
        QPixmap pixmap = QPixmap::fromImage(image->scaled(
            QSize(36, 36) * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
        pixmap.setDevicePixelRatio(devicePixelRatioF());
        m_selectedFolderImageView->setPixmap(pixmap);
    });
}

void BRDuplicateFilesViewController::reloadData(bool appendedOnly)
{
    ++m_reloadCount;
    m_reloadAppendsOnly = m_reloadAppendsOnly && appendedOnly;
    // Many reports can arrive between two frames; one reload serves them all.
    if (!m_reloadTimer.isActive())
        m_reloadTimer.start();
}

void BRDuplicateFilesViewController::showPopOverForView(QObject *sender)
{
    auto *view = qobject_cast<QWidget *>(sender);
    if (!view)
        return;
    const QPoint at = view->mapTo(m_duplicateTableView->viewport(), view->rect().center());
    const QModelIndex index = m_duplicateTableView->indexAt(at);
    if (index.isValid())
        showPopOverView(index.row());
}

void BRDuplicateFilesViewController::showPopOverView(int row)
{
    const QStringList &keys = checkSearchActiveAndGetData();
    if (row < 0 || row >= keys.size())
        return;
    const QString key = keys.at(row);
    const GroupRecord *record = m_dictOfDupeFiles.find(key);
    if (!record || record->filePath.isEmpty())
        return;

    auto *controller = new BRDuplicateFilePreviewViewController;
    controller->setDelegate(this);
    m_previewDelegate = controller;
    controller->setKey(key);
    controller->setScanStatus(m_scanStatus);
    controller->setFilePaths(record->filePath);
    controller->setFileInfo(key, {record->fileName, record->fileType, record->fileSize});
    controller->showPreview(QUrl::fromLocalFile(record->filePath.constFirst()));
    controller->setFileNameAndReloadData(record->fileName);

    auto *popover = new RowAnchoredPopover(controller, this);
    m_popover = popover;
    const QRect rowRect = m_duplicateTableView->visualRect(m_model->index(row));
    popover->showRelativeToRect(rowRect, m_duplicateTableView->viewport(), Qt::RightEdge);
}

void BRDuplicateFilesViewController::closePopOver()
{
    if (m_popover)
        m_popover->close();
}

bool BRDuplicateFilesViewController::windowShouldClose()
{
    if (!m_scanStatus)
        return showQuitAlert(QStringLiteral("Quit Quillmere?"),
                             QStringLiteral("Duplicate files scan is in progress. Are you sure "
                                            "you want to quit Quillmere?"));
    if (!m_dictOfDupeFiles.isEmpty())
        return showQuitAlert(QStringLiteral("Quit Quillmere?"),
                             QStringLiteral("The current list of the duplicate search results "
                                            "will be lost. Are you sure you want to quit "
                                            "Quillmere?"));
    return true;
}

bool BRDuplicateFilesViewController::showQuitAlert(const QString &title, const QString &message)
{
    const int answer =
        m_alerts.runModal({title, message, {QStringLiteral("Quit"), QStringLiteral("Cancel")}});
    if (answer != AlertPresenter::firstButton)
        return false;
    clearAll();
    cancelScanAndStartNewScan();
    return true;
}

void BRDuplicateFilesViewController::showAlert(const QString &title, const QString &description)
{
    // After the work in hand: an alert's own event loop must not run inside a report.
    QPointer<BRDuplicateFilesViewController> self(this);
    QTimer::singleShot(0, this, [self, title, description] {
        if (QWidget *top = self->window()) {
            top->raise();
            top->activateWindow();
        }
        self->m_alerts.runModal({title, description, {QStringLiteral("OK")}});
    });
}
