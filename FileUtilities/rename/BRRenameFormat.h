#pragma once

#include "ItemBookmark.h"
#include "NameCheck.h"
#include "NamePlacement.h"
#include "RenameRecord.h"
#include "RenamedFile.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

// What a rule run met: the keys of rows whose file URL has no path. The caller removes
// them from the list and tells the user; the run itself never touches the screen.
struct RuleRunReport
{
    QStringList missingKeys;
};

// What a rename run met: the keys of rows whose file is neither at its path nor found
// again by its bookmark, and the files it renamed.
struct ExecutionReport
{
    QStringList missingKeys;
    QList<RenamedFile> renamed = {};
};

// A file an undo could not give its old name again, and why: a conflict of names (check),
// or the system's error number of the move (error), or it was not found (neither; the
// present path is then "").
struct UndoFailure
{
    RenamedFile file;
    QString presentPath;
    NameCheck check = {};
    int error = {};
};

// What an undo did.
struct UndoReport
{
    qsizetype restored = 0;
    QList<UndoFailure> failures;
};

// The batch renamer's worker: computes rule names into the rows and moves the files.
// It keeps no list of its own and no state: every call works on the maps it is given,
// touches nothing shared and nothing on screen, and so may run on a worker thread over a
// private copy of the list.
//
// Rule names: `where` puts the text (or number) before or after. Names are used exactly
// as given: nothing is trimmed, padded or joined with a separator.
//
// A row's file path is its sourceURL's local file path; a URL that is not a local file
// counts as having no path.
class BRRenameFormat
{
public:
    // The start number limit: a start above it falls back.
    static constexpr qint64 startNumberLimit = 99999;

    // The number text of the full-name rule, parsed as a signed decimal of 64 bits: an
    // optional '+' or '-', then one or more ASCII digits, nothing else ("007" is 7, "+5" is
    // 5, " 5", "5.0", "" and anything out of range do not parse).
    static std::optional<qint64> parseNumber(const QString &text);

    // The full-name rule: each row not named by hand gets `newName` and a running number.
    // Rows are taken in key order; the number also advances on hand-named rows (they keep their
    // names, the others keep their numbers), not on keys without a record nor on rows
    // without a path, which are reported. Nothing happens, and nothing is reported, when
    // `newName` is absent or `numberText` does not parse: then the result is nothing.
    // "" counts from 1, and so does a start above startNumberLimit; the running number
    // itself has no limit.
    std::optional<RuleRunReport> changeFullFileNames(const QString &numberText,
                                                     const std::optional<QString> &newName,
                                                     RenameFileDetails &details,
                                                     const QStringList &keys,
                                                     NamePlacement where) const;
    // The add-text rule: each row not named by hand gets its base name with `text` added.
    // Nothing happens, and the result is nothing, for an empty text.
    std::optional<RuleRunReport> addTextToFileNames(const QString &text, RenameFileDetails &details,
                                                    const QStringList &keys,
                                                    NamePlacement where) const;

    // The full-name rule's name of the row at `row` (from 0) computed alone, for a hand
    // edit that is withdrawn. The number is the parsed start plus the row; a sum above
    // startNumberLimit, unlike in a whole run, falls back to row + 1, and so does an empty
    // number text. Nothing when the new name is absent or "", or the number text is absent
    // or does not parse.
    static std::optional<QString> fullFileNameForRow(const std::optional<QString> &newNameText,
                                                     const std::optional<QString> &numberText,
                                                     NamePlacement where, int row);
    // The add-text rule's name of one file.
    static QString addedTextName(const QUrl &sourceURL, const QString &text, NamePlacement where);
    // The last path component up to its first dot: "holiday" for holiday.2019.final.jpg,
    // "" for .profile.
    static QString baseName(const QUrl &sourceURL);
    // What a file keeps through a rename: the text after the last dot of its name ("gz" for
    // archive.tar.gz, "profile" for .profile), "" when there is none.
    static QString pathExtension(const QUrl &sourceURL);
    // The whole name the file at `sourceURL` takes from `newName`: the new name, then a dot
    // and its extension when it has one. notes.txt on photo.png gives notes.txt.png.
    static QString targetFileName(const QUrl &sourceURL, const QString &newName);
    static QString targetFileName(const QString &sourcePath, const QString &newName);

    // Checks each listed row's whole new name against the other rows and its folder on disk
    // (TargetNameCheck) and writes the row's check; gives the number of rows that a rename
    // would move. Reads the disk, changes nothing on it.
    static qsizetype checkNames(const QStringList &keys, RenameFileDetails &details);

    // Moves the listed files to their new names, each in its own folder, and writes each
    // row's State. The names are checked as a batch first, where the files are now: a row
    // in conflict (its check says why) and a file that has its new name already are not
    // attempted, and their State is NotTried. Where a new name is held by another file of
    // the batch that moves away itself, that file moves first (a chain), and a ring of such
    // names goes through a passing name in the same folder (a cycle), so renumbering a
    // numbered set works; no move ever replaces a file. A move that fails leaves the
    // system's error number in the row. A row without a record, or whose destinationURL is
    // absent or "", is left alone. A file that is not at its path is looked for by its
    // bookmark; when found, the row's sourceURL becomes its new place and the move happens
    // there; when not (or when the row has no path), its key is reported and the row is
    // left as it was.
    ExecutionReport renameFiles(const QStringList &keys, RenameFileDetails &details,
                                RenameBookmarks &bookmarks) const;
    // Moves one file to `newName` plus its own extension (the text after the last dot of
    // its name, if any) in its folder, and sets the row's check and outcome, as a batch of
    // one. sourceURL is left as it was, also after a move. An absent URL, one without a
    // path, or a key without a record does nothing.
    void renameFile(const std::optional<QUrl> &sourceURL, const QString &newName,
                    RenameFileDetails &details, const QString &key) const;

    // Gives each file its old name again, in the folder where it is now: a file moved since
    // is found by its bookmark. The names are checked and moved as a rename's are (chains and
    // rings included, never replacing); a file that cannot go back is reported with why.
    UndoReport undoRenames(const QList<RenamedFile> &files) const;

    // Where the file bookmarked under `path` is now; nothing without a bookmark or when the
    // file is gone. A found file's bookmark is stored anew under its present path.
    std::optional<QUrl> restoreBookmark(const QString &path, RenameBookmarks &bookmarks) const;
    // Stores a bookmark of the URL's file under its path; nothing when the URL has no path
    // or names nothing that can be examined.
    void saveBookmark(const QUrl &url, RenameBookmarks &bookmarks) const;

private:
    // The extension of a path's last component, trailing slashes aside.
    static QStringView extensionOf(QStringView path);

    // One file's move, resolved before any file moves, and how it went.
    struct PlannedMove
    {
        QString key;
        QString source; // where the file is now
        QString target;
        QString parkedFrom = {}; // where it was before it stepped aside for a cycle, if it did
        RenameOutcome outcome = RenameOutcome::NotTried;
        int error = 0;

        QString originalSource() const { return parkedFrom.isEmpty() ? source : parkedFrom; }
    };
    // A row's file where it was found, and the base name it is to have.
    struct LocatedRow
    {
        QString key;
        QUrl at;
        QString newName;
    };
    // Checks the rows' names as one batch, moves the files of those that are free, and writes
    // every row's check and outcome; gives the files renamed.
    QList<RenamedFile> checkAndMove(const QList<LocatedRow> &located,
                                    RenameFileDetails &details) const;
    // Moves the files so that a chain of names (a to b's name, b to c's) succeeds from its
    // end and a cycle goes through a passing name in the same folder; never replaces. Each
    // move says how it went; a file that could not go back from a passing name keeps it as
    // its source.
    void carryOut(QList<PlannedMove> &moves) const;
    void parkAside(PlannedMove &move, QHash<QString, qsizetype> &holder, qsizetype index) const;

    // Hands each listed row that has a path to `name`, in list order; reports the others.
    static RuleRunReport nameListedRows(RenameFileDetails &details, const QStringList &keys,
                                        const std::function<void(RenameRecord &)> &name);
    // One rename run shares what its bookmark searches read, so that a whole folder of
    // missing files costs one walk of their surroundings.
    std::optional<QUrl> restoreBookmark(const QString &path, RenameBookmarks &bookmarks,
                                        ItemBookmark::SearchCache *cache) const;
};
