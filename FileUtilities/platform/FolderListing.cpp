#include "FolderListing.h"

#include "PlatformLog.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <cstring>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A name that does not decode from UTF-8 and back unchanged cannot be named again exactly.
bool survivesDecoding(const char *name, qsizetype length)
{
    if (FolderListing::isPlainAscii(name, length))
        return true;
    const QByteArray native = QByteArray::fromRawData(name, length);
    return QFile::encodeName(FolderListing::decodeName(native)) == native;
}

template <typename Name> QString joined(const QString &folder, const Name &name)
{
    QString path;
    path.reserve(folder.size() + 1 + name.size());
    path += folder;
    if (folder.size() != 1)
        path += u'/';
    path += name;
    return path;
}

QByteArray joined(const QByteArray &folder, const QByteArray &name)
{
    QByteArray path;
    path.reserve(folder.size() + 1 + name.size());
    path += folder;
    if (folder.size() != 1)
        path += '/';
    path += name;
    return path;
}

} // namespace

QString FolderListing::childPath(const Entry &entry) const
{
    const char *raw = rawName(entry);
    if (isPlainAscii(raw, entry.nameLength))
        return joined(m_path, QLatin1StringView(raw, entry.nameLength));
    return joined(m_path, decodeName(QByteArray::fromRawData(raw, entry.nameLength)));
}

QByteArray FolderListing::childNativePath(const Entry &entry) const
{
    return joined(m_nativePath, QByteArray::fromRawData(rawName(entry), entry.nameLength));
}

bool FolderListing::isPlainAscii(const char *name, qsizetype length)
{
    return std::all_of(name, name + length,
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// QFile::decodeName would drop a leading U+FEFF as a byte-order mark.
QString FolderListing::decodeName(const QByteArray &native)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(native);
}

FolderListing::FolderListing(FolderListing &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)),
      m_nativePath(std::move(other.m_nativePath)), m_path(std::move(other.m_path)),
      m_names(std::move(other.m_names)), m_entries(std::move(other.m_entries))
{}

FolderListing &FolderListing::operator=(FolderListing &&other) noexcept
{
    if (this != &other) {
        closeDescriptor();
        m_descriptor = std::exchange(other.m_descriptor, -1);
        m_nativePath = std::move(other.m_nativePath);
        m_path = std::move(other.m_path);
        m_names = std::move(other.m_names);
        m_entries = std::move(other.m_entries);
    }
    return *this;
}

FolderListing::~FolderListing()
{
    closeDescriptor();
}

void FolderListing::closeDescriptor()
{
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
}

void FolderListing::setDescriptor(int descriptor)
{
    closeDescriptor();
    m_descriptor = descriptor;
}

std::optional<FolderListing> FolderListing::read(int fd, const QByteArray &nativePath,
                                                 const QString &path)
{
    if (fd < 0)
        return std::nullopt;

    FolderListing folder;
    folder.m_descriptor = fd;
    folder.m_nativePath = nativePath;
    folder.m_path = path;
    // getdents64 straight on the descriptor: opendir's extra checks cost three system
    // calls a folder, which shows on trees of many small folders.
    folder.m_entries.reserve(64);
    alignas(dirent64) char buffer[32768];
    for (;;) {
        const ssize_t filled = ::getdents64(fd, buffer, sizeof buffer);
        if (filled <= 0)
            break; // the end, or the folder can no longer be read: keep what was listed
        for (ssize_t offset = 0; offset < filled;) {
            const auto *raw = reinterpret_cast<const dirent64 *>(buffer + offset);
            offset += raw->d_reclen;
            const char *name = raw->d_name;
            if (name[0] == '.')
                continue; // hidden, and "." and ".."
            const auto length = static_cast<qsizetype>(std::strlen(name));
            if (!survivesDecoding(name, length)) {
                qCDebug(platformLog).noquote()
                    << "passed over a name that is not UTF-8 in" << path << ":"
                    << QByteArray(name, length).toPercentEncoding("/", "%");
                continue;
            }
            struct stat info = {};
            if (::fstatat(fd, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
                continue; // vanished since it was listed
            const auto kind = S_ISDIR(info.st_mode)   ? DirectoryEntry::Kind::Folder
                              : S_ISREG(info.st_mode) ? DirectoryEntry::Kind::File
                                                      : DirectoryEntry::Kind::OtherFile;
            folder.m_entries.push_back(
                {folder.m_names.size(), length, kind, FileStamp::fromStatus(info)});
            folder.m_names.append(name, length + 1); // with its NUL, for openat
        }
    }

    std::sort(
        folder.m_entries.begin(), folder.m_entries.end(),
        [&folder](const Entry &a, const Entry &b) { return folder.name(a) < folder.name(b); });
    return folder;
}
