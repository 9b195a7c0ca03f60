// One tick of the open panel, until every binding has taken its value, and with the frame at scale 2 that
// shows it: with a page that is full of small tiles, and with the eight widgets of a machine at work.

#include "RecordedMachine.h"
#include "grid/GridDrag.h"
#include "grid/GridViewState.h"
#include "grid/TileModel.h"
#include "theme/Motion.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

namespace brimlight {
namespace {

constexpr int scale = 2;

/// Every kind that has a small tile and a view, in turn, until the page is full.
GridLayout fullPage(const WidgetRegistry &registry)
{
    QStringList kinds;
    for (const WidgetDefinition &definition : registry.all()) {
        if (definition.metadata.allowedSizes.contains(WidgetSize::small) && !definition.view.isEmpty())
            kinds.append(definition.metadata.kind);
    }
    GridLayout layout;
    for (int n = 0; n < gridColumns * gridRows; ++n)
        layout.instances.append(
            {.kind = kinds.at(n % kinds.size()), .col = n % gridColumns, .row = n / gridColumns});
    return layout;
}

/// The widgets of the machine, each at its largest that leaves room for the others.
GridLayout machinePage(const WidgetRegistry &)
{
    return {.instances = {
                {.kind = QStringLiteral("usagegraph"), .size = WidgetSize::huge, .col = 0, .row = 0},
                {.kind = QStringLiteral("sysinfo"), .size = WidgetSize::huge, .col = 3, .row = 0},
                {.kind = QStringLiteral("battery"), .size = WidgetSize::large, .col = 0, .row = 3},
                {.kind = QStringLiteral("batteryhealth"), .size = WidgetSize::large, .col = 2, .row = 3},
                {.kind = QStringLiteral("disk"), .size = WidgetSize::large, .col = 4, .row = 3},
                {.kind = QStringLiteral("network"), .size = WidgetSize::large, .col = 0, .row = 5},
                {.kind = QStringLiteral("system"), .size = WidgetSize::large, .col = 2, .row = 5},
                {.kind = QStringLiteral("temperature"), .size = WidgetSize::wide, .col = 4, .row = 5}}};
}

/// A page of the grid that is drawn into a picture, with time that moves by hand.
class Page
{
public:
    using Layout = GridLayout (*)(const WidgetRegistry &);

    explicit Page(Layout layout)
    {
        m_machine.stores.grid.setLayout(layout(m_machine.stores.registry));
        m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        m_motion.installOn(m_engine);
        QQmlComponent component(&m_engine,
                                QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Grid/WidgetGridView.qml")));
        m_view.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            {{QStringLiteral("catalog"), QVariant::fromValue(&m_machine.catalog)},
             {QStringLiteral("grid"), QVariant::fromValue(&m_machine.stores.grid)},
             {QStringLiteral("tiles"), QVariant::fromValue(&m_tiles)},
             {QStringLiteral("drag"), QVariant::fromValue(&m_drag)},
             {QStringLiteral("viewState"), QVariant::fromValue(&m_state)},
             {QStringLiteral("theme"), QVariant::fromValue(&m_machine.stores.theme)},
             {QStringLiteral("page"), 0},
             {QStringLiteral("open"), true}})));
        if (!m_view)
            qFatal("%s", qPrintable(component.errorString()));
        m_view->setParentItem(m_window.contentItem());
        const QSize size(static_cast<int>(m_view->implicitWidth()),
                         static_cast<int>(m_view->implicitHeight()));
        m_window.setGeometry(QRect(QPoint(), size));
        m_window.contentItem()->setSize(size);
        m_image = QImage(size * scale, QImage::Format_ARGB32_Premultiplied);
        m_image.setDevicePixelRatio(scale);
        QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&m_image);
        target.setDevicePixelRatio(scale);
        m_window.setRenderTarget(target);
        tick();
        frame();
    }

    void tick()
    {
        m_machine.second();
        QCoreApplication::sendPostedEvents();
    }
    void frame()
    {
        m_control.polishItems();
        m_control.beginFrame();
        m_control.sync();
        m_control.render();
        m_control.endFrame();
    }
    qsizetype tiles() const { return m_tiles.rowCount(); }

private:
    bench::RecordedMachine m_machine{{}};
    GridViewState m_state;
    TileModel m_tiles{m_machine.stores.grid};
    GridDrag m_drag{m_machine.stores.grid, m_state};
    Motion m_motion{nullptr};
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    QImage m_image;
    std::unique_ptr<QQuickItem> m_view;
};

void tick(benchmark::State &state, Page::Layout layout)
{
    Page page(layout);
    for (auto _ : state)
        page.tick();
    state.counters["tiles"] = static_cast<double>(page.tiles());
}
void tickAndFrame(benchmark::State &state, Page::Layout layout)
{
    Page page(layout);
    for (auto _ : state) {
        page.tick();
        page.frame();
    }
    state.counters["tiles"] = static_cast<double>(page.tiles());
}
/// What the other two cost without any tile: to be taken off.
void second(benchmark::State &state)
{
    bench::RecordedMachine machine({});
    for (auto _ : state)
        machine.second();
}
BENCHMARK_CAPTURE(tick, full, fullPage)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tickAndFrame, full, fullPage)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tick, machine, machinePage)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tickAndFrame, machine, machinePage)->Unit(benchmark::kMillisecond);
BENCHMARK(second)->Unit(benchmark::kMillisecond);

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
