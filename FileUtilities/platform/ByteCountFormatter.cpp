#include "ByteCountFormatter.h"

#include "UserLocale.h"

QString ByteCountFormatter::binary(qint64 bytes)
{
    return UserLocale::forDisplay().formattedDataSize(bytes, 1, QLocale::DataSizeIecFormat);
}

QString ByteCountFormatter::wholeBytes(qint64 bytes)
{
    const QString digits = UserLocale::forDisplay().toString(bytes);
    return digits +
           (bytes == 1 || bytes == -1 ? QStringLiteral(" byte") : QStringLiteral(" bytes"));
}
