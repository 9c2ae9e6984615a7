#include "FileSystemPlace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

std::optional<FileSystemPlace> FileSystemPlace::of(int folder, const char *path, bool followLinks)
{
    int flags = followLinks ? 0 : AT_SYMLINK_NOFOLLOW;
    if (path[0] == '\0')
        flags |= AT_EMPTY_PATH;
    struct statx info = {};
    if (::statx(folder, path, flags, STATX_TYPE | STATX_MNT_ID, &info) != 0)
        return std::nullopt;
    FileSystemPlace place;
    place.device = makedev(info.stx_dev_major, info.stx_dev_minor);
    if (info.stx_mask & STATX_MNT_ID)
        place.mountId = info.stx_mnt_id;
    return place;
}

bool FileSystemPlace::operator==(const FileSystemPlace &other) const
{
    if (device != other.device)
        return false;
    return !mountId || !other.mountId || *mountId == *other.mountId;
}
