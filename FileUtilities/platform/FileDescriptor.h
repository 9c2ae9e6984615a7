#pragma once

// Owns one POSIX file descriptor and closes it when it goes, so no early return leaks one.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor &&other) noexcept;
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor();

    int get() const { return m_descriptor; }
    bool isValid() const { return m_descriptor >= 0; }

    // Closes now and gives the errno of close(2), 0 when it went well: a write's late
    // failure (a full disk on some file systems) shows only here.
    int close();

private:
    int m_descriptor = -1;
};
