#pragma once

#include <QList>
#include <QUrl>
#include <QWidget>

class RenameNotificationCenter;

// The picture of the drop target: a frame with a stack of pages. It takes dropped files
// as the drop target around it does, and lights up while files are held over it.
class BRDragAndDropImageView : public QWidget
{
    Q_OBJECT

public:
    BRDragAndDropImageView(RenameNotificationCenter *center, QWidget *parent = nullptr);

    const QList<QUrl> &fileUrls() const { return m_fileUrls; }

    // Files are being dragged over the drop target.
    void setHighlighted(bool highlighted);
    bool isHighlighted() const { return m_highlighted; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    RenameNotificationCenter *m_center;
    QList<QUrl> m_fileUrls;
    bool m_highlighted = false;
};
