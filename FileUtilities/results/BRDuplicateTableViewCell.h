#pragma once

#include "TypeConformance.h"

#include <QHash>
#include <QIcon>
#include <QStyledItemDelegate>

#include <optional>

class ThumbnailLoader;
struct GroupRecord;

// Paints the rows of the results list: a group's picture, its kind bullet with the number
// of copies, its name, the size of one copy and of all copies; or the placeholder row.
class BRDuplicateTableViewCell : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // What a group row shows, in words.
    struct Texts
    {
        QString bulletImage; // "circle_pink", ...
        QString fileName;
        QString fileCount;
        QString fileSize;  // one copy, binary units
        QString totalSize; // all copies
    };

    static constexpr int groupRowHeight = 105;
    static constexpr int placeholderRowHeight = 30;

    BRDuplicateTableViewCell(ThumbnailLoader &thumbnails, QObject *parent = nullptr);

    static Texts textsFor(const GroupRecord &record, const TypeConformance &types);
    // Sound is pink, film green, pictures blue, folders turquoise, the rest yellow.
    static QString bulletImageName(const QString &fileUTI, const TypeConformance &types);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintGroup(QPainter *painter, const QRect &rect, const GroupRecord &record,
                    bool hovered) const;
    static void paintFocusRing(QPainter *painter, const QRect &rect);
    QPixmap bulletPixmap(const QString &name, int side, qreal ratio) const;

    ThumbnailLoader &m_thumbnails;
    TypeConformance m_types;
    mutable QHash<QString, QIcon> m_bullets;
};
