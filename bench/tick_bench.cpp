// One tick of the open panel with a page that is full of small tiles: until every binding has taken its
// value, and with the frame at scale 2 that shows it.

#include "app/AllWidgets.h"
#include "fakes/Fakes.h"
#include "grid/GridDrag.h"
#include "grid/GridStore.h"
#include "grid/GridViewState.h"
#include "grid/TileModel.h"
#include "grid/WidgetRegistry.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

// Static libraries: naming the registrations keeps the linker from dropping them.
void qml_register_types_Brimlight_Core();
void qml_register_types_Brimlight_Theme();
void qml_register_types_Brimlight_Grid();

namespace brimlight {
namespace {

using Registration = void (*)();
[[gnu::used]] const Registration registrations[] = {&qml_register_types_Brimlight_Core,
                                                    &qml_register_types_Brimlight_Theme,
                                                    &qml_register_types_Brimlight_Grid};

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

/// A page of the grid that is drawn into a picture, with time that moves by hand.
class Page
{
public:
    Page()
    {
        m_grid.setLayout(fullPage(m_registry));
        m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        m_motion.installOn(m_engine);
        QQmlComponent component(&m_engine,
                                QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Grid/WidgetGridView.qml")));
        m_view.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            {{QStringLiteral("catalog"), QVariant::fromValue(&m_catalog)},
             {QStringLiteral("grid"), QVariant::fromValue(&m_grid)},
             {QStringLiteral("tiles"), QVariant::fromValue(&m_tiles)},
             {QStringLiteral("drag"), QVariant::fromValue(&m_drag)},
             {QStringLiteral("viewState"), QVariant::fromValue(&m_state)},
             {QStringLiteral("theme"), QVariant::fromValue(&m_theme)},
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
        m_ticker.setActive(true);
        tick();
        frame();
    }

    void tick()
    {
        m_scheduler.advance(std::chrono::seconds(1));
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
    test::ManualScheduler m_scheduler;
    test::MemoryDefaults m_defaults;
    test::RecordingLog m_recorded;
    TraceLog m_log{m_recorded, {}};
    WidgetRegistry m_registry{allWidgets()};
    GridStore m_grid{QStringLiteral("/proc/brimlight/grid.json"), m_registry};
    ThemeStore m_theme{QStringLiteral("/proc/brimlight/theme.json"), m_defaults, m_recorded};
    AppSettings m_settings{m_defaults};
    TickCoordinator m_ticker{m_scheduler, m_log};
    WidgetEnvironment m_environment{m_registry, m_grid, m_theme, m_settings, m_ticker, {}};
    WidgetCatalog m_catalog{m_environment};
    GridViewState m_state;
    TileModel m_tiles{m_grid};
    GridDrag m_drag{m_grid, m_state};
    Motion m_motion{nullptr};
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    QImage m_image;
    std::unique_ptr<QQuickItem> m_view;
};

void tick(benchmark::State &state)
{
    Page page;
    for (auto _ : state)
        page.tick();
    state.counters["tiles"] = static_cast<double>(page.tiles());
}
void tickAndFrame(benchmark::State &state)
{
    Page page;
    for (auto _ : state) {
        page.tick();
        page.frame();
    }
    state.counters["tiles"] = static_cast<double>(page.tiles());
}
BENCHMARK(tick)->Unit(benchmark::kMillisecond);
BENCHMARK(tickAndFrame)->Unit(benchmark::kMillisecond);

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
