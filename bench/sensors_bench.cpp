// What the temperature sensors cost the main thread: once a start, and once a tick while temperatures are
// shown.
//
// Files are those of a temporary folder; a driver of the kernel takes some microseconds more each.

#include "fakes/Fakes.h"
#include "fakes/SensorFakes.h"
#include "fixtures/machines.h"
#include "platform/linux/kernel/HwmonSmc.h"
#include "sensors/SMCBridge.h"

#include <benchmark/benchmark.h>

namespace brimlight {
namespace {

/// All that a bridge needs besides its controller.
struct Surroundings
{
    std::unique_ptr<SMCBridge> open(SmcTransport &smc)
    {
        return SMCBridge::open(smc, machine, power, defaults, log, scheduler);
    }

    test::FakeMachine machine;
    test::FakePowerSources power;
    test::MemoryDefaults defaults;
    test::RecordingLog log;
    test::ManualScheduler scheduler;
};

/// Gives the machine so many processor sensors on one chip.
void addSensors(const test::Machine &machine, int count)
{
    const QString chip = machine.hwmon(QStringLiteral("coretemp"));
    for (int i = 1; i <= count; ++i) {
        machine.write(QStringLiteral("%1/temp%2_input").arg(chip).arg(i),
                      QByteArray::number(40000 + i * 100));
        machine.write(QStringLiteral("%1/temp%2_label").arg(chip).arg(i), "Core " + QByteArray::number(i));
    }
}

/// Every tenth key is a processor's.
void discoverKeys(benchmark::State &state)
{
    test::FakeSmc smc;
    for (int i = 0; i < state.range(0); ++i) {
        const QByteArray number = QByteArray::number(i, 36).rightJustified(3, '0');
        smc.add(((i % 10 == 0 ? "TC" + number.last(2) : "X" + number)).constData(), 45);
    }
    Surroundings around;
    for (auto _ : state) {
        benchmark::DoNotOptimize(around.open(smc));
        smc.requests.clear();
        around.log.entries.clear();
    }
}
BENCHMARK(discoverKeys)->Arg(3000)->Unit(benchmark::kMillisecond);

void discoverHwmon(benchmark::State &state)
{
    const test::Machine machine(test::MachineKind::laptopIntel);
    addSensors(machine, static_cast<int>(state.range(0)));
    BoundedRead reader;
    HwmonSmc smc(reader, machine.sys());
    Surroundings around;
    for (auto _ : state)
        benchmark::DoNotOptimize(around.open(smc));
}
BENCHMARK(discoverHwmon)->Arg(5)->Arg(40)->UseRealTime()->Unit(benchmark::kMicrosecond);

void steadyReading(benchmark::State &state)
{
    const test::Machine machine(test::MachineKind::laptopIntel);
    addSensors(machine, static_cast<int>(state.range(0)));
    BoundedRead reader;
    HwmonSmc smc(reader, machine.sys());
    Surroundings around;
    const auto bridge = around.open(smc);
    for (auto _ : state)
        benchmark::DoNotOptimize(bridge->readTemperatureReading());
}
BENCHMARK(steadyReading)->Arg(5)->Arg(40)->UseRealTime()->Unit(benchmark::kMicrosecond);

void readFile(benchmark::State &state)
{
    const test::Machine machine(test::MachineKind::boardArm);
    const QString path = machine.path(QStringLiteral("sys/class/thermal/thermal_zone0/temp"));
    for (auto _ : state)
        benchmark::DoNotOptimize(smallFile(path));
}
BENCHMARK(readFile)->UseRealTime()->Unit(benchmark::kMicrosecond);

/// What the hand-over to the worker adds.
void readFileBounded(benchmark::State &state)
{
    const test::Machine machine(test::MachineKind::boardArm);
    const QString path = machine.path(QStringLiteral("sys/class/thermal/thermal_zone0/temp"));
    BoundedRead reader;
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.file(path));
}
BENCHMARK(readFileBounded)->UseRealTime()->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace brimlight
