#include "BRImageBackgroundView.h"

#include "Look.h"

#include <QPainter>

BRImageBackgroundView::BRImageBackgroundView(const QString &imageName, Tone imageTone,
                                             QWidget *parent)
    : QWidget(parent), m_image(Look::imagePath(imageName))
{
    if (imageTone == Tone::Dark && m_image.isValid()) {
        QPalette lightText = palette();
        lightText.setColor(QPalette::WindowText, Look::color(Look::Color::TextOnColor));
        setPalette(lightText);
    }
}

void BRImageBackgroundView::paintEvent(QPaintEvent *)
{
    if (!m_image.isValid())
        return;
    QPainter painter(this);
    // Cover the view, keeping the image's proportions, centred.
    const QSizeF image = m_image.defaultSize();
    const QSizeF cover = image.scaled(size(), Qt::KeepAspectRatioByExpanding);
    const QRectF target((width() - cover.width()) / 2, (height() - cover.height()) / 2,
                        cover.width(), cover.height());
    m_image.render(&painter, target);
}
