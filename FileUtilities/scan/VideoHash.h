#pragma once

#include <QString>

#include <cstdint>

// A file's fingerprint: its hexadecimal text, "" when the file could not be read, and the
// length the fingerprint was taken over.
struct VideoHash
{
    QString fileHash;
    std::uint64_t fileSize = 0;

    friend bool operator==(const VideoHash &, const VideoHash &) = default;
};
