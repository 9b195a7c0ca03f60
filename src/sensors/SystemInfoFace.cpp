#include "sensors/SystemInfoFace.h"

#include "platform/HostStatistics.h"
#include "platform/MachineInfo.h"

namespace brimlight {

QString uptimeString(int64_t seconds)
{
    constexpr int64_t minute = 60;
    constexpr int64_t hour = 60 * minute;
    constexpr int64_t day = 24 * hour;
    if (seconds >= day)
        return QStringLiteral("%1d %2h").arg(seconds / day).arg(seconds % day / hour);
    if (seconds >= hour)
        return QStringLiteral("%1h %2m").arg(seconds / hour).arg(seconds % hour / minute);
    return QStringLiteral("%1m").arg(seconds / minute);
}

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
    m_values = {uptimeString(static_cast<int64_t>(m_statistics.uptime())), m_info.osVersion(),
                m_info.hostName().remove(QStringLiteral(".local")), m_info.chip().value_or(QString())};
}

} // namespace brimlight
