// What the temperature sensors cost the thread that reads them, once a start and once a tick while
// temperatures are shown, and what a question costs the main thread.
//
// Files are those of a temporary folder; a driver of the kernel takes some microseconds more each.

#include "fakes/Fakes.h"
#include "fakes/SensorFakes.h"
#include "fixtures/machines.h"
#include "platform/linux/kernel/HwmonSmc.h"
#include "platform/linux/kernel/SmallFile.h"
#include "platform/linux/process/QtScheduler.h"
#include "sensors/SMCSensors.h"
#include "sensors/Sampler.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

namespace brimlight {
namespace {

/// Gives the machine so many processor sensors on one chip, and none for all of it.
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
    test::FakeMachine machine;
    for (auto _ : state) {
        benchmark::DoNotOptimize(SMCSensors::open(smc, machine));
        smc.requests.clear();
    }
}
BENCHMARK(discoverKeys)->Arg(3000)->Unit(benchmark::kMillisecond);

void discoverHwmon(benchmark::State &state)
{
    const test::Machine machine(test::MachineKind::laptopIntel);
    addSensors(machine, static_cast<int>(state.range(0)));
    HwmonSmc smc(machine.sys());
    test::FakeMachine info;
    for (auto _ : state)
        benchmark::DoNotOptimize(SMCSensors::open(smc, info));
}
BENCHMARK(discoverHwmon)->Arg(5)->Arg(40)->UseRealTime()->Unit(benchmark::kMicrosecond);

void steadyReading(benchmark::State &state)
{
    const test::Machine machine(test::MachineKind::laptopIntel);
    addSensors(machine, static_cast<int>(state.range(0)));
    HwmonSmc smc(machine.sys());
    test::FakeMachine info;
    const auto sensors = SMCSensors::open(smc, info);
    for (auto _ : state)
        benchmark::DoNotOptimize(sensors->read({}));
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

/// From the question to the answer, through another thread and the event loop.
void askAside(benchmark::State &state)
{
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    QtScheduler scheduler;
    Sampler<int> sampler(scheduler, [] { return 1; });
    for (auto _ : state) {
        sampler.ask();
        while (sampler.isAsking())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}
BENCHMARK(askAside)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace brimlight
