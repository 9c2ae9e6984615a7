#include "ThumbnailRenderer.h"

#include "LookColors.h"
#include "PlatformLog.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>
#include <QMimeDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>

namespace {

QImage fitted(const QImage &image, QSize size)
{
    if (image.isNull())
        return {};
    if (image.width() <= size.width() && image.height() <= size.height())
        return image;
    return image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QImage ThumbnailRenderer::render(const QString &path, QSize size)
{
    if (size.isEmpty())
        size = QSize(70, 70);
    for (auto source : {&ThumbnailRenderer::fromThumbnailCache, &ThumbnailRenderer::fromImageFile,
                        &ThumbnailRenderer::fromIconTheme}) {
        QImage image = source(path, size);
        if (!image.isNull())
            return image;
    }
    return genericIcon(QFileInfo(path).isDir(), size);
}

QImage ThumbnailRenderer::fromThumbnailCache(const QString &path, QSize size)
{
    const QString cacheRoot =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
        QStringLiteral("/thumbnails/");
    const QByteArray uri = QUrl::fromLocalFile(path).toEncoded();
    const QString fileName =
        QString::fromLatin1(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex()) +
        QStringLiteral(".png");
    const int wanted = qMax(size.width(), size.height());
    const QStringList folders = wanted <= 128 ? QStringList{u"normal"_qs, u"large"_qs}
                                              : QStringList{u"large"_qs, u"x-large"_qs};
    const QDateTime modified = QFileInfo(path).lastModified();
    for (const QString &folder : folders) {
        QImage image(cacheRoot + folder + u'/' + fileName);
        if (image.isNull())
            continue;
        // A cached picture of an older version of the file is stale.
        const QString recordedTime = image.text(u"Thumb::MTime"_qs);
        if (!recordedTime.isEmpty() && recordedTime.toLongLong() != modified.toSecsSinceEpoch())
            continue;
        return fitted(image, size);
    }
    return {};
}

QImage ThumbnailRenderer::fromImageFile(const QString &path, QSize size)
{
    QImageReader reader(path);
    if (!reader.canRead())
        return {};
    const QSize original = reader.size();
    if (original.isValid() &&
        (original.width() > size.width() || original.height() > size.height()))
        reader.setScaledSize(original.scaled(size, Qt::KeepAspectRatio));
    QImage image = reader.read();
    if (image.isNull())
        qCDebug(platformLog).noquote()
            << "no picture of" << path << "from its contents:" << reader.errorString();
    return fitted(image, size);
}

QImage ThumbnailRenderer::fromIconTheme(const QString &path, QSize size)
{
    // Icon themes need the platform theme of a GUI application, and its main thread's
    // icon engines are not documented as safe elsewhere, so other threads go without.
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application || QThread::currentThread() != application->thread())
        return {};
    const QFileInfo info(path);
    QIcon icon;
    if (info.isDir()) {
        icon = QIcon::fromTheme(u"folder"_qs);
    } else {
        const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
        icon = QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
    }
    if (icon.isNull())
        return {};
    return icon.pixmap(size).toImage();
}

QImage ThumbnailRenderer::genericIcon(bool folder, QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal w = size.width();
    const qreal h = size.height();
    painter.setPen(
        QPen(Look::color(Look::Color::IconStroke, Look::Tone::Light), qMax(1.0, w / 40)));
    if (folder) {
        painter.setBrush(Look::color(Look::Color::FolderIconFill, Look::Tone::Light));
        QPainterPath shape;
        shape.moveTo(w * 0.08, h * 0.25);
        shape.lineTo(w * 0.40, h * 0.25);
        shape.lineTo(w * 0.47, h * 0.33);
        shape.lineTo(w * 0.92, h * 0.33);
        shape.lineTo(w * 0.92, h * 0.82);
        shape.lineTo(w * 0.08, h * 0.82);
        shape.closeSubpath();
        painter.drawPath(shape);
    } else {
        painter.setBrush(Look::color(Look::Color::IconPageFill, Look::Tone::Light));
        QPainterPath page;
        page.moveTo(w * 0.22, h * 0.08);
        page.lineTo(w * 0.62, h * 0.08);
        page.lineTo(w * 0.80, h * 0.26);
        page.lineTo(w * 0.80, h * 0.92);
        page.lineTo(w * 0.22, h * 0.92);
        page.closeSubpath();
        painter.drawPath(page);
        painter.drawLine(QPointF(w * 0.62, h * 0.08), QPointF(w * 0.62, h * 0.26));
        painter.drawLine(QPointF(w * 0.62, h * 0.26), QPointF(w * 0.80, h * 0.26));
    }
    return image;
}
