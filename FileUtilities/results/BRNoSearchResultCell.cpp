#include "BRNoSearchResultCell.h"

#include "Look.h"

#include <QCoreApplication>
#include <QPainter>

QString BRNoSearchResultCell::text()
{
    return QCoreApplication::translate("BRNoSearchResultCell",
                                       "No duplicate files match your search");
}

void BRNoSearchResultCell::paint(QPainter *painter, const QRect &rect, const QString &text)
{
    painter->save();
    painter->setFont(Look::font(13));
    painter->setPen(Look::color(Look::Color::SecondaryText));
    painter->drawText(rect, Qt::AlignCenter, text);
    painter->restore();
}
