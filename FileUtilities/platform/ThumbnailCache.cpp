#include "ThumbnailCache.h"

#include "ThumbnailRenderer.h"

#include <QMutexLocker>

ThumbnailCache::ThumbnailCache(qsizetype budgetBytes) : m_images(budgetBytes) {}

QString ThumbnailCache::keyFor(const QString &path, QSize size)
{
    return QString::number(size.width()) + u'x' + QString::number(size.height()) + u':' + path;
}

QImage ThumbnailCache::imageFor(const QString &path, QSize size)
{
    const QString key = keyFor(path, size);
    {
        QMutexLocker locker(&m_mutex);
        if (const QImage *cached = m_images.object(key))
            return *cached;
    }
    QImage image = ThumbnailRenderer::render(path, size);
    QMutexLocker locker(&m_mutex);
    // The cache owns what it is given and deletes it when it makes room.
    m_images.insert(key, new QImage(image), qMax<qsizetype>(1, image.sizeInBytes()));
    return image;
}

QImage ThumbnailCache::cachedImageFor(const QString &path, QSize size) const
{
    QMutexLocker locker(&m_mutex);
    const QImage *cached = m_images.object(keyFor(path, size));
    return cached ? *cached : QImage();
}
