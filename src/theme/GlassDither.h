#pragma once

#include "theme/Glass.h"

#include <QRgb>

#include <algorithm>
#include <array>
#include <cmath>

namespace brimlight::glass {

/// The threshold, 0 to 1, at which a pixel rounds up: an 8 x 8 ordered pattern. Dark gradients would show
/// their steps otherwise; half a step to and fro is below what can be seen as grain.
inline double ditherThreshold(int x, int y)
{
    static constexpr std::array<unsigned char, 64> order{
        0,  32, 8,  40, 2,  34, 10, 42, 48, 16, 56, 24, 50, 18, 58, 26, 12, 44, 4,  36, 14, 46,
        6,  38, 60, 28, 52, 20, 62, 30, 54, 22, 3,  35, 11, 43, 1,  33, 9,  41, 51, 19, 59, 27,
        49, 17, 57, 25, 15, 47, 7,  39, 13, 45, 5,  37, 63, 31, 55, 23, 61, 29, 53, 21};
    return (order.at(8 * (y & 7) + (x & 7)) + 0.5) / 64;
}

/// A pixel of a gradient. The opacity is rounded the same everywhere, so that the ground does not flicker
/// through.
inline QRgb dithered(const Layer &color, int x, int y)
{
    const int alpha = static_cast<int>(std::lround(255 * color.opacity));
    const double threshold = ditherThreshold(x, y);
    const auto channel = [&](double value) {
        return std::min(static_cast<int>(std::floor(255 * value + threshold)), alpha);
    };
    return qRgba(channel(color.red), channel(color.green), channel(color.blue), alpha);
}

} // namespace brimlight::glass
