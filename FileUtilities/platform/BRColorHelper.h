#pragma once

#include <QColor>

// One way to name a colour across the program: red, green and blue on the scale of 255,
// alpha from 0 to 1, as designers write them. Screens name colours by role through
// LookColors.h; this stays for the two screens not yet moved there.
class BRColorHelper
{
public:
    static QColor color(double red, double green, double blue, double alpha);
};
