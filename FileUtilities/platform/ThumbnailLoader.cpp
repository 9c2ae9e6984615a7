#include "ThumbnailLoader.h"

#include <QMetaObject>
#include <QMutexLocker>

ThumbnailLoader::ThumbnailLoader(QObject *parent) : QObject(parent)
{
    // One core stays free for the scan and the screen.
    m_pool.setMaxThreadCount(qMax(1, QThread::idealThreadCount() - 1));
}

ThumbnailLoader::~ThumbnailLoader()
{
    {
        QMutexLocker locker(&m_mutex);
        m_queue.clear();
    }
    m_pool.waitForDone();
}

QImage ThumbnailLoader::imageFor(const Thumbnail &thumbnail)
{
    if (thumbnail.isNull())
        return {};
    QImage image = thumbnail.cachedImage();
    if (!image.isNull() || m_requested.contains(thumbnail.path()))
        return image;
    m_requested.insert(thumbnail.path());
    {
        QMutexLocker locker(&m_mutex);
        m_queue.append(thumbnail);
        if (m_queue.size() > maximumQueued)
            m_requested.remove(m_queue.takeFirst().path());
    }
    startWorkerIfIdle();
    return {};
}

void ThumbnailLoader::startWorkerIfIdle()
{
    if (m_workers >= m_pool.maxThreadCount())
        return;
    ++m_workers;
    m_pool.start([this] { work(); });
}

void ThumbnailLoader::work()
{
    for (;;) {
        Thumbnail next;
        {
            QMutexLocker locker(&m_mutex);
            if (m_queue.isEmpty())
                break;
            next = m_queue.takeLast();
        }
        next.image(); // made into the shared cache
        const QString path = next.path();
        QMetaObject::invokeMethod(
            this, [this, path] { finished(path); }, Qt::QueuedConnection);
    }
    QMetaObject::invokeMethod(
        this, [this] { workerDone(); }, Qt::QueuedConnection);
}

void ThumbnailLoader::finished(const QString &path)
{
    m_requested.remove(path);
    Q_EMIT imageReady(path);
}

void ThumbnailLoader::workerDone()
{
    --m_workers;
    // A request may have come in after this worker found the queue empty.
    QMutexLocker locker(&m_mutex);
    const bool waiting = !m_queue.isEmpty();
    locker.unlock();
    if (waiting)
        startWorkerIfIdle();
}
