#pragma once

#include "VideoHash.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>

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
    // The same for a file named relative to an open folder; with no folder (-1), by path.
    VideoHash hashForFileInFolder(int folderDescriptor, const QByteArray &nativeName,
                                  const QString &path);
    void close();

private:
    // Bytes read from one end of the file; empty (length 0) between calls.
    struct Chunk
    {
        std::unique_ptr<unsigned char[]> bytes;
        size_t length = 0;
        void clear() { length = 0; }
    };

    VideoHash hashOpenedFile(int fd);
    bool readChunk(std::int64_t offset, std::int64_t length, Chunk &buffer);
    static std::uint64_t sumOfWords(const Chunk &buffer);

    std::optional<int> m_fileHandler;
    Chunk m_fileDataBegin;
    Chunk m_fileDataEnd;
};
