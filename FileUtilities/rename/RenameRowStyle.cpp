#include "RenameRowStyle.h"

#include "ExtensionSuffixLabel.h"
#include "Look.h"
#include "LookStyleSheets.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>

namespace {

constexpr int sideMargin = 24;
constexpr int gap = 20;
constexpr int arrowWidth = 44;
constexpr int fieldHeight = 36;
constexpr int nameHeight = 30;
constexpr int popoverSide = 28;
constexpr int removeSide = 22;
constexpr int leastMarkWidth = 56;
constexpr int markHeight = 24;
constexpr int markDisc = 18;
constexpr int thumbnailRadius = 6;

// The field's frame, in the numbers its style sheet gives and QLineEdit adds: a border,
// the padding, then the two pixels QLineEdit keeps on either side of its text.
constexpr int fieldBorder = 1;
constexpr int fieldPadding = 8;
constexpr int lineEditMargin = 2;

using IconPainter = void (*)(QPainter &painter, qreal side);

QIcon iconOf(int side, IconPainter draw)
{
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0}) {
        QPixmap pixmap(QSize(side, side) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter, side);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

QString RenameRowStyle::failedMarkText()
{
    return QCoreApplication::translate("RenameRowStyle", "Failed");
}

QFont RenameRowStyle::failedMarkFont()
{
    return Look::font(13, QFont::DemiBold);
}

RenameRowStyle::Geometry RenameRowStyle::geometry(const QRect &row)
{
    // Wide enough for the word in every language ("Fehlgeschlagen" is twice "Failed"). The
    // language is chosen at start, so the width is measured once, not for every row painted.
    static const int markWidth = std::max(
        leastMarkWidth, QFontMetrics(failedMarkFont()).horizontalAdvance(failedMarkText()) + 2);
    Geometry parts;
    const int middle = row.top() + row.height() / 2;
    parts.thumbnail =
        QRect(row.left() + sideMargin, middle - thumbnailSide / 2, thumbnailSide, thumbnailSide);
    parts.removeControl = QRect(row.left() + row.width() - gap - removeSide,
                                middle - removeSide / 2, removeSide, removeSide);
    parts.popoverControl = QRect(parts.removeControl.left() - 10 - popoverSide,
                                 middle - popoverSide / 2, popoverSide, popoverSide);
    parts.mark = QRect(parts.popoverControl.left() - 10 - markWidth, middle - markHeight / 2,
                       markWidth, markHeight);
    const int left = parts.thumbnail.right() + 1 + gap;
    const int right = parts.mark.left() - 8;
    const int available = qMax(0, right - left - arrowWidth);
    // The new name gets the larger share: it is the one being made, and its text is larger.
    const int nameWidth = available * 2 / 5;
    parts.sourceName = QRect(left, middle - nameHeight / 2, nameWidth, nameHeight);
    parts.arrow = QRect(parts.sourceName.right() + 1, middle - 10, arrowWidth, 20);
    parts.newName = QRect(parts.arrow.right() + 1, middle - fieldHeight / 2,
                          qMax(0, right - parts.arrow.right() - 1), fieldHeight);
    return parts;
}

QFont RenameRowStyle::sourceNameFont()
{
    return Look::font(15);
}

QColor RenameRowStyle::sourceNameColor()
{
    return Look::color(Look::Color::PrimaryText);
}

QFont RenameRowStyle::newNameFont()
{
    return Look::font(18, QFont::Medium);
}

QColor RenameRowStyle::ruleNameColor()
{
    return Look::color(Look::Color::RuleName);
}

QColor RenameRowStyle::editedNameColor()
{
    return Look::color(Look::Color::HandEditedName);
}

QColor RenameRowStyle::placeholderColor()
{
    return Look::color(Look::Color::NewNamePlaceholder);
}

QColor RenameRowStyle::extensionColor()
{
    return Look::color(Look::Color::SecondaryText);
}

QString RenameRowStyle::placeholderText()
{
    return QCoreApplication::translate("RenameRowStyle", "New Name");
}

QString RenameRowStyle::newNameFieldStyleSheet()
{
    // The border is always there, transparent at rest, so that focus colours it without
    // moving the text by a pixel.
    return QStringLiteral("QLineEdit { border: %1px solid transparent; border-radius: 6px;"
                          " padding: 0px %2px; background: transparent; }"
                          " QLineEdit:hover:!read-only { border-color: %3; }"
                          " QLineEdit:focus { border-color: %4; background: %5; }")
        .arg(fieldBorder)
        .arg(fieldPadding)
        .arg(Look::StyleSheet::colorValue(Look::Color::FieldHoverBorder),
             Look::StyleSheet::colorValue(Look::Color::FieldFocusBorder),
             Look::StyleSheet::colorValue(Look::Color::FieldGround));
}

QMargins RenameRowStyle::newNameFieldFrame()
{
    return QMargins(fieldBorder + fieldPadding, fieldBorder, fieldBorder + fieldPadding,
                    fieldBorder);
}

void RenameRowStyle::paintGround(QPainter *painter, const QRect &row, bool hovered)
{
    painter->fillRect(
        row, Look::color(hovered ? Look::Color::RenameRowHover : Look::Color::WindowGround));
    painter->setPen(Look::color(Look::Color::RowSeparator));
    painter->drawLine(row.left() + gap, row.bottom(), row.right() - gap, row.bottom());
}

void RenameRowStyle::paintThumbnail(QPainter *painter, const QRect &frame, const QImage &image)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(frame, thumbnailRadius, thumbnailRadius);
    painter->fillPath(outline, Look::color(Look::Color::ThumbnailWell));
    if (!image.isNull()) {
        const QSize fitted = image.size().scaled(frame.size(), Qt::KeepAspectRatio);
        QRect target(QPoint(0, 0), fitted);
        target.moveCenter(frame.center());
        painter->setClipPath(outline);
        painter->drawImage(target, image);
    }
    painter->restore();
}

void RenameRowStyle::paintArrow(QPainter *painter, const QRect &rect)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QPen pen(Look::color(Look::Color::ArrowMark), 1.5);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    painter->setPen(pen);
    const QPointF middle = QRectF(rect).center();
    const QPointF tail(middle.x() - 9, middle.y());
    const QPointF head(middle.x() + 9, middle.y());
    painter->drawLine(tail, head);
    painter->drawLine(head, head + QPointF(-5, -5));
    painter->drawLine(head, head + QPointF(-5, 5));
    painter->restore();
}

QRect RenameRowStyle::newNameLine(const QRect &field, const QFontMetrics &metrics,
                                  const QString &text)
{
    // QLineEdit centres a line as tall as the text's bounding box, at least the font's
    // height, in its contents, and keeps a margin at either end.
    const QRect contents = field.adjusted(fieldBorder + fieldPadding, fieldBorder,
                                          -fieldBorder - fieldPadding, -fieldBorder);
    const int lineHeight = qMax(metrics.boundingRect(text).height(), metrics.height());
    const int top = contents.top() + (contents.height() - lineHeight + 1) / 2;
    return QRect(contents.left() + lineEditMargin, top, contents.width() - 2 * lineEditMargin,
                 lineHeight);
}

void RenameRowStyle::paintNewName(QPainter *painter, const QRect &field,
                                  const std::optional<QString> &name, const QString &suffix,
                                  bool edited)
{
    painter->save();
    painter->setFont(newNameFont());
    const QFontMetrics metrics = painter->fontMetrics();
    if (!name || name->isEmpty()) {
        const QString placeholder = placeholderText();
        const QRect line = newNameLine(field, metrics, placeholder);
        painter->setPen(placeholderColor());
        painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(placeholder, Qt::ElideRight, line.width()));
    } else {
        const QRect line = newNameLine(field, metrics, *name);
        const int baseline = line.top() + metrics.ascent();
        // The name gives way to the suffix, as the field's text does.
        const int nameWidth =
            qMax(0, line.width() - ExtensionSuffixLabel::widthFor(metrics, suffix));
        const QString shown = metrics.elidedText(*name, Qt::ElideRight, nameWidth);
        painter->setPen(edited ? editedNameColor() : ruleNameColor());
        painter->drawText(QPoint(line.left(), baseline), shown);
        if (!suffix.isEmpty()) {
            painter->setPen(extensionColor());
            painter->drawText(
                QPoint(line.left() + qMin(metrics.horizontalAdvance(shown), nameWidth), baseline),
                suffix);
        }
    }
    painter->restore();
}

void RenameRowStyle::paintMark(QPainter *painter, const QRect &rect, RowMark mark)
{
    if (mark == RowMark::None)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor red = Look::color(Look::Color::ProblemMark);
    switch (mark) {
    case RowMark::Conflict: {
        const QRectF disc(rect.right() + 1 - markDisc, rect.center().y() + 1 - markDisc / 2.0,
                          markDisc, markDisc);
        painter->setPen(Qt::NoPen);
        painter->setBrush(red);
        painter->drawEllipse(disc);
        QPen bang(Look::color(Look::Color::TextOnColor), 2.2);
        bang.setCapStyle(Qt::RoundCap);
        painter->setPen(bang);
        const qreal x = disc.center().x();
        painter->drawLine(QPointF(x, disc.top() + 4.5), QPointF(x, disc.top() + 10.5));
        painter->drawPoint(QPointF(x, disc.top() + 14));
        break;
    }
    case RowMark::Failed:
        painter->setPen(red);
        painter->setFont(failedMarkFont());
        painter->drawText(rect, Qt::AlignRight | Qt::AlignVCenter, failedMarkText());
        break;
    case RowMark::None:
        break;
    }
    painter->restore();
}

QPixmap RenameRowStyle::markPixmap(RowMark mark, QSize size, qreal ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintMark(&painter, QRect(QPoint(0, 0), size), mark);
    return pixmap;
}

QString RenameRowStyle::elidedSourceName(const QString &name, int width)
{
    // The middle goes: the end of a name tells its type, the start which file it is.
    return QFontMetrics(sourceNameFont()).elidedText(name, Qt::ElideMiddle, width);
}

QPixmap RenameRowStyle::thumbnailPixmap(const QImage &image, qreal ratio)
{
    QPixmap pixmap(QSize(thumbnailSide, thumbnailSide) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintThumbnail(&painter, QRect(0, 0, thumbnailSide, thumbnailSide), image);
    return pixmap;
}

QIcon RenameRowStyle::popoverIcon()
{
    // An eye: the control opens a larger look at the file.
    return iconOf(20, [](QPainter &painter, qreal side) {
        QPen pen(Look::color(Look::Color::ControlMark), 1.5);
        pen.setJoinStyle(Qt::RoundJoin);
        painter.setPen(pen);
        const qreal middle = side / 2;
        QPainterPath eye;
        eye.moveTo(2, middle);
        eye.quadTo(middle, middle - 9, side - 2, middle);
        eye.quadTo(middle, middle + 9, 2, middle);
        painter.drawPath(eye);
        painter.setBrush(Look::color(Look::Color::ControlMark));
        painter.drawEllipse(QPointF(middle, middle), 2.6, 2.6);
    });
}

QIcon RenameRowStyle::removeIcon()
{
    // A grey disc with a white cross, as lists mark an entry that can be taken out.
    return iconOf(18, [](QPainter &painter, qreal side) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::color(Look::Color::RemoveDisc));
        painter.drawEllipse(QRectF(0.5, 0.5, side - 1, side - 1));
        QPen cross(Look::color(Look::Color::TextOnColor), 1.8);
        cross.setCapStyle(Qt::RoundCap);
        painter.setPen(cross);
        const qreal inset = side * 0.33;
        painter.drawLine(QPointF(inset, inset), QPointF(side - inset, side - inset));
        painter.drawLine(QPointF(side - inset, inset), QPointF(inset, side - inset));
    });
}
