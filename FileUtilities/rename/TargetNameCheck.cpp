#include "TargetNameCheck.h"

#include "FileMover.h"

#include <QFile>
#include <QHash>
#include <QSet>

#include <optional>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

NameCheck checkOf(FileMover::NameProblem problem)
{
    switch (problem) {
    case FileMover::NameProblem::None:
        return NameCheck::Free;
    case FileMover::NameProblem::Empty:
        return NameCheck::NoName;
    case FileMover::NameProblem::DotOrDotDot:
        return NameCheck::DotOrDotDot;
    case FileMover::NameProblem::Slash:
        return NameCheck::Slash;
    case FileMover::NameProblem::Nul:
        return NameCheck::Nul;
    case FileMover::NameProblem::NotEncodable:
        return NameCheck::NotEncodable;
    case FileMover::NameProblem::TooLong:
        return NameCheck::TooLong;
    }
    return NameCheck::NoName;
}

QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

// One folder of the batch, with its listed files' names and the rows' new names.
struct Folder
{
    QString path;
    long nameMax = 0;
    QHash<QString, qsizetype> holders = {};     // listed files by their present names
    QHash<QString, qsizetype> firstTarget = {}; // the first row after each new name
};

// A row split once into its folder and its present name.
struct Place
{
    qsizetype folder = -1;
    QString name;
};

// The names in the folder, as bytes, when reading them all costs less than asking for each
// of `asked` names: one look-up costs as much as reading some sixteen entries. Nothing when
// asking is cheaper or the folder cannot be read.
std::optional<QSet<QByteArray>> listingFor(const QString &folder, size_t asked)
{
    constexpr size_t entriesPerLookup = 16;
    // ext4 and its kin give a folder's size in bytes, some thirty a name.
    constexpr qint64 bytesPerEntry = 32;
    if (asked < 32)
        return std::nullopt;
    const QByteArray path = QFile::encodeName(folder);
    struct stat info = {};
    if (::stat(path.constData(), &info) != 0 ||
        qint64(info.st_size) / bytesPerEntry > qint64(asked * entriesPerLookup))
        return std::nullopt;
    DIR *stream = ::opendir(path.constData());
    if (!stream)
        return std::nullopt;
    QSet<QByteArray> names;
    names.reserve(qsizetype(info.st_size / bytesPerEntry));
    while (const dirent *entry = ::readdir(stream))
        names.insert(QByteArray(entry->d_name));
    ::closedir(stream);
    return names;
}

// Whether something other than the row's own file has its new name, asked of the folder.
bool takenAt(int folder, const QString &folderPath, const TargetNameCheck::Row &row)
{
    const QByteArray target = QFile::encodeName(
        folder >= 0 ? row.targetName : folderPath + QLatin1Char('/') + row.targetName);
    struct stat found = {};
    if (::fstatat(folder >= 0 ? folder : AT_FDCWD, target.constData(), &found,
                  AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    // On a file system that ignores case, a.jpg is found under A.jpg: itself.
    struct stat source = {};
    return ::lstat(QFile::encodeName(row.sourcePath).constData(), &source) != 0 ||
           source.st_dev != found.st_dev || source.st_ino != found.st_ino;
}

} // namespace

qsizetype TargetNameCheck::check(std::vector<Row> &rows, Paths paths)
{
    constexpr qsizetype none = -1;
    std::vector<Folder> folders;
    QHash<QString, qsizetype> folderIndex;
    std::vector<Place> places(rows.size());
    qsizetype lastFolder = -1;
    for (size_t at = 0; at < rows.size(); ++at) {
        Row &row = rows[at];
        row.sourcePath = withoutTrailingSlashes(row.sourcePath);
        row.targetPath.clear();
        const qsizetype slash = row.sourcePath.lastIndexOf(QLatin1Char('/'));
        if (slash < 0)
            continue;
        const QStringView folderPath =
            slash == 0 ? QStringView(u"/") : QStringView(row.sourcePath).left(slash);
        // Rows come folder by folder, mostly: the folder of the row before is tried first.
        if (lastFolder < 0 || folders[size_t(lastFolder)].path != folderPath) {
            auto known = folderIndex.constFind(folderPath.toString());
            if (known == folderIndex.cend()) {
                const QString path = folderPath.toString();
                known = folderIndex.insert(path, qsizetype(folders.size()));
                folders.push_back({path, FileMover::nameMaxIn(path)});
            }
            lastFolder = *known;
        }
        places[at] = {lastFolder, row.sourcePath.mid(slash + 1)};
        // Every listed file holds its name, whether it moves or not.
        folders[size_t(lastFolder)].holders.insert(places[at].name, qsizetype(at));
    }

    // First what each row says alone: no name, a name that cannot be one, the name it has;
    // then two rows after one name, of which neither is the one to have it.
    for (size_t at = 0; at < rows.size(); ++at) {
        Row &row = rows[at];
        const Place &place = places[at];
        if (row.targetName.isEmpty() || place.folder == none) {
            row.result = NameCheck::NoName;
            continue;
        }
        Folder &folder = folders[size_t(place.folder)];
        row.result = checkOf(FileMover::problemWithName(row.targetName, folder.nameMax));
        if (row.result != NameCheck::Free)
            continue;
        if (row.targetName == place.name) {
            row.result = NameCheck::Unchanged;
            continue;
        }
        const auto first = folder.firstTarget.constFind(row.targetName);
        if (first == folder.firstTarget.cend()) {
            folder.firstTarget.insert(row.targetName, qsizetype(at));
        } else {
            rows[size_t(*first)].result = NameCheck::SameAsAnotherRow;
            row.result = NameCheck::SameAsAnotherRow;
        }
    }

    // Then the names held already. A listed file that moves away frees its name; one that
    // stays (or cannot move) holds it, and so does any file outside the batch.
    std::vector<qsizetype> waitsFor(rows.size(), none);
    std::vector<std::vector<qsizetype>> onDisk(folders.size());
    for (size_t at = 0; at < rows.size(); ++at) {
        Row &row = rows[at];
        if (row.result != NameCheck::Free)
            continue;
        const Folder &folder = folders[size_t(places[at].folder)];
        const qsizetype holder = folder.holders.value(row.targetName, none);
        if (holder == none)
            onDisk[size_t(places[at].folder)].push_back(qsizetype(at));
        else if (rows[size_t(holder)].result == NameCheck::Free)
            waitsFor[at] = holder;
        else
            row.result = NameCheck::TakenInFolder;
    }
    for (size_t index = 0; index < folders.size(); ++index) {
        if (onDisk[index].empty())
            continue;
        const Folder &folder = folders[index];
        const std::optional<QSet<QByteArray>> listing =
            listingFor(folder.path, onDisk[index].size());
        const int descriptor = listing ? -1
                                       : ::open(QFile::encodeName(folder.path).constData(),
                                                O_PATH | O_DIRECTORY | O_CLOEXEC);
        for (const qsizetype at : onDisk[index]) {
            Row &row = rows[size_t(at)];
            if (listing) {
                if (listing->contains(row.targetName.toUtf8()))
                    row.result = NameCheck::TakenInFolder;
            } else if (takenAt(descriptor, folder.path, row)) {
                row.result = NameCheck::TakenInFolder;
            }
        }
        if (descriptor >= 0)
            ::close(descriptor);
    }

    // A name waited for is free only if its holder really moves: follow each chain to its
    // end once, and pass the holder's fate back along it. A ring moves whole.
    enum class Fate : char
    {
        Unknown,
        Visiting,
        Moves,
        Stays
    };
    std::vector<Fate> fate(rows.size(), Fate::Unknown);
    std::vector<qsizetype> chain;
    for (qsizetype start = 0; start < qsizetype(rows.size()); ++start) {
        chain.clear();
        qsizetype at = start;
        Fate end = Fate::Unknown;
        while (end == Fate::Unknown) {
            if (rows[size_t(at)].result != NameCheck::Free) {
                end = Fate::Stays;
            } else if (fate[size_t(at)] == Fate::Moves || fate[size_t(at)] == Fate::Stays) {
                end = fate[size_t(at)];
            } else if (fate[size_t(at)] == Fate::Visiting || waitsFor[size_t(at)] == none) {
                // Back on this walk: a ring, which moves through a passing name.
                end = Fate::Moves;
            } else {
                fate[size_t(at)] = Fate::Visiting;
                chain.push_back(at);
                at = waitsFor[size_t(at)];
            }
        }
        for (const qsizetype link : chain) {
            fate[size_t(link)] = end;
            if (end == Fate::Stays)
                rows[size_t(link)].result = NameCheck::TakenInFolder;
        }
    }

    qsizetype free = 0;
    for (size_t at = 0; at < rows.size(); ++at) {
        Row &row = rows[at];
        free += row.result == NameCheck::Free;
        if (paths == Paths::Skipped ||
            (row.result != NameCheck::Free && row.result != NameCheck::Unchanged))
            continue;
        const QString &folder = folders[size_t(places[at].folder)].path;
        row.targetPath = folder.endsWith(QLatin1Char('/'))
                             ? folder + row.targetName
                             : folder + QLatin1Char('/') + row.targetName;
    }
    return free;
}
