#include "platform/linux/kernel/LinuxHostStatistics.h"

#include "platform/linux/kernel/SmallFile.h"
#include "platform/linux/kernel/ThermalZone.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <array>
#include <ctime>

#include <linux/magic.h>
#include <sys/statvfs.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace brimlight {
namespace {

std::optional<VolumeCapacity> capacityOf(const QString &path)
{
    struct statfs volume = {};
    if (::statfs(QFile::encodeName(path).constData(), &volume) != 0)
        return std::nullopt;
    const uint64_t unit = volume.f_frsize;
    // Not f_bfree: the rest is root's.
    return VolumeCapacity{.total = static_cast<int64_t>(volume.f_blocks * unit),
                          .available = static_cast<int64_t>(volume.f_bavail * unit),
                          .isReadOnly = (volume.f_flags & ST_RDONLY) != 0,
                          .isInMemory = volume.f_type == TMPFS_MAGIC || volume.f_type == RAMFS_MAGIC};
}

} // namespace

std::optional<CpuTicks> parseCpuTicks(const QByteArray &stat)
{
    // Old kernels leave out the last ones. Those after them are the guests', which are in user and nice.
    enum Column { user, nice, system, idle, iowait, irq, softirq, steal, count };
    const QList<QByteArray> words = stat.split('\n').first().simplified().split(' ');
    if (words.first() != "cpu" || words.size() <= 1 + idle)
        return std::nullopt;
    std::array<uint64_t, count> ticks{};
    for (qsizetype i = 0; i < std::min<qsizetype>(count, words.size() - 1); ++i) {
        bool ok = false;
        ticks.at(i) = words.at(i + 1).toULongLong(&ok);
        if (!ok)
            return std::nullopt;
    }
    return CpuTicks{.user = static_cast<uint32_t>(ticks[user]),
                    .system =
                        static_cast<uint32_t>(ticks[system] + ticks[irq] + ticks[softirq] + ticks[steal]),
                    .idle = static_cast<uint32_t>(ticks[idle] + ticks[iowait]),
                    .nice = static_cast<uint32_t>(ticks[nice])};
}

std::optional<MemoryInfo> parseMemoryInfo(const QByteArray &meminfo)
{
    QHash<QByteArray, uint64_t> bytes;
    for (const QByteArray &line : meminfo.split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        bool ok = false;
        const uint64_t kibibytes = words.value(1).toULongLong(&ok);
        if (ok)
            bytes.insert(words.first(), kibibytes * 1024);
    }
    if (!bytes.contains("MemTotal:") || !bytes.contains("MemAvailable:"))
        return std::nullopt;
    return MemoryInfo{.total = bytes.value("MemTotal:"),
                      .available = bytes.value("MemAvailable:"),
                      .anonymous = bytes.value("AnonPages:") + bytes.value("Shmem:"),
                      .compressed = bytes.value("Zswap:")};
}

MemoryPages pagesInUse(const MemoryInfo &info, uint64_t pageSize)
{
    uint64_t rest = (info.total - std::min(info.available, info.total)) / pageSize;
    const auto take = [&](uint64_t bytes) {
        const uint64_t pages = std::min(bytes / pageSize, rest);
        rest -= pages;
        return pages;
    };
    MemoryPages pages{.pageSize = pageSize};
    pages.active = take(info.anonymous);
    pages.compressor = take(info.compressed);
    // The kernel's own, locked pages, and what drivers hold without any counter telling.
    pages.wired = rest;
    return pages;
}

std::optional<QList<InterfaceCounters>> parseInterfaces(const QByteArray &table)
{
    enum Column { received, sent = 8, fewest };
    QList<QByteArray> lines = table.split('\n');
    // Two lines of headings, cut up by bars.
    if (lines.size() < 2 || !lines.at(1).contains("|bytes"))
        return std::nullopt;
    lines.remove(0, 2);
    QList<InterfaceCounters> interfaces;
    for (const QByteArray &line : std::as_const(lines)) {
        const qsizetype colon = line.indexOf(':');
        // A wide number leaves no blank behind the colon.
        const QList<QByteArray> words = line.sliced(colon + 1).simplified().split(' ');
        if (colon < 0 || words.size() < fewest)
            continue;
        bool isReceived = false;
        bool isSent = false;
        const InterfaceCounters counters{.name = QString::fromLocal8Bit(line.first(colon).trimmed()),
                                         .received = words.at(received).toULongLong(&isReceived),
                                         .sent = words.at(sent).toULongLong(&isSent)};
        if (isReceived && isSent)
            interfaces.append(counters);
    }
    return interfaces;
}

LinuxHostStatistics::LinuxHostStatistics(const QString &proc, const QString &sys)
    : m_proc(proc)
    , m_thermal(sys + QStringLiteral("/class/thermal"))
{
}

std::optional<CpuTicks> LinuxHostStatistics::cpuTicks()
{
    constexpr qsizetype firstLine = 1024;
    const auto stat = smallFile(m_proc + QStringLiteral("/stat"), firstLine);
    return stat ? parseCpuTicks(*stat) : std::nullopt;
}

std::optional<MemoryPages> LinuxHostStatistics::memoryPages()
{
    const auto info = memoryInfo();
    return info ? std::optional(pagesInUse(*info, static_cast<uint64_t>(::sysconf(_SC_PAGESIZE))))
                : std::nullopt;
}

uint64_t LinuxHostStatistics::physicalMemory()
{
    return memoryInfo().value_or(MemoryInfo{}).total;
}

std::optional<MemoryInfo> LinuxHostStatistics::memoryInfo() const
{
    const auto meminfo = smallFile(m_proc + QStringLiteral("/meminfo"));
    return meminfo ? parseMemoryInfo(*meminfo) : std::nullopt;
}

std::optional<QList<InterfaceCounters>> LinuxHostStatistics::interfaces()
{
    const auto table = smallFile(m_proc + QStringLiteral("/net/dev"));
    return table ? parseInterfaces(*table) : std::nullopt;
}

std::optional<VolumeCapacity> LinuxHostStatistics::volumeCapacity(const QString &path)
{
    return capacityOf(path);
}

double LinuxHostStatistics::uptime()
{
    // The file before the clock: in a container the two may differ, and the file is what other programs show.
    const QByteArray file = smallFile(m_proc + QStringLiteral("/uptime")).value_or(QByteArray());
    bool ok = false;
    const double seconds = file.left(file.indexOf(' ')).toDouble(&ok);
    if (ok)
        return seconds;
    timespec now = {};
    ::clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

ThermalState LinuxHostStatistics::thermalState()
{
    return std::max(worst(QStringLiteral("thermal_zone*"), &thermalZoneState),
                    worst(QStringLiteral("cooling_device*"), &coolingDeviceState));
}

ThermalState LinuxHostStatistics::worst(const QString &folders,
                                        ThermalState (*read)(const QString &folder)) const
{
    ThermalState worst = ThermalState::nominal;
    const QStringList names = QDir(m_thermal).entryList({folders}, QDir::Dirs);
    for (const QString &name : names)
        worst = std::max(worst, read(m_thermal + u'/' + name));
    return worst;
}

} // namespace brimlight
