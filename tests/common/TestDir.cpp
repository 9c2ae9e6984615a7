#include "TestDir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

TestDir::TestDir() = default;

QString TestDir::filePath(const QString &relativePath) const
{
    return QDir::cleanPath(path() + QLatin1Char('/') + relativePath);
}

QString TestDir::createFile(const QString &relativePath, const QByteArray &data)
{
    const QString absolute = filePath(relativePath);
    QDir().mkpath(QFileInfo(absolute).absolutePath());
    QFile file(absolute);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("cannot create test file %s", qPrintable(absolute));
    file.write(data);
    return absolute;
}

QByteArray TestDir::pattern(qint64 size, quint32 seed)
{
    QByteArray data(size, Qt::Uninitialized);
    QRandomGenerator generator(seed);
    for (qint64 i = 0; i < size; ++i)
        data[i] = static_cast<char>(generator.bounded(256));
    return data;
}

QString TestDir::createPatternFile(const QString &relativePath, qint64 size, quint32 seed)
{
    return createFile(relativePath, pattern(size, seed));
}

QString TestDir::createDir(const QString &relativePath)
{
    const QString absolute = filePath(relativePath);
    QDir().mkpath(absolute);
    return absolute;
}

void TestDir::removeFile(const QString &relativePath)
{
    QFile::remove(filePath(relativePath));
}
