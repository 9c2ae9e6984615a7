#pragma once

#include "BRImageBackgroundView.h"
#include "OpenPanel.h"

#include <QList>
#include <QUrl>

class BRDragAndDropImageView;
class QPushButton;
class RenameNotificationCenter;

// The rename screen while its list is empty: a drop target for files and folders, and a
// button that chooses them in an open panel instead. Either way the files are announced
// as dragAndDropComplete, and the screen takes them from there.
class BRDragAndDropView : public BRImageBackgroundView
{
    Q_OBJECT

public:
    BRDragAndDropView(RenameNotificationCenter *center, OpenPanel &openPanel,
                      QWidget *parent = nullptr);

    // The files of the last drop or choice.
    const QList<QUrl> &fileUrls() const { return m_fileUrls; }

    QWidget *view() const { return m_view; }
    BRDragAndDropImageView *imageView() const { return m_imageView; }
    QPushButton *browseButton() const { return m_browseButton; }

    // The open panel of both ways to choose files for renaming, with its message.
    // `prompt` is the accept button's text.
    static OpenPanelRequest filesToRenameRequest(const QString &message, const QString &prompt);

public Q_SLOTS:
    void browseAction();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void announce(const QList<QUrl> &urls);

    RenameNotificationCenter *m_center;
    OpenPanel &m_openPanel;
    QWidget *m_view;
    BRDragAndDropImageView *m_imageView;
    QPushButton *m_browseButton;
    QList<QUrl> m_fileUrls;
};
