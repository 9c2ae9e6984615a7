#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QAbstractButton;

// The titles of the duplicate screens' buttons: one face, centred, in a given colour.
class BRAttributedTitle
{
public:
    // "Helvetica Neue", else "Helvetica", else whatever sans-serif face the system has.
    static QFont font(int pointSize);
    static void apply(QAbstractButton *button, const QString &title, const QColor &color,
                      int pointSize);
};
