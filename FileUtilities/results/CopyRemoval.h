#pragma once

#include "CopyProof.h"
#include "FileStamp.h"

#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <optional>

class Workspace;

// Moves copies to the Trash once they are proven copies, off the main thread.
//
// Each request is checked (CopyProof) and, when proven, trashed in one piece of work on a
// thread of this object's own. Requests run one after another: two copies of one group
// asked for at once must never each be proven by the other and both go. The outcome comes
// back on the main thread through `finished`.
class CopyRemoval : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        QString key;  // the group
        QString path; // the copy to remove
        QStringList otherPaths;
        std::optional<FileStamp> scanned;
        quint64 batch = 0; // which run of many asked; 0 for one copy asked on its own
    };

    enum class Outcome
    {
        Trashed,
        Vanished, // gone before it could be checked: the caller treats it as gone
        Changed,
        LastCopy,
        NotACopy,
        Unreadable,
        TrashRefused, // proven, but the Trash would not take it
        Cancelled,
    };

    struct Result
    {
        Request request;
        Outcome outcome = Outcome::Cancelled;
        QString message; // for the user: what was kept and why
        QString detail;  // for the log
    };

    explicit CopyRemoval(Workspace &workspace, QObject *parent = nullptr);
    ~CopyRemoval() override;

    // False when the same path is already under way: a second press does nothing.
    bool start(const Request &request);
    bool isPending(const QString &path) const { return m_pending.contains(path); }
    bool isBusy() const { return !m_pending.isEmpty(); }
    // A number for a run of many requests, so that each run knows its own results.
    quint64 newBatch() { return ++m_lastBatch; }

    // Checks under way stop; a copy not yet moved stays where it is, and says so.
    void stopChecks();
    // The same, and what is under way reports nothing: the results it was for are gone.
    void abandon();

    // The sentence the user reads when `outcome` kept the file named `name`.
    static QString sentence(Outcome outcome, const QString &name);

Q_SIGNALS:
    void finished(const CopyRemoval::Result &result);

private:
    Result run(const Request &request, const std::atomic<bool> &stop) const;

    Workspace &m_workspace;
    QThreadPool m_pool;
    std::shared_ptr<std::atomic<bool>> m_stop;
    quint64 m_generation = 0;
    quint64 m_lastBatch = 0;
    QSet<QString> m_pending;
};

Q_DECLARE_METATYPE(CopyRemoval::Result)
