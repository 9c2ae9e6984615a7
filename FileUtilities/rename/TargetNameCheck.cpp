#include "TargetNameCheck.h"

#include "FileMover.h"

#include <QFile>
#include <QHash>

#include <sys/stat.h>

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

// The folder part of a path without trailing slashes; "" when there is none.
QString folderOf(QString path)
{
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash < 0)
        return QString();
    return slash == 0 ? QStringLiteral("/") : path.left(slash);
}

QString joinedPath(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

} // namespace

qsizetype TargetNameCheck::check(std::vector<Row> &rows)
{
    constexpr qsizetype none = -1;
    // Asked once a folder: a batch is mostly one folder, and the question costs a call.
    QHash<QString, long> nameMax;
    // Which listed file holds each path now.
    QHash<QString, qsizetype> holders;
    holders.reserve(static_cast<qsizetype>(rows.size()));
    for (qsizetype at = 0; at < qsizetype(rows.size()); ++at) {
        Row &row = rows[size_t(at)];
        row.sourcePath = withoutTrailingSlashes(row.sourcePath);
        if (!row.sourcePath.isEmpty())
            holders.insert(row.sourcePath, at);
    }

    // First what each row alone says: no name, a name that cannot be one, the name it has.
    QHash<QString, qsizetype> firstWithTarget;
    firstWithTarget.reserve(static_cast<qsizetype>(rows.size()));
    for (qsizetype at = 0; at < qsizetype(rows.size()); ++at) {
        Row &row = rows[size_t(at)];
        row.targetPath.clear();
        const QString folder = folderOf(row.sourcePath);
        if (row.targetName.isEmpty() || folder.isEmpty()) {
            row.result = NameCheck::NoName;
            continue;
        }
        auto limit = nameMax.constFind(folder);
        if (limit == nameMax.cend())
            limit = nameMax.insert(folder, FileMover::nameMaxIn(folder));
        row.result = checkOf(FileMover::problemWithName(row.targetName, *limit));
        if (row.result != NameCheck::Free)
            continue;
        row.targetPath = joinedPath(folder, row.targetName);
        if (row.targetPath == row.sourcePath) {
            row.result = NameCheck::Unchanged;
            continue;
        }
        // Two rows after one name: neither is the one to have it.
        const auto first = firstWithTarget.constFind(row.targetPath);
        if (first == firstWithTarget.cend()) {
            firstWithTarget.insert(row.targetPath, at);
        } else {
            rows[size_t(*first)].result = NameCheck::SameAsAnotherRow;
            row.result = NameCheck::SameAsAnotherRow;
        }
    }

    // Then the names held already. A listed file that moves away frees its name; one that
    // stays (or cannot move) holds it, and so does any file outside the batch.
    std::vector<qsizetype> waitsFor(rows.size(), none);
    for (qsizetype at = 0; at < qsizetype(rows.size()); ++at) {
        Row &row = rows[size_t(at)];
        if (row.result != NameCheck::Free)
            continue;
        const qsizetype holder = holders.value(row.targetPath, none);
        if (holder != none) {
            if (rows[size_t(holder)].result == NameCheck::Free)
                waitsFor[size_t(at)] = holder;
            else
                row.result = NameCheck::TakenInFolder;
            continue;
        }
        struct stat target = {};
        if (::lstat(QFile::encodeName(row.targetPath).constData(), &target) != 0)
            continue;
        // On a file system that ignores case, a.jpg is found under A.jpg: itself.
        struct stat source = {};
        const bool itself = ::lstat(QFile::encodeName(row.sourcePath).constData(), &source) == 0 &&
                            source.st_dev == target.st_dev && source.st_ino == target.st_ino;
        if (!itself)
            row.result = NameCheck::TakenInFolder;
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
    qsizetype free = 0;
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
    for (const Row &row : rows)
        free += row.result == NameCheck::Free;
    return free;
}
