#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A temporary folder that builds test trees in one line a file.
class TestDir : public QTemporaryDir
{
public:
    TestDir();

    // Absolute path of `relativePath` inside the folder.
    QString filePath(const QString &relativePath) const;

    // Writes a file with `data`, creating the folders on the way; gives its path.
    QString createFile(const QString &relativePath, const QByteArray &data);
    // A file of `size` bytes whose content is fixed by `seed`: equal seeds and sizes give
    // equal files, different seeds give files that differ at both ends.
    QString createPatternFile(const QString &relativePath, qint64 size, quint32 seed);
    QString createDir(const QString &relativePath);
    void removeFile(const QString &relativePath);

    // Bytes fixed by `seed`, as createPatternFile writes them.
    static QByteArray pattern(qint64 size, quint32 seed);
};
