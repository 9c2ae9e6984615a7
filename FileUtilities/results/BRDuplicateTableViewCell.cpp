#include "BRDuplicateTableViewCell.h"

#include "BRNoSearchResultCell.h"
#include "ByteCountFormatter.h"
#include "DuplicateTableModel.h"
#include "GroupRecord.h"
#include "Look.h"
#include "ThumbnailLoader.h"
#include "UniformTypes.h"

#include <QApplication>
#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int thumbnailSide = 72;
constexpr int bulletSide = 38;

} // namespace

BRDuplicateTableViewCell::BRDuplicateTableViewCell(ThumbnailLoader &thumbnails, QObject *parent)
    : QStyledItemDelegate(parent), m_thumbnails(thumbnails)
{}

QString BRDuplicateTableViewCell::bulletImageName(const QString &fileUTI,
                                                  const TypeConformance &types)
{
    if (types.conformsTo(fileUTI, UniformTypes::audio))
        return QStringLiteral("circle_pink");
    if (types.conformsTo(fileUTI, UniformTypes::movie))
        return QStringLiteral("circle_green");
    if (types.conformsTo(fileUTI, UniformTypes::image))
        return QStringLiteral("circle_blue");
    if (types.conformsTo(fileUTI, QStringLiteral("Folder")))
        return QStringLiteral("circle_turquoise");
    return QStringLiteral("circle_yellow");
}

BRDuplicateTableViewCell::Texts BRDuplicateTableViewCell::textsFor(const GroupRecord &record,
                                                                   const TypeConformance &types)
{
    return Texts{bulletImageName(record.fileUTI, types), record.fileName,
                 QString::number(record.filePath.size()),
                 ByteCountFormatter::binary(record.fileSize),
                 ByteCountFormatter::binary(record.totalSize)};
}

QSize BRDuplicateTableViewCell::sizeHint(const QStyleOptionViewItem &,
                                         const QModelIndex &index) const
{
    return index.data(Qt::SizeHintRole).toSize();
}

void BRDuplicateTableViewCell::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    const auto kind = static_cast<DuplicateTableModel::RowKind>(
        index.data(DuplicateTableModel::RowKindRole).toInt());
    if (kind != DuplicateTableModel::RowKind::Group) {
        BRNoSearchResultCell::paint(painter, option.rect, index.data(Qt::DisplayRole).toString());
        if (option.state.testFlag(QStyle::State_HasFocus))
            paintFocusRing(painter, option.rect);
        return;
    }
    const auto *model = qobject_cast<const DuplicateTableModel *>(index.model());
    const GroupRecord *record = model ? model->recordAt(index.row()) : nullptr;
    if (!record)
        return; // removed since the last reload; the next one drops the row
    paintGroup(painter, option.rect, *record, option.state.testFlag(QStyle::State_MouseOver));
    // The keyboard's row: the list sets the focus state on its current row while it has
    // the focus, so the ring shows exactly when the arrows and Enter act on it.
    if (option.state.testFlag(QStyle::State_HasFocus))
        paintFocusRing(painter, option.rect);
}

void BRDuplicateTableViewCell::paintFocusRing(QPainter *painter, const QRect &rect)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(Look::color(Look::Color::DuplicatesAccent), 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(rect).adjusted(4, 3, -4, -3), 6, 6);
    painter->restore();
}

QPixmap BRDuplicateTableViewCell::bulletPixmap(const QString &name, int side, qreal ratio) const
{
    auto found = m_bullets.find(name);
    if (found == m_bullets.end())
        found = m_bullets.insert(
            name, QIcon(QStringLiteral(":/images/") + name + QStringLiteral(".svg")));
    QPixmap pixmap = found->pixmap(QSize(side, side), ratio);
    return pixmap;
}

void BRDuplicateTableViewCell::paintGroup(QPainter *painter, const QRect &rect,
                                          const GroupRecord &record, bool hovered) const
{
    const Texts texts = textsFor(record, m_types);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (hovered)
        painter->fillRect(rect, Look::color(Look::Color::DuplicateRowHover));
    painter->setPen(Look::color(Look::Color::RowSeparator));
    painter->drawLine(rect.left() + 20, rect.bottom(), rect.right() - 20, rect.bottom());

    // The picture, framed; a soft square stands in until it is made.
    const QRect thumbRect(rect.left() + 24, rect.top() + (rect.height() - thumbnailSide) / 2,
                          thumbnailSide, thumbnailSide);
    // As many pixels as the screen shows in the frame, so a dense screen gets a sharp one.
    const qreal density = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    const QImage image = m_thumbnails.imageFor(record.thumbNail.atPixelRatio(density));
    QPainterPath frame;
    frame.addRoundedRect(thumbRect, 6, 6);
    painter->fillPath(frame, Look::color(Look::Color::ThumbnailWell));
    if (!image.isNull()) {
        const QSize fitted = image.size().scaled(thumbRect.size(), Qt::KeepAspectRatio);
        QRect target(QPoint(0, 0), fitted);
        target.moveCenter(thumbRect.center());
        painter->setClipPath(frame);
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(target, image);
        painter->setClipping(false);
    }

    // Right side: size of one copy and of them all, each under a small caption.
    const int columnWidth = 96;
    const QRect totalColumn(rect.right() - 24 - columnWidth, rect.top(), columnWidth,
                            rect.height());
    const QRect sizeColumn(totalColumn.left() - 12 - columnWidth, rect.top(), columnWidth,
                           rect.height());
    const auto drawColumn = [painter](const QRect &column, const QString &caption,
                                      const QString &value) {
        const int middle = column.center().y();
        painter->setFont(Look::font(11));
        painter->setPen(Look::color(Look::Color::SecondaryText));
        painter->drawText(QRect(column.left(), middle - 22, column.width(), 16),
                          Qt::AlignRight | Qt::AlignVCenter, caption);
        painter->setFont(Look::font(15, QFont::Medium));
        painter->setPen(Look::color(Look::Color::PrimaryText));
        painter->drawText(QRect(column.left(), middle - 4, column.width(), 22),
                          Qt::AlignRight | Qt::AlignVCenter, value);
    };
    drawColumn(sizeColumn, QCoreApplication::translate("BRDuplicateTableViewCell", "Each copy"),
               texts.fileSize);
    drawColumn(totalColumn, QCoreApplication::translate("BRDuplicateTableViewCell", "All copies"),
               texts.totalSize);

    // The kind bullet carries the number of copies.
    const QRect bulletRect(sizeColumn.left() - 24 - bulletSide,
                           rect.top() + (rect.height() - bulletSide) / 2, bulletSide, bulletSide);
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(bulletRect, bulletPixmap(texts.bulletImage, bulletSide, ratio));
    painter->setFont(Look::font(15, QFont::Medium));
    painter->setPen(Look::color(Look::Color::TextOnColor));
    painter->drawText(bulletRect, Qt::AlignCenter, texts.fileCount);

    // Name and kind between the picture and the bullet.
    const int textLeft = thumbRect.right() + 20;
    const int textWidth = qMax(0, bulletRect.left() - 20 - textLeft);
    const int middle = rect.center().y();
    painter->setFont(Look::font(16, QFont::Medium));
    painter->setPen(Look::color(Look::Color::PrimaryText));
    const QString name =
        painter->fontMetrics().elidedText(texts.fileName, Qt::ElideMiddle, textWidth);
    painter->drawText(QRect(textLeft, middle - 24, textWidth, 24), Qt::AlignLeft | Qt::AlignVCenter,
                      name);
    painter->setFont(Look::font(12));
    painter->setPen(Look::color(Look::Color::SecondaryText));
    const QString kind =
        painter->fontMetrics().elidedText(record.fileType, Qt::ElideRight, textWidth);
    painter->drawText(QRect(textLeft, middle + 2, textWidth, 20), Qt::AlignLeft | Qt::AlignVCenter,
                      kind);
    painter->restore();
}
