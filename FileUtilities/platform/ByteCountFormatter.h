#pragma once

#include <QString>

// Byte counts as people read them. Both forms use the C locale's digits, so a listing
// reads the same on every machine.
class ByteCountFormatter
{
public:
    // Binary units for lists: "512 bytes", "1.5 KiB", "3.2 GiB".
    static QString binary(qint64 bytes);
    // Every byte, never a larger unit: "1 byte", "1,234,567 bytes".
    static QString wholeBytes(qint64 bytes);
};
