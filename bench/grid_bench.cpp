// The work of one change of the layout. The file lies where nothing can be written, so the disk is left out;
// the encoding, which every change does, is in.

#include "fakes/DirectFileWriter.h"
#include "grid/GridLayoutCodec.h"
#include "grid/GridPlacement.h"
#include "grid/GridStore.h"
#include "grid/WidgetRegistry.h"

#include <benchmark/benchmark.h>

namespace brimlight {
namespace {

constexpr int tilesPerPage = 12;

WidgetRegistry oneKind()
{
    return WidgetRegistry({{.metadata = {.kind = QStringLiteral("clock"),
                                         .allowedSizes = {WidgetSize::wide},
                                         .defaultSize = WidgetSize::wide}}});
}

/// Two columns of wide tiles on each page; the right third is free.
GridLayout tidy(qint64 count)
{
    GridLayout layout{.instances = {}, .pageCount = count / tilesPerPage + 1};
    for (qint64 n = 0; n < count; ++n)
        layout.instances.append({.kind = QStringLiteral("clock"),
                                 .size = WidgetSize::wide,
                                 .order = n,
                                 .page = n / tilesPerPage,
                                 .col = n % 2 * 2,
                                 .row = n % tilesPerPage / 2});
    return layout;
}

/// Everything on one cell: of one page, or of as many as `tidy` has.
GridLayout heaped(qint64 count, bool onOnePage)
{
    GridLayout layout = tidy(count);
    for (WidgetInstance &instance : layout.instances) {
        instance.col = 2;
        instance.row = 2;
        if (onOnePage)
            instance.page = 0;
    }
    return layout;
}

class Store
{
public:
    explicit Store(qint64 count)
        : m_store({QStringLiteral("/proc/brimlight/grid.json"), m_files}, m_widgets)
        , m_layout(tidy(count))
    {
        reset();
    }

    GridStore &operator*() { return m_store; }
    void reset() { m_store.setLayout(m_layout); }
    /// The last instance, the farthest for every search.
    const WidgetInstance &last() const { return m_layout.instances.last(); }

private:
    WidgetRegistry m_widgets = oneKind();
    test::DirectFileWriter m_files;
    GridStore m_store;
    GridLayout m_layout;
};

void repair(benchmark::State &state, const GridLayout &layout)
{
    for (auto _ : state) {
        state.PauseTiming();
        GridLayout copy = layout;
        copy.instances.detach();
        state.ResumeTiming();
        benchmark::DoNotOptimize(normalizePlacements(copy));
    }
}
void repairTidy(benchmark::State &state)
{
    repair(state, tidy(state.range(0)));
}
void repairPages(benchmark::State &state)
{
    repair(state, heaped(state.range(0), false));
}
void repairOnePage(benchmark::State &state)
{
    repair(state, heaped(state.range(0), true));
}

void firstFreeSlot(benchmark::State &state)
{
    Store store(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize((*store).firstFreeSlot(WidgetSize::wide, store.last().page));
}
void canPlace(benchmark::State &state)
{
    Store store(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize((*store).canPlace(store.last().id, {4, 3}));
}
void place(benchmark::State &state)
{
    Store store(state.range(0));
    qint64 row = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize((*store).place(store.last().id, 4, ++row % gridRows));
}
void setSize(benchmark::State &state)
{
    Store store(state.range(0));
    bool wide = false;
    for (auto _ : state) {
        (*store).setSize(store.last().id, wide ? WidgetSize::wide : WidgetSize::large);
        wide = !wide;
    }
}
void add(benchmark::State &state)
{
    Store store(state.range(0));
    for (auto _ : state) {
        (*store).add(QStringLiteral("clock"), store.last().page);
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
}
void decode(benchmark::State &state)
{
    const QByteArray bytes = encodeLayout(tidy(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(decodeLayout(bytes));
}
void encode(benchmark::State &state)
{
    const GridLayout layout = tidy(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(encodeLayout(layout));
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(10)->Arg(1000)->Arg(10'000)->Unit(benchmark::kMicrosecond);
}
BENCHMARK(repairTidy)->Apply(sizes);
BENCHMARK(repairPages)->Apply(sizes);
BENCHMARK(repairOnePage)->Apply(sizes);
BENCHMARK(firstFreeSlot)->Apply(sizes);
BENCHMARK(canPlace)->Apply(sizes);
BENCHMARK(place)->Apply(sizes);
BENCHMARK(setSize)->Apply(sizes);
BENCHMARK(add)->Apply(sizes);
BENCHMARK(decode)->Apply(sizes);
BENCHMARK(encode)->Apply(sizes);

} // namespace
} // namespace brimlight
