#pragma once

#include "BRDuplicateScanStartView.h"

#include <QImage>
#include <QUrl>

#include <optional>

class BRDuplicateFilesMainViewDelegate;
class BRDuplicateFilesViewDelegate;
class BRDuplicateStartScanButton;
class OpenPanel;
class QLabel;
class QPushButton;

// The start screen of the duplicate finder: the folder a scan will take, with its
// picture and name, a button to choose another one and the button that starts the scan.
// A fresh screen offers the user's home folder; after a scan it keeps the last folder.
class BRDuplicateScanStartViewController : public BRDuplicateScanStartView
{
    Q_OBJECT

public:
    static constexpr int previewSide = 100;

    explicit BRDuplicateScanStartViewController(OpenPanel &openPanel, QWidget *parent = nullptr);

    void setDuplicateMainViewDelegate(BRDuplicateFilesMainViewDelegate *delegate);
    BRDuplicateFilesMainViewDelegate *duplicateMainViewDelegate() const
    {
        return m_duplicateMainViewDelegate;
    }
    // The results screen, known once a scan has been started from here.
    BRDuplicateFilesViewDelegate *duplicateFileViewDelegate() const
    {
        return m_duplicateFileViewDelegate;
    }
    void setFadeDuration(int ms) { m_fadeDurationMs = ms; }

    void setScanStartView();
    void setStartScanButtonTitle(const QString &title);
    // Takes the folder as a choice in the panel would; also for tools and tests. An empty
    // URL clears the choice, and Start Scan then does nothing.
    void setSelectedUrl(const QUrl &url);
    std::optional<QUrl> selectedUrl() const { return m_selectedUrl; }
    // Makes the picture off the main thread and shows it when it comes; a folder without
    // one keeps the picture shown before.
    void createPreviewForURL(const QUrl &url);

    QLabel *dirImageView() const { return m_dirImageView; }
    QLabel *selectedFolderNameLabel() const { return m_selectedFolderNameLabel; }
    BRDuplicateStartScanButton *startScanButton() const { return m_startScanButton; }
    QPushButton *browseButton() const { return m_browseButton; }

public Q_SLOTS:
    void selectFolderAction();
    void startScanAction();

private:
    void showPreview(QImage image);
    void showFolderName(const QUrl &url);

    OpenPanel &m_openPanel;
    QLabel *m_dirImageView;
    QLabel *m_selectedFolderNameLabel;
    BRDuplicateStartScanButton *m_startScanButton;
    QPushButton *m_browseButton;
    std::optional<QUrl> m_selectedUrl;
    BRDuplicateFilesViewDelegate *m_duplicateFileViewDelegate = nullptr;
    BRDuplicateFilesMainViewDelegate *m_duplicateMainViewDelegate = nullptr;
    int m_fadeDurationMs = 300;
    bool m_scanStarting = false; // a second click during the fade would start a second scan
};
