#pragma once

#include <QString>

#include <memory>

class ScanSession;

// The threads that walk folders, one per scan.
//
// A walk can take minutes. On the shared thread pool it would hold a worker that rule runs
// and thumbnails wait for, so each scan gets a thread of its own. The thread holds its
// session until the walk ends and is then joined on the main thread; walks still running
// when the application object goes are cancelled and joined then, so no thread outlives
// the objects it reads.
//
// Main thread only, with an application object.
class ScanThreads
{
public:
    // Walks `path` with the session's finder on a new thread.
    static void start(const std::shared_ptr<ScanSession> &session, const QString &path);
    // The scan threads not joined yet.
    static int count();
    // Waits until every walk has ended on its own, without cancelling it.
    static void waitForAll();
    // Cancels every walk and waits for its thread.
    static void stopAll();
};
