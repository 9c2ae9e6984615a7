#pragma once

#include "CopyRemoval.h"
#include "KeepOnePlan.h"

#include <QMap>
#include <QObject>

#include <deque>

// Carries out a KeepOnePlan: each copy it names goes through CopyRemoval, a few at a time,
// so that ten thousand groups neither flood the thread nor hold the main one. It counts
// what went and what stayed, and why, for the summary at the end. It can be stopped:
// copies not yet handed over stay, and a check under way is given up.
class KeepOneRun : public QObject
{
    Q_OBJECT

public:
    struct Tally
    {
        int trashed = 0;
        qint64 bytesFreed = 0;
        QMap<CopyRemoval::Outcome, int> kept; // by why they stayed
        int notChecked = 0;                   // left when the run was stopped
        QString trashError;                   // the first the Trash gave
    };

    KeepOneRun(CopyRemoval &removal, const GroupMap &groups, const KeepOnePlan &plan,
               QObject *parent = nullptr);

    void start();
    void stop();
    bool isRunning() const { return m_running; }
    quint64 batch() const { return m_batch; }
    int total() const { return m_total; }
    int done() const { return m_done; }
    const Tally &tally() const { return m_tally; }

Q_SIGNALS:
    void progressed(int done, int total);
    void ended();

private:
    void feed();
    void removalFinished(const CopyRemoval::Result &result);
    void finishIfDone();

    struct Item
    {
        CopyRemoval::Request request;
        qint64 freedBytes = 0;
    };

    CopyRemoval &m_removal;
    std::deque<Item> m_waiting;
    QHash<QString, qint64> m_freedByPath; // of the copies handed over
    int m_inFlight = 0;
    int m_total = 0;
    int m_done = 0;
    bool m_running = false;
    bool m_stopped = false;
    quint64 m_batch;
    Tally m_tally;
};
