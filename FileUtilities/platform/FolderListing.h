#pragma once

#include "DirectoryEntry.h"
#include "FileStamp.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

// One folder read whole: its open descriptor and its visible entries in byte order of their
// names, each with the stamp of a single lstat. Reading one is all system calls and no
// shared state, so any thread may do it; the walk takes listings in its own order.
class FolderListing
{
public:
    struct Entry
    {
        qsizetype nameOffset = 0; // into the folder's names, where each name ends with a NUL
        qsizetype nameLength = 0;
        DirectoryEntry::Kind kind = DirectoryEntry::Kind::File;
        FileStamp stamp;
    };

    FolderListing() = default;
    FolderListing(FolderListing &&other) noexcept;
    FolderListing &operator=(FolderListing &&other) noexcept;
    FolderListing(const FolderListing &) = delete;
    FolderListing &operator=(const FolderListing &) = delete;
    ~FolderListing();

    // Lists the folder open on `descriptor`, taking ownership of it; nothing when it is -1.
    // Hidden entries and names that are not UTF-8 are left out.
    static std::optional<FolderListing> read(int descriptor, const QByteArray &nativePath,
                                             const QString &path);

    int descriptor() const { return m_descriptor; }
    // Gives the descriptor up (closing it) or takes a new one for the same folder.
    void closeDescriptor();
    void setDescriptor(int descriptor);

    const QByteArray &nativePath() const { return m_nativePath; }
    const QString &path() const { return m_path; }
    const std::vector<Entry> &entries() const { return m_entries; }
    const char *rawName(const Entry &entry) const { return m_names.constData() + entry.nameOffset; }
    std::string_view name(const Entry &entry) const
    {
        return {rawName(entry), static_cast<size_t>(entry.nameLength)};
    }

    // An entry's full path, joined with one slash (the root already ends in one).
    QString childPath(const Entry &entry) const;
    QByteArray childNativePath(const Entry &entry) const;

    // Names as the walk spells them: plain ASCII is taken as it is; anything else decodes as
    // UTF-8, a leading U+FEFF kept.
    static bool isPlainAscii(const char *name, qsizetype length);
    static QString decodeName(const QByteArray &native);

private:
    int m_descriptor = -1;
    QByteArray m_nativePath;
    QString m_path;
    QByteArray m_names; // all names of the folder in one allocation
    std::vector<Entry> m_entries;
};
