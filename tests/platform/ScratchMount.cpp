#include "ScratchMount.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <sys/mount.h>

ScratchMount::ScratchMount(const QString &path) : m_path(path) {}

ScratchMount::~ScratchMount()
{
    // Detached, so a file a failed test left open cannot keep the mount alive.
    for (; m_layers > 0; --m_layers)
        ::umount2(QFile::encodeName(m_path).constData(), MNT_DETACH);
}

bool ScratchMount::failed(const char *step)
{
    m_error = QStringLiteral("cannot %1 at %2 (%3)")
                  .arg(QLatin1String(step), m_path, QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

bool ScratchMount::mountTmpfs(const QByteArray &options)
{
    const QByteArray target = QFile::encodeName(m_path);
    if (::mount("tmpfs", target.constData(), "tmpfs", 0, options.constData()) != 0)
        return failed("mount a tmpfs");
    ++m_layers;
    return true;
}

bool ScratchMount::bindReadOnly()
{
    const QByteArray target = QFile::encodeName(m_path);
    if (::mount(target.constData(), target.constData(), nullptr, MS_BIND, nullptr) != 0)
        return failed("bind-mount the folder");
    ++m_layers;
    return remountReadOnly();
}

bool ScratchMount::remountReadOnly()
{
    const QByteArray target = QFile::encodeName(m_path);
    if (::mount(nullptr, target.constData(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) ==
        0)
        return true;
    // A tmpfs of its own (not a bind) takes the plain remount.
    if (::mount(nullptr, target.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0)
        return true;
    return failed("make the mount read-only");
}
