#include "FolderBookmark.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>

#include <sys/stat.h>

namespace {

constexpr quint32 bookmarkMagic = 0x514d424b; // "QMBK"
constexpr quint16 bookmarkVersion = 1;
// How far the search for a moved folder reaches below the nearest surviving ancestor,
// and how many folders it looks at: enough for a rename or a move nearby, without
// letting a start of the program walk a whole disk.
constexpr int searchDepth = 3;
constexpr int searchBudget = 20000;

std::optional<struct stat> statOf(const QString &path)
{
    struct stat info = {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return std::nullopt;
    return info;
}

} // namespace

FolderBookmark::FolderBookmark(QString path, quint64 device, quint64 inode)
    : m_path(std::move(path)), m_device(device), m_inode(inode)
{}

std::optional<FolderBookmark> FolderBookmark::forPath(const QString &path)
{
    if (path.isEmpty())
        return std::nullopt;
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const auto info = statOf(absolute);
    if (!info)
        return std::nullopt;
    return FolderBookmark(absolute, info->st_dev, info->st_ino);
}

QByteArray FolderBookmark::toData() const
{
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_6_4);
    out << bookmarkMagic << bookmarkVersion << m_path << m_device << m_inode;
    return data;
}

std::optional<FolderBookmark> FolderBookmark::fromData(const QByteArray &data)
{
    QDataStream in(data);
    in.setVersion(QDataStream::Qt_6_4);
    quint32 magic = 0;
    quint16 version = 0;
    QString path;
    quint64 device = 0;
    quint64 inode = 0;
    in >> magic >> version >> path >> device >> inode;
    if (in.status() != QDataStream::Ok || magic != bookmarkMagic || version != bookmarkVersion ||
        path.isEmpty() || !in.atEnd())
        return std::nullopt;
    return FolderBookmark(path, device, inode);
}

bool FolderBookmark::isSameItem(const QString &path) const
{
    const auto info = statOf(path);
    return info && info->st_dev == m_device && info->st_ino == m_inode;
}

std::optional<FolderBookmark::Resolved> FolderBookmark::resolve() const
{
    if (isSameItem(m_path))
        return Resolved{m_path, false};
    if (auto found = searchNear())
        return Resolved{*found, true};
    return std::nullopt;
}

// Breadth-first below the nearest ancestor of the old path that still exists.
std::optional<QString> FolderBookmark::searchNear() const
{
    QString ancestor = QFileInfo(m_path).absolutePath();
    while (!QFileInfo(ancestor).isDir() && ancestor != QLatin1String("/"))
        ancestor = QFileInfo(ancestor).absolutePath();

    QList<QString> level{ancestor};
    int looked = 0;
    for (int depth = 0; depth < searchDepth && !level.isEmpty(); ++depth) {
        QList<QString> next;
        for (const QString &folder : std::as_const(level)) {
            const QFileInfoList entries = QDir(folder).entryInfoList(
                QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks);
            for (const QFileInfo &entry : entries) {
                if (++looked > searchBudget)
                    return std::nullopt;
                if (isSameItem(entry.absoluteFilePath()))
                    return entry.absoluteFilePath();
                next.append(entry.absoluteFilePath());
            }
        }
        level = std::move(next);
    }
    return std::nullopt;
}
