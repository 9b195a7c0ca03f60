#include "sensors/DiskReader.h"

#include "platform/HostStatistics.h"

#include <algorithm>

namespace brimlight {
namespace {

double usedFraction(const VolumeCapacity &capacity)
{
    if (capacity.total < 1)
        return 0;
    const auto total = static_cast<double>(capacity.total);
    return std::clamp((total - static_cast<double>(capacity.available)) / total, 0.0, 1.0);
}

} // namespace

DiskSnapshot DiskReader::read(HostStatistics &statistics)
{
    const auto capacity = statistics.volumeCapacity(QStringLiteral("/"));
    if (!capacity)
        return {};
    return {.usedFraction = usedFraction(*capacity),
            .freeBytes = capacity->available,
            .totalBytes = capacity->total};
}

} // namespace brimlight
