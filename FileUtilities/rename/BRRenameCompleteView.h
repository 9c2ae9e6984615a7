#pragma once

#include "BRImageBackgroundView.h"

#include <QStringList>

class BRRenameCompleteViewDoneButton;
class QLabel;
class QPushButton;
class RenameNotificationCenter;

// Shown after a rename that moved at least one file: how many were renamed and how many
// failed, Show failed files (the failed rows back in the list for another try), Undo Rename
// (every file its old name again), and Done, which takes the screen back to the drop target.
class BRRenameCompleteView : public BRImageBackgroundView
{
    Q_OBJECT

public:
    BRRenameCompleteView(RenameNotificationCenter *center, QWidget *parent = nullptr);

    QWidget *completeView() const { return m_completeView; }
    QLabel *renameStatusLabel() const { return m_renameStatusLabel; }
    BRRenameCompleteViewDoneButton *doneButton() const { return m_doneButton; }
    QPushButton *undoButton() const { return m_undoButton; }
    QPushButton *showFailedButton() const { return m_showFailedButton; }
    QLabel *headlineLabel() const { return m_headline; }

    // Set before the run's renameComplete arrives: how many rows of it failed.
    void setFailedCount(int failed);
    void setUndoAvailable(bool available);
    // After Undo Rename: how many files have their old names again, and how many could not.
    void showUndone(qsizetype restored, qsizetype notRestored);

public Q_SLOTS:
    // The count of the new names, and of the failed rows; an empty list leaves the label as
    // it was.
    void setRenameCompleteView(const QStringList &renamedFiles);
    void doneAction();
    void undoAction();
    void showFailedAction();

private:
    RenameNotificationCenter *m_center;
    QWidget *m_completeView;
    QLabel *m_headline;
    QLabel *m_renameStatusLabel;
    QPushButton *m_showFailedButton;
    QPushButton *m_undoButton;
    BRRenameCompleteViewDoneButton *m_doneButton;
    int m_failedCount = 0;
};
