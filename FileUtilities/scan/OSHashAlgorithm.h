#pragma once

#include "VideoHash.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// The OSHash fingerprint: the file's size plus the 64-bit little-endian word sums of its
// first and its last 64 KiB, wrapping modulo 2^64. It reads at most 128 KiB of any file,
// which is what makes fingerprinting every candidate of a large tree affordable.
//
// Only regular files are read: a FIFO, socket, device or symbolic link fingerprints as
// unreadable at once, so nothing in a tree can make a scan block.
// One instance serves one thread; it keeps its buffers between calls to avoid reallocating.
class OSHashAlgorithm
{
public:
    static constexpr std::int64_t chunkSize = 0x10000;

    VideoHash hashForFileAtPath(const QString &path);
    void close();

private:
    bool readChunk(std::int64_t offset, std::vector<unsigned char> &buffer);
    static std::uint64_t sumOfWords(const std::vector<unsigned char> &buffer);

    std::optional<int> m_fileHandler;
    std::vector<unsigned char> m_fileDataBegin;
    std::vector<unsigned char> m_fileDataEnd;
};
