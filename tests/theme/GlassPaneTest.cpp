#include "theme/GlassPane.h"
#include "theme/GlassSurface.h"
#include "theme/NotchShape.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QQuickWindow>

namespace brimlight::test {
namespace {

constexpr int margin = 100;

glass::PaneLook look(glass::Backdrop backdrop)
{
    return {
        .theme = Theme::midnight(), .strength = 0.55, .tinted = true, .border = true, .backdrop = backdrop};
}

QImage painted(GlassPane &pane, QSize pixels, const QColor &ground = Qt::transparent)
{
    QImage image(pixels + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.translate(margin, margin);
    pane.paint(painter, pixels);
    return image;
}

} // namespace

TEST(GlassPane, CoversItsOutlineOnceAndNothingElse)
{
    GlassPane pane;
    pane.setLook(look(glass::Backdrop::opaque), 32, 1);
    for (const QSize size : {QSize(200, 32), QSize(201, 90), QSize(536, 358), QSize(37, 900)}) {
        std::vector<GlassPane::Piece> body = pane.pieces(size);
        std::erase_if(body, [](const auto &piece) {
            return piece.picture == GlassPane::Picture::shadow || piece.picture == GlassPane::Picture::rim ||
                   piece.color.alpha() < 255 * 0.2;
        });
        int area = 0;
        for (const auto &piece : body) {
            EXPECT_TRUE(QRect(QPoint(), size).contains(piece.target));
            area += piece.picture == GlassPane::Picture::none && piece.color.alpha() < 255
                        ? 0
                        : piece.target.width() * piece.target.height();
            for (const auto &other : body) {
                if (&other != &piece) {
                    EXPECT_TRUE((other.target & piece.target).isEmpty());
                }
            }
        }
        EXPECT_EQ(area, size.width() * size.height());
    }
}

TEST(GlassPane, FollowsTheOutlineAtEverySize)
{
    GlassPane pane;
    for (const double ratio : {1.0, 2.0}) {
        pane.setLook(look(glass::Backdrop::opaque), 32, ratio);
        for (const QSize size : {QSize(200, 40), QSize(536, 358), QSize(700, 1201)}) {
            const QImage image = painted(pane, size);
            const QPainterPath outline =
                NotchShape{.bottomRadius = 32 * ratio}.path({QPointF(margin, margin), QSizeF(size)});
            const QPainterPath within = NotchShape{.bottomRadius = 32 * ratio, .insetAmount = 1.5}.path(
                {QPointF(margin, margin), QSizeF(size)});
            for (int y = 0; y < image.height(); y += 3) {
                for (int x = 0; x < image.width(); x += 3) {
                    const int alpha = qAlpha(image.pixel(x, y));
                    if (within.contains(QPointF(x + 0.5, y + 0.5))) {
                        ASSERT_EQ(alpha, 255) << x << ' ' << y;
                    } else if (!outline.contains(QPointF(x + 0.5, y + 0.5))) {
                        ASSERT_LE(alpha, 160) << "at most shadow and the edge's pixels";
                    }
                }
            }
        }
    }
}

TEST(GlassPane, ATranslucentPaneDoesNotShowItsOwnShadow)
{
    GlassPane pane;
    pane.setLook(look(glass::Backdrop::blurred), 32, 1);
    const QImage image = painted(pane, {536, 400});
    const double expected = glass::paneColor(look(glass::Backdrop::blurred), 399).opacity;
    for (const QPoint point : {QPoint(margin + 10, margin + 300), QPoint(margin + 268, margin + 398)})
        EXPECT_NEAR(image.pixelColor(point).alphaF(), expected, 0.01);
    EXPECT_GT(qAlpha(image.pixel(margin + 268, margin + 401)), 30) << "but has one";
}

TEST(GlassPane, HasNoSeamBetweenPaneAndShadow)
{
    GlassPane pane;
    pane.setLook(look(glass::Backdrop::opaque), 32, 2);
    // Over white a gap would shine between the dark pane and its shadow.
    const QImage image = painted(pane, {600, 500}, Qt::white);
    for (int step = 0; step < 90; ++step) {
        // Outwards along the diagonal of the lower left corner the brightness never falls.
        const QPoint point(margin + 60 - step, margin + 440 + step);
        const QPoint next = point + QPoint(-1, 1);
        EXPECT_GE(qGreen(image.pixel(next)) + 3, qGreen(image.pixel(point))) << step;
    }
}

TEST(GlassPane, GrowingPaintsNoNewImagesOnceTheCornersAreBelowTheLight)
{
    GlassPane pane;
    pane.setLook(look(glass::Backdrop::translucent), 32, 2);
    pane.pieces({900, 700});
    std::array<qint64, GlassPane::pictureCount> keys{};
    for (size_t i = 0; i < keys.size(); ++i)
        keys.at(i) = pane.image(static_cast<GlassPane::Picture>(i)).cacheKey();
    pane.pieces({1072, 1200});
    for (size_t i = 0; i < keys.size(); ++i)
        EXPECT_EQ(pane.image(static_cast<GlassPane::Picture>(i)).cacheKey(), keys.at(i)) << i;
}

TEST(GlassPane, RimFadesToTheMiddle)
{
    GlassPane with;
    GlassPane without;
    glass::PaneLook plain = look(glass::Backdrop::opaque);
    with.setLook(plain, 32, 1);
    plain.border = false;
    without.setLook(plain, 32, 1);
    const QImage rim = painted(with, {536, 400});
    const QImage none = painted(without, {536, 400});
    const auto light = [&](int x, int y) {
        return qGreen(rim.pixel(margin + x, margin + y)) - qGreen(none.pixel(margin + x, margin + y));
    };
    EXPECT_NEAR(light(200, 0), 255 * 0.12, 5);
    EXPECT_NEAR(light(0, 100), 255 * 0.06, 4);
    EXPECT_EQ(light(0, 300), 0);
    EXPECT_EQ(light(1, 50), 0) << "one point wide";
}

TEST(GlassPane, NothingIsNoPane)
{
    GlassPane pane;
    EXPECT_TRUE(pane.pieces({100, 100}).empty()) << "no look yet";
    pane.setLook(look(glass::Backdrop::opaque), 32, 1);
    EXPECT_TRUE(pane.pieces({0, 100}).empty());
}

TEST(GlassSurface, DrawsInAWindowWhatThePanePaints)
{
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(400, 300);
    GlassSurface surface(window.contentItem());
    surface.setStrength(0.55);
    surface.setTinted(true);
    surface.setBackdrop(GlassSurface::Backdrop::Translucent);
    surface.setBottomRadius(32);
    surface.setPosition({60, 20});
    surface.setSize({100, 60});
    window.show();
    window.grabWindow();
    // Grown while it is shown, step by step, and between two pixels in the end.
    for (const double height : {20.0, 1.0, 120.0, 150.0, 0.0, 199.0}) {
        surface.setSize({100 + height, height});
        window.grabWindow();
    }
    surface.setPosition({50.4, 20});
    surface.setSize({299.8, 200});
    const QImage grabbed = window.grabWindow();

    GlassPane pane;
    pane.setLook(look(glass::Backdrop::translucent), 32, 1);
    const QImage expected = painted(pane, {300, 200}, Qt::white);
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 400; ++x) {
            const QColor there = expected.pixelColor(x - 50 + margin, y - 20 + margin);
            ASSERT_NEAR(qGreen(grabbed.pixel(x, y)), there.green(), 2) << x << ' ' << y;
        }
    }
}

} // namespace brimlight::test
