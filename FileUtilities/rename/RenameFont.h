#pragma once

#include <QFont>

// The rename screen's one typeface. Sizes are given in pixels: the designs were drawn on a
// display where a point is a pixel, and at 96 dpi the same points come out a third larger.
// Look::font in Look.h replaces it; it stays until the rename screen itself moves there.
class RenameFont
{
public:
    // "Helvetica Neue", else Helvetica, else the system's sans-serif face.
    static QFont helveticaNeue(int pixelSize, QFont::Weight weight = QFont::Normal);
    // The medium cut, where the system has one; else the regular face at medium weight.
    static QFont helveticaNeueMedium(int pixelSize);
};
