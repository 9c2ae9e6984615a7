#pragma once

#include "FileStamp.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>

// Whether a copy may go: it must still be what the scan saw, and another copy of the group
// must still hold every byte of it. The scan groups by size, type and sampled bytes, which
// is enough to find copies but not to give one up; this is the full check, made just before
// a copy moves to the Trash.
class CopyProof
{
public:
    enum class Outcome
    {
        Proven,     // another path holds the same bytes (`equalCopy`)
        Vanished,   // the copy itself is gone
        Changed,    // the copy was replaced or written since the scan saw it
        LastCopy,   // no other path of the group is left
        NotACopy,   // the other paths differ from it
        Unreadable, // no other path proved equal, and some could not be read to tell
        Cancelled,
    };

    struct Result
    {
        Outcome outcome = Outcome::Unreadable;
        QString equalCopy;
        QString detail;       // for the log
        qint64 bytesRead = 0; // by the comparisons, both sides together
    };

    // On the calling thread; `stop` ends a long comparison early. `scanned` is the stamp
    // the walk took of `path`; without one the copy cannot be known unchanged.
    static Result prove(const QString &path, const std::optional<FileStamp> &scanned,
                        const QStringList &otherPaths, const std::atomic<bool> &stop);
};
