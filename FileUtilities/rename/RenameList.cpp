#include "RenameList.h"

#include "RenameProblemText.h"
#include "WorkerTask.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <memory>
#include <utility>

// What a rule run hands back: its report (none when it named nothing: a check alone, or a
// number that does not parse), and the names and checks it wrote into its copy.
struct RenameList::RuleRunResult
{
    std::optional<RuleRunReport> report;
    RenameFileDetails details;
};

// What a rename run hands back: the rows' outcomes, the places of files found by
// bookmark, and the files that could not be found at all.
struct RenameList::RenameRunResult
{
    ExecutionReport report;
    QStringList keys;
    RenameFileDetails details;
    RenameBookmarks bookmarks;
};

RenameList::RenameList(QObject *parent) : QObject(parent) {}

// ---------------------------------------------------------------------------------------
// The rows

void RenameList::add(const QList<QUrl> &urls)
{
    const int rowsBefore = rowCount();
    bool duplicateMet = false;
    // Asking the list itself would cost a pass over it per file: minutes for a big drop.
    QSet<QString> listed(m_keys.cbegin(), m_keys.cend());
    for (const QUrl &url : urls) {
        QString path = url.toLocalFile();
        // File managers hand over a folder as "…/Album/": the row is the folder itself.
        while (path.size() > 1 && path.endsWith(u'/'))
            path.chop(1);
        if (path.isEmpty())
            continue;
        const QString key = QFileInfo(path).fileName();
        if (key.isEmpty() || listed.contains(key)) {
            duplicateMet = duplicateMet || !key.isEmpty();
            continue;
        }
        m_format.saveBookmark(QUrl::fromLocalFile(path), m_bookmarks);
        listed.insert(key);
        m_keys.insert(m_index, key);
        ++m_index;
        m_keysSorted = false;
        m_keysChangedSinceAnnounce = true;
        // The picture is made when the row is first painted, off the main thread.
        RenameRecord record;
        record.sourceURL = QUrl::fromLocalFile(path);
        m_records.insert(key, record);
    }
    announce();
    if (rowCount() != rowsBefore)
        Q_EMIT rowCountChanged(rowCount());
    setRenameActive(m_retrying);
    recount();
    if (duplicateMet)
        Q_EMIT namesAlreadyListed();
    if (m_keys.isEmpty()) {
        clearAll();
        return;
    }
    if (!m_rule || !m_placement) {
        announce();
        // A file added can hold a name another row was to take.
        startCheckRun();
        return;
    }
    switch (*m_rule) {
    case RenameRule::ChangeFullNames:
        setFullNameRule(m_newNameText.value_or(QString()), m_numberText.value_or(QString()),
                        *m_placement);
        break;
    case RenameRule::AddText:
        setAddTextRule(m_addText.value_or(QString()), *m_placement);
        break;
    }
}

bool RenameList::addDropped(const QList<QUrl> &urls)
{
    if (urls.isEmpty())
        return false;
    for (const QUrl &url : urls)
        if (!url.isLocalFile())
            return false;
    add(urls);
    return true;
}

void RenameList::remove(const QString &key)
{
    removeKey(key);
    announce();
    recount();
    // A row gone can free a name another row was to take.
    if (!m_keys.isEmpty())
        startCheckRun();
}

void RenameList::removeKey(const QString &key)
{
    if (!m_keys.isEmpty()) {
        const qsizetype removed = m_keys.removeAll(key);
        m_keysChangedSinceAnnounce = true;
        if (m_index != 0)
            --m_index;
        if (removed > 0)
            Q_EMIT rowCountChanged(rowCount());
    }
    if (m_keys.isEmpty()) {
        clearAll();
        Q_EMIT lastRowRemoved();
    }
}

void RenameList::clear()
{
    clearAll();
    announce();
}

void RenameList::clearAll()
{
    const bool hadRows = !m_keys.isEmpty();
    m_keys.clear();
    m_keysChangedSinceAnnounce = true;
    // Ten thousand rows and their bookmarks are let go of off the main thread.
    releaseOnWorker(std::exchange(m_records, {}));
    releaseOnWorker(std::exchange(m_bookmarks, {}));
    m_sortKeys = NameSortKeys();
    m_keysSorted = true;
    m_index = 0;
    // Runs under way belong to a list that is gone.
    ++m_ruleRunSequence;
    m_newNameText.reset();
    m_numberText.reset();
    m_rule.reset();
    m_placement.reset();
    m_addText.reset();
    m_retrying = false;
    setRenameActive(false);
    recount();
    if (hadRows)
        Q_EMIT rowCountChanged(0);
    Q_EMIT cleared();
}

void RenameList::sortKeys()
{
    if (m_keys.isEmpty() || m_keysSorted)
        return;
    // Ranks instead of comparisons: ten thousand names sort in a few milliseconds.
    const std::vector<int> ranks = m_sortKeys.ranksOf(m_keys);
    std::vector<qsizetype> order(ranks.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<qsizetype>(i);
    std::stable_sort(order.begin(), order.end(), [&ranks](qsizetype a, qsizetype b) {
        return ranks[static_cast<size_t>(a)] < ranks[static_cast<size_t>(b)];
    });
    QStringList sorted;
    sorted.reserve(m_keys.size());
    for (const qsizetype position : order)
        sorted.append(m_keys.at(position));
    m_keys = std::move(sorted);
    m_keysSorted = true;
    m_keysChangedSinceAnnounce = true;
}

void RenameList::announce()
{
    sortKeys();
    // Rows that stay where they were only need their names painted again; rebuilding the
    // view of ten thousand rows on every keystroke would be felt.
    if (std::exchange(m_keysChangedSinceAnnounce, false))
        Q_EMIT rowsReset();
    else
        Q_EMIT namesChanged();
}

void RenameList::setRenameActive(bool active)
{
    if (m_renameActive == active)
        return;
    m_renameActive = active;
    Q_EMIT renameActiveChanged(active);
}

// ---------------------------------------------------------------------------------------
// Rules and hand edits

void RenameList::setFullNameRule(const QString &newName, const QString &numberText,
                                 NamePlacement where)
{
    m_rule = RenameRule::ChangeFullNames;
    m_newNameText = newName;
    m_numberText = numberText;
    m_placement = where;
    sortKeys();
    if (m_keys.isEmpty())
        return;
    if (newName.isEmpty()) {
        clearRule();
        return;
    }
    setRenameActive(true);
    startRuleRun();
}

void RenameList::setAddTextRule(const QString &text, NamePlacement where)
{
    m_addText = text;
    m_rule = RenameRule::AddText;
    m_placement = where;
    setRenameActive(true);
    sortKeys();
    if (m_keys.isEmpty())
        return;
    if (text.isEmpty()) {
        clearRule();
        return;
    }
    startRuleRun();
}

void RenameList::clearRule()
{
    m_newNameText.reset();
    m_numberText.reset();
    m_rule.reset();
    m_placement.reset();
    m_addText.reset();
    // Names of a run under way would bring the cleared rule back.
    ++m_ruleRunSequence;
    setRenameActive(m_retrying);
    dropRuleNames();
    announce();
    recount();
    // Names typed by hand stay, and are checked without the rule's.
    if (!m_keys.isEmpty())
        startCheckRun();
}

void RenameList::dropRuleNames()
{
    const QStringList keys = m_keys;
    for (const QString &key : keys) {
        const auto record = m_records.find(key);
        if (record == m_records.end())
            continue;
        if (record->sourceURL.toLocalFile().isEmpty()) {
            Q_EMIT fileDoesNotExist(key);
            removeKey(key);
        } else if (record->nameSource == NameSource::Rule) {
            record->destinationURL.reset();
            record->check = NameCheck::NoName;
        }
    }
}

void RenameList::startRuleRun(bool withRule)
{
    const bool applyRule = withRule && m_rule && m_placement;
    // A rule run makes every run under way stale; a check alone changes no name, so it lands
    // beside the rule run it follows.
    const quint64 sequence = applyRule ? ++m_ruleRunSequence : m_ruleRunSequence;
    ++m_ruleRunsInFlight;
    // The worker gets its own copy of the list; the rows here are only written when the
    // run's names land, on this thread.
    const RenameRule rule = m_rule.value_or(RenameRule::ChangeFullNames);
    const NamePlacement where = m_placement.value_or(NamePlacement::AfterName);
    const QString text = rule == RenameRule::ChangeFullNames ? m_newNameText.value_or(QString())
                                                             : m_addText.value_or(QString());
    const QString numberText = m_numberText.value_or(QString());
    // The names land only while the list lives; a run whose list is gone just ends.
    runOnWorker(
        this,
        [format = m_format, applyRule, rule, text, numberText, where, keys = m_keys,
         details = m_records]() mutable {
            auto result = std::make_shared<RuleRunResult>();
            if (applyRule) {
                switch (rule) {
                case RenameRule::ChangeFullNames:
                    result->report =
                        format.changeFullFileNames(numberText, text, details, keys, where);
                    break;
                case RenameRule::AddText:
                    result->report = format.addTextToFileNames(text, details, keys, where);
                    break;
                }
            }
            // Every name is checked against the others and the disk, so that a conflict shows
            // before the rename is pressed.
            BRRenameFormat::checkNames(keys, details);
            result->details = std::move(details);
            return result;
        },
        [this, sequence](const std::shared_ptr<RuleRunResult> &result) {
            --m_ruleRunsInFlight;
            finishRuleRun(sequence, *result);
        });
}

void RenameList::finishRuleRun(quint64 sequence, RuleRunResult &result)
{
    // A later text was typed, or the rule or the list was cleared, since this run began.
    if (sequence != m_ruleRunSequence) {
        releaseOnWorker(std::move(result.details));
        Q_EMIT ruleRunEnded();
        return;
    }
    bool missing = false;
    if (result.report) {
        for (const QString &key : std::as_const(result.report->missingKeys)) {
            missing = true;
            removeKey(key);
        }
    }
    // The rule's names land on the rows that follow it; rows named by hand while the run
    // worked keep what the user typed. A check lands where the row still has the name that
    // was checked; a row whose name changed since waits for the next check.
    bool changed = result.report.has_value();
    bool unchecked = false;
    for (const QString &key : std::as_const(m_keys)) {
        const auto row = m_records.find(key);
        const auto named = result.details.constFind(key);
        if (row == m_records.end() || named == result.details.cend() ||
            named->sourceURL != row->sourceURL)
            continue;
        if (result.report && row->nameSource == NameSource::Rule &&
            row->destinationURL != named->destinationURL) {
            row->destinationURL = named->destinationURL;
            // A failure under the old name says nothing of the new one.
            row->outcome = RenameOutcome::NotTried;
        }
        const NameCheck check =
            row->destinationURL == named->destinationURL ? named->check : NameCheck::Unchecked;
        if (row->check != check) {
            row->check = check;
            changed = true;
        }
        unchecked = unchecked || check == NameCheck::Unchecked;
    }
    if (missing)
        Q_EMIT filesMissing();
    if (changed)
        announce();
    recount();
    releaseOnWorker(std::move(result.details));
    if (unchecked && m_ruleRunsInFlight == 0)
        startCheckRun();
    Q_EMIT ruleRunEnded();
}

void RenameList::recount()
{
    int count = 0;
    for (const QString &key : std::as_const(m_keys)) {
        const auto row = m_records.constFind(key);
        if (row == m_records.cend() || !row->destinationURL || row->destinationURL->isEmpty())
            continue;
        switch (row->check) {
        case NameCheck::Unchecked:
        case NameCheck::Free:
            ++count;
            break;
        default:
            break;
        }
    }
    if (count == m_renameCount)
        return;
    m_renameCount = count;
    Q_EMIT renameCountChanged(count);
}

std::optional<QString> RenameList::ruleNameForRow(int row) const
{
    if (!m_rule || !m_placement)
        return std::nullopt;
    switch (*m_rule) {
    case RenameRule::ChangeFullNames:
        return BRRenameFormat::fullFileNameForRow(m_newNameText, m_numberText, *m_placement, row);
    case RenameRule::AddText: {
        if (!m_addText || m_addText->isEmpty() || row < 0 || row >= m_keys.size())
            return std::nullopt;
        const auto record = m_records.constFind(m_keys.at(row));
        if (record == m_records.cend())
            return std::nullopt;
        return BRRenameFormat::addedTextName(record->sourceURL, *m_addText, *m_placement);
    }
    }
    Q_UNREACHABLE();
    return std::nullopt;
}

void RenameList::setHandName(int row, const QString &text)
{
    if (row < 0 || row >= m_keys.size())
        return;
    const auto record = m_records.find(m_keys.at(row));
    if (record == m_records.end())
        return;
    if (text.isEmpty()) {
        // The edit is withdrawn: the row follows the rule again, if there is one.
        record->nameSource = NameSource::Rule;
        if (const auto ruleName = ruleNameForRow(row))
            record->destinationURL = *ruleName;
        else
            record->destinationURL.reset();
    } else if (record->destinationURL && *record->destinationURL != text) {
        record->destinationURL = text;
        record->nameSource = NameSource::HandEdit;
    } else {
        announce(); // the same name: nothing to check again
        return;
    }
    // The old name's marks would mislead until the new name is checked.
    record->check = NameCheck::Unchecked;
    record->outcome = RenameOutcome::NotTried;
    announce();
    recount();
    startCheckRun();
}

// ---------------------------------------------------------------------------------------
// Renaming

void RenameList::renameWithRule()
{
    // Failed rows brought back keep the names they failed under: no rule is needed.
    if (!m_rule) {
        if (m_retrying)
            rename();
        return;
    }
    switch (*m_rule) {
    case RenameRule::ChangeFullNames:
        if (m_newNameText && !m_newNameText->isEmpty())
            rename();
        break;
    case RenameRule::AddText:
        if (m_addText && !m_addText->isEmpty())
            rename();
        break;
    }
}

void RenameList::rename()
{
    // One run at a time: a second press while files move would race the first, and so
    // would an undo under way.
    if (m_renameRunning || m_undoRunning || m_keys.isEmpty())
        return;
    m_renameRunning = true;
    // A new rename: the last one can no longer be undone, nor its failures tried again.
    m_undo.clear();
    m_failed = {};
    Q_EMIT renameStarted();
    runOnWorker(
        this,
        [format = m_format, keys = m_keys, details = m_records, bookmarks = m_bookmarks]() mutable {
            auto result = std::make_shared<RenameRunResult>();
            result->report = format.renameFiles(keys, details, bookmarks);
            result->keys = std::move(keys);
            result->details = std::move(details);
            result->bookmarks = std::move(bookmarks);
            return result;
        },
        [this](const std::shared_ptr<RenameRunResult> &result) { finishRenameRun(*result); });
}

void RenameList::finishRenameRun(RenameRunResult &result)
{
    m_renameRunning = false;
    // Outcomes first, so the rows still listed carry them when the report is made. A row
    // the user was shown as going to be renamed, but that the run found in conflict, has
    // failed; one already marked in conflict was left out knowingly.
    for (const QString &key : std::as_const(result.keys)) {
        const auto done = result.details.constFind(key);
        const auto row = m_records.find(key);
        if (done == result.details.cend() || row == m_records.end())
            continue;
        const bool promised = row->destinationURL && !row->destinationURL->isEmpty() &&
                              (row->check == NameCheck::Free || row->check == NameCheck::Unchecked);
        row->outcome = done->outcome;
        row->sourceURL = done->sourceURL;
        row->check = done->check;
        row->failureError = done->failureError;
        if (promised && isConflict(done->check)) {
            row->outcome = RenameOutcome::Failed;
            row->failureError = RenameProblemText::errorOfConflict(done->check);
        }
    }
    m_undo = std::move(result.report.renamed);
    // Bookmarks refreshed for files found somewhere else; none if the list was cleared.
    if (!m_keys.isEmpty())
        m_bookmarks.insert(result.bookmarks);
    bool missing = false;
    for (const QString &key : std::as_const(result.report.missingKeys)) {
        missing = true;
        removeKey(key);
    }
    if (missing)
        Q_EMIT filesMissing();

    QStringList renamed;
    HeldRows failed;
    for (const QString &key : std::as_const(m_keys)) {
        const auto row = m_records.constFind(key);
        if (row == m_records.cend() || !row->destinationURL)
            continue;
        switch (row->outcome) {
        case RenameOutcome::Failed: {
            failed.keys.append(key);
            RenameRecord held = *row;
            // Another try keeps the name that failed, whatever rule is typed next.
            if (held.nameSource == NameSource::Rule)
                held.nameSource = NameSource::EarlierRun;
            failed.records.insert(key, held);
            const QString path = row->sourceURL.toLocalFile();
            if (const auto bookmark = m_bookmarks.constFind(path); bookmark != m_bookmarks.cend())
                failed.bookmarks.insert(path, *bookmark);
            break;
        }
        case RenameOutcome::Succeeded:
            if (!row->destinationURL->isEmpty())
                renamed.append(*row->destinationURL);
            break;
        case RenameOutcome::NotTried:
            break;
        }
    }
    const int failedCount = static_cast<int>(failed.keys.size());
    // Once files have moved, the list has done its work and the failed rows wait for
    // restoreFailedRows(); else the views show the rows left, without those found missing,
    // and the outcomes of the rest.
    if (!renamed.isEmpty()) {
        clearAll();
        m_failed = std::move(failed);
    }
    announce();
    recount();
    Q_EMIT renameEnded(renamed, failedCount);
    releaseOnWorker(std::move(result));
}

void RenameList::restoreFailedRows()
{
    if (m_failed.keys.isEmpty() || m_renameRunning)
        return;
    HeldRows held = std::exchange(m_failed, {});
    clearAll();
    m_index = static_cast<int>(held.keys.size());
    m_keys = std::move(held.keys);
    m_records = std::move(held.records);
    m_bookmarks = std::move(held.bookmarks);
    m_keysSorted = false;
    m_keysChangedSinceAnnounce = true;
    m_retrying = true;
    announce();
    Q_EMIT rowCountChanged(rowCount());
    setRenameActive(true);
    recount();
    // The folders may have changed since the run.
    startCheckRun();
}

void RenameList::undoLastRename()
{
    if (!canUndo() || m_renameRunning)
        return;
    m_undoRunning = true;
    runOnWorker(
        this,
        [format = m_format, files = m_undo] {
            return std::make_shared<UndoReport>(format.undoRenames(files));
        },
        [this](const std::shared_ptr<UndoReport> &report) {
            m_undoRunning = false;
            // What could not go back stays on record, for another try.
            m_undo.clear();
            for (const UndoFailure &failure : std::as_const(report->failures))
                m_undo.append(failure.file);
            Q_EMIT undoEnded(report->restored, report->failures);
        });
}
