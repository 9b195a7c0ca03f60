#pragma once

#include "grid/WidgetDefinition.h"

#include <vector>

namespace brimlight {

/// Every kind of widget that the program knows, in the order of the gallery. The one table that names them
/// all.
std::vector<WidgetDefinition> allWidgets();

} // namespace brimlight
