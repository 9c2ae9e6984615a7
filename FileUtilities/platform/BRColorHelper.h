#pragma once

#include <QColor>

// Red, green and blue on the scale of 255 and alpha from 0 to 1, as designers write them.
// The look's colour table is written this way; screens name colours by role (LookColors.h).
class BRColorHelper
{
public:
    static QColor color(double red, double green, double blue, double alpha);
};
