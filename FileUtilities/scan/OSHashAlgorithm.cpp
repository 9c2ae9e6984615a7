#include "OSHashAlgorithm.h"

#include <QFile>
#include <QtEndian>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

VideoHash OSHashAlgorithm::hashForFileAtPath(const QString &path)
{
    VideoHash result;
    const QByteArray nativePath = QFile::encodeName(path);
    const int fd = ::open(nativePath.constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return result;
    m_fileHandler = fd;

    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        close();
        return result;
    }

    if (!readChunk(0, m_fileDataBegin)) {
        close();
        return result;
    }
    const off_t end = ::lseek(fd, 0, SEEK_END);
    if (end < 0) {
        close();
        return result;
    }
    const auto size = static_cast<std::int64_t>(end);
    if (!readChunk(size > chunkSize ? size - chunkSize : 0, m_fileDataEnd)) {
        close();
        return result;
    }

    std::uint64_t hash = static_cast<std::uint64_t>(size);
    hash += sumOfWords(m_fileDataBegin); // unsigned arithmetic wraps by definition
    hash += sumOfWords(m_fileDataEnd);

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

// Reads up to one chunk from `offset`; a shorter file gives a shorter buffer.
bool OSHashAlgorithm::readChunk(std::int64_t offset, std::vector<unsigned char> &buffer)
{
    buffer.resize(static_cast<size_t>(chunkSize));
    size_t filled = 0;
    while (filled < buffer.size()) {
        const ssize_t count = ::pread(*m_fileHandler, buffer.data() + filled, buffer.size() - filled,
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
    buffer.resize(filled);
    return true;
}

std::uint64_t OSHashAlgorithm::sumOfWords(const std::vector<unsigned char> &buffer)
{
    std::uint64_t sum = 0;
    const size_t words = buffer.size() / 8;
    for (size_t i = 0; i < words; ++i) {
        sum += qFromLittleEndian<quint64>(buffer.data() + i * 8);
    }
    return sum;
}
