#include "BRDuplicateFilesViewController.h"

#include "AlertPresenter.h"
#include "ApplicationStatus.h"
#include "BRDuplicateCancelViewController.h"
#include "BRDuplicateFilePreviewTableViewCell.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesMainViewDelegate.h"
#include "BRDuplicateSortAndCancelTabViewController.h"
#include "BRDuplicateSortViewController.h"
#include "BRDuplicateTableView.h"
#include "BRDuplicateTableViewCell.h"
#include "BRObjectClass.h"
#include "ByteCountFormatter.h"
#include "CopyRemoval.h"
#include "DuplicateResults.h"
#include "DuplicateTableModel.h"
#include "HardLinks.h"
#include "KeepOneMenu.h"
#include "Look.h"
#include "LookStyleSheets.h"
#include "OpenPanel.h"
#include "ResultsLog.h"
#include "RowAnchoredPopover.h"
#include "ThumbnailLoader.h"
#include "Translations.h"
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
#include <QMenu>
#include <QShortcut>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <QCoreApplication>
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
    return QCoreApplication::translate("BRDuplicateFilesViewController", "Duplicate files");
}

QString reclaimableCaption()
{
    return QCoreApplication::translate("BRDuplicateFilesViewController", "Reclaimable");
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
                                                               OpenPanel *openPanel,
                                                               QWidget *parent)
    : QWidget(parent), m_alerts(alerts), m_workspace(workspace), m_appDelegateTarget(appDelegate),
      m_results(new DuplicateResults(this)), m_removal(new CopyRemoval(workspace, this)),
      m_openPanel(openPanel), m_batchRefreshTimer(new QTimer(this)),
      m_thumbnails(new ThumbnailLoader(this)), m_progressTimer(new QTimer(this))
{
    // A run of many removals shows its changes a few times a second, not once a copy.
    m_batchRefreshTimer->setSingleShot(true);
    m_batchRefreshTimer->setInterval(250);
    connect(m_batchRefreshTimer, &QTimer::timeout, this,
            &BRDuplicateFilesViewController::refreshAfterBatch);
    setObjectName(QStringLiteral("BRDuplicateFilesViewController"));
    buildScreen();
    connectResults();
    connect(m_removal, &CopyRemoval::finished, this,
            &BRDuplicateFilesViewController::removalFinished);
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
    m_selectedFolderImageView->setAccessibleName(
        QCoreApplication::translate("BRDuplicateFilesViewController", "Scanned folder"));
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
    m_searchField->setPlaceholderText(
        QCoreApplication::translate("BRDuplicateFilesViewController", "Search by name"));
    // The placeholder goes once something is typed; the name stays.
    m_searchField->setAccessibleName(
        QCoreApplication::translate("BRDuplicateFilesViewController", "Search by name"));
    m_searchField->setClearButtonEnabled(true);
    m_searchField->setFixedWidth(220);
    QAction *searchIcon = m_searchField->addAction(QIcon::fromTheme(QStringLiteral("edit-find")),
                                                   QLineEdit::LeadingPosition);
    // The field's two icons are buttons to assistive tools; their actions give the names.
    searchIcon->setText(QCoreApplication::translate("BRDuplicateFilesViewController", "Search"));
    searchIcon->setToolTip(
        QCoreApplication::translate("BRDuplicateFilesViewController", "Search by name"));
    connect(searchIcon, &QAction::triggered, m_searchField,
            [this] { m_searchField->setFocus(Qt::ShortcutFocusReason); });
    if (auto *clearSearch =
            m_searchField->findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction"))) {
        clearSearch->setText(
            QCoreApplication::translate("BRDuplicateFilesViewController", "Clear search"));
        clearSearch->setToolTip(
            QCoreApplication::translate("BRDuplicateFilesViewController", "Clear search"));
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
    m_keepOneButton = KeepOneMenu::makeButton(
        header, QCoreApplication::translate("BRDuplicateFilesViewController", "each group listed"),
        m_openPanel != nullptr,
        [this](KeepOnePlan::Rule rule) { keepOneCopyOfGroupsOnScreen(rule); });
    headerLayout->addWidget(m_keepOneButton);
    headerLayout->addWidget(m_searchField);

    // The model lives and dies with the results it reads.
    m_model = new DuplicateTableModel(*m_results, m_results);
    m_duplicateTableView = new BRDuplicateTableView(this);
    m_duplicateTableView->setObjectName(QStringLiteral("duplicateTableView"));
    m_duplicateTableView->setAccessibleName(
        QCoreApplication::translate("BRDuplicateFilesViewController", "Duplicates"));
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

void BRDuplicateFilesViewController::setDesktopNotifier(DesktopNotifier *notifier,
                                                        ScanAttention::Clock now)
{
    m_attention = notifier ? std::make_unique<ScanAttention>(*notifier, std::move(now)) : nullptr;
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
    // Keeping one copy waits for the scan to end: until then the groups still change.
    m_keepOneButton->setEnabled(false);
    if (m_sortAndCancelTabViewDelegate)
        m_sortAndCancelTabViewDelegate->selectTabAtIndex(1);
    if (m_sortViewDelegate)
        m_sortViewDelegate->enableSortType(SubType::All);
    m_selectedUrl = folderUrl;
    if (!folderUrl || folderUrl->path().isEmpty())
        return;
    setBottomBarControls();
    const QString folder =
        folderUrl->toLocalFile().isEmpty() ? folderUrl->path() : folderUrl->toLocalFile();
    m_results->startScan(folder);
    if (m_attention)
        m_attention->scanStarted(folder);
    m_progressTimer->start(m_timings.progressPollMs);
    pollScanProgress();
}

void BRDuplicateFilesViewController::updateDuplicateFiles(const ScanReport &report)
{
    m_results->postReport(report);
}

void BRDuplicateFilesViewController::scanEnded(int groupsHeld)
{
    m_keepOneButton->setEnabled(!isKeepingOne());
    if (m_appDelegate) {
        m_appDelegate->duplicateScanStatus = false;
        m_appDelegate->duplicateFilesCount = groupsHeld;
    }
    m_progressTimer->stop();
    if (m_cancelViewDelegate)
        m_cancelViewDelegate->stopAnimateProgress();
    if (m_attention)
        m_attention->scanEnded();
}

void BRDuplicateFilesViewController::announceScanEnd(qint64 duplicatesFound)
{
    if (!m_attention)
        return;
    QPointer<QWidget> shown = window();
    m_attention->scanFinished(duplicatesFound, shown->isActiveWindow(), [shown] {
        if (!shown)
            return;
        qCInfo(resultsLog) << "the scan's notification was clicked: the window comes back";
        shown->setWindowState(shown->windowState() & ~Qt::WindowMinimized);
        shown->show();
        shown->raise();
        shown->activateWindow();
    });
}

void BRDuplicateFilesViewController::scanCompleted(qint64 duplicatesFound)
{
    if (m_duplicateMainViewDelegate)
        m_duplicateMainViewDelegate->updateMainTabViewStatus(false);
    if (m_sortAndCancelTabViewDelegate)
        m_sortAndCancelTabViewDelegate->selectTabAtIndex(0);
    // Before the alert, which waits for the user, and while the window is still as it was.
    announceScanEnd(duplicatesFound);
    showAlert(QCoreApplication::translate("BRDuplicateFilesViewController",
                                          "Duplicate files scan complete."),
              QCoreApplication::translate("BRDuplicateFilesViewController",
                                          "%n duplicate files found.", nullptr,
                                          pluralCount(duplicatesFound)));
}

void BRDuplicateFilesViewController::scanFoundNothing()
{
    if (m_duplicateMainViewDelegate)
        m_duplicateMainViewDelegate->updateMainTabViewStatus(false);
    announceScanEnd(0);
    showDuplicateStatusView();
}

void BRDuplicateFilesViewController::pollScanProgress()
{
    const std::optional<BRDuplicateFinderClass::Progress> progress = m_results->scanProgress();
    if (!progress || !m_cancelViewDelegate)
        return;
    m_cancelViewDelegate->updateScanProgress(progress->entriesScanned, progress->currentFolder);
    if (m_attention)
        m_attention->scanProgressed(progress->currentFolder);
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
    // While copies are being removed, the bar's Stop stops that, without a question: what
    // went is in the Trash and what is left stays.
    if (isKeepingOne()) {
        m_keepOneRun->stop();
        return;
    }
    const int answer = m_alerts.runModal(
        {QCoreApplication::translate("BRDuplicateFilesViewController",
                                     "Stop duplicate files scan?"),
         QCoreApplication::translate(
             "BRDuplicateFilesViewController",
             "Duplicate files scan is in progress. Are you sure you want to stop "
             "the scan?"),
         {QCoreApplication::translate("BRDuplicateFilesViewController", "Stop"),
          QCoreApplication::translate("BRDuplicateFilesViewController", "Cancel")}});
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
        {QCoreApplication::translate("BRDuplicateFilesViewController", "Start a new scan?"),
         QCoreApplication::translate(
             "BRDuplicateFilesViewController",
             "The current list of the duplicate search results will be lost. Are "
             "you sure you want to start a new scan?"),
         {QCoreApplication::translate("BRDuplicateFilesViewController", "New scan"),
          QCoreApplication::translate("BRDuplicateFilesViewController", "Cancel")}});
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
    // A copy being checked stays where it is; one already moved is in the Trash. Either
    // way the groups it belonged to are gone.
    if (m_keepOneRun) {
        m_keepOneRun->disconnect(this);
        m_keepOneRun->stop();
        m_keepOneRun->deleteLater();
    }
    m_batchRefreshTimer->stop();
    m_removal->abandon();
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
    if (!fileExistsAtPath(path)) {
        removeFileAtPath(path, key);
        return;
    }
    // The copy goes only once it is proven a copy; that may take a while for a large file,
    // so it is checked on a worker while its row says so.
    QStringList others = record->filePath;
    others.removeAll(path);
    if (!m_removal->start({key, path, others, stampOf(record->fileStamps, path)}))
        return;
    if (m_previewDelegate && m_previewDelegate->key() == key)
        m_previewDelegate->setChecking(path, true);
}

bool BRDuplicateFilesViewController::isRemovingCopies() const
{
    return m_removal->isBusy();
}

void BRDuplicateFilesViewController::removalFinished(const CopyRemoval::Result &result)
{
    if (result.request.batch != 0) {
        batchRemovalFinished(result);
        return;
    }
    const QString &key = result.request.key;
    const QString &path = result.request.path;
    if (result.outcome == CopyRemoval::Outcome::Trashed) {
        copyWentToTrash(key, path); // its row leaves the popover
        return;
    }
    if (m_previewDelegate && m_previewDelegate->key() == key)
        m_previewDelegate->setChecking(path, false);
    switch (result.outcome) {
    case CopyRemoval::Outcome::Trashed:
        return;
    case CopyRemoval::Outcome::Vanished:
        removeFileAtPath(path, key);
        return;
    case CopyRemoval::Outcome::Cancelled:
        return;
    case CopyRemoval::Outcome::Changed:
    case CopyRemoval::Outcome::LastCopy:
    case CopyRemoval::Outcome::NotACopy:
    case CopyRemoval::Outcome::Unreadable:
    case CopyRemoval::Outcome::TrashRefused:
        break;
    }
    qCWarning(resultsLog).noquote() << "kept" << path << ":" << result.message << result.detail;
    showAlert(QCoreApplication::translate("BRDuplicateFilesViewController",
                                          "Could not remove some files"),
              result.message);
}

void BRDuplicateFilesViewController::copyWentToTrash(const QString &key, const QString &path)
{
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
    if (m_previewDelegate && m_previewDelegate->key() == key)
        m_previewDelegate->removeDataAtIndex(
            static_cast<int>(m_previewDelegate->filePaths().indexOf(path)));
    m_results->recountAfterRemoval();
}

// ---------------------------------------------------------------------------------------
// Keep one, trash the rest

bool BRDuplicateFilesViewController::isKeepingOne() const
{
    return m_keepOneRun && m_keepOneRun->isRunning();
}

void BRDuplicateFilesViewController::keepOneCopyOfGroupsOnScreen(KeepOnePlan::Rule rule)
{
    if (m_results->listContent() != DuplicateResults::ListContent::Groups)
        return;
    keepOneCopy(rule, m_results->checkSearchActiveAndGetData());
}

void BRDuplicateFilesViewController::keepOneCopy(KeepOnePlan::Rule rule, const QStringList &keys)
{
    // One run at a time, and not while the scan still changes the groups.
    if (isKeepingOne() || !m_results->scanStatus() || keys.isEmpty())
        return;
    QString folder;
    if (rule == KeepOnePlan::Rule::InFolder) {
        if (!m_openPanel)
            return;
        OpenPanelRequest request;
        request.message = QCoreApplication::translate("BRDuplicateFilesViewController",
                                                      "Choose the folder whose copies to keep");
        request.prompt =
            QCoreApplication::translate("BRDuplicateFilesViewController", "Keep Copies Here");
        request.canChooseFiles = false;
        request.canChooseDirectories = true;
        const QList<QUrl> chosen = m_openPanel->runModal(request);
        if (chosen.isEmpty())
            return;
        folder = chosen.constFirst().toLocalFile();
    }
    const KeepOnePlan plan = KeepOnePlan::make(m_results->groups(), keys, rule, folder);
    m_keepOneRuleText = KeepOneMenu::ruleText(rule, QFileInfo(folder).fileName());
    m_keepOneFolder = folder;
    m_keepOneSkipped = plan.groupsWithoutAChoice();
    if (plan.filesToRemove() == 0) {
        showAlert(QCoreApplication::translate("BRDuplicateFilesViewController",
                                              "No files to move to the Trash"),
                  rule == KeepOnePlan::Rule::InFolder
                      ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                                    "No group listed has a copy in “%1”.")
                            .arg(QFileInfo(folder).fileName())
                      : QCoreApplication::translate("BRDuplicateFilesViewController",
                                                    "Every group listed has one copy only."));
        return;
    }

    const qsizetype files = plan.filesToRemove();
    const qsizetype groups = plan.groups().size();
    // English says "1 group" but "2 groups"; each form is a text of its own to translate.
    const int groupCount = pluralCount(groups);
    const int fileCount = pluralCount(files);
    QString text =
        (groups == 1 ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                                   "One copy of each of %n group stays: %1.",
                                                   nullptr, groupCount)
                     : QCoreApplication::translate("BRDuplicateFilesViewController",
                                                   "One copy of each of %n groups stays: %1.",
                                                   nullptr, groupCount))
            .arg(m_keepOneRuleText) +
        u' ' +
        (files == 1 ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                                  "%n file goes to the Trash and frees %1.",
                                                  nullptr, fileCount)
                    : QCoreApplication::translate("BRDuplicateFilesViewController",
                                                  "%n files go to the Trash and free %1.", nullptr,
                                                  fileCount))
            .arg(ByteCountFormatter::binary(plan.bytesFreed())) +
        u' ' +
        QCoreApplication::translate("BRDuplicateFilesViewController",
                                    "Each is compared with the copy that stays before it goes.");
    if (m_keepOneSkipped > 0)
        text +=
            u' ' +
            (m_keepOneSkipped == 1
                 ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                               "%n group has no copy in “%1” and is left whole.",
                                               nullptr, pluralCount(m_keepOneSkipped))
                 : QCoreApplication::translate("BRDuplicateFilesViewController",
                                               "%n groups have no copy in “%1” and are left whole.",
                                               nullptr, pluralCount(m_keepOneSkipped)))
                .arg(QFileInfo(folder).fileName());
    const int answer = m_alerts.runModal(
        {files == 1
             ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                           "Move %n file to the Trash?", nullptr, fileCount)
             : QCoreApplication::translate("BRDuplicateFilesViewController",
                                           "Move %n files to the Trash?", nullptr, fileCount),
         text,
         {QCoreApplication::translate("BRDuplicateFilesViewController", "Move to Trash"),
          QCoreApplication::translate("BRDuplicateFilesViewController", "Cancel")}});
    if (answer != AlertPresenter::firstButton)
        return;

    closePopOver();
    auto *run = new KeepOneRun(*m_removal, m_results->groups(), plan, this);
    m_keepOneRun = run;
    connect(run, &KeepOneRun::progressed, this,
            [this](int done, int total) { m_cancelView->showRemovalProgress(done, total); });
    connect(run, &KeepOneRun::ended, this, &BRDuplicateFilesViewController::keepOneRunEnded);
    m_keepOneButton->setEnabled(false);
    if (m_sortAndCancelTabViewDelegate)
        m_sortAndCancelTabViewDelegate->selectTabAtIndex(1);
    run->start();
}

void BRDuplicateFilesViewController::batchRemovalFinished(const CopyRemoval::Result &result)
{
    // The run counts what stayed and says so once at its end; the lists follow each copy
    // that went, and are redrawn and recounted a few times a second.
    switch (result.outcome) {
    case CopyRemoval::Outcome::Trashed:
        m_results->forgetCopy(result.request.key, result.request.path);
        break;
    case CopyRemoval::Outcome::Vanished:
        m_results->dropVanishedCopy(result.request.key, result.request.path);
        break;
    default:
        return;
    }
    if (!m_batchRefreshTimer->isActive())
        m_batchRefreshTimer->start();
}

void BRDuplicateFilesViewController::refreshAfterBatch()
{
    if (m_results->selectedSortType() == SortOrder::Size)
        m_results->checkSortTypeAndSortData();
    else
        m_results->reloadData();
    m_results->recountAfterRemoval();
}

void BRDuplicateFilesViewController::keepOneRunEnded()
{
    KeepOneRun *run = m_keepOneRun;
    if (!run)
        return;
    m_batchRefreshTimer->stop();
    refreshAfterBatch();
    m_keepOneButton->setEnabled(true);
    if (m_sortAndCancelTabViewDelegate)
        m_sortAndCancelTabViewDelegate->selectTabAtIndex(0);
    const KeepOneRun::Tally &tally = run->tally();

    QStringList sentences;
    if (tally.trashed > 0)
        sentences.append(
            (tally.trashed == 1
                 ? QCoreApplication::translate("BRDuplicateFilesViewController", "It frees %1.")
                 : QCoreApplication::translate("BRDuplicateFilesViewController", "They free %1."))
                .arg(ByteCountFormatter::binary(tally.bytesFreed)));
    // The "many" texts hold %n, filled in here with the count.
    const auto kept = [&](CopyRemoval::Outcome outcome, const QString &one, const char *many,
                          const QString &tail = QString()) {
        const int count = tally.kept.value(outcome);
        if (count > 0)
            sentences.append(count == 1
                                 ? one
                                 : QCoreApplication::translate("BRDuplicateFilesViewController",
                                                               many, nullptr, count) +
                                       tail);
    };
    kept(CopyRemoval::Outcome::Changed,
         QCoreApplication::translate("BRDuplicateFilesViewController",
                                     "1 file was kept: it had changed since the scan."),
         QT_TRANSLATE_N_NOOP("BRDuplicateFilesViewController",
                             "%n files were kept: they had changed since the scan."));
    kept(CopyRemoval::Outcome::NotACopy,
         QCoreApplication::translate(
             "BRDuplicateFilesViewController",
             "1 file was kept: it is not an exact copy of the one that stays."),
         QT_TRANSLATE_N_NOOP(
             "BRDuplicateFilesViewController",
             "%n files were kept: they are not exact copies of the ones that stay."));
    kept(CopyRemoval::Outcome::LastCopy,
         QCoreApplication::translate("BRDuplicateFilesViewController",
                                     "1 file was kept: the copy meant to stay is gone."),
         QT_TRANSLATE_N_NOOP("BRDuplicateFilesViewController",
                             "%n files were kept: the copies meant to stay are gone."));
    kept(CopyRemoval::Outcome::Unreadable,
         QCoreApplication::translate("BRDuplicateFilesViewController",
                                     "1 file was kept: it could not be compared."),
         QT_TRANSLATE_N_NOOP("BRDuplicateFilesViewController",
                             "%n files were kept: they could not be compared."));
    kept(CopyRemoval::Outcome::TrashRefused,
         QCoreApplication::translate("BRDuplicateFilesViewController", "1 file was kept: %1")
             .arg(tally.trashError),
         QT_TRANSLATE_N_NOOP("BRDuplicateFilesViewController", "%n files were kept. The first: "),
         tally.trashError);
    kept(CopyRemoval::Outcome::Vanished,
         QCoreApplication::translate("BRDuplicateFilesViewController", "1 file was gone already."),
         QT_TRANSLATE_N_NOOP("BRDuplicateFilesViewController", "%n files were gone already."));
    if (m_keepOneSkipped > 0)
        sentences.append(
            (m_keepOneSkipped == 1
                 ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                               "%n group had no copy in “%1” and was left whole.",
                                               nullptr, pluralCount(m_keepOneSkipped))
                 : QCoreApplication::translate("BRDuplicateFilesViewController",
                                               "%n groups had no copy in “%1” and were left whole.",
                                               nullptr, pluralCount(m_keepOneSkipped)))
                .arg(QFileInfo(m_keepOneFolder).fileName()));
    if (tally.notChecked > 0)
        sentences.append(
            tally.notChecked == 1
                ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                              "Stopped: %n file was not checked and stayed.",
                                              nullptr, pluralCount(tally.notChecked))
                : QCoreApplication::translate("BRDuplicateFilesViewController",
                                              "Stopped: %n files were not checked and stayed.",
                                              nullptr, pluralCount(tally.notChecked)));
    const QString title =
        tally.trashed == 0   ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                                           "No files were moved to the Trash")
        : tally.trashed == 1 ? QCoreApplication::translate("BRDuplicateFilesViewController",
                                                           "1 file was moved to the Trash")
                             : QCoreApplication::translate("BRDuplicateFilesViewController",
                                                           "%n files were moved to the Trash",
                                                           nullptr, pluralCount(tally.trashed));
    qCInfo(resultsLog).noquote() << title << sentences.join(u' ');
    run->deleteLater();
    showAlert(title, sentences.join(u' '));
    if (m_results->groups().isEmpty())
        showDuplicateStatusView();
}

void BRDuplicateFilesViewController::removeFileAtPath(const QString &path, const QString &key)
{
    // Only a copy that went behind our back comes here: it leaves the group as if it had
    // been removed here. One that exists goes through the check and the Trash on a worker.
    if (fileExistsAtPath(path))
        return;
    const GroupRecord *record = m_results->groups().find(key);
    if (!record)
        return;
    showAlert(QCoreApplication::translate("BRDuplicateFilesViewController", "File does not exist"),
              QCoreApplication::translate("BRDuplicateFilesViewController", "%1 does not exist")
                  .arg(record->fileName));
    m_results->dropVanishedCopy(key, path);
    if (m_results->groups().isEmpty())
        showDuplicateStatusView();
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
    showTotals(m_results->totaldupes(), m_results->reclaimableBytes());
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
    controller->setSameFileRows(HardLinks::sameFileAs(*record));
    for (const QString &path : record->filePath) {
        if (m_removal->isPending(path))
            controller->setChecking(path, true);
    }
    controller->setFileInfo(key, {record->fileName, record->fileType, record->fileSize});
    controller->showPreview(QUrl::fromLocalFile(record->filePath.constFirst()));
    controller->setFileNameAndReloadData(record->fileName);

    auto *popover = new RowAnchoredPopover(controller, this);
    // A screen reader says the group's name when the focus enters the popover.
    popover->setAccessibleName(record->fileName);
    m_popover = popover;
    // Checks of copies the user can no longer see are given up; nothing moves.
    connect(popover, &RowAnchoredPopover::closed, m_removal, &CopyRemoval::stopChecks);
    const QRect rowRect = m_duplicateTableView->visualRect(m_model->index(row));
    popover->showRelativeToRect(rowRect, m_duplicateTableView->viewport(), Qt::RightEdge);
    // The keyboard starts on the first copy, where Delete and Ctrl+Enter act.
    if (QWidget *first = controller->cellAt(0))
        first->setFocus(Qt::PopupFocusReason);
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
