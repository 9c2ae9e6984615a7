#pragma once

#include "Thumbnail.h"

#include <QImage>
#include <QString>

#include <memory>
#include <optional>

class ThumbnailCache;

// Small helpers built where they are needed; the object keeps no state of its own.
class BRObjectClass
{
public:
    // The picture of a file or folder at the given size, made now. There is always one:
    // a preview where the file has one, else the icon of its type.
    std::optional<QImage> thumbnailForPath(const QString &path, double width, double height) const;

    // The same picture as a handle that makes it only when first shown, through `cache`.
    Thumbnail deferredThumbnailForPath(const QString &path, double width, double height,
                                       std::shared_ptr<ThumbnailCache> cache) const;
};
