#include "OSHashAlgorithm.h"

#include <QFile>
#include <QtEndian>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr int openFlags = O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC;
}

VideoHash OSHashAlgorithm::hashForFileAtPath(const QString &path)
{
    // Opening a device can have effects of its own (a tape rewinds), so a path is opened
    // only once it is known to name a regular file.
    const QByteArray nativePath = QFile::encodeName(path);
    struct stat info = {};
    if (::lstat(nativePath.constData(), &info) != 0 || !S_ISREG(info.st_mode))
        return VideoHash{};
    return hashOpenedFile(::open(nativePath.constData(), openFlags));
}

VideoHash OSHashAlgorithm::hashForFileInFolder(int folderDescriptor, const QByteArray &nativeName,
                                               const QString &path)
{
    if (folderDescriptor < 0 || nativeName.isEmpty())
        return hashForFileAtPath(path);
    return hashOpenedFile(::openat(folderDescriptor, nativeName.constData(), openFlags));
}

VideoHash OSHashAlgorithm::hashOpenedFile(int fd)
{
    VideoHash result;
    if (fd < 0)
        return result;
    m_fileHandler = fd;

    struct stat info = {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        close();
        return result;
    }

    // The size comes from the same fstat that showed a regular file: it is the end-of-file
    // offset, and asking for it again would cost a system call per file.
    const auto size = static_cast<std::int64_t>(info.st_size);
    const std::int64_t headLength = size < chunkSize ? size : chunkSize;
    if (!readChunk(0, headLength, m_fileDataBegin)) {
        close();
        return result;
    }
    // A file of at most one chunk has head and tail equal to the whole file: its words
    // are summed twice without reading it twice.
    const bool tailIsHead = size <= chunkSize;
    if (!tailIsHead && !readChunk(size - chunkSize, chunkSize, m_fileDataEnd)) {
        close();
        return result;
    }

    std::uint64_t hash = static_cast<std::uint64_t>(size);
    hash += sumOfWords(m_fileDataBegin); // unsigned arithmetic wraps by definition
    hash += sumOfWords(tailIsHead ? m_fileDataBegin : m_fileDataEnd);

    result.fileHash = QString::number(hash, 16);
    result.fileSize = static_cast<std::uint64_t>(size);
    close();
    return result;
}

void OSHashAlgorithm::close()
{
    if (m_fileHandler)
        ::close(*m_fileHandler);
    m_fileHandler.reset();
    m_fileDataEnd.clear();
    m_fileDataBegin.clear();
}

// Reads up to `length` bytes from `offset`; a file that shrank meanwhile gives fewer.
bool OSHashAlgorithm::readChunk(std::int64_t offset, std::int64_t length, Chunk &buffer)
{
    // The storage is allocated once and never zeroed: only `length` bytes are ever read.
    if (!buffer.bytes)
        buffer.bytes = std::make_unique_for_overwrite<unsigned char[]>(chunkSize);
    const auto wanted = static_cast<size_t>(length);
    size_t filled = 0;
    while (filled < wanted) {
        const ssize_t count = ::pread(*m_fileHandler, buffer.bytes.get() + filled, wanted - filled,
                                      static_cast<off_t>(offset) + static_cast<off_t>(filled));
        if (count < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        if (count == 0)
            break;
        filled += static_cast<size_t>(count);
    }
    buffer.length = filled;
    return true;
}

std::uint64_t OSHashAlgorithm::sumOfWords(const Chunk &buffer)
{
    // Four independent sums let the processor add in parallel; wrapping addition is
    // associative, so the result is the same as one running sum.
    std::uint64_t sums[4] = {0, 0, 0, 0};
    const unsigned char *bytes = buffer.bytes.get();
    const size_t words = buffer.length / 8;
    size_t i = 0;
    for (; i + 4 <= words; i += 4) {
        for (size_t lane = 0; lane < 4; ++lane)
            sums[lane] += qFromLittleEndian<quint64>(bytes + (i + lane) * 8);
    }
    for (; i < words; ++i)
        sums[0] += qFromLittleEndian<quint64>(bytes + i * 8);
    return sums[0] + sums[1] + sums[2] + sums[3];
}
