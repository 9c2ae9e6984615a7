#include "FilePreviewView.h"

#include "LookColors.h"

#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QImageReader>
#include <QMimeDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QStringDecoder>
#include <QtConcurrent>

namespace {

constexpr int padding = 8;

QImage decodePicture(const QString &path, QSize bounds)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QSize original = reader.size();
    // Rotated photos report their stored size; the bounds apply to what is shown.
    if (original.isValid() &&
        reader.transformation().testFlag(QImageIOHandler::TransformationRotate90))
        original.transpose();
    if (original.isValid() &&
        (original.width() > bounds.width() || original.height() > bounds.height())) {
        const QSize scaled = original.scaled(bounds, Qt::KeepAspectRatio);
        reader.setScaledSize(
            reader.transformation().testFlag(QImageIOHandler::TransformationRotate90)
                ? scaled.transposed()
                : scaled);
    }
    return reader.read();
}

} // namespace

FilePreviewView::FilePreviewView(QWidget *parent) : QWidget(parent)
{
    setFixedSize(side, side);
}

void FilePreviewView::reset()
{
    // A decode still running for the previous item must not land on this one. Its watcher
    // may be the sender of the signal that brought us here, so it goes later.
    if (m_decoder) {
        m_decoder->disconnect(this);
        m_decoder->deleteLater();
        m_decoder = nullptr;
    }
    m_kind = Kind::Icon;
    m_picture = QImage();
    m_lines.clear();
    m_icon = QIcon();
    m_folder = false;
    m_loading = false;
}

void FilePreviewView::setPreviewItem(const QUrl &fileUrl)
{
    reset();
    m_url = fileUrl;
    const QString path = fileUrl.isLocalFile() ? fileUrl.toLocalFile() : QString();
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists()) {
        update();
        Q_EMIT previewReady();
        return;
    }
    if (info.isDir()) {
        m_folder = true;
        showIcon(info, {}, {});
        Q_EMIT previewReady();
        return;
    }
    // Only regular files are read: a FIFO or a device would block the reader.
    const QMimeType type =
        info.isFile() ? QMimeDatabase().mimeTypeForFile(info)
                      : QMimeDatabase().mimeTypeForFile(info, QMimeDatabase::MatchExtension);
    if (info.isFile() && type.name().startsWith(QStringLiteral("image/")) &&
        QImageReader(path).canRead()) {
        m_kind = Kind::Picture;
        showIcon(info, type.iconName(), type.genericIconName());
        startDecoding(path);
        return;
    }
    if (info.isFile() && type.inherits(QStringLiteral("text/plain")) && showText(path)) {
        update();
        Q_EMIT previewReady();
        return;
    }
    showIcon(info, type.iconName(), type.genericIconName());
    Q_EMIT previewReady();
}

void FilePreviewView::showIcon(const QFileInfo &info, const QString &mimeIconName,
                               const QString &mimeGenericIconName)
{
    if (info.isDir())
        m_icon = QIcon::fromTheme(QStringLiteral("folder"));
    else
        m_icon = QIcon::fromTheme(mimeIconName, QIcon::fromTheme(mimeGenericIconName));
    update();
}

bool FilePreviewView::showText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.read(textLimit);
    const bool cut = bytes.size() == textLimit && !file.atEnd();
    QStringDecoder decoder(
        QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    QString text = decoder(bytes);
    // The cut may have fallen inside a character.
    if (cut && text.endsWith(QChar::ReplacementCharacter))
        text.chop(1);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\t'), QStringLiteral("    "));
    m_lines = text.split(QLatin1Char('\n'));
    m_kind = Kind::Text;
    return true;
}

void FilePreviewView::startDecoding(const QString &path)
{
    m_loading = true;
    const qreal ratio = devicePixelRatioF();
    const int bound = qRound((side - 2 * padding) * ratio);
    m_decoder = new QFutureWatcher<QImage>(this);
    connect(m_decoder, &QFutureWatcher<QImage>::finished, this,
            [this, decoder = m_decoder] { pictureDecoded(decoder); });
    m_decoder->setFuture(QtConcurrent::run(decodePicture, path, QSize(bound, bound)));
}

void FilePreviewView::pictureDecoded(QFutureWatcher<QImage> *decoder)
{
    if (decoder != m_decoder || !m_loading)
        return;
    m_loading = false;
    const QFuture<QImage> future = decoder->future();
    QImage image = future.resultCount() > 0 ? future.result() : QImage();
    if (image.isNull()) {
        // Looked like an image but did not decode: the icon already shows.
        m_kind = Kind::Icon;
    } else {
        image.setDevicePixelRatio(devicePixelRatioF());
        m_picture = image;
    }
    update();
    Q_EMIT previewReady();
}

void FilePreviewView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Look::color(Look::Color::PreviewBorder));
    painter.setBrush(
        Look::color(m_kind == Kind::Text ? Look::Color::Paper : Look::Color::PreviewGround));
    painter.drawRoundedRect(frame, 8, 8);

    const QRect inner = rect().adjusted(padding, padding, -padding, -padding);
    if (m_kind == Kind::Text) {
        paintText(painter, inner);
        return;
    }
    if (m_kind == Kind::Picture && !m_picture.isNull()) {
        const QSizeF shown = m_picture.deviceIndependentSize();
        const QRectF target(inner.x() + (inner.width() - shown.width()) / 2,
                            inner.y() + (inner.height() - shown.height()) / 2, shown.width(),
                            shown.height());
        painter.drawImage(target, m_picture);
        return;
    }
    const QRect iconRect((width() - iconSide) / 2, (height() - iconSide) / 2, iconSide, iconSide);
    if (!m_icon.isNull())
        m_icon.paint(&painter, iconRect);
    else
        paintGenericIcon(painter, iconRect);
}

void FilePreviewView::paintText(QPainter &painter, const QRect &area) const
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(10);
    painter.setFont(font);
    painter.setPen(Look::color(Look::Color::PreviewText));
    painter.setClipRect(area);
    const QFontMetrics metrics(font);
    int baseline = area.top() + metrics.ascent();
    // Long lines run out of the square instead of wrapping, as in an editor.
    for (const QString &line : m_lines) {
        if (baseline + metrics.descent() > area.bottom())
            break;
        painter.drawText(QPoint(area.left(), baseline), line);
        baseline += metrics.lineSpacing();
    }
}

void FilePreviewView::paintGenericIcon(QPainter &painter, const QRectF &target) const
{
    const qreal x = target.x();
    const qreal y = target.y();
    const qreal w = target.width();
    const qreal h = target.height();
    painter.setPen(QPen(Look::color(Look::Color::IconStroke), 2.0));
    QPainterPath shape;
    if (m_folder) {
        painter.setBrush(Look::color(Look::Color::FolderIconFill));
        shape.moveTo(x + w * 0.08, y + h * 0.25);
        shape.lineTo(x + w * 0.40, y + h * 0.25);
        shape.lineTo(x + w * 0.47, y + h * 0.33);
        shape.lineTo(x + w * 0.92, y + h * 0.33);
        shape.lineTo(x + w * 0.92, y + h * 0.82);
        shape.lineTo(x + w * 0.08, y + h * 0.82);
        shape.closeSubpath();
        painter.drawPath(shape);
        return;
    }
    painter.setBrush(Look::color(Look::Color::PreviewIconPageFill));
    shape.moveTo(x + w * 0.22, y + h * 0.08);
    shape.lineTo(x + w * 0.62, y + h * 0.08);
    shape.lineTo(x + w * 0.80, y + h * 0.26);
    shape.lineTo(x + w * 0.80, y + h * 0.92);
    shape.lineTo(x + w * 0.22, y + h * 0.92);
    shape.closeSubpath();
    painter.drawPath(shape);
    painter.drawPolyline(
        QPolygonF({QPointF(x + w * 0.62, y + h * 0.08), QPointF(x + w * 0.62, y + h * 0.26),
                   QPointF(x + w * 0.80, y + h * 0.26)}));
}
