#pragma once

#include "BRRenameFormat.h"
#include "NamePlacement.h"
#include "NameSortKeys.h"
#include "RenameRecord.h"
#include "RenameRule.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

// The batch renamer's list: the files in their order, their new names and bookmarks, the
// rule that names them, and the runs that apply the rule and move the files. It knows no
// widget: a screen shows it and hands it what the user does, and a test drives it alone.
//
// Rule runs and renames work on a copy of the list on a worker thread and hand their
// results back to this object's thread, so the list itself is only ever touched there.
// Views hear of a change (rowsReset or namesChanged) once the list is in order again: a
// rule's names when its run lands, not when the rule is set.
class RenameList : public QObject
{
    Q_OBJECT

public:
    explicit RenameList(QObject *parent = nullptr);

    // The keys (each file's last path component) in list order, and their records.
    const QStringList &keys() const { return m_keys; }
    const RenameFileDetails &records() const { return m_records; }
    const RenameBookmarks &bookmarks() const { return m_bookmarks; }
    int rowCount() const { return static_cast<int>(m_keys.size()); }
    // Where the next added file goes before the list sorts itself.
    int insertionIndex() const { return m_index; }

    // Lists the files the URLs name, each under its last path component; a name already
    // listed is left out (namesAlreadyListed). The rule, if any, runs again over the list.
    void add(const QList<QUrl> &urls);
    // A drop on the list: takes only local files, and then all of them; false when refused.
    bool addDropped(const QList<QUrl> &urls);
    void remove(const QString &key);
    // Empties the list and forgets the rule.
    void clear();

    // The rules, as the panels send them on every change. An empty text takes the rule's
    // names back, except those typed by hand.
    void setFullNameRule(const QString &newName, const QString &numberText, NamePlacement where);
    void setAddTextRule(const QString &text, NamePlacement where);
    void clearRule();
    const std::optional<RenameRule> &rule() const { return m_rule; }
    const std::optional<NamePlacement> &placement() const { return m_placement; }
    bool ruleRunPending() const { return m_ruleRunsInFlight > 0; }

    // A name typed for the row. Typing the name it already has changes nothing; an empty
    // text withdraws the edit and the row follows the rule again.
    void setHandName(int row, const QString &text);

    // Whether a rule with a text is set, or failed rows are back for another try, so that a
    // rename would do something; the rename button looks active then.
    bool renameActive() const { return m_renameActive; }
    bool renameRunning() const { return m_renameRunning; }
    // How many files a rename would move now: rows with a name that is not in conflict and
    // not the name they have. A row whose name has not been checked yet counts.
    int renameCount() const { return m_renameCount; }
    // Moves the files to their new names, when the rule has a text or failed rows are back;
    // one run at a time. Rows in conflict are not attempted.
    void renameWithRule();

    // After a rename that moved files, the rows that failed wait here; this brings them back
    // as the list, with their names and reasons, ready for another try.
    int failedRowsHeld() const { return static_cast<int>(m_failed.keys.size()); }
    void restoreFailedRows();

    // The last rename's moves, until the next rename: Undo gives each file its old name.
    bool canUndo() const { return !m_undo.isEmpty() && !m_undoRunning; }
    const QList<RenamedFile> &undoRecord() const { return m_undo; }
    void undoLastRename();

Q_SIGNALS:
    // Rows came, went or moved: views start over from keys().
    void rowsReset();
    // The same rows with other names or outcomes.
    void namesChanged();
    void rowCountChanged(int rows);
    void renameActiveChanged(bool active);
    // The list was emptied and its rule forgotten.
    void cleared();
    // A removal took the last row; the list is cleared.
    void lastRowRemoved();
    // Some files handed to add() were listed already, under the same name.
    void namesAlreadyListed();
    // A run found listed files gone and took them off the list.
    void filesMissing();
    // A row whose file has no path was taken off the list.
    void fileDoesNotExist(const QString &key);
    // A rule run came back, whether its names landed or it was overtaken.
    void ruleRunEnded();
    // The number of files a rename would move changed.
    void renameCountChanged(int count);
    // A rename run is about to copy the list.
    void renameStarted();
    // A rename run's outcomes reached the rows. `renamed` holds the new names of the files
    // moved; when there are any, the list has been cleared and the failed rows are held.
    void renameEnded(const QStringList &renamed, int failed);
    // An undo ran: how many files have their old names again, and those that could not.
    void undoEnded(qsizetype restored, const QList<UndoFailure> &failures);

private:
    struct RuleRunResult;
    struct RenameRunResult;
    // Rows set aside after a rename: what restoreFailedRows() brings back.
    struct HeldRows
    {
        QStringList keys;
        RenameFileDetails records;
        RenameBookmarks bookmarks;
    };

    void clearAll();
    // Takes the key off the list without telling the views.
    void removeKey(const QString &key);
    void dropRuleNames();
    void sortKeys();
    // Sorts and tells the views what changed since they were last told.
    void announce();
    void setRenameActive(bool active);
    // A run on a worker over a copy of the list: the rule's names (when `withRule` and a rule
    // is set), then the check of every row's name against the others and the disk.
    void startRuleRun(bool withRule = true);
    void startCheckRun() { startRuleRun(false); }
    void finishRuleRun(quint64 sequence, RuleRunResult &result);
    // Counts the rows a rename would move and tells the views when that changed.
    void recount();
    void rename();
    void finishRenameRun(RenameRunResult &result);
    std::optional<QString> ruleNameForRow(int row) const;

    BRRenameFormat m_format;
    RenameFileDetails m_records;
    QStringList m_keys;
    RenameBookmarks m_bookmarks;
    int m_index = 0;
    bool m_renameActive = false;

    std::optional<RenameRule> m_rule;
    std::optional<NamePlacement> m_placement;
    std::optional<QString> m_newNameText;
    std::optional<QString> m_numberText;
    std::optional<QString> m_addText;

    // Whether the keys are in order: adding breaks it, removing keeps it, so most reloads
    // (one per keystroke in a panel) sort nothing.
    bool m_keysSorted = true;
    bool m_keysChangedSinceAnnounce = false;
    NameSortKeys m_sortKeys;

    // Only the run of the last text typed may land its names; clearing a rule also
    // makes every run under way stale.
    quint64 m_ruleRunSequence = 0;
    int m_ruleRunsInFlight = 0;
    bool m_renameRunning = false;
    int m_renameCount = 0;
    // Failed rows are back for another try: the rename button needs no rule.
    bool m_retrying = false;
    HeldRows m_failed;
    QList<RenamedFile> m_undo;
    bool m_undoRunning = false;
};
