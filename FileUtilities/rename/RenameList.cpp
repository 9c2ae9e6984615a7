#include "RenameList.h"

#include "WorkerTask.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <memory>
#include <utility>

// What a rule run hands back: its report, and the names it wrote into its copy.
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
    setRenameActive(false);
    if (duplicateMet)
        Q_EMIT namesAlreadyListed();
    if (m_keys.isEmpty()) {
        clearAll();
        return;
    }
    if (!m_rule || !m_placement) {
        announce();
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
    setRenameActive(false);
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
    setRenameActive(false);
    dropRuleNames();
    announce();
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
        } else if (record->nameSource != NameSource::HandEdit) {
            record->destinationURL.reset();
        }
    }
}

void RenameList::startRuleRun()
{
    if (!m_rule || !m_placement)
        return;
    const quint64 sequence = ++m_ruleRunSequence;
    ++m_ruleRunsInFlight;
    // The worker gets its own copy of the list; the rows here are only written when the
    // run's names land, on this thread.
    const RenameRule rule = *m_rule;
    const NamePlacement where = *m_placement;
    const QString text = rule == RenameRule::ChangeFullNames ? m_newNameText.value_or(QString())
                                                             : m_addText.value_or(QString());
    const QString numberText = m_numberText.value_or(QString());
    // The names land only while the list lives; a run whose list is gone just ends.
    runOnWorker(
        this,
        [format = m_format, rule, text, numberText, where, keys = m_keys,
         details = m_records]() mutable {
            auto result = std::make_shared<RuleRunResult>();
            switch (rule) {
            case RenameRule::ChangeFullNames:
                result->report = format.changeFullFileNames(numberText, text, details, keys, where);
                break;
            case RenameRule::AddText:
                result->report = format.addTextToFileNames(text, details, keys, where);
                break;
            }
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
    if (sequence != m_ruleRunSequence || !result.report) {
        Q_EMIT ruleRunEnded();
        return;
    }
    bool missing = false;
    for (const QString &key : std::as_const(result.report->missingKeys)) {
        missing = true;
        removeKey(key);
    }
    // Rows named by hand while the run worked keep what the user typed.
    for (auto row = m_records.begin(); row != m_records.end(); ++row) {
        const auto named = result.details.constFind(row.key());
        if (named == result.details.cend() || row->nameSource == NameSource::HandEdit ||
            named->sourceURL != row->sourceURL)
            continue;
        row->destinationURL = named->destinationURL;
    }
    if (missing)
        Q_EMIT filesMissing();
    announce();
    releaseOnWorker(std::move(result.details));
    Q_EMIT ruleRunEnded();
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
    }
    announce();
}

// ---------------------------------------------------------------------------------------
// Renaming

void RenameList::renameWithRule()
{
    if (!m_rule)
        return;
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
    // One run at a time: a second press while files move would race the first.
    if (m_renameRunning || m_keys.isEmpty())
        return;
    m_renameRunning = true;
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
    // Outcomes first, so the rows still listed carry them when the report is made.
    for (const QString &key : std::as_const(result.keys)) {
        const auto done = result.details.constFind(key);
        const auto row = m_records.find(key);
        if (done == result.details.cend() || row == m_records.end())
            continue;
        row->outcome = done->outcome;
        row->sourceURL = done->sourceURL;
    }
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
    bool someFailed = false;
    for (const QString &key : std::as_const(m_keys)) {
        const auto row = m_records.constFind(key);
        if (row == m_records.cend() || !row->destinationURL)
            continue;
        switch (row->outcome) {
        case RenameOutcome::Failed:
            someFailed = true;
            break;
        case RenameOutcome::Succeeded:
            if (!row->destinationURL->isEmpty())
                renamed.append(*row->destinationURL);
            break;
        case RenameOutcome::NotTried:
            break;
        }
    }
    // Once files have moved, the list has done its work; else the views show the rows left,
    // without those found missing, and the outcomes of the rest.
    if (!renamed.isEmpty())
        clearAll();
    announce();
    Q_EMIT renameEnded(renamed, someFailed);
    releaseOnWorker(std::move(result));
}
