#pragma once

#include <QString>

// Byte counts as people read them, with the decimal point and grouping of the user's
// locale (English where the system gives only the C locale).
class ByteCountFormatter
{
public:
    // Binary units for lists: "512 bytes", "1.5 KiB", "3.2 GiB".
    static QString binary(qint64 bytes);
    // Every byte, never a larger unit: "1 byte", "1,234,567 bytes" (in English).
    static QString wholeBytes(qint64 bytes);
};
