#include "core/TraceLog.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace brimlight::test {

class Trace : public testing::Test
{
protected:
    QByteArray printed()
    {
        std::fflush(console.get());
        std::rewind(console.get());
        std::array<char, 256> bytes{};
        const size_t count = std::fread(bytes.data(), 1, bytes.size(), console.get());
        return QByteArray(bytes.data(), static_cast<qsizetype>(count));
    }

    struct Close
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> console{std::tmpfile()};
    RecordingLog recorded;
    const RecordingLog::Entry entry{LogLevel::info, QStringLiteral("App"), QStringLiteral("Übergang → 1")};
};

TEST_F(Trace, WithoutTheSwitchOnlyTheLogHears)
{
    TraceLog(recorded, {.enabled = false}, console.get()).trace(entry.message);
    EXPECT_EQ(recorded.entries, std::vector{entry});
    EXPECT_EQ(printed(), "");
}

TEST_F(Trace, WithTheSwitchTheConsoleHearsTheSameLineAndOneLineFeed)
{
    TraceLog(recorded, {.enabled = true}, console.get()).trace(entry.message);
    EXPECT_EQ(recorded.entries, std::vector{entry});
    EXPECT_EQ(printed(), entry.message.toUtf8() + "\n");
}

TEST_F(Trace, InfoNeverReachesTheConsole)
{
    TraceLog(recorded, {.enabled = true}, console.get()).info(entry.message);
    EXPECT_EQ(recorded.entries, std::vector{entry});
    EXPECT_EQ(printed(), "");
}

TEST(DebugFlags, OnlyTheValueOneTurnsThemOn)
{
    EXPECT_TRUE(DebugFlags::fromValue("1").enabled);
    for (const char *value : {"", "0", "01", "true", "1 ", "yes"})
        EXPECT_FALSE(DebugFlags::fromValue(QByteArray(value)).enabled) << value;
    EXPECT_FALSE(DebugFlags::fromValue(std::nullopt).enabled);
}

} // namespace brimlight::test
