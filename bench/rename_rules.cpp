// Measures the batch renamer's engine at the list sizes a user can reach by dropping a
// big folder: a rule run over the whole list, as the screen starts one on each keystroke
// (copy of the list, the run on the copy), the sort the screen does before each run, the
// same run with the check of every name against the others and a real folder of that many
// files, and renaming every file of one folder on disk: as listed, with some files deleted,
// with the folder renamed (every file found by its bookmark) and with the folder deleted.
//
// Usage: rename_rules [ROWS] [RULE_RUNS] [DISK_RUNS] [MISSING]
// The target: a keystroke's whole run (copy, rule, check) under 50 ms at 10,000 rows.

#include "BRRenameFormat.h"
#include "NameCollator.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double millisecondsOf(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// Names in a mix the sort has to work for: upper and lower case, numbers of differing widths.
QString nameFor(int index)
{
    static const char *const words[] = {"IMG_", "holiday ", "Scan", "photo-", "DSC"};
    static const char *const kinds[] = {"jpg", "JPG", "png", "tar.gz", "heic"};
    return QString::fromLatin1(words[index % 5]) + QString::number(index * 7919 % 100003) +
           QLatin1Char('.') + QString::fromLatin1(kinds[index / 5 % 5]);
}

void printRow(const char *what, const std::vector<double> &times)
{
    std::printf("%-52s %10.2f ms  (min %.2f, max %.2f, %zu runs)\n", what, median(times),
                *std::min_element(times.begin(), times.end()),
                *std::max_element(times.begin(), times.end()), times.size());
}

void ruleRuns(int rows, int runs)
{
    RenameFileDetails details;
    QStringList keys;
    for (int i = 0; i < rows; ++i) {
        const QString key = nameFor(i);
        details.insert(
            key,
            RenameRecord{QUrl::fromLocalFile(u"/home/user/Pictures/"_s + key), QString(), {}, {}});
        keys.append(key);
    }
    // Every tenth row typed by hand, as a user might have done.
    for (int i = 0; i < rows; i += 10)
        details[keys.at(i)].nameSource = NameSource::HandEdit;

    const BRRenameFormat format;
    std::vector<double> sortTimes, fullTimes, addTimes;
    qsizetype checksum = 0;
    for (int run = 0; run < runs; ++run) {
        QStringList shuffled = keys;
        std::rotate(shuffled.begin(), shuffled.begin() + run * 97 % rows, shuffled.end());
        QElapsedTimer timer;
        timer.start();
        const NameCollator collator;
        std::sort(shuffled.begin(), shuffled.end(), collator);
        sortTimes.push_back(millisecondsOf(timer));

        timer.restart();
        RenameFileDetails copy = details; // the run's private copy
        const auto full = format.changeFullFileNames(u"1"_s, u"Trip "_s + QString::number(run),
                                                     copy, shuffled, NamePlacement::AfterName);
        fullTimes.push_back(millisecondsOf(timer));
        checksum += full->missingKeys.size() + copy.value(shuffled.last()).destinationURL->size();

        timer.restart();
        RenameFileDetails addCopy = details;
        const auto added =
            format.addTextToFileNames(u"-x"_s, addCopy, shuffled, NamePlacement::BeforeName);
        addTimes.push_back(millisecondsOf(timer));
        checksum +=
            added->missingKeys.size() + addCopy.value(shuffled.last()).destinationURL->size();
    }
    std::printf("rule runs over %d rows (checksum %lld)\n", rows, static_cast<long long>(checksum));
    printRow("sort of the keys (NameCollator)", sortTimes);
    printRow("copy + \"Change full file names to\"", fullTimes);
    printRow("copy + \"Add text to existing names\"", addTimes);
}

// A keystroke's whole run on the worker, as the list starts it: the copy, the rule, and the
// check of every name against the others and the folder, here a real folder holding the
// listed files. Some names are taken on disk and some rows share a typed name, so the check
// meets conflicts as a user's list would.
void checkedRuleRuns(int rows, int runs)
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(u"Pictures"_s);
    QDir().mkpath(folder);
    RenameFileDetails details;
    QStringList keys;
    for (int i = 0; i < rows; ++i) {
        const QString key = QStringLiteral("IMG_%1.jpg").arg(i + 1, 5, 10, QLatin1Char('0'));
        QFile file(folder + u'/' + key);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot create %s", qPrintable(file.fileName()));
        keys.append(key);
        details.insert(key, RenameRecord{QUrl::fromLocalFile(file.fileName()), QString(), {}, {}});
    }
    // One name in a hundred taken by a file that is not listed; every fiftieth row typed
    // by hand to the name of the row before it.
    for (int i = 0; i < rows; i += 100) {
        QFile taken(folder + QStringLiteral("/Trip %1.jpg").arg(i + 1));
        if (!taken.open(QIODevice::WriteOnly))
            qFatal("cannot create %s", qPrintable(taken.fileName()));
    }
    for (int i = 1; i < rows; i += 50) {
        RenameRecord &record = details[keys.at(i)];
        record.nameSource = NameSource::HandEdit;
        record.destinationURL = QStringLiteral("Trip %1").arg(i);
    }

    const BRRenameFormat format;
    std::vector<double> ruleTimes, checkTimes, wholeTimes;
    qsizetype free = 0;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        RenameFileDetails copy = details;
        format.changeFullFileNames(u"1"_s, u"Trip "_s, copy, keys, NamePlacement::AfterName);
        ruleTimes.push_back(millisecondsOf(timer));
        QElapsedTimer check;
        check.start();
        free = BRRenameFormat::checkNames(keys, copy);
        checkTimes.push_back(millisecondsOf(check));
        wholeTimes.push_back(millisecondsOf(timer));
    }
    std::printf("rule runs with the check over %d files of one real folder: %lld of them free\n",
                rows, static_cast<long long>(free));
    printRow("copy + \"Change full file names to\"", ruleTimes);
    printRow("checkNames (the others and the folder)", checkTimes);
    printRow("the whole run on the worker", wholeTimes);
}

// What happens to the listed files between the listing and the rename.
enum class Change
{
    None,
    SomeDeleted,  // `missing` files spread over the list
    FolderMoved,  // the whole folder renamed: every file found again by its bookmark
    FolderDeleted // every file missing
};

struct DiskRun
{
    double bookmarks = 0;
    double rename = 0;
    qsizetype succeeded = 0;
    qsizetype missing = 0;
};

DiskRun diskRun(int files, Change change, int missing)
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(u"Pictures"_s);
    QDir().mkpath(folder);
    const BRRenameFormat format;
    RenameFileDetails details;
    RenameBookmarks bookmarks;
    QStringList keys;
    for (int i = 0; i < files; ++i) {
        const QString key = QStringLiteral("file-%1.jpg").arg(i, 5, 10, QLatin1Char('0'));
        QFile file(folder + u'/' + key);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot create %s", qPrintable(file.fileName()));
        keys.append(key);
        details.insert(key, RenameRecord{QUrl::fromLocalFile(file.fileName()), QString(), {}, {}});
    }
    DiskRun result;
    QElapsedTimer timer;
    timer.start();
    for (const QString &key : std::as_const(keys))
        format.saveBookmark(details.value(key).sourceURL, bookmarks);
    result.bookmarks = millisecondsOf(timer);
    format.changeFullFileNames(u"1"_s, u"Trip"_s, details, keys, NamePlacement::AfterName);
    switch (change) {
    case Change::None:
        break;
    case Change::SomeDeleted:
        for (int i = 0; i < missing; ++i)
            QFile::remove(folder + u'/' + keys.at(static_cast<qsizetype>(i) * files / missing));
        break;
    case Change::FolderMoved:
        QDir().rename(folder, dir.filePath(u"Pictures (old)"_s));
        break;
    case Change::FolderDeleted:
        QDir(folder).removeRecursively();
        break;
    }

    timer.restart();
    const ExecutionReport report = format.renameFiles(keys, details, bookmarks);
    result.rename = millisecondsOf(timer);
    result.missing = report.missingKeys.size();
    for (const RenameRecord &record : std::as_const(details))
        result.succeeded += record.outcome == RenameOutcome::Succeeded;
    return result;
}

void diskRuns(int files, int runs, int missing)
{
    const std::pair<Change, const char *> changes[] = {
        {Change::None, "nothing changed"},
        {Change::SomeDeleted, "some deleted"},
        {Change::FolderMoved, "the folder renamed"},
        {Change::FolderDeleted, "the folder deleted"}};
    for (const auto &[change, what] : changes) {
        std::vector<double> bookmarkTimes, renameTimes;
        DiskRun last;
        for (int run = 0; run < runs; ++run) {
            last = diskRun(files, change, missing);
            bookmarkTimes.push_back(last.bookmarks);
            renameTimes.push_back(last.rename);
        }
        std::printf("%d files in one folder, %s: %lld renamed, %lld reported missing\n", files,
                    what, static_cast<long long>(last.succeeded),
                    static_cast<long long>(last.missing));
        printRow("saveBookmark of every file (the add)", bookmarkTimes);
        printRow("renameFiles", renameTimes);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const auto argument = [&](int index, int fallback) {
        return argc > index ? QString::fromLocal8Bit(argv[index]).toInt() : fallback;
    };
    const int rows = argument(1, 10000);
    ruleRuns(rows, argument(2, 11));
    checkedRuleRuns(rows, argument(2, 11));
    diskRuns(rows, argument(3, 5), argument(4, 100));
    return 0;
}
