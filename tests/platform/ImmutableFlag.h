#pragma once

#include <QString>

// Marks a file or folder immutable (chattr +i) for as long as it lives. Unlike permission
// bits this also stops root, so a test run as root can make a folder refuse new entries.
// Needs root and a file system that keeps the flag (ext4, btrfs, xfs).
class ImmutableFlag
{
public:
    explicit ImmutableFlag(const QString &path);
    ImmutableFlag(const ImmutableFlag &) = delete;
    ImmutableFlag &operator=(const ImmutableFlag &) = delete;
    ~ImmutableFlag();

    bool isSet() const { return m_set; }
    QString error() const { return m_error; }

private:
    bool change(bool immutable);

    QString m_path;
    bool m_set = false;
    QString m_error;
};
