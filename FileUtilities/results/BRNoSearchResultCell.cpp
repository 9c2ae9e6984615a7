#include "BRNoSearchResultCell.h"

#include "BRColorHelper.h"

#include <QPainter>

QString BRNoSearchResultCell::text()
{
    return QStringLiteral("No duplicate files match your search");
}

void BRNoSearchResultCell::paint(QPainter *painter, const QRect &rect, const QString &text)
{
    painter->save();
    QFont font(QStringLiteral("Helvetica Neue"));
    font.setPixelSize(13);
    painter->setFont(font);
    painter->setPen(BRColorHelper::color(99, 99, 99, 1.0));
    painter->drawText(rect, Qt::AlignCenter, text);
    painter->restore();
}
