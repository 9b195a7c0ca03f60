#include "platform/linux/files/JsonUserDefaults.h"

#include "core/AppSettings.h"
#include "fakes/DirectFileWriter.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

QString key()
{
    return QStringLiteral("brimlight.key");
}

} // namespace

class Defaults : public testing::Test
{
protected:
    QByteArray content(const QString &name) const
    {
        QFile file(dir.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }
    QByteArray content() const { return content(QStringLiteral("defaults.json")); }
    void put(const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// What a start of the program finds.
    JsonUserDefaults stored() { return JsonUserDefaults(SavedFile(path, writer)); }

    DirectFileWriter writer;
    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("defaults.json"));
};

TEST_F(Defaults, EveryTypeComesBackAsItself)
{
    const QList<UserDefaults::Value> values{true, 0.25, QStringLiteral("Zürich \"x\"\n"),
                                            QByteArray("\0\xff\x7f", 3),
                                            QStringList{QStringLiteral("a"), QString()}};
    for (const UserDefaults::Value &value : values) {
        stored().setValue(key(), value);
        EXPECT_EQ(stored().value(key()), value);
    }
}

TEST_F(Defaults, TypesAreAskedNeverGuessed)
{
    put(R"({"brimlight.key": 1})");
    const JsonUserDefaults defaults = stored();
    EXPECT_EQ(defaults.read<double>(key()), 1.0) << "a whole number is a number";
    EXPECT_FALSE(defaults.read<bool>(key()));
    EXPECT_FALSE(defaults.read<QString>(key()));
    EXPECT_FALSE(defaults.read<double>(QStringLiteral("brimlight.other")));
}

TEST_F(Defaults, AWholeNumberServesAsTheHoverDelay)
{
    put(R"({"brimlight.hoverDelay": 1})");
    JsonUserDefaults defaults = stored();
    EXPECT_EQ(AppSettings(defaults).hoverDelay(), 1.0);
}

TEST_F(Defaults, AMissingFileIsEmptyAndItsFolderIsMade)
{
    const QString deep = dir.filePath(QStringLiteral("a/b/defaults.json"));
    JsonUserDefaults defaults(SavedFile(deep, writer));
    EXPECT_FALSE(defaults.value(key()));
    EXPECT_FALSE(QFile::exists(deep));
    defaults.setValue(key(), true);
    EXPECT_TRUE(QFile::exists(deep));
}

TEST_F(Defaults, RemovedIsAbsent)
{
    JsonUserDefaults defaults = stored();
    defaults.setValue(key(), true);
    defaults.remove(key());
    EXPECT_FALSE(defaults.value(key()));
    EXPECT_FALSE(stored().value(key()));
}

TEST_F(Defaults, MembersOfOtherShapesCountAsAbsentAndAreCarriedAlong)
{
    put(R"({"a": null, "b": {"data": 5}, "c": ["x", 1], "d": {"data": "!"}, "e": {"x": {"y": []}}})");
    JsonUserDefaults defaults = stored();
    for (const char *name : {"a", "b", "c", "d", "e"})
        EXPECT_FALSE(defaults.value(QLatin1String(name))) << name;
    defaults.setValue(key(), true);
    const QJsonObject stored = QJsonDocument::fromJson(content()).object();
    EXPECT_EQ(stored.size(), 6);
    EXPECT_TRUE(stored.value(QLatin1String("e")).toObject().value(QLatin1String("x")).isObject());
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 1) << "nothing had to be kept aside";
}

class UnusableDefaults : public Defaults, public testing::WithParamInterface<const char *>
{
};

TEST_P(UnusableDefaults, GiveTheDefaultsAndAreKeptAsideBeforeTheFirstWrite)
{
    put(GetParam());
    JsonUserDefaults defaults = stored();
    {
        const AppSettings settings(defaults);
        EXPECT_EQ(settings.hoverDelay(), 0.5);
        EXPECT_TRUE(settings.clock24h());
    }
    EXPECT_EQ(content(), GetParam()) << "reading changes nothing";
    defaults.setValue(key(), true);
    EXPECT_EQ(content(QStringLiteral("defaults.json.unreadable-1")), GetParam());
    EXPECT_EQ(stored().read<bool>(key()), true);
}

INSTANTIATE_TEST_SUITE_P(Contents, UnusableDefaults,
                         testing::Values("", "   \n", "{\"brimlight.clock24h\": fal", "[true]", "\"text\"",
                                         "null", "{\"a\": 1} trailing", "\xff\xfe\x00\x01"));

TEST_F(Defaults, AnUnreadableFileIsKeptAside)
{
    QDir().mkpath(path + QStringLiteral("/inside"));
    JsonUserDefaults defaults = stored();
    EXPECT_FALSE(defaults.value(key()));
    defaults.setValue(key(), true);
    EXPECT_EQ(stored().read<bool>(key()), true);
    EXPECT_TRUE(QDir(path + QStringLiteral(".unreadable-1/inside")).exists());
}

TEST_F(Defaults, AFailedWriteKeepsTheValueForThisRun)
{
    JsonUserDefaults defaults(SavedFile(QStringLiteral("/proc/brimlight/defaults.json"), writer));
    defaults.setValue(key(), 2.5);
    EXPECT_EQ(defaults.read<double>(key()), 2.5);
}

} // namespace brimlight::test
