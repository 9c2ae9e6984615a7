#include "Thumbnail.h"

#include "ThumbnailCache.h"
#include "ThumbnailRenderer.h"

Thumbnail::Thumbnail(QString path, QSize size, std::shared_ptr<ThumbnailCache> cache)
    : m_path(std::move(path)), m_size(size), m_cache(std::move(cache))
{}

Thumbnail Thumbnail::atPixelRatio(qreal ratio) const
{
    if (ratio <= 1.0)
        return *this;
    return Thumbnail(m_path, (QSizeF(m_size) * ratio).toSize(), m_cache);
}

QImage Thumbnail::image() const
{
    if (isNull())
        return {};
    return m_cache ? m_cache->imageFor(m_path, m_size) : ThumbnailRenderer::render(m_path, m_size);
}

QImage Thumbnail::cachedImage() const
{
    return (isNull() || !m_cache) ? QImage() : m_cache->cachedImageFor(m_path, m_size);
}
