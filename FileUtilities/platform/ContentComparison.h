#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>

// Byte-for-byte comparison of two files, or of two folder trees, on the calling thread.
//
// Nothing is ever followed: a link is compared as a link (by its target text), so a tree
// that points outside itself is not equal to one that holds the file. Reading stops at the
// first difference, and the stop flag is looked at between blocks, so a long comparison
// ends soon after it is no longer wanted.
class ContentComparison
{
public:
    enum class Verdict
    {
        Equal,
        Different,
        Unreadable, // an entry could not be examined or read, so equality is not known
        Cancelled,
    };

    struct Result
    {
        Verdict verdict = Verdict::Unreadable;
        QString detail;       // for the log: the entry and the reason, when not equal
        qint64 bytesRead = 0; // from both sides together
    };

    static constexpr qsizetype blockSize = 1 << 20;

    // Two regular files. Two names of one file (a hard link) are equal without a read.
    static Result compareFiles(const QByteArray &first, const QByteArray &second,
                               const std::atomic<bool> &stop);
    // Two folders and all they hold, hidden entries included: the same names at every
    // level, each of the same kind, files of the same size and content, links with the
    // same target. One folder under two paths (a bind mount) is no second copy of itself.
    static Result compareFolders(const QByteArray &first, const QByteArray &second,
                                 const std::atomic<bool> &stop);
};
