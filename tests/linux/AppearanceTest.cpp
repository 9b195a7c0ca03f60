#include "platform/linux/dbus/DesktopAppearance.h"

#include "fakes/ManualScheduler.h"
#include "fakes/PrivateBus.h"

#include <gtest/gtest.h>

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

const QString freedesktop = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccess = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString plasma = QStringLiteral("org.kde.kdeglobals.KDE");
const QString animations = QStringLiteral("enable-animations");
const QString contrast = QStringLiteral("contrast");
const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");

class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(const QString &address)
        : m_connection(newConnection(address))
    {
        qDBusRegisterMetaType<PortalValues>();
        m_connection.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                    QDBusConnection::ExportScriptableContents);
    }

    void appear() { EXPECT_TRUE(m_connection.registerService(portalName)); }
    void vanish() { EXPECT_TRUE(m_connection.unregisterService(portalName)); }
    void change(const QString &group, const QString &key, const QVariant &value)
    {
        values[group][key] = value;
        Q_EMIT SettingChanged(group, key, QDBusVariant(value));
    }

    PortalValues values;
    QStringList asked;
    bool answers = true;

public Q_SLOTS:
    Q_SCRIPTABLE PortalValues ReadAll(const QStringList &groups) // NOLINT(readability-identifier-naming)
    {
        asked = groups;
        setDelayedReply(!answers);
        return values;
    }

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_connection;
};

class DesktopAppearanceTest : public testing::Test
{
protected:
    DesktopAppearanceTest()
    {
        appearance.observeChanges([this] { ++changes; });
    }

    void SetUp() override { ASSERT_FALSE(bus.address().isEmpty()) << "dbus-daemon does not start"; }

    void begin() { scheduler.advance(DesktopAppearance::startDelay); }

    PrivateBus bus;
    FakePortal portal{bus.address()};
    ManualScheduler scheduler;
    DesktopAppearance appearance{scheduler, [address = bus.address()] { return newConnection(address); }};
    int changes = 0;
};

} // namespace

TEST(AppearanceWishes, EachSettingAsksByItsOwnValue)
{
    const struct
    {
        QString group;
        QString key;
        QVariant asks;
        QVariant doesNot;
        bool motion;
    } settings[] = {
        {freedesktop, QStringLiteral("reduced-motion"), 1U, 0U, true},
        {gnome, animations, false, true, true},
        {plasma, QStringLiteral("AnimationDurationFactor"), QStringLiteral("0"), QStringLiteral("0.5"), true},
        {freedesktop, contrast, 1U, 0U, false},
        {gnomeAccess, QStringLiteral("high-contrast"), true, false, false},
    };
    for (const auto &setting : settings) {
        AppearanceWishes wishes;
        wishes.set(setting.group, setting.key, setting.asks);
        EXPECT_EQ(wishes.lessMotion(), setting.motion) << qPrintable(setting.key);
        EXPECT_EQ(wishes.lessTransparency(), !setting.motion) << qPrintable(setting.key);
        wishes.set(setting.group, setting.key, setting.doesNot);
        EXPECT_EQ(wishes, AppearanceWishes()) << qPrintable(setting.key);
    }
}

TEST(AppearanceWishes, ValuesOfOtherTypesAskForNothing)
{
    const QVariant odd[] = {{},           QStringLiteral("false"), QStringLiteral(""), 2U, 7.5,
                            QByteArray(), QVariantList{1U},        QVariantMap()};
    for (const QVariant &value : odd) {
        AppearanceWishes wishes;
        wishes.set(freedesktop, QStringLiteral("reduced-motion"), value);
        wishes.set(freedesktop, contrast, value);
        wishes.set(gnome, animations, value);
        wishes.set(gnomeAccess, QStringLiteral("high-contrast"), value);
        wishes.set(plasma, QStringLiteral("AnimationDurationFactor"), value);
        EXPECT_EQ(wishes, AppearanceWishes()) << value.typeName();
    }
}

TEST(AppearanceWishes, AValueMayBeWrappedTwice)
{
    AppearanceWishes wishes;
    const QDBusVariant once(false);
    wishes.set(gnome, animations, QVariant::fromValue(QDBusVariant(QVariant::fromValue(once))));
    EXPECT_TRUE(wishes.lessMotion());
}

TEST(AppearanceWishes, OneThatAsksIsEnough)
{
    const AppearanceWishes wishes = AppearanceWishes::of(
        {{gnome, {{animations, true}, {QStringLiteral("gtk-theme"), QStringLiteral("x")}}},
         {freedesktop, {{QStringLiteral("reduced-motion"), 1U}}},
         {QStringLiteral("org.example"), {{contrast, 1U}}}});
    EXPECT_TRUE(wishes.lessMotion());
    EXPECT_FALSE(wishes.lessTransparency());
}

TEST(AppearanceWishes, AReplyOfAnotherShapeIsNone)
{
    EXPECT_FALSE(portalValues({}));
    EXPECT_FALSE(portalValues({QStringLiteral("text")}));
    EXPECT_FALSE(portalValues({1, 2}));
}

TEST_F(DesktopAppearanceTest, TakesWhatThePortalTells)
{
    portal.values = {{gnome, {{animations, false}}}, {freedesktop, {{contrast, 1U}}}};
    portal.appear();
    EXPECT_FALSE(appearance.reducesMotion()) << "nothing is known at the start";
    begin();
    EXPECT_TRUE(waitFor([&] { return changes > 0; }));
    EXPECT_TRUE(appearance.reducesMotion());
    EXPECT_TRUE(appearance.reducesTransparency());
    EXPECT_EQ(portal.asked, AppearanceWishes::groups());
}

TEST_F(DesktopAppearanceTest, FollowsChanges)
{
    portal.appear();
    begin();
    ASSERT_TRUE(waitFor([&] { return !portal.asked.isEmpty(); }));
    portal.change(gnome, animations, false);
    ASSERT_TRUE(waitFor([&] { return appearance.reducesMotion(); }));
    portal.change(plasma, QStringLiteral("AnimationDurationFactor"), QStringLiteral("0"));
    portal.change(gnome, animations, true);
    portal.change(freedesktop, contrast, 1U);
    EXPECT_TRUE(waitFor([&] { return appearance.reducesTransparency(); }));
    EXPECT_TRUE(appearance.reducesMotion()) << "one of two still asks";
    portal.change(plasma, QStringLiteral("AnimationDurationFactor"), QStringLiteral("1"));
    EXPECT_TRUE(waitFor([&] { return !appearance.reducesMotion(); }));
}

TEST_F(DesktopAppearanceTest, KnowsWhetherProgramsAreToBeDark)
{
    const QString scheme = QStringLiteral("color-scheme");
    portal.values = {{freedesktop, {{scheme, 1U}}}};
    portal.appear();
    EXPECT_FALSE(appearance.isDark()) << "nothing is known at the start";
    begin();
    EXPECT_TRUE(waitFor([&] { return appearance.isDark(); }));
    EXPECT_FALSE(appearance.reducesMotion());
    for (const uint light : {2U, 0U}) {
        portal.change(freedesktop, scheme, light);
        EXPECT_TRUE(waitFor([&] { return !appearance.isDark(); })) << light;
        portal.change(freedesktop, scheme, 1U);
        EXPECT_TRUE(waitFor([&] { return appearance.isDark(); }));
    }
}

TEST_F(DesktopAppearanceTest, WhatTheProgramHasAskedForHoldsUntilThePortalTells)
{
    portal.appear();
    begin();
    ASSERT_TRUE(waitFor([&] { return !portal.asked.isEmpty(); }));
    appearance.setDark(true);
    EXPECT_TRUE(appearance.isDark()) << "at once";
    appearance.setDark(false);
    EXPECT_FALSE(appearance.isDark());
    appearance.setDark(true);
    portal.change(freedesktop, QStringLiteral("color-scheme"), 2U);
    EXPECT_TRUE(waitFor([&] { return !appearance.isDark(); }));
}

TEST_F(DesktopAppearanceTest, APortalThatNeverAnswersHoldsNothingUp)
{
    portal.answers = false;
    portal.appear();
    begin();
    ASSERT_TRUE(waitFor([&] { return !portal.asked.isEmpty(); }));
    EXPECT_FALSE(appearance.reducesMotion());
    portal.change(gnome, animations, false);
    EXPECT_TRUE(waitFor([&] { return appearance.reducesMotion(); })) << "what it tells by itself is heard";
}

TEST_F(DesktopAppearanceTest, APortalThatComesLaterIsAsked)
{
    portal.values = {{gnome, {{animations, false}}}};
    begin();
    // The bus has answered that there is no portal once a call sent after it has returned.
    QObject context;
    bool answered = false;
    callDBus(
        newConnection(bus.address()),
        QDBusMessage::createMethodCall(portalName, QStringLiteral("/"), QString(), QStringLiteral("None")),
        context, [&](const auto &reply) {
            EXPECT_FALSE(reply);
            answered = true;
        });
    EXPECT_TRUE(waitFor([&] { return answered; }));
    EXPECT_FALSE(appearance.reducesMotion());
    portal.appear();
    EXPECT_TRUE(waitFor([&] { return appearance.reducesMotion(); }));
}

TEST_F(DesktopAppearanceTest, ARestartOfThePortalIsReadAfresh)
{
    portal.values = {{gnome, {{animations, false}}}};
    portal.appear();
    begin();
    ASSERT_TRUE(waitFor([&] { return appearance.reducesMotion(); }));
    portal.vanish();
    portal.values.clear();
    portal.appear();
    EXPECT_TRUE(waitFor([&] { return !appearance.reducesMotion(); }));
}

TEST_F(DesktopAppearanceTest, ABackendThatIsGoneIsNotCalledBack)
{
    portal.appear();
    {
        auto other = std::make_unique<DesktopAppearance>(
            scheduler, [address = bus.address()] { return newConnection(address); });
        begin();
        other.reset();
    }
    EXPECT_TRUE(waitFor([&] { return !portal.asked.isEmpty(); }));
}

TEST(DesktopAppearance, WithoutABusNothingIsReduced)
{
    const auto open = [] { return newConnection(QStringLiteral("unix:path=/nonexistent/bus")); };
    ManualScheduler scheduler;
    bool tried = false;
    QObject context;
    DesktopAppearance appearance(scheduler, open);
    scheduler.advance(DesktopAppearance::startDelay);
    openBus(context, open, [&](const QDBusConnection &bus) {
        EXPECT_FALSE(bus.isConnected());
        tried = true;
    });
    EXPECT_TRUE(waitFor([&] { return tried; }));
    EXPECT_FALSE(appearance.reducesMotion());
    EXPECT_FALSE(appearance.reducesTransparency());
}

} // namespace brimlight::test

#include "AppearanceTest.moc"
