#pragma once

#include "BRRenameFormat.h"
#include "BRRenameViewDelegate.h"
#include "NameSortKeys.h"
#include "RenameRecord.h"
#include "RenameRule.h"
#include "RowAnchoredPopover.h"
#include "WindowDelegate.h"

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QWidget>

#include <optional>

class AlertPresenter;
struct ApplicationStatus;
class BRDragAndDropView;
class BRRenameCompleteView;
class BRRenameTabViewController;
class BRRenameTableView;
class OpenPanel;
class QPushButton;
class RenameNotificationCenter;
class RenameTableModel;

// The rename screen: a drop target while the list is empty, the list with its rule panels
// while it is not, and a short completion view after a rename. It owns the list, and the
// panels, rows and popover reach it through BRRenameViewDelegate.
//
// Rule runs and renames work on a copy of the list on a worker thread and hand their
// results back to the main thread, so the list itself is only ever touched here.
class BRRenameViewController : public QWidget, public BRRenameViewDelegate, public WindowDelegate
{
    Q_OBJECT

public:
    struct Services
    {
        AlertPresenter &alerts;
        OpenPanel &openPanel;
        ApplicationStatus *appDelegate; // null: closing asks nothing
    };

    explicit BRRenameViewController(const Services &services, QWidget *parent = nullptr);
    ~BRRenameViewController() override;

    // The list.
    void saveSourceUrls(const std::optional<QList<QUrl>> &urls);
    void removeDetailsForKey(const QString &field);
    void clearAll();
    void sortRenameFileDetailsKey();
    void reloadTableView();
    // Files dropped between rows or below them (the list's model refuses a drop onto a row).
    bool tableViewAcceptDrop(const QList<QUrl> &urls);

    // The rules and the hand edits.
    std::optional<QString> createNewFileName(int row) const;

    // Renaming.
    void renameAction();
    void rename();

    // The screen.
    void browseAction();
    void clearAction();
    void showDragAndDropView();
    void enableRenameButton();
    void disableRenameButton();
    void setRenameButtonTitle(const QString &title, const QColor &color);
    void setViewsHiddenState(bool containerViewHidden, bool dragAndDropViewHidden,
                             bool renameViewHidden, bool completeStatusViewHidden);
    bool showQuitAlert(const QString &title, const QString &message);
    bool windowShouldClose() override;

    // BRRenameViewDelegate
    void setRenameFilesDict() override;
    void updateStatus() override;
    void renameUsingOption(const QString &newName, const QString &numberText,
                           NamePlacement where) override;
    void renameUsingAddTextOption(const QString &text, NamePlacement where) override;
    void clearDestinationFileNames() override;
    void showPopOverForView(QWidget *sender) override;
    void showPopOver(int row) override;
    void closePopOver() override;
    void updateNewFileName(QLineEdit *textField, std::optional<int> row) override;
    void removeRowFromTableView(QWidget *sender) override;
    void showAlert(const QString &title, const QString &description) override;
    void delete_(const QString &key) override;

    // What the screen holds, for the views and for tests.
    const QStringList &renameFileDetailsKey() const { return m_renameFileDetailsKey; }
    const RenameFileDetails &renameFileDetails() const { return m_renameFileDetails; }
    const RenameBookmarks &bookmarks() const { return m_bookmarks; }
    int index() const { return m_index; }
    bool renameActive() const { return m_renameActive; }
    bool renameRunning() const { return m_renameRunning; }
    bool ruleRunPending() const { return m_ruleRunsInFlight > 0; }
    const std::optional<RenameRule> &formatOption() const { return m_formatOption; }
    const std::optional<NamePlacement> &whereOption() const { return m_whereOption; }
    RenameNotificationCenter *notificationCenter() const { return m_center; }
    BRRenameTableView *renameTableView() const { return m_renameTableView; }
    BRRenameTabViewController *renameTabViewController() const { return m_tabViewController; }
    BRDragAndDropView *dragAndDropView() const { return m_dragAndDropView; }
    BRRenameCompleteView *renameCompleteStatusView() const { return m_renameCompleteStatusView; }
    RowAnchoredPopover *popover() const { return m_popover; }

    // Fades last this long; tests set 0.
    void setFadeDuration(int ms) { m_fadeMs = ms; }

Q_SIGNALS:
    // A rule run's names or a rename's outcome reached the list; tests wait for these.
    void ruleRunLanded();
    void renameRunEnded();

protected:
    void showEvent(QShowEvent *event) override;

private:
    struct RuleRunResult;
    struct RenameRunResult;

    void buildScreen();
    void setFileSourceUrlsAfterDragAndDrop(const QList<QUrl> &urls);
    void displayDragAndDropView();
    void startRuleRun();
    void finishRuleRun(quint64 sequence, RuleRunResult &result);
    void finishRenameRun(RenameRunResult &result);
    void refreshRenameButtonTitle();
    void fadeOutThenShow(QWidget *view, bool containerViewHidden, bool dragAndDropViewHidden,
                         bool renameViewHidden, bool completeStatusViewHidden,
                         std::function<void()> then = {});

    AlertPresenter &m_alerts;
    OpenPanel &m_openPanel;
    ApplicationStatus *m_appDelegate;

    // The list.
    RenameFileDetails m_renameFileDetails;
    QStringList m_renameFileDetailsKey;
    RenameBookmarks m_bookmarks;
    int m_index = 0;
    bool m_renameActive = false;
    std::optional<RenameRule> m_formatOption;
    std::optional<NamePlacement> m_whereOption;
    std::optional<QString> m_newNameText;
    std::optional<QString> m_numberText;
    std::optional<QString> m_addText;
    std::optional<BRRenameFormat> m_brRenameFormat;
    // Whether the keys are in order: adding breaks it, removing keeps it, so most reloads
    // (one per keystroke in a panel) sort nothing.
    bool m_keysSorted = true;
    bool m_keysChangedSinceReload = false;
    NameSortKeys m_sortKeys;

    // Only the run of the last text typed may land its names; clearing a rule also
    // makes every run under way stale.
    quint64 m_ruleRunSequence = 0;
    int m_ruleRunsInFlight = 0;
    bool m_renameRunning = false;

    // The screen.
    RenameNotificationCenter *m_center;
    RenameTableModel *m_model;
    QWidget *m_containerView = nullptr;
    BRRenameTabViewController *m_tabViewController = nullptr;
    BRDragAndDropView *m_dragAndDropView = nullptr;
    QWidget *m_renameCustomView = nullptr;
    BRRenameTableView *m_renameTableView = nullptr;
    QPushButton *m_browseButton = nullptr;
    QPushButton *m_renameButton = nullptr;
    QPushButton *m_clearButton = nullptr;
    BRRenameCompleteView *m_renameCompleteStatusView = nullptr;
    QPointer<RowAnchoredPopover> m_popover;
    int m_fadeMs = 300;
};
