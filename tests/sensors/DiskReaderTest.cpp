#include "sensors/DiskReader.h"

#include "fakes/FakeHostStatistics.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimlight::test {

TEST(DiskReader, ReportsTheVolumeOfTheRoot)
{
    FakeHostStatistics statistics;
    statistics.capacity = VolumeCapacity{.total = 500'000'000'000, .available = 125'000'000'000};
    EXPECT_EQ(
        DiskReader::read(statistics),
        (DiskSnapshot{.usedFraction = 0.75, .freeBytes = 125'000'000'000, .totalBytes = 500'000'000'000}));
    EXPECT_EQ(statistics.volumesAsked, QStringList{QStringLiteral("/")});
}

TEST(DiskReader, AVolumeThatCannotBeAskedIsAllZero)
{
    FakeHostStatistics statistics;
    EXPECT_EQ(DiskReader::read(statistics), DiskSnapshot{});
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
        const DiskSnapshot snapshot = DiskReader::read(statistics);
        EXPECT_DOUBLE_EQ(snapshot.usedFraction, row.used) << row.capacity.total;
        EXPECT_EQ(snapshot.totalBytes, row.capacity.total);
        EXPECT_EQ(snapshot.freeBytes, row.capacity.available);
    }
}

} // namespace brimlight::test
