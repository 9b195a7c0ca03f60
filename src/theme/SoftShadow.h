#pragma once

#include <QColor>
#include <QImage>

namespace brimlight {

/// The soft shadow of a shape with four edges, drawn as an image. Only a small patch is ever blurred: corners
/// are copied from it and edges are drawn out. Patches are kept, so that many sizes share one.
namespace softshadow {

enum class Outline {
    /// A rectangle with continuous corners.
    continuous,
    /// Square above, rounded below.
    notch,
};

struct Caster
{
    Outline outline = Outline::continuous;
    /// Of the corners, in pixels.
    double cornerRadius = 0;
    /// Twice the standard deviation of the blur, in pixels.
    double blurRadius = 0;
};

/// Whole pixels that a shadow reaches beyond its caster on every side.
int reach(double blurRadius);

/// The shadow of a caster of `size` pixels, as ARGB32_Premultiplied, larger than the caster by `reach` on all
/// four sides. It goes on beneath the caster.
QImage image(const Caster &caster, QSize size, const QColor &color);

/// Three box blurs of an Alpha8 image in both directions, which come within 3 % of a Gaussian.
void blur(QImage &alpha, double blurRadius);

} // namespace softshadow
} // namespace brimlight
