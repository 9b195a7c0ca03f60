#pragma once

#include <cstdint>

namespace brimlight {

class HostStatistics;

/// The volume that holds the system; all 0 when it cannot be asked.
struct DiskSnapshot
{
    /// From 0 to 1.
    double usedFraction = 0;
    int64_t freeBytes = 0;
    int64_t totalBytes = 0;

    bool operator==(const DiskSnapshot &) const = default;
};

namespace DiskReader {

DiskSnapshot read(HostStatistics &statistics);

} // namespace DiskReader

} // namespace brimlight
