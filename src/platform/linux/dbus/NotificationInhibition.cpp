#include "platform/linux/dbus/NotificationInhibition.h"

#include <QDBusMessage>
#include <QDBusVariant>

namespace brimlight {
namespace {

/// The service, its interface and its property.
const QString notifications = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString inhibited = QStringLiteral("Inhibited");

} // namespace

NotificationInhibition::NotificationInhibition(Scheduler &scheduler, std::function<QDBusConnection()> bus)
{
    m_start = scheduler.after(startDelay, [this, bus = std::move(bus)] {
        openBus(*this, bus, [this](const QDBusConnection &opened) { listen(opened); });
    });
}

void NotificationInhibition::listen(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    m_bus = bus;
    // No sender is named: Qt would ask the bus for its owner and wait for the answer.
    bus.connect({}, path, properties, QStringLiteral("PropertiesChanged"), {notifications},
                QStringLiteral("sa{sv}as"), this, SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
    bus.connect({}, QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                QStringLiteral("NameOwnerChanged"), {notifications}, QStringLiteral("sss"), this,
                SLOT(ownerChanged(QString, QString, QString)));
    read();
}

void NotificationInhibition::read()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(notifications, path, properties, QStringLiteral("Get"));
    call << notifications << inhibited;
    call.setAutoStartService(false);
    callDBus(*m_bus, call, *this, [this](const std::optional<QVariantList> &reply) {
        const QVariant value = reply.value_or(QVariantList()).value(0).value<QDBusVariant>().variant();
        m_isInhibited = value.typeId() == QMetaType::Bool && value.toBool();
    });
}

void NotificationInhibition::propertiesChanged(const QString &, const QVariantMap &values,
                                               const QStringList &names)
{
    // Asked for rather than taken: anybody can send this signal, and answers come in the order of questions.
    if (values.contains(inhibited) || names.contains(inhibited))
        read();
}

void NotificationInhibition::ownerChanged(const QString &, const QString &, const QString &)
{
    read();
}

} // namespace brimlight
