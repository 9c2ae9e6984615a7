#include "BRObjectClass.h"

#include "ItemBookmark.h"
#include "SupportLinks.h"
#include "ThumbnailRenderer.h"
#include "Workspace.h"

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
    const auto bookmark = ItemBookmark::forPath(path);
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
    const auto bookmark = ItemBookmark::fromData(data);
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

void BRObjectClass::openWebsite(Workspace &workspace)
{
    const QUrl url(SupportLinks::website());
    if (url.isValid())
        workspace.openURL(url);
}

void BRObjectClass::openTermsOfUse(Workspace &workspace)
{
    const QUrl url(SupportLinks::termsPage());
    if (url.isValid())
        workspace.openURL(url);
}

QUrl BRObjectClass::supportMailURL()
{
    // Mail programs take blanks in a mailto subject only as "%20".
    QString text = QStringLiteral("mailto:") + SupportLinks::supportAddress() +
                   QStringLiteral("?subject=") + SupportLinks::mailSubject();
    text.replace(u' ', QStringLiteral("%20"));
    return QUrl(text, QUrl::StrictMode);
}

void BRObjectClass::contactSupport(Workspace &workspace)
{
    const QUrl url = supportMailURL();
    if (url.isValid())
        workspace.openURL(url);
}
