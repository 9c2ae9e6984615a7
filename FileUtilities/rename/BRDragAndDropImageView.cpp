#include "BRDragAndDropImageView.h"

#include "FileUrlDrag.h"
#include "LookColors.h"
#include "RenameNotificationCenter.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

// One page: a white sheet with a folded corner and a few lines of text.
void paintPage(QPainter &painter, const QRectF &page, qreal angle, bool lines)
{
    painter.save();
    painter.translate(page.center());
    painter.rotate(angle);
    const QRectF sheet(-page.width() / 2, -page.height() / 2, page.width(), page.height());
    const qreal fold = 14;
    QPainterPath outline;
    outline.moveTo(sheet.topLeft());
    outline.lineTo(sheet.right() - fold, sheet.top());
    outline.lineTo(sheet.right(), sheet.top() + fold);
    outline.lineTo(sheet.bottomRight());
    outline.lineTo(sheet.bottomLeft());
    outline.closeSubpath();
    painter.setPen(QPen(Look::color(Look::Color::PageOutline), 1.5));
    painter.setBrush(Look::color(Look::Color::Paper));
    painter.drawPath(outline);
    QPainterPath corner;
    corner.moveTo(sheet.right() - fold, sheet.top());
    corner.lineTo(sheet.right() - fold, sheet.top() + fold);
    corner.lineTo(sheet.right(), sheet.top() + fold);
    painter.setBrush(Look::color(Look::Color::PaperFold));
    painter.drawPath(corner);
    if (lines) {
        painter.setPen(QPen(Look::color(Look::Color::PageLines), 3, Qt::SolidLine, Qt::RoundCap));
        const qreal left = sheet.left() + 10;
        for (int line = 0; line < 4; ++line) {
            const qreal y = sheet.top() + 26 + line * 9;
            const qreal right = sheet.right() - (line == 3 ? 26 : 10);
            painter.drawLine(QPointF(left, y), QPointF(right, y));
        }
    }
    painter.restore();
}

} // namespace

BRDragAndDropImageView::BRDragAndDropImageView(RenameNotificationCenter *center, QWidget *parent)
    : QWidget(parent), m_center(center)
{
    setObjectName(QStringLiteral("dragAndDropImageView"));
    setAccessibleName(QCoreApplication::translate("BRDragAndDropImageView", "Drop files here"));
    setAcceptDrops(true);
    setFixedSize(sizeHint());
}

QSize BRDragAndDropImageView::sizeHint() const
{
    return {400, 220};
}

void BRDragAndDropImageView::setHighlighted(bool highlighted)
{
    if (m_highlighted == highlighted)
        return;
    m_highlighted = highlighted;
    update();
}

void BRDragAndDropImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const QRectF frame = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    QPen border(Look::color(m_highlighted ? Look::Color::Accent : Look::Color::DropZoneBorder), 2);
    border.setDashPattern({4, 3});
    border.setCapStyle(Qt::RoundCap);
    painter.setPen(border);
    painter.setBrush(
        Look::color(m_highlighted ? Look::Color::DropZoneHighlight : Look::Color::DropZoneGround));
    painter.drawRoundedRect(frame, 18, 18);

    // The stack, its badge included, sits in the middle of the frame.
    painter.translate(frame.center() + QPointF(-2, -4));
    painter.scale(1.25, 1.25);
    const QPointF middle(0, 0);
    const QSizeF page(62, 80);
    paintPage(painter, QRectF(middle + QPointF(-26, -6), page).translated(-31, -40), -9, false);
    paintPage(painter, QRectF(middle + QPointF(20, 2), page).translated(-31, -40), 5, true);

    // A badge with an arrow into the stack: what to do with the files.
    const QPointF badgeCentre = middle + QPointF(54, 38);
    painter.setPen(QPen(Look::color(Look::Color::TextOnColor), 3));
    painter.setBrush(Look::color(Look::Color::Accent));
    painter.drawEllipse(badgeCentre, 17, 17);
    QPen arrow(Look::color(Look::Color::TextOnColor), 2.5);
    arrow.setCapStyle(Qt::RoundCap);
    arrow.setJoinStyle(Qt::RoundJoin);
    painter.setPen(arrow);
    painter.drawLine(badgeCentre + QPointF(0, -8), badgeCentre + QPointF(0, 7));
    painter.drawLine(badgeCentre + QPointF(-6, 1), badgeCentre + QPointF(0, 7));
    painter.drawLine(badgeCentre + QPointF(6, 1), badgeCentre + QPointF(0, 7));
}

void BRDragAndDropImageView::dragEnterEvent(QDragEnterEvent *event)
{
    setHighlighted(FileUrlDrag::acceptFiles(event));
}

void BRDragAndDropImageView::dragMoveEvent(QDragMoveEvent *event)
{
    setHighlighted(FileUrlDrag::acceptFiles(event));
}

void BRDragAndDropImageView::dragLeaveEvent(QDragLeaveEvent *)
{
    setHighlighted(false);
}

void BRDragAndDropImageView::dropEvent(QDropEvent *event)
{
    setHighlighted(false);
    if (!FileUrlDrag::acceptFiles(event))
        return;
    m_fileUrls = FileUrlDrag::fileUrls(event->mimeData());
    if (m_center)
        Q_EMIT m_center->dragAndDropComplete(m_fileUrls);
}
