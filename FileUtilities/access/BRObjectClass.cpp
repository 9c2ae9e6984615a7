#include "BRObjectClass.h"

#include "FolderBookmark.h"
#include "ThumbnailRenderer.h"

#include <QFileInfo>
#include <QSettings>

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

BRObjectClass::BRObjectClass(QSettings *settings) : m_settings(settings) {}

void BRObjectClass::saveBookmark(const QUrl &url)
{
    const QString path = url.toLocalFile();
    if (path.isEmpty())
        return;
    const auto bookmark = FolderBookmark::forPath(path);
    if (!bookmark)
        return;
    const QByteArray data = bookmark->toData();
    m_bookmarks.insert(path, data);
    if (m_settings) {
        m_settings->setValue(bookmarkedDataKey(), data);
        m_settings->sync();
    } else {
        QSettings settings(QStringLiteral("Brackenhale"), QStringLiteral("Quillmere"));
        settings.setValue(bookmarkedDataKey(), data);
        settings.sync();
    }
}

std::optional<QUrl> BRObjectClass::resolveBookmarkData(const QByteArray &data)
{
    const auto bookmark = FolderBookmark::fromData(data);
    if (!bookmark)
        return std::nullopt;
    const auto resolved = bookmark->resolve();
    if (!resolved)
        return std::nullopt;
    const QUrl url = QUrl::fromLocalFile(resolved->path);
    if (!resolved->stale && startAccessingSecurityScopedResource(url))
        saveBookmark(url);
    return url;
}

std::optional<QUrl> BRObjectClass::resolveBookmarkForPath(const QString &path)
{
    const auto data = m_bookmarks.constFind(path);
    if (data == m_bookmarks.constEnd())
        return std::nullopt;
    return resolveBookmarkData(*data);
}

bool BRObjectClass::startAccessingSecurityScopedResource(const QUrl &url)
{
    const QFileInfo folder(url.toLocalFile());
    return folder.isDir() && folder.isReadable() && folder.isExecutable();
}
