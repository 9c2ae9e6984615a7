#include "BRRenameViewController.h"

#include "AlertPresenter.h"
#include "ApplicationStatus.h"
#include "BRAddTextViewController.h"
#include "BRChangeFileNameViewController.h"
#include "BRColorHelper.h"
#include "BRDragAndDropView.h"
#include "BRFilePreviewPopoverViewController.h"
#include "BRObjectClass.h"
#include "BRRenameCompleteView.h"
#include "BRRenameCustomView.h"
#include "BRRenameTabViewController.h"
#include "BRRenameTableView.h"
#include "BRRenameViewRenameButton.h"
#include "OpenPanel.h"
#include "RenameFont.h"
#include "RenameNotificationCenter.h"
#include "RenameTableModel.h"
#include "RowAnchoredPopover.h"
#include "ViewFader.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>
#include <memory>

namespace {

const QString fileDoesNotExistTitle = QStringLiteral("File does not exist");
const QString missingFilesTitle = QStringLiteral("Missing files");
const QString missingFilesText = QStringLiteral("Some files are missing and could not be found.");

QString doesNotExistText(const QString &key)
{
    return key + QStringLiteral(" does not exist");
}

} // namespace

// What a rule run hands back: its report, and the names it wrote into its copy.
struct BRRenameViewController::RuleRunResult
{
    std::optional<RuleRunReport> report;
    RenameFileDetails details;
};

// What a rename run hands back: the rows' outcomes, the places of files found by
// bookmark, and the files that could not be found at all.
struct BRRenameViewController::RenameRunResult
{
    ExecutionReport report;
    QStringList keys;
    RenameFileDetails details;
    RenameBookmarks bookmarks;
};

BRRenameViewController::BRRenameViewController(const Services &services, QWidget *parent)
    : QWidget(parent), m_alerts(services.alerts), m_openPanel(services.openPanel),
      m_appDelegate(services.appDelegate), m_center(new RenameNotificationCenter(this))
{
    setObjectName(QStringLiteral("renameViewController"));
    buildScreen();
    m_model = m_renameTableView->renameModel();
    m_model->setContents(&m_renameFileDetailsKey, &m_renameFileDetails);
    m_model->setAcceptDrop([this](const QList<QUrl> &urls) { return tableViewAcceptDrop(urls); });

    m_renameTableView->setRenameDelegate(this);
    if (m_renameFileDetailsKey.isEmpty())
        setViewsHiddenState(true, false, true, true);
    connect(m_center, &RenameNotificationCenter::dragAndDropComplete, this,
            &BRRenameViewController::setFileSourceUrlsAfterDragAndDrop);
    connect(m_center, &RenameNotificationCenter::renameDone, this,
            &BRRenameViewController::displayDragAndDropView);
    disableRenameButton();
}

BRRenameViewController::~BRRenameViewController()
{
    closePopOver();
    if (auto *host = dynamic_cast<WindowDelegateHost *>(window());
        host && host->windowDelegate() == this)
        host->setWindowDelegate(nullptr);
}

void BRRenameViewController::buildScreen()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_dragAndDropView = new BRDragAndDropView(m_center, m_openPanel, this);
    m_dragAndDropView->setObjectName(QStringLiteral("dragAndDropView"));
    layout->addWidget(m_dragAndDropView);

    // The rule panels above the list, on the list's white ground.
    m_containerView = new BRRenameCustomView(this);
    m_containerView->setObjectName(QStringLiteral("containerView"));
    auto *containerLayout = new QVBoxLayout(m_containerView);
    containerLayout->setContentsMargins(24, 16, 24, 8);
    m_tabViewController = new BRRenameTabViewController(m_center, m_containerView);
    m_tabViewController->changeFileNameViewController()->setDelegate(this);
    m_tabViewController->addTextViewController()->setDelegate(this);
    containerLayout->addWidget(m_tabViewController);
    layout->addWidget(m_containerView);

    m_renameCustomView = new BRRenameCustomView(this);
    m_renameCustomView->setObjectName(QStringLiteral("renameCustomView"));
    auto *listLayout = new QVBoxLayout(m_renameCustomView);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->setSpacing(0);
    m_renameTableView = new BRRenameTableView(m_renameCustomView);
    listLayout->addWidget(m_renameTableView, 1);

    auto *bar = new QWidget(m_renameCustomView);
    bar->setObjectName(QStringLiteral("renameButtonBar"));
    bar->setStyleSheet(QStringLiteral(
        "#renameButtonBar { background: rgb(247, 247, 247); border-top: 1px solid rgb(226, 226, "
        "226); }"));
    auto *barLayout = new QHBoxLayout(bar);
    barLayout->setContentsMargins(24, 12, 24, 12);
    barLayout->setSpacing(12);
    const QString plainButton = QStringLiteral(
        "QPushButton { color: rgb(74, 74, 74); background: white; border: 1px solid rgb(205, "
        "205, 205); border-radius: 5px; padding: 7px 16px; }"
        "QPushButton:hover { background: rgb(240, 240, 240); }"
        "QPushButton:pressed { background: rgb(228, 228, 228); }");
    m_browseButton = new QPushButton(tr("Add Files…"), bar);
    m_browseButton->setObjectName(QStringLiteral("browseButton"));
    m_browseButton->setStyleSheet(plainButton);
    m_clearButton = new QPushButton(tr("Clear"), bar);
    m_clearButton->setObjectName(QStringLiteral("clearButton"));
    m_clearButton->setStyleSheet(plainButton);
    m_renameButton = new BRRenameViewRenameButton(bar);
    m_renameButton->setObjectName(QStringLiteral("renameButton"));
    m_renameButton->setMinimumWidth(200);
    barLayout->addWidget(m_browseButton);
    barLayout->addWidget(m_clearButton);
    barLayout->addStretch(1);
    barLayout->addWidget(m_renameButton);
    listLayout->addWidget(bar);
    layout->addWidget(m_renameCustomView, 1);

    m_renameCompleteStatusView = new BRRenameCompleteView(m_center, this);
    m_renameCompleteStatusView->setObjectName(QStringLiteral("renameCompleteStatusView"));
    layout->addWidget(m_renameCompleteStatusView, 1);

    connect(m_browseButton, &QPushButton::clicked, this, &BRRenameViewController::browseAction);
    connect(m_clearButton, &QPushButton::clicked, this, &BRRenameViewController::clearAction);
    connect(m_renameButton, &QPushButton::clicked, this, &BRRenameViewController::renameAction);
}

void BRRenameViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // While this screen is up, closing the window asks what it would lose.
    if (auto *host = dynamic_cast<WindowDelegateHost *>(window()))
        host->setWindowDelegate(this);
}

// ---------------------------------------------------------------------------------------
// The list

void BRRenameViewController::saveSourceUrls(const std::optional<QList<QUrl>> &urls)
{
    if (!urls)
        return;
    m_brRenameFormat.emplace();
    bool duplicateMet = false;
    // Asking the list itself would cost a pass over it per file: minutes for a big drop.
    QSet<QString> listed(m_renameFileDetailsKey.cbegin(), m_renameFileDetailsKey.cend());
    for (const QUrl &url : *urls) {
        const QString path = url.toLocalFile();
        if (path.isEmpty())
            continue;
        const QString key = QFileInfo(path).fileName();
        if (key.isEmpty() || listed.contains(key)) {
            duplicateMet = duplicateMet || !key.isEmpty();
            continue;
        }
        m_brRenameFormat->saveBookmark(url, m_bookmarks);
        listed.insert(key);
        m_renameFileDetailsKey.insert(m_index, key);
        ++m_index;
        m_keysSorted = false;
        m_keysChangedSinceReload = true;
        // The picture is made when the row is first painted, off the main thread.
        RenameRecord record;
        record.sourceURL = QUrl::fromLocalFile(path);
        m_renameFileDetails.insert(key, record);
    }
    reloadTableView();
    disableRenameButton();
    if (duplicateMet)
        showAlert(QStringLiteral("Some files already exist"),
                  QStringLiteral("Some of the files you were adding for rename are already in "
                                 "the list. So they are not added again"));
    if (m_renameFileDetailsKey.isEmpty()) {
        clearAll();
        return;
    }
    if (!m_formatOption || !m_whereOption) {
        reloadTableView();
        return;
    }
    switch (*m_formatOption) {
    case RenameRule::ChangeFullNames:
        renameUsingOption(m_newNameText.value_or(QString()), m_numberText.value_or(QString()),
                          *m_whereOption);
        break;
    case RenameRule::AddText:
        renameUsingAddTextOption(m_addText.value_or(QString()), *m_whereOption);
        break;
    }
}

void BRRenameViewController::delete_(const QString &key)
{
    if (!m_renameFileDetailsKey.isEmpty()) {
        m_renameFileDetailsKey.removeAll(key);
        m_keysChangedSinceReload = true;
        if (m_index != 0)
            --m_index;
        if (m_renameActive)
            enableRenameButton();
        else
            disableRenameButton();
    }
    if (m_renameFileDetailsKey.isEmpty()) {
        clearAll();
        showDragAndDropView();
    }
}

void BRRenameViewController::removeRowFromTableView(QWidget *sender)
{
    if (!sender)
        return;
    const int row = m_renameTableView->rowForView(sender);
    if (row >= 0 && row < m_renameFileDetailsKey.size()) {
        closePopOver();
        delete_(m_renameFileDetailsKey.at(row));
    }
    reloadTableView();
}

void BRRenameViewController::removeDetailsForKey(const QString &field)
{
    const QStringList keys = m_renameFileDetailsKey;
    for (const QString &key : keys) {
        const auto record = m_renameFileDetails.find(key);
        if (record == m_renameFileDetails.end())
            continue;
        if (record->sourceURL.toLocalFile().isEmpty()) {
            showAlert(fileDoesNotExistTitle, doesNotExistText(key));
            delete_(key);
        } else if (record->nameSource != NameSource::HandEdit &&
                   field == QLatin1String("destinationURL")) {
            record->destinationURL.reset();
        }
    }
}

void BRRenameViewController::clearAll()
{
    closePopOver();
    m_renameFileDetailsKey.clear();
    m_keysChangedSinceReload = true;
    m_renameFileDetails.clear();
    m_bookmarks.clear();
    m_sortKeys = NameSortKeys();
    m_keysSorted = true;
    m_index = 0;
    // Runs under way belong to a list that is gone.
    ++m_ruleRunSequence;
    Q_EMIT m_center->clearText();
    m_newNameText.reset();
    m_numberText.reset();
    m_formatOption.reset();
    m_whereOption.reset();
    m_addText.reset();
    m_brRenameFormat.reset();
    disableRenameButton();
}

void BRRenameViewController::sortRenameFileDetailsKey()
{
    if (m_renameFileDetailsKey.isEmpty() || m_keysSorted)
        return;
    // Ranks instead of comparisons: ten thousand names sort in a few milliseconds.
    const std::vector<int> ranks = m_sortKeys.ranksOf(m_renameFileDetailsKey);
    std::vector<qsizetype> order(ranks.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<qsizetype>(i);
    std::stable_sort(order.begin(), order.end(), [&ranks](qsizetype a, qsizetype b) {
        return ranks[static_cast<size_t>(a)] < ranks[static_cast<size_t>(b)];
    });
    QStringList sorted;
    sorted.reserve(m_renameFileDetailsKey.size());
    for (const qsizetype position : order)
        sorted.append(m_renameFileDetailsKey.at(position));
    m_renameFileDetailsKey = std::move(sorted);
    m_keysSorted = true;
    m_keysChangedSinceReload = true;
}

void BRRenameViewController::reloadTableView()
{
    sortRenameFileDetailsKey();
    // Rows that stay where they were only need their names painted again; rebuilding the
    // view of ten thousand rows on every keystroke would be felt.
    if (m_keysChangedSinceReload)
        m_model->reload();
    else
        m_model->refreshNames();
    m_keysChangedSinceReload = false;
}

void BRRenameViewController::setRenameFilesDict()
{
    reloadTableView();
}

bool BRRenameViewController::tableViewAcceptDrop(const QList<QUrl> &urls)
{
    if (urls.isEmpty())
        return false;
    for (const QUrl &url : urls)
        if (!url.isLocalFile())
            return false;
    saveSourceUrls(urls);
    return true;
}

// ---------------------------------------------------------------------------------------
// Rules and hand edits

void BRRenameViewController::renameUsingOption(const QString &newName, const QString &numberText,
                                               NamePlacement where)
{
    m_formatOption = RenameRule::ChangeFullNames;
    m_newNameText = newName;
    m_numberText = numberText;
    m_whereOption = where;
    sortRenameFileDetailsKey();
    if (m_renameFileDetailsKey.isEmpty())
        return;
    if (newName.isEmpty()) {
        clearDestinationFileNames();
        return;
    }
    enableRenameButton();
    startRuleRun();
}

void BRRenameViewController::renameUsingAddTextOption(const QString &text, NamePlacement where)
{
    m_addText = text;
    m_formatOption = RenameRule::AddText;
    m_whereOption = where;
    enableRenameButton();
    sortRenameFileDetailsKey();
    if (m_renameFileDetailsKey.isEmpty())
        return;
    if (text.isEmpty()) {
        clearDestinationFileNames();
        return;
    }
    enableRenameButton();
    startRuleRun();
}

void BRRenameViewController::startRuleRun()
{
    if (!m_brRenameFormat)
        return;
    const quint64 sequence = ++m_ruleRunSequence;
    ++m_ruleRunsInFlight;
    // The worker gets its own copy of the list; the rows here are only written when the
    // run's names land, on this thread.
    const BRRenameFormat format = *m_brRenameFormat;
    const bool fullNames = m_formatOption == RenameRule::ChangeFullNames;
    const QString text =
        fullNames ? m_newNameText.value_or(QString()) : m_addText.value_or(QString());
    const QString numberText = m_numberText.value_or(QString());
    const NamePlacement where = m_whereOption.value_or(NamePlacement::AfterName);
    const QStringList keys = m_renameFileDetailsKey;
    QtConcurrent::run([format, fullNames, text, numberText, where, keys,
                       details = m_renameFileDetails]() mutable {
        auto result = std::make_shared<RuleRunResult>();
        result->report = fullNames
                             ? format.changeFullFileNames(numberText, text, details, keys, where)
                             : format.addTextToFileNames(text, details, keys, where);
        result->details = std::move(details);
        return result;
    }).then(this, [this, sequence](const std::shared_ptr<RuleRunResult> &result) {
        --m_ruleRunsInFlight;
        finishRuleRun(sequence, *result);
    });
}

void BRRenameViewController::finishRuleRun(quint64 sequence, RuleRunResult &result)
{
    // A later text was typed, or the rule or the list was cleared, since this run began.
    if (sequence != m_ruleRunSequence || !result.report) {
        Q_EMIT ruleRunLanded();
        return;
    }
    bool missing = false;
    for (const QString &key : std::as_const(result.report->missingKeys)) {
        missing = true;
        delete_(key);
    }
    // Rows edited by hand while the run worked keep what the user typed.
    for (auto row = m_renameFileDetails.begin(); row != m_renameFileDetails.end(); ++row) {
        const auto named = result.details.constFind(row.key());
        if (named == result.details.cend() || row->nameSource == NameSource::HandEdit ||
            named->sourceURL != row->sourceURL)
            continue;
        row->destinationURL = named->destinationURL;
    }
    if (missing)
        showAlert(missingFilesTitle, missingFilesText);
    setRenameFilesDict();
    Q_EMIT ruleRunLanded();
}

void BRRenameViewController::clearDestinationFileNames()
{
    m_newNameText.reset();
    m_numberText.reset();
    m_formatOption.reset();
    m_whereOption.reset();
    m_addText.reset();
    // Names of a run under way would bring the cleared rule back.
    ++m_ruleRunSequence;
    disableRenameButton();
    removeDetailsForKey(QStringLiteral("destinationURL"));
    reloadTableView();
}

std::optional<QString> BRRenameViewController::createNewFileName(int row) const
{
    if (!m_formatOption || !m_whereOption)
        return std::nullopt;
    if (*m_formatOption == RenameRule::ChangeFullNames)
        return BRRenameFormat::fullFileNameForRow(m_newNameText, m_numberText, *m_whereOption, row);
    if (!m_addText || m_addText->isEmpty() || row < 0 || row >= m_renameFileDetailsKey.size())
        return std::nullopt;
    const auto record = m_renameFileDetails.constFind(m_renameFileDetailsKey.at(row));
    if (record == m_renameFileDetails.cend())
        return std::nullopt;
    return BRRenameFormat::addedTextName(record->sourceURL, *m_addText, *m_whereOption);
}

void BRRenameViewController::updateNewFileName(QLineEdit *textField, std::optional<int> row)
{
    if (!textField)
        return;
    const int position = row ? *row : m_renameTableView->rowForView(textField);
    if (position < 0 || position >= m_renameFileDetailsKey.size())
        return;
    const auto record = m_renameFileDetails.find(m_renameFileDetailsKey.at(position));
    if (record == m_renameFileDetails.end())
        return;
    const QString text = textField->text();
    if (text.isEmpty()) {
        // The edit is withdrawn: the row follows the rule again, if there is one.
        record->nameSource = NameSource::Rule;
        if (const auto ruleName = createNewFileName(position))
            record->destinationURL = *ruleName;
        else
            record->destinationURL.reset();
    } else if (record->destinationURL && *record->destinationURL != text) {
        record->destinationURL = text;
        record->nameSource = NameSource::HandEdit;
    }
    reloadTableView();
}

// ---------------------------------------------------------------------------------------
// Renaming

void BRRenameViewController::renameAction()
{
    if (!m_formatOption)
        return;
    switch (*m_formatOption) {
    case RenameRule::ChangeFullNames:
        if (m_newNameText && !m_newNameText->isEmpty())
            rename();
        break;
    case RenameRule::AddText:
        if (m_addText && !m_addText->isEmpty())
            rename();
        break;
    }
}

void BRRenameViewController::rename()
{
    // One run at a time: a second press while files move would race the first.
    if (m_renameRunning || m_renameFileDetailsKey.isEmpty() || !m_brRenameFormat)
        return;
    closePopOver();
    m_renameRunning = true;
    const BRRenameFormat format = *m_brRenameFormat;
    QtConcurrent::run([format, keys = m_renameFileDetailsKey, details = m_renameFileDetails,
                       bookmarks = m_bookmarks]() mutable {
        auto result = std::make_shared<RenameRunResult>();
        result->report = format.renameFiles(keys, details, bookmarks);
        result->keys = std::move(keys);
        result->details = std::move(details);
        result->bookmarks = std::move(bookmarks);
        return result;
    }).then(this, [this](const std::shared_ptr<RenameRunResult> &result) {
        finishRenameRun(*result);
    });
}

void BRRenameViewController::finishRenameRun(RenameRunResult &result)
{
    m_renameRunning = false;
    // Outcomes first, so the rows still listed carry them when the report is made.
    for (const QString &key : std::as_const(result.keys)) {
        const auto done = result.details.constFind(key);
        const auto row = m_renameFileDetails.find(key);
        if (done == result.details.cend() || row == m_renameFileDetails.end())
            continue;
        row->outcome = done->outcome;
        row->sourceURL = done->sourceURL;
    }
    // Bookmarks refreshed for files found somewhere else; none if the list was cleared.
    if (!m_renameFileDetailsKey.isEmpty())
        m_bookmarks.insert(result.bookmarks);
    bool missing = false;
    for (const QString &key : std::as_const(result.report.missingKeys)) {
        missing = true;
        delete_(key);
    }
    if (missing)
        showAlert(missingFilesTitle, missingFilesText);
    updateStatus();
    Q_EMIT renameRunEnded();
}

void BRRenameViewController::updateStatus()
{
    QStringList renamed;
    bool failed = false;
    for (const QString &key : std::as_const(m_renameFileDetailsKey)) {
        const auto row = m_renameFileDetails.constFind(key);
        if (row == m_renameFileDetails.cend() || !row->destinationURL)
            continue;
        switch (row->outcome) {
        case RenameOutcome::Failed:
            failed = true;
            break;
        case RenameOutcome::Succeeded:
            if (!row->destinationURL->isEmpty())
                renamed.append(*row->destinationURL);
            break;
        case RenameOutcome::NotTried:
            break;
        }
    }
    if (failed)
        showAlert(QStringLiteral("Could not rename some files"),
                  QStringLiteral("Some files could not be renamed since they are locked or you "
                                 "don't have permission to modify them."));
    if (renamed.isEmpty())
        return;
    clearAll();
    reloadTableView();
    fadeOutThenShow(m_renameCompleteStatusView, true, true, true, false,
                    [this, renamed] { Q_EMIT m_center->renameComplete(renamed); });
}

// ---------------------------------------------------------------------------------------
// The screen

void BRRenameViewController::setFileSourceUrlsAfterDragAndDrop(const QList<QUrl> &urls)
{
    fadeOutThenShow(m_dragAndDropView, false, true, false, true);
    saveSourceUrls(urls);
}

void BRRenameViewController::displayDragAndDropView()
{
    fadeOutThenShow(m_renameCompleteStatusView, true, false, true, true);
}

void BRRenameViewController::showDragAndDropView()
{
    fadeOutThenShow(m_dragAndDropView, true, false, true, true);
}

void BRRenameViewController::fadeOutThenShow(QWidget *view, bool containerViewHidden,
                                             bool dragAndDropViewHidden, bool renameViewHidden,
                                             bool completeStatusViewHidden,
                                             std::function<void()> then)
{
    ViewFader::fade(view, 0.0, m_fadeMs,
                    [this, view, containerViewHidden, dragAndDropViewHidden, renameViewHidden,
                     completeStatusViewHidden, then = std::move(then)] {
                        setViewsHiddenState(containerViewHidden, dragAndDropViewHidden,
                                            renameViewHidden, completeStatusViewHidden);
                        ViewFader::setAlpha(view, 1.0);
                        if (then)
                            then();
                    });
}

void BRRenameViewController::setViewsHiddenState(bool containerViewHidden,
                                                 bool dragAndDropViewHidden, bool renameViewHidden,
                                                 bool completeStatusViewHidden)
{
    // Hide before showing: for a moment with two states on screen, the window would grow
    // to hold both.
    const std::pair<QWidget *, bool> views[] = {
        {m_containerView, containerViewHidden},
        {m_dragAndDropView, dragAndDropViewHidden},
        {m_renameCustomView, renameViewHidden},
        {m_renameCompleteStatusView, completeStatusViewHidden}};
    for (const auto &[view, hidden] : views)
        if (hidden)
            view->hide();
    for (const auto &[view, hidden] : views)
        if (!hidden)
            view->show();
}

void BRRenameViewController::browseAction()
{
    const QList<QUrl> urls =
        m_openPanel.runModal(BRDragAndDropView::filesToRenameRequest(tr("Add files to rename")));
    if (!urls.isEmpty())
        saveSourceUrls(urls);
}

void BRRenameViewController::clearAction()
{
    clearAll();
    reloadTableView();
    showDragAndDropView();
}

void BRRenameViewController::enableRenameButton()
{
    m_renameActive = true;
    refreshRenameButtonTitle();
}

void BRRenameViewController::disableRenameButton()
{
    m_renameActive = false;
    refreshRenameButtonTitle();
}

void BRRenameViewController::refreshRenameButtonTitle()
{
    // The words stay "files" for a single file too.
    const QString title = QStringLiteral("Rename %1 files").arg(m_renameFileDetailsKey.size());
    setRenameButtonTitle(title, m_renameActive ? BRColorHelper::color(255, 255, 255, 1.0)
                                               : BRColorHelper::color(255, 255, 255, 0.5));
}

void BRRenameViewController::setRenameButtonTitle(const QString &title, const QColor &color)
{
    m_renameButton->setFont(RenameFont::helveticaNeue(18));
    m_renameButton->setText(title);
    // The button stays clickable in both looks: a press without a rule does nothing.
    const QString ground = m_renameActive ? QStringLiteral("rgb(31, 201, 126)")
                                          : QStringLiteral("rgba(128, 128, 128, 0.3)");
    m_renameButton->setStyleSheet(
        QStringLiteral("QPushButton { color: rgba(%1, %2, %3, %4); background: %5; border: none; "
                       "border-radius: 5px; padding: 8px 18px; }")
            .arg(color.red())
            .arg(color.green())
            .arg(color.blue())
            .arg(color.alphaF())
            .arg(ground));
}

// ---------------------------------------------------------------------------------------
// The popover

void BRRenameViewController::showPopOverForView(QWidget *sender)
{
    if (!sender)
        return;
    const int row = m_renameTableView->rowForView(sender);
    if (row >= 0)
        showPopOver(row);
}

void BRRenameViewController::showPopOver(int row)
{
    if (row < 0 || row >= m_renameFileDetailsKey.size())
        return;
    const QString key = m_renameFileDetailsKey.at(row);
    const auto record = m_renameFileDetails.constFind(key);
    if (record == m_renameFileDetails.cend())
        return;
    const QString path = record->sourceURL.toLocalFile();
    if (path.isEmpty()) {
        showAlert(fileDoesNotExistTitle, doesNotExistText(key));
        delete_(key);
        reloadTableView();
        return;
    }
    if (!QFileInfo::exists(path))
        return;

    closePopOver();
    auto *preview = new BRFilePreviewPopoverViewController();
    preview->setDelegate(this);
    preview->setIndex(row);
    m_popover = new RowAnchoredPopover(preview, this);
    // Only a row on screen has somewhere to point at; the popover is not shown otherwise.
    const QRect anchor = m_renameTableView->popoverAnchorForRow(row);
    if (!anchor.isEmpty())
        m_popover->showRelativeToRect(anchor, m_renameTableView, Qt::LeftEdge);
    preview->setCurrentName(QFileInfo(path).fileName());

    // The popover opens at once; its picture follows.
    QPointer<BRFilePreviewPopoverViewController> target(preview);
    QtConcurrent::run([path] {
        return BRObjectClass().thumbnailForPath(path, 260, 260);
    }).then(this, [target](const std::optional<QImage> &image) {
        if (target && image)
            target->setImage(*image);
    });
    if (record->destinationURL && !record->destinationURL->isEmpty())
        preview->setEditableName(*record->destinationURL);
}

void BRRenameViewController::closePopOver()
{
    if (m_popover)
        m_popover->close();
}

// ---------------------------------------------------------------------------------------
// Alerts and closing

void BRRenameViewController::showAlert(const QString &title, const QString &description)
{
    m_alerts.runModal({title, description, {QStringLiteral("OK")}});
}

bool BRRenameViewController::showQuitAlert(const QString &title, const QString &message)
{
    return m_alerts.runModal(
               {title, message, {QStringLiteral("Quit"), QStringLiteral("Cancel")}}) ==
           AlertPresenter::firstButton;
}

bool BRRenameViewController::windowShouldClose()
{
    if (!m_appDelegate)
        return true;
    if (!m_renameFileDetailsKey.isEmpty())
        return showQuitAlert(QStringLiteral("Quit Quillmere?"),
                             QStringLiteral("There are files selected for rename. Are you sure "
                                            "you want to quit Quillmere?"));
    if (!m_appDelegate->duplicateScanStatus && m_appDelegate->duplicateFilesCount > 0) {
        const bool quit = showQuitAlert(
            QStringLiteral("Quit Quillmere?"),
            QStringLiteral("The current list of the duplicate search results will be lost. Are "
                           "you sure you want to quit Quillmere?"));
        if (quit) {
            m_appDelegate->duplicateScanStatus = false;
            m_appDelegate->duplicateFilesCount = 0;
        }
        return quit;
    }
    return true;
}
