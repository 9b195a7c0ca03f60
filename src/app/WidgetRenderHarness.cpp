#include "app/WidgetRenderHarness.h"

#include "app/Stores.h"
#include "app/WidgetRenderer.h"
#include "platform/linux/LinuxPlatform.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>

#include <algorithm>
#include <array>
#include <cstdio>

namespace brimlight::WidgetRenderHarness {
namespace {

/// The error that ended the run, or the number of files.
struct Outcome
{
    int files = 0;
    std::optional<QString> error;
};

/// Figures come from other threads. A source that hangs is drawn as unknown.
void waitForFigures(Stores &stores)
{
    using namespace std::chrono_literals;
    const std::array<AnySampler *, 6> samplers{&stores.systemSampler,       &stores.networkSampler,
                                               &stores.diskSampler,         &stores.powerSampler,
                                               &stores.thermalStateSampler, &stores.machineSampler};
    stores.historySampling.setPanelOpen(true);
    stores.temperature.refresh();
    for (AnySampler *sampler : samplers)
        sampler->ask();
    const QDeadlineTimer deadline(2s);
    const auto isAsking = [&] {
        return stores.temperature.isAsking() || std::ranges::any_of(samplers, &AnySampler::isAsking);
    };
    while (isAsking() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

Outcome renderAll(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return {.error = QStringLiteral("cannot create %1").arg(folder)};
    LinuxPlatform platform;
    const Platform ports = platform.ports();
    const TraceLog log(ports.log, {});
    Stores stores(ports, log);
    waitForFigures(stores);
    WidgetCatalog catalog(stores.widgets);
    WidgetRenderer renderer(catalog, stores.theme);

    Outcome outcome;
    for (const WidgetDefinition &definition : stores.registry.all()) {
        for (const WidgetSize size : definition.metadata.allowedSizes) {
            const QString name = QStringLiteral("%1_%2.png").arg(definition.metadata.kind, rawValue(size));
            const QImage image = renderer.render(definition.metadata.kind, size);
            if (image.isNull())
                return {.error = QStringLiteral("no image for %1").arg(name)};
            QImageWriter writer(QDir(folder).filePath(name), "png");
            // The files are looked at, not kept: speed counts more than size.
            writer.setCompression(10);
            if (!writer.write(image))
                return {.error = QStringLiteral("no PNG data for %1").arg(name)};
            ++outcome.files;
        }
    }
    return outcome;
}

} // namespace

std::optional<QString> requestedFolder(const QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(QStringLiteral("--render-widgets"));
    if (at < 0)
        return std::nullopt;
    if (at + 1 < arguments.size())
        return arguments.at(at + 1);
    return QDir::tempPath() + QStringLiteral("/brimlight-widget-renders");
}

std::optional<int> runIfRequested(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const auto folder = requestedFolder(arguments);
    if (!folder)
        return std::nullopt;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    const Outcome outcome = renderAll(*folder);
    if (outcome.error) {
        std::fprintf(stderr, "RENDER_FAIL %s\n", qPrintable(*outcome.error));
        return 1;
    }
    std::printf("rendered %d tiles\nRENDER_OK %s\n", outcome.files, qPrintable(*folder));
    return 0;
}

} // namespace brimlight::WidgetRenderHarness
