#include "grid/WidgetContext.h"

#include "grid/GridStore.h"
#include "grid/WidgetEnvironment.h"

namespace brimlight {

WidgetContext::WidgetContext(const WidgetEnvironment &environment, QObject *parent)
    : QObject(parent)
    , m_environment(environment)
{
}

void WidgetContext::setSize(WidgetSize size)
{
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT sizeChanged();
}

void WidgetContext::setLive(bool live)
{
    if (live == m_isLive)
        return;
    m_isLive = live;
    Q_EMIT liveChanged();
}

void WidgetContext::setInstance(const std::optional<WidgetInstance> &instance)
{
    const auto before = m_instance ? m_instance->settings : std::nullopt;
    m_instance = instance;
    if (m_instance)
        setSize(m_instance->size);
    if (before != (m_instance ? m_instance->settings : std::nullopt))
        Q_EMIT optionsChanged();
}

std::optional<QString> WidgetContext::option(const QString &key) const
{
    if (!m_instance || !m_instance->settings)
        return std::nullopt;
    const auto found = m_instance->settings->constFind(key);
    return found == m_instance->settings->constEnd() ? std::nullopt : std::optional(*found);
}

void WidgetContext::setOption(const QString &key, const QString &value)
{
    if (!m_instance)
        return;
    // From the layout, not from here: position and size are replaced along with the options.
    auto current = m_environment.grid.instance(m_instance->id);
    if (!current)
        return;
    if (!current->settings)
        current->settings.emplace();
    current->settings->insert(key, value);
    m_environment.grid.update(*current);
}

ThemeStore *WidgetContext::theme() const
{
    return &m_environment.theme;
}

AppSettings *WidgetContext::settings() const
{
    return &m_environment.settings;
}

TickCoordinator *WidgetContext::ticker() const
{
    return &m_environment.ticker;
}

} // namespace brimlight
