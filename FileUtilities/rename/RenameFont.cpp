#include "RenameFont.h"

#include <QStringList>

QFont RenameFont::helveticaNeue(int pixelSize, QFont::Weight weight)
{
    QFont font;
    font.setFamilies(QStringList{QStringLiteral("Helvetica Neue"), QStringLiteral("Helvetica")});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

QFont RenameFont::helveticaNeueMedium(int pixelSize)
{
    QFont font = helveticaNeue(pixelSize, QFont::Medium);
    font.setFamilies(QStringList{QStringLiteral("Helvetica Neue Medium"),
                                 QStringLiteral("Helvetica Neue"), QStringLiteral("Helvetica")});
    return font;
}
