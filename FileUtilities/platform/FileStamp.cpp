#include "FileStamp.h"

#include <sys/stat.h>

FileStamp FileStamp::fromStatus(const struct stat &status)
{
    FileStamp stamp;
    stamp.device = static_cast<quint64>(status.st_dev);
    stamp.inode = static_cast<quint64>(status.st_ino);
    stamp.size = static_cast<qint64>(status.st_size);
    stamp.modifiedNs = static_cast<qint64>(status.st_mtim.tv_sec) * 1000000000 +
                       static_cast<qint64>(status.st_mtim.tv_nsec);
    stamp.isFolder = S_ISDIR(status.st_mode);
    return stamp;
}

std::optional<FileStamp> FileStamp::ofNativePath(const QByteArray &path)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) != 0)
        return std::nullopt;
    return fromStatus(status);
}
