#include "FileDescriptor.h"

#include <cerrno>
#include <utility>

#include <unistd.h>

FileDescriptor::FileDescriptor(FileDescriptor &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
{}

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this != &other) {
        close();
        m_descriptor = std::exchange(other.m_descriptor, -1);
    }
    return *this;
}

FileDescriptor::~FileDescriptor()
{
    close();
}

int FileDescriptor::close()
{
    if (m_descriptor < 0)
        return 0;
    // Linux frees the descriptor even when close fails, so it is never retried.
    const int result = ::close(std::exchange(m_descriptor, -1));
    return result == 0 ? 0 : errno;
}
