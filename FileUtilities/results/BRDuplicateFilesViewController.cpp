#include "BRDuplicateFilesViewController.h"

#include "AlertPresenter.h"
#include "ApplicationStatus.h"
#include "BRDuplicateCancelViewController.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesMainViewDelegate.h"
#include "BRDuplicateSortAndCancelTabViewController.h"
#include "BRDuplicateSortViewController.h"
#include "BRDuplicateTableView.h"
#include "BRDuplicateTableViewCell.h"
#include "BRObjectClass.h"
#include "ByteCountFormatter.h"
#include "DuplicateResults.h"
#include "DuplicateTableModel.h"
#include "Look.h"
#include "LookStyleSheets.h"
#include "ResultsLog.h"
#include "RowAnchoredPopover.h"
#include "ThumbnailLoader.h"
#include "ViewFader.h"
#include "WorkerTask.h"
#include "Workspace.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

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

QString duplicateFilesCaption()
{
    return QStringLiteral("Duplicate files");
}

QString reclaimableCaption()
{
    return QStringLiteral("Reclaimable");
}

QLabel *makeLabel(const QString &objectName, int pixelSize, QFont::Weight weight, Look::Color color,
                  QWidget *parent)
{
    QLabel *label = Look::label(parent, pixelSize, weight, color);
    label->setObjectName(objectName);
    return label;
}

} // namespace

BRDuplicateFilesViewController::BRDuplicateFilesViewController(AlertPresenter &alerts,
                                                               Workspace &workspace,
                                                               ApplicationStatus *appDelegate,
                                                               QWidget *parent)
    : QWidget(parent), m_alerts(alerts), m_workspace(workspace), m_appDelegateTarget(appDelegate),
      m_results(new DuplicateResults(this)), m_thumbnails(new ThumbnailLoader(this)),
      m_progressTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("BRDuplicateFilesViewController"));
    buildScreen();
    connectResults();
    connect(m_progressTimer, &QTimer::timeout, this,
            &BRDuplicateFilesViewController::pollScanProgress);
}

BRDuplicateFilesViewController::~BRDuplicateFilesViewController()
{
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
    headerPalette.setColor(QPalette::Window, Look::color(Look::Color::HeaderGround));
    header->setPalette(headerPalette);

    m_selectedFolderImageView = new QLabel(header);
    m_selectedFolderImageView->setObjectName(QStringLiteral("selectedFolderImageView"));
    m_selectedFolderImageView->setFixedSize(36, 36);
    m_selectedFolderImageView->setAlignment(Qt::AlignCenter);
    m_selectedFolderImageView->setAccessibleName(QStringLiteral("Scanned folder"));
    const Look::Color dark = Look::Color::PrimaryText;
    const Look::Color grey = Look::Color::SecondaryText;
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
    showTotals(0, 0);

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
    // The placeholder goes once something is typed; the name stays.
    m_searchField->setAccessibleName(QStringLiteral("Search by name"));
    m_searchField->setClearButtonEnabled(true);
    m_searchField->setFixedWidth(220);
    QAction *searchIcon = m_searchField->addAction(QIcon::fromTheme(QStringLiteral("edit-find")),
                                                   QLineEdit::LeadingPosition);
    // The field's two icons are buttons to assistive tools; their actions give the names.
    searchIcon->setText(QStringLiteral("Search"));
    searchIcon->setToolTip(QStringLiteral("Search by name"));
    connect(searchIcon, &QAction::triggered, m_searchField,
            [this] { m_searchField->setFocus(Qt::ShortcutFocusReason); });
    if (auto *clearSearch =
            m_searchField->findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction"))) {
        clearSearch->setText(QStringLiteral("Clear search"));
        clearSearch->setToolTip(QStringLiteral("Clear search"));
    }
    // Ctrl+F reaches the search from anywhere on this screen.
    auto *find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, &BRDuplicateFilesViewController::focusSearchField);
    m_searchField->setStyleSheet(Look::StyleSheet::roundedSearchField());
    connect(m_searchField, &QLineEdit::textChanged, m_results, &DuplicateResults::search);

    auto *headerLayout = new QHBoxLayout(header);
    headerLayout->setContentsMargins(24, 14, 24, 14);
    headerLayout->setSpacing(12);
    headerLayout->addWidget(m_selectedFolderImageView);
    headerLayout->addLayout(folderText, 1);
    headerLayout->addLayout(totalColumn(m_totalFilesCountLabel, duplicateFilesCaption()));
    headerLayout->addSpacing(12);
    headerLayout->addLayout(totalColumn(m_totalDupesSizeLabel, reclaimableCaption()));
    headerLayout->addSpacing(20);
    headerLayout->addWidget(m_searchField);

    // The model lives and dies with the results it reads.
    m_model = new DuplicateTableModel(*m_results, m_results);
    m_duplicateTableView = new BRDuplicateTableView(this);
    m_duplicateTableView->setObjectName(QStringLiteral("duplicateTableView"));
    m_duplicateTableView->setAccessibleName(QStringLiteral("Duplicates"));
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
}

void BRDuplicateFilesViewController::connectResults()
{
    connect(m_results, &DuplicateResults::totalsChanged, this,
            &BRDuplicateFilesViewController::showTotals);
    connect(m_results, &DuplicateResults::reclaimableBytesChanged, this,
            &BRDuplicateFilesViewController::setTotalSizeOfDuplicate);
    connect(m_results, &DuplicateResults::aboutToSort, m_duplicateTableView,
            &BRDuplicateTableView::scrollToTop);
    connect(m_results, &DuplicateResults::scanEnded, this,
            &BRDuplicateFilesViewController::scanEnded);
    connect(m_results, &DuplicateResults::scanCompleted, this,
            &BRDuplicateFilesViewController::scanCompleted);
    connect(m_results, &DuplicateResults::scanFoundNothing, this,
            &BRDuplicateFilesViewController::scanFoundNothing);
}

void BRDuplicateFilesViewController::setDuplicateMainViewDelegate(
    BRDuplicateFilesMainViewDelegate *delegate)
{
    m_duplicateMainViewDelegate = delegate;
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

bool BRDuplicateFilesViewController::isScanRunning() const
{
    return !m_results->scanStatus();
}

qsizetype BRDuplicateFilesViewController::groupCount() const
{
    return m_results->groups().size();
}

// ---------------------------------------------------------------------------------------
// Scans

void BRDuplicateFilesViewController::startScanProcess(const std::optional<QUrl> &folderUrl)
{
    if (m_duplicateMainViewDelegate) {
        m_duplicateMainViewDelegate->selectDuplicateTabViewAtIndex(1);
        m_duplicateMainViewDelegate->updateMainTabViewStatus(true);
    }
    m_appDelegate = m_appDelegateTarget;
    if (m_appDelegate)
        m_appDelegate->duplicateScanStatus = true;
    m_results->prepareScan();
    if (m_sortAndCancelTabViewDelegate)
        m_sortAndCancelTabViewDelegate->selectTabAtIndex(1);
    if (m_sortViewDelegate)
        m_sortViewDelegate->enableSortType(SubType::All);
    m_selectedUrl = folderUrl;
    if (!folderUrl || folderUrl->path().isEmpty())
        return;
    setBottomBarControls();
    m_results->startScan(folderUrl->toLocalFile().isEmpty() ? folderUrl->path()
                                                            : folderUrl->toLocalFile());
    m_progressTimer->start(m_timings.progressPollMs);
    pollScanProgress();
}

void BRDuplicateFilesViewController::updateDuplicateFiles(const ScanReport &report)
{
    m_results->postReport(report);
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

void BRDuplicateFilesViewController::scanCompleted(qint64 duplicatesFound)
{
    if (m_duplicateMainViewDelegate)
        m_duplicateMainViewDelegate->updateMainTabViewStatus(false);
    if (m_sortAndCancelTabViewDelegate)
        m_sortAndCancelTabViewDelegate->selectTabAtIndex(0);
    showAlert(QStringLiteral("Duplicate files scan complete."),
              QString::number(duplicatesFound) + QStringLiteral(" duplicate files found."));
}

void BRDuplicateFilesViewController::scanFoundNothing()
{
    if (m_duplicateMainViewDelegate)
        m_duplicateMainViewDelegate->updateMainTabViewStatus(false);
    showDuplicateStatusView();
}

void BRDuplicateFilesViewController::pollScanProgress()
{
    const std::optional<BRDuplicateFinderClass::Progress> progress = m_results->scanProgress();
    if (!progress || !m_cancelViewDelegate)
        return;
    m_cancelViewDelegate->updateScanProgress(progress->entriesScanned, progress->currentFolder);
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
            self->m_duplicateMainViewDelegate->showScanStatusScreen(folderName);
    });
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
        m_results->markScanStopped();
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
        self->m_results->reloadData();
        {
            const QSignalBlocker quiet(self->m_searchField);
            self->m_searchField->clear();
        }
        self->m_results->search(QString());
        if (self->m_duplicateMainViewDelegate)
            self->m_duplicateMainViewDelegate->showScanStartScreen();
        ViewFader::setAlpha(self, 1.0);
    });
}

void BRDuplicateFilesViewController::clearAll()
{
    closePopOver();
    m_results->clear();
    m_appDelegate = nullptr;
    m_selectedUrl.reset();
    m_selectedFolderImageView->clear();
    m_selecteFolderNameLabel->clear();
    m_selectedFolderPathLabel->clear();
}

void BRDuplicateFilesViewController::clear()
{
    clearAll();
    cancelScanAndStartNewScan();
}

// ---------------------------------------------------------------------------------------
// Sort and sub-types

void BRDuplicateFilesViewController::sortMainType(SortOrder sortType, bool subTypeStatus)
{
    m_results->sortMainType(sortType, subTypeStatus);
}

void BRDuplicateFilesViewController::sortSubType(SubType subType, SortOrder mainType)
{
    m_results->sortSubType(subType, mainType);
}

// ---------------------------------------------------------------------------------------
// Removal

void BRDuplicateFilesViewController::updateAfterDelete(int index, const QString &key)
{
    const GroupRecord *record = m_results->groups().find(key);
    if (!record || index < 0 || index >= record->filePath.size())
        return;
    const QString path = record->filePath.at(index);
    if (!removeFileAtPath(path, key))
        return;
    const qsizetype row = m_results->removeCopy(key, path);
    if (row < 0)
        return;
    QPointer<BRDuplicateFilesViewController> self(this);
    QTimer::singleShot(0, this, [self, row] {
        if (self->m_results->selectedSortType() == SortOrder::Size) {
            // The group's size changed, and with it maybe its place.
            self->closePopOver();
            self->m_results->checkSortTypeAndSortData();
        } else {
            self->m_results->announceRowChange(static_cast<int>(row));
        }
    });
    if (m_previewDelegate)
        m_previewDelegate->removeDataAtIndex(index);
    m_results->recountAfterRemoval();
}

bool BRDuplicateFilesViewController::removeFileAtPath(const QString &path, const QString &key)
{
    if (fileExistsAtPath(path)) {
        const TrashResult result = m_workspace.moveToTrash(path);
        if (result.trashed)
            return true;
        qCWarning(resultsLog).noquote() << "kept" << path << ":" << result.error;
        showAlert(QStringLiteral("Could not remove some files"), result.error);
        return false;
    }

    // The copy went behind our back: it leaves the group as if it had been removed here.
    const GroupRecord *record = m_results->groups().find(key);
    if (!record)
        return false;
    showAlert(QStringLiteral("File does not exist"),
              record->fileName + QStringLiteral(" does not exist"));
    m_results->dropVanishedCopy(key, path);
    if (m_results->groups().isEmpty())
        showDuplicateStatusView();
    return false;
}

void BRDuplicateFilesViewController::openURLData(int index, const QString &key)
{
    const GroupRecord *record = m_results->groups().find(key);
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

void BRDuplicateFilesViewController::showTotals(qint64 duplicateCount, qint64 reclaimableBytes)
{
    m_totalFilesCountLabel->setText(QString::number(duplicateCount));
    m_totalFilesCountLabel->setAccessibleName(duplicateFilesCaption() + QStringLiteral(": ") +
                                              m_totalFilesCountLabel->text());
    setTotalSizeOfDuplicate(reclaimableBytes);
}

void BRDuplicateFilesViewController::setTotalSizeOfDuplicate(qint64 bytes)
{
    m_totalDupesSizeLabel->setText(ByteCountFormatter::binary(bytes));
    m_totalDupesSizeLabel->setAccessibleName(reclaimableCaption() + QStringLiteral(": ") +
                                             m_totalDupesSizeLabel->text());
}

void BRDuplicateFilesViewController::focusSearchField()
{
    m_searchField->setFocus(Qt::ShortcutFocusReason);
    m_searchField->selectAll();
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
    showTotals(m_results->totaldupes(), m_results->totalDupesSize());
}

void BRDuplicateFilesViewController::createThumbNailForPath(const QString &path, double width,
                                                            double height)
{
    const qreal ratio = devicePixelRatioF();
    runOnWorker(
        this,
        [path, width, height, ratio] {
            return BRObjectClass().thumbnailForPath(path, width * ratio, height * ratio);
        },
        [this](const std::optional<QImage> &image) {
            if (!image || image->isNull())
                return;
            QPixmap pixmap =
                QPixmap::fromImage(image->scaled(QSize(36, 36) * devicePixelRatioF(),
                                                 Qt::KeepAspectRatio, Qt::SmoothTransformation));
            pixmap.setDevicePixelRatio(devicePixelRatioF());
            m_selectedFolderImageView->setPixmap(pixmap);
        });
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
    const QStringList &keys = m_results->checkSearchActiveAndGetData();
    if (row < 0 || row >= keys.size())
        return;
    const QString key = keys.at(row);
    const GroupRecord *record = m_results->groups().find(key);
    if (!record || record->filePath.isEmpty())
        return;

    auto *controller = new BRDuplicateFilePreviewViewController;
    controller->setDelegate(this);
    m_previewDelegate = controller;
    controller->setKey(key);
    controller->setScanStatus(m_results->scanStatus());
    controller->setFilePaths(record->filePath);
    controller->setFileInfo(key, {record->fileName, record->fileType, record->fileSize});
    controller->showPreview(QUrl::fromLocalFile(record->filePath.constFirst()));
    controller->setFileNameAndReloadData(record->fileName);

    auto *popover = new RowAnchoredPopover(controller, this);
    // A screen reader says the group's name when the focus enters the popover.
    popover->setAccessibleName(record->fileName);
    m_popover = popover;
    const QRect rowRect = m_duplicateTableView->visualRect(m_model->index(row));
    popover->showRelativeToRect(rowRect, m_duplicateTableView->viewport(), Qt::RightEdge);
}

void BRDuplicateFilesViewController::closePopOver()
{
    if (m_popover)
        m_popover->close();
}

QuitPolicy::Request BRDuplicateFilesViewController::closeRequest() const
{
    return QuitPolicy::Request::CloseOnDuplicates;
}

void BRDuplicateFilesViewController::describeHoldings(QuitPolicy::Facts &facts) const
{
    // This screen's own scan and groups, which the user may have emptied by hand since the
    // scan ended.
    facts.scanRunning = isScanRunning();
    facts.groupsHeld = static_cast<int>(groupCount());
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
