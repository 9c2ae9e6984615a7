#include "BRColorHelper.h"

#include <algorithm>

QColor BRColorHelper::color(double red, double green, double blue, double alpha)
{
    // Out-of-range values are held at the edges instead of making an invalid colour.
    const auto unit = [](double value) {
        return std::clamp(value, 0.0, 1.0);
    };
    return QColor::fromRgbF(
        static_cast<float>(unit(red / 255.0)), static_cast<float>(unit(green / 255.0)),
        static_cast<float>(unit(blue / 255.0)), static_cast<float>(unit(alpha)));
}
