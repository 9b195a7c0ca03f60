#include "grid/WidgetLogic.h"

namespace brimlight {

WidgetLogic::WidgetLogic(WidgetContext &context)
    : m_context(context)
{
    connect(&context, &WidgetContext::sizeChanged, this, &WidgetLogic::changed);
    connect(&context, &WidgetContext::optionsChanged, this, &WidgetLogic::changed);
    connect(&context, &WidgetContext::liveChanged, this, [this] {
        if (m_context.isLive())
            appear();
        Q_EMIT changed();
    });
    connect(context.theme(), &ThemeStore::currentChanged, this, &WidgetLogic::changed);
    connect(context.ticker(), &TickCoordinator::nowChanged, this, [this] {
        if (!m_context.isLive())
            return;
        tick();
        Q_EMIT changed();
    });
    const AppSettings *settings = context.settings();
    connect(settings, &AppSettings::clock24hChanged, this, &WidgetLogic::changed);
    connect(settings, &AppSettings::showSecondsChanged, this, &WidgetLogic::changed);
    connect(settings, &AppSettings::celsiusChanged, this, &WidgetLogic::changed);
}

} // namespace brimlight
