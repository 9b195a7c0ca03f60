// What the glass costs: the pane while the panel opens, and tiles.
//
// The pane and the tiles are drawn by Qt Quick's software renderer into an image, as on screen, so that the
// times hold everything between a change of size and finished pixels.

#include "theme/GlassPane.h"
#include "theme/GlassSurface.h"
#include "theme/GlassTileBackground.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

#include <memory>
#include <vector>

namespace brimlight {
namespace {

constexpr QSize surfacePoints(776, 720);

/// A window that is drawn into an image when told to.
class Stage
{
public:
    explicit Stage(double scale)
        : m_window(&m_control)
        , m_device(surfacePoints * scale, QImage::Format_ARGB32_Premultiplied)
    {
        m_device.setDevicePixelRatio(scale);
        m_window.setColor(Qt::transparent);
        m_window.setGeometry(QRect(QPoint(), surfacePoints));
        m_window.contentItem()->setSize(surfacePoints);
        QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&m_device);
        target.setDevicePixelRatio(scale);
        m_window.setRenderTarget(target);
    }

    QQuickItem *root() { return m_window.contentItem(); }

    void draw()
    {
        m_control.polishItems();
        m_control.sync();
        m_control.render();
    }

private:
    QQuickRenderControl m_control;
    QQuickWindow m_window;
    QImage m_device;
};

constexpr QSizeF closed(200, 32);
constexpr QSizeF open(536, 600);
constexpr int framesOfAnOpening = 24;

QSizeF sizeOfFrame(int frame)
{
    return closed + (open - closed) * ((frame % framesOfAnOpening + 1.0) / framesOfAnOpening);
}

void dress(GlassSurface &pane, GlassSurface::Backdrop backdrop)
{
    pane.setStrength(0.55);
    pane.setTinted(true);
    pane.setBorder(true);
    pane.setBackdrop(backdrop);
    pane.setBottomRadius(32);
}

void resize(GlassSurface &pane, QSizeF size)
{
    pane.setPosition({(surfacePoints.width() - size.width()) / 2, 0});
    pane.setSize(size);
}

/// Preparing the pane's pieces for a new size, without drawing them.
void panePieces(benchmark::State &state)
{
    GlassPane pane;
    pane.setLook({.theme = Theme::midnight(), .strength = 0.55, .tinted = true, .border = true}, 32, 2);
    int frame = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(pane.pieces((sizeOfFrame(frame++) * 2).toSize()));
}
BENCHMARK(panePieces)->Unit(benchmark::kMicrosecond);

void paneFirstPaint(benchmark::State &state)
{
    for (auto _ : state) {
        GlassPane pane;
        pane.setLook({.theme = Theme::midnight(), .strength = 0.55, .tinted = true, .border = true}, 32,
                     static_cast<double>(state.range(0)));
        benchmark::DoNotOptimize(pane.pieces((open * static_cast<double>(state.range(0))).toSize()));
    }
}
BENCHMARK(paneFirstPaint)->ArgName("scale")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void paneOpening(benchmark::State &state)
{
    Stage stage(static_cast<double>(state.range(0)));
    GlassSurface pane(stage.root());
    dress(pane, static_cast<GlassSurface::Backdrop>(state.range(1)));
    int frame = 0;
    for (auto _ : state) {
        resize(pane, sizeOfFrame(frame++));
        stage.draw();
    }
}
BENCHMARK(paneOpening)
    ->ArgNames({"scale", "backdrop"})
    ->ArgsProduct({{1, 2}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond);

/// The last frames of an opening, which are the most expensive ones.
void paneNearlyOpen(benchmark::State &state)
{
    Stage stage(static_cast<double>(state.range(0)));
    GlassSurface pane(stage.root());
    dress(pane, static_cast<GlassSurface::Backdrop>(state.range(1)));
    int frame = 0;
    for (auto _ : state) {
        resize(pane, open - QSizeF(0, frame++ % 8));
        stage.draw();
    }
}
BENCHMARK(paneNearlyOpen)
    ->ArgNames({"scale", "backdrop"})
    ->ArgsProduct({{1, 2}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond);

std::vector<std::unique_ptr<GlassTileBackground>> smallTiles(QQuickItem *parent)
{
    std::vector<std::unique_ptr<GlassTileBackground>> tiles;
    for (int i = 0; i < 48; ++i) {
        auto &tile = tiles.emplace_back(std::make_unique<GlassTileBackground>(parent));
        tile->setStrength(0.55);
        const int row = i / 6;
        tile->setPosition({16.0 + 86 * (i % 6), 40.0 + 86 * row});
        tile->setSize({70, 70});
    }
    return tiles;
}

/// Nothing is known yet: one picture is painted and shared.
void tilesCold(benchmark::State &state)
{
    Stage stage(static_cast<double>(state.range(0)));
    for (auto _ : state) {
        QPixmapCache::clear();
        const auto tiles = smallTiles(stage.root());
        stage.draw();
    }
}
BENCHMARK(tilesCold)->ArgName("scale")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

/// All 48 are drawn anew, as when the panel moves.
void tilesWarm(benchmark::State &state)
{
    Stage stage(static_cast<double>(state.range(0)));
    QQuickItem page(stage.root());
    const auto tiles = smallTiles(&page);
    int frame = 0;
    for (auto _ : state) {
        page.setY(frame++ % 8);
        stage.draw();
    }
}
BENCHMARK(tilesWarm)->ArgName("scale")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

/// One tile is painted for the first time.
void tilePaint(benchmark::State &state)
{
    const glass::TileLook look{
        .theme = Theme::midnight(), .strength = 0.55, .focused = state.range(1) != 0, .devicePixelRatio = 2};
    const int side = static_cast<int>(state.range(0)) * 2;
    for (auto _ : state)
        benchmark::DoNotOptimize(glass::paintTile(look, {side, side}));
}
BENCHMARK(tilePaint)
    ->ArgNames({"side", "focused"})
    ->ArgsProduct({{70, 156, 500}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brimlight

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
