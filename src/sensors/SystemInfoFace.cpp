#include "sensors/SystemInfoFace.h"

#include "core/Formats.h"

namespace brimlight {

SystemInfoFace::SystemInfoFace(WidgetContext &context, MachineSampler &facts)
    : WidgetLogic(context)
    , m_facts(facts, [this](const MachineFacts &answer) { take(answer); })
{
    m_facts.takeLatest();
}

QStringList SystemInfoFace::labels() const
{
    return {QStringLiteral("Uptime"), QStringLiteral("Linux"), QStringLiteral("Device"),
            QStringLiteral("Chip")};
}

void SystemInfoFace::take(const MachineFacts &facts)
{
    m_values = {formats::daysHoursMinutes(static_cast<int64_t>(facts.uptime)), facts.osVersion,
                QString(facts.hostName).remove(QStringLiteral(".local")), facts.chip};
    Q_EMIT changed();
}

} // namespace brimlight
