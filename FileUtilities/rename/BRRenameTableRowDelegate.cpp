#include "BRRenameTableRowDelegate.h"

#include "LookColors.h"
#include "RenameRowStyle.h"
#include "RenameTableModel.h"
#include "Thumbnail.h"
#include "ThumbnailLoader.h"

#include <QPainter>

BRRenameTableRowDelegate::BRRenameTableRowDelegate(ThumbnailLoader &thumbnails,
                                                   std::shared_ptr<ThumbnailCache> thumbnailCache,
                                                   QObject *parent)
    : QStyledItemDelegate(parent), m_thumbnails(thumbnails),
      m_thumbnailCache(std::move(thumbnailCache)), m_popoverIcon(RenameRowStyle::popoverIcon())
{}

QImage BRRenameTableRowDelegate::thumbnailFor(const QString &path, qreal ratio) const
{
    if (path.isEmpty())
        return {};
    const int side = RenameRowStyle::thumbnailSide;
    return m_thumbnails.imageFor(
        Thumbnail(path, QSize(side, side), m_thumbnailCache).atPixelRatio(ratio));
}

QSize BRRenameTableRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    // No width of its own: the list stretches every row to its viewport, and a row wider
    // than that would be laid out wider than it is painted.
    return QSize(1, RenameRowStyle::rowHeight);
}

void BRRenameTableRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    const QRect row = option.rect;
    const RenameRowStyle::Geometry parts = RenameRowStyle::geometry(row);
    painter->save();
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    RenameRowStyle::paintGround(painter, row);
    RenameRowStyle::paintThumbnail(
        painter, parts.thumbnail,
        thumbnailFor(index.data(RenameTableModel::SourcePathRole).toString(), ratio));

    painter->setFont(RenameRowStyle::sourceNameFont());
    painter->setPen(RenameRowStyle::sourceNameColor());
    painter->drawText(parts.sourceName, Qt::AlignLeft | Qt::AlignVCenter,
                      RenameRowStyle::elidedSourceName(index.data(Qt::DisplayRole).toString(),
                                                       parts.sourceName.width()));
    RenameRowStyle::paintArrow(painter, parts.arrow);

    const QVariant destination = index.data(RenameTableModel::DestinationRole);
    RenameRowStyle::paintNewName(
        painter, parts.newName,
        destination.isValid() ? std::optional<QString>(destination.toString()) : std::nullopt,
        index.data(RenameTableModel::SuffixRole).toString(),
        index.data(RenameTableModel::EditedRole).toBool());

    RenameRowStyle::paintMark(painter, parts.mark,
                              static_cast<RowMark>(index.data(RenameTableModel::MarkRole).toInt()));

    const QSize iconSize(20, 20);
    QRect iconRect(QPoint(0, 0), iconSize);
    iconRect.moveCenter(parts.popoverControl.center());
    painter->drawPixmap(iconRect, m_popoverIcon.pixmap(iconSize, ratio));
    // The keyboard's row, while the list has the focus: Enter and Delete act on it.
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(Look::color(Look::Color::Accent), 2));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(row).adjusted(4, 3, -4, -3), 6, 6);
    }
    painter->restore();
}
