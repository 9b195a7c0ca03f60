#include "grid/WidgetLogic.h"

namespace brimlight {

void WidgetLogic::setContext(WidgetContext *context)
{
    if (m_context)
        disconnect(m_context, nullptr, this, nullptr);
    m_context = context;
    if (m_context) {
        connect(m_context, &WidgetContext::sizeChanged, this, &WidgetLogic::changed);
        connect(m_context, &WidgetContext::optionsChanged, this, &WidgetLogic::changed);
        connect(m_context, &WidgetContext::liveChanged, this, [this] {
            if (m_context->isLive())
                appear();
            Q_EMIT changed();
        });
        connect(m_context->theme(), &ThemeStore::currentChanged, this, &WidgetLogic::changed);
        connect(m_context->ticker(), &TickCoordinator::nowChanged, this, [this] {
            if (!m_context || !m_context->isLive())
                return;
            tick();
            Q_EMIT changed();
        });
        const AppSettings *settings = m_context->settings();
        connect(settings, &AppSettings::clock24hChanged, this, &WidgetLogic::changed);
        connect(settings, &AppSettings::showSecondsChanged, this, &WidgetLogic::changed);
        connect(settings, &AppSettings::celsiusChanged, this, &WidgetLogic::changed);
    }
    Q_EMIT contextChanged();
    Q_EMIT changed();
}

QDateTime WidgetLogic::now() const
{
    return m_context ? m_context->ticker()->now() : QDateTime();
}

WidgetSize WidgetLogic::size() const
{
    return m_context ? m_context->size() : WidgetSize::small;
}

std::optional<QString> WidgetLogic::option(const QString &key) const
{
    return m_context ? m_context->option(key) : std::nullopt;
}

Theme WidgetLogic::theme() const
{
    return m_context ? m_context->theme()->current() : Theme();
}

bool WidgetLogic::isCelsius() const
{
    return !m_context || m_context->settings()->celsius();
}

} // namespace brimlight
