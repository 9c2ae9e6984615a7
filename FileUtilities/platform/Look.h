#pragma once

#include "LookColors.h"

#include <QFont>
#include <QPalette>
#include <QStringList>

class QLabel;
class QWidget;

// The program's one typeface and the text made with it. Sizes are in pixels, as the
// designs were drawn on a display where a point is a pixel; a size in points would come
// out a third larger at 96 dpi.
namespace Look {

// "Helvetica Neue", else Helvetica, else the system's own sans-serif face. A medium cut
// that a system installs as a family of its own comes first for medium text.
QStringList families(QFont::Weight weight = QFont::Normal);
QFont font(int pixelSize, QFont::Weight weight = QFont::Normal);

// Gives a widget the typeface at this size and weight, and the colour to every text role
// it may draw with: labels, buttons and fields alike.
void setTextStyle(QWidget *widget, int pixelSize, QFont::Weight weight, Color color);
void setTextColor(QWidget *widget, Color color,
                  QPalette::ColorRole textRole = QPalette::WindowText);

// Every screen's labels come from here.
QLabel *label(QWidget *parent, int pixelSize, QFont::Weight weight, Color color,
              const QString &text = QString());

// ":/images/NAME.svg", or its "NAME-dark.svg" where the tone is dark and one is drawn:
// pictures made for light grounds have a twin for dark ones.
QString imagePath(const QString &name);

} // namespace Look
