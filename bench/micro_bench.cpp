// Single pieces of work that happen on the main thread, once per frame or once per action of the user.
//
// Preferences are written behind the main thread's back, to the file system behind TMPDIR.

#include "platform/Log.h"
#include "platform/linux/files/BackgroundFileWriter.h"
#include "platform/linux/files/JsonUserDefaults.h"
#include "platform/linux/x11/OutlineRows.h"
#include "theme/NotchShape.h"
#include "theme/Spring.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

namespace brimlight {
namespace {

constexpr Rect openPanel{692, 480, 536, 600};

QString preference(int number)
{
    return QStringLiteral("brimlight.preference%1").arg(number);
}

class NoLog : public Log
{
public:
    void write(LogLevel, const QString &, const QString &) override {}
};

/// A file of preferences in TMPDIR.
struct Preferences
{
    explicit Preferences(int64_t count)
    {
        for (int i = 0; i < count; ++i)
            defaults.setValue(preference(i),
                              i % 2 == 0 ? UserDefaults::Value(0.5 * i) : UserDefaults::Value(preference(i)));
        writer.flush();
    }

    const QTemporaryDir folder;
    NoLog log;
    BackgroundFileWriter writer{log};
    JsonUserDefaults defaults{SavedFile(folder.filePath(QStringLiteral("Brimlight/defaults.json")), writer)};
};

/// What the main thread spends on one step of a slider.
void setPreference(benchmark::State &state)
{
    Preferences preferences(state.range(0));
    double value = 0;
    for (auto _ : state)
        preferences.defaults.setValue(preference(0), ++value);
}
BENCHMARK(setPreference)->Arg(1)->Arg(60)->UseRealTime()->Unit(benchmark::kMicrosecond);

/// From the assignment until the file holds it.
void setPreferenceAndWait(benchmark::State &state)
{
    Preferences preferences(state.range(0));
    double value = 0;
    for (auto _ : state) {
        preferences.defaults.setValue(preference(0), ++value);
        preferences.writer.flush();
    }
}
BENCHMARK(setPreferenceAndWait)->Arg(1)->Arg(60)->UseRealTime()->Unit(benchmark::kMicrosecond);

void readPreference(benchmark::State &state)
{
    const Preferences preferences(state.range(0));
    const QString key = preference(0);
    for (auto _ : state)
        benchmark::DoNotOptimize(preferences.defaults.read<double>(key));
}
BENCHMARK(readPreference)->Arg(60);

void panelPath(benchmark::State &state)
{
    const NotchShape shape{.bottomRadius = NotchShape::maskRadius};
    for (auto _ : state)
        benchmark::DoNotOptimize(shape.path({0, 0, openPanel.width, openPanel.height}));
}
BENCHMARK(panelPath);

void panelOutlineRows(benchmark::State &state)
{
    const SurfaceOutline outline{.frame = openPanel, .bottomRadius = NotchShape::maskRadius};
    const Rect extent = openPanel.outset(100);
    const auto scale = static_cast<double>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(outlineRows(outline, extent, scale));
}
BENCHMARK(panelOutlineRows)->ArgName("scale")->Arg(1)->Arg(2);

constexpr Spring panelSpring{std::chrono::duration<double>(0.34), 0.85};

void springValue(benchmark::State &state)
{
    double seconds = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(panelSpring.value(std::chrono::duration<double>(seconds += 0.0001)));
}
BENCHMARK(springValue);

void springEasing(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(panelSpring.easing());
}
BENCHMARK(springEasing)->Unit(benchmark::kMicrosecond);

void easingValue(benchmark::State &state)
{
    const QEasingCurve curve = panelSpring.easing();
    double progress = 0;
    for (auto _ : state) {
        progress = progress < 1 ? progress + 0.001 : 0;
        benchmark::DoNotOptimize(curve.valueForProgress(progress));
    }
}
BENCHMARK(easingValue);

} // namespace
} // namespace brimlight
