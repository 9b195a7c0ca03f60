#include "theme/NotchShape.h"

#include <gtest/gtest.h>

namespace brimlight::test {

TEST(NotchShape, APanel40HighHasCornersOfRadius20)
{
    const NotchShape mask{.bottomRadius = NotchShape::maskRadius};
    EXPECT_EQ(mask.effectiveRadius({0, 0, 536, 40}), 20);
    EXPECT_EQ(mask.effectiveRadius({0, 0, 536, 358}), 32);
    EXPECT_EQ(mask.effectiveRadius({0, 0, 30, 358}), 15);
}

TEST(NotchShape, FollowsTheSevenSteps)
{
    const QPainterPath path = NotchShape{.bottomRadius = 10}.path({5, 0, 100, 50});
    // A quadratic curve counts as three elements: its cubic control points and its end.
    ASSERT_EQ(path.elementCount(), 11);
    const auto at = [&](int i) { return QPointF(path.elementAt(i)); };
    EXPECT_EQ(at(0), QPointF(5, 0));
    EXPECT_EQ(at(1), QPointF(105, 0));
    EXPECT_EQ(at(2), QPointF(105, 40));
    EXPECT_EQ(at(5), QPointF(95, 50));
    EXPECT_EQ(at(6), QPointF(15, 50));
    EXPECT_EQ(at(9), QPointF(5, 40));
    EXPECT_EQ(at(10), QPointF(5, 0));
    EXPECT_TRUE(path.contains(QPointF(5.5, 0.5))) << "the upper corners are square";
    EXPECT_FALSE(path.contains(QPointF(6, 49.5)));
}

TEST(NotchShape, InsetDrawsTheRectangleInAndAddsUp)
{
    const NotchShape shape = NotchShape{.bottomRadius = 10}.inset(2).inset(3);
    EXPECT_EQ(shape.insetAmount, 5);
    EXPECT_EQ(shape.path({0, 0, 100, 50}).boundingRect(), QRectF(5, 5, 90, 40));
}

TEST(NotchShape, AnInsetLargerThanTheRectangleHasNoRadius)
{
    EXPECT_EQ((NotchShape{.bottomRadius = 10, .insetAmount = 60}.effectiveRadius({0, 0, 100, 50})), 0);
}

} // namespace brimlight::test
