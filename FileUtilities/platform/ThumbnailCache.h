#pragma once

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QSize>
#include <QString>

// Keeps the most recently asked pictures up to a byte budget, so that a list of a hundred
// thousand groups costs the memory of what is on screen, not of every picture ever made.
// Safe to use from any thread; a picture is made outside the lock.
class ThumbnailCache
{
public:
    explicit ThumbnailCache(qsizetype budgetBytes = 32 * 1024 * 1024);

    QImage imageFor(const QString &path, QSize size);
    // The picture if it was made already; a null image otherwise. Never makes one.
    QImage cachedImageFor(const QString &path, QSize size) const;

private:
    static QString keyFor(const QString &path, QSize size);

    mutable QMutex m_mutex;
    mutable QCache<QString, QImage> m_images; // a lookup marks an entry as recently used
};
