#include "ImmutableFlag.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

ImmutableFlag::ImmutableFlag(const QString &path) : m_path(path)
{
    m_set = change(true);
}

ImmutableFlag::~ImmutableFlag()
{
    if (m_set)
        change(false);
}

bool ImmutableFlag::change(bool immutable)
{
    const int descriptor =
        ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    int flags = 0;
    bool done = descriptor >= 0 && ::ioctl(descriptor, FS_IOC_GETFLAGS, &flags) == 0;
    if (done) {
        flags = immutable ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
        done = ::ioctl(descriptor, FS_IOC_SETFLAGS, &flags) == 0;
    }
    if (!done)
        m_error = QStringLiteral("cannot mark %1 immutable (%2)")
                      .arg(m_path, QString::fromLocal8Bit(std::strerror(errno)));
    if (descriptor >= 0)
        ::close(descriptor);
    return done;
}
