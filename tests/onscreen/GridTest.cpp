#include "OnScreenTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace brimlight::onscreen {
namespace {

using namespace Qt::StringLiterals;

/// A first-time user arranges the grid. Distances are those of the panel's own design, from its upper left
/// corner.
class Arranging : public OnEachDesktop
{
protected:
    QString storePath() const
    {
        return session.environment().value(u"XDG_DATA_HOME"_s) + u"/Brimlight/grid.json"_s;
    }
    QByteArray bytes(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QJsonObject layout() const { return QJsonDocument::fromJson(bytes(storePath())).object(); }
    qsizetype count() const { return layout().value(u"instances"_s).toArray().size(); }
    /// The instance at a cell of the first page, empty without one.
    QJsonObject at(int col, int row) const
    {
        const QJsonArray instances = layout().value(u"instances"_s).toArray();
        for (const auto &instance : instances) {
            const QJsonObject object = instance.toObject();
            if (object.value(u"col"_s).toInt() == col && object.value(u"row"_s).toInt() == row &&
                object.value(u"page"_s).toInt() == 0)
                return object;
        }
        return {};
    }
    QString sizeAt(int col, int row) const { return at(col, row).value(u"size"_s).toString(); }

    QPoint inPanel(int dx, int dy) const { return frame.topLeft() + QPoint(dx, dy); }
    /// The middle of a cell.
    QPoint cell(int col, int row) const { return inPanel(16 + col * 86 + 37, 40 + row * 86 + 37); }

    /// Does it and waits until much of `area` looks different and no longer moves.
    template<typename Action>
    bool see(const QRect &area, Action action)
    {
        // What the last action set in motion comes to rest first.
        if (!rests(area))
            return false;
        const QImage before = x.screenshot();
        action();
        return waitUntil([&] { return changed(before, area) > 0.2 && isStill(area); });
    }
    static QRect around(QPoint point) { return {point - QPoint(20, 20), QSize(40, 40)}; }

    bool addFromGallery(int card)
    {
        const QPoint where = inPanel(card == 0 ? 180 : 356, 140);
        const QRect sheet(inPanel(90, 50), inPanel(440, 250));
        if (!see(sheet, [&] { hand.clickAt(inPanel(440, 16)); }))
            return false;
        const qsizetype before = count();
        hand.clickAt(where);
        return waitUntil([&] { return count() == std::max<qsizetype>(before, 4) + 1; });
    }
    /// Opens the menu of a tile; answers its corner.
    QPoint openMenu(QPoint tile)
    {
        EXPECT_TRUE(see(QRect(tile + QPoint(10, 4), QSize(150, 70)), [&] { hand.clickAt(tile, 3); }));
        return tile;
    }

    QRect frame;
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Arranging, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(Arranging, FromTheFirstStartToTheNext)
{
    const auto open = openByTap();
    ASSERT_TRUE(open);
    frame = *open;
    // The walk-through to its end: the last button stands where the others stood.
    for (int step = 0; step < 4; ++step)
        ASSERT_TRUE(see(around(inPanel(268, 84)), [&] { hand.clickAt(inPanel(492, 270)); }));
    ASSERT_TRUE(waitUntil([&] {
        return bytes(session.configFile(u"Brimlight/defaults.json"_s))
            .contains("\"brimlight.onboardingCompleted\": true");
    }));

    // Three widgets; the first row is taken.
    ASSERT_TRUE(addFromGallery(0));
    EXPECT_EQ(sizeAt(0, 1), u"wide"_s);
    ASSERT_TRUE(addFromGallery(1));
    EXPECT_EQ(at(2, 1).value(u"kind"_s), u"analogclock"_s);
    ASSERT_TRUE(addFromGallery(0));
    EXPECT_EQ(sizeAt(3, 1), u"wide"_s);

    hand.drag(cell(2, 1), cell(5, 2));
    EXPECT_TRUE(waitUntil([&] { return at(5, 2).value(u"kind"_s) == u"analogclock"_s; }));

    // "Size", then "Banner (3x1)" in the menu beside it.
    QPoint menu = openMenu(cell(0, 1));
    ASSERT_TRUE(
        see(QRect(menu + QPoint(190, 40), QSize(90, 60)), [&] { hand.clickAt(menu + QPoint(60, 42)); }));
    hand.clickAt(menu + QPoint(232, 90));
    EXPECT_TRUE(waitUntil([&] { return sizeAt(0, 1) == u"banner"_s; }));

    // The first clock's back, and another family of type.
    menu = openMenu(cell(0, 0));
    const QPoint tile = inPanel(18, 42);
    // Where the menu does not lie and the back arrives last.
    const QRect edge(tile + QPoint(6, 85), QSize(26, 85));
    ASSERT_TRUE(see(edge, [&] { hand.clickAt(menu + QPoint(60, 17)); }));
    hand.clickAt(tile + QPoint(123, 98));
    ASSERT_TRUE(
        waitUntil([&] { return at(0, 0).value(u"settings"_s).toObject().value(u"font"_s) == u"serif"_s; }));
    ASSERT_TRUE(see(edge, [&] { hand.clickAt(tile + QPoint(139, 17)); }));

    menu = openMenu(cell(4, 0));
    hand.clickAt(menu + QPoint(60, 66));
    EXPECT_TRUE(waitUntil([&] { return at(4, 0).isEmpty(); }));
    EXPECT_EQ(count(), 6);

    // A page more, which is shown at once; back to the first.
    ASSERT_TRUE(see(around(cell(0, 0)), [&] { hand.clickAt(inPanel(123, 16)); }));
    EXPECT_TRUE(waitUntil([&] { return layout().value(u"pageCount"_s) == 2; }));
    ASSERT_TRUE(see(around(cell(0, 0)), [&] { hand.clickAt(inPanel(97, 16)); }));

    const QByteArray stored = bytes(storePath());
    hand.moveTo(away());
    ASSERT_TRUE(rests(frame));
    const QImage arranged = x.screenshot();
    panel->end();
    startPanel();
    ASSERT_TRUE(openByTap());
    hand.moveTo(away());
    // All but the hands and digits of the clocks is where it was.
    EXPECT_TRUE(waitUntil([&] { return changed(arranged, frame) < 0.03; }));
    EXPECT_EQ(bytes(storePath()), stored);
}

} // namespace
} // namespace brimlight::onscreen
