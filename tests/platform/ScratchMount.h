#pragma once

#include <QByteArray>
#include <QString>

// A mount of a test's own over a folder, taken away when the test ends. Mounting needs
// root: where it is not allowed the calls fail with the reason, for the test to skip.
class ScratchMount
{
public:
    explicit ScratchMount(const QString &path);
    ScratchMount(const ScratchMount &) = delete;
    ScratchMount &operator=(const ScratchMount &) = delete;
    ~ScratchMount();

    // A fresh tmpfs, e.g. with "size=64k,nr_inodes=32".
    bool mountTmpfs(const QByteArray &options);
    // The folder as it is, read-only over itself.
    bool bindReadOnly();
    // What is mounted here becomes read-only.
    bool remountReadOnly();

    QString path() const { return m_path; }
    QString error() const { return m_error; }

private:
    bool failed(const char *step);

    QString m_path;
    int m_layers = 0;
    QString m_error;
};
