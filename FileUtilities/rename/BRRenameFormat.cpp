#include "BRRenameFormat.h"

#include "FileMover.h"
#include "RenameLog.h"
#include "TargetNameCheck.h"

#include <QFile>
#include <QSet>

#include <cerrno>
#include <limits>

#include <sys/stat.h>

namespace {

// Only a local file URL has a path on this machine.
QString localPath(const QUrl &url)
{
    return url.toLocalFile();
}

bool existsAt(const QString &path)
{
    struct stat info = {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0;
}

QString joined(const QString &text, const QString &addition, NamePlacement where)
{
    switch (where) {
    case NamePlacement::AfterName:
        return text + addition;
    case NamePlacement::BeforeName:
        return addition + text;
    }
    Q_UNREACHABLE();
    return text;
}

// The path without trailing slashes, split into its folder and its last component.
struct SplitPath
{
    QString folder;
    QString name;
};

SplitPath splitPath(QString path)
{
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash < 0)
        return {QString(), path};
    return {slash == 0 ? QStringLiteral("/") : path.left(slash), path.mid(slash + 1)};
}

// Why a row was not attempted, for the log.
const char *whyNot(NameCheck check)
{
    switch (check) {
    case NameCheck::SameAsAnotherRow:
        return "another row of the batch takes that name";
    case NameCheck::TakenInFolder:
        return "a file that stays has that name";
    case NameCheck::DotOrDotDot:
        return "it names a folder";
    case NameCheck::Slash:
        return "it holds a slash";
    case NameCheck::Nul:
        return "it holds a NUL";
    case NameCheck::NotEncodable:
        return "it has no exact bytes in UTF-8";
    case NameCheck::TooLong:
        return "it is longer than the file system takes";
    case NameCheck::Unchecked:
    case NameCheck::NoName:
    case NameCheck::Free:
    case NameCheck::Unchanged:
        break;
    }
    return "";
}

QByteArray bookmarkDataOf(const QString &path)
{
    const auto bookmark = ItemBookmark::forPath(path);
    return bookmark ? bookmark->toData() : QByteArray();
}

} // namespace

std::optional<qint64> BRRenameFormat::parseNumber(const QString &text)
{
    qsizetype position = 0;
    bool negative = false;
    if (!text.isEmpty() && (text.front() == u'+' || text.front() == u'-')) {
        negative = text.front() == u'-';
        position = 1;
    }
    if (position == text.size())
        return std::nullopt;
    // Accumulated towards the negative side, whose range is one larger, so that the
    // smallest value parses too.
    qint64 value = 0;
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    for (; position < text.size(); ++position) {
        const char16_t c = text.at(position).unicode();
        if (c < u'0' || c > u'9')
            return std::nullopt;
        const int digit = c - u'0';
        if (value < (lowest + digit) / 10)
            return std::nullopt;
        value = value * 10 - digit;
    }
    if (negative)
        return value;
    if (value == lowest)
        return std::nullopt;
    return -value;
}

RuleRunReport BRRenameFormat::nameListedRows(RenameFileDetails &details, const QStringList &keys,
                                             const std::function<void(RenameRecord &)> &name)
{
    // Keys without a record use up nothing; a row without a path is reported, not named.
    RuleRunReport report;
    for (const QString &key : keys) {
        const auto record = details.find(key);
        if (record == details.end())
            continue;
        if (localPath(record->sourceURL).isEmpty()) {
            report.missingKeys.append(key);
            continue;
        }
        name(*record);
    }
    return report;
}

std::optional<RuleRunReport> BRRenameFormat::changeFullFileNames(
    const QString &numberText, const std::optional<QString> &newName, RenameFileDetails &details,
    const QStringList &keys, NamePlacement where) const
{
    if (!newName)
        return std::nullopt;
    qint64 counter = 1;
    if (!numberText.isEmpty()) {
        const auto start = parseNumber(numberText);
        if (!start)
            return std::nullopt;
        if (*start <= startNumberLimit)
            counter = *start;
    }
    return nameListedRows(details, keys, [&](RenameRecord &record) {
        if (record.nameSource == NameSource::Rule)
            record.destinationURL = joined(*newName, QString::number(counter), where);
        ++counter; // a hand-named row keeps its number, so the others keep theirs
    });
}

std::optional<RuleRunReport> BRRenameFormat::addTextToFileNames(const QString &text,
                                                                RenameFileDetails &details,
                                                                const QStringList &keys,
                                                                NamePlacement where) const
{
    if (text.isEmpty())
        return std::nullopt;
    return nameListedRows(details, keys, [&](RenameRecord &record) {
        if (record.nameSource == NameSource::Rule)
            record.destinationURL = addedTextName(record.sourceURL, text, where);
    });
}

std::optional<QString> BRRenameFormat::fullFileNameForRow(const std::optional<QString> &newNameText,
                                                          const std::optional<QString> &numberText,
                                                          NamePlacement where, int row)
{
    if (!newNameText || newNameText->isEmpty() || !numberText || row < 0)
        return std::nullopt;
    qint64 number = qint64(row) + 1;
    if (!numberText->isEmpty()) {
        const auto start = parseNumber(*numberText);
        if (!start)
            return std::nullopt;
        // Compared before adding, so that a start near the top of the range cannot overflow.
        if (*start <= startNumberLimit - row)
            number = *start + row;
    }
    return joined(*newNameText, QString::number(number), where);
}

QString BRRenameFormat::addedTextName(const QUrl &sourceURL, const QString &text,
                                      NamePlacement where)
{
    return joined(baseName(sourceURL), text, where);
}

QString BRRenameFormat::baseName(const QUrl &sourceURL)
{
    const QString last = sourceURL.path(QUrl::FullyDecoded).section(QLatin1Char('/'), -1);
    return last.section(QLatin1Char('.'), 0, 0);
}

QString BRRenameFormat::pathExtension(const QUrl &sourceURL)
{
    return extensionOf(localPath(sourceURL)).toString();
}

QString BRRenameFormat::targetFileName(const QUrl &sourceURL, const QString &newName)
{
    return targetFileName(localPath(sourceURL), newName);
}

QString BRRenameFormat::targetFileName(const QString &sourcePath, const QString &newName)
{
    const QStringView extension = extensionOf(sourcePath);
    if (extension.isEmpty())
        return newName;
    QString name;
    name.reserve(newName.size() + 1 + extension.size());
    name.append(newName).append(QLatin1Char('.')).append(extension);
    return name;
}

QStringView BRRenameFormat::extensionOf(QStringView path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    const QStringView name = path.mid(path.lastIndexOf(u'/') + 1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QStringView() : name.mid(dot + 1);
}

ExecutionReport BRRenameFormat::renameFiles(const QStringList &keys, RenameFileDetails &details,
                                            RenameBookmarks &bookmarks) const
{
    ExecutionReport report;
    ItemBookmark::SearchCache searches;
    // First where every file is and what it is to be named; then the names are checked as a
    // batch, and only then do files move.
    QList<LocatedRow> located;
    for (const QString &key : keys) {
        const auto record = details.find(key);
        if (record == details.end() || !record->destinationURL || record->destinationURL->isEmpty())
            continue;
        const QString newName = *record->destinationURL;
        const QString path = localPath(record->sourceURL);
        if (path.isEmpty()) {
            report.missingKeys.append(key);
            continue;
        }
        if (!existsAt(path)) {
            const std::optional<QUrl> at = restoreBookmark(path, bookmarks, &searches);
            if (!at) {
                qCWarning(renameLog).noquote()
                    << "not renamed:" << path << "is gone and was not found near where it was";
                report.missingKeys.append(key);
                continue;
            }
            record->sourceURL = *at;
        }
        located.append({key, record->sourceURL, newName});
    }
    report.renamed = checkAndMove(located, details);
    return report;
}

qsizetype BRRenameFormat::checkNames(const QStringList &keys, RenameFileDetails &details)
{
    std::vector<TargetNameCheck::Row> rows;
    std::vector<RenameRecord *> records;
    rows.reserve(size_t(keys.size()));
    records.reserve(size_t(keys.size()));
    for (const QString &key : keys) {
        const auto record = details.find(key);
        if (record == details.end())
            continue;
        const QString newName = record->destinationURL.value_or(QString());
        QString path = localPath(record->sourceURL);
        QString target = newName.isEmpty() ? QString() : targetFileName(path, newName);
        rows.push_back({std::move(path), std::move(target)});
        records.push_back(&*record);
    }
    const qsizetype free = TargetNameCheck::check(rows, TargetNameCheck::Paths::Skipped);
    for (size_t at = 0; at < rows.size(); ++at)
        records[at]->check = rows[at].result;
    return free;
}

QList<RenamedFile> BRRenameFormat::checkAndMove(const QList<LocatedRow> &located,
                                                RenameFileDetails &details) const
{
    std::vector<TargetNameCheck::Row> rows;
    rows.reserve(size_t(located.size()));
    for (const LocatedRow &row : located)
        rows.push_back({localPath(row.at), targetFileName(row.at, row.newName)});
    TargetNameCheck::check(rows);

    QList<PlannedMove> moves;
    for (qsizetype at = 0; at < located.size(); ++at) {
        const TargetNameCheck::Row &row = rows[size_t(at)];
        RenameRecord &record = details[located.at(at).key];
        // Every row gets this run's word: an outcome of an earlier run would mislead.
        record.check = row.result;
        record.outcome = RenameOutcome::NotTried;
        record.failureError = 0;
        if (row.result == NameCheck::Free)
            moves.append(PlannedMove{located.at(at).key, row.sourcePath, row.targetPath});
        else if (isConflict(row.result))
            qCWarning(renameLog).noquote() << "not renamed:" << row.sourcePath << "cannot be named"
                                           << row.targetName << "there:" << whyNot(row.result);
    }
    carryOut(moves);

    QList<RenamedFile> renamed;
    for (const PlannedMove &move : std::as_const(moves)) {
        RenameRecord &record = details[move.key];
        record.outcome = move.outcome;
        record.failureError = move.error;
        // A file left under a passing name: its row says where it is now.
        if (move.outcome == RenameOutcome::Failed && !move.parkedFrom.isEmpty())
            record.sourceURL = QUrl::fromLocalFile(move.source);
        if (move.outcome == RenameOutcome::Succeeded)
            renamed.append(RenamedFile{move.key, move.originalSource(), move.target,
                                       bookmarkDataOf(move.target)});
    }
    return renamed;
}

void BRRenameFormat::carryOut(QList<PlannedMove> &moves) const
{
    // Which pending move still holds each path as its source.
    QHash<QString, qsizetype> holder;
    for (qsizetype at = 0; at < moves.size(); ++at)
        holder.insert(moves.at(at).source, at);
    QList<bool> done(moves.size(), false);

    const auto execute = [&](qsizetype at) {
        PlannedMove &move = moves[at];
        const FileMover::Result moved = FileMover::move(move.source, move.target);
        if (!moved)
            qCWarning(renameLog).noquote()
                << "not renamed:" << move.source << "to" << move.target << ":" << moved.errorText;
        move.outcome = moved ? RenameOutcome::Succeeded : RenameOutcome::Failed;
        move.error = moved.error;
        holder.remove(move.source);
        done[at] = true;
        if (moved || move.parkedFrom.isEmpty())
            return;
        // A file parked under a passing name to break a cycle goes back where it was; if it
        // cannot, the caller tells where it is now.
        if (FileMover::move(move.source, move.parkedFrom)) {
            move.source = move.parkedFrom;
            move.parkedFrom.clear();
            return;
        }
        qCWarning(renameLog).noquote() << "left" << move.parkedFrom << "as" << move.source;
    };

    for (qsizetype start = 0; start < moves.size(); ++start) {
        if (done[start])
            continue;
        // Follow the moves whose targets are held by other pending moves, to one whose target
        // is free (the end of a chain), or back to a move already on the way (a cycle).
        QList<qsizetype> path{start};
        QSet<qsizetype> onPath{start};
        for (;;) {
            const auto blocker = holder.constFind(moves.at(path.constLast()).target);
            if (blocker == holder.constEnd() || done[*blocker])
                break;
            if (onPath.contains(*blocker)) {
                // A cycle: the file whose name the last move wants steps aside first.
                parkAside(moves[*blocker], holder, *blocker);
                break;
            }
            path.append(*blocker);
            onPath.insert(*blocker);
        }
        // From the end back: each move frees the name the one before it wants.
        for (qsizetype at = path.size() - 1; at >= 0; --at) {
            if (!done[path.at(at)])
                execute(path.at(at));
        }
    }
}

UndoReport BRRenameFormat::undoRenames(const QList<RenamedFile> &files) const
{
    UndoReport report;
    ItemBookmark::SearchCache searches;
    std::vector<TargetNameCheck::Row> rows;
    QList<qsizetype> fileOfRow;
    for (qsizetype at = 0; at < files.size(); ++at) {
        const RenamedFile &file = files.at(at);
        // Where the rename put it, while that is still the same file; else wherever its
        // bookmark finds it.
        std::optional<QString> present;
        if (const auto bookmark = ItemBookmark::fromData(file.bookmark)) {
            if (const auto resolved = bookmark->resolve(&searches))
                present = resolved->path;
        } else if (existsAt(file.toPath)) {
            present = file.toPath;
        }
        if (!present) {
            qCWarning(renameLog).noquote() << "not undone:" << file.toPath << "was not found";
            report.failures.append({file, QString(), NameCheck::Unchecked, ENOENT});
            continue;
        }
        rows.push_back({*present, splitPath(file.fromPath).name});
        fileOfRow.append(at);
    }
    TargetNameCheck::check(rows);

    QList<PlannedMove> moves;
    QList<qsizetype> fileOfMove;
    for (size_t at = 0; at < rows.size(); ++at) {
        const TargetNameCheck::Row &row = rows[at];
        const RenamedFile &file = files.at(fileOfRow.at(qsizetype(at)));
        if (row.result == NameCheck::Free) {
            moves.append(PlannedMove{file.key, row.sourcePath, row.targetPath});
            fileOfMove.append(fileOfRow.at(qsizetype(at)));
        } else if (row.result == NameCheck::Unchanged) {
            ++report.restored; // it has its old name already
        } else {
            qCWarning(renameLog).noquote() << "not undone:" << row.sourcePath << "cannot be named"
                                           << row.targetName << "there:" << whyNot(row.result);
            RenamedFile kept = file;
            kept.toPath = row.sourcePath;
            report.failures.append({kept, row.sourcePath, row.result, 0});
        }
    }
    carryOut(moves);
    for (qsizetype at = 0; at < moves.size(); ++at) {
        const PlannedMove &move = moves.at(at);
        if (move.outcome == RenameOutcome::Succeeded) {
            ++report.restored;
            continue;
        }
        RenamedFile file = files.at(fileOfMove.at(at));
        // Kept where it is now, so that another try starts from there.
        file.toPath = move.source;
        file.bookmark = bookmarkDataOf(move.source);
        report.failures.append({file, move.source, NameCheck::Free, move.error});
    }
    return report;
}

void BRRenameFormat::parkAside(PlannedMove &move, QHash<QString, qsizetype> &holder,
                               qsizetype index) const
{
    const SplitPath source = splitPath(move.source);
    for (int attempt = 1; attempt <= 100; ++attempt) {
        const QString parked =
            source.folder +
            QStringLiteral("/.%1.quillmere-rename-%2").arg(source.name.left(200)).arg(attempt);
        if (!FileMover::move(move.source, parked))
            continue;
        holder.remove(move.source);
        move.parkedFrom = move.source;
        move.source = parked;
        holder.insert(parked, index);
        return;
    }
    // No passing name could be had: the cycle's moves fail on their taken names, and nothing
    // is overwritten.
}

void BRRenameFormat::renameFile(const std::optional<QUrl> &sourceURL, const QString &newName,
                                RenameFileDetails &details, const QString &key) const
{
    if (!sourceURL || localPath(*sourceURL).isEmpty() || !details.contains(key))
        return;
    checkAndMove({LocatedRow{key, *sourceURL, newName}}, details);
}

std::optional<QUrl> BRRenameFormat::restoreBookmark(const QString &path,
                                                    RenameBookmarks &bookmarks) const
{
    return restoreBookmark(path, bookmarks, nullptr);
}

std::optional<QUrl> BRRenameFormat::restoreBookmark(const QString &path, RenameBookmarks &bookmarks,
                                                    ItemBookmark::SearchCache *cache) const
{
    const auto data = bookmarks.constFind(path);
    if (data == bookmarks.constEnd())
        return std::nullopt;
    const auto bookmark = ItemBookmark::fromData(*data);
    if (!bookmark)
        return std::nullopt;
    const auto resolved = bookmark->resolve(cache);
    if (!resolved)
        return std::nullopt;
    const QUrl url = QUrl::fromLocalFile(resolved->path);
    saveBookmark(url, bookmarks);
    return url;
}

void BRRenameFormat::saveBookmark(const QUrl &url, RenameBookmarks &bookmarks) const
{
    const QString path = localPath(url);
    if (path.isEmpty())
        return;
    const auto bookmark = ItemBookmark::forPath(path);
    if (!bookmark)
        return;
    bookmarks.insert(path, bookmark->toData());
}
