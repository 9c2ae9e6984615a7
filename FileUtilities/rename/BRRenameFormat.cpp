#include "BRRenameFormat.h"

#include "FileMover.h"
#include "RenameLog.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

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
        if (record.nameSource != NameSource::HandEdit)
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
        if (record.nameSource != NameSource::HandEdit)
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

ExecutionReport BRRenameFormat::renameFiles(const QStringList &keys, RenameFileDetails &details,
                                            RenameBookmarks &bookmarks) const
{
    ExecutionReport report;
    ItemBookmark::SearchCache searches;
    // First where every file is and where it goes; then the moves, in an order that lets a
    // file take a name another file of the batch is leaving.
    QList<PlannedMove> moves;
    for (const QString &key : keys) {
        const auto record = details.constFind(key);
        if (record == details.constEnd() || !record->destinationURL ||
            record->destinationURL->isEmpty())
            continue;
        const QString newName = *record->destinationURL;
        const QUrl sourceURL = record->sourceURL;
        const QString path = localPath(sourceURL);
        if (path.isEmpty()) {
            report.missingKeys.append(key);
            continue;
        }
        std::optional<QUrl> at = sourceURL;
        if (!existsAt(path)) {
            at = restoreBookmark(path, bookmarks, &searches);
            if (!at) {
                qCWarning(renameLog).noquote()
                    << "not renamed:" << path << "is gone and was not found near where it was";
                report.missingKeys.append(key);
                continue;
            }
            details[key].sourceURL = *at;
        }
        if (std::optional<PlannedMove> move = planMove(*at, newName, details, key))
            moves.append(std::move(*move));
    }
    carryOut(moves, details);
    return report;
}

std::optional<BRRenameFormat::PlannedMove> BRRenameFormat::planMove(const QUrl &sourceURL,
                                                                    const QString &newName,
                                                                    RenameFileDetails &details,
                                                                    const QString &key) const
{
    const auto record = details.find(key);
    if (record == details.end())
        return std::nullopt;
    const QString sourcePath = localPath(sourceURL);
    const SplitPath source = splitPath(sourcePath);
    if (source.folder.isEmpty() || source.name.isEmpty())
        return std::nullopt;
    const QString extension = QFileInfo(source.name).suffix();
    const QString targetName =
        extension.isEmpty() ? newName : newName + QLatin1Char('.') + extension;
    // A name that would point into another folder, or that the file system cannot hold,
    // is refused here rather than handed to the path API.
    if (!FileMover::isValidFileName(targetName, source.folder)) {
        qCWarning(renameLog).noquote()
            << "not renamed:" << sourcePath << "cannot be named" << targetName << "in its folder";
        record->outcome = RenameOutcome::Failed;
        return std::nullopt;
    }
    const QString targetPath = source.folder == QLatin1String("/")
                                   ? source.folder + targetName
                                   : source.folder + QLatin1Char('/') + targetName;
    // A file that has its new name already is left as it is: nothing to do, nothing failed.
    if (targetPath == sourcePath)
        return std::nullopt;
    return PlannedMove{key, sourcePath, targetPath, QString()};
}

void BRRenameFormat::carryOut(QList<PlannedMove> &moves, RenameFileDetails &details) const
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
        details[move.key].outcome = moved ? RenameOutcome::Succeeded : RenameOutcome::Failed;
        holder.remove(move.source);
        done[at] = true;
        if (moved || move.parkedFrom.isEmpty())
            return;
        // A file parked under a passing name to break a cycle goes back where it was; if it
        // cannot, its row tells where it is now.
        if (FileMover::move(move.source, move.parkedFrom))
            return;
        qCWarning(renameLog).noquote() << "left" << move.parkedFrom << "as" << move.source;
        details[move.key].sourceURL = QUrl::fromLocalFile(move.source);
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
    if (!sourceURL)
        return;
    if (std::optional<PlannedMove> move = planMove(*sourceURL, newName, details, key)) {
        QList<PlannedMove> moves{std::move(*move)};
        carryOut(moves, details);
    }
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
