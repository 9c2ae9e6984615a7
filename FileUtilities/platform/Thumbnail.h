#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

class ThumbnailCache;

// A small handle to the picture of one file or folder. Holding it costs a path and a
// pointer; the picture is made the first time someone asks for it, off the scan, and is
// kept in a bounded cache shared by all handles of one scan.
class Thumbnail
{
public:
    Thumbnail() = default;
    Thumbnail(QString path, QSize size, std::shared_ptr<ThumbnailCache> cache);

    bool isNull() const { return m_path.isEmpty(); }
    QString path() const { return m_path; }
    QSize size() const { return m_size; }
    // The same picture with `ratio` times the pixels, for a screen of that density; it
    // shares the cache, where each size is kept apart.
    Thumbnail atPixelRatio(qreal ratio) const;

    // Makes or fetches the picture; a null handle gives a null image. Any thread.
    QImage image() const;
    // The picture if it was made already, else a null image; cheap enough for painting.
    QImage cachedImage() const;

private:
    QString m_path;
    QSize m_size;
    std::shared_ptr<ThumbnailCache> m_cache;
};
