#pragma once

#include "BRDuplicateStatusView.h"

class BRDuplicateStatusViewNewScanButton;
class QLabel;

// The screen a scan ends on when it found nothing: a line saying so, the folder it looked
// in, and a way back to the start screen. Nothing is
// lost by going back, so it asks nothing.
class BRDuplicateScanStatusViewController : public BRDuplicateStatusView
{
    Q_OBJECT

public:
    explicit BRDuplicateScanStatusViewController(QWidget *parent = nullptr);

    void setNewScanButtonTitle(const QString &title);
    void setFadeDuration(int ms) { m_fadeDurationMs = ms; }
    // Names the folder the scan looked in.
    void showFolderName(const QString &folderName);

    QLabel *statusLabel() const { return m_statusLabel; }
    QLabel *directoryLabel() const { return m_directoryLabel; }
    BRDuplicateStatusViewNewScanButton *newScanButton() const { return m_newScanButton; }

public Q_SLOTS:
    void startNewScanAction();

private:
    QLabel *m_statusLabel;
    QLabel *m_directoryLabel;
    BRDuplicateStatusViewNewScanButton *m_newScanButton;
    int m_fadeDurationMs = 300;
};
