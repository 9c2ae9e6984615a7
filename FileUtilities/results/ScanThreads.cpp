#include "ScanThreads.h"

#include "ScanSession.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct Walk
{
    QThread *thread;
    std::weak_ptr<ScanSession> session;
};

std::vector<Walk> &walks()
{
    static std::vector<Walk> running;
    return running;
}

bool stopAtExitRegistered = false;

// What the thread runs. It is called as a const object, yet must let go of its session.
struct WalkFunction
{
    mutable std::shared_ptr<ScanSession> session;
    QString path;

    void operator()() const
    {
        session->finder().findDuplicatesInFolder(path);
        // The screen may have let go already: the walk's end is then the session's.
        session.reset();
    }
};

void join(QThread *thread)
{
    auto &running = walks();
    running.erase(std::remove_if(running.begin(), running.end(),
                                 [thread](const Walk &walk) { return walk.thread == thread; }),
                  running.end());
    thread->wait();
    delete thread;
}

} // namespace

void ScanThreads::start(const std::shared_ptr<ScanSession> &session, const QString &path)
{
    Q_ASSERT(QCoreApplication::instance());
    Q_ASSERT(QThread::currentThread() == QCoreApplication::instance()->thread());
    if (!stopAtExitRegistered) {
        // Post routines run while the application object is still whole, so a walk's
        // last report can still be posted to it.
        qAddPostRoutine(&ScanThreads::stopAll);
        stopAtExitRegistered = true;
    }
    QThread *thread = QThread::create(WalkFunction{session, path});
    thread->setObjectName(QStringLiteral("Duplicate scan"));
    walks().push_back({thread, session});
    QObject::connect(thread, &QThread::finished, QCoreApplication::instance(),
                     [guard = QPointer<QThread>(thread)] {
                         if (guard)
                             join(guard);
                     });
    thread->start();
}

int ScanThreads::count()
{
    return static_cast<int>(walks().size());
}

void ScanThreads::waitForAll()
{
    for (const Walk &walk : walks())
        walk.thread->wait();
}

void ScanThreads::stopAll()
{
    const std::vector<Walk> running = std::exchange(walks(), {});
    for (const Walk &walk : running) {
        if (const std::shared_ptr<ScanSession> session = walk.session.lock())
            session->finder().setCancelActive(true);
    }
    for (const Walk &walk : running) {
        walk.thread->wait();
        delete walk.thread;
    }
    stopAtExitRegistered = false;
}
