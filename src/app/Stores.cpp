#include "app/Stores.h"

#include "app/AllWidgets.h"

#include <QDir>

namespace brimlight {
namespace {

/// A file of the program's own.
SavedFile document(const Platform &ports, const QString &name)
{
    return {AppPaths(ports.folders).appSupportFile(name), ports.files};
}

} // namespace

Stores::Stores(const Platform &ports, const TraceLog &trace)
    : platform(ports)
    , log(trace)
    , registry(allWidgets(*this))
    , motion(&ports.appearance)
    , viewModel(ports.defaults)
    , theme(document(ports, QStringLiteral("theme.json")), ports.defaults, ports.log)
    , grid(document(ports, QStringLiteral("grid.json")), registry)
    , ticker(ports.scheduler, trace)
    , systemSampler(ports.statistics, ports.scheduler)
    , networkSampler(ports.statistics, ports.scheduler)
    , diskSampler(ports.statistics, QDir::homePath(), ports.scheduler)
    , powerSampler(ports.power, ports.scheduler)
    , thermalStateSampler(ports.statistics, ports.scheduler)
    , machineSampler(ports.machine, ports.statistics, ports.scheduler)
    , systemHistory(systemSampler, ports.scheduler)
    , temperature(
          {ports.smc, ports.thermal, ports.machine, powerSampler, ports.defaults, ports.log, ports.scheduler})
    , loginItem(ports.loginItem, ports.log)
    , appSettings(ports.defaults)
    , updater(ports.defaults)
    , volumeMonitor(ports.audio, ports.scheduler)
    , brightnessMonitor(ports.brightness, ports.scheduler)
    , statusMonitor(ports.audio, ports.doNotDisturb, ports.scheduler)
    , hud(viewModel, volumeMonitor, brightnessMonitor, ports.scheduler)
    , historySampling(grid, systemHistory, ports.scheduler)
    , widgets{registry, grid, theme, appSettings, ticker}
{
    volumeMonitor.setupListener();
    subscribe();
}

void Stores::subscribe()
{
    QObject::connect(&viewModel, &NotchViewModel::isExpandedChanged, &historySampling,
                     [this] { historySampling.setPanelOpen(viewModel.isExpanded()); });
    // The user may have changed it elsewhere.
    QObject::connect(&viewModel, &NotchViewModel::showSettingsChanged, &loginItem, [this] {
        if (viewModel.showSettings())
            loginItem.refresh();
    });
}

} // namespace brimlight
