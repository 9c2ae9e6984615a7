#include "BRObjectClass.h"

#include "ThumbnailRenderer.h"

#include <cmath>

namespace {

QSize pixelSize(double width, double height)
{
    return QSize(static_cast<int>(std::lround(width)), static_cast<int>(std::lround(height)));
}

} // namespace

std::optional<QImage> BRObjectClass::thumbnailForPath(const QString &path, double width,
                                                      double height) const
{
    QImage image = ThumbnailRenderer::render(path, pixelSize(width, height));
    if (image.isNull())
        return std::nullopt;
    return image;
}

Thumbnail BRObjectClass::deferredThumbnailForPath(const QString &path, double width, double height,
                                                  std::shared_ptr<ThumbnailCache> cache) const
{
    return Thumbnail(path, pixelSize(width, height), std::move(cache));
}
