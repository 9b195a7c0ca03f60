#include "sensors/DiskReader.h"

#include "fakes/FakeHostStatistics.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimlight::test {

namespace {

const QString root = QStringLiteral("/");
const QString home = QStringLiteral("/home/somebody");

} // namespace

TEST(DiskReader, ReportsTheVolumeOfTheRoot)
{
    FakeHostStatistics statistics;
    statistics.capacity = VolumeCapacity{.total = 500'000'000'000, .available = 125'000'000'000};
    EXPECT_EQ(
        DiskReader::read(statistics, home),
        (DiskSnapshot{.usedFraction = 0.75, .freeBytes = 125'000'000'000, .totalBytes = 500'000'000'000}));
    EXPECT_EQ(statistics.volumesAsked, QStringList{QStringLiteral("/")});
}

TEST(DiskReader, ReportsTheVolumeOfTheHomeWhereTheRootIsNobodysDisk)
{
    struct Row
    {
        VolumeCapacity root;
        int64_t total;
    };
    constexpr int64_t giga = 1'000'000'000;
    for (const Row &row : {
             Row{{.total = 250 * giga, .available = 20 * giga}, 250 * giga},
             Row{{.total = 4 * giga, .available = giga}, 4 * giga},
             Row{{.total = 4 * giga - 1, .available = giga}, 900 * giga},
             Row{{.total = 5 * giga, .available = 0, .isReadOnly = true}, 900 * giga},
             Row{{.total = 8 * giga, .available = 8 * giga, .isInMemory = true}, 900 * giga},
             Row{{}, 900 * giga},
         }) {
        FakeHostStatistics statistics;
        statistics.volumes = {{root, row.root}, {home, {.total = 900 * giga, .available = 300 * giga}}};
        EXPECT_EQ(DiskReader::read(statistics, home).totalBytes, row.total) << row.root.total;
    }
}

TEST(DiskReader, WithoutAHomeTheRootHasToDo)
{
    FakeHostStatistics statistics;
    statistics.volumes = {{root, {.total = 1000, .available = 250, .isReadOnly = true}}};
    EXPECT_EQ(DiskReader::read(statistics, home).totalBytes, 1000);
    statistics.volumes = {{home, {.total = 2000, .available = 500}}};
    EXPECT_EQ(DiskReader::read(statistics, home).totalBytes, 2000) << "a root that cannot be asked";
}

TEST(DiskReader, AVolumeThatCannotBeAskedIsAllZero)
{
    FakeHostStatistics statistics;
    EXPECT_EQ(DiskReader::read(statistics, home), DiskSnapshot{});
}

TEST(DiskReader, TheUsedFractionStaysInItsRange)
{
    struct Row
    {
        VolumeCapacity capacity;
        double used;
    };
    constexpr int64_t most = std::numeric_limits<int64_t>::max();
    for (const Row &row :
         {Row{{.total = 0, .available = 0}, 0}, Row{{.total = -5, .available = 3}, 0},
          Row{{.total = 0, .available = 10}, 0}, Row{{.total = 1, .available = 0}, 1},
          Row{{.total = 100, .available = 100}, 0}, Row{{.total = 100, .available = 250}, 0},
          Row{{.total = 100, .available = -50}, 1}, Row{{.total = most, .available = -most}, 1}}) {
        FakeHostStatistics statistics;
        statistics.capacity = row.capacity;
        const DiskSnapshot snapshot = DiskReader::read(statistics, home);
        EXPECT_DOUBLE_EQ(snapshot.usedFraction, row.used) << row.capacity.total;
        EXPECT_EQ(snapshot.totalBytes, row.capacity.total);
        EXPECT_EQ(snapshot.freeBytes, row.capacity.available);
    }
}

} // namespace brimlight::test
