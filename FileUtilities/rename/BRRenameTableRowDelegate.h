#pragma once

#include "ThumbnailCache.h"

#include <QIcon>
#include <QStyledItemDelegate>

#include <memory>

class ThumbnailLoader;

// Paints the rows of the rename list: the file's picture, its present name, an arrow and
// the new name in the colour of its kind, and the control that opens the file's popover.
// Pictures are asked of the loader as rows are painted, so only rows on screen cost one.
class BRRenameTableRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    BRRenameTableRowDelegate(ThumbnailLoader &thumbnails,
                             std::shared_ptr<ThumbnailCache> thumbnailCache,
                             QObject *parent = nullptr);

    // The row's picture, `ratio` times the pixels of its frame for a dense screen, if it
    // is made; else a null image, and it is on its way.
    QImage thumbnailFor(const QString &path, qreal ratio) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    ThumbnailLoader &m_thumbnails;
    std::shared_ptr<ThumbnailCache> m_thumbnailCache;
    QIcon m_popoverIcon;
};
