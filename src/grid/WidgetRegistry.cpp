#include "grid/WidgetRegistry.h"

#include <algorithm>
#include <utility>

namespace brimlight {

WidgetRegistry::WidgetRegistry(std::vector<WidgetDefinition> definitions)
    : m_definitions(std::move(definitions))
{
}

const WidgetDefinition *WidgetRegistry::definition(const QString &kind) const
{
    const auto found =
        std::find_if(m_definitions.begin(), m_definitions.end(),
                     [&](const WidgetDefinition &candidate) { return candidate.metadata.kind == kind; });
    return found == m_definitions.end() ? nullptr : &*found;
}

} // namespace brimlight
