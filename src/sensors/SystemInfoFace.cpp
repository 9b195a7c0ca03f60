#include "sensors/SystemInfoFace.h"

#include "core/Formats.h"
#include "platform/HostStatistics.h"
#include "platform/MachineInfo.h"

namespace brimlight {

SystemInfoFace::SystemInfoFace(WidgetContext &context, HostStatistics &statistics, MachineInfo &info)
    : WidgetLogic(context)
    , m_statistics(statistics)
    , m_info(info)
{
    read();
}

QStringList SystemInfoFace::labels() const
{
    return {QStringLiteral("Uptime"), QStringLiteral("Linux"), QStringLiteral("Device"),
            QStringLiteral("Chip")};
}

void SystemInfoFace::read()
{
    m_values = {formats::daysHoursMinutes(static_cast<int64_t>(m_statistics.uptime())), m_info.osVersion(),
                m_info.hostName().remove(QStringLiteral(".local")), m_info.chip().value_or(QString())};
}

} // namespace brimlight
