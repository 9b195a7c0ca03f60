#pragma once

#include <QString>

#include <cstdint>

namespace brimlight {

class HostStatistics;

/// The volume that fills up as the user works; all 0 when it cannot be asked.
struct DiskSnapshot
{
    /// From 0 to 1.
    double usedFraction = 0;
    int64_t freeBytes = 0;
    int64_t totalBytes = 0;

    bool operator==(const DiskSnapshot &) const = default;
};

namespace DiskReader {

/// The volume of the system, or that of the user's `home` where the system's is read-only, in memory or too
/// small to be anybody's disk.
DiskSnapshot read(HostStatistics &statistics, const QString &home);

} // namespace DiskReader

} // namespace brimlight
