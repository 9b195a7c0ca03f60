#include "theme/SoftShadow.h"

#include "theme/NotchShape.h"
#include "theme/Superellipse.h"

#include <QCache>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace brimlight::softshadow {
namespace {

constexpr int passes = 3;

/// Widths of box filters that in a row have the variance of the Gaussian; odd, so that nothing shifts.
std::array<int, passes> boxWidths(double blurRadius)
{
    const double sigma = blurRadius / 2;
    const double ideal = std::sqrt(12 * sigma * sigma / passes + 1);
    int lower = static_cast<int>(std::floor(ideal));
    if (lower % 2 == 0)
        --lower;
    const double lowerCount =
        (12 * sigma * sigma - passes * lower * lower - 4.0 * passes * lower - 3 * passes) /
        (-4.0 * lower - 4);
    std::array<int, passes> widths{};
    for (int i = 0; i < passes; ++i)
        widths.at(i) = i < std::lround(lowerCount) ? lower : lower + 2;
    return widths;
}

/// One box blur along a line; what lies outside of it is empty.
void blurLine(const std::vector<float> &from, std::vector<float> &to, int count, int width)
{
    const int half = width / 2;
    const float share = 1.0f / static_cast<float>(width);
    double sum = 0;
    for (int i = 0; i < std::min(half, count); ++i)
        sum += from[i];
    for (int i = 0; i < count; ++i) {
        if (i + half < count)
            sum += from[i + half];
        to[i] = static_cast<float>(sum) * share;
        if (i - half >= 0)
            sum -= from[i - half];
    }
}

QPainterPath outlinePath(const Caster &caster, const QRectF &rect)
{
    return caster.outline == Outline::notch ? NotchShape{.bottomRadius = caster.cornerRadius}.path(rect)
                                            : superellipsePath(rect, caster.cornerRadius);
}

QImage blurredPatch(const Caster &caster, QSize size)
{
    const int margin = reach(caster.blurRadius);
    QImage patch(size + QSize(2 * margin, 2 * margin), QImage::Format_Alpha8);
    patch.fill(0);
    {
        QPainter painter(&patch);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(outlinePath(caster, QRectF(QPointF(margin, margin), QSizeF(size))), Qt::black);
    }
    blur(patch, caster.blurRadius);
    return patch;
}

QImage cachedPatch(const Caster &caster, QSize size)
{
    // Remembers what a pure function has answered; views paint on one thread.
    constexpr int kilobytes = 1024;
    static QCache<QString, QImage> patches(kilobytes);
    const QString key = QStringLiteral("%1 %2 %3 %4 %5")
                            .arg(static_cast<int>(caster.outline))
                            .arg(caster.cornerRadius)
                            .arg(caster.blurRadius)
                            .arg(size.width())
                            .arg(size.height());
    if (const QImage *known = patches.object(key))
        return *known;
    QImage patch = blurredPatch(caster, size);
    patches.insert(key, new QImage(patch), static_cast<int>(patch.sizeInBytes() / 1024) + 1);
    return patch;
}

/// The patch's pixel that stands for each pixel of a length drawn out from it.
std::vector<int> drawnOut(int length, int patchLength)
{
    std::vector<int> map(length);
    const int middle = patchLength / 2;
    for (int i = 0; i < length; ++i) {
        const int fromEnd = length - 1 - i;
        if (i <= middle)
            map[i] = i;
        else if (fromEnd < patchLength - 1 - middle)
            map[i] = patchLength - 1 - fromEnd;
        else
            map[i] = middle;
    }
    return map;
}

} // namespace

int reach(double blurRadius)
{
    if (blurRadius <= 0)
        return 0;
    int sum = 0;
    for (const int width : boxWidths(blurRadius))
        sum += width / 2;
    return sum;
}

void blur(QImage &alpha, double blurRadius)
{
    if (blurRadius <= 0)
        return;
    const auto widths = boxWidths(blurRadius);
    const int columns = alpha.width();
    const int rows = alpha.height();
    std::vector<float> line(std::max(columns, rows));
    std::vector<float> scratch(line.size());
    std::vector<float> whole(static_cast<size_t>(columns) * rows);
    const auto blurThrice = [&](int count) {
        for (const int width : widths) {
            blurLine(line, scratch, count, width);
            line.swap(scratch);
        }
    };
    for (int y = 0; y < rows; ++y) {
        const uchar *bytes = alpha.constScanLine(y);
        std::copy(bytes, bytes + columns, line.begin());
        blurThrice(columns);
        std::copy(line.begin(), line.begin() + columns, whole.begin() + static_cast<ptrdiff_t>(y) * columns);
    }
    for (int x = 0; x < columns; ++x) {
        for (int y = 0; y < rows; ++y)
            line[y] = whole[static_cast<size_t>(y) * columns + x];
        blurThrice(rows);
        for (int y = 0; y < rows; ++y)
            alpha.scanLine(y)[x] = static_cast<uchar>(std::clamp(std::lround(line[y]), 0L, 255L));
    }
}

QImage image(const Caster &caster, QSize size, const QColor &color)
{
    const int margin = reach(caster.blurRadius);
    // Beyond the corner and the blur on either side an edge looks the same everywhere.
    const int shorter = std::min(size.width(), size.height());
    const double corner = caster.outline == Outline::notch ? caster.cornerRadius
                                                           : superellipseExtent(shorter, caster.cornerRadius);
    const int core = 2 * (static_cast<int>(std::ceil(corner)) + margin) + 1;
    const QImage patch = cachedPatch(caster, {std::min(size.width(), core), std::min(size.height(), core)});

    std::array<QRgb, 256> colors{};
    for (int i = 0; i < 256; ++i) {
        QColor shade = color;
        shade.setAlphaF(static_cast<float>(color.alphaF() * i / 255.0));
        colors.at(i) = qPremultiply(shade.rgba());
    }
    QImage result(size + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    const std::vector<int> columns = drawnOut(result.width(), patch.width());
    const std::vector<int> rows = drawnOut(result.height(), patch.height());
    for (int y = 0; y < result.height(); ++y) {
        const uchar *from = patch.constScanLine(rows[y]);
        auto *to = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            to[x] = colors[from[columns[x]]];
    }
    return result;
}

} // namespace brimlight::softshadow
