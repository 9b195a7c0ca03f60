#include "app/NotchAssembly.h"

#include "app/Stores.h"

namespace brimlight {

NotchAssembly::NotchAssembly(Stores &stores, OverlaySurface &surface)
    : controller({stores.platform.scheduler, stores.platform.screens, stores.platform.pointer, stores.log,
                  stores.viewModel, stores.grid, stores.ticker, stores.appSettings, stores.theme},
                 surface)
    , scene({stores.viewModel, stores.widgets, stores.loginItem, stores.updater, stores.statusMonitor,
             stores.motion},
            controller.panel())
{
}

} // namespace brimlight
