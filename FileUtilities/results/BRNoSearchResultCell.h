#pragma once

#include <QString>

class QPainter;
class QRect;

// The one row the results list shows when a search finds nothing.
class BRNoSearchResultCell
{
public:
    static QString text();
    static void paint(QPainter *painter, const QRect &rect, const QString &text);
};
