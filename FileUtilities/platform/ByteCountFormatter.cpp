#include "ByteCountFormatter.h"

#include <QLocale>

QString ByteCountFormatter::binary(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeIecFormat);
}

QString ByteCountFormatter::wholeBytes(qint64 bytes)
{
    // The C locale writes no group separators; English does.
    const QString digits = QLocale(QLocale::English, QLocale::UnitedStates).toString(bytes);
    return digits +
           (bytes == 1 || bytes == -1 ? QStringLiteral(" byte") : QStringLiteral(" bytes"));
}
