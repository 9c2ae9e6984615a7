#include "ScanThreads.h"

#include "ScanSession.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

namespace {

const QString threadName = QStringLiteral("Duplicate scan");

// One walk. The application object owns the thread, so no walk is lost track of; the thread
// holds its session until the walk ends, and keeps a weak hold after, to cancel it at exit.
class ScanThread final : public QThread
{
public:
    ScanThread(std::shared_ptr<ScanSession> session, QString path)
        : QThread(QCoreApplication::instance()), m_session(std::move(session)),
          m_sessionSeen(m_session), m_path(std::move(path))
    {
        setObjectName(threadName);
    }

    void cancel()
    {
        if (const std::shared_ptr<ScanSession> session = m_sessionSeen.lock())
            session->finder().setCancelActive(true);
    }

protected:
    void run() override
    {
        m_session->finder().findDuplicatesInFolder(m_path);
        // The screen may have let go already: the walk's end is then the session's.
        m_session.reset();
    }

private:
    std::shared_ptr<ScanSession> m_session;
    std::weak_ptr<ScanSession> m_sessionSeen;
    QString m_path;
};

QList<ScanThread *> runningWalks()
{
    auto *application = QCoreApplication::instance();
    if (!application)
        return {};
    QList<ScanThread *> walks;
    for (QThread *thread :
         application->findChildren<QThread *>(threadName, Qt::FindDirectChildrenOnly)) {
        if (auto *walk = dynamic_cast<ScanThread *>(thread))
            walks.append(walk);
    }
    return walks;
}

} // namespace

void ScanThreads::start(const std::shared_ptr<ScanSession> &session, const QString &path)
{
    Q_ASSERT(QCoreApplication::instance());
    Q_ASSERT(QThread::currentThread() == QCoreApplication::instance()->thread());
    // Post routines run while the application object is still whole, so a walk's last
    // report can still be posted to it. Removed first, so it is there once.
    qRemovePostRoutine(&ScanThreads::stopAll);
    qAddPostRoutine(&ScanThreads::stopAll);
    auto *thread = new ScanThread(session, path);
    QObject::connect(thread, &QThread::finished, QCoreApplication::instance(),
                     [walk = QPointer<QThread>(thread)] {
                         // Gone when stopped at exit. "finished" comes from the thread just
                         // before it ends, so it is waited for.
                         if (!walk)
                             return;
                         walk->wait();
                         delete walk.data();
                     });
    thread->start();
}

int ScanThreads::count()
{
    return static_cast<int>(runningWalks().size());
}

void ScanThreads::waitForAll()
{
    for (ScanThread *walk : runningWalks())
        walk->wait();
}

void ScanThreads::stopAll()
{
    const QList<ScanThread *> walks = runningWalks();
    for (ScanThread *walk : walks)
        walk->cancel();
    for (ScanThread *walk : walks) {
        walk->wait();
        delete walk;
    }
}
