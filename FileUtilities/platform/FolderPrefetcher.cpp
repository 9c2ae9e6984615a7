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
    m_changed.notify_all();
    for (std::thread &worker : m_workers)
        worker.join();
}

int FolderPrefetcher::heldListings() const
{
    std::lock_guard lock(m_mutex);
    int held = 0;
    for (const auto &[place, slot] : m_slots)
        held += slot.listing ? 1 : 0;
    return held;
}

void FolderPrefetcher::offerSubfolders(const FolderListing &listing, const Place &place)
{
    {
        std::lock_guard lock(m_mutex);
        offerLocked(listing, place);
    }
    m_changed.notify_all();
}

void FolderPrefetcher::offerLocked(const FolderListing &listing, const Place &place)
{
    if (place.size() >= deepestPlace)
        return;
    const std::vector<FolderListing::Entry> &entries = listing.entries();
    for (size_t index = 0; index < entries.size(); ++index) {
        const FolderListing::Entry &entry = entries[index];
        if (entry.kind != DirectoryEntry::Kind::Folder)
            continue;
        if (m_slots.size() >= mostWaiting)
            return;
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
        m_slots.emplace(std::move(child), std::move(slot));
    }
}

std::optional<FolderListing> FolderPrefetcher::take(const Place &place)
{
    std::unique_lock lock(m_mutex);
    // Everything before this place in the walk's order is behind the walk.
    const auto reached = m_slots.lower_bound(place);
    for (auto passed = m_slots.begin(); passed != reached;) {
        if (passed->second.state == State::Ready)
            --m_busy;
        passed = m_slots.erase(passed); // a read still running finds its slot gone
    }
    auto found = m_slots.find(place);
    if (found == m_slots.end())
        return std::nullopt;
    m_changed.wait(lock, [this, &place, &found] {
        found = m_slots.find(place);
        return found == m_slots.end() || found->second.state != State::Reading;
    });
    if (found == m_slots.end())
        return std::nullopt;
    std::optional<FolderListing> listing = std::move(found->second.listing);
    if (found->second.state == State::Ready)
        --m_busy;
    m_slots.erase(found);
    lock.unlock();
    m_changed.notify_all();
    return listing;
}

void FolderPrefetcher::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        auto next = m_slots.end();
        m_changed.wait(lock, [this, &next] {
            if (m_stopping)
                return true;
            if (m_busy >= m_foldersAhead)
                return false;
            next = std::find_if(m_slots.begin(), m_slots.end(), [](const auto &item) {
                return item.second.state == State::Waiting;
            });
            return next != m_slots.end();
        });
        if (m_stopping)
            return;
        const Place place = next->first;
        next->second.state = State::Reading;
        ++m_busy;
        const Slot request{State::Reading, next->second.nativePath, next->second.path,
                           next->second.stamp, std::nullopt};
        lock.unlock();
        std::optional<FolderListing> listing = read(request);
        lock.lock();
        auto slot = m_slots.find(place);
        if (slot == m_slots.end() || slot->second.state != State::Reading) {
            --m_busy; // the walk went past it meanwhile
        } else if (!listing) {
            --m_busy;
            slot->second.state = State::Failed;
        } else {
            slot->second.state = State::Ready;
            offerLocked(*listing, place);
            slot->second.listing = std::move(listing);
        }
        m_changed.notify_all();
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
