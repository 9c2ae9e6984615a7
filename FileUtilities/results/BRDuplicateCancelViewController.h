#pragma once

#include "BRDuplicateCancelViewDelegate.h"

#include <QString>
#include <QWidget>

class BRDuplicateFilesViewDelegate;
class QLabel;
class QProgressBar;
class QPushButton;

// The strip under the results list while a scan runs: a busy bar, how far the walk has
// come, and a button to stop. Stopping is the results screen's decision (it asks first),
// so the button only passes the request on.
class BRDuplicateCancelViewController : public QWidget, public BRDuplicateCancelViewDelegate
{
    Q_OBJECT

public:
    explicit BRDuplicateCancelViewController(QWidget *parent = nullptr);

    void setDuplicateFileViewDelegate(BRDuplicateFilesViewDelegate *delegate);

    void startAnimateProgress() override;
    void stopAnimateProgress() override;
    void updateScanProgress(qint64 entriesScanned, const QString &currentFolder) override;
    // A run of removals instead of a scan: a bar that fills as the copies are checked.
    void showRemovalProgress(int done, int total);

    bool isAnimating() const;
    // "12,345 items scanned", grouped the user's way (English grouping in the C locale).
    static QString scannedCountText(qint64 entriesScanned);

    QProgressBar *progressIndicator() const { return m_progressIndicator; }
    QPushButton *cancelButton() const { return m_cancelButton; }
    QLabel *scannedCountLabel() const { return m_scannedCountLabel; }
    QLabel *currentFolderLabel() const { return m_currentFolderLabel; }

public Q_SLOTS:
    void cancelAction();

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void elideCurrentFolder();

    QProgressBar *m_progressIndicator;
    QPushButton *m_cancelButton;
    QLabel *m_scannedCountLabel;
    QLabel *m_currentFolderLabel;
    QString m_currentFolder;
    BRDuplicateFilesViewDelegate *m_duplicateFileViewDelegate = nullptr;
};
