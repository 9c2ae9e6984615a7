#include "BRRenameViewController.h"

#include "AlertPresenter.h"
#include "BRAddTextViewController.h"
#include "BRChangeFileNameViewController.h"
#include "BRDragAndDropView.h"
#include "BRFilePreviewPopoverViewController.h"
#include "BRObjectClass.h"
#include "BRRenameCompleteView.h"
#include "BRRenameCustomView.h"
#include "BRRenameTabViewController.h"
#include "BRRenameTableView.h"
#include "BRRenameViewRenameButton.h"
#include "Look.h"
#include "LookStyleSheets.h"
#include "OpenPanel.h"
#include "RenameList.h"
#include "RenameNotificationCenter.h"
#include "RenameProblemText.h"
#include "RenameTableModel.h"
#include "RowAnchoredPopover.h"
#include "Translations.h"
#include "ViewFader.h"
#include "WorkerTask.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Functions, not constants: the translator is installed after static initialisation.
QString fileDoesNotExistTitle()
{
    return QCoreApplication::translate("BRRenameViewController", "File does not exist");
}

QString doesNotExistText(const QString &key)
{
    return QCoreApplication::translate("BRRenameViewController", "%1 does not exist").arg(key);
}

} // namespace

BRRenameViewController::BRRenameViewController(const Services &services, QWidget *parent)
    : QWidget(parent), m_alerts(services.alerts), m_openPanel(services.openPanel),
      m_list(new RenameList(this)), m_center(new RenameNotificationCenter(this))
{
    setObjectName(QStringLiteral("renameViewController"));
    buildScreen();
    RenameTableModel *model = m_renameTableView->renameModel();
    model->setList(m_list);
    model->setAcceptDrop([this](const QList<QUrl> &urls) { return m_list->addDropped(urls); });

    m_renameTableView->setRenameDelegate(this);
    connect(m_renameTableView, &BRRenameTableView::rowRemovalRequested, this,
            &BRRenameViewController::removeRow);
    if (m_list->rowCount() == 0)
        setViewsHiddenState(true, false, true, true);
    connect(m_center, &RenameNotificationCenter::dragAndDropComplete, this,
            &BRRenameViewController::setFileSourceUrlsAfterDragAndDrop);
    connect(m_center, &RenameNotificationCenter::renameDone, this,
            &BRRenameViewController::displayDragAndDropView);
    connect(m_center, &RenameNotificationCenter::undoRename, this,
            &BRRenameViewController::undoRename);
    connect(m_center, &RenameNotificationCenter::showFailedFiles, this,
            &BRRenameViewController::showFailedFiles);
    connectList();
    refreshRenameButtonTitle();
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
    bar->setStyleSheet(Look::StyleSheet::buttonBar(bar->objectName()));
    auto *barLayout = new QHBoxLayout(bar);
    barLayout->setContentsMargins(24, 12, 24, 12);
    barLayout->setSpacing(12);
    const QString plainButton = Look::StyleSheet::plainButton();
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
    connect(m_clearButton, &QPushButton::clicked, this, &BRRenameViewController::clear);
    connect(m_renameButton, &QPushButton::clicked, this, &BRRenameViewController::renameAction);
}

void BRRenameViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // While this screen is up, closing the window asks what it would lose.
    if (auto *host = dynamic_cast<WindowDelegateHost *>(window()))
        host->setWindowDelegate(this);
}

void BRRenameViewController::connectList()
{
    connect(m_list, &RenameList::rowCountChanged, this,
            &BRRenameViewController::refreshRenameButtonTitle);
    connect(m_list, &RenameList::renameCountChanged, this,
            &BRRenameViewController::refreshRenameButtonTitle);
    connect(m_list, &RenameList::namesChanged, this,
            &BRRenameViewController::refreshPopoverProblem);
    connect(m_list, &RenameList::renameActiveChanged, this, [this](bool active) {
        m_renameActive = active;
        refreshRenameButtonTitle();
    });
    connect(m_list, &RenameList::cleared, this, [this] {
        closePopOver();
        Q_EMIT m_center->clearText();
    });
    connect(m_list, &RenameList::lastRowRemoved, this,
            &BRRenameViewController::showDragAndDropView);
    connect(m_list, &RenameList::namesAlreadyListed, this, [this] {
        showAlert(QCoreApplication::translate("BRRenameViewController", "Some files already exist"),
                  QCoreApplication::translate(
                      "BRRenameViewController",
                      "Some of the files you were adding for rename are already in "
                      "the list. So they are not added again"));
    });
    connect(m_list, &RenameList::filesMissing, this, [this] {
        showAlert(QCoreApplication::translate("BRRenameViewController", "Missing files"),
                  QCoreApplication::translate("BRRenameViewController",
                                              "Some files are missing and could not be found."));
    });
    connect(m_list, &RenameList::fileDoesNotExist, this, [this](const QString &key) {
        showAlert(fileDoesNotExistTitle(), doesNotExistText(key));
    });
    connect(m_list, &RenameList::renameStarted, this, &BRRenameViewController::closePopOver);
    connect(m_list, &RenameList::renameEnded, this, &BRRenameViewController::renameEnded);
    connect(m_list, &RenameList::undoEnded, this, &BRRenameViewController::undoEnded);
}

int BRRenameViewController::rowCount() const
{
    return m_list->rowCount();
}

void BRRenameViewController::clear()
{
    m_list->clear();
    showDragAndDropView();
}

// ---------------------------------------------------------------------------------------
// What the panels and rows hand over

void BRRenameViewController::renameUsingOption(const QString &newName, const QString &numberText,
                                               NamePlacement where)
{
    m_list->setFullNameRule(newName, numberText, where);
}

void BRRenameViewController::renameUsingAddTextOption(const QString &text, NamePlacement where)
{
    m_list->setAddTextRule(text, where);
}

void BRRenameViewController::clearDestinationFileNames()
{
    m_list->clearRule();
}

void BRRenameViewController::updateNewFileName(QLineEdit *textField, std::optional<int> row)
{
    if (!textField)
        return;
    m_list->setHandName(row ? *row : m_renameTableView->rowForView(textField), textField->text());
}

void BRRenameViewController::removeRowFromTableView(QWidget *sender)
{
    if (!sender)
        return;
    removeRow(m_renameTableView->rowForView(sender));
}

void BRRenameViewController::removeRow(int row)
{
    if (row >= 0 && row < m_list->rowCount()) {
        closePopOver();
        m_list->remove(m_list->keys().at(row));
    }
}

// ---------------------------------------------------------------------------------------
// Renaming

void BRRenameViewController::renameAction()
{
    m_list->renameWithRule();
}

void BRRenameViewController::renameEnded(const QStringList &renamed, int failed)
{
    if (failed > 0)
        showAlert(
            QCoreApplication::translate("BRRenameViewController", "Could not rename some files"),
            QCoreApplication::translate(
                "BRRenameViewController",
                "Some files could not be renamed since they are locked or you "
                "don't have permission to modify them."));
    if (renamed.isEmpty())
        return;
    m_renameCompleteStatusView->setFailedCount(failed);
    m_renameCompleteStatusView->setUndoAvailable(m_list->canUndo());
    fadeOutThenShow(m_renameCompleteStatusView, true, true, true, false,
                    [this, renamed] { Q_EMIT m_center->renameComplete(renamed); });
}

void BRRenameViewController::showFailedFiles()
{
    m_list->restoreFailedRows();
    if (m_list->rowCount() > 0)
        fadeOutThenShow(m_renameCompleteStatusView, false, true, false, true);
}

void BRRenameViewController::undoRename()
{
    m_list->undoLastRename();
}

void BRRenameViewController::undoEnded(qsizetype restored, const QList<UndoFailure> &failures)
{
    m_renameCompleteStatusView->showUndone(restored, failures.size());
    m_renameCompleteStatusView->setUndoAvailable(m_list->canUndo());
    if (failures.isEmpty())
        return;
    // Each file by name with its cause; a long list ends with how many more there are.
    constexpr qsizetype shownAtMost = 12;
    QStringList lines;
    for (const UndoFailure &failure : failures) {
        if (lines.size() == shownAtMost)
            break;
        const QString now =
            failure.presentPath.isEmpty() ? failure.file.toPath : failure.presentPath;
        lines.append(RenameProblemText::undoFailure(
            RenameTableModel::lastPathComponent(QUrl::fromLocalFile(now)),
            QUrl::fromLocalFile(failure.file.fromPath).fileName(), failure.check, failure.error));
    }
    if (failures.size() > shownAtMost)
        lines.append(QCoreApplication::translate("BRRenameViewController",
                                                 "%n more files could not go back either.", nullptr,
                                                 pluralCount(failures.size() - shownAtMost)));
    showAlert(
        QCoreApplication::translate("BRRenameViewController", "Some files keep their new names"),
        lines.join(u'\n'));
}

// ---------------------------------------------------------------------------------------
// The screen

void BRRenameViewController::setFileSourceUrlsAfterDragAndDrop(const QList<QUrl> &urls)
{
    fadeOutThenShow(m_dragAndDropView, false, true, false, true);
    m_list->add(urls);
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
    // A control that was hidden leaves the keyboard nowhere: it goes to the first control
    // of the state now shown (Done, Choose Files…), so Tab and Space go on from there.
    const QWidget *focus = QApplication::focusWidget();
    if (focus && focus->isVisible() && isAncestorOf(focus))
        return;
    for (QWidget *shown :
         {static_cast<QWidget *>(m_renameCompleteStatusView),
          static_cast<QWidget *>(m_dragAndDropView), static_cast<QWidget *>(m_renameTableView)}) {
        // The list itself takes the keyboard, for its arrows, Enter and Delete.
        if (shown == m_renameTableView && shown->isVisible()) {
            shown->setFocus(Qt::OtherFocusReason);
            return;
        }
        if (!shown->isVisible())
            continue;
        for (QWidget *next = shown->nextInFocusChain(); next && next != shown;
             next = next->nextInFocusChain()) {
            if (shown->isAncestorOf(next) && next->isVisible() && next->isEnabled() &&
                (next->focusPolicy() & Qt::TabFocus)) {
                next->setFocus(Qt::OtherFocusReason);
                return;
            }
        }
    }
}

void BRRenameViewController::browseAction()
{
    const QList<QUrl> urls = m_openPanel.runModal(
        BRDragAndDropView::filesToRenameRequest(tr("Add files to rename"), tr("Add")));
    if (!urls.isEmpty())
        m_list->add(urls);
}

void BRRenameViewController::refreshRenameButtonTitle()
{
    // The words stay "files" for a single file too. With names to give, the count is of the
    // files a press would rename: rows in conflict, or named as they are, are left out.
    const int count = m_renameActive ? m_list->renameCount() : m_list->rowCount();
    const QString title =
        QCoreApplication::translate("BRRenameViewController", "Rename %n files", nullptr, count);
    setRenameButtonTitle(title, m_renameActive ? Look::Color::TextOnColor
                                               : Look::Color::InactiveButtonText);
}

void BRRenameViewController::setRenameButtonTitle(const QString &title, Look::Color color)
{
    m_renameButton->setFont(Look::font(18));
    m_renameButton->setText(title);
    // The button stays clickable in both looks: a press without a rule does nothing.
    m_renameButton->setStyleSheet(Look::StyleSheet::filledButton(
        m_renameActive ? Look::Color::Accent : Look::Color::InactiveButtonGround, color));
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
    if (row < 0 || row >= m_list->rowCount())
        return;
    const QString key = m_list->keys().at(row);
    const auto record = m_list->records().constFind(key);
    if (record == m_list->records().cend())
        return;
    const QString path = record->sourceURL.toLocalFile();
    if (path.isEmpty()) {
        showAlert(fileDoesNotExistTitle(), doesNotExistText(key));
        m_list->remove(key);
        return;
    }
    if (!QFileInfo::exists(path))
        return;

    closePopOver();
    auto *preview = new BRFilePreviewPopoverViewController();
    m_preview = preview;
    preview->setDelegate(this);
    preview->setIndex(row);
    m_popover = new RowAnchoredPopover(preview, this);
    m_popover->setAccessibleName(QFileInfo(path).fileName());
    preview->setCurrentName(QFileInfo(path).fileName());
    // Before it is placed: the reason's lines add to its height.
    preview->setProblem(RenameTableModel::markText(*record));
    // Only a row on screen has somewhere to point at; the popover is not shown otherwise.
    const QRect anchor = m_renameTableView->popoverAnchorForRow(row);
    if (!anchor.isEmpty())
        m_popover->showRelativeToRect(anchor, m_renameTableView, Qt::LeftEdge);

    // The popover opens at once; its picture follows.
    QPointer<BRFilePreviewPopoverViewController> target(preview);
    // As many pixels as the screen shows, so a dense screen gets a sharp picture.
    const qreal ratio = devicePixelRatioF();
    runOnWorker(
        this,
        [path, ratio] {
            std::optional<QImage> image =
                BRObjectClass().thumbnailForPath(path, 260 * ratio, 260 * ratio);
            if (image)
                image->setDevicePixelRatio(ratio);
            return image;
        },
        [target](const std::optional<QImage> &image) {
            if (target && image)
                target->setImage(*image);
        });
    if (record->destinationURL && !record->destinationURL->isEmpty())
        preview->setEditableName(*record->destinationURL, RenameTableModel::suffixOf(*record));
}

void BRRenameViewController::refreshPopoverProblem()
{
    if (!m_popover || !m_preview || !m_preview->index())
        return;
    const int row = *m_preview->index();
    if (row < 0 || row >= m_list->rowCount())
        return;
    const auto record = m_list->records().constFind(m_list->keys().at(row));
    if (record != m_list->records().cend())
        m_preview->setProblem(RenameTableModel::markText(*record));
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
    QPointer<BRRenameViewController> self(this);
    QTimer::singleShot(0, this, [self, title, description] {
        if (self)
            self->m_alerts.runModal({title, description, {QStringLiteral("OK")}});
    });
}

QuitPolicy::Request BRRenameViewController::closeRequest() const
{
    return QuitPolicy::Request::CloseOnRename;
}

void BRRenameViewController::describeHoldings(QuitPolicy::Facts &facts) const
{
    facts.renameRows = rowCount();
}
