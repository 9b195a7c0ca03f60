#include "theme/Superellipse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace brimlight::test {
namespace {

std::vector<QPointF> points(const QPainterPath &path)
{
    std::vector<QPointF> list;
    list.reserve(path.elementCount());
    for (int i = 0; i < path.elementCount(); ++i)
        list.emplace_back(path.elementAt(i));
    return list;
}

bool hasPointAt(const std::vector<QPointF> &list, QPointF wanted)
{
    return std::any_of(list.begin(), list.end(), [&](const QPointF &point) {
        return std::hypot(point.x() - wanted.x(), point.y() - wanted.y()) < 1e-9;
    });
}

} // namespace

TEST(Superellipse, IsSymmetricAcrossDownAndDiagonally)
{
    const QRectF rect(-50, -50, 100, 100);
    const auto list = points(superellipsePath(rect, 22));
    for (const QPointF &point : list) {
        EXPECT_TRUE(hasPointAt(list, {-point.x(), point.y()}));
        EXPECT_TRUE(hasPointAt(list, {point.x(), -point.y()}));
        EXPECT_TRUE(hasPointAt(list, {point.y(), point.x()}));
    }
}

TEST(Superellipse, FillsItsRectangleAndStaysInside)
{
    for (const QRectF rect : {QRectF(3, 4, 70, 70), QRectF(0, 0, 156, 70), QRectF(0, 0, 30, 300)}) {
        for (const double radius : {1.0, 22.0, 100.0})
            EXPECT_EQ(superellipsePath(rect, radius).boundingRect(), rect) << radius;
    }
}

TEST(Superellipse, WithHalfTheSideAsRadiusItIsACircle)
{
    for (const QPointF &point : points(superellipsePath({-35, -35, 70, 70}, 35)))
        EXPECT_NEAR(std::hypot(point.x(), point.y()), 35, 1e-9);
    // More than half acts as half: a capsule.
    EXPECT_EQ(superellipsePath({0, 0, 200, 40}, 90), superellipsePath({0, 0, 200, 40}, 20));
}

TEST(Superellipse, PassesTheDiagonalWhereACircleDoes)
{
    const double inset = 22 * (1 - 1 / std::numbers::sqrt2);
    for (const double side : {60.0, 70.0, 504.0})
        EXPECT_TRUE(hasPointAt(points(superellipsePath({0, 0, side, side}, 22)), {inset, inset})) << side;
}

TEST(Superellipse, ReachesHalfAsFarAgainAlongTheEdge)
{
    EXPECT_DOUBLE_EQ(superellipseExtent(300, 22), 33);
    EXPECT_DOUBLE_EQ(superellipseExtent(50, 22), 25) << "no more than half of the side";
    EXPECT_DOUBLE_EQ(superellipseExtent(10, -3), 0);
    const auto list = points(superellipsePath({0, 0, 300, 200}, 22));
    EXPECT_TRUE(hasPointAt(list, {33, 0}));
    EXPECT_TRUE(hasPointAt(list, {300, 33}));
}

TEST(Superellipse, CurvatureStartsFromNothingAndRisesToTheDiagonal)
{
    // The turn between neighbouring pieces over their length is the curvature.
    const auto list = points(superellipsePath({0, 0, 300, 300}, 22));
    const auto curvature = [&](size_t i) {
        const QPointF a = list[i] - list[i - 1];
        const QPointF b = list[i + 1] - list[i];
        const double turn = std::atan2(a.x() * b.y() - a.y() * b.x(), QPointF::dotProduct(a, b));
        return turn * 2 / (std::hypot(a.x(), a.y()) + std::hypot(b.x(), b.y()));
    };
    // The first corner's points run from the upper edge to the right one.
    EXPECT_LT(curvature(1), 0.005);
    double before = 0;
    for (size_t i = 1; i <= 20; ++i) {
        EXPECT_GT(curvature(i), before * 0.999) << i;
        before = curvature(i);
    }
    EXPECT_LT(before, 1.5 / 22) << "never much tighter than a circle would be";
}

TEST(Superellipse, WithoutARadiusItIsTheRectangle)
{
    QPainterPath rectangle;
    rectangle.addRect(0, 0, 20, 10);
    EXPECT_EQ(superellipsePath({0, 0, 20, 10}, 0), rectangle);
    EXPECT_EQ(superellipsePath({0, 0, 20, 10}, -4), rectangle);
}

} // namespace brimlight::test
