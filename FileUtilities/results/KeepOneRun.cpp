#include "KeepOneRun.h"

namespace {

// Requests handed to the removal at once: one under way and one ready, so its thread
// never waits on the main one.
constexpr int mostInFlight = 2;

} // namespace

KeepOneRun::KeepOneRun(CopyRemoval &removal, const GroupMap &groups, const KeepOnePlan &plan,
                       QObject *parent)
    : QObject(parent), m_removal(removal), m_batch(removal.newBatch())
{
    for (const KeepOnePlan::Group &group : plan.groups()) {
        const GroupRecord *record = groups.find(group.key);
        for (qsizetype at = 0; at < group.removed.size(); ++at) {
            const QString &path = group.removed.at(at);
            // Proven against the copy that stays, and nothing else: what goes is what the
            // user keeps.
            CopyRemoval::Request request{group.key,
                                         path,
                                         {group.kept},
                                         record ? stampOf(record->fileStamps, path) : std::nullopt,
                                         m_batch};
            m_waiting.push_back({std::move(request), group.freedBytes.value(at)});
        }
    }
    m_total = static_cast<int>(m_waiting.size());
    connect(&m_removal, &CopyRemoval::finished, this, &KeepOneRun::removalFinished);
}

void KeepOneRun::start()
{
    m_running = true;
    Q_EMIT progressed(0, m_total);
    feed();
    finishIfDone();
}

void KeepOneRun::stop()
{
    if (!m_running || m_stopped)
        return;
    m_stopped = true;
    m_tally.notChecked += static_cast<int>(m_waiting.size());
    m_waiting.clear();
    m_removal.stopChecks();
    finishIfDone();
}

void KeepOneRun::feed()
{
    while (m_inFlight < mostInFlight && !m_waiting.empty()) {
        Item item = std::move(m_waiting.front());
        m_waiting.pop_front();
        m_freedByPath.insert(item.request.path, item.freedBytes);
        if (m_removal.start(item.request)) {
            ++m_inFlight;
        } else {
            // The same copy is being removed on its own already, and is told of there.
            ++m_done;
            m_tally.notChecked += 1;
        }
    }
}

void KeepOneRun::removalFinished(const CopyRemoval::Result &result)
{
    if (result.request.batch != m_batch)
        return;
    --m_inFlight;
    ++m_done;
    switch (result.outcome) {
    case CopyRemoval::Outcome::Trashed:
        m_tally.trashed += 1;
        m_tally.bytesFreed += m_freedByPath.value(result.request.path);
        break;
    case CopyRemoval::Outcome::Cancelled:
        m_tally.notChecked += 1;
        break;
    case CopyRemoval::Outcome::TrashRefused:
        if (m_tally.trashError.isEmpty())
            m_tally.trashError = result.message;
        m_tally.kept[result.outcome] += 1;
        break;
    default:
        m_tally.kept[result.outcome] += 1;
        break;
    }
    m_freedByPath.remove(result.request.path);
    Q_EMIT progressed(m_done, m_total);
    if (!m_stopped)
        feed();
    finishIfDone();
}

void KeepOneRun::finishIfDone()
{
    if (!m_running || m_inFlight > 0 || !m_waiting.empty())
        return;
    m_running = false;
    Q_EMIT ended();
}
