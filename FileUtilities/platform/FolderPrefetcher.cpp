#include "FolderPrefetcher.h"

#include <algorithm>
#include <climits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

FolderPrefetcher::FolderPrefetcher(int workers, int foldersAhead, std::function<void()> beforeRead)
    : m_foldersAhead(std::max(1, foldersAhead)), m_beforeRead(std::move(beforeRead))
{
    for (int i = 0; i < workers; ++i)
        m_workers.emplace_back([this] { work(); });
}

FolderPrefetcher::~FolderPrefetcher()
{
    {
        std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_workToDo.notify_all();
    for (std::thread &worker : m_workers)
        worker.join();
}

std::vector<std::pair<FolderPrefetcher::Place, FolderPrefetcher::Slot>>
FolderPrefetcher::subfoldersOf(const FolderListing &listing, const Place &place)
{
    std::vector<std::pair<Place, Slot>> offered;
    if (place.size() >= deepestPlace)
        return offered;
    const std::vector<FolderListing::Entry> &entries = listing.entries();
    for (size_t index = 0; index < entries.size() && offered.size() < mostWaiting; ++index) {
        const FolderListing::Entry &entry = entries[index];
        if (entry.kind != DirectoryEntry::Kind::Folder)
            continue;
        Slot slot;
        slot.nativePath = listing.childNativePath(entry);
        // The path is opened whole, so a longer one is left to the walk, which opens it
        // relative to its parent.
        if (slot.nativePath.size() >= PATH_MAX)
            continue;
        slot.path = listing.childPath(entry);
        slot.stamp = entry.stamp;
        Place child = place;
        child.push_back(static_cast<quint32>(index));
        offered.emplace_back(std::move(child), std::move(slot));
    }
    return offered;
}

void FolderPrefetcher::offerSubfolders(const FolderListing &listing, const Place &place)
{
    std::vector<std::pair<Place, Slot>> offered = subfoldersOf(listing, place);
    if (offered.empty())
        return;
    std::lock_guard lock(m_mutex);
    offerLocked(std::move(offered));
}

void FolderPrefetcher::offerLocked(std::vector<std::pair<Place, Slot>> offered)
{
    size_t added = 0;
    for (auto &[place, slot] : offered) {
        if (m_slots.size() >= mostWaiting)
            break;
        m_slots.emplace(std::move(place), std::move(slot));
        ++added;
    }
    m_waitingSlots += added;
    if (m_busy >= m_foldersAhead)
        return; // a worker woken now would find no room
    const auto idle = static_cast<size_t>(m_idleWorkers);
    for (size_t woken = 0; woken < std::min(added, idle); ++woken)
        m_workToDo.notify_one();
}

std::optional<FolderListing> FolderPrefetcher::take(const Place &place)
{
    std::unique_lock lock(m_mutex);
    int freed = 0;
    const auto forget = [this, &freed](std::map<Place, Slot>::iterator slot) {
        if (slot->second.state == State::Ready) {
            --m_busy;
            ++freed;
        } else if (slot->second.state == State::Waiting) {
            --m_waitingSlots;
        }
        return m_slots.erase(slot); // a read still running finds its slot gone
    };
    // Everything before this place in the walk's order is behind the walk.
    const auto reached = m_slots.lower_bound(place);
    for (auto passed = m_slots.begin(); passed != reached;)
        passed = forget(passed);

    std::optional<FolderListing> listing;
    auto found = m_slots.find(place);
    if (found != m_slots.end() && found->second.state == State::Reading) {
        m_walkWaits = true;
        m_listed.wait(lock, [this, &place, &found] {
            found = m_slots.find(place);
            return found == m_slots.end() || found->second.state != State::Reading;
        });
        m_walkWaits = false;
    }
    if (found != m_slots.end()) {
        listing = std::move(found->second.listing);
        forget(found);
    }
    // Sleeping workers wake once half the room is free, so that each wake lists several
    // folders rather than one: a wake costs about as much as a warm listing.
    if (freed > 0 && m_idleWorkers > 0 && m_waitingSlots > 0 && m_busy <= m_foldersAhead / 2)
        m_workToDo.notify_all();
    return listing;
}

void FolderPrefetcher::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        ++m_idleWorkers;
        m_workToDo.wait(
            lock, [this] { return m_stopping || (m_busy < m_foldersAhead && m_waitingSlots > 0); });
        --m_idleWorkers;
        if (m_stopping)
            return;
        const auto next = std::find_if(m_slots.begin(), m_slots.end(), [](const auto &item) {
            return item.second.state == State::Waiting;
        });
        const Place place = next->first;
        Slot &slot = next->second;
        slot.state = State::Reading;
        --m_waitingSlots;
        ++m_busy;
        const Slot request{State::Reading, slot.nativePath, slot.path, slot.stamp, std::nullopt};
        lock.unlock();
        std::optional<FolderListing> listing = read(request);
        std::vector<std::pair<Place, Slot>> offered;
        if (listing)
            offered = subfoldersOf(*listing, place);
        lock.lock();
        auto reading = m_slots.find(place);
        if (reading == m_slots.end() || reading->second.state != State::Reading) {
            --m_busy; // the walk went past it meanwhile
            continue;
        }
        if (!listing) {
            --m_busy;
            reading->second.state = State::Failed;
        } else {
            reading->second.state = State::Ready;
            reading->second.listing = std::move(listing);
            offerLocked(std::move(offered));
        }
        if (m_walkWaits)
            m_listed.notify_one();
    }
}

std::optional<FolderListing> FolderPrefetcher::read(const Slot &slot) const
{
    if (m_beforeRead)
        m_beforeRead();
    const int fd =
        ::open(slot.nativePath.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    // A folder replaced since its parent was listed (or reached through a link swapped in
    // above it) is not the one the walk expects; the walk lists it itself.
    struct stat info = {};
    if (::fstat(fd, &info) != 0 || static_cast<quint64>(info.st_dev) != slot.stamp.device ||
        static_cast<quint64>(info.st_ino) != slot.stamp.inode) {
        ::close(fd);
        return std::nullopt;
    }
    return FolderListing::read(fd, slot.nativePath, slot.path);
}
