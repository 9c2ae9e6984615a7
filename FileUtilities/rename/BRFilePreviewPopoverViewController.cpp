#include "BRFilePreviewPopoverViewController.h"

#include "BRRenameRoundedTextField.h"
#include "BRRenameViewDelegate.h"
#include "ExtensionSuffixLabel.h"
#include "Look.h"
#include "RenameRowStyle.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace {

// The picture fitted into the rounded square, corners included; a small picture is not
// blown up into a blur. Without one, the soft square alone stands in.
QPixmap framedImage(const QImage &image, qreal ratio)
{
    const int side = BRFilePreviewPopoverViewController::imageSide;
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(0, 0, side, side), 8, 8);
    painter.fillPath(outline, Look::color(Look::Color::ThumbnailWell));
    if (!image.isNull()) {
        QSizeF shown = QSizeF(image.size()) / image.devicePixelRatio();
        if (shown.width() > side || shown.height() > side)
            shown = shown.scaled(side, side, Qt::KeepAspectRatio);
        QRectF target(QPointF(0, 0), shown);
        target.moveCenter(QPointF(side / 2.0, side / 2.0));
        painter.setClipPath(outline);
        painter.drawImage(target, image);
    }
    return pixmap;
}

} // namespace

BRFilePreviewPopoverViewController::BRFilePreviewPopoverViewController(QWidget *parent)
    : QWidget(parent), m_renameFileImageView(new QLabel(this)),
      m_renameFileCurrentLabel(new QLabel(this)),
      m_renameFileNewNameTextField(new BRRenameRoundedTextField(this)),
      // The rounded field's border and padding: 1 and 3 by 6 pixels.
      m_extensionSuffix(
          new ExtensionSuffixLabel(m_renameFileNewNameTextField, QMargins(7, 4, 7, 4))),
      m_problemLabel(Look::label(this, 12, QFont::Normal, Look::Color::ProblemMark, QString()))
{
    setObjectName(QStringLiteral("filePreviewPopOver"));

    m_renameFileImageView->setObjectName(QStringLiteral("renameFileImageView"));
    m_renameFileImageView->setFixedSize(imageSide, imageSide);
    m_renameFileImageView->setAlignment(Qt::AlignCenter);
    m_renameFileImageView->setAccessibleName(
        QCoreApplication::translate("BRFilePreviewPopoverViewController", "Preview"));
    m_renameFileImageView->setPixmap(framedImage(QImage(), devicePixelRatioF()));

    m_renameFileCurrentLabel->setObjectName(QStringLiteral("renameFileCurrentLabel"));
    m_renameFileCurrentLabel->setTextFormat(Qt::PlainText);
    m_renameFileCurrentLabel->setFixedWidth(imageSide);
    Look::setTextStyle(m_renameFileCurrentLabel, 15, QFont::Medium, Look::Color::PrimaryText);

    m_renameFileNewNameTextField->setObjectName(QStringLiteral("renameFileNewNameTextField"));
    m_renameFileNewNameTextField->setAccessibleName(
        QCoreApplication::translate("BRFilePreviewPopoverViewController", "New Name"));
    m_renameFileNewNameTextField->setPlaceholderText(RenameRowStyle::placeholderText());
    m_renameFileNewNameTextField->setFont(Look::font(15));
    m_renameFileNewNameTextField->setFixedWidth(imageSide);
    m_renameFileNewNameTextField->setMinimumHeight(32);
    // No focus ring: the field is the only one here, and the popover says where it is.
    m_renameFileNewNameTextField->setAttribute(Qt::WA_MacShowFocusRect, false);
    m_renameFileNewNameTextField->setReadOnly(true);
    QPalette fieldPalette = m_renameFileNewNameTextField->palette();
    fieldPalette.setColor(QPalette::Text, RenameRowStyle::sourceNameColor());
    fieldPalette.setColor(QPalette::PlaceholderText, RenameRowStyle::placeholderColor());
    m_renameFileNewNameTextField->setPalette(fieldPalette);
    m_extensionSuffix->setColor(RenameRowStyle::extensionColor());

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(0);
    layout->addWidget(m_renameFileImageView);
    layout->addSpacing(12);
    layout->addWidget(Look::label(
        this, 11, QFont::Normal, Look::Color::SecondaryText,
        QCoreApplication::translate("BRFilePreviewPopoverViewController", "Current name")));
    layout->addSpacing(2);
    layout->addWidget(m_renameFileCurrentLabel);
    layout->addSpacing(10);
    layout->addWidget(
        Look::label(this, 11, QFont::Normal, Look::Color::SecondaryText,
                    QCoreApplication::translate("BRFilePreviewPopoverViewController", "New name")));
    layout->addSpacing(4);
    layout->addWidget(m_renameFileNewNameTextField);
    m_problemLabel->setObjectName(QStringLiteral("problemLabel"));
    m_problemLabel->setWordWrap(true);
    m_problemLabel->setFixedWidth(imageSide);
    m_problemLabel->hide();
    layout->addSpacing(6);
    layout->addWidget(m_problemLabel);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(m_renameFileNewNameTextField, &QLineEdit::returnPressed, this,
            &BRFilePreviewPopoverViewController::newNameAction);
}

void BRFilePreviewPopoverViewController::setCurrentName(const QString &name)
{
    // A long name loses its middle; its end still tells the type.
    m_renameFileCurrentLabel->setText(
        m_renameFileCurrentLabel->fontMetrics().elidedText(name, Qt::ElideMiddle, imageSide));
    m_renameFileCurrentLabel->setToolTip(name);
}

void BRFilePreviewPopoverViewController::setImage(const QImage &image)
{
    m_renameFileImageView->setPixmap(framedImage(image, devicePixelRatioF()));
}

void BRFilePreviewPopoverViewController::setEditableName(const QString &name, const QString &suffix)
{
    m_extensionSuffix->setSuffix(suffix);
    m_renameFileNewNameTextField->setReadOnly(false);
    m_renameFileNewNameTextField->setText(name);
    m_renameFileNewNameTextField->setFocus();
    m_renameFileNewNameTextField->selectAll();
}

void BRFilePreviewPopoverViewController::setProblem(const QString &why)
{
    m_problemLabel->setText(why);
    m_problemLabel->setAccessibleName(why);
    m_problemLabel->setVisible(!why.isEmpty());
}

void BRFilePreviewPopoverViewController::newNameAction()
{
    // A read-only field has nothing of the user's to commit.
    if (m_renameFileNewNameTextField->isReadOnly())
        return;
    if (m_delegate && m_index)
        m_delegate->updateNewFileName(m_renameFileNewNameTextField, *m_index);
}
