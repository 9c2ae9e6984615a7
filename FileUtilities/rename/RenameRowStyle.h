#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QMargins>
#include <QRect>
#include <QString>

#include "RowMark.h"

#include <optional>

class QFontMetrics;
class QPainter;

// How a row of the rename list looks. The painted rows and the live cell that stands in
// for the row under the mouse both take their places, fonts and colours from here, so the
// cell lies exactly over the painting and hovering a row moves nothing.
class RenameRowStyle
{
public:
    static constexpr int rowHeight = 105;
    static constexpr int thumbnailSide = 70;

    // Where each part of a row goes, in the coordinates that `row` is given in.
    struct Geometry
    {
        QRect thumbnail;
        QRect sourceName;
        QRect arrow;
        QRect newName; // the whole field, border included
        QRect mark;    // the conflict or failure mark after the new name
        QRect popoverControl;
        QRect removeControl;
    };
    static Geometry geometry(const QRect &row);

    static QFont sourceNameFont();
    static QColor sourceNameColor();
    static QFont newNameFont();
    // A name that follows the rule, one the user typed, and the placeholder of none.
    static QColor ruleNameColor();
    static QColor editedNameColor();
    static QColor placeholderColor();
    // The extension after a new name, lighter than the name: it is kept, not made.
    static QColor extensionColor();
    static QString placeholderText();

    // The new-name field's frame; the painted name is placed by the same numbers.
    static QString newNameFieldStyleSheet();
    // The field's border and padding on each side.
    static QMargins newNameFieldFrame();

    // The live cell tints the row under the mouse, so the user sees which row answers.
    static void paintGround(QPainter *painter, const QRect &row, bool hovered = false);
    static void paintThumbnail(QPainter *painter, const QRect &frame, const QImage &image);
    static void paintArrow(QPainter *painter, const QRect &rect);
    // The new name, or the placeholder, where the field would draw it; then `suffix` (".jpg",
    // the extension the file keeps) in a lighter tone, where the field's suffix lies.
    static void paintNewName(QPainter *painter, const QRect &field,
                             const std::optional<QString> &name, const QString &suffix,
                             bool edited);
    static QString elidedSourceName(const QString &name, int width);

    // A red disc with "!" for a conflict, the word "Failed" for a failure, at the right of
    // `rect`.
    static void paintMark(QPainter *painter, const QRect &rect, RowMark mark);
    // The same as a picture, for the live cell.
    static QPixmap markPixmap(RowMark mark, QSize size, qreal ratio);
    // The word a failed row shows, in the user's language, and its font.
    static QString failedMarkText();
    static QFont failedMarkFont();

    // The picture in its frame, for the live cell's image view.
    static QPixmap thumbnailPixmap(const QImage &image, qreal ratio);
    static QIcon popoverIcon();
    static QIcon removeIcon();

private:
    static QRect newNameLine(const QRect &field, const QFontMetrics &metrics, const QString &text);
};
