#pragma once

#include "BRImageBackgroundView.h"

#include <QStringList>

class BRRenameCompleteViewDoneButton;
class QLabel;
class RenameNotificationCenter;

// Shown after a rename that moved at least one file: how many were renamed, and Done,
// which takes the screen back to the drop target.
class BRRenameCompleteView : public BRImageBackgroundView
{
    Q_OBJECT

public:
    BRRenameCompleteView(RenameNotificationCenter *center, QWidget *parent = nullptr);

    QWidget *completeView() const { return m_completeView; }
    QLabel *renameStatusLabel() const { return m_renameStatusLabel; }
    BRRenameCompleteViewDoneButton *doneButton() const { return m_doneButton; }

public Q_SLOTS:
    // The count of the new names; an empty list leaves the label as it was.
    void setRenameCompleteView(const QStringList &renamedFiles);
    void doneAction();

private:
    RenameNotificationCenter *m_center;
    QWidget *m_completeView;
    QLabel *m_renameStatusLabel;
    BRRenameCompleteViewDoneButton *m_doneButton;
};
