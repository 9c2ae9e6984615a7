#pragma once

#include "FileStamp.h"
#include "FolderListing.h"
#include "WorkerCrew.h"

#include <QByteArray>
#include <QString>

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <vector>

// Lists folders ahead of a walk on a few threads of its own, so that the disk always has
// reads to do while the walk works on what it has.
//
// A folder's place in the walk is the list of entry indexes leading to it from the root;
// in that order the walk reaches folders, and the earliest offered folder is listed first.
// At most `foldersAhead` listings are read or being read ahead, each holding its folder's
// descriptor until the walk takes it, and at most a few thousand folders wait to be
// listed: a folder of a million subfolders or a tree a million deep keeps memory flat,
// and what is not offered is simply listed by the walk itself.
class FolderPrefetcher
{
public:
    using Place = std::vector<quint32>;

    FolderPrefetcher(int workers, int foldersAhead, std::function<void()> beforeRead);
    ~FolderPrefetcher();
    FolderPrefetcher(const FolderPrefetcher &) = delete;
    FolderPrefetcher &operator=(const FolderPrefetcher &) = delete;

    // Offers the subfolders of `listing`, which stands at `place`.
    void offerSubfolders(const FolderListing &listing, const Place &place);
    // The listing of the folder at `place` when it was read ahead, waiting while it is being
    // read; nothing when the walk must list it itself. Whatever was offered before `place`
    // is behind the walk now and is dropped.
    std::optional<FolderListing> take(const Place &place);

private:
    enum class State
    {
        Waiting,
        Reading,
        Ready,
        Failed
    };
    struct Slot
    {
        State state = State::Waiting;
        QByteArray nativePath;
        QString path;
        FileStamp stamp; // the folder as its parent's listing saw it
        std::optional<FolderListing> listing;
    };

    // Lists the earliest waiting folder; called by a worker with the lock held.
    void listNext(std::unique_lock<std::mutex> &lock);
    // Reads the folder by its path, and only if it is still the folder its parent listed.
    std::optional<FolderListing> read(const Slot &slot) const;
    // The subfolders of `listing` as waiting slots, built outside the lock.
    static std::vector<std::pair<Place, Slot>> subfoldersOf(const FolderListing &listing,
                                                            const Place &place);
    // Adds them as far as there is room, and wakes as many idle workers.
    void offerLocked(std::vector<std::pair<Place, Slot>> offered);
    bool hasRoomAndWork() const { return m_busy < m_foldersAhead && m_waitingSlots > 0; }

    static constexpr size_t mostWaiting = 4096;
    static constexpr size_t deepestPlace = 256;

    const int m_foldersAhead;
    const std::function<void()> m_beforeRead;
    mutable std::mutex m_mutex;
    // The walk is woken only when a worker has listed something while it waits: waking a
    // thread for every folder costs more than the listing itself on a warm cache.
    std::condition_variable m_listed;
    std::map<Place, Slot> m_slots;
    size_t m_waitingSlots = 0;
    int m_busy = 0; // slots Reading or Ready, and reads whose slot the walk passed
    bool m_walkWaits = false;
    WorkerCrew m_crew; // last, so that it stops before anything it uses goes
};
