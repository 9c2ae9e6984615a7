#pragma once

#include "Thumbnail.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

class QSettings;
class ThumbnailCache;
class Workspace;

// Small helpers built where they are needed; an instance lives briefly and keeps only the
// bookmarks it saved itself.
class BRObjectClass
{
public:
    // `settings` is where the home folder's bookmark is kept; without one, the program's
    // own settings. Tests pass a private file.
    explicit BRObjectClass(QSettings *settings = nullptr);

    static QString bookmarkedDataKey() { return QStringLiteral("bookmarkedData"); }

    // Keeps a bookmark of the folder in this object and, as the one granted home folder,
    // in the settings, replacing any earlier one. A URL without a path, or of something
    // that cannot be examined, changes nothing.
    void saveBookmark(const QUrl &url);
    // The folder a bookmark names: where it was, or where it was found after a move;
    // nothing when it is gone or the data is not a bookmark. A bookmark that still names
    // its folder where it was is saved anew; one found elsewhere is left as stored.
    std::optional<QUrl> resolveBookmarkData(const QByteArray &data);
    std::optional<QUrl> resolveBookmarkForPath(const QString &path);

    // Access to a granted folder: there is no sandbox scope here, so access is there when
    // the folder can be read and entered.
    static bool startAccessingSecurityScopedResource(const QUrl &url);

    // The maker's website, and a mail to support with the subject filled in. Whether the
    // desktop could open them is not the user's concern here: nothing is reported.
    static void openWebsite(Workspace &workspace);
    static void openTermsOfUse(Workspace &workspace);
    static void contactSupport(Workspace &workspace);
    static QUrl supportMailURL();

    // The picture of a file or folder at the given size, made now. There is always one:
    // a preview where the file has one, else the icon of its type.
    std::optional<QImage> thumbnailForPath(const QString &path, double width, double height) const;

    // The same picture as a handle that makes it only when first shown, through `cache`.
    Thumbnail deferredThumbnailForPath(const QString &path, double width, double height,
                                       std::shared_ptr<ThumbnailCache> cache) const;

private:
    QSettings *m_settings;
    QHash<QString, QByteArray> m_bookmarks;
};
