#include "ByteCountFormatter.h"

#include "UserLocale.h"

#include <QCoreApplication>

QString ByteCountFormatter::binary(qint64 bytes)
{
    return UserLocale::forDisplay().formattedDataSize(bytes, 1, QLocale::DataSizeIecFormat);
}

QString ByteCountFormatter::wholeBytes(qint64 bytes)
{
    const QString digits = UserLocale::forDisplay().toString(bytes);
    // Two whole texts rather than a plural form: the digits carry the display locale's
    // grouping, which %n would not.
    return (bytes == 1 || bytes == -1
                ? QCoreApplication::translate("ByteCountFormatter", "%1 byte")
                : QCoreApplication::translate("ByteCountFormatter", "%1 bytes"))
        .arg(digits);
}
