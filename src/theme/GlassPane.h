#pragma once

#include "theme/Glass.h"

#include <QImage>
#include <QRect>

#include <array>
#include <vector>

class QPainter;

namespace brimlight {

/// The panel's pane, cut into pieces so that a change of size moves pieces and paints next to nothing: plain
/// rectangles, and images that are painted once for a look. The outline is that of NotchShape.
///
/// Everything is in whole pixels of the screen, with the origin at the pane's top left.
class GlassPane
{
public:
    enum class Picture {
        /// A plain rectangle in `Piece::color`.
        none,
        /// The upper part, where the light fades; repeats sideways.
        light,
        leftCorner,
        rightCorner,
        shadow,
        /// One column of the rim, which is drawn out to half of the height.
        rim,
    };
    static constexpr int pictureCount = 6;

    struct Piece
    {
        Picture picture = Picture::none;
        QColor color;
        QRect target;
        /// In pixels of the picture.
        QRect source;

        bool operator==(const Piece &) const = default;
    };

    /// Forgets all images when anything differs from before. `bottomRadius` is in points.
    void setLook(const glass::PaneLook &look, double bottomRadius, double devicePixelRatio);

    /// Back to front, painting what is missing. Pieces of shadow lie outside of the pane, all others inside.
    std::vector<Piece> pieces(QSize pixels);

    const QImage &image(Picture picture) const { return m_images.at(static_cast<size_t>(picture)); }

    void paint(QPainter &painter, QSize pixels);

private:
    QImage &slot(Picture picture) { return m_images.at(static_cast<size_t>(picture)); }
    int pixels(double points) const;
    glass::Layer rowColor(int y) const;
    void fillRow(QImage &image, int imageY, int paneY) const;
    void paintLight();
    void paintCorners(int radius, int paneY);
    void paintShadow();
    void paintRim();
    void addShadow(std::vector<Piece> &pieces, QSize pixels) const;
    void addRim(std::vector<Piece> &pieces, QSize pixels) const;

    glass::PaneLook m_look;
    double m_bottomRadius = 0;
    double m_devicePixelRatio = 0;
    std::array<QImage, pictureCount> m_images;
    int m_cornerRadius = -1;
    int m_cornerY = -1;
};

} // namespace brimlight
