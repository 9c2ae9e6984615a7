#include "FolderPrefetcher.h"

#include <algorithm>
#include <climits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

FolderPrefetcher::FolderPrefetcher(int workers, int foldersAhead, std::function<void()> beforeRead)
    : m_foldersAhead(std::max(1, foldersAhead)), m_beforeRead(std::move(beforeRead)),
      m_crew(
          m_mutex, workers, [this] { return hasRoomAndWork(); },
          [this](std::unique_lock<std::mutex> &lock) { listNext(lock); })
{}

FolderPrefetcher::~FolderPrefetcher() = default;

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
    if (hasRoomAndWork())
        m_crew.wakeLocked(added);
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
    if (freed > 0 && m_busy <= m_foldersAhead / 2 && hasRoomAndWork())
        m_crew.wakeLocked(static_cast<size_t>(m_crew.size()));
    return listing;
}

void FolderPrefetcher::listNext(std::unique_lock<std::mutex> &lock)
{
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
    const ReadPace::SleepWatch watch;
    std::optional<FolderListing> listing = read(request);
    const bool slept = watch.slept();
    std::vector<std::pair<Place, Slot>> offered;
    if (listing)
        offered = subfoldersOf(*listing, place);
    lock.lock();
    m_crew.countReadLocked(slept);
    auto reading = m_slots.find(place);
    if (reading == m_slots.end() || reading->second.state != State::Reading) {
        --m_busy; // the walk went past it meanwhile
        return;
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
    std::optional<FolderListing> listing = FolderListing::read(fd, slot.nativePath, slot.path);
    // Closing a descriptor that has read a large folder frees the file system's cache of
    // its names, which costs the walk as much as a small listing: the walk gets a fresh
    // descriptor for the folder, and the one that read it is closed here.
    if (listing) {
        const int fresh = ::openat(listing->descriptor(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (fresh >= 0)
            listing->setDescriptor(fresh);
    }
    return listing;
}
