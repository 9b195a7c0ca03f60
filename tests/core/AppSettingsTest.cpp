#include "core/AppSettings.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QSet>

namespace brimlight::test {

using namespace std::chrono_literals;

class Settings : public testing::Test
{
protected:
    static QString key(const char *name) { return QStringLiteral("brimlight.") + QLatin1String(name); }
    void store(const char *name, const UserDefaults::Value &value)
    {
        defaults.values.insert(key(name), value);
    }
    static QDateTime at(int hour, int minute)
    {
        return QDateTime(QDate(2026, 3, 14), QTime(hour, minute, 9), QTimeZone::utc());
    }

    MemoryDefaults defaults;
};

TEST_F(Settings, AFirstStartHasTheDefaultsAndWritesNothing)
{
    const AppSettings settings(defaults);
    EXPECT_TRUE(settings.clock24h());
    EXPECT_TRUE(settings.showSeconds());
    EXPECT_TRUE(settings.celsius());
    EXPECT_EQ(settings.refreshRate(), RefreshRate::balanced);
    EXPECT_EQ(settings.language(), AppLanguage::english);
    EXPECT_EQ(settings.hoverDelay(), 0.5);
    EXPECT_TRUE(defaults.writes.isEmpty());
}

TEST_F(Settings, StoredValuesAreRead)
{
    store("clock24h", false);
    store("showSeconds", false);
    store("celsius", false);
    store("refreshRate", QStringLiteral("saver"));
    store("language", QStringLiteral("it"));
    store("hoverDelay", 1.5);
    const AppSettings settings(defaults);
    EXPECT_FALSE(settings.clock24h());
    EXPECT_FALSE(settings.showSeconds());
    EXPECT_FALSE(settings.celsius());
    EXPECT_EQ(settings.refreshRate(), RefreshRate::saver);
    EXPECT_EQ(settings.language(), AppLanguage::italian);
    EXPECT_EQ(settings.hoverDelay(), 1.5);
}

TEST_F(Settings, TextsThatNameNoCaseGiveTheDefaultsAndStayStored)
{
    store("refreshRate", QStringLiteral("turbo"));
    store("language", QStringLiteral("EN"));
    const AppSettings settings(defaults);
    EXPECT_EQ(settings.refreshRate(), RefreshRate::balanced);
    EXPECT_EQ(settings.language(), AppLanguage::english);
    EXPECT_EQ(defaults.read<QString>(key("refreshRate")), QStringLiteral("turbo"));
}

TEST_F(Settings, AWrongTypeCostsThatKeyAlone)
{
    store("clock24h", 0.0);
    store("celsius", QStringLiteral("false"));
    store("hoverDelay", true);
    store("refreshRate", 3.0);
    store("showSeconds", false);
    const AppSettings settings(defaults);
    EXPECT_TRUE(settings.clock24h());
    EXPECT_TRUE(settings.celsius());
    EXPECT_EQ(settings.hoverDelay(), 0.5);
    EXPECT_EQ(settings.refreshRate(), RefreshRate::balanced);
    EXPECT_FALSE(settings.showSeconds());
}

TEST_F(Settings, EveryAssignmentWritesAndNotifiesEqualOrNot)
{
    AppSettings settings(defaults);
    int notified = 0;
    QObject::connect(&settings, &AppSettings::clock24hChanged, [&] { ++notified; });
    settings.setClock24h(true);
    settings.setClock24h(true);
    EXPECT_EQ(notified, 2);
    EXPECT_EQ(defaults.writes, (QStringList{key("clock24h"), key("clock24h")}));
}

TEST_F(Settings, EachSettingGoesUnderItsKeyAndType)
{
    AppSettings settings(defaults);
    settings.setClock24h(false);
    settings.setShowSeconds(false);
    settings.setCelsius(false);
    settings.setRefreshRate(RefreshRate::live);
    settings.setLanguage(AppLanguage::french);
    settings.setHoverDelay(0.2);
    EXPECT_EQ(defaults.read<bool>(key("clock24h")), false);
    EXPECT_EQ(defaults.read<bool>(key("showSeconds")), false);
    EXPECT_EQ(defaults.read<bool>(key("celsius")), false);
    EXPECT_EQ(defaults.read<QString>(key("refreshRate")), QStringLiteral("live"));
    EXPECT_EQ(defaults.read<QString>(key("language")), QStringLiteral("fr"));
    EXPECT_EQ(defaults.read<double>(key("hoverDelay")), 0.2);
}

TEST_F(Settings, IntervalsFollowTheRates)
{
    EXPECT_EQ(interval(RefreshRate::live), 500ms);
    EXPECT_EQ(interval(RefreshRate::balanced), 1s);
    EXPECT_EQ(interval(RefreshRate::efficient), 2s);
    EXPECT_EQ(interval(RefreshRate::saver), 5s);
}

TEST_F(Settings, LabelsAreTheSystemsOwn)
{
    EXPECT_EQ(label(RefreshRate::live), QStringLiteral("Live · 0.5 s"));
    EXPECT_EQ(label(RefreshRate::balanced), QStringLiteral("Balanced · 1 s"));
    EXPECT_EQ(label(RefreshRate::efficient), QStringLiteral("Efficient · 2 s"));
    EXPECT_EQ(label(RefreshRate::saver), QStringLiteral("Power Saver · 5 s"));
    EXPECT_EQ(label(AppLanguage::german), QStringLiteral("Deutsch"));
    EXPECT_EQ(label(AppLanguage::spanish), QStringLiteral("Español"));
}

TEST_F(Settings, TemperatureFormatsInTheUsersUnit)
{
    AppSettings settings(defaults);
    EXPECT_EQ(settings.temperature(21.5), QStringLiteral("22°"));
    EXPECT_EQ(settings.temperature(-0.4), QStringLiteral("0°"));
    EXPECT_EQ(settings.temperature(-2.5), QStringLiteral("-3°"));
    settings.setCelsius(false);
    EXPECT_EQ(settings.temperature(0), QStringLiteral("32°"));
    EXPECT_EQ(settings.temperature(-40), QStringLiteral("-40°"));
}

TEST_F(Settings, ClocksOf24HoursPadAndHaveNoMarker)
{
    const AppSettings settings(defaults);
    EXPECT_EQ(settings.hourMinute(at(7, 5), QTimeZone::utc()), QStringLiteral("07:05"));
    EXPECT_EQ(settings.hourMinute(at(0, 0), QTimeZone::utc()), QStringLiteral("00:00"));
    EXPECT_EQ(settings.meridiem(at(7, 5), QTimeZone::utc()), QString());
}

TEST_F(Settings, ClocksOf12HoursHaveNoLeadingZeroAndTheLocalesMarker)
{
    store("clock24h", false);
    const AppSettings settings(defaults);
    EXPECT_EQ(settings.hourMinute(at(7, 5), QTimeZone::utc()), QStringLiteral("7:05"));
    EXPECT_EQ(settings.hourMinute(at(0, 0), QTimeZone::utc()), QStringLiteral("12:00"));
    EXPECT_EQ(settings.hourMinute(at(12, 30), QTimeZone::utc()), QStringLiteral("12:30"));
    EXPECT_EQ(settings.hourMinute(at(23, 59), QTimeZone::utc()), QStringLiteral("11:59"));
    EXPECT_EQ(settings.meridiem(at(11, 59), QTimeZone::utc()), QLocale().amText());
    EXPECT_EQ(settings.meridiem(at(12, 0), QTimeZone::utc()), QLocale().pmText());
}

TEST_F(Settings, ATimeZoneMovesTheClock)
{
    const AppSettings settings(defaults);
    EXPECT_EQ(settings.hourMinute(at(7, 5), QTimeZone(5 * 3600 + 1800)), QStringLiteral("12:35"));
    EXPECT_EQ(settings.hourMinute(at(7, 5)),
              QStringLiteral("%1").arg(at(7, 5).toLocalTime().toString(QStringLiteral("HH:mm"))));
}

TEST(Translations, FiftySixKeysInFiveLanguagesWithoutAGap)
{
    const QStringList keys = translationKeys();
    EXPECT_EQ(keys.size(), 56);
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), 56);
    for (const QString &key : keys) {
        EXPECT_EQ(translate(key, AppLanguage::english), key);
        for (const AppLanguage language : allLanguages) {
            const QString text = translate(key, language);
            EXPECT_FALSE(text.trimmed().isEmpty()) << qPrintable(key);
            EXPECT_EQ(text.endsWith(QLatin1Char(' ')), key.endsWith(QLatin1Char(' ')))
                << "a value is appended to " << qPrintable(text);
            EXPECT_EQ(text.endsWith(QLatin1String("...")), key.endsWith(QLatin1String("...")))
                << qPrintable(text);
        }
    }
}

TEST(Translations, LongTextsAreTranslatedIntoEveryLanguage)
{
    for (const QString &key : translationKeys()) {
        if (key.size() < 24)
            continue;
        QSet<QString> texts;
        for (const AppLanguage language : allLanguages)
            texts.insert(translate(key, language));
        EXPECT_EQ(texts.size(), 5) << qPrintable(key);
    }
}

TEST(Translations, KnownTextsStandAsTheyAre)
{
    EXPECT_EQ(translate(QStringLiteral("Settings"), AppLanguage::german), QStringLiteral("Einstellungen"));
    EXPECT_EQ(translate(QStringLiteral("Keep open"), AppLanguage::spanish),
              QStringLiteral("Mantener abierto"));
    EXPECT_EQ(translate(QStringLiteral("Automatically check for updates"), AppLanguage::french),
              QStringLiteral("Rechercher automatiquement les mises à jour"));
    EXPECT_EQ(translate(QStringLiteral("Current Version: "), AppLanguage::italian),
              QStringLiteral("Versione corrente: "));
    EXPECT_EQ(translate(QStringLiteral("Welcome to Brimlight!"), AppLanguage::spanish),
              QStringLiteral("¡Bienvenido a Brimlight!"));
}

TEST(Translations, AnUnknownKeyComesBackUnchanged)
{
    for (const AppLanguage language : allLanguages)
        EXPECT_EQ(translate(QStringLiteral("Nobody has this"), language), QStringLiteral("Nobody has this"));
}

} // namespace brimlight::test
