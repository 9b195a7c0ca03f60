#include "platform/linux/dbus/NotificationInhibition.h"

#include "fakes/ManualScheduler.h"
#include "fakes/PrivateBus.h"
#include "platform/linux/desktop/LinuxDoNotDisturb.h"

#include <gtest/gtest.h>

#include <QDBusMessage>

namespace brimlight::test {
namespace {

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");
const QString servicePath = QStringLiteral("/org/freedesktop/Notifications");

/// A notification service that can be told to hold back.
class NotificationService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
    Q_PROPERTY(bool Inhibited READ isInhibited SCRIPTABLE true)

public:
    explicit NotificationService(const QString &address)
        : m_connection(newConnection(address))
    {
        m_connection.registerObject(servicePath, this, QDBusConnection::ExportScriptableContents);
    }

    bool isInhibited() const
    {
        ++reads;
        return inhibited;
    }
    void appear() { EXPECT_TRUE(m_connection.registerService(serviceName)); }
    void vanish() { EXPECT_TRUE(m_connection.unregisterService(serviceName)); }
    /// With or without the new value in the signal.
    void set(bool value, bool told = true)
    {
        inhibited = value;
        const QString name = QStringLiteral("Inhibited");
        announce(told ? QVariantMap{{name, value}} : QVariantMap(), told ? QStringList() : QStringList(name));
    }
    void announce(const QVariantMap &values, const QStringList &names)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(servicePath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        signal << serviceName << values << names;
        EXPECT_TRUE(m_connection.send(signal));
    }

    bool inhibited = false;
    mutable int reads = 0;

private:
    QDBusConnection m_connection;
};

class NotificationInhibitionTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_FALSE(bus.address().isEmpty()) << "dbus-daemon does not start"; }
    void begin() { scheduler.advance(NotificationInhibition::startDelay); }

    PrivateBus bus;
    NotificationService service{bus.address()};
    ManualScheduler scheduler;
    NotificationInhibition inhibition{scheduler,
                                      [address = bus.address()] { return newConnection(address); }};
};

} // namespace

TEST_F(NotificationInhibitionTest, TakesWhatTheServiceTells)
{
    service.inhibited = true;
    service.appear();
    EXPECT_FALSE(inhibition.isInhibited());
    EXPECT_EQ(service.reads, 0) << "nothing is asked at the start";
    begin();
    EXPECT_TRUE(waitFor([&] { return inhibition.isInhibited(); }));
}

TEST_F(NotificationInhibitionTest, FollowsChanges)
{
    service.appear();
    begin();
    ASSERT_TRUE(waitFor([&] { return service.reads > 0; }));
    service.set(true);
    EXPECT_TRUE(waitFor([&] { return inhibition.isInhibited(); }));
    service.set(false, false);
    EXPECT_TRUE(waitFor([&] { return !inhibition.isInhibited(); }));
}

TEST_F(NotificationInhibitionTest, IsNotAskedUnlessSomethingHasChanged)
{
    service.appear();
    begin();
    ASSERT_TRUE(waitFor([&] { return service.reads == 1; }));
    service.announce({{QStringLiteral("Other"), true}}, {});
    service.set(true);
    EXPECT_TRUE(waitFor([&] { return inhibition.isInhibited(); }));
    EXPECT_EQ(service.reads, 2) << "signals come in their order, so the first was passed over";
}

TEST_F(NotificationInhibitionTest, AServiceThatComesLaterIsAskedAndOneThatGoesInhibitsNothing)
{
    service.inhibited = true;
    begin();
    service.appear();
    EXPECT_TRUE(waitFor([&] { return inhibition.isInhibited(); }));
    service.vanish();
    EXPECT_TRUE(waitFor([&] { return !inhibition.isInhibited(); }));
    service.appear();
    EXPECT_TRUE(waitFor([&] { return inhibition.isInhibited(); }));
}

TEST_F(NotificationInhibitionTest, AServiceWithoutTheValueInhibitsNothing)
{
    QObject other;
    QDBusConnection connection = newConnection(bus.address());
    connection.registerObject(servicePath, &other);
    ASSERT_TRUE(connection.registerService(serviceName));
    begin();
    QObject context;
    bool answered = false;
    openBus(
        context, [address = bus.address()] { return newConnection(address); },
        [&](const QDBusConnection &bus) {
            QDBusMessage call = QDBusMessage::createMethodCall(serviceName, servicePath,
                                                               QStringLiteral("org.x"), QStringLiteral("X"));
            callDBus(bus, call, context, [&](const auto &reply) {
                EXPECT_FALSE(reply);
                answered = true;
            });
        });
    EXPECT_TRUE(waitFor([&] { return answered; }));
    EXPECT_FALSE(inhibition.isInhibited());
}

TEST(NotificationInhibition, WithoutABusNothingIsInhibited)
{
    const auto open = [] { return newConnection(QStringLiteral("unix:path=/nonexistent/bus")); };
    ManualScheduler scheduler;
    QObject context;
    bool tried = false;
    NotificationInhibition inhibition(scheduler, open);
    scheduler.advance(NotificationInhibition::startDelay);
    openBus(context, open, [&](const QDBusConnection &) { tried = true; });
    EXPECT_TRUE(waitFor([&] { return tried; }));
    EXPECT_FALSE(inhibition.isInhibited());
}

TEST(LinuxDoNotDisturb, OnlyGnomeIsAskedForItsBanners)
{
    ManualScheduler scheduler;
    const LinuxDoNotDisturb plasma(scheduler, QStringLiteral("KDE"));
    EXPECT_EQ(scheduler.pendingCount(), 1);
    const LinuxDoNotDisturb gnome(scheduler, QStringLiteral("ubuntu:GNOME"));
    EXPECT_EQ(scheduler.pendingCount(), 3);
    EXPECT_FALSE(gnome.isInhibited());
    EXPECT_FALSE(gnome.hidesBanners());
    EXPECT_FALSE(plasma.hidesBanners());
}

} // namespace brimlight::test

#include "NotificationInhibitionTest.moc"
