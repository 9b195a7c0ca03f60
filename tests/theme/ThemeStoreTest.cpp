#include "theme/ThemeStore.h"

#include "fakes/DirectFileWriter.h"
#include "fakes/Fakes.h"
#include "fakes/HandDriver.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <limits>
#include <optional>

namespace brimlight::test {
namespace {

const QByteArray oceanJson =
    R"({"id":"ocean","name":"Ocean",)"
    R"("accent":{"red":0.19607843137254902,"green":0.8156862745098039,"blue":0.8784313725490196,"opacity":1},)"
    R"("surface":{"red":0.0392156862745098,"green":0.10196078431372549,"blue":0.1411764705882353,"opacity":0.96},)"
    R"("surfaceElevated":{"red":0.39215686274509803,"green":0.8235294117647058,"blue":1,"opacity":0.09},)"
    R"("textPrimary":{"red":0.9176470588235294,"green":0.984313725490196,"blue":1,"opacity":0.95},)"
    R"("textSecondary":{"red":0.9176470588235294,"green":0.984313725490196,"blue":1,"opacity":0.55},)"
    R"("separator":{"red":0.39215686274509803,"green":0.8235294117647058,"blue":1,"opacity":0.14}})";

class ThemeStoreTest : public testing::Test
{
protected:
    void start() { store.emplace(SavedFile(path, writer), defaults, log); }

    void write(const QByteArray &bytes) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray written() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("theme.json"));
    MemoryDefaults defaults;
    RecordingLog log;
    DirectFileWriter writer{&log};
    std::optional<ThemeStore> store;
};

class ThemeFade : public ThemeStoreTest
{
protected:
    HandDriver time;
    const MotionCurve curve{.duration = 200, .easing = QEasingCurve(QEasingCurve::Linear)};
};

} // namespace

TEST_F(ThemeStoreTest, FirstStartIsMidnightAndWritesNothing)
{
    start();
    EXPECT_EQ(store->current(), Theme::midnight());
    EXPECT_EQ(store->glassStrength(), 0.55);
    EXPECT_EQ(store->builtIns(), Theme::builtIns());
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(defaults.writes.isEmpty());
    store->selectPalette(QStringLiteral("ocean"));
    EXPECT_EQ(files(), QStringList(QStringLiteral("theme.json")));
}

TEST_F(ThemeStoreTest, AColourWithoutOpacityFailsTheWholeFile)
{
    QByteArray json = oceanJson;
    write(json.replace(R"(,"opacity":0.14)", ""));
    start();
    EXPECT_EQ(store->current(), Theme::midnight());
}

TEST_F(ThemeStoreTest, CustomIsNoPreset)
{
    start();
    QObject::connect(&*store, &ThemeStore::currentChanged, [] { FAIL(); });
    store->selectPalette(QStringLiteral("custom"));
    EXPECT_EQ(store->current(), Theme::midnight());
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(log.entries.empty());
}

TEST_F(ThemeStoreTest, IdsAreComparedExactly)
{
    start();
    store->selectPalette(QStringLiteral("ocean"));
    store->selectPalette(QStringLiteral("Midnight"));
    EXPECT_EQ(store->current(), Theme::ocean());
}

TEST_F(ThemeStoreTest, AChangedColourMakesThePresetCustomAndKeepsTheOthers)
{
    start();
    store->selectPalette(QStringLiteral("ocean"));
    store->setAccent(QColor(255, 0, 0, 51));
    Theme expected = Theme::ocean();
    expected.id = QStringLiteral("custom");
    expected.name = QStringLiteral("Custom");
    expected.accent = {1, 0, 0, 0.2};
    EXPECT_EQ(store->current(), expected);
    EXPECT_EQ(store->current().surface, ThemeColor::fromHex(QStringLiteral("#0A1A24"), 0.96));
}

TEST_F(ThemeStoreTest, EachOfTheSixColoursCanBeChanged)
{
    using Setter = void (ThemeStore::*)(const QColor &);
    const std::pair<Setter, ThemeColor Theme::*> setters[] = {
        {&ThemeStore::setAccent, &Theme::accent},
        {&ThemeStore::setSurface, &Theme::surface},
        {&ThemeStore::setSurfaceElevated, &Theme::surfaceElevated},
        {&ThemeStore::setTextPrimary, &Theme::textPrimary},
        {&ThemeStore::setTextSecondary, &Theme::textSecondary},
        {&ThemeStore::setSeparator, &Theme::separator}};
    start();
    for (const auto &[setter, field] : setters) {
        store->reset();
        ((*store).*setter)(QColor(1, 2, 3));
        Theme expected = Theme::midnight();
        expected.id = QStringLiteral("custom");
        expected.name = QStringLiteral("Custom");
        expected.*field = {1 / 255.0, 2 / 255.0, 3 / 255.0, 1};
        EXPECT_EQ(store->current(), expected);
    }
}

TEST_F(ThemeStoreTest, ChangesAddUpInTheOneCustomTheme)
{
    start();
    store->setAccent(Qt::red);
    store->setSurface(Qt::blue);
    EXPECT_EQ(store->current().accent, ThemeColor(1, 0, 0, 1));
    EXPECT_EQ(store->current().surface, ThemeColor(0, 0, 1, 1));
    store->selectPalette(QStringLiteral("sand"));
    EXPECT_EQ(store->current(), Theme::sand()) << "the custom theme is discarded";
}

TEST_F(ThemeStoreTest, NoColourAtAllIsOpaqueWhite)
{
    start();
    store->setSeparator(QColor());
    EXPECT_EQ(store->current().separator, ThemeColor(1, 1, 1, 1));
}

TEST_F(ThemeStoreTest, IdsAreStoredAndNamesOnlyShown)
{
    start();
    store->selectPalette(QStringLiteral("Glacier Blue"));
    EXPECT_EQ(store->current(), Theme::midnight());
    store->selectPalette(QStringLiteral("frosty"));
    EXPECT_EQ(store->current().name, QStringLiteral("Glacier Blue"));
    EXPECT_TRUE(written().startsWith(R"({"id":"frosty","name":"Glacier Blue",)"));
}

TEST_F(ThemeStoreTest, AGlassStrengthOutOfRangeStays)
{
    defaults.values.insert(QStringLiteral("brimlight.glassStrength"), 3.0);
    start();
    EXPECT_EQ(store->glassStrength(), 3);
}

TEST_F(ThemeStoreTest, AGlassStrengthOfAnotherTypeIsTheDefault)
{
    const UserDefaults::Value others[] = {true, QStringLiteral("1"), QByteArray("1"),
                                          QStringList{QStringLiteral("1")}};
    for (const UserDefaults::Value &other : others) {
        defaults.values.insert(QStringLiteral("brimlight.glassStrength"), other);
        start();
        EXPECT_EQ(store->glassStrength(), 0.55);
    }
}

TEST_F(ThemeStoreTest, TheGlassStrengthIsWrittenThrough)
{
    start();
    int changes = 0;
    QObject::connect(&*store, &ThemeStore::glassStrengthChanged, [&] { ++changes; });
    store->setGlassStrength(0.3);
    store->setGlassStrength(0.3);
    EXPECT_EQ(changes, 2) << "every assignment notifies";
    EXPECT_EQ(defaults.writes, QStringList(2, QStringLiteral("brimlight.glassStrength")));
    EXPECT_EQ(defaults.read<double>(QStringLiteral("brimlight.glassStrength")), 0.3);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(ThemeStoreTest, ResetLeavesTheGlassAlone)
{
    start();
    store->setGlassStrength(0.9);
    store->setAccent(Qt::red);
    store->reset();
    EXPECT_EQ(store->current(), Theme::midnight());
    EXPECT_EQ(store->glassStrength(), 0.9);
    start();
    EXPECT_EQ(store->current(), Theme::midnight());
}

TEST_F(ThemeStoreTest, EveryAssignmentNotifiesAndSaves)
{
    start();
    int notified = 0;
    QObject::connect(&*store, &ThemeStore::currentChanged, [&] {
        ++notified;
        EXPECT_EQ(store->current(), Theme::rose()) << "the new value is in place";
    });
    store->setCurrent(Theme::rose());
    QFile::remove(path);
    store->setCurrent(Theme::rose());
    EXPECT_EQ(notified, 2);
    EXPECT_FALSE(written().isEmpty());
}

TEST_F(ThemeStoreTest, WritesTheFieldsInOrderAndCompact)
{
    start();
    store->selectPalette(QStringLiteral("ocean"));
    EXPECT_EQ(written(), oceanJson);
}

TEST_F(ThemeStoreTest, EveryPresetSurvivesTheFile)
{
    for (const Theme &theme : Theme::builtIns()) {
        start();
        store->setCurrent(theme);
        start();
        EXPECT_EQ(store->current(), theme) << qPrintable(theme.id);
    }
}

TEST_F(ThemeStoreTest, TextsSurviveTheFile)
{
    Theme theme = Theme::sakura();
    theme.name = QStringLiteral("桜 \"🌸\" \\ \n\t\u0001 / é");
    start();
    store->setCurrent(theme);
    EXPECT_TRUE(QJsonDocument::fromJson(written()).isObject());
    start();
    EXPECT_EQ(store->current(), theme);
}

TEST_F(ThemeStoreTest, AThemeFromTheFileIsTakenAsItStands)
{
    QByteArray json = oceanJson;
    json.replace(R"("opacity":0.14)", R"("opacity":-7.5e3)");
    json.replace("{\"id\"", "{ \"later\" : [1, {}] ,\n \"id\"");
    write(json);
    start();
    Theme expected = Theme::ocean();
    expected.separator.opacity = -7500;
    EXPECT_EQ(store->current(), expected) << "not the preset of that id";
    EXPECT_EQ(store->current().separatorColor().alpha(), 0);
}

TEST_F(ThemeStoreTest, EveryKeyIsRequired)
{
    const QJsonObject whole = QJsonDocument::fromJson(oceanJson).object();
    for (const QString &key : whole.keys()) {
        QJsonObject without = whole;
        without.remove(key);
        write(QJsonDocument(without).toJson());
        start();
        EXPECT_EQ(store->current(), Theme::midnight()) << qPrintable(key);
        for (const QJsonValue &wrong : {QJsonValue(), QJsonValue(1), QJsonValue(QJsonObject())}) {
            QJsonObject other = whole;
            other.insert(key, wrong);
            write(QJsonDocument(other).toJson());
            start();
            EXPECT_EQ(store->current(), Theme::midnight()) << qPrintable(key);
        }
    }
}

TEST_F(ThemeStoreTest, EveryCutOffFileIsMidnight)
{
    for (qsizetype length = 0; length < oceanJson.size(); ++length) {
        write(oceanJson.left(length));
        start();
        ASSERT_EQ(store->current(), Theme::midnight()) << length;
    }
}

TEST_F(ThemeStoreTest, AnyOtherBytesAreMidnight)
{
    const auto withRed = [](const char *number) {
        QByteArray json = oceanJson;
        return json.replace("0.19607843137254902", number);
    };
    const QByteArray contents[] = {
        QByteArray(),
        "null",
        "[]",
        "{}",
        "\"theme\"",
        "42",
        QByteArray(4096, '\0'),
        QByteArray("\xFF\xFE\x00{\x80", 5),
        QByteArray(200000, '['),
        QByteArray(200000, '{'),
        QByteArray("{\"a\":").repeated(50000),
        withRed("NaN"),
        withRed("Infinity"),
        withRed("1e999"),
        withRed("-1e999"),
        withRed("true"),
        withRed("\"0.2\""),
        withRed("0x10"),
        withRed(""),
    };
    for (const QByteArray &content : contents) {
        write(content);
        start();
        EXPECT_EQ(store->current(), Theme::midnight()) << content.left(80).constData();
    }
}

TEST_F(ThemeStoreTest, HugeAndTinyNumbersAreTakenAndCanBeDrawn)
{
    for (const char *number : {"1e308", "-1e308", "123456789012345678901234567890", "1e-320", "-0"}) {
        QByteArray json = oceanJson;
        write(json.replace("0.19607843137254902", number));
        start();
        EXPECT_EQ(store->current().id, QStringLiteral("ocean")) << number;
        EXPECT_TRUE(store->current().accentColor().isValid());
    }
}

TEST_F(ThemeStoreTest, AnUndecodableFileIsKeptAsideBeforeTheFirstWrite)
{
    write("not a theme");
    start();
    EXPECT_EQ(files(), QStringList(QStringLiteral("theme.json"))) << "the start writes nothing";
    store->selectPalette(QStringLiteral("rose"));
    EXPECT_EQ(files(),
              (QStringList{QStringLiteral("theme.json"), QStringLiteral("theme.json.unreadable-1")}));
    QFile aside(path + QStringLiteral(".unreadable-1"));
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), "not a theme");
}

TEST_F(ThemeStoreTest, AFailedWriteIsLoggedAndTheThemeHolds)
{
    const QString blocker = folder.filePath(QStringLiteral("file"));
    QFile(blocker).open(QIODevice::WriteOnly);
    path = blocker + QStringLiteral("/theme.json");
    start();
    store->selectPalette(QStringLiteral("rose"));
    EXPECT_EQ(store->current(), Theme::rose());
    ASSERT_EQ(log.entries.size(), 1U);
    EXPECT_EQ(log.entries[0].level, LogLevel::error);
    EXPECT_EQ(log.entries[0].category, QStringLiteral("Theme"));
    EXPECT_TRUE(log.entries[0].message.startsWith(QStringLiteral("Failed to save theme: ")));
    EXPECT_GT(log.entries[0].message.size(), 24);
}

TEST_F(ThemeStoreTest, AThemeThatJsonCannotSayIsLoggedAndNotWritten)
{
    Theme theme = Theme::ocean();
    theme.accent.red = std::numeric_limits<double>::quiet_NaN();
    start();
    store->setCurrent(theme);
    EXPECT_TRUE(files().isEmpty());
    ASSERT_EQ(log.entries.size(), 1U);
    EXPECT_EQ(log.entries[0].message, QStringLiteral("Failed to save theme: a colour is not a number"));
}

TEST_F(ThemeFade, TakesThePresetAtOnceAndShowsTheWay)
{
    start();
    store->fadeToPalette(QStringLiteral("ocean"), curve);
    EXPECT_EQ(store->current(), Theme::ocean());
    EXPECT_EQ(written(), oceanJson);
    EXPECT_EQ(store->shown().accent, Theme::midnight().accent);

    time.advanceBy(std::chrono::milliseconds(100));
    const Theme half = store->shown();
    EXPECT_NEAR(half.accent.red, (Theme::midnight().accent.red + Theme::ocean().accent.red) / 2, 1e-9);
    EXPECT_NEAR(half.separator.opacity, 0.12, 1e-9);
    time.advanceBy(std::chrono::milliseconds(100));
    EXPECT_EQ(store->shown(), Theme::ocean());
}

TEST_F(ThemeFade, GoesOnFromWhatIsShown)
{
    start();
    store->fadeToPalette(QStringLiteral("ocean"), curve);
    time.advanceBy(std::chrono::milliseconds(100));
    const ThemeColor half = store->shown().accent;
    store->fadeToPalette(QStringLiteral("rose"), curve);
    EXPECT_EQ(store->shown().accent, half);
    time.advanceBy(std::chrono::milliseconds(200));
    EXPECT_EQ(store->shown(), Theme::rose());
}

TEST_F(ThemeFade, EndsWithAColourOrAReset)
{
    start();
    store->fadeToPalette(QStringLiteral("ocean"), curve);
    time.advanceBy(std::chrono::milliseconds(100));
    store->setAccent(Qt::red);
    EXPECT_EQ(store->shown(), store->current());
    store->fadeToPalette(QStringLiteral("rose"), curve);
    store->reset();
    EXPECT_EQ(store->shown(), Theme::midnight());
    time.advanceBy(std::chrono::milliseconds(300));
    EXPECT_EQ(store->shown(), Theme::midnight());
}

TEST_F(ThemeFade, WithoutMotionAndForAnUnknownPresetNothingFades)
{
    start();
    store->fadeToPalette(QStringLiteral("ocean"), MotionCurve());
    EXPECT_EQ(store->shown(), Theme::ocean());
    store->fadeToPalette(QStringLiteral("none"), curve);
    EXPECT_EQ(store->shown(), Theme::ocean());
    EXPECT_EQ(store->current(), Theme::ocean());
}

} // namespace brimlight::test
