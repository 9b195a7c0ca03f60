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

bool isTheDisk(const VolumeCapacity &root)
{
    // A desktop does not fit into less.
    constexpr int64_t smallest = 4'000'000'000;
    return !root.isReadOnly && !root.isInMemory && root.total >= smallest;
}

} // namespace

DiskSnapshot DiskReader::read(HostStatistics &statistics, const QString &home)
{
    auto capacity = statistics.volumeCapacity(QStringLiteral("/"));
    if (!capacity || !isTheDisk(*capacity)) {
        if (const auto homes = statistics.volumeCapacity(home))
            capacity = homes;
    }
    if (!capacity)
        return {};
    return {.usedFraction = usedFraction(*capacity),
            .freeBytes = capacity->available,
            .totalBytes = capacity->total};
}

} // namespace brimlight
