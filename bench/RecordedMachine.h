#pragma once

#include "app/Stores.h"
#include "fakes/FakePlatform.h"
#include "fixtures/machines.h"
#include "grid/WidgetCatalog.h"
#include "platform/linux/kernel/HwmonSmc.h"
#include "platform/linux/kernel/LinuxHostStatistics.h"
#include "platform/linux/kernel/LinuxMachineInfo.h"
#include "platform/linux/kernel/SysfsPowerSources.h"
#include "platform/linux/kernel/ThermalZones.h"

#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

namespace brimlight::bench {

/// How a machine fares: what it is recorded as, and what differs from the recording.
struct Fare
{
    test::MachineKind kind = test::MachineKind::laptopIntel;
    /// 0 to 1, at the end of each period.
    double load = 0.3;
    double memory = 0.5;
    /// Kibibytes.
    uint64_t memoryTotal = 16'184'328;
    /// Bytes per second at the most.
    double down = 5e6;
    double up = 4e5;
    VolumeCapacity volume{.total = 512'000'000'000, .available = 240'000'000'000};
    double uptime = 20'000;
    std::vector<std::pair<QString, QByteArray>> files;
};

/// A recorded machine at work, read by the real backends, with what widgets find around them. Its time moves
/// by hand; all counters go through the same curves in each period.
class RecordedMachine
{
public:
    /// In seconds; half of what the usage graph shows.
    static constexpr int period = 60;

    explicit RecordedMachine(const Fare &fare)
        : m_fare(fare)
        , m_machine(fare.kind)
    {
        for (const auto &[path, content] : fare.files)
            m_machine.write(path, content);
        m_statistics.volume = fare.volume;
        m_statistics.seconds = fare.uptime;
        writeCounters();
        stores.historySampling.setPanelOpen(true);
        stores.ticker.setActive(true);
    }

    /// The counters move, then the clock ticks.
    void second()
    {
        ++m_second;
        m_statistics.seconds += 1;
        m_busy += static_cast<uint64_t>(1000 * load());
        m_received += static_cast<uint64_t>(m_fare.down * traffic(0.9));
        m_sent += static_cast<uint64_t>(m_fare.up * traffic(2.3));
        writeCounters();
        m_fakes.scheduler.advance(std::chrono::seconds(1));
    }

private:
    /// What no file of the recording tells.
    class Statistics : public LinuxHostStatistics
    {
    public:
        using LinuxHostStatistics::LinuxHostStatistics;
        std::optional<QList<InterfaceCounters>> interfaces() override { return links; }
        std::optional<VolumeCapacity> volumeCapacity(const QString &) override { return volume; }
        double uptime() override { return seconds; }

        QList<InterfaceCounters> links;
        VolumeCapacity volume;
        double seconds = 0;
    };

    /// A wave of that many turns in a period; 0 at its end.
    double wave(double turns) const { return std::sin(2 * std::numbers::pi * turns * m_second / period); }
    double load() const
    {
        return std::clamp(m_fare.load + 0.16 * wave(2) + 0.09 * wave(5) + 0.05 * wave(13), 0.02, 1.0);
    }
    double memory() const { return std::clamp(m_fare.memory + 0.05 * wave(1) + 0.015 * wave(4), 0.02, 1.0); }
    /// 0 to 1, in bursts.
    double traffic(double phase) const
    {
        return std::pow(0.5 + 0.3 * std::sin(phase + std::asin(wave(3))) + 0.2 * wave(8), 2);
    }

    void writeCounters()
    {
        const uint64_t idle = static_cast<uint64_t>(1000 * m_second) - m_busy;
        m_machine.write(QStringLiteral("proc/stat"),
                        "cpu  " + QByteArray::number(100'000 + qulonglong(m_busy)) + " 0 0 " +
                            QByteArray::number(900'000 + qulonglong(idle)) + " 0 0 0 0 0 0\n");
        m_machine.write(
            QStringLiteral("proc/meminfo"),
            "MemTotal: " + QByteArray::number(qulonglong(m_fare.memoryTotal)) + " kB\nMemAvailable: " +
                QByteArray::number(qulonglong(double(m_fare.memoryTotal) * (1 - memory()))) + " kB\n");
        m_statistics.links = {{.name = QStringLiteral("wlan0"), .received = m_received, .sent = m_sent}};
    }

    Fare m_fare;
    test::Machine m_machine;
    int m_second = 0;
    uint64_t m_busy = 0;
    uint64_t m_received = 0;
    uint64_t m_sent = 0;
    Statistics m_statistics{m_machine.proc(), m_machine.sys()};
    SysfsPowerSources m_power{m_machine.sys()};
    LinuxMachineInfo m_info{m_machine.proc(), m_machine.sys()};
    HwmonSmc m_smc{m_machine.sys()};
    ThermalZones m_zones{m_machine.sys()};
    test::FakePlatform m_fakes;

public:
    Stores stores{{m_fakes.scheduler,
                   m_fakes.defaults,
                   m_fakes.files,
                   m_fakes.folders,
                   m_fakes.recorded,
                   m_fakes.screens,
                   m_fakes.pointer,
                   m_fakes.unixSignals,
                   m_fakes.appearance,
                   m_statistics,
                   m_power,
                   m_info,
                   m_smc,
                   m_zones,
                   m_fakes.loginItem,
                   m_fakes.statusItem,
                   m_fakes.audio,
                   m_fakes.brightness,
                   m_fakes.doNotDisturb,
                   m_fakes.scripts,
                   m_fakes.powerAssertions,
                   m_fakes.sounds},
                  m_fakes.log};
    WidgetCatalog catalog{stores.widgets};
};

} // namespace brimlight::bench
