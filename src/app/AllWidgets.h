#pragma once

#include "grid/WidgetDefinition.h"

#include <vector>

namespace brimlight {

class Stores;

/// All 45 kinds of widget, in the order of the gallery. They borrow the stores, which need not exist yet.
std::vector<WidgetDefinition> allWidgets(Stores &stores);

} // namespace brimlight
