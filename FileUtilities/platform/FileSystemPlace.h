#pragma once

#include <QtGlobal>

#include <optional>

#include <sys/types.h>

// Which file system, and which mount of it, a path lies on. A rename works only within one
// mount, and one file system may be mounted twice (a bind mount), so the device number alone
// cannot tell whether a Trash can take an item.
struct FileSystemPlace
{
    dev_t device = 0;
    std::optional<quint64> mountId; // where the kernel tells it (Linux 5.8 and later)

    // As fstatat/statx take them: relative to `folder`, or the folder itself when `path` is
    // empty. Nothing when the path cannot be examined; errno tells why.
    static std::optional<FileSystemPlace> of(int folder, const char *path, bool followLinks);

    // Same device, and the same mount where both are known.
    bool operator==(const FileSystemPlace &other) const;
};
