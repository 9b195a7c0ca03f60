#include "sensors/PersistentDenylistStore.h"
#include "sensors/SensorFixture.h"

namespace brimlight::test {

using namespace std::chrono_literals;
using HotSpotClassifier::classifyWithStats;
using HotSpotClassifier::hardcodedHotSpotDenylist;

namespace {

/// Peaks of keys k0, k1 ...
HotSpotClassifier::Peaks peaksOf(std::initializer_list<double> values)
{
    HotSpotClassifier::Peaks peaks;
    for (const double value : values)
        peaks.insert(QStringLiteral("k%1").arg(peaks.size()), value);
    return peaks;
}

class CalibrationTest : public SMCBridgeTest
{
protected:
    /// Forty keys between 45 and 53 degrees, of which two, hotter when the machine is busy, are hot spots.
    void addFortyKeys()
    {
        for (int i = 0; i < 40; ++i)
            smc.add(keyName(i).constData(), coolCelsius(i));
    }
    static QByteArray keyName(int i) { return "Tp" + QByteArray::number(i).rightJustified(2, '0'); }
    static float coolCelsius(int i) { return 45.0F + static_cast<float>(i % 5) * 2; }
    void setHotSpots(float first, float second)
    {
        smc.recordCelsius("Tp07", first);
        smc.recordCelsius("Tp23", second);
    }
    /// A reading each second.
    void readFor(int seconds)
    {
        for (int i = 0; i < seconds; ++i) {
            cpuMax();
            scheduler.advance(1s);
        }
    }
};

} // namespace

TEST(HotSpotClassifier, FewerThanFourPeaksHaveNone)
{
    const auto found = classifyWithStats(peaksOf({40, 41, 95}));
    EXPECT_TRUE(found.denylist.isEmpty());
    EXPECT_EQ(found.baseline, 0);
    EXPECT_EQ(found.cutoff, 0);
}

TEST(HotSpotClassifier, TheBaselineIsAtFortyPercentFromBelow)
{
    const auto found = classifyWithStats(peaksOf({50, 52, 54, 56, 90}));
    EXPECT_EQ(found.baseline, 52);
    EXPECT_EQ(found.cutoff, 64);
    EXPECT_EQ(found.denylist, QSet<QString>{QStringLiteral("k4")});
    EXPECT_EQ(classifyWithStats(peaksOf({9, 8, 7, 6, 5, 4, 3, 2, 1, 0})).baseline, 3) << "index 3 of ten";
}

TEST(HotSpotClassifier, APeakAtTheCutoffIsHot)
{
    const auto found = classifyWithStats(peaksOf({50, 50, 50, 62}));
    EXPECT_EQ(found.baseline, 50);
    EXPECT_EQ(found.cutoff, 62);
    EXPECT_EQ(found.denylist, QSet<QString>{QStringLiteral("k3")});
    EXPECT_TRUE(classifyWithStats(peaksOf({50, 50, 50, 61.9})).denylist.isEmpty());
}

TEST(HotSpotClassifier, OnlyTheBaseChipHasASeed)
{
    EXPECT_EQ(hardcodedHotSpotDenylist(QStringLiteral("Apple M3")).size(), 23);
    EXPECT_TRUE(hardcodedHotSpotDenylist(QStringLiteral("Apple M3")).contains(QStringLiteral("Te0M")));
    for (const char *chip : {"Apple M3 Pro", "Apple M3 Max", "Apple M2", "apple m3", "unknown", ""})
        EXPECT_TRUE(hardcodedHotSpotDenylist(QLatin1String(chip)).isEmpty()) << chip;
}

TEST(PersistentDenylistStore, TheKeyKeepsCommasAndReplacesBlanksAndPoints)
{
    EXPECT_EQ(PersistentDenylistStore::storageKey(QStringLiteral("Apple M3"), QStringLiteral("Board15,3"),
                                                  QStringLiteral("24A335")),
              QStringLiteral("Sorrelbrook.HotSpotDenylist.v1.Apple_M3.Board15,3.24A335"));
    EXPECT_EQ(PersistentDenylistStore::storageKey(QStringLiteral("a  b"), QStringLiteral("c.d e"), QString()),
              QStringLiteral("Sorrelbrook.HotSpotDenylist.v1.a__b.c_d_e."));
}

TEST(PersistentDenylistStore, AnUnknownBuildHasAName)
{
    FakeMachine machine;
    EXPECT_EQ(PersistentDenylistStore::currentOSBuild(machine), QStringLiteral("6.1.0-18"));
    machine.buildText.reset();
    EXPECT_EQ(PersistentDenylistStore::currentOSBuild(machine), QStringLiteral("unknown"));
}

TEST_F(CalibrationTest, AMinuteOverFortyKeysFindsTheTwoHotSpotsAndTheNextStartSkipsIt)
{
    addFortyKeys();
    setHotSpots(50, 50);
    open();
    readFor(20);
    setHotSpots(64, 66.5F);
    readFor(1);
    setHotSpots(50, 50);
    readFor(39);
    EXPECT_FALSE(persisted()) << "59 s";
    log.entries.clear();
    EXPECT_EQ(cpuMax(), 53);
    EXPECT_EQ(persisted(), (QStringList{QStringLiteral("Tp07"), QStringLiteral("Tp23")}));
    EXPECT_EQ(log.entries,
              (std::vector<RecordingLog::Entry>{
                  {LogLevel::notice, QStringLiteral("SMCBridge"),
                   QStringLiteral("CPU sensor calibration complete: denylisted 2 hot-spot sensors above 59.0 "
                                  "°C: Tp23=66.5°C, Tp07=64.0°C; persisted 2 total")}}));

    reopen();
    EXPECT_TRUE(log.messages().first().endsWith(
        QLatin1String("cpu=40, gpu=0, preset=0, restored=2, calibration=skipped)")));
    setHotSpots(60, 60);
    EXPECT_EQ(cpuMax(), 53);
    EXPECT_EQ(smc.valueReads("Tp07"), 1) << "only while it was discovered";
    defaults.writes.clear();
    readFor(120);
    EXPECT_TRUE(defaults.writes.isEmpty());
}

TEST_F(CalibrationTest, OnTheReadThatCompletesItTheHotSpotsCountALastTime)
{
    addFortyKeys();
    setHotSpots(62, 61);
    open();
    EXPECT_EQ(cpuMax(), 62);
    scheduler.advance(59999ms);
    EXPECT_EQ(cpuMax(), 62);
    EXPECT_FALSE(persisted());
    scheduler.advance(1ms);
    EXPECT_EQ(cpuMax(), 62);
    EXPECT_TRUE(persisted());
    EXPECT_EQ(cpuMax(), 53);
    const int reads = smc.valueReads("Tp07");
    cpuMax();
    EXPECT_EQ(smc.valueReads("Tp07"), reads) << "no longer read";
}

TEST_F(CalibrationTest, TheWindowStartsWithTheFirstReadNotWithTheBridge)
{
    addFortyKeys();
    open();
    scheduler.advance(10min);
    cpuMax();
    EXPECT_FALSE(persisted());
    scheduler.advance(60s);
    cpuMax();
    EXPECT_TRUE(persisted());
}

TEST_F(CalibrationTest, ASuspendInTheMiddleEndsItWithThePeaksThereAre)
{
    addFortyKeys();
    setHotSpots(70, 70);
    open();
    readFor(30);
    setHotSpots(50, 50);
    scheduler.offset = 8h;
    cpuMax();
    EXPECT_EQ(persisted(), (QStringList{QStringLiteral("Tp07"), QStringLiteral("Tp23")}));
}

TEST_F(CalibrationTest, AClockThatIsSetBackKeepsTheWindowOpen)
{
    addFortyKeys();
    open();
    readFor(30);
    scheduler.offset = -1h;
    readFor(60);
    EXPECT_FALSE(persisted());
    scheduler.offset = 0s;
    cpuMax();
    EXPECT_TRUE(persisted());
}

TEST_F(CalibrationTest, WithoutHotSpotsAnEmptyListIsPersistedAndCountsAsFound)
{
    addFortyKeys();
    open();
    readFor(60);
    log.entries.clear();
    cpuMax();
    EXPECT_EQ(persisted(), QStringList());
    EXPECT_EQ(log.entries,
              (std::vector<RecordingLog::Entry>{
                  {LogLevel::info, QStringLiteral("SMCBridge"),
                   QStringLiteral("CPU sensor calibration complete: 40 sensors, no hot-spots detected "
                                  "(40th-pct peak 47.0 °C); persisted 0 total")}}));
    reopen();
    EXPECT_TRUE(log.messages().first().endsWith(QLatin1String("restored=0, calibration=skipped)")));
}

TEST_F(CalibrationTest, TooFewPeaksAreNotWatchedAgain)
{
    smc.add("Tp01", 40);
    smc.add("Tp02", 41);
    smc.add("Tp03", 95);
    open();
    readFor(61);
    EXPECT_EQ(persisted(), QStringList());
    EXPECT_EQ(cpuMax(), 95);
    EXPECT_TRUE(
        log.messages().last().contains(QLatin1String("3 sensors, no hot-spots detected (40th-pct peak 0.0")));
}

TEST_F(CalibrationTest, WithoutKeysTheMinuteEndsToo)
{
    smc.recordCelsius("B0AT", 30);
    open();
    readFor(61);
    EXPECT_EQ(persisted(), QStringList());
    EXPECT_TRUE(log.messages().last().contains(QLatin1String("complete: 0 sensors, no hot-spots")));
}

TEST_F(CalibrationTest, ASeededKeyDoesNotCountAndDoesNotMoveTheCutoff)
{
    machine.chipText = QStringLiteral("Apple M3");
    smc.add("Tp02", 90);
    for (const char *key : {"Tp06", "Tp0A", "Tp0E"})
        smc.add(key, 30);
    for (const char *key : {"Tp03", "Tp04", "Tp05", "Tp07"})
        smc.add(key, 50);
    smc.add("Tp08", 63);
    open();
    EXPECT_TRUE(log.messages().first().contains(QLatin1String("preset=23, restored=0, calibration=pending")));
    EXPECT_EQ(cpuMax(), 63) << "the seed holds from the first read on";
    readFor(61);
    // With the seeded peaks the baseline would be 30.
    EXPECT_TRUE(log.messages().last().endsWith(
        QStringLiteral("denylisted 1 hot-spot sensors above 62.0 °C: Tp08=63.0°C; persisted 5 total")));
    const auto stored = defaults.read<QStringList>(
        QStringLiteral("Sorrelbrook.HotSpotDenylist.v1.Apple_M3.Board2,1.6_1_0-18"));
    EXPECT_EQ(stored, (QStringList{QStringLiteral("Tp02"), QStringLiteral("Tp06"), QStringLiteral("Tp08"),
                                   QStringLiteral("Tp0A"), QStringLiteral("Tp0E")}));
}

TEST_F(CalibrationTest, WhatTheSeedSuppliedIsNotRestored)
{
    machine.chipText = QStringLiteral("Apple M3");
    smc.add("Tp02", 90);
    smc.add("Tp03", 80);
    smc.add("Tp04", 50);
    defaults.setValue(QStringLiteral("Sorrelbrook.HotSpotDenylist.v1.Apple_M3.Board2,1.6_1_0-18"),
                      QStringList{QStringLiteral("Tp02"), QStringLiteral("Tp03"), QStringLiteral("Tp03")});
    open();
    EXPECT_TRUE(log.messages().first().contains(QLatin1String("preset=23, restored=1, calibration=skipped")));
    EXPECT_EQ(cpuMax(), 50);
}

TEST_F(CalibrationTest, APersistedListOfUnknownKeysSkipsToo)
{
    addFortyKeys();
    defaults.setValue(storageKey(), QStringList{QStringLiteral("Zz99")});
    open();
    EXPECT_TRUE(log.messages().first().endsWith(QLatin1String("restored=0, calibration=skipped)")));
    readFor(61);
    EXPECT_EQ(persisted(), QStringList{QStringLiteral("Zz99")}) << "not written again";
}

TEST_F(CalibrationTest, APersistedValueOfAnotherTypeIsNone)
{
    addFortyKeys();
    defaults.setValue(storageKey(), QStringLiteral("Tp07"));
    open();
    EXPECT_TRUE(log.messages().first().endsWith(QLatin1String("calibration=pending)")));
}

TEST_F(CalibrationTest, ANewBuildIsWatchedAnewAndTheOldListStays)
{
    addFortyKeys();
    setHotSpots(80, 80);
    open();
    readFor(61);
    const auto old = persisted();
    ASSERT_TRUE(old);
    machine.buildText = QStringLiteral("6.1.0-19");
    reopen();
    EXPECT_TRUE(log.messages().first().endsWith(QLatin1String("calibration=pending)")));
    setHotSpots(50, 50);
    readFor(61);
    EXPECT_EQ(persisted(), old);
    EXPECT_EQ(defaults.read<QStringList>(
                  QStringLiteral("Sorrelbrook.HotSpotDenylist.v1.Chip_One.Board2,1.6_1_0-19")),
              QStringList());
}

} // namespace brimlight::test
