#pragma once

#include "grid/WidgetDefinition.h"

#include <vector>

namespace brimlight {

/// Which kinds of widget exist, in the order of the gallery. Never changes.
class WidgetRegistry
{
public:
    explicit WidgetRegistry(std::vector<WidgetDefinition> definitions);

    const std::vector<WidgetDefinition> &all() const { return m_definitions; }
    /// The first definition of exactly this kind, or null. It lives as long as the registry.
    const WidgetDefinition *definition(const QString &kind) const;

private:
    std::vector<WidgetDefinition> m_definitions;
};

} // namespace brimlight
