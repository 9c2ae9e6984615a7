#pragma once

#include "BRRenameFormat.h"
#include "BRRenameViewDelegate.h"
#include "LookColors.h"
#include "RowAnchoredPopover.h"
#include "WindowDelegate.h"

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QWidget>

#include <functional>
#include <optional>

class AlertPresenter;
class BRDragAndDropView;
class BRFilePreviewPopoverViewController;
class BRRenameCompleteView;
class BRRenameTabViewController;
class BRRenameTableView;
class OpenPanel;
class QPushButton;
class RenameList;
class RenameNotificationCenter;

// The rename screen: a drop target while the list is empty, the list with its rule panels
// while it is not, and a short completion view after a rename. The list itself, its rules
// and its runs are a RenameList; the screen shows it, hands it what the user does, and
// turns what it reports into views and alerts. The panels, rows and popover reach the
// screen through BRRenameViewDelegate.
class BRRenameViewController : public QWidget, public BRRenameViewDelegate, public WindowDelegate
{
    Q_OBJECT

public:
    struct Services
    {
        AlertPresenter &alerts;
        OpenPanel &openPanel;
    };

    explicit BRRenameViewController(const Services &services, QWidget *parent = nullptr);
    ~BRRenameViewController() override;

    RenameList *renameList() const { return m_list; }
    // What quitting would lose here.
    int rowCount() const;
    QuitPolicy::Request closeRequest() const override;
    void describeHoldings(QuitPolicy::Facts &facts) const override;
    // Empties the list and shows the drop target again, as the Clear button does.
    void clear() override;

    // The buttons under the list.
    void browseAction();
    void renameAction();

    // The screen.
    void showDragAndDropView();
    void setRenameButtonTitle(const QString &title, Look::Color color);
    void setViewsHiddenState(bool containerViewHidden, bool dragAndDropViewHidden,
                             bool renameViewHidden, bool completeStatusViewHidden);

    // BRRenameViewDelegate
    void renameUsingOption(const QString &newName, const QString &numberText,
                           NamePlacement where) override;
    void renameUsingAddTextOption(const QString &text, NamePlacement where) override;
    void clearDestinationFileNames() override;
    void showPopOverForView(QWidget *sender) override;
    void showPopOver(int row) override;
    void closePopOver() override;
    void updateNewFileName(QLineEdit *textField, std::optional<int> row) override;
    void removeRowFromTableView(QWidget *sender) override;
    // Takes the file in `row` off the list, as its remove control does.
    void removeRow(int row);

    RenameNotificationCenter *notificationCenter() const { return m_center; }
    BRRenameTableView *renameTableView() const { return m_renameTableView; }
    BRRenameTabViewController *renameTabViewController() const { return m_tabViewController; }
    BRDragAndDropView *dragAndDropView() const { return m_dragAndDropView; }
    BRRenameCompleteView *renameCompleteStatusView() const { return m_renameCompleteStatusView; }
    RowAnchoredPopover *popover() const { return m_popover; }

    // Fades last this long; tests set 0.
    void setFadeDuration(int ms) { m_fadeMs = ms; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildScreen();
    void connectList();
    void setFileSourceUrlsAfterDragAndDrop(const QList<QUrl> &urls);
    void displayDragAndDropView();
    void renameEnded(const QStringList &renamed, int failed);
    void showFailedFiles();
    void undoRename();
    void undoEnded(qsizetype restored, const QList<UndoFailure> &failures);
    // The open popover's word on its row, after the row's name was checked again.
    void refreshPopoverProblem();
    void refreshRenameButtonTitle();
    void fadeOutThenShow(QWidget *view, bool containerViewHidden, bool dragAndDropViewHidden,
                         bool renameViewHidden, bool completeStatusViewHidden,
                         std::function<void()> then = {});
    // After the event in hand: an alert's own event loop must not run inside a run's
    // continuation or a slot of the list.
    void showAlert(const QString &title, const QString &description);

    AlertPresenter &m_alerts;
    OpenPanel &m_openPanel;

    RenameList *m_list;
    // The rename button's look, after the list's renameActive().
    bool m_renameActive = false;
    RenameNotificationCenter *m_center;
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
    QPointer<BRFilePreviewPopoverViewController> m_preview;
    int m_fadeMs = 300;
};
