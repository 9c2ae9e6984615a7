#pragma once

#include <QFutureWatcher>
#include <QIcon>
#include <QImage>
#include <QUrl>
#include <QWidget>

class QFileInfo;

// A look at one file in a square of 230 by 230: the picture of an image, the first lines
// of a text, else the large icon of the file's type. A file that is gone shows the generic
// icon. Pictures are decoded off the main thread; the icon stands in until they arrive.
class FilePreviewView : public QWidget
{
    Q_OBJECT

public:
    enum class Kind
    {
        Picture,
        Text,
        Icon
    };

    static constexpr int side = 230;
    static constexpr int iconSide = 128;
    // At most this much of a text file is read.
    static constexpr qint64 textLimit = 4096;

    explicit FilePreviewView(QWidget *parent = nullptr);

    void setPreviewItem(const QUrl &fileUrl);
    QUrl previewItem() const { return m_url; }

    Kind kind() const { return m_kind; }
    // True while a picture is being decoded.
    bool isLoading() const { return m_loading; }
    QImage picture() const { return m_picture; }
    // The lines shown of a text file.
    QStringList textLines() const { return m_lines; }

    QSize sizeHint() const override { return {side, side}; }

Q_SIGNALS:
    // What the view shows is final: the picture has been decoded, or there was none to wait for.
    void previewReady();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void reset();
    void showIcon(const QFileInfo &info, const QString &mimeIconName,
                  const QString &mimeGenericIconName);
    bool showText(const QString &path);
    void startDecoding(const QString &path);
    void pictureDecoded(QFutureWatcher<QImage> *decoder);
    void paintGenericIcon(QPainter &painter, const QRectF &target) const;
    void paintText(QPainter &painter, const QRect &area) const;

    QUrl m_url;
    Kind m_kind = Kind::Icon;
    QImage m_picture;
    QStringList m_lines;
    QIcon m_icon; // null: the drawn generic icon
    bool m_folder = false;
    bool m_loading = false;
    QFutureWatcher<QImage> *m_decoder = nullptr; // the decode of the item shown, if any
};
