#include "BRRenameFormat.h"

#include "FileMover.h"
#include "RenameLog.h"

#include <QFile>
#include <QFileInfo>

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
        if (existsAt(path)) {
            renameFile(sourceURL, newName, details, key);
            continue;
        }
        const auto found = restoreBookmark(path, bookmarks, &searches);
        if (!found) {
            qCWarning(renameLog).noquote()
                << "not renamed:" << path << "is gone and was not found near where it was";
            report.missingKeys.append(key);
            continue;
        }
        details[key].sourceURL = *found;
        renameFile(*found, newName, details, key);
    }
    return report;
}

void BRRenameFormat::renameFile(const std::optional<QUrl> &sourceURL, const QString &newName,
                                RenameFileDetails &details, const QString &key) const
{
    if (!sourceURL)
        return;
    const auto record = details.find(key);
    if (record == details.end())
        return;
    const QString sourcePath = localPath(*sourceURL);
    const SplitPath source = splitPath(sourcePath);
    if (source.folder.isEmpty() || source.name.isEmpty())
        return;
    const QString extension = QFileInfo(source.name).suffix();
    const QString targetName =
        extension.isEmpty() ? newName : newName + QLatin1Char('.') + extension;
    // A name that would point into another folder, or that the file system cannot hold,
    // is refused here rather than handed to the path API.
    if (!FileMover::isValidFileName(targetName, source.folder)) {
        qCWarning(renameLog).noquote()
            << "not renamed:" << sourcePath << "cannot be named" << targetName << "in its folder";
        record->outcome = RenameOutcome::Failed;
        return;
    }
    const QString targetPath = source.folder == QLatin1String("/")
                                   ? source.folder + targetName
                                   : source.folder + QLatin1Char('/') + targetName;
    const FileMover::Result moved = FileMover::move(sourcePath, targetPath);
    if (!moved)
        qCWarning(renameLog).noquote()
            << "not renamed:" << sourcePath << "to" << targetName << ":" << moved.errorText;
    record->outcome = moved ? RenameOutcome::Succeeded : RenameOutcome::Failed;
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
