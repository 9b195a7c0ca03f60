#include "fakes/HandDriver.h"
#include "fakes/Scene.h"
#include "grid/GridDrag.h"
#include "grid/GridViewState.h"
#include "grid/TileModel.h"
#include "widgets/WidgetFixture.h"

#include <QQmlEngine>
#include <QQuickView>

namespace brimlight::test {
namespace {

WidgetDefinition note()
{
    return {.metadata = {.kind = QStringLiteral("note"),
                         .displayName = QStringLiteral("Note"),
                         .symbol = QStringLiteral("timer"),
                         .allowedSizes = {WidgetSize::wide},
                         .defaultSize = WidgetSize::wide},
            .view = QUrl::fromLocalFile(QStringLiteral(BRIMLIGHT_TESTS "/grid/TextTile.qml"))};
}

/// A tile with a text field.
class TileText : public WidgetTest
{
protected:
    TileText()
        : WidgetTest({note()})
    {
        grid.setLayout(
            {.instances = {{.kind = QStringLiteral("note"), .size = WidgetSize::wide, .col = 0, .row = 0}}});
        motion.installOn(*view.engine());
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        view.setInitialProperties({{QStringLiteral("catalog"), QVariant::fromValue(&catalog)},
                                   {QStringLiteral("grid"), QVariant::fromValue(&grid)},
                                   {QStringLiteral("tiles"), QVariant::fromValue(&tiles)},
                                   {QStringLiteral("drag"), QVariant::fromValue(&drag)},
                                   {QStringLiteral("viewState"), QVariant::fromValue(&state)},
                                   {QStringLiteral("theme"), QVariant::fromValue(&theme)},
                                   {QStringLiteral("page"), 0},
                                   {QStringLiteral("open"), true}});
        view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Grid/WidgetGridView.qml")));
        view.show();
        view.requestActivate();
        time.advanceBy(std::chrono::milliseconds(0));
        time.advanceBy(std::chrono::seconds(5));
    }
    /// As a person does: step by step.
    void dragFrom(const QPoint &start, const QPoint &by)
    {
        QTest::mousePress(&view, Qt::LeftButton, {}, start);
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(&view, start + by * step / 10);
        dragged = drag.isActive();
        QTest::mouseRelease(&view, Qt::LeftButton, {}, start + by);
    }

    HandDriver time;
    FakeAppearance appearance;
    Motion motion{&appearance};
    GridViewState state;
    TileModel tiles{grid};
    GridDrag drag{grid, state};
    WidgetCatalog catalog{environment};
    QQuickView view;
    Scene scene{view};
    bool dragged = false;
};

} // namespace

TEST_F(TileText, ADragOverATextSelectsAndLeavesTheTileWhereItIs)
{
    const QQuickItem *text = scene.withRole(QAccessible::EditableText).value(0);
    ASSERT_TRUE(text);
    dragFrom((Scene::frameOf(*text).topLeft() + QPointF(1, 8)).toPoint(), QPoint(90, 0));
    EXPECT_FALSE(dragged);
    EXPECT_EQ(text->property("selectedText").toString(), QStringLiteral("some milk"));
}

TEST_F(TileText, ADragBesideTheTextTakesTheTile)
{
    const QQuickItem *tile = scene.ofType("WidgetTile").value(0);
    ASSERT_TRUE(tile);
    dragFrom((Scene::frameOf(*tile).bottomLeft() + QPointF(20, -8)).toPoint(), QPoint(90, 0));
    EXPECT_TRUE(dragged);
}

} // namespace brimlight::test
